
# ---- Programs that may run in Tor's account ----------------------------------------------------------------
# Every program in Tor's account passes the kill switch, so only these run: the system's own programs with a known
# name, and exact copies of programs that an administrator approved with the verb approve, whose prompt names path
# and digest. On Linux also copies of transports that the Tor Project has signed (linux-bundle.sh).
# The system's own part defines PROGRAM_PLACES and on_own_mount.

PROGRAM=''   # the result of ready_program

readonly MAX_PROGRAM_BYTES=200000000
readonly NEW_PROGRAM=$PROGRAMS/new

# every_part PATH PATTERN: whether "MODE UID KIND" matches PATTERN for PATH and every folder above it.
every_part() {
  local path=$1 line paths=(/) lines=0
  while [[ -n $path ]]; do
    paths[${#paths[@]}]=$path
    path=${path%/*}
  done
  while IFS= read -r line; do
    [[ $line =~ $2 ]] || return 1
    lines=$((lines + 1))
  done < <(print_modes "${paths[@]}")
  ((lines == ${#paths[@]}))
}

# root_owned PATH: only root can change PATH, free of links, and every folder above it.
root_owned() { every_part "$1" '^[0-7]*[0145][0145] 0 '; }

# name_fits ROLE NAME: root also owns interpreters and programs that start others, so only these names run without
# approval.
name_fits() {
  case $1:$2 in
  tor:tor | lyrebird:lyrebird | lyrebird:obfs4proxy | lyrebird:meek-client) ;;
  snowflake-client:snowflake-client | snowflake-client:lyrebird) ;;
  webtunnel-client:webtunnel-client | webtunnel-client:webtunnel | webtunnel-client:lyrebird) ;;
  *) return 1 ;;
  esac
}

# systems_own PATH ROLE: whether PATH, free of links, is a program that needs no approval. A file owned by root on
# a medium that a user mounted does not count: the creator of the medium chose its owner.
systems_own() {
  [[ $1 =~ $PROGRAM_PLACES ]] && name_fits "$2" "${1##*/}" && root_owned "$1" && on_own_mount "$1"
}

# open_to_all PATH: whether every account can reach and run it.
open_to_all() { every_part "$1" '^[0-7]*[1357] '; }

# print_file PATH [BYTES SECONDS]: its content, opened as the caller, so that the caller reads no foreign file
# through the helper. Any program of the caller can take over the reader's descriptors. So the reader gets a pipe
# and never the file that the helper writes: otherwise the content could change after the check. What is printed is
# the caller's word: nobody may take it for the file's content without a check.
print_file() {
  local bytes=${2:-$MAX_PROGRAM_BYTES} seconds=${3:-10}
  if [[ $CALLER_UID == 0 ]]; then
    head -c "$bytes" -- "$1"
  else
    as_caller "$seconds" head -c "$bytes" -- "$1" | take_output $((seconds + 2)) "$bytes"
  fi
}

# same_content FILE COPY: whether both have the same content, as root reads it. A program of the caller's can change what print_file prints.
same_content() {
  local one other
  one=$(print_sum <"$1") && other=$(print_sum <"$2") && [[ ${one%% *} == "${other%% *}" ]]
}

# no_program TEXT: ends with TEXT. With bridges in reserve the status is that of a missing approval: the caller asks once more without them, since
# the program may be theirs alone.
no_program() {
  ((${#OPT_RESERVES[@]} == 0)) || unapproved "$1" 4
  die "$1"
}

# find_program PATH: sets PROGRAM to the path without links.
find_program() {
  PROGRAM=$(real_path "$1" && printf x) || no_program "The program $1 cannot be found."
  PROGRAM=${PROGRAM%$'\n'x}
}

# copy_program PATH NAME: puts its present content into $NEW_PROGRAM and its digest into DIGEST. NAME is the path as the caller gave it, for
# messages: root also resolves links that the caller may not read, such as /proc/PID/exe.
DIGEST=''
copy_program() {
  rm -f -- "$NEW_PROGRAM"
  set -o noclobber
  : >"$NEW_PROGRAM" || die "The folder $PROGRAMS cannot be written."
  set +o noclobber
  print_file "$1" >"$NEW_PROGRAM" && DIGEST=$(print_sum <"$NEW_PROGRAM") && DIGEST=${DIGEST%% *} &&
    [[ $DIGEST =~ ^[0-9a-f]{64}$ ]] && return 0
  rm -f -- "$NEW_PROGRAM"
  [[ $SYSTEM != linux ]] || clear_bundle   # left from the search for another program
  no_program "The program $2 cannot be copied."
}

# keep_copy ROLE: moves the file of copy_program to the folder of the runnable copies.
keep_copy() {
  [[ -d $PROGRAMS/$DIGEST ]] || mkdir -m 0755 -- "$PROGRAMS/$DIGEST" || die "The folder $PROGRAMS cannot be written."
  { chmod -- 0755 "$NEW_PROGRAM" && put_in_place "$NEW_PROGRAM" "$PROGRAMS/$DIGEST/$1"; } ||
    die "The copy of the program cannot be put into $PROGRAMS."
}

# ready_program PATH ROLE: sets PROGRAM to the file that may run for PATH. Its path has only safe characters, which
# Tor's configuration accepts unquoted.
ready_program() {
  local owned=''
  find_program "$1"
  if systems_own "$PROGRAM" "$2"; then
    owned=1
    if [[ $PROGRAM =~ ^[A-Za-z0-9._/+-]+$ ]] && open_to_all "$PROGRAM"; then return; fi
  fi
  copy_program "$PROGRAM" "$1"
  [[ -z $owned ]] || same_content "$PROGRAM" "$NEW_PROGRAM" || owned=''
  if [[ ! -f $PROGRAMS/$DIGEST/$2 ]] || { [[ $SYSTEM == linux ]] && is_replaced "$DIGEST/$2"; }; then
    if [[ -z $owned ]] && { [[ $SYSTEM != linux ]] || ! in_bundle "$PROGRAM" "$2"; }; then
      rm -f -- "$NEW_PROGRAM"
      [[ $SYSTEM != linux ]] || clear_bundle
      unapproved "An administrator password is needed to approve $PROGRAM." 4
    fi
    keep_copy "$2"
  fi
  rm -f -- "$NEW_PROGRAM"
  PROGRAM=$PROGRAMS/$DIGEST/$2
}

# any_approve: from now on a program of the user may run in Tor's account, only in that role and with exactly that
# content. The content was read, and the prompt named its path and digest, before the administrator's answer.
any_approve() {
  parse_options " --program --as --sha256 " "$@"
  [[ -n $OPT_PROGRAM ]] || die "The option --program is missing."
  [[ $OPT_AS =~ ^(tor|lyrebird|snowflake-client|webtunnel-client)$ ]] ||
    die "The value of --as must be tor, lyrebird, snowflake-client or webtunnel-client."
  [[ $OPT_SHA256 =~ ^[0-9a-f]{64}$ ]] || die "The value of --sha256 must be 64 small hexadecimal digits."
  check_program --program "$OPT_PROGRAM"
  [[ -n $PROMPTED ]] || unapproved "An administrator password is needed to approve $OPT_PROGRAM."
  take_lock
  trap finish EXIT
  ready_account
  ready_folders
  find_program "$OPT_PROGRAM"
  copy_program "$PROGRAM" "$OPT_PROGRAM"
  if [[ $DIGEST != "$OPT_SHA256" ]]; then
    rm -f -- "$NEW_PROGRAM"
    die "The SHA-256 of the program $OPT_PROGRAM differs from the one to approve."
  fi
  keep_copy "$OPT_AS"
  [[ $SYSTEM != linux ]] || forget_program "$DIGEST/$OPT_AS" || die "The folder $PROGRAMS cannot be written."
}

ready_programs() {
  ready_program "$OPT_TOR" tor
  OPT_TOR=$PROGRAM
  if [[ -n $USED_LYREBIRD ]]; then ready_program "$OPT_LYREBIRD" lyrebird; OPT_LYREBIRD=$PROGRAM; fi
  if [[ -n $USED_SNOWFLAKE ]]; then ready_program "$OPT_SNOWFLAKE" snowflake-client; OPT_SNOWFLAKE=$PROGRAM; fi
  if [[ -n $USED_WEBTUNNEL ]]; then ready_program "$OPT_WEBTUNNEL" webtunnel-client; OPT_WEBTUNNEL=$PROGRAM; fi
}
