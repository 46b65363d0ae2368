
# ---- Linux: system proxy -----------------------------------------------------------------------------------
# GNOME's settings and KDE's kioslaverc, whichever the session's user has: each has a part of its own. All of it runs as that user, with
# time limits. The output of those programs is data that is only given back to them.

readonly ANSWER=$RUN/answer   # 0600; the output of a user's program
readonly ANSWER_BYTES=262144
readonly SESSION_SECONDS=5    # for a script that runs one or two programs, and for each program of a longer one
readonly SESSION_LIMIT=15     # for a script that runs a program for each setting; shorter than the wait for the lock
readonly MAX_SETTING=65536    # bytes; a longer setting could not be passed back in an argument

# sh runs the scripts. A script that reads settings ends with status 3 when the user has no such desktop.

# The first lines of a script that runs many programs. `step` gives each program the time limit of a short script, so that slow
# programs together may take longer, while one that hangs is ended early. Each program stays in the script's process group, which is
# ended as a whole.
readonly IN_STEPS="
step() { timeout --foreground -k 1 $SESSION_SECONDS \"\$@\"; }"

# as_session SCRIPT [ARGUMENT...]: runs it as the session's user; its output goes to $ANSWER, up to ANSWER_BYTES, so that it cannot fill the
# disk. A program that keeps the pipe open is not waited for.
as_session() {
  local script=$1 seconds=$SESSION_SECONDS
  shift
  [[ $script != "$IN_STEPS"* ]] || seconds=$SESSION_LIMIT
  rm -f -- "$ANSWER"
  as_caller "$seconds" env XDG_RUNTIME_DIR="/run/user/$CALLER_UID" INNER= \
    DBUS_SESSION_BUS_ADDRESS="unix:path=/run/user/$CALLER_UID/bus" sh -c "$script" "$script" "$@" |
    take_output $((seconds + 2)) "$ANSWER_BYTES" >"$ANSWER"
}

# be_session_user UID: makes the UID of a journal entry the user that as_session runs as.
be_session_user() {
  is_uid "$1" && [[ $1 != 0 ]] || return 1
  if [[ $CALLER_UID != "$1" || -z $CALLER_NAME ]]; then
    CALLER_UID=$1 CALLER_NAME=''
    read_accounts
  fi
  [[ -n $CALLER_NAME ]]
}

# put_proxy: in proxy mode a desktop without a working proxy setting is a failure, since nothing else protects it.
put_proxy() {
  local entry user=$CALLER_UID
  # Settings of another user, from a session that is being replaced, are restored first.
  for entry in "$GNOME_ENTRY" "$KDE_ENTRY"; do
    if journal_read "$entry" && [[ $(journal_value uid) != "$user" ]]; then
      undo_entry "$entry" || true
    fi
  done
  if [[ $CALLER_UID != "$user" || -z $CALLER_NAME ]]; then
    CALLER_UID=$user CALLER_NAME=''
    read_accounts
  fi
  [[ $CALLER_UID != 0 ]] || return 0
  put_gnome && put_kde || [[ $OPT_STRICT == 1 ]] || die "The desktop's proxy settings cannot be changed."
}
