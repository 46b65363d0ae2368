#!/bin/bash
# real_mac.sh --change-this-mac HELPER [--person APPLICATION]: the first hour on a Mac. It asks the system what only a real Mac can
# answer, runs the root helper on this Mac, checks its effects and the restoration, and prints a table that can be sent back. It
# changes the machine's network, so use a machine without data. Needs root, and Homebrew's tor.
#
# Without --person it needs no person, and tor gets no network (DisableNetwork 1). With --person the real Tor runs, and a person
# looks at what a program cannot see: a download in Safari, and the camera of APPLICATION (a path that ends in .app). Ctrl-C may
# stop it at any point: it puts its changes back then, too, and compares with the state before the first question. The accounts and
# groups _veldmark and _veldmark_bypass and Veldmark's folders stay.
#
# What an answer decides holds for macOS 13 and later alike, unless it names a version: send the table of each version that there is.
#
# Lines: "ok" and "FAILED" are requirements; "answer" is the answer to an open question, with what it decides.
# shellcheck disable=SC2317   # check() and ask() call these functions
set -u
[[ ${1-} == --change-this-mac && -f ${2-} && $EUID == 0 && $(uname -s) == Darwin && (-z ${3-} || (${3-} == --person && ${4-} == *.app)) ]] || {
  echo "usage, as root on a Mac that may be thrown away: real_mac.sh --change-this-mac HELPER [--person APPLICATION.app]" >&2
  exit 2
}
helper=$2
[[ $helper == /* ]] || helper=$PWD/$helper
person=${4-} failed=0
user=${SUDO_UID:-501}   # the user at the screen
hash=16:0123456789ABCDEF0123456789ABCDEF0123456789ABCDEF0123456789
for tor in /opt/homebrew/bin/tor /usr/local/bin/tor; do
  [[ ! -x $tor ]] || break
done
defaults=${tor%/bin/tor}/etc/tor/torrc-defaults
work=$(mktemp -d) || exit 1
: >"$work/table"

exec 3>&1 4>&2
restore() {
  local status=$?
  trap '' INT TERM HUP   # a second Ctrl-C must not end this half-way
  exec >&3 2>&4   # it may have been stopped while an answer was written to a file
  end_flows
  /bin/bash "$helper" disconnect
  [[ ! -f $work/mine ]] || rm -f "$defaults"
  [[ ! -f $work/probe.plist ]] || launchctl bootout system/veldmark.probe 2>/dev/null
  if [[ -f $work/ipv6 ]]; then networksetup -setv6automatic "$(cat "$work/ipv6")"; fi
  if [[ -f $work/service ]]; then networksetup -setsocksfirewallproxystate "$(cat "$work/service")" off; fi
  [[ ! -f $work/first ]] || check "everything is as before the first question" as_before first
  echo
  echo "---- the table, to be sent back with the versions below ----"
  cat "$work/table"
  sw_vers 2>/dev/null
  uname -m 2>/dev/null
  rm -rf "$work"
  echo
  echo "Left on this Mac: the accounts and groups _veldmark and _veldmark_bypass (dscl . -delete), the folders"
  echo "/Library/Application Support/Veldmark and /private/var/db/veldmark, and \"start at login\" where a person switched it on:"
  echo "switch it off again, also as the second user."
  exit $((status ? status : failed))
}

# Runs a command in the session of the user at the screen; this script's own session is sudo's.
help() { env -u SUDO_UID /bin/bash "$helper" "$@"; }

say() { echo "$1"; echo "$1" >>"$work/table"; }

# words FILE: its first lines as one, without those that pfctl always writes.
words() {
  LC_ALL=C tr -d '\r' <"$1" |
    grep -v -e '^$' -e ALTQ -e '^pfctl: Use of -f option' -e 'present in the main ruleset' -e '^See /etc/pf.conf' |
    head -n "${lines:-20}" | tr '\n' '|'
}

check() {
  local text=$1 said
  shift
  echo "...     $text"
  "$@" >"$work/said" 2>&1 && { say "ok      $text"; return; }
  failed=1 said=$(words "$work/said")
  say "FAILED  $text"
  [[ -z $said ]] || say "        it said: $said"
}

# ask QUESTION DECIDES COMMAND...: the answer is the first lines of the command's output, and its status.
ask() {
  local question=$1 decides=$2 status=0
  shift 2
  echo "...     $question"
  "$@" >"$work/answer" 2>&1 || status=$?
  say "answer  $question -> status $status: $(words "$work/answer")"
  say "        decides: $decides"
}

# look QUESTION DECIDES [ANSWERS]: a question that only the person at the screen can answer.
look() {
  local answer=''
  [[ -n $person ]] || return 0
  read -r -p "$1 (${3-y/n}) " answer
  say "answer  $1 -> $answer"
  say "        decides: $2"
}

active_services() { networksetup -listallnetworkservices | tail -n +2 | grep -v '^\*'; }

snapshot() {
  local service get
  networksetup -listallnetworkservices
  networksetup -listallnetworkservices | tail -n +2 | while IFS= read -r service; do
    for get in dnsservers proxybypassdomains socksfirewallproxy webproxy securewebproxy autoproxyurl proxyautodiscovery; do
      echo "$service $get"
      networksetup "-get$get" "${service#\*}"
    done
    networksetup -getinfo "${service#\*}" | grep '^IPv6:'
  done
  for get in rules nat dummynet; do pfctl -s "$get" 2>/dev/null; done
  pfctl -s Tables 2>/dev/null
  skipped
  pfctl -s info 2>/dev/null | grep -o '^Status: [A-Za-z]*'
  pfctl -s References 2>/dev/null | grep -c '[0-9]\{10\}'
  cat /etc/hosts
  launchctl list veldmark.tor 2>/dev/null
}

# ---- Questions to the system, before a session: what they change is put back ----

chmod_as_written() { : >"$work/file" && chmod -- 0600 "$work/file" && ! chmod 0600 -- "$work/file" 2>/dev/null; }
stop_token() { echo '#include <stop_token>' >"$work/token.cpp" && xcrun clang++ -std=c++20 -fsyntax-only "$work/token.cpp"; }
main_rules() {   # in the order that pf.conf(5) wants
  pfctl -s rules | grep scrub
  pfctl -s nat
  pfctl -s dummynet
  pfctl -s rules | grep -v scrub
}
read_back() { main_rules 2>/dev/null >"$work/main" && pfctl -n -f "$work/main"; }
# Like the helper: each kind by itself, so that the options of /etc/pf.conf stay.
load_back() { main_rules 2>/dev/null >"$work/main" && pfctl -N -f "$work/main" && pfctl -R -f "$work/main"; }
skipped() { pfctl -v -s Interfaces 2>/dev/null | grep skip; }
every_getter() {
  active_services | while IFS= read -r service; do
    for get in dnsservers proxybypassdomains socksfirewallproxy webproxy securewebproxy autoproxyurl proxyautodiscovery; do
      networksetup "-get$get" "$service" >"$work/getter" 2>&1 || echo "$service $get: status $?, $(head -n 1 "$work/getter")"
    done
  done
}
first_service() { active_services | head -n 1; }
empties_proxy() {
  local service
  service=$(first_service)
  [[ $(networksetup -getsocksfirewallproxy "$service") == "Enabled: No"*"Server: "$'\n'* ]] || { echo "it has a proxy of its own"; return 1; }
  echo "$service" >"$work/service"
  networksetup -setsocksfirewallproxy "$service" '' '' off
  networksetup -setsocksfirewallproxystate "$service" off
  networksetup -getsocksfirewallproxy "$service"
}
two_addresses() { dscacheutil -q host -a name one.one.one.one; }
primary() { scutil <<<"show State:/Network/Global/IPv4"; scutil <<<"show State:/Network/Global/IPv6"; }
# as_user COMMAND...: in the session and with the environment of the user at the screen, not sudo's.
as_user() {
  launchctl asuser "$user" sudo -u "#$user" env -u SUDO_UID -u SUDO_GID -u SUDO_USER -u SUDO_COMMAND "$@"
}
# The helper's own bash starts without -p, and a bash whose ids differ gives the effective one up. AppleScript ends lines with CR.
# shellcheck disable=SC2016
ids_under_prompt() {
  as_user osascript -e 'do shell script "id -u; id -ru; /bin/bash -c \"id -u; id -ru\"; launchctl managername; echo \"SUDO_UID: $SUDO_UID\"" with administrator privileges without altering line endings'
}
primary_name() { /bin/bash -p -c ". '$helper'; primary_service"; }
words_of_networksetup() {
  networksetup -listallnetworkservices | head -n 1
  networksetup -getsocksfirewallproxy "$(first_service)"
  echo "root's languages:"
  defaults read -g AppleLanguages
  echo "the user's:"
  sudo -u "#$user" defaults read -g AppleLanguages
}
seconds_of_networksetup() {
  local count started=$SECONDS
  for ((count = 0; count < 20; count++)); do networksetup -getdnsservers "$(first_service)" >/dev/null; done
  echo "20 calls: $((SECONDS - started)) s"
}
bytes_out() { netstat -ibn | awk '/<Link#/ && $1 !~ /^lo/ { out += $(NF - 1) } END { print out }'; }
bytes_in_5_s() {
  local before
  before=$(bytes_out)
  sleep 5
  echo $(($(bytes_out) - before))
}
# Flows of the system's own stack that are open before the rules change, and whether they go on: bytes that leave meanwhile.
begin_flows() {
  : >"$work/flows"
  { command -v networkQuality && command -v nscurl; } >/dev/null || return 0
  networkQuality -s >/dev/null 2>&1 &
  echo "$! networkQuality" >>"$work/flows"
  (while :; do nscurl https://1.1.1.1/; sleep 1; done) >/dev/null 2>&1 &   # new flows
  echo "$! nscurl" >>"$work/flows"
  sleep 4
  bytes_in_5_s >"$work/flows.before"
}
flows_go_on() {
  local process name
  [[ -s $work/flows ]] || { echo "no networkQuality or nscurl here"; return 1; }
  echo "$(cat "$work/flows.before") bytes left in 5 s before the connect"
  echo "$(bytes_in_5_s) bytes left in 5 s"
  while read -r process name; do
    if kill -0 "$process" 2>/dev/null; then echo "$name still runs"; else echo "$name has ended: nothing is known of it"; fi
  done <"$work/flows"
}
# measured COMMAND...: its status and words, and the bytes that left meanwhile; it is ended after 20 s, with status 142.
measured() {
  local status=0 before
  before=$(bytes_out)
  perl -e 'alarm 20; exec @ARGV' "$@" >"$work/flow" 2>&1 || status=$?
  echo "$1: status $status, $(($(bytes_out) - before)) bytes left, $(head -n 3 "$work/flow" | tr '\n' ' ')"
}
flows() {
  echo "nothing of ours: $(bytes_in_5_s) bytes left in 5 s"
  measured nscurl https://example.com/
  measured networkQuality -s -c
}
end_flows() {
  local process
  [[ -f $work/flows ]] || return 0
  while read -r process _; do kill "$process" 2>/dev/null; done <"$work/flows"
  rm -f "$work/flows"
}
# A lease and the report to switches are sent when a service begins with IPv6.
neighbours() {
  local service
  service=$(primary_name)
  if networksetup -getinfo "$service" | grep -q '^IPv6: Automatic'; then
    echo "$service" >"$work/ipv6"
    networksetup -setv6off "$service"
    networksetup -setv6automatic "$service"
    rm -f "$work/ipv6"
    sleep 5
  else
    echo "$service has no IPv6 of its own accord"
  fi
  pfctl -v -a veldmark -s rules | grep -A 1 -e ff02 -e fe80 -e routeradv | grep -e pass -e Packets
}
full_sync() { perl -e 'for (@ARGV) { open(my $f, "<", $_) or die; fcntl($f, 51, 0) or print "$_: $!\n" }' "$work/file" "$work" /private/etc; }
# What ls prints of a folder's access list, and whether the helper then refuses the folder (status 1), and takes it without (0).
access_lists() {
  local status=0
  mkdir -p "$work/list"
  /bin/bash -p -c ". '$helper'; safe_folders '$work/list'" || status=$?
  echo "without a list: status $status"
  chmod +a "everyone allow add_file,delete" "$work/list" || return
  ls -lde -- "$work/list"
  status=0
  /bin/bash -p -c ". '$helper'; safe_folders '$work/list'" || status=$?
  echo "with one: status $status"
}
# polled TEXT COMMAND...: how often the command had to run, some 0.1 s apart, and its statuses until one was 0.
polled() {
  local text=$1 statuses='' status poll
  shift
  for ((poll = 1; poll <= 50; poll++)); do
    status=0
    "$@" >"$work/poll" 2>&1 || status=$?
    statuses="$statuses $status"
    ((status != 0)) || break
    sleep 0.1
  done
  echo "$text: $poll times, statuses$statuses"
}
has_process() { launchctl list veldmark.probe | grep '"PID"'; }
has_gone() { ! launchctl list veldmark.probe; }
# A job that takes a second to end, like Tor: begun, ended, and begun again at once.
job_of_its_own() {
  local status=0
  cat >"$work/probe.plist" <<END
<?xml version="1.0" encoding="UTF-8"?>
<plist version="1.0">
<dict>
	<key>Label</key>
	<string>veldmark.probe</string>
	<key>ProgramArguments</key>
	<array>
		<string>/bin/sh</string>
		<string>-c</string>
		<string>trap 'sleep 1; exit 0' TERM; while :; do sleep 0.1; done</string>
	</array>
	<key>RunAtLoad</key>
	<true/>
</dict>
</plist>
END
  chmod -- 0644 "$work/probe.plist"
  launchctl list veldmark.probe || echo "list of no job: status $?"
  polled bootstrap launchctl bootstrap system "$work/probe.plist"
  polled "a process number" has_process
  launchctl list veldmark.probe
  launchctl bootout system/veldmark.probe || status=$?
  echo "bootout: status $status"
  polled "bootstrap right after it" launchctl bootstrap system "$work/probe.plist"
  polled "a process number" has_process
  launchctl bootout system/veldmark.probe
  polled "it is gone" has_gone
  rm -f "$work/probe.plist"
}

trap restore EXIT
trap "trap '' INT TERM HUP; exit 130" INT TERM HUP

as_before() { snapshot >"$work/after"; diff "$work/$1" "$work/after"; }

help disconnect   # of an earlier session, so that the state is this Mac's own
snapshot >"$work/first.new"; mv -f "$work/first.new" "$work/first"   # whole, if it is stopped here
check "the helper is one that this bash reads" /bin/bash -n "$helper"
check "chmod takes its mode behind --, and no -- behind it" chmod_as_written
ask "<stop_token> is in this library" "whether the small one of our own may go" stop_token
ask "pf reads back its own main rules (-n)" "whether ours can be put among them at all" read_back
ask "pf takes them back (loaded)" "whether its main rules survive being written back" load_back
ask "pf's tables" "compare with the same in a session" pfctl -s Tables
ask "pf's rules for dummynet" "what loading filter rules with -R takes away; compare with the same after a session" pfctl -s dummynet
ask "network devices that pf leaves out" "a strict session is refused where there are any" skipped
ask "getters of a service that fail" "which services are left alone: VPN, managed ones" every_getter
ask "a SOCKS proxy that is emptied" "whether an empty host is put back exactly" empties_proxy
ask "a name with several addresses" "how dscacheutil separates them" two_addresses
ask "the primary service" "which service has to be set" primary
ask "access lists of folders" "whether a folder that a list opens to others is refused" access_lists
ask "drives and F_FULLFSYNC" "on which file systems a note outlives the power" full_sync
ask "networksetup's words" "whether its sentences, and the words before values, are English in every language" words_of_networksetup
ask "how long networksetup takes" "whether some 20 calls for a service fit into the 25 s at quitting" seconds_of_networksetup
lines=60 ask "a job of its own, ended and begun again at once" "what launchctl list answers, how long launchd takes to tell a process number, and with which statuses it refuses meanwhile" job_of_its_own
[[ -z $person ]] || ask "ids and domain under the prompt" "whether the helper is root by its real id, and what of it reaches the user's session" ids_under_prompt
for rules in "print_proxy_rules 99 501" "print_strict_rules 99 501 0 0 ''" "print_strict_rules 99 501 1 1 400"; do
  /bin/bash -p -c ". '$helper'; $rules" >"$work/rules"
  check "pf takes: $rules" pfctl -n -q -a veldmark -f "$work/rules"
done

# ---- The helper, without a network for Tor ----

is_switched() {
  [[ $(networksetup -getdnsservers "$1") == 127.0.0.1 ]] && networksetup -getsocksfirewallproxy "$1" | grep -q '^Port: 9050'
}
# Homebrew's tor belongs to the user, so the helper runs only a copy that an administrator approved.
approve_tor() {
  local path sum
  path=$(readlink -f -- "$tor") && sum=$(shasum -a 256 <"$path") && help approve --program "$path" --as tor --sha256 "${sum%% *}"
}
primary_switched() { is_switched "$(primary_name)"; }
not_switched() { active_services | while IFS= read -r service; do is_switched "$service" || echo "$service"; done; }
# A lookup that is sent to this computer, with a program of ours at Tor's port: without a network Tor opens none.
# shellcheck disable=SC2016
lookup_is_redirected() {
  perl -MIO::Socket::INET -MIO::Select -e '
    my $tor = IO::Socket::INET->new(Proto => "udp", LocalAddr => "127.0.0.1", LocalPort => 9053) or die "port 9053: $!\n";
    my $asks = IO::Socket::INET->new(Proto => "udp", PeerAddr => "127.0.0.1", PeerPort => 53) or die "$!\n";
    $asks->send("question");
    IO::Select->new($tor)->can_read(3) or die "nothing comes to port 9053\n";
    my $from = $tor->recv(my $text, 100);
    $tor->send("answer to $text", 0, $from);
    IO::Select->new($asks)->can_read(3) && $asks->recv($text, 100);
    $text eq "answer to question" or die "no answer comes back from port 53\n"'
}
# as_ids UID GID COMMAND...
# shellcheck disable=SC2016
as_ids() {
  perl -MPOSIX -e 'my ($uid, $gid) = splice(@ARGV, 0, 2); $) = "$gid $gid"; POSIX::setgid($gid); POSIX::setuid($uid);
    $> == $uid && $) + 0 == $gid && exec { $ARGV[0] } @ARGV; exit 126' "$@"
}
number_of() { dscl . -read "$1" "$2" | awk '{ print $2 }'; }
tor_reaches_out() { as_ids "$(number_of /Users/_veldmark UniqueID)" "$(number_of /Users/_veldmark PrimaryGroupID)" "${reach[@]}"; }
bypass_reaches_out() { as_ids "$user" "$(number_of /Groups/_veldmark_bypass PrimaryGroupID)" "${reach[@]}"; }
watcher_puts_back() {
  pfctl -q -a veldmark -F rules || return 1
  for _ in 1 2 3 4 5 6 7 8 9 10; do
    sleep 1
    [[ $(cat /private/var/run/veldmark.watch) != "restored 1 "* ]] || break
  done
  cat /private/var/run/veldmark.watch
  [[ $(cat /private/var/run/veldmark.watch) == "restored 1 "* ]] && pfctl -a veldmark -s rules 2>/dev/null | grep -q '^block return out quick'
}
user_cannot_reach_out() { ! as_ids "$user" 20 "${reach[@]}"; }
tor_as_itself() { pgrep -u "$(dscl . -read /Users/_veldmark UniqueID | awk '{ print $2 }')" -x tor >/dev/null; }
reach=(curl -s -S -o /dev/null --noproxy '*' --connect-timeout 5 https://1.1.1.1/)
reaches_out() { "${reach[@]}"; }
cannot_reach_out() { ! reaches_out; }

if [[ ! -e $defaults ]]; then
  mkdir -p "${defaults%/*}"
  : >"$work/mine"
  echo "DisableNetwork 1" >"$defaults"
fi
check "the questions have changed nothing" as_before first
snapshot >"$work/before"   # what they have changed is no fault of a session's
check "the network is there" reaches_out
check "the user reaches the network" as_ids "$user" 20 "${reach[@]}"
check "Tor's program is approved" approve_tor
for strict in 0 1; do
  [[ $strict == 0 ]] || begin_flows
  check "connect --strict $strict" help connect --tor "$tor" --hash "$hash" --strict "$strict" --lan 0
  if [[ $strict == 1 ]]; then
    ask "networkQuality and nscurl from before the rules" "whether the system's own stack goes on past pf" flows_go_on
    end_flows
  fi
  check "the service that traffic goes through is switched" primary_switched
  ask "services that stay as they were" "which kinds of service (VPN, managed) cannot be set" not_switched
  check "Tor runs in its own account" tor_as_itself
  check "our rules are loaded" test -n "$(pfctl -a veldmark -s rules 2>/dev/null)"
  check "a rule refers to them" grep -q '^anchor "veldmark"' <(pfctl -s rules 2>/dev/null)
  ask "pf reads back its main rules with ours (-n)" "whether they can be put right while a session lasts" read_back
  if [[ $strict == 1 ]]; then
    lines=200 ask "rules for leases and neighbours, and their packets" "whether DHCPv6 and neighbour discovery match with the device's number in the address" neighbours
  fi
  ask "pf's tables in a session" "they have to be the ones of above" pfctl -s Tables
  ask "pf's rules for dummynet in a session" "they have to be the ones of above" pfctl -s dummynet
  check "connect again" help connect --tor "$tor" --hash "$hash" --strict "$strict" --lan 0
  check "fix-dns" help fix-dns
  check "a lookup that is sent to this computer comes to Tor's port" lookup_is_redirected
  if [[ $strict == 1 ]]; then
    check "the watcher puts the rules back, and tells it" watcher_puts_back
    check "Tor's account gets past the kill switch" tor_reaches_out
    check "the group of applications without Tor gets past it" bypass_reaches_out
    check "nothing of root's gets past the kill switch" cannot_reach_out
    check "nothing of the user's gets past the kill switch" user_cannot_reach_out
  fi
  started=$SECONDS
  check "disconnect" help disconnect
  say "answer  how long a disconnect takes -> $((SECONDS - started)) s"
  say "        decides: whether the 25 s that the program waits when it quits are enough"
  check "everything is as before" as_before before
done
check "the network is there again" reaches_out

# ---- With the real Tor, and a person at the screen ----

if [[ -n $person ]]; then
  [[ ! -f $work/mine ]] || rm -f "$defaults"
  ask "nscurl and networkQuality without a session" "nothing by itself: compare with the same in a session" flows
  echo "Begin a long download in Safari now, and leave it running. Then press Return."
  read -r
  check "connect --strict 1 with the real Tor" help connect --tor "$tor" --hash "$hash" --strict 1 --lan 0
  look "Does Safari's download from before stand still?" "whether flows of the user-space network stack that were open before end with pf's states"
  look "Does a new page in Safari load, with its address shown as an exit's by check.torproject.org?" "whether the services' proxy is used"
  ask "nscurl and networkQuality past the proxy" "whether the system's user-space network stack obeys pf" flows
  ask "a name that is looked up through Tor" "whether lookups are answered in a session" dig +time=20 +tries=1 +short @127.0.0.1 example.com
  check "nothing gets past the kill switch" cannot_reach_out
  check "an application without Tor" env SUDO_UID="$user" /bin/bash "$helper" launch --uid "$user" --app "$person"
  look "Is the application's window there?" "whether the launcher reaches the user's session from a terminal"
  check "disconnect" help disconnect
  check "the network is there again at the end" reaches_out

  # ---- The program itself: each question names what is in doubt ----
  app=${helper%/Contents/Resources/*}
  if [[ $app == *.app ]]; then
    echo "Open $app from Finder now, as yourself. Then press Return."
    read -r
    look "Does a left click on its symbol open the panel alone, and a right click the menu alone?" "whether Qt may get a context menu here"
    look "Is the symbol black on a light menu bar and white on a dark one?" "whether the system colours it"
    look "Close its window and open it from Finder again: does the window come, in front of others? (other rules from macOS 14 on)" "whether our handler of the reopen event replaces Qt's, and whether the system lets it come to the front"
    look "Connect in strict mode, and let Veldmark open $person without Tor. Can the application that was opened use camera and microphone?" "whether the launcher has to disclaim responsibility for what it starts"
    look "Open $person first, then let Veldmark open it without Tor: does it ask it to quit?" "whether a running application is known by its path"
    look "In whose name did the system ask for camera and microphone?" "whose reasons the system shows, and whose permission it keeps" "a name, or none"
    look "Close all of its windows, stay connected, and wait a minute: what does Activity Monitor show for it in the column App Nap?" "whether App Nap is held off" "Yes/No"
    look "End Tor by \"sudo launchctl bootout system/veldmark.tor\": did the system ask about notifications, and does one come, also while a window of Veldmark is in front?" "whether an unsigned bundle may show any, and whether our delegate is asked"
    look "Download the bundle anew, and open it in Downloads: does it say to move it first, and refuse \"start at login\"?" "whether the path of a translocated bundle is known by its name"
    ask "where the settings are" "whether they are in the bundle's user defaults" sudo -u "#$user" defaults read com.veldmark.veldmark
    echo "Leave it running, and go on as a second user by fast user switching, so that this window stays."
    look "Does it open for the second user while the first one's runs?" "whether the system lets a bundle run twice"
    look "There, switch \"start at login\" on, log out and in: does it start without a window?" "whether the launch event tells a login"
    look "There, connect and choose Log Out: does Veldmark ask, and does the logout go on after Disconnect & Quit?" "whether our answer to the system takes the place of Qt's"
  fi
fi
