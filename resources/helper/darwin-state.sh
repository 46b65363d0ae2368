
# ---- macOS: folders, lock, accounts ------------------------------------------------------------------------
# All parts for macOS use only the bash 3.2, BSD tools and perl of macOS.

readonly DNS_PORT=9053
end_run() { :; }   # no process of a run outlives it
readonly BASE="/Library/Application Support/Veldmark"
readonly STATE=$BASE/state        # 0755; holds the session marker
readonly MARKER=$STATE/active     # 0644; "strict" or "proxy": the network is set up for Tor
readonly JOURNAL=$BASE/journal    # 0700; the settings before each change, one file per change
readonly INSTALLED=$BASE/bin      # 0755; the copy that runs without a password
readonly TOR_BASE=/private/var/db/veldmark   # 0755
readonly RUN=/var/db/veldmark/run            # 0755; Tor's configuration, data and logs; /var is a link
readonly DATA=$RUN/data                      # 0700, Tor's account; kept between sessions so that entry guards are
readonly PROGRAMS=/var/db/veldmark/programs  # 0755; approved copies, SHA-256/NAME
readonly ASKED=$BASE/asked        # 0600; the options of the running session
readonly PROGRAM_PLACES='^/(usr|opt)/.'
readonly LOCK=/private/var/db/veldmark.lock
readonly LOCK_SECONDS=20
readonly SUDO_DRAFT=/private/var/db/veldmark.sudoers   # 0440; the rule is checked here first

readonly TOR_ACCOUNT=_veldmark
readonly FIRST_ID=350 LAST_ID=499   # below 500 accounts are hidden; the system's own end before 350
TOR_UID='' TOR_GID=''
CALLER_NAME='' CALLER_GID='' CALLER_HOME=''

# DESCRIPTOR SECONDS: the lock belongs to the open file description, which this shell shares, so it outlives perl.
# shellcheck disable=SC2016
readonly HOLD='
open(my $lock, q(>&=), shift) or exit 1;
my $end = time() + shift;
until (flock($lock, 6)) { exit 1 if time() > $end; select(undef, undef, undef, 0.02); }'

# take_lock: one helper at a time. Descriptor 9 stays open for the whole run, also in root's children that survive
# a kill of this shell, so that the next run waits for them. Ctrl-C and a closed terminal must not leave the
# network half-way.
take_lock() {
  trap '' INT TERM HUP QUIT PIPE TSTP
  cd /
  [[ ! -L $LOCK ]] || die "The lock file $LOCK is a link, so nothing was done."
  { exec 9>>"$LOCK"; } || die "The lock file $LOCK cannot be opened."
  perl -e "$HOLD" 9 "$LOCK_SECONDS" || die "Another run of the helper is still working. Try again in a moment."
}

# WORD...: runs the words as root by its real ids too. While the ids differ, perl refuses words that it did not make
# itself (taint mode); the pattern accepts them.
# shellcheck disable=SC2016
readonly UNITE='
$( = $) = "0 0"; $< = $> = 0;
if ($< || $> || $( + 0 || $) + 0) { print STDERR "ERROR: The helper must run as root.\n"; exit 1 }
$ENV{PATH} = "/usr/sbin:/usr/bin:/sbin:/bin";
my @words = map { /\A(.*)\z/s } @ARGV;
exec { $words[0] } @words;'

# unite_ids WORD...: the administrator prompt of macOS may run the helper as the user who has root's effective id
# alone. perl and other programs treat such a process with suspicion, so start again. Without perl the helper can
# only disconnect, which needs no other program that does.
unite_ids() {
  ((EUID == 0 && UID != 0)) && command -v perl >/dev/null || return 0
  exec perl -e "$UNITE" /bin/bash -p -- "$0" "$@"
}

# find_caller: the administrator prompt of macOS runs the helper as root and does not report the user. Then the
# caller is the user at the screen; without one, root itself.
find_caller() {
  local key value rest
  [[ -n $PROMPTED && $CALLER_UID == 0 ]] || return 0
  while read -r key rest value; do
    [[ $key != UID ]] || ! is_uid "$value" || CALLER_UID=$value
  done < <(scutil <<<"show State:/Users/ConsoleUser" || true)
}

# boot_id: identifies one run of the computer.
boot_id() {
  local id
  id=$(sysctl -n kern.bootsessionuuid) && [[ -n $id ]] || return 1
  printf '%s' "$id"
}

# Patterns with blanks and quotes are in variables: bash 3.2 parses them differently in place.
readonly SAFE_FOLDER='^[0-7]*[0145][0145] 0 Directory$'
readonly ALLOWING='^ *[0-9]+: .* allow '

# folder_is_safe "MODE UID KIND": a real folder owned by root that no other account can write.
folder_is_safe() {
  [[ $1 =~ $SAFE_FOLDER ]]
}

# safe_folders PATH...: status 1 when one is not safe, by its mode or by an access list that allows something; 2
# when unknown.
safe_folders() {
  local line modes lists
  modes=$(print_modes "$@") && lists=$(ls -lde -- "$@") || return 2
  while IFS= read -r line; do
    folder_is_safe "$line" || return 1
  done <<<"$modes"
  while IFS= read -r line; do
    [[ ! $line =~ $ALLOWING ]] || return 1
  done <<<"$lists"
}

# folders_are_safe: true when only root could have put files into the helper's folders. Changes nothing.
folders_are_safe() {
  safe_folders / /Library "/Library/Application Support" "$BASE" "$STATE" "$JOURNAL" /private /private/var \
    /private/var/db "$TOR_BASE" "$TOR_BASE/run"
}

ready_folders() {
  local path mode
  for path in "$BASE" "$STATE" "$TOR_BASE" "$RUN" "$PROGRAMS" "$JOURNAL"; do
    mode=0755
    [[ $path != "$JOURNAL" ]] || mode=0700
    [[ -e $path || -L $path ]] || mkdir -m "$mode" -- "$path" || die "The folder $path cannot be created."
    safe_folders "$path" || die "The folder $path is not safe: only root may own or write it."
    chmod -- "$mode" "$path" || die "The folder $path cannot be changed."
  done
  folders_are_safe || die "The folders above Veldmark's are not safe: only root may own or write them."
  ready_data_folder
}

# Tor refuses a data folder of another account; one left by a former account is useless.
ready_data_folder() {
  if [[ -e $DATA || -L $DATA ]] && [[ $(print_modes "$DATA") != *" $TOR_UID Directory" ]]; then
    rm -rf -- "$DATA"
  fi
  [[ -d $DATA ]] || { mkdir -m 0700 -- "$DATA" && chown -- "$TOR_UID:$TOR_GID" "$DATA"; } ||
    die "The folder $DATA cannot be created."
}

# make_installed: the folder of the copy that runs without a password.
make_installed() {
  local folder
  for folder in "$BASE" "$INSTALLED"; do
    [[ -d $folder ]] || mkdir -m 0755 -- "$folder" || die "The folder $folder cannot be created."
    safe_folders "$folder" || die "The folder $folder is not safe: only root may own or write it."
  done
}

# ---- Accounts ----

# record_value RECORD KEY: prints the value of a local record, nothing when there is none.
record_value() {
  local line
  while IFS= read -r line; do
    [[ $line != "$2: "* ]] || printf '%s' "${line#"$2: "}"
  done < <(dscl . -read "$1" "$2" || true)
}

# free_id: prints the first number that no local account or group has.
free_id() {
  local id line taken=' '
  while IFS= read -r line; do
    taken="$taken${line##* } "
  done < <(dscl . -list /Users UniqueID && dscl . -list /Groups PrimaryGroupID)
  [[ $taken != ' ' ]] || return 1
  for ((id = FIRST_ID; id <= LAST_ID; id++)); do
    if [[ $taken != *" $id "* ]]; then
      printf '%s' "$id"
      return 0
    fi
  done
  return 1
}

# put_record RECORD KEY VALUE: writes the value unless it is already set.
put_record() {
  [[ $(record_value "$1" "$2") == "$3" ]] || dscl . -create "$1" "$2" "$3"
}

# ready_group NAME TEXT: creates a group without members and prints its number. An earlier run may have been killed
# at any of the steps.
ready_group() {
  local id
  id=$(record_value "/Groups/$1" PrimaryGroupID)
  [[ -n $id ]] || id=$(free_id) || return 1
  { put_record "/Groups/$1" RealName "$2" && put_record "/Groups/$1" Password '*' &&
    put_record "/Groups/$1" PrimaryGroupID "$id"; } >/dev/null || return 1
  printf '%s' "$id"
}

read_accounts() {
  local line
  TOR_UID=$(record_value "/Users/$TOR_ACCOUNT" UniqueID)
  TOR_GID=$(record_value "/Users/$TOR_ACCOUNT" PrimaryGroupID)
  while IFS= read -r line; do
    case $line in
    "name: "*) CALLER_NAME=${line#*: } ;;
    "gid: "*) CALLER_GID=${line#*: } ;;
    "dir: "*) CALLER_HOME=${line#*: } ;;
    esac
  done < <(dscacheutil -q user -a uid "$CALLER_UID" || true)
}

make_account() {
  local user=/Users/$TOR_ACCOUNT gid uid
  gid=$(ready_group "$TOR_ACCOUNT" "Tor for Veldmark") || return 1
  uid=$TOR_UID
  [[ -n $uid ]] || uid=$(free_id) || return 1
  # The number comes last: an account with a number is complete.
  put_record "$user" RealName "Tor for Veldmark" && put_record "$user" Password '*' &&
    put_record "$user" UserShell /usr/bin/false && put_record "$user" NFSHomeDirectory /var/empty &&
    put_record "$user" IsHidden 1 && put_record "$user" PrimaryGroupID "$gid" && put_record "$user" UniqueID "$uid"
}

ready_account() {
  read_accounts
  [[ -n $CALLER_NAME ]] || die "The user with the id $CALLER_UID is not known on this system."
  if [[ -z $TOR_UID || -z $TOR_GID ]]; then
    make_account >/dev/null || die "The account $TOR_ACCOUNT cannot be created."
    read_accounts
  fi
  { is_uid "$TOR_UID" && is_uid "$TOR_GID"; } || die "The account $TOR_ACCOUNT has no valid user id."
  [[ $TOR_UID != 0 && $TOR_UID != "$CALLER_UID" ]] || die "The account $TOR_ACCOUNT must be neither root's nor the caller's."
}

# SECONDS UID GID GROUPS COMMAND...: gives up root permanently. The command is killed after SECONDS; 0 means no
# limit.
# shellcheck disable=SC2016
readonly BECOME='
use POSIX ();
my ($seconds, $uid, $gid, $groups) = splice(@ARGV, 0, 4);
$SIG{$_} = "DEFAULT" for qw(INT TERM HUP QUIT PIPE TSTP);
$) = "$gid $groups";
POSIX::setgid($gid);
POSIX::setuid($uid);
exit 126 unless $uid && $< == $uid && $> == $uid && $( + 0 == $gid && $) + 0 == $gid;
alarm $seconds;
exec { $ARGV[0] } @ARGV;
exit 127;'

# as_tor / as_caller SECONDS COMMAND...: runs with that account's rights only, a clean environment, and none of the
# helper's descriptors.
as_account() {
  local uid=$1 gid=$2 groups=$3 home=$4 seconds=$5
  shift 5
  env -i PATH="$PATH" LC_ALL=C HOME="$home" perl -e "$BECOME" "$seconds" "$uid" "$gid" "$groups" "$@" 8>&- 9>&-
}
as_tor() {
  local seconds=$1
  shift
  as_account "$TOR_UID" "$TOR_GID" "$TOR_GID" "$DATA" "$seconds" "$@"
}

# take_output SECONDS BYTES: reads at most BYTES of standard input; does not wait for a writer that keeps it open
# longer.
take_output() { perl -e 'alarm shift; exec { $ARGV[0] } @ARGV' "$1" head -c "$2"; }

# The kernel keeps at most 16 groups, the first of which is the effective one.
caller_groups() {
  local groups
  groups=$(id -G -- "$CALLER_NAME") && [[ -n $groups && $groups != *[!0-9\ ]* ]] || return 1
  # shellcheck disable=SC2086
  set -- $groups
  (($# <= 15)) || set -- "${@:1:15}"
  printf '%s' "$*"
}
as_caller() {
  local seconds=$1 groups
  shift
  groups=$(caller_groups) || return 1
  as_account "$CALLER_UID" "$CALLER_GID" "$groups" "$CALLER_HOME" "$seconds" "$@"
}

# ---- Primitives of the shared parts ----

# NEW TARGET FOLDER: sync(2) and fsync(2) of macOS return when the drive has the data, which a power cut may still
# lose; F_FULLFSYNC (51) also makes the drive write it. Not every file system supports it.
# shellcheck disable=SC2016,SC2089
readonly PUT='
my ($new, $target, $folder) = @ARGV;
for my $path ($new, $folder) {
  open(my $file, "<", $path) or exit 1;
  fcntl($file, 51, 0) or $path eq $folder or do { require IO::Handle; $file->sync } or exit 1;
  rename($new, $target) or exit 1 if $path eq $new;
}'

# put_in_place NEW TARGET: NEW replaces TARGET, in the same folder; on disk when it returns 0. Works without perl
# too, so that a network can always be restored.
put_in_place() {
  [[ ! -d $2 || -L $2 ]] || return 1
  if command -v perl >/dev/null; then
    perl -e "$PUT" "$1" "$2" "${2%/*}"
  else
    sync && mv -f -- "$1" "$2" && sync
  fi
}

# print_modes PATH...: "MODE UID KIND" for each, one line each; fails when one is missing. Links are not followed,
# except a last link with a "/" after it.
print_modes() { stat -f '%Lp %u %HT' -- "$@"; }

# real_path PATH: the path without links; fails when it does not exist.
real_path() { [[ -e $1 ]] && readlink -f -- "$1"; }

# on_own_mount PATH: volumes that users attach appear below /Volumes; elsewhere they are mounted without setuid
# programs.
on_own_mount() {
  local volume line
  volume=$(df -P -- "$1" | tail -n 1) && volume=/${volume#*% */} || return 1
  while IFS= read -r line; do
    [[ $line != *" on $volume "* ]] || { [[ $line != *nosuid* && $volume != /Volumes/* ]] && return 0; return 1; }
  done < <(mount || true)
  return 1
}

# print_sum: the SHA-256 of standard input.
print_sum() { shasum -a 256; }

has_ipv6_loopback() { [[ $(ifconfig lo0) == *"inet6 ::1 "* ]]; }
