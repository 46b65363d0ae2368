
# ---- macOS: connect and disconnect -------------------------------------------------------------------------

darwin_connect() {
  local mode=proxy former boot status=0
  parse_connect "$@"
  [[ $OPT_STRICT == 0 ]] || mode=strict
  need_programs perl pfctl networksetup launchctl dscl dscacheutil lsof sysctl ifconfig stat shasum readlink
  take_lock
  trap finish EXIT
  ready_account
  ready_folders
  ready_programs
  read_names
  ready_torrc
  boot=$(boot_id) || die "The firewall's state cannot be read."

  # From here on the network changes. A running strict session stays in force until its successor is active.
  former=$(read_marker)
  if [[ $former == strict ]]; then
    kill_switch_stands || status=$?
    ((status != 1)) || former=''
    # Nothing is changed then: the other devices stay blocked.
    ((status != 3)) || need_devices
  fi
  if [[ $former == strict ]]; then
    guard_session
    stay_closed
  else
    ON_FAILURE=undo
  fi
  journal_once "$FIREWALL_ENTRY" "boot $boot"
  note_asked
  [[ $mode != strict ]] || put_bypass
  if [[ $former != strict || $mode == strict ]]; then
    put_firewall "$mode"
  fi
  if [[ $mode == strict ]]; then
    put_watcher
    stay_closed
  fi
  undo_entry "$TOR_ENTRY" || ! journal_has "$TOR_ENTRY" || die "$UNDONE"
  put_names
  put_tor
  put_services "$OPT_LAN"
  if [[ $mode == proxy ]]; then
    # Also removes the rest of a strict session whose rules are gone: its watcher and its note.
    undo_entry "$WATCHER_ENTRY" || die "$UNDONE"
    [[ $former != strict ]] || put_firewall proxy
  fi
  ON_FAILURE=
}

JOURNAL_TRUSTED=1

# undo_entry NAME: restores what the entry NUMBER-KIND records, by undo_KIND, and removes it. A torn entry contains nothing usable; then
# only what needs no entry is restored. Status 1 with UNDONE set when something could not be restored and the entry
# stays; 3, likewise, when the network is open all the same; 2 when the entry was torn and is removed.
undo_entry() {
  local name=$1 kind=${1#*-} status=0 done=0
  kind=${kind%%-*}   # each service has an entry of its own: 30-service-NUMBER
  JOURNAL_LINES=()
  if [[ -n $JOURNAL_TRUSTED ]]; then
    journal_read "$name" || status=$?
  fi
  ((status != 2)) || JOURNAL_LINES=()
  "undo_$kind" || done=$?
  ((done == 0)) || return "$done"
  journal_drop "$name"
  if ((status == 2)); then
    UNDONE="A record of the former network settings was damaged (${name#*-}). The network is open again; check your network settings."
    return 2
  fi
}

# undo_session: undoes everything in reverse order, the firewall last; continues after a failed step. Keeps the
# first reason.
undo_session() {
  local name status=0 reason='' open=1 noted=''
  [[ ! -e $MARKER ]] || noted=1
  undo_services "$noted" || status=$?
  ((status == 0)) || reason=${UNDONE:-The former network settings could not all be restored.}
  ((status != 1)) || open=''
  for name in "$NAMES_ENTRY" "$TOR_ENTRY" "$WATCHER_ENTRY" "$FIREWALL_ENTRY"; do
    UNDONE='' status=0
    undo_entry "$name" || status=$?
    ((status == 0)) || reason=${reason:-${UNDONE:-The former network settings could not all be restored.}}
    ((status != 1)) || open=''
  done
  [[ -z $open ]] || rm -f -- "$MARKER" "$ASKED" "$RULES" "$LISTED"
  rm -f -- "$MARKER.new" "$ASKED.new" "$RULES.new" "$LISTED.new" "$KILL_SWITCH_NOTE.new" "$STATE/relocked" "$WATCHER.new" "$WATCH_JOB.new" "$TOR_JOB.new" "$TORRC.checked" "$HOSTS.new"
  [[ ! -d $JOURNAL ]] || rm -f -- "$JOURNAL"/*.new
  UNDONE=$reason
  [[ -z $reason ]]
}

# darwin_fix-dns: restores settings that were changed during a running session: those of the services, also of new
# ones, and the rules, so that a flushed kill switch is active again.
darwin_fix-dns() {
  (($# == 0)) || die "The verb fix-dns takes no options."
  need_programs perl pfctl networksetup dscacheutil sysctl stat
  take_lock
  trap finish EXIT
  { [[ -f $MARKER ]] && folders_are_safe; } || die "Veldmark is not connected, so the DNS settings were left alone."
  if [[ -f $RULES ]]; then
    hold_rules || die "Another program is changing the firewall. Try again in a moment."
    put_rules "$(<"$RULES")"
    [[ -f $LISTED ]] || note_listing || die "The file $LISTED cannot be written."
    release_rules
  fi
  [[ $(read_marker) != strict ]] || job_process "$WATCH_LABEL" >/dev/null || put_watcher
  put_services "$(session_lan)"
}

# session_lan: whether the session opens the local network, according to its rules.
session_lan() {
  if [[ -f $RULES && $(<"$RULES") == *"pass out quick inet from any to { 10.0.0.0/8"* ]]; then printf 1; else printf 0; fi
}

darwin_disconnect() {
  local status=0
  parse_disconnect "$@"
  need_programs pfctl networksetup launchctl
  # A missing lock is better than a network that cannot be restored.
  if command -v perl >/dev/null; then take_lock; fi
  trap finish EXIT
  # A file that others could write is not a trusted record.
  if [[ -e $JOURNAL || -L $JOURNAL ]]; then
    safe_folders / /Library "/Library/Application Support" "$BASE" "$JOURNAL" || status=$?
    ((status != 2)) || die "The notes of what to restore cannot be read."
    ((status == 0)) || JOURNAL_TRUSTED=
  fi
  undo_session || die "$UNDONE"
}
