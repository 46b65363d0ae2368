
# ---- Linux: an identity for each application ---------------------------------------------------------------
# Tor keeps connections from different addresses on different circuits. So a separate table gives each connection to Tor's SOCKS port a
# source address within 127.0.0.0/8: by the control group that the desktop has made for the application, else by the login session, else by
# the account. This table accepts and blocks nothing; the kill switch is another table and independent of it. The program veldmark-identify
# loads the table, follows new and removed groups, and keeps its maps. It gives up root before it reads their names.

readonly IDENTIFIER_ENTRY=17-identifier
readonly IDENTITIES_ENTRY=16-identities
readonly IDENTITIES=veldmark-identities
readonly IDENTITIES_STATE=/run/veldmark.identities   # 0644; the state that veldmark-identify publishes
readonly IDENTIFY_SOCKET=/run/veldmark.identify      # 0666; takes requests for another address

# print_identities UID...: an account's address is 127.64.0.0 plus its number. A connection keeps 127.0.0.1 when its account has no address,
# or when its application is seen too late. A program that binds another source address does not choose an identity by it.
print_identities() {
  local uid mark accounts='' addresses=''
  for uid in "$@"; do
    printf -v mark '0x7f40%04x' "$uid"
    accounts="$accounts, $uid : $mark"
    addresses="$addresses, $mark : 127.64.$((uid >> 8)).$((uid & 255))"
  done
  print_text <<END
table inet $IDENTITIES {
	map accounts {
		type uid : mark
		elements = { ${accounts#, } }
	}
	map sessions {
		type cgroupsv2 : mark
		size 65536
	}
	map applications {
		type cgroupsv2 : mark
		size 65536
	}
	map addresses {
		type mark : ipv4_addr
		size 65536
		elements = { ${addresses#, } }
	}
	chain identify {
		ct mark set meta skuid map @accounts
		ct mark set socket cgroupv2 level 3 map @sessions
		ct mark set socket cgroupv2 level 5 map @applications
	}
	chain output {
		type filter hook output priority mangle; policy accept;
		oif "lo" ip daddr 127.0.0.1 tcp dport $SOCKS_PORT tcp flags & (syn | ack) == syn goto identify
	}
	chain address {
		type nat hook postrouting priority srcnat; policy accept;
		oif "lo" ip daddr 127.0.0.1 tcp dport $SOCKS_PORT snat ip to ct mark map @addresses
		oif "lo" ip daddr 127.0.0.1 tcp dport $SOCKS_PORT ip saddr != 127.0.0.1 snat ip to 127.0.0.1
	}
}
END
}

# list_accounts: the numbers of this system's accounts that can have an address.
list_accounts() {
  local rest uid seen=' '
  while IFS=: read -r rest rest uid rest; do
    { is_uid "$uid" && ((uid < 65536)) && [[ $seen != *" $uid "* ]]; } || continue
    seen="$seen$uid "
  done </etc/passwd
  printf '%s' "${seen# }"
}

# find_identifier: sets IDENTIFIER to the program's path. A user's copy must not run: the program gets a right of root's.
IDENTIFIER=''
find_identifier() {
  find_own veldmark-identify || return 1
  IDENTIFIER=$OWN_PROGRAM
}

# put_identifier NFT: becomes the identifier, in a process of its own.
put_identifier() {
  become_recorded "$IDENTIFIER_ENTRY"
  exec env -i --default-signal PATH="$PATH" LC_ALL=C setsid "$IDENTIFIER" "$TREE" "$IDENTITIES_STATE" "$IDENTIFY_SOCKET" "$1"
}

# put_identities: for a session that begins, or whose identifier has ended. A system that cannot do it stays unchanged, and all
# connections share circuits as before.
put_identities() {
  local accounts nft text
  undo_entry "$IDENTIFIER_ENTRY" || return 0
  undo_entry "$IDENTITIES_ENTRY" || return 0
  [[ ${1-} == 1 ]] && find_tree && find_identifier && nft=$(type -P nft) || return 0
  rules_can_name "$(own_group_name)" 1 || return 0
  accounts=$(list_accounts)
  # shellcheck disable=SC2086
  text=$(print_identities $accounts)
  journal_must "$IDENTITIES_ENTRY" "table $IDENTITIES"
  put_identifier "$nft" <<<"$text" >/dev/null 2>&1 &
}

# own_group_name: an existing group, below the folder where nft looks.
own_group_name() {
  local path=$TREE/$RUN_GROUP
  printf '%s' "${path#"$CGROUPS"/}"
}

# kill_stray_identifier: without a record, kills every process with that name in the helper's own group, where only root puts processes.
kill_stray_identifier() {
  local pid word
  find_tree || return 0
  while read -r pid; do
    word=''
    IFS= read -r -d '' word <"/proc/$pid/cmdline" || true
    [[ ${word##*/} != veldmark-identify ]] || kill -KILL "$pid" || true
  done <"$TREE/$RUN_GROUP/cgroup.procs" || true
}

# identifier_runs: whether the process in the journal is alive.
identifier_runs() { journal_read "$IDENTIFIER_ENTRY" && find_recorded; }

undo_identifier() {
  end_recorded || true
  remove "$IDENTITIES_STATE" "$IDENTIFY_SOCKET"
}

undo_identities() {
  local output
  may_stand "$IDENTITIES" "$IDENTITIES_ENTRY" || return 0
  output=$(nft delete table inet "$IDENTITIES" 2>&1) && return 0
  [[ $output == *"No such file or directory"* ]] && return 0
  UNDONE="The table of the applications' identities could not be removed ($(first_line "$output"))."
  return 1
}
