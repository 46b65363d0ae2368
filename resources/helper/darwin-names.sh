
# ---- macOS: names that transports need ---------------------------------------------------------------------
# Some transports look up a host before Tor has a circuit. DNS already goes to Tor then, and on macOS a single
# process cannot have other name servers. So the helper looks up these few names before the switch, and keeps them
# in the system's list of hosts during the session.

readonly NAMES_ENTRY=25-names
readonly HOSTS=/private/etc/hosts
readonly HOSTS_BEGIN="# >>> veldmark >>>" HOSTS_END="# <<< veldmark <<<"
readonly NAME_SECONDS=5 MAX_NAMES=32

NAMES_TEXT=''   # "ADDRESS NAME" lines

# print_names: the host names in the bridge lines, each once: of url=, front=, fronts=, ampcache= and ice=.
print_names() {
  local bridge word key value part seen=' '
  for bridge in ${OPT_BRIDGES[@]+"${OPT_BRIDGES[@]}"} ${OPT_RESERVES[@]+"${OPT_RESERVES[@]}"}; do
    for word in $bridge; do
      key=${word%%=*} value=${word#*=}
      case $key in
      url | ampcache | front | fronts | ice) ;;
      *) continue ;;
      esac
      for part in ${value//,/ }; do
        part=${part#*://}
        [[ $key != ice ]] || { part=${part#stun:}; part=${part#stuns:}; }
        part=${part%%/*}
        part=${part%%:*}
        [[ $part =~ ^[A-Za-z0-9]([A-Za-z0-9-]*\.)+[A-Za-z][A-Za-z0-9-]*$ && $seen != *" $part "* ]] || continue
        seen="$seen$part "
        printf '%s\n' "$part"
      done
    done
  done
}

# own_hosts: prints the helper's block of the list of hosts.
own_hosts() {
  local line inside=''
  while IFS= read -r line || [[ -n $line ]]; do
    case $line in
    "$HOSTS_BEGIN") inside=1 ;;
    "$HOSTS_END") inside='' ;;
    *) [[ -z $inside ]] || printf '%s\n' "$line" ;;
    esac
  done <"$HOSTS"
}

# read_names: sets NAMES_TEXT. A name that is not found keeps its address from the running session.
read_names() {
  local name line address addresses found known count=0
  NAMES_TEXT=''
  transports_need_names || return 0
  known=$(own_hosts) || known=''
  while IFS= read -r name; do
    ((++count <= MAX_NAMES)) || break
    found=''
    while read -r line addresses; do
      for address in $addresses; do
        case $line in
        ip_address:) is_address4 "$address" || continue ;;
        ipv6_address:) is_address6 "$address" || continue ;;
        *) continue ;;
        esac
        found="$found$address $name"$'\n'
      done
    done < <(perl -e 'alarm shift; exec @ARGV' "$NAME_SECONDS" dscacheutil -q host -a name "$name" || true)
    if [[ -z $found ]]; then
      while IFS= read -r line; do
        [[ ${line#* } != "$name" ]] || found="$found$line"$'\n'
      done <<<"$known"
    fi
    NAMES_TEXT=$NAMES_TEXT$found
  done < <(print_names)
}

# hosts_text: sets HOSTS_TEXT to the list of hosts without the helper's block, byte for byte; a line end that was
# added before the block is removed with it.
HOSTS_TEXT=''
hosts_text() {
  local text begin=$HOSTS_BEGIN$'\n' end=$HOSTS_END$'\n' joined
  text=$(cat -- "$HOSTS" && printf x) || return 1
  text=${text%x}
  joined=$(journal_value joined) || joined=''
  if [[ $text == *"$begin"*"$end"* ]]; then
    HOSTS_TEXT=${text%%"$begin"*}
    [[ $joined != 1 ]] || HOSTS_TEXT=${HOSTS_TEXT%$'\n'}
    text=${text#*"$begin"}
    HOSTS_TEXT=$HOSTS_TEXT${text#*"$end"}
  else
    HOSTS_TEXT=$text
  fi
}

write_hosts() { write_file "$HOSTS" 0644 root "$1"; }

# put_names: replaces the helper's block.
put_names() {
  local joined=0
  undo_entry "$NAMES_ENTRY" || true
  [[ -n $NAMES_TEXT ]] || return 0
  JOURNAL_LINES=()
  hosts_text || die "The file $HOSTS cannot be read."
  [[ -z $HOSTS_TEXT || $HOSTS_TEXT == *$'\n' ]] || joined=1
  journal_must "$NAMES_ENTRY" "joined $joined"
  ((joined == 0)) || HOSTS_TEXT=$HOSTS_TEXT$'\n'
  write_hosts "$HOSTS_TEXT$HOSTS_BEGIN"$'\n'"$NAMES_TEXT$HOSTS_END"$'\n' || die "The file $HOSTS cannot be written."
}

# undo_names: writes nothing when the file has no block of the helper.
undo_names() {
  [[ -f $HOSTS ]] && grep -qxF -- "$HOSTS_BEGIN" "$HOSTS" || return 0
  hosts_text && write_hosts "$HOSTS_TEXT" && return 0
  UNDONE="The file $HOSTS could not be put back."
  return 1
}
