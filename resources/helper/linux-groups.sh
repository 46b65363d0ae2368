
# ---- Linux: control groups of root's -----------------------------------------------------------------------
# What is started from a desktop stays in a control group that its user may freeze and kill. So each run of the helper leaves it
# for one of ours, and with it the watcher and Tor. Tor has one of its own besides: to be in it, which is root's to say, and to run as
# Tor's account is together the key to the firewall. Nobody but root puts processes into any of them.

readonly CGROUPS=/sys/fs/cgroup   # below it nft looks for a group by name
readonly RUN_GROUP=veldmark       # the helper's runs and the watcher
readonly TOR_GROUP=veldmark/tor   # Tor and its transports
readonly MOVE_ROUNDS=50           # processes may fork while they are moved out

TREE=''       # where the groups are mounted; empty where the system has none of version 2
TOR_PATH=''   # Tor's group below $CGROUPS; empty where the rules cannot name it: then the account alone is the key
HOME_GROUP='' # the folder of the group that the caller has started us in

# find_tree: sets TREE. The tree's own root must be mounted, so that our groups are of the first level.
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

# make_group NAME: unless it is there.
make_group() {
  find_tree || return 1
  [[ -d $TREE/$1 ]] || mkdir -m 0755 -- "$TREE/$1"
}

# make_groups: all that rules may name.
make_groups() {
  local name
  for name in "$RUN_GROUP" "$TOR_GROUP" "$EXEMPT_NAME"; do make_group "$name" || true; done
}

# enter_group FOLDER: the shell that runs this, and what it starts from then on.
enter_group() { printf '0\n' >"$1/cgroup.procs"; }

# own_group: prints the folder of the group that this run is in; the tree's root when that is one of ours.
own_group() {
  local line path=/
  while IFS= read -r line; do
    [[ $line != 0::/* ]] || path=${line#0::}
  done </proc/self/cgroup
  [[ $path != "/$RUN_GROUP"* && $path != *..* && -d $TREE$path ]] || path=/
  printf '%s' "$TREE$path"
}

# leave_caller: before the lock is taken, so that nobody but root can make us stop while we have it. Another run that ends just
# now may remove the group between two of these steps. Nor does the caller say on which processors we run, how we share them and the disk, how late our
# timers may be and who dies first when memory is short.
leave_caller() {
  local round
  printf '0\n' >/proc/self/oom_score_adj || true
  printf '50000\n' >/proc/self/timerslack_ns || true   # nanoseconds, as the kernel begins with
  { chrt --other --pid 0 "$$" && renice -n 0 -p "$$" && ionice --class none --pid "$$"; } >/dev/null || true
  taskset --cpu-list --pid "$(</sys/devices/system/cpu/possible)" "$$" >/dev/null || true
  find_tree || return 0
  HOME_GROUP=$(own_group)
  [[ -w $TREE ]] || return 0
  for ((round = 0; round < MOVE_ROUNDS; round++)); do
    make_group "$RUN_GROUP" || true
    ! enter_group "$TREE/$RUN_GROUP" || return 0
  done
}

# end_run: the last of a run that leaves no session. The locks go before we return to the caller's group, where the caller may stop us
# for as long as they like. Tor's group goes while we have ours: it may be the next session's afterwards.
end_run() {
  local round
  [[ -n $TREE && ! -e $MARKER ]] || return 0
  [[ -z $HAS_LOCK ]] || rmdir -- "$TREE/$TOR_GROUP" || true
  exec 7>&- 9>&-
  enter_group "${HOME_GROUP:-$TREE}" || enter_group "$TREE" || true
  # What we have started and not waited for is still in there; another run removes the group itself.
  for ((round = 0; round < MOVE_ROUNDS; round++)); do
    ! rmdir -- "$TREE/$RUN_GROUP" || return 0
    read_children "$$"
    [[ -n $CHILDREN ]] || return 0
    sleep 0.02
  done
} 2>/dev/null

# rules_can_name PATH LEVEL: whether the kernel finds the group of a socket. Before 5.13 none does; in a container, where the tree
# begins in the middle of another, none counts the levels right before 6.12.
rules_can_name() {
  local major minor rest
  if [[ $(stat -L -c %i -- /proc/self/ns/cgroup) != 4026531835 ]]; then
    IFS=.- read -r major minor rest < <(uname -r)
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
