
# ---- The watcher's note for the application ----------------------------------------------------------------
# The system's own part defines KILL_SWITCH_NOTE, a file that every user can read, in a folder that a restart of
# the computer empties. It contains "WORD COUNT SINCE". WORD: standing (the kernel holds the rules as they were
# loaded), restored (they were missing and are back) or open (they are missing and could not be restored). COUNT:
# how often they were missing. SINCE: seconds since 1970. The file's own time is that of the watcher's last check.
# The watcher checks at least every few seconds, so an old note means nothing.

WORD='' MISSED=0 SINCE=0 NOTED=''

# note_rules WORD: records the result of a check: standing, restored or open.
note_rules() {
  local text word=$1
  case $WORD,$word in
  open,standing) word=restored ;;       # another program has restored them
  restored,standing) word=restored ;;   # still restored
  open,*) ;;                            # still the same loss
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
