
# ---- Linux: connect and disconnect -------------------------------------------------------------------------

readonly FIREWALL_ENTRY=10-firewall
readonly ENTRIES="$KDE_ENTRY $GNOME_ENTRY $GLOBAL_ENTRY $RESOLVED_ENTRY $RESOLVER_ENTRY $TOR_ENTRY $IDENTIFIER_ENTRY $IDENTITIES_ENTRY $SERVICE_ENTRY $WATCHER_ENTRY $BYPASS_ENTRY $LOOPBACK_ENTRY $FIREWALL_ENTRY"   # in the order of undoing

# switch_firewall MODE [NEW]: sets the marker, then the rules, under one lock. With NEW, a session begins, and Tor gets a new group.
switch_firewall() {
  hold_rules || die "Another program is changing the firewall. Try again in a moment."
  [[ -z ${2-} ]] || renew_group
  put_marker "$1"
  put_firewall "$1"
  release_rules
}

linux_connect() {
  local mode=proxy former new='' status=0
  parse_connect "$@"
  [[ $OPT_STRICT == 0 ]] || mode=strict
  need_programs flock nft setpriv unshare setsid getent stat sync mount umount sha256sum timeout readlink
  lift_limits
  take_lock
  trap finish EXIT
  need_groups
  spare_others
  check_firewall
  note_others
  ready_account
  check_ports
  ready_folders
  ready_programs
  clear_bundle
  read_resolver
  find_filter
  ready_torrc

  # From here on the network changes. A strict session in force stays until its successor is in force.
  former=$(read_marker)
  if [[ $former == strict ]]; then
    kill_switch_stands || status=$?
    ((status != 2)) || die "The firewall rules cannot be read, so nothing was done."
    ((status == 0)) || former=''
  fi
  if [[ $former == strict ]]; then
    guard_session
    stay_closed
  else
    ON_FAILURE=undo
  fi
  journal_once "$FIREWALL_ENTRY" "table $TABLE"
  note_owner
  note_asked
  [[ $former == strict ]] || new=new
  [[ $mode != strict ]] || put_bypass "$new"
  [[ $former == strict && $mode != strict ]] || switch_firewall "$mode" "$new"
  put_loopback || true
  if [[ $mode == strict ]]; then
    put_watcher
    stay_closed
  fi
  undo_entry "$TOR_ENTRY" || ! journal_has "$TOR_ENTRY" || die "$UNDONE"
  put_service
  put_identities "$OPT_SEPARATE"
  put_tor
  put_resolver
  put_resolved || true   # the firewall redirects its lookups anyway
  put_global || true
  put_proxy
  if [[ $mode == proxy ]]; then
    # Also removes the remains of a strict session without rules: its watcher and its note.
    undo_entry "$WATCHER_ENTRY" || true
    [[ $former != strict ]] || switch_firewall proxy
    undo_entry "$BYPASS_ENTRY" || true
  fi
  ON_FAILURE=
  drop_replaced || true
}

# undo_entry NAME: restores what the entry NUMBER-KIND records, by undo_KIND, and removes the entry. A torn entry records nothing; then only what needs no record is
# restored. Status 1 with UNDONE set when something could not be restored and the entry stays; 2 with UNDONE set when the entry was torn and
# is removed.
undo_entry() {
  local name=$1 kind=${1#*-} status=0
  JOURNAL_LINES=()
  if [[ -n $JOURNAL_TRUSTED ]]; then
    journal_read "$name" || status=$?
  fi
  ((status != 2)) || JOURNAL_LINES=()
  if [[ $status == 2 || -z $JOURNAL_TRUSTED ]]; then
    case $kind in tor | watcher | identifier) "kill_stray_$kind" ;; esac
  fi
  "undo_$kind" || return 1
  journal_drop "$name"
  if ((status == 2)); then
    UNDONE="A record of the former network settings was damaged ($kind). The network is open again; check your proxy settings."
    return 2
  fi
}

JOURNAL_TRUSTED=1

# undo_session: restores everything in reverse order, the firewall last, and goes on when a step fails. Reports the first reason.
undo_session() {
  local name status reason='' least='' open=1
  for name in $ENTRIES; do
    UNDONE='' status=0
    undo_entry "$name" || status=$?
    case $status,$name in
    0,*) ;;
    *,"$IDENTITIES_ENTRY") least=$UNDONE ;;   # a reason that keeps the network closed is reported first
    *) reason=${reason:-${UNDONE:-The former network settings could not all be restored.}} ;;
    esac
    # The desktop's settings, the service, the identities, the group and the loopback device do not block the network. The next run tries
    # them again.
    [[ $status != 1 || " $KDE_ENTRY $GNOME_ENTRY $SERVICE_ENTRY $IDENTITIES_ENTRY $BYPASS_ENTRY $LOOPBACK_ENTRY " == *" $name "* ]] || open=''
  done
  [[ -z $open ]] || remove "$MARKER" "$ASKED" "$OWNER" "$RULES" "$LISTED" "$OTHERS_NOTE"
  remove "$MARKER.new" "$ASKED.new" "$OWNER.new" "$RULES.new" "$LISTED.new" "$WATCHER" "$WATCHER.new" "$KILL_SWITCH_NOTE" "$KILL_SWITCH_NOTE.new" "$OTHERS_NOTE.new" "$STATE/relocked" "$TORRC.checked" "$RESERVE" "$RESERVE.new" "$JOURNAL"/*.new
  [[ -z $open || ! -e $MARKER ]] || reason=${reason:-"The network is open again, but the session marker cannot be removed from $STATE."}
  reason=${reason:-$least}
  [[ -n $reason || -z $(compgen -G "$JOURNAL/*") ]] || reason="The network is open again, but the journal in $JOURNAL cannot be cleared."
  UNDONE=$reason
  [[ -z $reason ]]
}

# linux_fix-dns: restores what was changed from outside during a session: the mount, and the rules in one transaction, so that a flushed
# kill switch is in force again.
linux_fix-dns() {
  (($# == 0)) || die "The verb fix-dns takes no options."
  need_programs flock nft mount unshare umount readlink stat sync
  lift_limits
  take_lock
  trap finish EXIT
  { [[ -f $MARKER ]] && safe_folders; } || die "Veldmark is not connected, so the DNS settings were left alone."
  if [[ -f $RULES ]]; then
    hold_rules || die "Another program is changing the firewall. Try again in a moment."
    make_groups
    load_rules "$(<"$RULES")"
    note_listing || die "The file $LISTED cannot be written."
    release_rules
  fi
  put_loopback || true
  [[ $(read_marker) != strict ]] || watcher_runs || put_watcher
  ! journal_has "$IDENTITIES_ENTRY" || identifier_runs || put_identities 1
  read_resolver
  put_resolver
  { put_resolved && put_global; } || die "The DNS servers of systemd-resolved cannot be changed."
}

linux_disconnect() {
  parse_disconnect "$@"
  need_programs flock nft umount stat
  lift_limits
  take_lock
  trap finish EXIT
  if [[ -e $BASE || -L $BASE ]]; then
    # Files in folders that other users could write are not trusted.
    safe_folders || JOURNAL_TRUSTED=
  fi
  spare_others
  spare_unmeant
  [[ -z $JOURNAL_TRUSTED ]] || clear_bundle
  undo_session || die "$UNDONE"
}
