
# ---- Linux: connect and disconnect -------------------------------------------------------------------------

readonly FIREWALL_ENTRY=10-firewall
readonly ENTRIES="$KDE_ENTRY $GNOME_ENTRY $RESOLVER_ENTRY $TOR_ENTRY $FIREWALL_ENTRY"   # in the order of undoing

ON_FAILURE=''   # "undo" while a failure must put everything back; empty before the first change and where the
                # kill switch stays closed
UNDONE=''       # why an undo_... function failed

need_programs() {
  local program
  for program in nft flock setpriv unshare setsid getent stat sync mount umount sha256sum timeout readlink; do
    command -v "$program" >/dev/null || die "The program $program is missing on this system."
  done
}

# finish: runs at every exit, so that a failed run has said why and leaves no half-made session.
finish() {
  local status=$?
  trap - EXIT
  if ((status != 0)); then
    [[ -n $SAID ]] || say "The helper stopped unexpectedly."
    if [[ $ON_FAILURE == undo ]]; then
      ON_FAILURE=
      set +e
      undo_session
    fi
  fi
  exit "$status"
}

read_marker() {
  local word=''
  if [[ -f $MARKER && ! -L $MARKER ]]; then
    IFS= read -r word <"$MARKER" || true
  fi
  printf '%s' "$word"
}

put_marker() {
  write_file "$MARKER" 0644 root "$1"$'\n' || die "The session marker cannot be written."
}

# switch_firewall MODE: marker and rules belong together, the marker first.
switch_firewall() {
  put_marker "$1"
  put_firewall "$1"
}

linux_connect() {
  local mode=proxy former
  parse_connect "$@"
  [[ $OPT_STRICT == 0 ]] || mode=strict
  need_programs
  take_lock
  trap finish EXIT
  ready_account
  ready_folders
  ready_programs
  read_resolver
  ready_torrc

  # From here on the network changes. A strict session in force stays so until its successor stands.
  former=$(read_marker)
  if [[ $former == strict ]]; then
    STAYS_CLOSED=" The network stays blocked until you disconnect."
  else
    ON_FAILURE=undo
  fi
  journal_has "$FIREWALL_ENTRY" || journal_put "$FIREWALL_ENTRY" "table $TABLE" || die "The journal cannot be written."
  if [[ $former != strict || $mode == strict ]]; then
    switch_firewall "$mode"
  fi
  if [[ $mode == strict ]]; then
    ON_FAILURE=
    STAYS_CLOSED=" The network stays blocked until you disconnect."
  fi
  undo_entry "$TOR_ENTRY" || ! journal_has "$TOR_ENTRY" || die "$UNDONE"
  start_tor
  put_resolver
  put_proxy
  if [[ $former == strict && $mode == proxy ]]; then
    switch_firewall proxy
  fi
  ON_FAILURE=
}

# undo_entry NAME: puts back what the entry tells of and removes it. A torn entry tells nothing, and what can be
# put back without it is put back. Status 1 with UNDONE set when something could not be.
undo_entry() {
  local name=$1 status=0
  JOURNAL_LINES=()
  if [[ -n $JOURNAL_TRUSTED ]]; then
    journal_read "$name" || status=$?
  fi
  ((status != 2)) || JOURNAL_LINES=()
  if [[ $name == "$TOR_ENTRY" ]] && [[ $status == 2 || -z $JOURNAL_TRUSTED ]]; then
    kill_stray_tor
  fi
  case $name in
  "$KDE_ENTRY") undo_kde ;;
  "$GNOME_ENTRY") undo_gnome ;;
  "$RESOLVER_ENTRY") undo_resolver ;;
  "$TOR_ENTRY") undo_tor ;;
  "$FIREWALL_ENTRY") undo_firewall ;;
  esac || return 1
  journal_drop "$name"
  if ((status == 2)); then
    UNDONE="A note of what to restore was damaged (${name#*-}). The network is open again; check your proxy settings."
    return 1
  fi
}

JOURNAL_TRUSTED=1

# undo_session: everything, backwards, the firewall last; goes on when a step fails. Keeps the first reason.
undo_session() {
  local name reason=''
  for name in $ENTRIES; do
    UNDONE=
    undo_entry "$name" || reason=${reason:-${UNDONE:-The former network settings could not all be restored.}}
  done
  rm -f -- "$MARKER" "$RULES" "$MARKER.new" "$RULES.new" "$TORRC.checked" "$JOURNAL"/*.new
  UNDONE=$reason
  [[ -z $reason ]]
}

# linux_fix-dns: puts back what somebody changed under a running session: the mount, and the rules, in one
# transaction, so that also a flushed kill switch stands again.
linux_fix-dns() {
  (($# == 0)) || die "The verb fix-dns takes no options."
  need_programs
  take_lock
  trap finish EXIT
  { [[ -f $MARKER ]] && folders_are_safe; } || die "Veldmark is not connected, so the DNS settings were left alone."
  if [[ -f $RULES ]]; then
    load_rules "$(<"$RULES")"
  fi
  read_resolver
  put_resolver
}

linux_disconnect() {
  (($# == 0)) || die "The verb disconnect takes no options."
  need_programs
  take_lock
  trap finish EXIT
  if [[ -e $BASE || -L $BASE ]]; then
    # What others could write is no record of ours.
    folders_are_safe || JOURNAL_TRUSTED=
  fi
  undo_session || die "$UNDONE"
}
