
# ---- Linux: running Tor ------------------------------------------------------------------------------------
# Tor runs as its own account, with one right of root's, that to bind the DNS port, in a control group and in mount and process namespaces
# of its own. It keeps the resolvers from before the switch, cannot load code from places that users can write, leaves no program behind
# that others could run, and its transports end with it. The helper identifies it by process id and start time, never by name.

readonly TOR_ENTRY=20-tor
readonly START_OUT=$RUN/start.out  # Tor's output before its log exists
readonly LAUNCHER_OUT=$RUN/launcher.out   # output of the programs that start Tor
readonly START_POLLS=500   # of about 20 ms: Tor opens its control port within 10 s, or it has failed
readonly STOP_POLLS=200    # of about 20 ms: Tor has about 4 s to end
readonly FILTER_NAME=veldmark-control
readonly OWN_PLACE=/usr/libexec/veldmark   # for the package's programs that only the helper runs
readonly PACKAGED_HELPER=/usr/share/veldmark/veldmark-helper.sh
readonly RESERVE=$RUN/reserve       # root 0600; the bridges that the filter lets Tor change to, a line each

# Runs as root in the new namespaces: RESOLVERS TARGET DATA LOG COMMAND... COMMAND gives up root. Tor's account may write its data, its log
# and three places in memory that are visible to no other process. All other files are read-only, so it leaves no program for a later
# session or for other users. Later mounts and unmounts of the system appear here, too, since the mounts are its slaves.
# No file grows beyond 100 MB: Tor writes a line to its log for wrong requests at its ports, and any program may send such without end. Tor
# goes on without its log then.
# shellcheck disable=SC2016
readonly INSIDE='
set -eu
data=$3 log=$4
if [ -n "$2" ] && [ -e "$2" ]; then mount --bind -- "$1" "$2"; fi
shift 4
for socket in /run/systemd/resolve/io.systemd.Resolve /run/nscd/socket; do
  if [ -S "$socket" ]; then mount --bind /dev/null "$socket"; fi
done
for place in /home /run/user /media /mnt; do
  if [ -d "$place" ] && [ ! -L "$place" ]; then mount -o bind,ro,nosuid,nodev,noexec "$place" "$place"; fi
done
for place in /tmp /var/tmp /dev/shm; do
  if [ -d "$place" ] && [ ! -L "$place" ]; then mount -t tmpfs -o mode=1777,size=16m,nosuid,nodev,noexec private "$place"; fi
done
mount -o bind,nosuid,nodev,noexec "$data" "$data"
mount --bind "$log" "$log"
while read -r _ _ _ _ point flags _; do
  case $point in
  "$data" | "$log" | /tmp | /var/tmp | /dev | /dev/* | /proc | /proc/* | /sys | /sys/*) continue ;;
  /home/* | /run/user/* | /media/* | /mnt/*) continue ;;   # hidden by the mounts above
  esac
  printf -v point "%b" "$point"
  case $flags in
  rw*) mount -o "remount,bind,ro${flags#rw},nosuid" "$point" || : ;;
  esac
done <<<"$(</proc/self/mountinfo)"
ulimit -f 102400
exec "$@"
'

# pause SECONDS: waits on a pipe to which nobody writes, instead of for a program that would have to start each time. No user's program
# gets the pipe, descriptor 6: it could write to it.
PAUSES=''
pause() {
  [[ -n $PAUSES ]] || { exec 6<> <(:) && PAUSES=1; }
  read -r -t "$1" -u 6 _ || true
}

# start_time PID: sets START_TIME to the process's start in clock ticks since boot; status 1 when it has ended.
START_TIME=''
start_time() {
  local line
  START_TIME=
  { IFS= read -r line <"/proc/$1/stat"; } 2>/dev/null || return 1
  # The name, in round brackets, may contain any character.
  line=${line##*) }
  # shellcheck disable=SC2086
  set -- $line
  [[ $1 != [ZX] ]] || return 1
  START_TIME=${20}
}

has_ipv6_loopback() {
  local address rest
  while read -r address rest; do
    [[ $address != 00000000000000000000000000000001 ]] || return 0
  done 2>/dev/null </proc/net/if_inet6
  return 1
}

# boot_id: identifies the present run of the computer. read_boot sets BOOT to it.
BOOT=''
read_boot() {
  BOOT=unknown
  read -r BOOT </proc/sys/kernel/random/boot_id || true
}
boot_id() {
  read_boot
  printf '%s' "$BOOT"
}

# become_recorded ENTRY: for background halves that turn into a process which outlives this run. It writes its own journal entry, and only
# then closes every descriptor, above all the lock, so that a later run always finds a record of it.
become_recorded() {
  local pid line fd
  IFS= read -r line </proc/self/stat
  pid=${line%% *}
  read_boot
  { start_time "$pid" && journal_put "$1" "pid $pid" "start $START_TIME" "boot $BOOT" 2>/dev/null; } || {
    printf 'the journal cannot be written.\n' >&2
    exit 1
  }
  for fd in /proc/self/fd/*; do
    fd=${fd##*/}
    # Bash closes its own descriptor of the script by itself.
    if ((fd > 2 && fd != 255)); then exec {fd}>&-; fi
  done
}

# find_recorded: sets RECORDED_PID to the process id in the entry that was read; status 1 when that very process no longer runs. It is
# called repeatedly while a process ends, so it starts no program.
RECORDED_PID=''
find_recorded() {
  local line pid='' start='' boot=''
  RECORDED_PID=''
  for line in ${JOURNAL_LINES[@]+"${JOURNAL_LINES[@]}"}; do
    case $line in
    "pid "*) pid=${pid:-${line#* }} ;;
    "start "*) start=${start:-${line#* }} ;;
    "boot "*) boot=${boot:-${line#* }} ;;
    esac
  done
  read_boot
  [[ $pid =~ ^[1-9][0-9]{0,9}$ && $start =~ ^[0-9]{1,20}$ && $boot == "$BOOT" ]] || return 1
  start_time "$pid" && [[ $START_TIME == "$start" ]] || return 1
  RECORDED_PID=$pid
}

# find_own NAME: sets OWN_PROGRAM to the path without links of a program of Veldmark's, which only root can change.
OWN_PROGRAM=''
find_own() {
  local path
  for path in "${SELF%/*}/$1" "$OWN_PLACE/$1"; do
    OWN_PROGRAM=$(real_path "$path") || continue
    [[ ! -f $OWN_PROGRAM || ! -x $OWN_PROGRAM ]] || ! root_owned "$OWN_PROGRAM" || ! on_own_mount "$OWN_PROGRAM" || return 0
  done
  return 1
}

# find_filter: sets FILTER to the program that stands before Tor's control port, with its operands, where Tor's account can run it. The
# mounts that Tor sees hide some places or let nothing run there (INSIDE). Without it Tor has the port itself: in a build folder, where no
# package is installed. An installed filter that cannot be used, or that its package lacks, ends the connect, so that no failed look at it
# takes it away.
FILTER=()
find_filter() {
  local path
  FILTER=() CONTROL_SOCKET=''
  if ! find_own "$FILTER_NAME" || ! open_to_all "$OWN_PROGRAM"; then
    for path in "${SELF%/*}/$FILTER_NAME" "$OWN_PLACE/$FILTER_NAME"; do
      [[ $SELF != /usr/* || ! -e $path ]] || die "The filter before Tor's control port cannot be used."
    done
    [[ ! -e $PACKAGED_HELPER ]] || die "The filter before Tor's control port cannot be used."
    return 0
  fi
  case $OWN_PROGRAM in /home/* | /run/* | /media/* | /mnt/* | /tmp/* | /var/tmp/* | /dev/*) return 0 ;; esac
  CONTROL_SOCKET=$DATA/control
  FILTER=("$OWN_PROGRAM" 127.0.0.1 "$CONTROL_PORT" "$CONTROL_SOCKET")
  ((${#OPT_RESERVES[@]} == 0)) || FILTER+=(-)
  FILTER+=(--)
}

# Where there is a filter, it is the first process of the namespaces, and Tor is its child. It ends with Tor, and Tor with it.
launch_tor() {
  become_recorded "$TOR_ENTRY"
  ! find_tree || enter_group "$TREE/$TOR_GROUP" || true
  exec env -i --default-signal PATH="$PATH" LC_ALL=C HOME="$DATA" \
    setsid unshare --mount --propagation slave --pid --fork --kill-child \
    /bin/bash -p -c "$INSIDE" inside "$TOR_RESOLVER" "$RESOLVER_TARGET" "$DATA" "$NOTICES" \
    setpriv --reuid "$TOR_UID" --regid "$TOR_GID" --clear-groups --no-new-privs --bounding-set=-all,+net_bind_service \
    --inh-caps=-all,+net_bind_service --ambient-caps=-all,+net_bind_service --pdeathsig KILL \
    ${FILTER[@]+"${FILTER[@]}"} "$OPT_TOR" -f "$TORRC"
}

# tor_listens: whether Tor's account has opened the control port, which the filter does once Tor answers.
tor_listens() {
  local port
  printf -v port '%04X' "$CONTROL_PORT"
  grep -qE ": [0-9A-F]+:$port [0-9A-F]+:[0-9A-F]+ 0A [0-9A-F:]+ [0-9A-F:]+ [0-9A-F]+ +$TOR_UID " /proc/net/tcp
}

# ready_logs: empties the log files. Tor writes them through its group; only the session's user may read them, not the user's group, which
# may include everybody.
ready_logs() {
  rm -f -- "$NOTICES" "$START_OUT" "$LAUNCHER_OUT" &&
    : >"$NOTICES" && : >"$START_OUT" && : >"$LAUNCHER_OUT" &&
    chown -- "$CALLER_UID:$TOR_GID" "$NOTICES" "$START_OUT" "$LAUNCHER_OUT" &&
    chmod 0460 -- "$NOTICES" "$START_OUT" "$LAUNCHER_OUT"
}

tor_failure() {
  local reason
  reason=$(tor_reason "$(cat -- "$LAUNCHER_OUT" "$START_OUT" "$NOTICES" 2>/dev/null | tail -c 16384 | tr -d '\0')")
  printf '%s' "${reason:-it ended without a message.}"
}

# put_reserve: writes the bridges in reserve for the filter, which reads them at its start, as its standard input: bridge programs, in the same
# account, do not need them. Without any there is no file.
put_reserve() {
  local text=''
  if ((${#OPT_RESERVES[@]} == 0)); then
    rm -f -- "$RESERVE"
    return
  fi
  printf -v text '%s\n' "${OPT_RESERVES[@]}"
  write_file "$RESERVE" 0600 root "$text" || die "The file $RESERVE cannot be written."
}

# put_tor: returns once Tor listens at its control port.
put_tor() {
  local launcher poll input=/dev/null
  write_file "$TOR_RESOLVER" 0644 root "$FORMER_RESOLVER"$'\n' || die "The file $TOR_RESOLVER cannot be written."
  mv -fT -- "$TORRC.checked" "$TORRC" || die "The file $TORRC cannot be written."
  ready_logs || die "Tor's log files cannot be made."
  put_reserve
  # A former Tor's account may have left anything there.
  [[ ! -e $DATA/control && ! -L $DATA/control ]] || rm -rf -- "$DATA/control"
  ((${#OPT_RESERVES[@]} == 0 || ${#FILTER[@]} == 0)) || input=$RESERVE
  launch_tor <"$input" >>"$START_OUT" 2>>"$LAUNCHER_OUT" &
  launcher=$!
  for ((poll = 0; poll < START_POLLS; poll++)); do
    # The kernel searches through many places for its list of sockets, so it is not asked before Tor has its own socket.
    # Tor opens all its ports before it fails because of one of them.
    if [[ -z $CONTROL_SOCKET || -S $CONTROL_SOCKET ]] && tor_listens && [[ $(head -qc 65536 -- "$START_OUT" "$NOTICES" | tr -d '\0') != *"Could not bind to"* ]]; then
      return
    fi
    start_time "$launcher" || die "Tor did not start: $(tor_failure)"
    pause 0.02
  done
  die "Tor did not open its control port in time."
}

# read_children PID: sets CHILDREN to the process ids of the process's children.
CHILDREN=''
read_children() {
  CHILDREN=''
  { IFS= read -r CHILDREN <"/proc/$1/task/$1/children"; } || true
}

# kill_stray_tor: without a record, kills every process of Tor's account in this network namespace.
kill_stray_tor() {
  local folder owner
  read_accounts
  [[ -n $TOR_UID ]] || return 0
  for folder in /proc/[1-9]*; do
    owner=$(stat -c %u -- "$folder") || continue
    if [[ $owner == "$TOR_UID" && $folder/ns/net -ef /proc/self/ns/net ]]; then
      kill -KILL "${folder#/proc/}" || true
    fi
  done
}

# undo_tor: ends the Tor of the entry that was read, if that very process still runs.
undo_tor() {
  local pid child poll
  find_recorded || return 0
  pid=$RECORDED_PID
  for ((poll = 0; poll < STOP_POLLS; poll++)); do
    find_recorded || return 0
    # Tor, or the filter that passes the signal on to it, is the launcher's child. Without the filter Tor ignores signals while it starts,
    # so the signal is repeated.
    if ((poll % 5 == 0)); then
      read_children "$pid"
      for child in $CHILDREN; do
        kill -TERM "$child" || true
      done
    fi
    pause 0.02
  done
  read_children "$pid"
  for child in $CHILDREN "$pid"; do
    kill -KILL "$child" || true
  done
  # Tor keeps its ports until it has ended, which may be after the launcher.
  for child in $CHILDREN; do
    for ((poll = 0; poll < 50; poll++)); do
      [[ -d /proc/$child ]] || break
      pause 0.02
    done
  done
  ! recorded_lives || {
    UNDONE="Tor could not be stopped."
    return 1
  }
}

# recorded_lives: whether the process of the entry that was read still runs after a while.
recorded_lives() {
  local poll
  for ((poll = 0; poll < STOP_POLLS; poll++)); do
    find_recorded || return 1
    pause 0.02
  done
}
