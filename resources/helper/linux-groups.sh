
# ---- Linux: the helper's control groups --------------------------------------------------------------------
# A program started from a desktop stays in a control group that its user may freeze and kill. So each run of the helper moves to the
# helper's own group, and the watcher and Tor with it. Tor has a group of its own below that: the firewall recognises Tor by this group
# together with Tor's account. Only root can put processes into these groups.

readonly CGROUPS=/sys/fs/cgroup   # nft looks for a group's name below it
readonly RUN_GROUP=veldmark       # for the helper's runs and the watcher
readonly TOR_GROUP=veldmark/tor   # for Tor and its transports
readonly MOVE_ROUNDS=50           # processes may fork while they are moved out

TREE=''       # where the groups are mounted; empty on a system without cgroup v2
TOR_PATH=''   # Tor's group below $CGROUPS; empty when the rules cannot name it: then they match the account alone
HOME_GROUP='' # the folder of the group in which the caller started this run
HOME_UID=''   # the caller
TREES_NAMESPACE=''   # the number of this run's namespace of groups, once it is known
UNGROUPED=''  # 1 when this run is still in the caller's group, although there are groups

# find_tree: sets TREE. The tree's own root must be mounted, so that the helper's groups are of the first level.
find_tree() {
  local text line root point
  TREE=''
  IFS= read -r -d '' text </proc/self/mountinfo || true
  while [[ $text == *" - cgroup2 "* ]]; do
    line=${text%%" - cgroup2 "*}
    text=${text#*" - cgroup2 "}
    read -r _ _ _ root point _ <<<"${line##*$'\n'}"
    [[ $root != / || ! $point =~ ^$CGROUPS(/[a-z]+)?$ ]] || TREE=$point
  done
  [[ -n $TREE ]]
}

# make_group NAME: makes the group if it is missing.
make_group() {
  find_tree || return 1
  [[ -d $TREE/$1 ]] || mkdir -m 0755 -- "$TREE/$1"
}

# make_groups: makes all groups that the rules may name.
make_groups() {
  local name
  for name in "$RUN_GROUP" "$TOR_GROUP" "$BYPASS_NAME"; do make_group "$name" || true; done
}

# enter_group FOLDER: moves the shell that runs this, and so the programs that it starts later.
enter_group() { printf '0\n' >"$1/cgroup.procs"; }

# own_group: prints the folder of this run's group; the tree's root when the group is one of the helper's.
own_group() {
  local line path=/
  while IFS= read -r line; do
    [[ $line != 0::/* ]] || path=${line#0::}
  done </proc/self/cgroup
  [[ $path != "/$RUN_GROUP"* && $path != *..* && -d $TREE$path ]] || path=/
  printf '%s' "$TREE$path"
}

# group_of UID: sets GROUP to the folder of a group of that user's: the one in which the caller started this run, or the one of another
# user's systemd manager. The tree's root when there is none. In the caller's group another user's programs would be the caller's to stop.
GROUP=''
group_of() {
  local managers=$TREE/user.slice/user-$1.slice/user@$1.service/init.scope
  GROUP=$TREE
  if [[ $1 == "$HOME_UID" ]]; then
    GROUP=${HOME_GROUP:-$TREE}
  elif [[ -n $TREE && -n $1 && -d $managers ]]; then
    GROUP=$managers
  fi
}

# leave_caller: called before the lock is taken, so that only root can stop this run while it holds the lock. Another run that ends at the
# same time may remove the group between two of these steps. It also resets what the caller may have set: processors, shares of processor
# and disk, timer slack, and the priority when memory runs out. No program is started to set what is so already.
leave_caller() {
  local round line key value='' possible=''
  printf '0\n' >/proc/self/oom_score_adj || true
  printf '50000\n' >/proc/self/timerslack_ns || true   # nanoseconds, the kernel's default
  IFS= read -r line </proc/self/stat
  # shellcheck disable=SC2086
  set -- ${line##*) }
  [[ ${39} == 0 ]] || chrt --other --pid 0 "$$" >/dev/null || true
  [[ ${17} == 0 ]] || renice -n 0 -p "$$" >/dev/null || true
  ionice --class none --pid "$$" >/dev/null || true
  IFS= read -r possible </sys/devices/system/cpu/possible || true
  while read -r key value; do
    [[ $key != Cpus_allowed_list: ]] || break
  done </proc/self/status
  [[ $value == "$possible" ]] || taskset --cpu-list --pid "$possible" "$$" >/dev/null || true
  find_tree || return 0
  HOME_GROUP=$(own_group) HOME_UID=$CALLER_UID
  [[ -w $TREE ]] || return 0
  UNGROUPED=1
  for ((round = 0; round < MOVE_ROUNDS; round++)); do
    make_group "$RUN_GROUP" || true
    ! enter_group "$TREE/$RUN_GROUP" || { UNGROUPED='' && return 0; }
  done
}

# need_groups: a user may make so many groups that the kernel makes no more. Then a session would be in the caller's group, where the caller
# may end it, and the account alone would be the key to the firewall.
need_groups() { [[ -z $UNGROUPED ]] || die "The control group for Tor cannot be made."; }

# renew_group: makes Tor's group anew where a session begins. A socket always belongs to the group in which it was made. So a socket that
# the Tor of an earlier session has handed to another program passes nothing any more. A Tor that is left waits for its end in the helper's own
# group. A connect upon a strict session keeps the group: a run that is killed between the group and the rules would cut Tor off.
renew_group() {
  local round pid
  [[ -n $TREE && -w $TREE ]] || return 0
  for ((round = 0; round < MOVE_ROUNDS; round++)); do
    [[ -d $TREE/$TOR_GROUP ]] || break
    ((round < 10)) || printf '1\n' >"$TREE/$TOR_GROUP/cgroup.kill" || true   # something in there starts processes without end
    while read -r pid; do
      printf '%s\n' "$pid" >"$TREE/$RUN_GROUP/cgroup.procs" || true
    done <"$TREE/$TOR_GROUP/cgroup.procs"
    ! rmdir -- "$TREE/$TOR_GROUP" || break
    ((round < 5)) || pause 0.02
  done
  { [[ ! -d $TREE/$TOR_GROUP ]] && make_group "$TOR_GROUP"; } || die "The control group for Tor cannot be made."
}

# end_run: the last step of a run that leaves no session. The locks are released before this run returns to the caller's group, where the
# caller may stop it for any time. Tor's group is removed while the lock is held: afterwards it may be the next session's.
end_run() {
  local round
  [[ -n $TREE && ! -e $MARKER ]] || return 0
  [[ -z $HAS_LOCK ]] || rmdir -- "$TREE/$TOR_GROUP" || true
  exec 7>&- 9>&-
  enter_group "${HOME_GROUP:-$TREE}" || enter_group "$TREE" || true
  # Child processes that were not waited for are still in the group; otherwise another run removes it.
  for ((round = 0; round < MOVE_ROUNDS; round++)); do
    ! rmdir -- "$TREE/$RUN_GROUP" || return 0
    read_children "$$"
    [[ -n $CHILDREN ]] || return 0
    pause 0.02
  done
} 2>/dev/null

# rules_can_name PATH LEVEL: whether the kernel finds the group of a socket. No kernel before 5.13 does. In a container, whose tree begins
# below the root of another one, no kernel before 6.12 counts the levels correctly.
rules_can_name() {
  local major minor rest
  TREES_NAMESPACE=${TREES_NAMESPACE:-$(stat -L -c %i -- /proc/self/ns/cgroup)}
  if [[ $TREES_NAMESPACE != 4026531835 ]]; then
    # Not `uname -r`, which a caller can have report another version (UNAME26).
    IFS=.- read -r major minor rest </proc/sys/kernel/osrelease
    [[ $major =~ ^[0-9]+$ && $minor =~ ^[0-9]+$ ]] && ((major > 6 || major == 6 && minor >= 12)) || return 1
  fi
  nft -c -f - <<<"table inet $TABLE-check { chain output { socket cgroupv2 level $2 \"$1\" accept; }; }"
}

# ready_groups: makes Tor's group and sets TOR_PATH.
ready_groups() {
  TOR_PATH=''
  { make_group "$RUN_GROUP" && make_group "$TOR_GROUP"; } || return 0
  [[ $(stat -c '%u %a' -- "$TREE/$TOR_GROUP") == "0 755" ]] || return 0
  TOR_PATH=$TREE/$TOR_GROUP
  TOR_PATH=${TOR_PATH#"$CGROUPS"/}
  rules_can_name "$TOR_PATH" 2 || TOR_PATH=''
}
