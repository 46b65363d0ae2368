
# ---- Linux: applications that bypass Tor -------------------------------------------------------------------
# They run in their own control group, directly below the root of the cgroup v2 tree. Only root can put processes into it. The firewall
# accepts packets of sockets made in the group. Children stay in it. The group is made before the rules that name it and removed at
# disconnect.

readonly BYPASS_ENTRY=12-bypass
readonly BYPASS_NAME=veldmark-bypass

BYPASS_FOLDER=''   # the group's folder; empty on a system without cgroup v2
BYPASS_PATH=''     # the folder's path below $CGROUPS; empty when the rules must not name it

# find_bypass: sets BYPASS_FOLDER.
find_bypass() {
  BYPASS_FOLDER=''
  find_tree || return 1
  BYPASS_FOLDER=$TREE/$BYPASS_NAME
}

# make_bypass: makes the group if it is missing, and sets BYPASS_PATH. It is empty when the group cannot be made; then no application
# bypasses Tor.
make_bypass() {
  BYPASS_PATH=''
  { find_bypass && make_group "$BYPASS_NAME"; } || return 0
  [[ $(stat -c '%u %a' -- "$BYPASS_FOLDER") == "0 755" ]] || return 0
  let_bypass_run
  BYPASS_PATH=${BYPASS_FOLDER#"$CGROUPS"/}
  rules_can_name "$BYPASS_PATH" 1 || BYPASS_PATH=''
}

# put_bypass [NEW]: with NEW a session begins. What an earlier one has left in the group does not bypass Tor in this one.
put_bypass() {
  find_bypass || return 0
  [[ -z ${1-} ]] || undo_bypass || { BYPASS_PATH='' && return 0; }
  journal_once "$BYPASS_ENTRY" "group $BYPASS_NAME"
  make_bypass
}

# let_bypass_run: after a disconnect that was killed while the group stood still.
let_bypass_run() { printf '0\n' >"$BYPASS_FOLDER/cgroup.freeze" || true; }

# stop_bypass: stops the group's processes, which then start no others. They go on in the group that they are moved to.
stop_bypass() {
  local poll
  [[ -z $UNGROUPED ]] || return 0   # this run may be in it
  printf '1\n' >"$BYPASS_FOLDER/cgroup.freeze" || return 0
  for ((poll = 0; poll < MOVE_ROUNDS; poll++)); do
    [[ $(<"$BYPASS_FOLDER/cgroup.events") != *"frozen 1"* ]] || return 0
    pause 0.02
  done
}

# undo_bypass: moves the group's remaining processes to groups of their users', where they go on. They need no bypass after the session. A
# process that cannot be moved ends. No process goes on before the place of each is known: they may be many, and leave this run no time.
undo_bypass() {
  local round pid i pids places
  find_bypass && [[ -d $BYPASS_FOLDER ]] || return 0
  stop_bypass
  for ((round = 0; round < MOVE_ROUNDS; round++)); do
    pids=() places=()
    while read -r pid; do
      real_uid "$pid"
      group_of "$REAL_UID"
      [[ $GROUP != "$BYPASS_FOLDER" ]] || GROUP=$TREE
      pids[${#pids[@]}]=$pid places[${#places[@]}]=$GROUP
    done <"$BYPASS_FOLDER/cgroup.procs"
    ((round < 25 || ${#pids[@]} == 0)) || printf '1\n' >"$BYPASS_FOLDER/cgroup.kill" || true
    for ((i = 0; i < ${#pids[@]}; i++)); do
      does_bypass "${pids[i]}" || continue   # it was ended meanwhile, and its number may be that of another process
      printf '%s\n' "${pids[i]}" >"${places[i]}/cgroup.procs" || printf '%s\n' "${pids[i]}" >"$TREE/cgroup.procs" || true
    done
    rmdir -- "$BYPASS_FOLDER" && return 0
    pause 0.02
  done
  let_bypass_run
  UNDONE="The control group of the applications without Tor could not be removed."
  return 1
}

# does_bypass PID: whether the process is in the group.
does_bypass() {
  local line
  { while IFS= read -r line; do
    [[ $line != "0::/$BYPASS_NAME" ]] || return 0
  done <"/proc/$1/cgroup"; } 2>/dev/null
  return 1
}

# real_uid PID: sets REAL_UID to the account that has started the process, whatever rights it has now; to nothing when it has ended.
REAL_UID=''
real_uid() {
  local key uid
  REAL_UID=''
  { while read -r key uid _; do
    [[ $key != Uid: ]] || { REAL_UID=$uid && return 0; }
  done <"/proc/$1/status"; } 2>/dev/null || true
}

# Runs as root in the new mount namespace: RESOLVERS TARGET COMMAND... COMMAND gives up root. DNS lookups use the resolvers from before the
# switch.
# shellcheck disable=SC2016
readonly UNSHARED='
set -eu
if [ -n "$2" ] && [ -e "$2" ] && [ -e "$1" ]; then mount --bind -- "$1" "$2"; fi
shift 2
for socket in /run/systemd/resolve/io.systemd.Resolve /run/nscd/socket; do
  if [ -S "$socket" ]; then mount --bind /dev/null "$socket"; fi
done
exec "$@"
'

# run_launcher PATH: becomes the launcher, in a subshell: enters the control group, then sets group, groups and user.
run_launcher() {
  local groups
  groups=$(id -G -- "$CALLER_NAME") && [[ $groups =~ ^[0-9\ ]+$ ]] || return 1
  let_bypass_run
  printf '0\n' >"$BYPASS_FOLDER/cgroup.procs" || return 1
  exec 6>&- 8>&- 9>&-
  exec timeout -k 1 "$LAUNCHER_SECONDS" env -i --default-signal PATH="$PATH" LC_ALL=C \
    unshare --mount --propagation slave /bin/bash -p -c "$UNSHARED" unshared "$TOR_RESOLVER" "$RESOLVER_TARGET" \
    setpriv --regid "$CALLER_GID" --groups "${groups// /,}" \
    setpriv --reuid "$CALLER_UID" --inh-caps=-all --ambient-caps=-all \
    env -i "$LAUNCHER" --app "$1"
}

# find_launcher: sets LAUNCHER.
find_launcher() { choose_launcher "${SELF%/*}/veldmark-launch" /usr/bin/veldmark-launch; }

# bypass_stands: whether the rules in force let the group bypass Tor.
bypass_stands() {
  find_bypass && [[ -d $BYPASS_FOLDER && $(<"$RULES") == *"\"${BYPASS_FOLDER#"$CGROUPS"/}\""* ]]
}

linux_launch() {
  check_launch "$@"
  need_programs flock nft setpriv unshare mount stat timeout
  ready_launch
  read_resolver
  open_application
}
