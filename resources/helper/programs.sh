
# ---- Which programs may run as Tor's account ---------------------------------------------------------------
# Whatever runs as Tor's account passes the kill switch, so under the password-free rule only two kinds run:
# programs that root alone can change, and exact copies of what an administrator approved in a prompted run.

PROGRAM=''   # the result of ready_program

readonly MAX_PROGRAM_BYTES=200000000

# every_part PATH PATTERN: whether "MODE UID KIND" matches PATTERN for PATH and every folder above it.
every_part() {
  local path=$1 line paths=(/)
  while [[ -n $path ]]; do
    paths[${#paths[@]}]=$path
    path=${path%/*}
  done
  while IFS= read -r line; do
    [[ $line =~ $2 ]] || return 1
  done < <(print_modes "${paths[@]}" || printf 'missing\n')
}

# root_owned PATH: PATH, free of links, and every folder above it are root's to change alone.
root_owned() { every_part "$1" '^[0-7]*[0145][0145] 0 '; }

# open_to_all PATH: any account can reach and run it.
open_to_all() { every_part "$1" '^[0-7]*[1357] '; }

# print_file PATH: its content, opened as the caller, so that nobody reads through us what is not theirs.
print_file() {
  if [[ $CALLER_UID == 0 ]]; then
    head -c "$MAX_PROGRAM_BYTES" -- "$1"
  else
    as_caller 10 head -c "$MAX_PROGRAM_BYTES" -- "$1"
  fi
}

# ready_program PATH NAME: sets PROGRAM to what may be run for PATH, a path of safe characters only, which Tor's
# configuration can hold unquoted. NAME is the file name that a copy gets.
ready_program() {
  local path sum copy new=$PROGRAMS/new owned=''
  path=$(real_path "$1" && printf x) || die "The program $1 cannot be found."
  path=${path%$'\n'x}
  # An interpreter is root's too, so as Tor only a program of that name goes unasked.
  if [[ $2 != tor || ${path##*/} == tor ]] && root_owned "$path"; then
    owned=1
    if [[ $path =~ ^[A-Za-z0-9._/+-]+$ ]] && open_to_all "$path"; then
      PROGRAM=$path
      return
    fi
  fi
  rm -f -- "$new"
  set -o noclobber
  : >"$new" || die "The folder $PROGRAMS cannot be written."
  set +o noclobber
  print_file "$path" >"$new" || { rm -f -- "$new"; die "The program $path cannot be copied."; }
  sum=$(print_sum <"$new") && sum=${sum%% *}
  [[ $sum =~ ^[0-9a-f]{64}$ ]] || die "The program $path cannot be copied."
  copy=$PROGRAMS/$sum/$2
  if [[ ! -f $copy ]]; then
    if [[ -z $owned && -z $PROMPTED ]]; then
      rm -f -- "$new"
      die "An administrator password is needed to approve $path."
    fi
    [[ -d $PROGRAMS/$sum ]] || mkdir -m 0755 -- "$PROGRAMS/$sum" || die "The folder $PROGRAMS cannot be written."
    { chmod 0755 -- "$new" && put_in_place "$new" "$copy"; } || die "The program $path cannot be copied."
  fi
  rm -f -- "$new"
  PROGRAM=$copy
}

ready_programs() {
  ready_program "$OPT_TOR" tor
  OPT_TOR=$PROGRAM
  if [[ -n $USED_LYREBIRD ]]; then ready_program "$OPT_LYREBIRD" lyrebird; OPT_LYREBIRD=$PROGRAM; fi
  if [[ -n $USED_SNOWFLAKE ]]; then ready_program "$OPT_SNOWFLAKE" snowflake-client; OPT_SNOWFLAKE=$PROGRAM; fi
  if [[ -n $USED_WEBTUNNEL ]]; then ready_program "$OPT_WEBTUNNEL" webtunnel-client; OPT_WEBTUNNEL=$PROGRAM; fi
}
