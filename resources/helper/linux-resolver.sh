
# ---- Linux: DNS --------------------------------------------------------------------------------------------
# The helper mounts its own file over the system's resolver file, so that a restart of the computer always restores the user's. The firewall
# redirects DNS lookups to Tor's port.

readonly RESOLVER=/etc/resolv.conf
readonly OUR_RESOLVER=$RUN/veldmark-resolv.conf   # 0644; its name identifies the helper's mount
readonly TOR_RESOLVER=$RUN/tor-resolv.conf        # 0644; the former resolvers, for Tor and its transports
readonly RESOLVER_ENTRY=30-resolver
readonly MANAGERS_COPY=/run/NetworkManager/resolv.conf   # what NetworkManager would write to $RESOLVER now

FORMER_RESOLVER=''   # text of the resolver file without the helper's mount
RESOLVER_TARGET=''   # the file behind $RESOLVER; empty when there is none and none can be made

# Tor answers lookups one after the other over circuits, so the timeout is long.
print_resolver() {
  printf '# Veldmark: names are looked up through Tor.\nnameserver 127.0.0.1\n'
  [[ $1 != 1 ]] || printf 'nameserver ::1\n'
  printf 'options timeout:10 attempts:2\n'
}

# find_mounts: sets OUR_MOUNTS to the mount points of the helper's resolver file, one per line, the latest last. Most computers have many
# mounts and none of these.
OUR_MOUNTS=''
find_mounts() {
  local text root point rest
  OUR_MOUNTS=''
  IFS= read -r -d '' text </proc/self/mountinfo || true
  [[ $text == */veldmark-resolv.conf* ]] || return 0
  while read -r rest rest rest root point rest; do
    case $root in
    */veldmark-resolv.conf | */veldmark-resolv.conf//deleted)
      printf -v point '%b' "$point"
      OUR_MOUNTS=${OUR_MOUNTS:+$OUR_MOUNTS$'\n'}$point
      ;;
    esac
  done <<<"$text"
}

# list_servers 4|6 TEXT: the name servers in a resolver file that are not this computer, joined by ", ".
list_servers() {
  local word server rest list=''
  while read -r word server rest; do
    [[ $word == nameserver ]] || continue
    server=${server%%%*}
    case $server in
    127.* | ::1 | 0.0.0.0 | ::) continue ;;
    esac
    "is_address$1" "$server" || continue
    [[ ", $list, " == *", $server, "* ]] || list="${list:+$list, }$server"
  done <<<"$2"
  printf '%s' "$list"
}

# print_settings TEXT: the lines of a resolver file that are settings. The stored text is readable for all users, and a user who can change
# the target of $RESOLVER could have had another file read here.
print_settings() {
  local line
  while IFS= read -r line || [[ -n $line ]]; do
    [[ ! $line =~ ^[[:blank:]]*(nameserver|search|domain|options|sortlist)[[:blank:]] ]] || printf '%s\n' "$line"
  done <<<"$1"
}

# read_text FILE: sets TEXT to its first 65,536 bytes, without NUL bytes.
TEXT=''
read_text() {
  TEXT=''
  IFS= read -r -N 65536 TEXT <"$1" || true
}

# read_resolver: sets RESOLVER_TARGET and FORMER_RESOLVER. When the only resolver is on this computer itself (it would ask through Tor), it
# is replaced by the servers that it uses.
read_resolver() {
  local file servers
  FORMER_RESOLVER='' RESOLVER_TARGET=''
  file=$(readlink -f -- "$RESOLVER" && printf x) || return 0
  file=${file%$'\n'x}
  [[ ! -e $file || -f $file ]] && [[ -d ${file%/*}/ ]] || return 0
  RESOLVER_TARGET=$file
  find_mounts
  if [[ -n $OUR_MOUNTS ]]; then
    # shellcheck disable=SC2016
    FORMER_RESOLVER=$(unshare --mount --propagation private /bin/bash -p -c \
      'umount -l -- "$1" && head -c 65536 -- "$1"' umount "$file" | tr -d '\0') || true
  elif [[ -f $file ]]; then
    read_text "$file"
    FORMER_RESOLVER=$TEXT
  fi
  for file in /run/systemd/resolve/resolv.conf /run/NetworkManager/no-stub-resolv.conf; do
    servers=$(list_servers 4 "$FORMER_RESOLVER")$(list_servers 6 "$FORMER_RESOLVER")
    [[ -z $servers && -f $file ]] || break
    read_text "$file"
    FORMER_RESOLVER=$TEXT
  done
  FORMER_RESOLVER=$(print_settings "$FORMER_RESOLVER")
}

# put_resolver: mounts the helper's file if it is not mounted.
put_resolver() {
  local text ipv6=0
  [[ -n $RESOLVER_TARGET ]] || return 0
  ! has_ipv6_loopback || ipv6=1
  text=$(print_resolver "$ipv6")
  find_mounts
  if [[ $RESOLVER_TARGET -ef $OUR_RESOLVER && $OUR_MOUNTS == "$RESOLVER_TARGET" ]] &&
    [[ $(<"$OUR_RESOLVER") == "$text" ]]; then
    return
  fi
  unmount_resolver || die "$UNDONE"
  if is_managers "$RESOLVER_TARGET"; then
    journal_once "$RESOLVER_ENTRY" "target $RESOLVER_TARGET" "writer NetworkManager"
  elif [[ -e $RESOLVER_TARGET ]]; then
    journal_once "$RESOLVER_ENTRY" "target $RESOLVER_TARGET"
  else
    journal_once "$RESOLVER_ENTRY" "target $RESOLVER_TARGET" "created 1"
  fi
  write_file "$OUR_RESOLVER" 0644 root "$text"$'\n' || die "The file $OUR_RESOLVER cannot be written."
  if [[ ! -e $RESOLVER_TARGET ]]; then
    : >"$RESOLVER_TARGET" || die "The file $RESOLVER_TARGET cannot be made."
    chmod 0644 -- "$RESOLVER_TARGET"
  fi
  mount --bind -- "$OUR_RESOLVER" "$RESOLVER_TARGET" 2>/dev/null || die "The DNS settings cannot be changed."
}

# unmount_resolver: removes every mount of the helper's file, anywhere.
unmount_resolver() {
  local point
  for _ in 1 2 3; do
    find_mounts
    while IFS= read -r point; do
      [[ -z $point ]] || umount -l -- "$point" 2>/dev/null || true
    done <<<"$OUR_MOUNTS"
    find_mounts
    [[ -n $OUR_MOUNTS ]] || return 0
  done
  UNDONE="The DNS settings could not be put back."
  return 1
}

# is_managers FILE: whether NetworkManager has written it in its present form.
is_managers() {
  [[ -f $1 && -f $MANAGERS_COPY ]] && { [[ $1 -ef $MANAGERS_COPY ]] || [[ $(<"$1") == "$(<"$MANAGERS_COPY")" ]]; }
}

# renew_resolver: NetworkManager could not write its file while the helper's was mounted over it. If the network has assigned other name
# servers since, NetworkManager is asked to write it now. A file written by another program stays as it is. So does this file while
# NetworkManager has no server to write, as between two networks: it writes the file itself later.
renew_resolver() {
  local target
  [[ $(journal_value writer) == NetworkManager ]] && target=$(journal_value target) && [[ -f $MANAGERS_COPY ]] || return 0
  [[ $target -ef $MANAGERS_COPY || $(<"$MANAGERS_COPY") == *nameserver* ]] || return 0
  [[ $target -ef $MANAGERS_COPY ]] || ! is_managers "$target" || return 0
  timeout -k 1 5 nmcli general reload dns-rc </dev/null >/dev/null || true
}

undo_resolver() {
  local created target
  unmount_resolver || return 1
  renew_resolver
  if created=$(journal_value created) && target=$(journal_value target) &&
    [[ $created == 1 && ! -s $target && -f $target && $target == "$(readlink -f -- "$RESOLVER")" ]]; then
    rm -f -- "$target"
  fi
}
