
# ---- Linux: systemd-resolved -------------------------------------------------------------------------------
# Where systemd-resolved serves DNS lookups, each network link has its own servers, and the system may have some. The firewall redirects
# lookups to them anyway. The helper enters Tor's server there as well, so that the settings show the real server.

readonly RESOLVED_ENTRY=31-resolved
readonly RESOLVED_SERVER=127.0.0.1
readonly LINK_PATTERN='^Link [0-9]+ \(([A-Za-z0-9_.:@-]+)\): ([][A-Za-z0-9_.:%# -]+)$'

has_resolved() {
  [[ -d /run/systemd/resolve ]] && command -v resolvectl >/dev/null
}

ask_resolved() { timeout -k 1 5 resolvectl --no-pager -- "$@" </dev/null; }

# print_links KIND: "KIND LINK VALUE..." for each link that has one; KIND is dns, dnsovertls or dnssec.
print_links() {
  local line
  while IFS= read -r line; do
    [[ ! $line =~ $LINK_PATTERN ]] || printf '%s %s %s\n' "$1" "${BASH_REMATCH[1]}" "${BASH_REMATCH[2]}"
  done < <(ask_resolved "$1")
}

# put_resolved: status 1 when a link could not be changed.
put_resolved() {
  local line link kind values former links='' kept=() status=0
  has_resolved || return 0
  while read -r kind link line; do
    [[ $line == "$RESOLVED_SERVER" ]] || links="$links $link "
  done < <(print_links dns)
  [[ -n $links ]] || return 0

  # The note of an earlier connect stays, except for links whose servers were changed since. A setting of those links that still has the
  # helper's value is noted with its former value.
  journal_read "$RESOLVED_ENTRY" || JOURNAL_LINES=()
  for line in ${JOURNAL_LINES[@]+"${JOURNAL_LINES[@]}"}; do
    read -r kind link _ <<<"$line"
    [[ $links == *" $link "* ]] || kept[${#kept[@]}]=$line
  done
  while IFS= read -r line; do
    read -r kind link values <<<"$line"
    [[ $links == *" $link "* ]] || continue
    if [[ $kind != dns && $values == no ]] && former=$(journal_value "$kind $link"); then line="$kind $former"; fi
    kept[${#kept[@]}]=$line
  done < <(print_links dns; print_links dnsovertls; print_links dnssec)
  journal_must "$RESOLVED_ENTRY" "${kept[@]}"

  # Tor's DNS port supports neither TLS nor DNSSEC.
  for link in $links; do
    { ask_resolved dns "$link" "$RESOLVED_SERVER" && ask_resolved dnsovertls "$link" no &&
      ask_resolved dnssec "$link" no; } >/dev/null || status=1
  done
  return "$status"
}

# undo_resolved: restores only settings that still have the helper's value; other values are newer. A link with newer servers gets its other
# former settings back all the same: otherwise it would go on without DNSSEC or TLS. The server is restored last, so that a run after an
# interrupted one still finds it.
undo_resolved() {
  local line kind link values ours=' ' status=0 pass
  ((${#JOURNAL_LINES[@]})) && has_resolved || return 0
  while read -r kind link values; do
    case "$kind $values" in
    "dns $RESOLVED_SERVER" | "dnsovertls no" | "dnssec no") ours="$ours$kind:$link " ;;
    esac
  done < <(print_links dns; print_links dnsovertls; print_links dnssec)
  for pass in settings dns; do
    for line in "${JOURNAL_LINES[@]}"; do
      read -r kind link values <<<"$line"
      [[ $ours == *" $kind:$link "* ]] || continue
      if [[ $kind == dns ]]; then [[ $pass == dns ]] || continue; else [[ $pass != dns && $values != no ]] || continue; fi
      # shellcheck disable=SC2086
      ask_resolved "$kind" "$link" $values >/dev/null || status=1
    done
  done
  ((status == 0)) && return 0
  UNDONE="The network is open again, but the DNS servers of systemd-resolved could not be put back."
  return 1
}

# The system's own servers are in the daemon's configuration. The helper's file in /run, which a restart of the computer removes, replaces
# them. The daemon reads it when it restarts, and keeps the links' settings.

readonly GLOBAL_ENTRY=32-global
readonly GLOBAL_FILE=/run/systemd/resolved.conf.d/zz-veldmark.conf
readonly RESOLVED_UNIT=systemd-resolved.service

# Tor's DNS port supports neither TLS nor DNSSEC. The empty line clears the servers set before.
print_global() {
  printf '# Veldmark: names are looked up through Tor.\n[Resolve]\nDNS=\nDNS=%s\nDNSOverTLS=no\nDNSSEC=no\n' "$RESOLVED_SERVER"
}

# global_servers: prints the system's own servers as the daemon reports them.
global_servers() {
  local line
  while IFS= read -r line; do
    [[ $line != "Global: "* ]] || printf '%s' "${line#Global: }"
  done < <(ask_resolved dns)
}

# is_our_server SERVERS: whether the helper's server is the only one; the daemon may list it twice, once for the resolver file.
is_our_server() { [[ $1 =~ ^127\.0\.0\.1(\ 127\.0\.0\.1)*$ ]]; }

# restart_resolved: restarts the daemon, however often it was restarted before.
restart_resolved() {
  ask_systemd 5 reset-failed -- "$RESOLVED_UNIT" >/dev/null || true
  ask_systemd 20 restart -- "$RESOLVED_UNIT" >/dev/null
}

# put_global: status 1 when the system's servers could not be changed.
put_global() {
  local servers folder=${GLOBAL_FILE%/*} poll
  has_resolved && command -v systemctl >/dev/null || return 0
  servers=$(global_servers)
  [[ -n $servers ]] && ! is_our_server "$servers" || return 0
  if [[ -d $folder ]]; then
    journal_once "$GLOBAL_ENTRY" "file $GLOBAL_FILE"
  else
    journal_once "$GLOBAL_ENTRY" "file $GLOBAL_FILE" "created 1"
    mkdir -m 0755 -- "$folder" || return 1
  fi
  write_file "$GLOBAL_FILE" 0644 root "$(print_global)"$'\n' && restart_resolved || return 1
  # NetworkManager sets the links' servers again after the daemon has restarted.
  if [[ -d /run/NetworkManager ]]; then
    for ((poll = 0; poll < 20; poll++)); do
      put_resolved || true
      sleep 0.1
    done
  fi
  is_our_server "$(global_servers)"
}

# undo_global: restarts the daemon only if it still uses the helper's server.
undo_global() {
  ((${#JOURNAL_LINES[@]})) || [[ -e $GLOBAL_FILE ]] || return 0
  rm -f -- "$GLOBAL_FILE" "$GLOBAL_FILE.new" || true
  [[ $(journal_value created) != 1 ]] || rmdir -- "${GLOBAL_FILE%/*}" || true
  if [[ ! -e $GLOBAL_FILE ]]; then
    has_resolved && is_our_server "$(global_servers)" || return 0
    ! restart_resolved || return 0
  fi
  UNDONE="The network is open again, but the DNS servers of systemd-resolved could not be put back. Try: systemctl restart $RESOLVED_UNIT."
  return 1
}
