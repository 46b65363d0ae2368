
# ---- Linux: whose session it is ----------------------------------------------------------------------------
# Beside the marker stands who made the session: the user, and the program that asked for it, while that program is one of
# Veldmark's own. Everybody may read it, so that every instance on the computer can tell a session that somebody is using
# from one that was left over.

readonly OWNER=$STATE/owner   # 0644; lines "uid UID", "pid PID", "start TICKS", "boot ID", "end"; the middle three may be missing

# asking_process: prints the process id of Veldmark's program that had this run started, directly or by sudo or pkexec; nothing
# when it was anybody else, as a person at a shell. A program that only has the name harms nobody but its own user.
asking_process() {
  local pid=$PPID step key value name parent
  for ((step = 0; step < 5; step++)); do
    name='' parent=0
    { while read -r key value _; do
      case $key in
      Name:) name=$value ;;
      PPid:) parent=$value ;;
      esac
    done <"/proc/$pid/status"; } 2>/dev/null || return 0
    case $name in
    veldmark | veldmarkctl) printf '%s' "$pid" && return 0 ;;
    sudo | pkexec) pid=$parent ;;
    *) return 0 ;;
    esac
  done
}

# note_owner: before the marker, so that there is never a session whose owner is not known.
note_owner() {
  local pid text="uid $CALLER_UID"
  pid=$(asking_process)
  if [[ -n $pid ]] && start_time "$pid"; then
    read_boot
    text="$text"$'\n'"pid $pid"$'\n'"start $START_TIME"$'\n'"boot $BOOT"
  fi
  write_file "$OWNER" 0644 root "$text"$'\nend\n' || die "The file $OWNER cannot be written."
}

# live_owner: sets OWNER_UID and OWNER_PID to the user and the program of the session, while the program that asked for it runs; 1 when it does not.
OWNER_UID='' OWNER_PID=''
live_owner() {
  OWNER_UID='' OWNER_PID=''
  [[ -f $MARKER && -f $OWNER && ! -L $OWNER ]] && read_lines "$OWNER" && find_recorded || return 1
  OWNER_PID=$RECORDED_PID
  OWNER_UID=$(journal_value uid) && is_uid "$OWNER_UID"
}

# spare_others: a session that another user is using is ended, or replaced, only where an administrator approves that very run.
spare_others() {
  local name
  [[ -z $PROMPTED ]] && safe_folders && live_owner && [[ $OWNER_UID != "$CALLER_UID" ]] || return 0
  name=$(getent passwd "$OWNER_UID") || name="the user $OWNER_UID"
  die "Veldmark is in use by ${name%%:*}. An administrator password is needed to end that session."
}

# spare_unmeant: who asks may name the program whose session is to be ended. Another program's is left alone: it has come since.
spare_unmeant() {
  [[ -n $OPT_PROCESS ]] && safe_folders && live_owner && [[ $OWNER_PID != "$OPT_PROCESS" ]] || return 0
  die "Another program (process $OWNER_PID) has begun a session since. It was left alone."
}
