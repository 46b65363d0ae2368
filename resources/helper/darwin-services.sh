
# ---- macOS: DNS and proxy of the network services ----------------------------------------------------------
# Every active service uses this computer as its name server and Tor's SOCKS port as its proxy. A separate journal
# entry keeps the former settings of each, and they are restored exactly. networksetup is slow, and reports many
# errors on standard output with status 0, so its settings are read again after writing.

readonly SERVICE_ENTRY=30-service   # a number follows, one file per service
readonly MAX_SERVICES=64
readonly OUR_DNS=127.0.0.1 OUR_HOST=127.0.0.1

# ask VERB [SERVICE]: sets the caller's variable `text` to the answer. Status 1 when the answer is a refusal, which
# may come with status 0. Sentences may be in the user's language, so only their form is relied on.
ask() { text=$(networksetup "$@") && [[ $text != *"** "* && $text != *"not a recognized"* ]]; }

# read_services all|active: sets SERVICES to the names; all includes disabled services. Status 1 when they cannot
# be read, which differs from an empty list.
SERVICES=()
read_services() {
  local line text head
  SERVICES=()
  # The first line says what an asterisk means.
  ask -listallnetworkservices && head=${text%%$'\n'*} && [[ $head == *"(*)"* ]] || return 1
  while IFS= read -r line; do
    case $line in
    '' | "$head") continue ;;
    \**)
      [[ $1 != active ]] || continue
      line=${line#\*}
      ;;
    esac
    SERVICES[${#SERVICES[@]}]=$line
  done <<<"$text"
}

has_service() {
  local name
  for name in ${SERVICES[@]+"${SERVICES[@]}"}; do
    [[ $name != "$1" ]] || return 0
  done
  return 1
}

# current_location: prints the name of the network location. Status 1 when it is unknown.
current_location() {
  local text
  ask -getcurrentlocation && [[ -n $text ]] && printf '%s' "$text"
}

# read_list TEXT: sets LIST to the lines of an answer; to an empty list when the answer is one sentence, which says
# that there are none. An entry has no blank.
LIST=()
read_list() {
  local line
  LIST=()
  [[ $1 == *$'\n'* || $1 != *" "*. ]] || return 0
  while IFS= read -r line; do
    [[ -z $line ]] || LIST[${#LIST[@]}]=$line
  done <<<"$1"
}

# value_of TEXT KEY: prints the text after "KEY: " in an answer.
value_of() {
  local line
  while IFS= read -r line; do
    if [[ $line == "$2:"* ]]; then
      line=${line#"$2:"}
      line=${line# }
      [[ $line == "(null)" ]] || printf '%s' "$line"
      return 0
    fi
  done <<<"$1"
  return 1
}

# read_service NAME [KINDS]: reads the present settings of a service, or only some kinds of them. Status 1 when they
# are unknown.
readonly ALL_KINDS=" dns bypass socks web secure auto discovery "
HAS_DNS=() HAS_BYPASS=() HAS_SOCKS='' HAS_HOST='' HAS_PORT='' HAS_WEB='' HAS_SECURE='' HAS_AUTO='' HAS_DISCOVERY=''
read_service() {
  local text line kinds=${2-$ALL_KINDS}
  if [[ $kinds == *" dns "* ]]; then
    ask -getdnsservers "$1" || return 1
    read_list "$text"
    HAS_DNS=(${LIST[@]+"${LIST[@]}"})
    for line in ${LIST[@]+"${LIST[@]}"}; do
      is_address4 "$line" || is_address6 "${line%%%*}" || return 1
    done
  fi
  if [[ $kinds == *" bypass "* ]]; then
    ask -getproxybypassdomains "$1" || return 1
    read_list "$text"
    HAS_BYPASS=(${LIST[@]+"${LIST[@]}"})
  fi
  if [[ $kinds == *" socks "* ]]; then
    ask -getsocksfirewallproxy "$1" && HAS_SOCKS=$(value_of "$text" Enabled) &&
      HAS_HOST=$(value_of "$text" Server) && HAS_PORT=$(value_of "$text" Port) || return 1
  fi
  [[ $kinds != *" web "* ]] || { ask -getwebproxy "$1" && HAS_WEB=$(value_of "$text" Enabled); } || return 1
  [[ $kinds != *" secure "* ]] || { ask -getsecurewebproxy "$1" && HAS_SECURE=$(value_of "$text" Enabled); } || return 1
  [[ $kinds != *" auto "* ]] || { ask -getautoproxyurl "$1" && HAS_AUTO=$(value_of "$text" Enabled); } || return 1
  [[ $kinds != *" discovery "* ]] ||
    { ask -getproxyautodiscovery "$1" && HAS_DISCOVERY=$(value_of "$text" "Auto Proxy Discovery"); } || return 1
}

is_ours() {
  [[ ${#HAS_DNS[@]} == 1 && ${HAS_DNS[0]-} == "$OUR_DNS" && $HAS_SOCKS == Yes && $HAS_HOST == "$OUR_HOST" &&
    $HAS_PORT == "$SOCKS_PORT" ]]
}

# note_service NAME LOCATION: writes a journal entry of the settings just read, unless the service has one. Without
# an entry, the helper's own settings are left from a lost session; then the defaults of a new service are
# recorded. Sets NEW_ENTRY to the entry's name when it is new.
NEW_ENTRY=''
note_service() {
  local number name line lines
  NEW_ENTRY=''
  for ((number = 0; number < MAX_SERVICES; number++)); do
    name=$SERVICE_ENTRY-$number
    journal_has "$name" || break
    if journal_read "$name" && [[ $(journal_value service) == "$1" && $(journal_value location) == "$2" ]]; then
      return 0
    fi
  done
  ((number < MAX_SERVICES)) || return 1
  ! is_ours || HAS_SOCKS=No HAS_HOST='' HAS_PORT=0 HAS_DNS=() HAS_BYPASS=()
  lines=("service $1" "location $2" "socks $HAS_SOCKS" "host $HAS_HOST" "port $HAS_PORT" "web $HAS_WEB"
    "secure $HAS_SECURE" "auto $HAS_AUTO" "discovery $HAS_DISCOVERY")
  for line in ${HAS_DNS[@]+"${HAS_DNS[@]}"}; do lines[${#lines[@]}]="dns $line"; done
  for line in ${HAS_BYPASS[@]+"${HAS_BYPASS[@]}"}; do lines[${#lines[@]}]="bypass $line"; done
  journal_put "$name" "${lines[@]}" && NEW_ENTRY=$name
}

# The user's own exceptions would bypass Tor, so only this computer itself is excepted and, with LAN 1, the local
# network as far as the list of exceptions can express it.
OUR_BYPASS=()
choose_bypass() {
  OUR_BYPASS=(localhost 127.0.0.1 ::1)
  [[ $1 != 1 ]] || OUR_BYPASS=(localhost 127.0.0.1 ::1 '*.local' 10/8 172.16/12 192.168/16 169.254/16)
}

# net KIND WORD...: networksetup without output; records which kind of setting was changed.
CHANGED=''
net() {
  CHANGED=${CHANGED:- }"$1 "
  shift
  networksetup "$@" >/dev/null
}

# set_service NAME: changes the present settings to the helper's. Other proxies would take precedence over Tor's,
# so they are switched off.
set_service() {
  CHANGED=''
  if ! [[ ${#HAS_DNS[@]} == 1 && ${HAS_DNS[0]-} == "$OUR_DNS" ]]; then
    net dns -setdnsservers "$1" "$OUR_DNS" || return 1
  fi
  if [[ ${HAS_BYPASS[*]-} != "${OUR_BYPASS[*]}" ]]; then
    net bypass -setproxybypassdomains "$1" "${OUR_BYPASS[@]}" || return 1
  fi
  if ! [[ $HAS_SOCKS == Yes && $HAS_HOST == "$OUR_HOST" && $HAS_PORT == "$SOCKS_PORT" ]]; then
    net socks -setsocksfirewallproxy "$1" "$OUR_HOST" "$SOCKS_PORT" off && net socks -setsocksfirewallproxystate "$1" on || return 1
  fi
  [[ $HAS_WEB != Yes ]] || net web -setwebproxystate "$1" off || return 1
  [[ $HAS_SECURE != Yes ]] || net secure -setsecurewebproxystate "$1" off || return 1
  [[ $HAS_AUTO != Yes ]] || net auto -setautoproxystate "$1" off || return 1
  [[ $HAS_DISCOVERY != On ]] || net discovery -setproxyautodiscovery "$1" off || return 1
  [[ -n $CHANGED ]] || return 0
  read_service "$1" "$CHANGED" && is_ours && [[ ${HAS_BYPASS[*]-} == "${OUR_BYPASS[*]}" ]] &&
    [[ $HAS_WEB$HAS_SECURE$HAS_AUTO != *Yes* && $HAS_DISCOVERY != On ]]
}

# primary_service: prints the name of the service of the default route, of IPv6's where IPv4 has none; nothing
# without one.
primary_service() {
  local family key value id='' rest
  for family in IPv4 IPv6; do
    while read -r key rest value; do
      [[ $key != PrimaryService ]] || id=$value
    done < <(scutil <<<"show State:/Network/Global/$family" || true)
    [[ -z $id ]] || break
  done
  [[ $id =~ ^[0-9A-F-]{36}$ ]] || return 0
  while IFS= read -r value; do
    [[ $value != *"UserDefinedName : "* ]] || printf '%s' "${value#*"UserDefinedName : "}"
  done < <(scutil <<<"show Setup:/Network/Service/$id" || true)
}

# put_services LAN: records and switches every active service, also a new one. A service that cannot be read or
# set, such as a VPN's or a managed one, stays as it was, unless it carries the traffic now, or there is no other.
put_services() {
  local name location reason='' primary put=0
  choose_bypass "$1"
  location=$(current_location) || die "The network settings cannot be read."
  read_services active || die "The network settings cannot be read."
  primary=$(primary_service)
  for name in ${SERVICES[@]+"${SERVICES[@]}"}; do
    NEW_ENTRY=''
    if ! read_service "$name"; then
      reason="The settings of the network service $name cannot be read."
    else
      note_service "$name" "$location" || die "The record of the former network settings cannot be written."
      if set_service "$name"; then
        put=1
        continue
      fi
      reason="The settings of the network service $name cannot be changed."
    fi
    [[ $name != "$primary" ]] || die "$reason"
    # A part of it may have been set. What cannot be put back now is put back at the end of the session.
    [[ -z $NEW_ENTRY ]] || ! journal_read "$NEW_ENTRY" || ! restore_service "$name" || journal_drop "$NEW_ENTRY"
  done
  [[ $put == 1 || -z $reason ]] || die "$reason"
  flush_names
}

# flush_names: clears the DNS caches.
flush_names() {
  dscacheutil -flushcache || true
  killall -HUP mDNSResponder || true
}

on_off() { if [[ $1 == Yes || $1 == On ]]; then printf on; else printf off; fi; }

# is_as_noted: whether the settings just read equal the current entry. Uses the caller's dns, bypass, host, port and
# state. An empty host that cannot be made empty again has no effect while the proxy is off.
is_as_noted() {
  [[ $HAS_SOCKS == "$state" && (-z $host || ($HAS_HOST == "$host" && (-z $port || $HAS_PORT == "$port"))) ]] &&
    [[ ${HAS_DNS[*]-} == "${dns[*]-}" && ${HAS_BYPASS[*]-} == "${bypass[*]-}" ]] &&
    [[ $HAS_WEB == "$(journal_value web)" && $HAS_SECURE == "$(journal_value secure)" ]] &&
    [[ $HAS_AUTO == "$(journal_value auto)" && $HAS_DISCOVERY == "$(journal_value discovery)" ]]
}

# restore_service NAME: restores the settings of the current entry. Writes only what differs: a service may refuse
# the rest.
restore_service() {
  local -a dns bypass
  local line host port state had_dns had_bypass
  dns=() bypass=()
  for line in ${JOURNAL_LINES[@]+"${JOURNAL_LINES[@]}"}; do
    case $line in
    "dns "*) dns[${#dns[@]}]=${line#* } ;;
    "bypass "*) bypass[${#bypass[@]}]=${line#* } ;;
    esac
  done
  host=$(journal_value host) && port=$(journal_value port) && state=$(journal_value socks) || return 1
  [[ $port != 0 ]] || port=''
  read_service "$1" || return 1
  ! is_as_noted || return 0
  CHANGED=''
  had_dns=${dns[*]-} had_bypass=${bypass[*]-}
  ((${#dns[@]} > 0)) || dns=(Empty)
  ((${#bypass[@]} > 0)) || bypass=(Empty)
  [[ ${HAS_BYPASS[*]-} == "$had_bypass" ]] || net bypass -setproxybypassdomains "$1" "${bypass[@]}" || return 1
  if ! [[ $HAS_SOCKS == "$state" && $HAS_HOST == "$host" && (-z $port || $HAS_PORT == "$port") ]]; then
    if [[ -n $host ]]; then
      net socks -setsocksfirewallproxy "$1" "$host" "$port" off || return 1
    else
      net socks -setsocksfirewallproxy "$1" '' '' off || true   # some versions may not take an empty host
    fi
    net socks -setsocksfirewallproxystate "$1" "$(on_off "$state")" || return 1
  fi
  [[ $HAS_WEB == "$(journal_value web)" ]] || net web -setwebproxystate "$1" "$(on_off "$(journal_value web)")" || return 1
  [[ $HAS_SECURE == "$(journal_value secure)" ]] ||
    net secure -setsecurewebproxystate "$1" "$(on_off "$(journal_value secure)")" || return 1
  [[ $HAS_AUTO == "$(journal_value auto)" ]] || net auto -setautoproxystate "$1" "$(on_off "$(journal_value auto)")" || return 1
  [[ $HAS_DISCOVERY == "$(journal_value discovery)" ]] ||
    net discovery -setproxyautodiscovery "$1" "$(on_off "$(journal_value discovery)")" || return 1
  [[ ${HAS_DNS[*]-} == "$had_dns" ]] || net dns -setdnsservers "$1" "${dns[@]}" || return 1
  [[ ${dns[0]} != Empty ]] || dns=()
  [[ ${bypass[0]} != Empty ]] || bypass=()
  read_service "$1" "$CHANGED" && is_as_noted
}

CURRENT_LOCATION='' SERVICES_READ=0   # read once by undo_services for all entries

# undo_service: status 1: not everything could be restored. 3: it cannot be restored now, but the network is open.
undo_service() {
  local name location
  name=$(journal_value service) || return 0
  location=$(journal_value location) || location=''
  if [[ -z $CURRENT_LOCATION ]]; then
    UNDONE="The network settings cannot be read."
    return 1
  fi
  if [[ $location != "$CURRENT_LOCATION" ]]; then
    UNDONE="The network location $location still has Veldmark's settings. Choose it and disconnect again."
    return 3
  fi
  if ((SERVICES_READ)); then
    # A removed service has no settings any more; a renamed one is found below.
    has_service "$name" || return 0
    restore_service "$name" && return 0
  fi
  UNDONE="The settings of the network service $name could not be put back."
  return 1
}

# undo_services NOTED: undoes every entry. Then it clears every service that still has exactly the helper's
# settings, which are useless without Tor: a renamed service, or one whose entry was lost. Reads nothing when the
# helper has recorded nothing: NOTED is empty and there is no entry.
undo_services() {
  local path reason='' status worst=0 noted=$1
  CURRENT_LOCATION='' SERVICES_READ=0
  for path in "$JOURNAL/$SERVICE_ENTRY"-[0-9]*; do
    [[ -e $path && $path != *.new ]] || continue
    # Read only once: networksetup is slow, and the program waits for the helper at its end.
    [[ -n $CURRENT_LOCATION ]] || CURRENT_LOCATION=$(current_location) || CURRENT_LOCATION=''
    ((SERVICES_READ)) || { read_services all && SERVICES_READ=1; } || true
    noted=1 status=0 UNDONE=''
    undo_entry "${path##*/}" || status=$?
    if ((status != 0)); then
      reason=${reason:-$UNDONE}
      ((status == 3 && worst == 1)) || worst=$status
    fi
  done
  if [[ -n $noted ]]; then
    # While an entry is left, its service must not be guessed about.
    ((worst == 1 || worst == 3)) || sweep_services
    flush_names
  fi
  UNDONE=$reason
  return "$worst"
}

sweep_services() {
  local name
  read_services all || return 0
  for name in ${SERVICES[@]+"${SERVICES[@]}"}; do
    # The first query decides most cases.
    [[ $(networksetup -getdnsservers "$name" || true) == "$OUR_DNS" ]] || continue
    if read_service "$name" && is_ours; then
      net socks -setsocksfirewallproxy "$name" '' '' off || true
      net socks -setsocksfirewallproxystate "$name" off || true
      net bypass -setproxybypassdomains "$name" Empty || true
      net dns -setdnsservers "$name" Empty || true
    fi
  done
}
