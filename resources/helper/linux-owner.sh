
# ---- Linux: the session's owner ----------------------------------------------------------------------------
# Beside the marker the helper notes the session's owner: the user, and the program that asked for the session if it is one of Veldmark's.
# The file is readable for all users, so that every instance on the computer can tell a session in use from a left-over one.

readonly OWNER=$STATE/owner   # 0644; lines "uid UID", "pid PID", "start TICKS", "boot ID", "end"; the middle three may be missing

# asking_process: prints the process id of Veldmark's program that started this run, directly or by sudo or pkexec; nothing for any other
# caller, such as a shell. A program that only has the name can harm only its own user.
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

# note_owner: called before the marker is written, so that no session is without an owner.
note_owner() {
  local pid text="uid $CALLER_UID"
  pid=$(asking_process)
  if [[ -n $pid ]] && start_time "$pid"; then
    read_boot
    text="$text"$'\n'"pid $pid"$'\n'"start $START_TIME"$'\n'"boot $BOOT"
  fi
  write_file "$OWNER" 0644 root "$text"$'\nend\n' || die "The file $OWNER cannot be written."
}

# live_owner: sets OWNER_UID and OWNER_PID to the session's user and program while the program that asked for it runs; otherwise status 1.
OWNER_UID='' OWNER_PID=''
live_owner() {
  OWNER_UID='' OWNER_PID=''
  [[ -f $MARKER && -f $OWNER && ! -L $OWNER ]] && read_lines "$OWNER" && find_recorded || return 1
  OWNER_PID=$RECORDED_PID
  OWNER_UID=$(journal_value uid) && is_uid "$OWNER_UID"
}

# spare_others: another user's session in use is ended, or replaced, only when an administrator approves that very run.
spare_others() {
  local name
  [[ -z $PROMPTED ]] && safe_folders && live_owner && [[ $OWNER_UID != "$CALLER_UID" ]] || return 0
  name=$(getent passwd "$OWNER_UID") || name="the user $OWNER_UID"
  unapproved "Veldmark is in use by ${name%%:*}. An administrator password is needed to end that session."
}

# spare_unmeant: the caller may name the program whose session is to be ended. A session of another program is newer and is left alone.
spare_unmeant() {
  [[ -n $OPT_PROCESS ]] && safe_folders && live_owner && [[ $OWNER_PID != "$OPT_PROCESS" ]] || return 0
  die "Another program (process $OWNER_PID) has started a session meanwhile. That session was left alone."
}
