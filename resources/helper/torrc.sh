
# ---- Tor's configuration -----------------------------------------------------------------------------------

readonly SOCKS_PORT=9050 CONTROL_PORT=9051   # the system's own part sets DNS_PORT
readonly TORRC=$RUN/torrc          # root:_veldmark 0640; Tor reads /etc/tor/torrc-defaults before it
readonly NOTICES=$RUN/notices.log  # Tor's log
CONTROL_SOCKET=''   # Tor's control port where a program of ours takes its place at CONTROL_PORT; empty where none does

# print_torrc IPV6_LOOPBACK: from the checked options. Bridges in reserve are not in it, since Tor would start their transports; their transports
# are. Whether Tor uses bridges is then Tor's default or the administrator's.
print_torrc() {
  local bridge
  print_text <<END
# Written by Veldmark at each connect; changes here are lost.
DataDirectory $DATA
Log notice file $NOTICES
SocksPort 127.0.0.1:$SOCKS_PORT
$(print_control_port)
HashedControlPassword $OPT_HASH
CookieAuthentication 0
DNSPort 127.0.0.1:$DNS_PORT
END
  [[ $1 != 1 ]] || printf 'DNSPort [::1]:%s\n' "$DNS_PORT"
  printf '%s\n' "ClientOnly 1" "AvoidDiskWrites 1"
  [[ -z $OPT_EXIT ]] || printf 'ExitNodes {%s}\nStrictNodes 1\n' "$OPT_EXIT"
  if ((${#OPT_BRIDGES[@]})); then
    printf 'UseBridges 1\n'
    for bridge in "${OPT_BRIDGES[@]}"; do
      printf 'Bridge %s\n' "$bridge"
    done
  fi
  [[ -z $USED_LYREBIRD ]] || printf 'ClientTransportPlugin %s exec %s\n' "$USED_LYREBIRD" "$OPT_LYREBIRD"
  [[ -z $USED_SNOWFLAKE ]] || printf 'ClientTransportPlugin %s exec %s\n' "$USED_SNOWFLAKE" "$OPT_SNOWFLAKE"
  [[ -z $USED_WEBTUNNEL ]] || printf 'ClientTransportPlugin %s exec %s\n' "$USED_WEBTUNNEL" "$OPT_WEBTUNNEL"
  [[ -n $USED_LYREBIRD$USED_SNOWFLAKE$USED_WEBTUNNEL ]] || printf 'NoExec 1\n'
}

# print_control_port: the first line also keeps out a port of /etc/tor/torrc-defaults.
print_control_port() {
  if [[ -n $CONTROL_SOCKET ]]; then
    printf '%s\n' "ControlPort 0" "ControlSocket $CONTROL_SOCKET"
  else
    printf '%s\n' "ControlPort 127.0.0.1:$CONTROL_PORT"
  fi
}

# tor_reason TEXT: prints Tor's own reason: the last problem in its output, otherwise the last line; nothing if
# empty.
tor_reason() {
  local line reason='' last=''
  while IFS= read -r line; do
    line=${line//[[:cntrl:]]/}
    line=${line%" Is Tor already running?"}   # the message is a statement
    [[ -z $line ]] || last=$line
    case $line in
    *"Reading config failed"*) ;;
    *"Failed to bind one of the listener ports"*) reason=${reason:-${line#*"] "}} ;;   # an earlier line names the port
    *"[warn] "*) reason=${line#*"[warn] "} ;;
    *"[err] "*) reason=${line#*"[err] "} ;;
    esac
  done <<<"$1"
  reason=${reason:-$last}
  printf '%s' "${reason:0:300}"
}

# ready_torrc: writes the configuration beside the current one, and Tor checks it. The system's own part defines
# has_ipv6_loopback and take_output.
ready_torrc() {
  local text output ipv6=0
  ! has_ipv6_loopback || ipv6=1
  text=$(print_torrc "$ipv6" && printf x)
  write_file "$TORRC.checked" 0640 "0:$TOR_GID" "${text%x}" || die "The file $TORRC cannot be written."
  if ! output=$(as_tor 10 "$OPT_TOR" --verify-config -f "$TORRC.checked" 2>&1 </dev/null | take_output 12 65536); then
    rm -f -- "$TORRC.checked"
    output=$(tor_reason "$output")
    die "Tor does not accept its configuration: ${output:-it ended without a message.}"
  fi
}
