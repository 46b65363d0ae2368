
# ---- Linux: the system's own Tor service -------------------------------------------------------------------
# Debian starts a Tor service when tor is installed. It holds the ports that Veldmark's Tor needs. So the helper stops it for the session,
# behind the kill switch in strict mode, and starts it again at the end. It stops only services with these names, and only if their own main
# process holds a port. Any other holder of a port is named in the error, and nothing is changed.

readonly SERVICE_ENTRY=18-service
readonly SERVICES="tor@default.service tor.service"
readonly SERVICE_SECONDS=40   # a relay takes 30 s to end

# ask_systemd SECONDS WORD...
ask_systemd() {
  local seconds=$1
  shift
  timeout -k 1 "$seconds" systemctl --no-pager --no-ask-password "$@" </dev/null
}

# port_sockets: "PORT UID SOCKET" for each socket of another account that occupies one of Tor's ports on 127.0.0.1. Any user may open so
# many sockets that the shell would read for many seconds, so grep reads the lists. 0A is a listening TCP socket, 07 an unconnected UDP one;
# 127.0.0.1 is a number in either byte order, and eight zeros mean all addresses.
port_sockets() {
  local socks control names port address uid socket rest
  printf -v socks '%04X' "$SOCKS_PORT"
  printf -v control '%04X' "$CONTROL_PORT"
  printf -v names '%04X' "$DNS_PORT"
  while read -r rest address rest rest rest rest rest uid rest socket rest; do
    [[ $uid != "$TOR_UID" && $socket =~ ^[1-9][0-9]*$ ]] || continue
    case ${address#*:} in
    "$socks") port=$SOCKS_PORT ;;
    "$control") port=$CONTROL_PORT ;;
    *) port=$DNS_PORT ;;
    esac
    printf '%s %s %s\n' "$port" "$uid" "$socket"
  done < <(grep -hE ": (0100007F|7F000001|00000000):(($socks|$control) [0-9A-F]+:[0-9A-F]+ 0A|$names [0-9A-F]+:[0-9A-F]+ 07) " \
    /proc/net/tcp /proc/net/udp)
}

# takes_ipv6_alone PORT: whether every socket that listens there at all addresses of the other family takes no connection to 127.0.0.1. ss
# shows such a socket as [::]:PORT, and others as *:PORT; either may have a device, as in *%lo:PORT. Without ss the answer is no.
takes_ipv6_alone() {
  local list
  list=$(timeout 1 ss -H -6 -l -t -n "sport = :$1") && [[ $list == *" [::]"* && $list != *" *"* ]]
}

# wide_sockets LINES: likewise, for TCP sockets of the other family that take connections to 127.0.0.1 as well, at those of Tor's ports
# where LINES has no socket: beside one, the kernel allows only a socket that takes none. Tor cannot listen beside such a socket.
wide_sockets() {
  local socks control port address uid socket rest alone=' '
  printf -v socks '%04X' "$SOCKS_PORT"
  printf -v control '%04X' "$CONTROL_PORT"
  while read -r rest address rest rest rest rest rest uid rest socket rest; do
    [[ $uid != "$TOR_UID" ]] || continue
    port=$((16#${address##*:}))
    [[ $'\n'$1 != *$'\n'"$port "* ]] || continue
    if [[ ${address%:*} =~ ^0*$ ]]; then
      [[ $alone == *" $port"* ]] || { takes_ipv6_alone "$port" && alone="$alone$port=1 "; } || alone="$alone$port=0 "
      [[ $alone != *" $port=1 "* ]] || continue
    fi
    printf '%s %s %s\n' "$port" "$uid" "$socket"
  done < <(grep -hE ": (0{32}|0{16}FFFF00000100007F|0{20}FFFF7F000001):($socks|$control) [0-9A-F]+:[0-9A-F]+ 0A " /proc/net/tcp6)
}

# all_sockets: both.
all_sockets() {
  local sockets wide
  sockets=$(port_sockets)
  wide=$(wide_sockets "$sockets")
  printf '%s' "$sockets${wide:+${sockets:+$'\n'}$wide}"
}

# has_socket PID SOCKET: whether the process has the socket open.
has_socket() {
  local files
  files=$(stat -L -c '%F %i' -- "/proc/$1/fd"/* || true)
  [[ $'\n'$files$'\n' == *$'\n'"socket $2"$'\n'* ]]
}

# service_with SOCKET: prints the service of SERVICES whose main process has the socket.
service_with() {
  local unit pid
  command -v systemctl >/dev/null || return 0
  for unit in $SERVICES; do
    pid=$(ask_systemd 5 show --property=MainPID --value -- "$unit") || continue
    if [[ $pid =~ ^[1-9][0-9]{0,9}$ ]] && has_socket "$pid" "$1"; then
      printf '%s' "$unit"
      return
    fi
  done
}

# name_holder SOCKET UID: names the process that has the socket, for a message. One program looks through all processes, of which there may
# be thousands.
name_holder() {
  local folder name
  folder=$(timeout -k 1 5 find /proc/[1-9]*/fd -maxdepth 1 -lname "socket:\[$1\]" -printf '%h' -quit </dev/null || true)
  folder=${folder%/fd}
  if [[ -n $folder ]]; then
    { IFS= read -r name <"$folder/comm"; } 2>/dev/null || name=
    # A process may have any name.
    name=${name//[^ -~]/?}
    printf '%s (process %s)' "${name:-a program}" "${folder#/proc/}"
  else
    printf 'a program of the account with the id %s' "$2"
  fi
}

# check_ports: sets TAKEN to the services that hold a port of Tor's. Fails, before anything is changed, when another process holds one.
TAKEN=''
check_ports() {
  local port uid socket unit sockets
  TAKEN=''
  sockets=$(all_sockets)
  [[ -n $sockets ]] || return 0
  while read -r port uid socket; do
    unit=$(service_with "$socket")
    [[ -n $unit ]] || die "The port $port, which Tor needs, is held by $(name_holder "$socket" "$uid"). End that program, then connect again."
    [[ " $TAKEN " == *" $unit "* ]] || TAKEN="${TAKEN:+$TAKEN }$unit"
  done < <(sort -n <<<"$sockets")
}

# put_service: keeps what an earlier connect has noted since the computer's start.
put_service() {
  local unit line noted=()
  check_ports
  [[ -n $TAKEN ]] || return 0
  if journal_read "$SERVICE_ENTRY" && [[ $(journal_value boot) == "$(boot_id)" ]]; then
    for line in "${JOURNAL_LINES[@]}"; do
      [[ $line != "unit "* || " $TAKEN " == *" ${line#unit } "* ]] || noted[${#noted[@]}]=$line
    done
  fi
  for unit in $TAKEN; do
    noted[${#noted[@]}]="unit $unit"
  done
  journal_must "$SERVICE_ENTRY" "boot $(boot_id)" "${noted[@]}"
  for unit in $TAKEN; do
    ask_systemd "$SERVICE_SECONDS" stop -- "$unit" >/dev/null || die "The system's own Tor service ($unit) cannot be stopped."
  done
}

# undo_service: starts the stopped services, unless the computer was restarted meanwhile or a service no longer exists. It does not wait
# until they have started.
undo_service() {
  local line unit state status=0
  [[ $(journal_value boot) == "$(boot_id)" ]] || return 0
  for line in "${JOURNAL_LINES[@]}"; do
    unit=${line#unit }
    [[ $line == "unit "* && " $SERVICES " == *" $unit "* ]] || continue
    ask_systemd 10 --no-block start -- "$unit" >/dev/null && continue
    state=$(ask_systemd 5 show --property=LoadState --value -- "$unit") || state=
    [[ $state == not-found || $state == masked ]] || status=1
  done
  ((status != 0)) || return 0
  UNDONE="The network is open again, but the system's own Tor service could not be started again. Try: systemctl start ${SERVICES%% *}."
  return 1
}
