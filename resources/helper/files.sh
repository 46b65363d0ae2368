
# ---- Files and the journal ---------------------------------------------------------------------------------
# The system's own part defines put_in_place, print_modes, real_path and print_sum.

# write_file TARGET MODE OWNER TEXT: all or nothing, on disk when it returns 0. OWNER is "root" or UID:GID.
# TARGET's folder must belong to root.
write_file() {
  local new=$1.new status=0
  [[ ! -e $new && ! -L $new ]] || rm -f -- "$new" || return 1
  set -o noclobber
  [[ $2 != 0644 ]] || umask 022
  { printf '%s' "$4" >"$new"; } || status=1
  umask 077
  set +o noclobber
  if ((status == 0)); then
    { [[ $3 == root ]] || chown -- "$3" "$new"; } && { [[ $2 == 0600 || $2 == 0644 ]] || chmod -- "$2" "$new"; } &&
      put_in_place "$new" "$1" && return 0
  fi
  rm -f -- "$new"
  return 1
}

# remove FILE...: removes what is there, and starts no program where nothing is.
remove() {
  local file there=()
  for file in "$@"; do
    [[ ! -e $file && ! -L $file ]] || there[${#there[@]}]=$file
  done
  ((${#there[@]} == 0)) || rm -f -- "${there[@]}"
}

# One file per change, named NN-KIND in the order of the changes; undoing runs in reverse. Lines of "KEY VALUE",
# the last one "end", so that a torn file is detected.

JOURNAL_LINES=()

# journal_put NAME LINE...
journal_put() {
  local name=$1 text=''
  shift
  printf -v text '%s\n' "$@" end
  write_file "$JOURNAL/$name" 0600 root "$text"
}

# journal_must NAME LINE...: likewise, or ends the run. journal_once: only when there is no such entry yet.
journal_must() { journal_put "$@" || die "The record of the former network settings cannot be written."; }
journal_once() { journal_has "$1" || journal_must "$@"; }

journal_has() { [[ -f $JOURNAL/$1 && ! -L $JOURNAL/$1 ]]; }

# journal_read NAME: fills JOURNAL_LINES; status 1 when there is no such entry, 2 when it is torn.
journal_read() {
  JOURNAL_LINES=()
  journal_has "$1" || return 1
  read_lines "$JOURNAL/$1"
}

# read_lines FILE: likewise, for an existing file.
read_lines() {
  local line last=''
  JOURNAL_LINES=()
  while IFS= read -r line; do
    [[ -z $last ]] || JOURNAL_LINES[${#JOURNAL_LINES[@]}]=$last
    last=$line
  done <"$1"
  [[ $last == end ]] || return 2
}

# journal_value KEY: prints the value of the first such line of the current entry.
journal_value() {
  local line
  for line in ${JOURNAL_LINES[@]+"${JOURNAL_LINES[@]}"}; do
    if [[ $line == "$1 "* ]]; then
      printf '%s' "${line#* }"
      return 0
    fi
  done
  return 1
}

journal_drop() {
  [[ ! -e $JOURNAL/$1 && ! -L $JOURNAL/$1 ]] || rm -f -- "$JOURNAL/$1"
}
