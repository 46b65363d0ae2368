
# ---- macOS: firewall rules ---------------------------------------------------------------------------------
# The content of the helper's anchor. pf evaluates it before all other anchors, and every deciding rule is "quick",
# so that no later "pass" opens what is closed here.

readonly ANCHOR=veldmark

# The local network is always these ranges, independent of routes: a hostile network that announces public
# addresses as its own gains nothing.
readonly LAN4="10.0.0.0/8, 172.16.0.0/12, 192.168.0.0/16, 169.254.0.0/16"
readonly LAN6="fe80::/10, fc00::/7"
readonly LOOKUP_PORTS="53, 137, 138, 139, 853, 5353, 5355"

# print_rules_head TOR_UID USER_UID: DNS lookups that the system sends to this computer are redirected to Tor's
# port. Tor's control port is open only for root, the session's user and Tor.
print_rules_head() {
  local users="0, $1"
  [[ $2 == 0 ]] || users="$users, $2"
  cat <<END
rdr pass on lo0 inet proto udp from any to 127.0.0.1 port 53 -> 127.0.0.1 port $DNS_PORT
pass out quick on lo0 inet proto tcp from any to any port $CONTROL_PORT user { $users } flags S/SA no state
block return out quick on lo0 proto tcp from any to any port $CONTROL_PORT flags S/SA
pass quick on lo0 all no state
END
}

# print_proxy_rules TOR_UID USER_UID: everything may leave, but DNS lookups that bypass Tor are refused.
print_proxy_rules() {
  print_rules_head "$1" "$2"
  cat <<END
pass out quick proto { tcp, udp } from any to any port 53 user $1 keep state
block return out quick proto { tcp, udp } from any to any port 53
END
}

# print_strict_rules TOR_UID USER_UID LAN UDP GROUP: only Tor's own traffic leaves, and the messages needed to join
# a network: leases, and neighbours, which switches pass on to computers that have reported (MLD; 143 is the report
# of its second version). The kernel writes a device's number into link-local addresses (ff02::1:2 is ff02:4::1:2
# there), hence whole ranges. LAN 1 opens the local network; UDP 1 lets Tor's account send UDP (snowflake); GROUP
# is the group of the applications that bypass Tor.
print_strict_rules() {
  print_rules_head "$1" "$2"
  printf 'pass out quick proto tcp from any to any user %s flags S/SA keep state\n' "$1"
  [[ $4 != 1 ]] || printf 'pass out quick proto udp from any to any user %s keep state\n' "$1"
  [[ -z ${5-} ]] || printf 'pass out quick proto { tcp, udp } from any to any group %s keep state\n' "$5"
  cat <<END
pass out quick inet proto udp from any port 68 to { 255.255.255.255, $LAN4 } port 67 keep state
pass out quick inet6 proto udp from any port 546 to { ff02::/16, fe80::/10 } port 547 keep state
pass out quick inet6 proto icmp6 from any to { fe80::/10, ff02::/16 } icmp6-type { routersol, neighbrsol, neighbradv, listenrep, 143 } no state
END
  if [[ $3 == 1 ]]; then
    cat <<END
block return out quick proto { tcp, udp } from any to any port { $LOOKUP_PORTS }
block return out quick proto udp from any port { 137, 138, 5353, 5355 } to any
block drop in quick proto { tcp, udp } from any to any port { $LOOKUP_PORTS }
pass out quick inet from any to { $LAN4 } keep state
pass out quick inet6 from any to { $LAN6 } keep state
pass in quick inet from { $LAN4 } to any keep state
pass in quick inet6 from { $LAN6 } to any keep state
END
  fi
  cat <<END
block return out quick all
pass in quick inet proto udp from any port 67 to any port 68 no state
pass in quick inet6 proto udp from fe80::/10 port 547 to any port 546 no state
pass in quick inet6 proto icmp6 all icmp6-type { routeradv, neighbrsol, neighbradv, listqry } no state
block drop in quick all
END
}

# print_referring KIND TEXT: the main rules of one kind, "filter" or "nat", as pfctl printed them, with the
# helper's anchor before all others. Normalising and dummynet come before filtering.
print_referring() {
  local line put=''
  if [[ $1 == nat ]]; then
    printf 'rdr-anchor "%s"\n' "$ANCHOR"
    put=1
  fi
  while IFS= read -r line; do
    [[ -n $line ]] || continue
    if [[ -z $put && $line != scrub* && $line != "no scrub"* && $line != dummynet* && $line != "no dummynet"* ]]; then
      printf 'anchor "%s"\n' "$ANCHOR"
      put=1
    fi
    printf '%s\n' "$line"
  done < <(print_without "$2")
  [[ -n $put ]] || printf 'anchor "%s"\n' "$ANCHOR"
}

# print_without TEXT: the main rules without the helper's anchor.
print_without() {
  local line
  while IFS= read -r line; do
    case $line in
    '' | "anchor \"$ANCHOR\""* | "rdr-anchor \"$ANCHOR\""*) ;;
    *) printf '%s\n' "$line" ;;
    esac
  done <<<"$1"
}
