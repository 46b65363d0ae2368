
# ---- Connect and disconnect on every system ----------------------------------------------------------------
# The system's own part defines undo_session, end_run and MARKER.

ON_FAILURE=''   # "undo" while a failure must undo everything; empty before the first change and while the kill switch stays on
UNDONE=''       # why an undo_... function failed

# stay_closed: from now on a failure leaves the kill switch on.
stay_closed() { ON_FAILURE='' STAYS_CLOSED=" The network stays blocked until you disconnect."; }

# in_path NAME: whether there is such a program, and it can run.
in_path() {
  local folder IFS=:
  for folder in $PATH; do
    [[ ! -f $folder/$1 || ! -x $folder/$1 ]] || return 0
  done
  return 1
}

need_programs() {
  local program
  for program in "$@"; do
    in_path "$program" || die "The program $program is missing on this system."
  done
}

# finish: runs at every exit, so that a failed run prints its reason and leaves no half-made session.
finish() {
  local status=$?
  trap - EXIT
  if ((status != 0)); then
    [[ -n $SAID ]] || say "The helper stopped unexpectedly."
    if [[ $ON_FAILURE == undo ]]; then
      ON_FAILURE=
      set +e
      undo_session
    fi
  fi
  end_run || true
  exec 7>&- 9>&-
  LOCKED=''
  [[ -z $MESSAGE ]] || say "$MESSAGE"
  exit "$status"
}

read_marker() {
  local word=''
  if [[ -f $MARKER && ! -L $MARKER ]]; then
    IFS= read -r word <"$MARKER" || true
  fi
  printf '%s' "$word"
}

# parse_disconnect WORD...: the caller may name the session's program. On macOS no owner is recorded, so none is
# refused.
parse_disconnect() {
  parse_options " --process " "$@"
  [[ -z $OPT_PROCESS || $OPT_PROCESS =~ ^[1-9][0-9]{0,9}$ ]] || die "The process id is not valid."
}

put_marker() {
  write_file "$MARKER" 0644 root "$1"$'\n' || die "The session marker cannot be written."
}

# ---- The options of a strict session -----------------------------------------------------------------------
# The passwordless rule allows a disconnect of a strict session. It does not allow a connect that weakens the
# running session: no proxy mode, no open local network, no other password, exit, bridges (in use or
# in reserve) or programs.

# print_asked LAN: the checked options, programs with the paths that will run.
print_asked() {
  printf '%s\n' "lan $1" "hash $OPT_HASH" "exit $OPT_EXIT" "tor $OPT_TOR" "separate ${OPT_SEPARATE:-0}"
  printf '%s\n' "lyrebird $USED_LYREBIRD $OPT_LYREBIRD" "snowflake $USED_SNOWFLAKE $OPT_SNOWFLAKE" \
    "webtunnel $USED_WEBTUNNEL $OPT_WEBTUNNEL" ${OPT_BRIDGES[@]+"${OPT_BRIDGES[@]/#/bridge }"} \
    ${OPT_RESERVES[@]+"${OPT_RESERVES[@]/#/reserve }"}
}

note_asked() { write_file "$ASKED" 0600 root "$(print_asked "$OPT_LAN")"$'\n' || die "The file $ASKED cannot be written."; }

# lessens: whether the request differs from the running session by more than a closed local network.
lessens() {
  local asked=''
  [[ $OPT_STRICT == 1 && -f $ASKED && ! -L $ASKED ]] && asked=$(<"$ASKED") || return 0
  [[ $asked != "$(print_asked "$OPT_LAN")" ]] || return 1
  [[ $OPT_LAN != 0 || $asked != "$(print_asked 1)" ]]
}

# guard_session: for a connect during a strict session. The dialog of connect does not say that the session would
# be weakened; that of replace does. A caller who ran the helper by hand has typed all options.
guard_session() {
  [[ -n $PROMPTED && (-z $BY_DIALOG || $VERB == replace) ]] || ! lessens || {
    rm -f -- "$TORRC.checked"
    unapproved "An administrator password is needed to change the running strict session."
  }
}
