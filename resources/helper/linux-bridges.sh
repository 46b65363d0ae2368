
# ---- Linux: the bridges and the firewall -------------------------------------------------------------------

readonly TOR_DEFAULTS=/etc/tor/torrc-defaults   # the administrator's file, which Tor reads before the helper's

# bridges_are_near: whether one of the bridges, or of those in reserve, is on the local network, by its address or by the address in its URL.
bridges_are_near() {
  local bridge
  for bridge in ${OPT_BRIDGES[@]+"${OPT_BRIDGES[@]}"} ${OPT_RESERVES[@]+"${OPT_RESERVES[@]}"}; do
    [[ ! $bridge =~ (^|[^0-9.])(10|192\.168|172\.(1[6-9]|2[0-9]|3[01])|169\.254)\.[0-9.]+ ]] || return 0
    [[ ! $bridge =~ \[[Ff]([Ee][89AaBb]|[CcDd])[0-9A-Fa-f]*: ]] || return 0
  done
  return 1
}

# list_bridges: sets BRIDGES4 and BRIDGES6 to "ADDRESS . PORT, …" of the bridges and of those in reserve, if Tor sends only to them. That is so
# when the session begins with bridges, every bridge is plain or has a transport that goes to the address in the line, the rules can hold each
# address, and the administrator's defaults add neither a bridge nor a proxy. Otherwise both are empty.
BRIDGES4='' BRIDGES6=''
list_bridges() {
  local bridge address port four='' six=''
  BRIDGES4='' BRIDGES6=''
  ((${#OPT_BRIDGES[@]})) || return 0
  [[ ! -s $TOR_DEFAULTS ]] || ! grep -qiE 'bridge|proxy|%include' "$TOR_DEFAULTS" || return 0
  for bridge in "${OPT_BRIDGES[@]}" ${OPT_RESERVES[@]+"${OPT_RESERVES[@]}"}; do
    case $bridge in
    [a-z]*) [[ $bridge =~ ^(obfs4|obfs3|scramblesuit)\  ]] || return 0
      bridge=${bridge#* } ;;
    esac
    bridge=${bridge%% *}
    address=${bridge%:*} port=${bridge##*:}
    [[ $port =~ ^[1-9][0-9]{0,4}$ ]] && ((port < 65536)) || return 0
    if [[ $address == \[*\] ]]; then
      address=${address#?} address=${address%?}
      is_address6 "$address" || return 0
      six="${six:+$six, }$address . $port"
    else
      is_address4 "$address" && [[ ! $address =~ (^|\.)0[0-9] ]] || return 0
      four="${four:+$four, }$address . $port"
    fi
  done
  BRIDGES4=$four BRIDGES6=$six
}
