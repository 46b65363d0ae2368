
# ---- What the watcher tells the application ----------------------------------------------------------------
# The system's own part brings KILL_SWITCH_NOTE, a file that everybody may read, in a folder that a restart of the
# computer empties. It holds "WORD COUNT SINCE": standing (the kernel holds the rules as they were loaded), restored
# (they were missing and are back) or open (they are missing and could not be put back); how often they were missed;
# since when, in seconds since 1970. The file's own time is that of the watcher's last sign of life, which looks again every
# few seconds at the latest; so what is old tells nothing.

WORD='' MISSED=0 SINCE=0 NOTED=''

# note_rules WORD: what a look has found: standing, restored or open.
note_rules() {
  local text word=$1
  case $WORD,$word in
  open,standing) word=restored ;;       # somebody else has put them back
  restored,standing) word=restored ;;   # and there they stand
  open,*) ;;                            # still the same miss
  *,restored | *,open) MISSED=$((MISSED + 1)) WORD='' ;;
  esac
  if [[ $word != "$WORD" ]]; then
    WORD=$word
    SINCE=$(date +%s) || SINCE=0
  fi
  text="$WORD $MISSED $SINCE"
  if [[ $text == "$NOTED" && -f $KILL_SWITCH_NOTE ]]; then
    touch -c -- "$KILL_SWITCH_NOTE" && return 0
  fi
  NOTED=''
  write_file "$KILL_SWITCH_NOTE" 0644 root "$text"$'\n' && NOTED=$text
}
