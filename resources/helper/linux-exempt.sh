
# ---- Linux: applications that bypass Tor -------------------------------------------------------------------
# They run in their own control group, directly below the root of the cgroup v2 tree. Only root can put processes into it. The firewall
# accepts packets of sockets made in the group. Children stay in it. The group is made before the rules that name it and removed at
# disconnect.

readonly EXEMPT_ENTRY=12-exempt
readonly EXEMPT_NAME=veldmark-exempt
readonly LAUNCHER_SECONDS=20

EXEMPT_FOLDER=''   # the group's folder; empty on a system without cgroup v2
EXEMPT_PATH=''     # the folder's path below $CGROUPS; empty when the rules must not name it

# find_exempt: sets EXEMPT_FOLDER.
find_exempt() {
  EXEMPT_FOLDER=''
  find_tree || return 1
  EXEMPT_FOLDER=$TREE/$EXEMPT_NAME
}

# make_exempt: makes the group if it is missing, and sets EXEMPT_PATH. It is empty when the group cannot be made; then no application
# bypasses Tor.
make_exempt() {
  EXEMPT_PATH=''
  { find_exempt && make_group "$EXEMPT_NAME"; } || return 0
  [[ $(stat -c '%u %a' -- "$EXEMPT_FOLDER") == "0 755" ]] || return 0
  EXEMPT_PATH=${EXEMPT_FOLDER#"$CGROUPS"/}
  rules_can_name "$EXEMPT_PATH" 1 || EXEMPT_PATH=''
}

ready_exempt() {
  find_exempt || return 0
  journal_has "$EXEMPT_ENTRY" || journal_put "$EXEMPT_ENTRY" "group $EXEMPT_NAME" || die "The journal cannot be written."
  make_exempt
}

# undo_exempt: moves the group's remaining processes to the caller's group, where they go on. They need no bypass after the session.
undo_exempt() {
  local round pid home
  find_exempt && [[ -d $EXEMPT_FOLDER ]] || return 0
  home=${HOME_GROUP:-$TREE}
  [[ $home != "$EXEMPT_FOLDER" ]] || home=$TREE
  for ((round = 0; round < MOVE_ROUNDS; round++)); do
    while read -r pid; do
      printf '%s\n' "$pid" >"$home/cgroup.procs" || printf '%s\n' "$pid" >"$TREE/cgroup.procs" || true
    done <"$EXEMPT_FOLDER/cgroup.procs"
    rmdir -- "$EXEMPT_FOLDER" && return 0
    sleep 0.02
  done
  UNDONE="The control group of the applications without Tor could not be removed."
  return 1
}

# find_launcher: sets LAUNCHER to the program that reads the application's entry. It runs with the caller's rights only, so it need not be
# protected from changes.
LAUNCHER=''
find_launcher() {
  local path
  for path in "${SELF%/*}/veldmark-launch" /usr/bin/veldmark-launch; do
    LAUNCHER=$path
    [[ ! -f $path || ! -x $path ]] || return 0
  done
  return 1
}

# Runs as root in the new mount namespace: RESOLVERS TARGET COMMAND... COMMAND gives up root. DNS lookups use the resolvers from before the
# switch.
# shellcheck disable=SC2016
readonly BESIDE='
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
  printf '0\n' >"$EXEMPT_FOLDER/cgroup.procs" || return 1
  exec 8>&- 9>&-
  exec timeout -k 1 "$LAUNCHER_SECONDS" env -i --default-signal PATH="$PATH" LC_ALL=C \
    unshare --mount --propagation slave /bin/bash -p -c "$BESIDE" beside "$TOR_RESOLVER" "$RESOLVER_TARGET" \
    setpriv --regid "$CALLER_GID" --groups "${groups// /,}" \
    setpriv --reuid "$CALLER_UID" --inh-caps=-all --ambient-caps=-all \
    env -i "$LAUNCHER" --app "$1"
}

# linux_launch: opens the application as the caller only. It needs a prompt each time, even in password-free mode: otherwise any program of
# the user's could bypass Tor unnoticed while the kill switch is reported as on.
linux_launch() {
  local words
  parse_options " --uid --app " "$@"
  [[ -n $OPT_UID ]] || die "The option --uid is missing."
  [[ -n $OPT_APP ]] || die "The option --app is missing."
  is_uid "$OPT_UID" || die "The user id is not a number."
  [[ $OPT_UID == "$CALLER_UID" ]] || die "Applications can be opened for the user who asks only."
  [[ $OPT_UID != 0 ]] || die "Applications are not opened as root."
  [[ $OPT_APP == /* ]] || die "The path given with --app is not absolute."
  [[ -n $PROMPTED ]] || unapproved "An administrator password is needed to open an application without Tor."
  need_programs flock nft setpriv unshare mount stat timeout
  find_launcher || die "The program veldmark-launch is missing."
  take_lock
  trap finish EXIT
  read_accounts
  [[ -n $CALLER_NAME && $CALLER_GID =~ ^[0-9]+$ ]] || die "The user with the id $CALLER_UID is not known on this system."
  { folders_are_safe && [[ $(read_marker) == strict ]] && kill_switch_stands; } ||
    die "The kill switch is not on, so there is nothing to open the application past."
  { find_exempt && [[ -d $EXEMPT_FOLDER && $(<"$RULES") == *"\"${EXEMPT_FOLDER#"$CGROUPS"/}\""* ]]; } ||
    die "Applications cannot be opened without Tor on this system."
  read_resolver
  words=$(run_launcher "$OPT_APP" 2>&1 </dev/null | take_output $((LAUNCHER_SECONDS + 2)) 2000) && return 0
  words=${words%%$'\n'*}
  words=${words//[[:cntrl:]]/ }
  die "${words:-The application could not be started.}"
}
