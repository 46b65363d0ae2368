#!/bin/bash
# real_mac.sh --change-this-mac HELPER: runs the root helper on this very Mac and looks whether it does what it should and
# puts everything back. It switches the network of the machine: only for one that may be thrown away. Needs root, and
# Homebrew's tor, which is kept off the network (DisableNetwork 1).
# shellcheck disable=SC2317   # what check() is given to call
set -u
[[ ${1-} == --change-this-mac && -f ${2-} && $EUID == 0 && $(uname -s) == Darwin ]] || {
  echo "usage, as root on a Mac that may be thrown away: real_mac.sh --change-this-mac HELPER" >&2
  exit 2
}
helper=$2 failed=0
hash=16:0123456789ABCDEF0123456789ABCDEF0123456789ABCDEF0123456789
for tor in /opt/homebrew/bin/tor /usr/local/bin/tor; do
  [[ ! -x $tor ]] || break
done
prefix=${tor%/bin/tor}
mkdir -p "$prefix/etc/tor"
echo "DisableNetwork 1" >"$prefix/etc/tor/torrc-defaults"
work=$(mktemp -d)
trap '/bin/bash "$helper" disconnect; rm -rf "$work"' EXIT

# As somebody at the screen would run it; the runner's own session is sudo's.
help() { env -u SUDO_UID /bin/bash "$helper" "$@"; }

check() {
  local text=$1
  shift
  if "$@"; then echo "ok      $text"; else echo "FAILED  $text"; failed=1; fi
}

snapshot() {
  local service get
  networksetup -listallnetworkservices
  networksetup -listallnetworkservices | tail -n +2 | while IFS= read -r service; do
    for get in dnsservers proxybypassdomains socksfirewallproxy webproxy securewebproxy autoproxyurl proxyautodiscovery; do
      echo "$service $get"
      networksetup "-get$get" "${service#\*}"
    done
  done
  pfctl -s rules 2>/dev/null
  pfctl -s nat 2>/dev/null
  pfctl -s info 2>/dev/null | grep -o '^Status: [A-Za-z]*'
  pfctl -s References 2>/dev/null | grep -c '[0-9]\{10\}'
  cat /etc/hosts
  launchctl list veldmark.tor 2>/dev/null
}

all_switched() {
  local service
  networksetup -listallnetworkservices | tail -n +2 | grep -v '^\*' | while IFS= read -r service; do
    [[ $(networksetup -getdnsservers "$service") == 127.0.0.1 ]] || exit 1
    networksetup -getsocksfirewallproxy "$service" | grep -q '^Port: 9050' || exit 1
  done
}

tor_as_itself() { pgrep -u "$(dscl . -read /Users/_veldmark UniqueID | awk '{ print $2 }')" -x tor >/dev/null; }
reaches_out() { curl -s -o /dev/null --noproxy '*' --connect-timeout 5 https://1.1.1.1/; }
cannot_reach_out() { ! reaches_out; }
same() { diff "$work/before" "$work/after"; }

/bin/bash -n "$helper" || exit 1
for rules in "print_proxy_rules 99 501" "print_strict_rules 99 501 0 0 ''" "print_strict_rules 99 501 1 1 400"; do
  /bin/bash -p -c ". '$helper'; $rules" >"$work/rules"
  check "pf takes: $rules" pfctl -n -q -a veldmark -f "$work/rules"
done

help disconnect
snapshot >"$work/before"
check "the network is there" reaches_out
for strict in 0 1; do
  check "connect --strict $strict" help connect --tor "$tor" --hash "$hash" --strict "$strict" --lan 0
  check "every service is switched" all_switched
  check "Tor runs in its own account" tor_as_itself
  check "our rules are loaded" test -n "$(pfctl -a veldmark -s rules 2>/dev/null)"
  check "a rule refers to them" grep -q '^anchor "veldmark"' <(pfctl -s rules 2>/dev/null)
  check "connect again" help connect --tor "$tor" --hash "$hash" --strict "$strict" --lan 0
  check "fix-dns" help fix-dns
  [[ $strict == 0 ]] || check "nothing gets past the kill switch" cannot_reach_out
  check "disconnect" help disconnect
  snapshot >"$work/after"
  check "everything is as before" same
done
check "the network is there again" reaches_out
exit "$failed"
