
# ---- Linux: folders, lock, files, journal ------------------------------------------------------------------

readonly BASE=/var/lib/veldmark
readonly STATE=$BASE/state        # 0755; holds the session marker
readonly MARKER=$STATE/active     # 0644; "strict" or "proxy": the network is set up for Tor
readonly JOURNAL=$BASE/journal    # 0700; the state before each change, one file per change
readonly RUN=$BASE/run            # 0755; Tor's configuration, data and logs
readonly TOR_PLACE=$RUN/tor        # 0710, root and Tor's group: other users cannot reach files of Tor's account
readonly DATA=$TOR_PLACE/data     # 0700, Tor's account; kept between sessions, and the entry guards with it
readonly PROGRAMS=$BASE/programs  # 0755; approved copies, SHA-256/NAME
readonly ASKED=$BASE/asked        # 0600; the options of the running session
readonly PROGRAM_PLACES='^/(usr|opt)/.'
readonly LOCK=/run/veldmark.lock
readonly LOCK_SECONDS=20
readonly INSTALLED=/usr/local/libexec/veldmark
readonly SUDO_DRAFT=/run/veldmark.sudoers   # 0440; checked here before it is installed

# Below 1024, so that only root and Tor can bind the port, share it and receive lookups.
readonly DNS_PORT=293

readonly TOR_ACCOUNT=_veldmark
TOR_UID='' TOR_GID=''
CALLER_NAME='' CALLER_GID='' CALLER_HOME=''

# take_lock: one helper at a time. Descriptor 9 stays open for the whole run, and in the children of root that a killed run may leave
# behind, so that the next run waits for them. No process of another user gets the descriptor, since its holder can unlock it. Ctrl-C and a
# closed terminal must not leave the network half changed.
HAS_LOCK=''
take_lock() {
  trap '' INT TERM HUP QUIT PIPE TSTP
  cd /
  leave_caller
  trap finish EXIT
  LOCKED=1
  [[ ! -L $LOCK ]] || die "The lock file $LOCK is a link, so nothing was done."
  { exec 9>>"$LOCK"; } || die "The lock file $LOCK cannot be opened."
  flock -w "$LOCK_SECONDS" 9 || die "Another run of the helper is still working. Try again in a moment."
  HAS_LOCK=1
}

# lift_limits: the limits of the caller's shell must not end the watcher or Tor later, or this run half-way. A limit that cannot be lifted
# stays.
lift_limits() {
  local kind
  for kind in f t v d m u i; do ulimit -"$kind" unlimited || ulimit -S"$kind" hard || true; done
  [[ ! $(ulimit -n) =~ ^[0-9]{1,3}$ ]] || ulimit -Sn 4096 || ulimit -n 4096 || true
  [[ ! $(ulimit -s) =~ ^[0-9]{1,3}$ ]] || ulimit -Ss 8192 || ulimit -s 8192 || true
}

# folder_is_safe "MODE UID TYPE": a real folder of root's that other users cannot write.
folder_is_safe() {
  [[ $1 =~ ^[0-7]*[0145][0145]\ 0\ directory$ ]]
}

# folders_are_safe: whether only root could write to the helper's folders; status 2 when that cannot be found out. Changes nothing.
folders_are_safe() {
  local path line lines=0
  for path in "$BASE" "$STATE" "$JOURNAL" "$RUN"; do
    [[ -d $path ]] || return 1
  done
  while IFS= read -r line; do
    folder_is_safe "$line" || return 1
    lines=$((lines + 1))
  done < <(stat -c '%a %u %F' -- / /var /var/lib "$BASE" "$STATE" "$JOURNAL" "$RUN")
  ((lines == 7)) || return 2
}

# safe_folders: like folders_are_safe, but ends the run when that cannot be found out.
safe_folders() {
  local status=0
  folders_are_safe || status=$?
  ((status != 2)) || die "The folders below $BASE cannot be read, so nothing was done."
  return "$status"
}

ready_folders() {
  local path mode line want lines=0
  for path in "$BASE" "$STATE" "$RUN" "$PROGRAMS" "$JOURNAL"; do
    mode=0755
    [[ $path != "$JOURNAL" ]] || mode=0700
    [[ -e $path || -L $path ]] || mkdir -m "$mode" -- "$path" 2>/dev/null || die "The folder $path cannot be created."
  done
  while IFS=: read -r path line; do
    folder_is_safe "$line" || die "The folder $path is not safe: only root may own or write it."
    lines=$((lines + 1))
    case $path in
    "$JOURNAL") want=700 ;;
    "$BASE"*) want=755 ;;
    *) continue ;;
    esac
    [[ ${line%% *} == "$want" ]] || chmod "$want" -- "$path" || die "The folder $path cannot be changed."
  done < <(stat -c '%n:%a %u %F' -- / /var /var/lib "$BASE" "$STATE" "$JOURNAL" "$RUN" "$PROGRAMS")
  ((lines == 8)) || die "The folders below $BASE cannot be read."
  ready_data_folder
}

# Tor refuses a data folder of another account, and a former account's folder cannot be used any more.
ready_data_folder() {
  if [[ $(stat -c '%u %g %a %F' -- "$TOR_PLACE") != "0 $TOR_GID 710 directory" ]]; then
    rm -rf -- "$TOR_PLACE"
    { mkdir -m 0710 -- "$TOR_PLACE" && chown -- "0:$TOR_GID" "$TOR_PLACE"; } || die "The folder $TOR_PLACE cannot be created."
    [[ ! -d $RUN/data || -L $RUN/data ]] || mv -T -- "$RUN/data" "$DATA" || true   # its place in earlier versions
  fi
  if [[ -e $DATA || -L $DATA ]] &&
    [[ $(stat -c '%u %F' -- "$DATA") != "$TOR_UID directory" ]]; then
    rm -rf -- "$DATA"
  fi
  [[ -d $DATA ]] || { mkdir -m 0700 -- "$DATA" && chown -- "$TOR_UID:$TOR_GID" "$DATA"; } ||
    die "The folder $DATA cannot be created."
}

# ---- Accounts ----

read_accounts() {
  local name uid gid home rest
  while IFS=: read -r name rest uid gid rest home rest; do
    if [[ $name == "$TOR_ACCOUNT" ]]; then TOR_UID=$uid TOR_GID=$gid; fi
    if [[ $uid == "$CALLER_UID" ]]; then CALLER_NAME=$name CALLER_GID=$gid CALLER_HOME=$home; fi
  done < <(getent passwd "$TOR_ACCOUNT" "$CALLER_UID" || true)
}

ready_account() {
  read_accounts
  [[ -n $CALLER_NAME ]] || die "The user with the id $CALLER_UID is not known on this system."
  if [[ -z $TOR_UID ]]; then
    useradd --system --user-group --home-dir /nonexistent --no-create-home --shell /usr/sbin/nologin \
      --comment "Tor for Veldmark" "$TOR_ACCOUNT" >/dev/null 2>&1 9>&- ||
      die "The account $TOR_ACCOUNT cannot be created."
    read_accounts
  fi
  { is_uid "$TOR_UID" && is_uid "$TOR_GID"; } || die "The account $TOR_ACCOUNT has no valid user id."
  [[ $TOR_UID != 0 && $TOR_UID != "$CALLER_UID" ]] || die "The account $TOR_ACCOUNT must be neither root's nor the caller's."
}

# as_caller SECONDS COMMAND...: runs it with the caller's rights only, without a way to gain more, in a clean environment and a group of the
# caller's, with default signal handling, without the helper's descriptors, and kills it after SECONDS. `timeout` is root's and keeps the
# lock: when this shell is killed, the next run must not begin while the command still changes things.
as_caller() {
  local seconds=$1
  shift
  group_of "$CALLER_UID"
  # shellcheck disable=SC2016
  timeout -k 1 "$seconds" /bin/sh -c 'exec 7>&- 9>&-; [ -z "$0" ] || printf "0\n" >"$0/cgroup.procs"; exec "$@"' "$GROUP" \
    env -i --default-signal PATH="$PATH" LC_ALL=C HOME="$CALLER_HOME" \
    setpriv --reuid "$CALLER_UID" --regid "$CALLER_GID" --init-groups --no-new-privs --bounding-set=-all --inh-caps=-all \
    --ambient-caps=-all "$@" 6>&- 8>&-
}

# as_confined SECONDS UID GID HOME NAMESPACES COMMAND...: likewise for an account of no user's. The command writes to standard output only.
# The first process of its namespace is root's, so every process that it starts ends with it.
as_confined() {
  local seconds=$1 uid=$2 gid=$3 home=$4 namespaces=$5
  shift 5
  # shellcheck disable=SC2016,SC2086
  timeout -k 1 "$seconds" /bin/sh -c 'exec 7>&- 9>&-; ulimit -c 0 && ulimit -f 0 && ulimit -t "$0" && exec "$@"' "$seconds" \
    unshare $namespaces --pid --fork --kill-child /bin/sh -c '"$@"; exit "$?"' first \
    env -i --default-signal PATH="$PATH" LC_ALL=C HOME="$home" \
    setpriv --reuid "$uid" --regid "$gid" --clear-groups --no-new-privs --bounding-set=-all --inh-caps=-all \
    --ambient-caps=-all "$@" 6>&- 8>&-
}

# as_tor SECONDS COMMAND...: for Tor's check of its configuration, before Tor runs in namespaces of its own. It has the network: an
# administrator may have named a proxy by a host name, which Tor looks up while it checks.
as_tor() { as_confined "$1" "$TOR_UID" "$TOR_GID" "$DATA" '' "${@:2}"; }

# take_output SECONDS BYTES: passes on at most BYTES of standard input, and does not wait longer than SECONDS for its end. It is a pipeline's
# part, so it becomes the program.
take_output() { exec timeout -k 1 "$1" head -c "$2"; }

# ---- Primitives of the shared parts ----

# put_in_place NEW TARGET: NEW replaces TARGET, in the same folder. It is on disk when this returns 0, except in /run, which is in memory.
put_in_place() {
  case $2 in
  /run/*) mv -fT -- "$1" "$2" ;;
  *) sync -- "$1" && mv -fT -- "$1" "$2" && sync -- "${2%/*}" ;;
  esac
}

# print_modes PATH...: prints "MODE UID KIND", one line for each; fails when one is missing. Links are not followed. It becomes the program,
# so it is called in a subshell.
print_modes() { exec stat -c '%a %u %F' -- "$@"; }

# real_path PATH: prints the path without links; fails when it does not exist. A file system of the caller's may never answer (FUSE with
# allow_other). What then waits, perhaps unkillably, has neither the locks, nor what this run reads or writes to. The system's own folders
# answer; a file there that is no link is itself the path.
# shellcheck disable=SC2016
real_path() {
  case ${1%/*}:${1##*/} in
  /usr/bin:[!.]* | /usr/libexec/veldmark:[!.]*)
    [[ -L /usr || -L ${1%/*} || -L $1 || ! -e $1 ]] || { printf '%s\n' "$1" && return 0; } ;;
  esac
  timeout -k 1 5 /bin/sh -c 'exec 7>&- 8>&- 9>&-; exec readlink -e -- "$1"' readlink "$1" </dev/null | take_output 7 8192
}

# on_own_mount PATH: whether PATH, which only root can change, is on a file system mounted for the system's programs. A file system that
# users may mount (a medium on the desktop, FUSE, fstab's "user") never allows setuid programs.
on_own_mount() {
  local file key value id='' text options rest kind
  { exec {file}<"$1"; } || return 1
  while read -r key value; do
    [[ $key != mnt_id: ]] || id=$value
  done <"/proc/self/fdinfo/$file"
  exec {file}<&-
  IFS= read -r -d '' text </proc/self/mountinfo || true
  text=$'\n'$text
  [[ -n $id && $text == *$'\n'"$id "* ]] || return 1
  text=${text#*$'\n'"$id "}
  read -r rest rest rest rest options rest <<<"${text%%$'\n'*}"
  kind=${rest#*"- "}
  [[ ,$options, != *,nosuid,* && $kind != fuse* ]]
}

# print_sum: the SHA-256 of standard input.
print_sum() { sha256sum; }

# make_installed: makes the folder of the copy that runs without a password.
make_installed() {
  local folder
  for folder in /usr/local /usr/local/libexec "$INSTALLED"; do
    [[ -d $folder ]] || mkdir -m 0755 -- "$folder" || die "The folder $folder cannot be created."
  done
}
