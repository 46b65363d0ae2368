
# ---- What connect and disconnect share on every system -----------------------------------------------------
# The system's own part brings undo_session, end_run and MARKER.

ON_FAILURE=''   # "undo" while a failure must put everything back; empty before the first change and where the
                # kill switch stays closed
UNDONE=''       # why an undo_... function failed

# `command -v` also gives a file that nobody may run, when there is no other.
need_programs() {
  local program path
  for program in "$@"; do
    { path=$(command -v "$program") && [[ -x $path ]]; } || die "The program $program is missing on this system."
  done
}

# finish: runs at every exit, so that a failed run has said why and leaves no half-made session.
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
  exit "$status"
}

read_marker() {
  local word=''
  if [[ -f $MARKER && ! -L $MARKER ]]; then
    IFS= read -r word <"$MARKER" || true
  fi
  printf '%s' "$word"
}

put_marker() {
  write_file "$MARKER" 0644 root "$1"$'\n' || die "The session marker cannot be written."
}
