
# ---- Linux: firewall ---------------------------------------------------------------------------------------
# The helper has one table, replaced as a whole in one transaction, so that there is no moment without rules.

readonly TABLE=veldmark
readonly RULES=$RUN/firewall.nft   # 0600; the rules in force, to load them again after a flush
readonly LISTED=$RUN/firewall.listed       # 0600; the rules as the kernel lists them
readonly RULES_LOCK=/run/veldmark.rules    # held while rules change; the watcher has no other lock

# The local network is these ranges, whatever the routes say. A hostile network that announces public addresses as its own gains nothing.
readonly LAN4="192.168.0.0/16, 10.0.0.0/8, 172.16.0.0/12, 169.254.0.0/16"
readonly LAN6="fe80::/10, fc00::/7"

# print_table_head: replaces the helper's table. The first line makes the second one succeed without a table.
print_table_head() {
  printf 'table inet %s\ndelete table inet %s\ntable inet %s {\n' "$TABLE" "$TABLE" "$TABLE"
}

# tors_key TOR_UID: the match for Tor's packets. The account alone would also match a user who runs a setuid file left by Tor's account;
# only root can put processes into the group. Without such groups the account alone is the match.
tors_key() {
  [[ -z $TOR_PATH ]] || printf 'socket cgroupv2 level 2 "%s" ' "$TOR_PATH"
  printf 'meta skuid %s' "$1"
}

# print_bypass GROUP: accepts the connections that bypass applications open. Their replies are not accepted: a local process could forge the
# sender and direct a reply to any address. Prints nothing when GROUP is empty.
print_bypass() {
  [[ -z $1 ]] || printf '\t\tsocket cgroupv2 level 1 "%s" ct direction original accept\n' "$1"
}

# print_redirect TOR_UID GROUP KEEP LAN: redirects every DNS lookup over UDP to Tor, whatever its server. A redirected packet of a socket
# that is bound to a network device would leave by that device. So the last chain, which sees the true device, keeps packets for this
# computer on it. Its first match is cheap: only a redirected packet can have passed the output chain that way. KEEP is the mode: in strict
# mode the chain also keeps what other programs' rules redirect, unless LAN is 1 and it goes to the local network.
print_redirect() {
  print_text <<END
	chain redirect_dns {
		type nat hook output priority -100; policy accept;
		$(tors_key "$1") accept
END
  print_bypass "$2"
  print_text <<END
		udp dport 53 redirect to :$DNS_PORT
	}
	chain off_loopback {
		ip daddr 127.0.0.0/8 oif != "lo" drop
		ip6 daddr ::1 oif != "lo" drop
END
  if [[ $3 == strict ]]; then
    # Another program may map a port from an address of this computer to one outside. The output chain sees such a packet as local; only
    # here it is seen to leave.
    printf '\t\toif "lo" accept\n'
    [[ $4 != 1 ]] || print_text <<END
		meta l4proto { tcp, udp } th dport { 53, 137, 138, 139, 853, 5353, 5355 } drop
		ip daddr { $LAN4 } accept
		ip6 daddr { $LAN6 } accept
END
    printf '\t\tdrop\n'
  fi
  print_text <<END
	}
	chain stay_on_loopback {
		type filter hook postrouting priority 200; policy accept;
		ct status dnat goto off_loopback
	}
END
}

# print_no_early_data: rules that drop a packet with data after its TCP header. A rule cannot add, so there is one for each size of the
# header, in words of 4 bytes.
print_no_early_data() {
  local words
  for words in 5 6 7 8 9 10 11 12 13 14 15; do
    printf '\t\tip hdrlength 5 tcp doff %d ip length > %d drop\n\t\ttcp doff %d ip6 length > %d drop\n' \
      "$words" $((20 + 4 * words)) "$words" $((4 * words))
  done
}

# print_side_chains TOR_UID USER_UID GROUP: the chains for packets that the output and input chains examine further.
# loopback: packets that stay on this computer. Only packets that open a connection, or answer an opening, are examined: later ones may
# belong to a socket that its program has already closed.
# from_loopback, lookups: a socket that shares the DNS port with Tor's receives no datagram: on input the rule sees which socket a datagram
# would reach. This needs Tor's group. A datagram shorter than a DNS header (12 bytes after the 8 of UDP) ends some versions of Tor, so it
# is dropped. Other lookups that do not reach Tor are refused, so that applications fail at once when Tor is not running.
# looked_up: only Tor answers from its DNS port.
# opening: remembers Tor's own connections to its transports; a later socket with the same ports is not Tor's. No program may open a
# connection from Tor's ports: two simultaneous openings make a connection, so a false listener would not need to answer.
# An opening packet that carries data (TCP Fast Open) is dropped, since its receiver reads the data before it answers; its sender then opens
# the connection without.
# control_port: only root, the session's user and Tor may open Tor's control port.
# answering: only Tor answers at Tor's ports. Otherwise a false listener would get the control password and the applications' requests while
# Tor is not running. A transport answers only Tor. Otherwise any user could use it as a tunnel to their own server, from the real address.
# Tor does not listen at [::1], which "localhost" means as well. The answer of a flooded listener (a SYN cookie) belongs to no socket, so it
# is refused.
# redirected: packets for this computer that were to leave it before their address was changed; they still carry that device.
# refused: rejects, so that applications fail at once.
print_side_chains() {
  local users="0, $1" ports="ip saddr 127.0.0.1 tcp sport { $SOCKS_PORT, $CONTROL_PORT }"
  local on_ipv6="ip6 saddr ::1 tcp sport { $SOCKS_PORT, $CONTROL_PORT }"
  [[ $2 == 0 ]] || users="$users, $2"
  print_text <<END
	set tors_own {
		type ipv4_addr . inet_service . ipv4_addr . inet_service
		size 4096
		flags dynamic, timeout
		timeout 10s
	}
	chain loopback {
		tcp flags & syn == syn goto opening
		udp sport $DNS_PORT goto looked_up
		accept
	}
	chain looked_up {
		$(tors_key "$1") accept
		drop
	}
	chain from_loopback {
		udp dport $DNS_PORT goto lookups
		accept
	}
	chain lookups {
		udp length < 20 drop
END
  if [[ -n $TOR_PATH ]]; then
    printf '\t\tsocket cgroupv2 level 2 "%s" accept\n\t\treject\n' "$TOR_PATH"
  else
    printf '\t\taccept\n'
  fi
  print_text <<END
	}
	chain opening {
		tcp flags & ack == ack goto answering
$(print_no_early_data)
		$(tors_key "$1") update @tors_own { ip saddr . tcp sport . ip daddr . tcp dport } accept
		$ports reject with tcp reset
		$on_ipv6 reject with tcp reset
		delete @tors_own { ip saddr . tcp sport . ip daddr . tcp dport }
		tcp dport $CONTROL_PORT ip daddr 127.0.0.0/8 goto control_port
		accept
	}
	chain control_port {
		meta skuid { $users } accept
		reject with tcp reset
	}
	chain answering {
		$ports meta skuid $1 accept
		$ports reject with tcp reset
		$on_ipv6 reject with tcp reset
		ip daddr . tcp dport . ip saddr . tcp sport @tors_own accept
		meta skuid $1 reject with tcp reset
		meta skuid 0-4294967294 accept
		reject with tcp reset
	}
	chain redirected {
		udp dport $DNS_PORT ct status dnat accept
		goto refused
	}
	chain refused {
END
  print_bypass "$3"
  print_text <<END
		meta l4proto tcp reject with tcp reset
		reject with icmpx type admin-prohibited
	}
END
}

# print_proxy_rules TOR_UID USER_UID: all traffic may leave, but DNS lookups go through Tor. DNS that cannot be redirected (connections
# older than the rules, DNS over TCP or TLS) is refused. Services at 127.0.0.0/8 and ::1 are reached from this computer only, even with
# route_localnet on.
print_proxy_rules() {
  print_table_head
  print_redirect "$1" '' proxy 0
  print_side_chains "$1" "$2" ''
  print_text <<END
	chain output {
		type filter hook output priority 0; policy accept;
		oif "lo" goto loopback
		$(tors_key "$1") accept
		meta l4proto { tcp, udp } th dport { 53, 853 } goto refused
		ip daddr 127.0.0.0/8 goto redirected
		ip6 daddr ::1 goto redirected
	}
	chain input {
		type filter hook input priority 0; policy accept;
		iif "lo" goto from_loopback
		ip daddr 127.0.0.0/8 drop
		ip6 daddr ::1 drop
	}
}
END
}

# print_local_chains: accepts the local network except name lookups and their answers. `th` is the header of the protocol that the rule
# before has matched.
print_local_chains() {
  print_text <<END
	chain local_network {
		meta l4proto udp goto local_udp
		tcp dport { 53, 137, 138, 139, 853, 5355 } goto refused
		accept
	}
	chain local_udp {
		th dport { 53, 137, 138, 853, 5353, 5355 } goto refused
		th sport { 137, 138, 5353, 5355 } goto refused
		accept
	}
END
}

# print_local_matches: one rule for each range. Passing them costs a packet less than one lookup in a set of ranges.
print_local_matches() {
  local range
  for range in ${LAN4//,/}; do printf '\t\tip daddr %s goto local_network\n' "$range"; done
  for range in ${LAN6//,/}; do printf '\t\tip6 daddr %s goto local_network\n' "$range"; done
}

# print_strict_rules TOR_UID USER_UID LAN UDP SERVERS4 SERVERS6 GROUP NEAR BRIDGES4 BRIDGES6: only Tor's own traffic leaves. LAN 1 opens the
# local network. UDP 1 lets Tor's account send UDP (snowflake). SERVERS4 and SERVERS6 are the resolvers, joined by commas, that Tor's
# transports may ask, usually none. GROUP is the control group of the applications that bypass Tor, empty for none. NEAR 1 lets Tor reach
# the local network, where one of its bridges is. BRIDGES4 and BRIDGES6 are the bridges, "ADDRESS . PORT" joined by commas, if Tor needs no
# other address: then an attacker who controls Tor or its control password reaches no other address either.
# Replies of Tor and its transports do not leave: a local process could ask with a forged sender outside (IPV6_FREEBIND).
# The rules match accounts only positively: a packet without a socket matches neither "skuid X" nor "skuid != X".
# With route_localnet on, packets for 127.0.0.0/8 come in from the local network and would reach Tor's ports.
# There is no "established" on output: connections from before the kill switch must not go on. Tor's traffic stays under connection
# tracking, although leaving it out would be cheaper: other firewalls that accept answers by their state would drop untracked packets.
# Only root and system accounts (below 1000) may send DHCP requests, even where every user may bind ports below 1024.
# neighbours: the kernel's own packets belong to no account; a packet that a program makes is no neighbour discovery and could go anywhere.
# The rules are ordered by the number of packets that reach them. Each expression costs a packet about 10 ns, and a match on the account
# about 80 ns, so that is matched once.
print_strict_rules() {
  print_table_head
  print_redirect "$1" "${7-}" strict "$3"
  print_side_chains "$1" "$2" "${7-}"
  [[ $3 != 1 ]] || print_local_chains
  print_text <<END
	chain tors_account {
		ct direction reply goto refused
END
  if [[ -n ${9-}${10-} ]]; then
    [[ -z ${9-} ]] || printf '\t\tip daddr . tcp dport { %s } accept\n' "$9"
    [[ -z ${10-} ]] || printf '\t\tip6 daddr . tcp dport { %s } accept\n' "${10}"
  else
    [[ -z $5 ]] || printf '\t\tip daddr { %s } udp dport 53 accept\n' "$5"
    [[ -z $6 ]] || printf '\t\tip6 daddr { %s } udp dport 53 accept\n' "$6"
    if [[ $3 != 1 && ${8-} != 1 ]]; then
      # An attacker who controls Tor does not reach the local network either. Matching the opening packet is enough.
      print_text <<END
		tcp flags & syn == 0 accept
		ip daddr { $LAN4 } goto refused
		ip6 daddr { $LAN6 } goto refused
END
    fi
    printf '\t\tmeta l4proto tcp accept\n'
    [[ $4 != 1 ]] || printf '\t\tmeta l4proto udp accept\n'
  fi
  # Tor's account is a system account, but the rules below for system accounts are not for Tor.
  [[ $3 == 1 ]] || printf '\t\tgoto refused\n'
  print_text <<END
	}
	chain neighbours {
		meta skuid 0-4294967294 goto refused
		accept
	}
	chain output {
		type filter hook output priority 0; policy drop;
		oif "lo" goto loopback
		$(tors_key "$1") jump tors_account
END
  [[ $3 != 1 ]] || print_local_matches
  print_text <<END
		ip daddr 127.0.0.0/8 goto redirected
		ip6 daddr ::1 goto redirected
		udp sport 68 udp dport 67 ip daddr { 255.255.255.255, $LAN4 } meta skuid 0-999 accept
		udp sport 546 udp dport 547 ip6 daddr { ff02::1:2, fe80::/10 } meta skuid 0-999 accept
		icmpv6 type nd-router-solicit ip6 daddr ff02::2 ip6 hoplimit 255 accept
		icmpv6 type { nd-neighbor-solicit, nd-neighbor-advert } ip6 hoplimit 255 goto neighbours
		goto refused
	}
	chain forward {
		type filter hook forward priority 0; policy drop;
END
  if [[ $3 == 1 ]]; then
    print_text <<END
		udp dport { 53, 137, 138, 853, 5353, 5355 } drop
		tcp dport { 53, 137, 138, 139, 853, 5355 } drop
		ip saddr { $LAN4 } ip daddr { $LAN4 } accept
		ip6 saddr { $LAN6 } ip6 daddr { $LAN6 } accept
END
  fi
  print_text <<END
	}
	chain input {
		type filter hook input priority 0; policy drop;
		iif "lo" goto from_loopback
		ct state established ct direction reply accept
		ip daddr 127.0.0.0/8 drop
		ip6 daddr ::1 drop
		ct state related icmp type { destination-unreachable, time-exceeded, parameter-problem } accept
		ct state related icmpv6 type { destination-unreachable, packet-too-big, time-exceeded, parameter-problem } accept
		udp sport 67 udp dport 68 accept
		ip6 saddr fe80::/10 udp sport 547 udp dport 546 accept
		icmpv6 type { nd-router-advert, nd-neighbor-solicit, nd-neighbor-advert } ip6 hoplimit 255 accept
END
  if [[ $3 == 1 ]]; then
    print_text <<END
		ip saddr { $LAN4 } accept
		ip6 saddr { $LAN6 } accept
END
  fi
  printf '\t}\n}\n'
}

# kill_switch_stands: asks the kernel, since the marker may be older than the computer's last start. Status 2 when the kernel cannot be
# asked.
kill_switch_stands() {
  local output
  if output=$(nft_without_groups list chain inet "$TABLE" output 2>&1); then
    [[ $output == *"policy drop;"* ]]
  elif [[ $output != *"No such file or directory"* ]]; then
    return 2
  else
    return 1
  fi
}

# check_firewall: checks that the system's firewall can be used, before anything is changed.
check_firewall() {
  local output
  output=$(nft list tables 2>&1) || die "The system's firewall cannot be used ($(first_line "$output"))."
  TABLES=$'\n'$output$'\n'
}

# may_stand TABLE ENTRY: whether one of the helper's other tables may be there. Its entry is written before it is loaded; without an entry
# the kernel is asked, once for a run. Only a table that may be there is worth a program that deletes it.
TABLES=''   # the kernel's tables when this run asked, each on a line
may_stand() {
  [[ -n $JOURNAL_TRUSTED ]] && ! journal_has "$2" || return 0
  [[ -n $TABLES ]] || TABLES=$'\n'$(nft list tables)$'\n' || return 0
  [[ $TABLES == *$'\n'"table inet $1"$'\n'* ]]
}

# first_line TEXT: the first line of a program's output, for a message of the helper.
first_line() {
  local line=${1%%$'\n'*}
  line=${line//[[:cntrl:]]/ }
  printf '%s' "${line:-nft ended without a message}"
}

# load_rules TEXT: loads all of it or nothing; the former rules stay after a failure.
load_rules() {
  local output
  output=$(nft -f - 2>&1 <<<"$1") || die "The firewall rules were not accepted ($(first_line "$output"))."
}

# put_firewall MODE: stores the text first, so that fix-dns can load the rules again.
put_firewall() {
  local text udp=0 near=0 servers4='' servers6=''
  ready_groups
  if [[ $1 == strict ]]; then
    [[ -z $USED_SNOWFLAKE ]] || udp=1
    ! bridges_are_near || near=1
    list_bridges
    if transports_need_names; then
      servers4=$(list_servers 4 "$FORMER_RESOLVER")
      servers6=$(list_servers 6 "$FORMER_RESOLVER")
    fi
    text=$(print_strict_rules "$TOR_UID" "$CALLER_UID" "$OPT_LAN" "$udp" "$servers4" "$servers6" "$BYPASS_PATH" "$near" "$BRIDGES4" "$BRIDGES6")
  else
    text=$(print_proxy_rules "$TOR_UID" "$CALLER_UID")
  fi
  write_file "$RULES" 0600 root "$text"$'\n' || die "The file $RULES cannot be written."
  load_rules "$text"
  note_listing || die "The file $LISTED cannot be written."
}

# hold_rules / release_rules: the lock on descriptor 7. Programs started meanwhile keep the lock even when this shell is killed.
hold_rules() { { exec 7>>"$RULES_LOCK"; } && flock -w 10 7; }
release_rules() { exec 7>&-; }

# note_listing: stores the listing that the watcher compares with. keep_listing: stores the listing that was read.
note_listing() { read_listing "$TABLE" && keep_listing; }
keep_listing() { write_file "$LISTED" 0600 root "$LISTING"$'\n'; }

# nft_without_groups WORD...: lists without names of control groups. To find a name, nft searches all groups, and any user may make so many
# that this takes minutes. In a mount namespace without groups nft prints their numbers. It becomes nft, so it is called in a subshell.
# shellcheck disable=SC2016,SC2089
readonly WITHOUT_GROUPS='mount -t tmpfs none /sys/fs/cgroup && exec nft "$@"'
nft_without_groups() { exec unshare --mount --propagation private sh -c "$WITHOUT_GROUPS" nft "$@"; }

# read_listing TABLE: sets LISTING to the kernel's listing, without counters, without elements that a set has added meanwhile, and without
# blanks, which differ between versions of nft.
LISTING=''
read_listing() {
  LISTING=$(nft_without_groups -s -t list table inet "$1") || return 1
  LISTING=${LISTING//[[:blank:]]/}
}

undo_firewall() {
  local output
  # Held until the end of the run, when the marker is gone, too.
  hold_rules || { UNDONE="The kill switch could not be switched off, because another program is changing the firewall."; return 1; }
  output=$(nft delete table inet "$TABLE" 2>&1) && return 0
  # A missing table is what was wanted.
  [[ $output == *"No such file or directory"* ]] && return 0
  UNDONE="The kill switch could not be switched off ($(first_line "$output"))."
  return 1
}
