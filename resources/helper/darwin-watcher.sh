
# ---- macOS: the watcher over the firewall ------------------------------------------------------------------
# Other programs routinely reload the main rules, which removes the reference to the helper's anchor. During a
# strict session a root job checks every second or two, restores missing rules and writes a note for the
# application. launchd restarts the job when it is killed. It ends at disconnect. Its script is written into the
# helper's own folder, so that it depends on no file that another account could have changed since.

readonly WATCHER_ENTRY=15-watcher
readonly WATCH_LABEL=veldmark.watch
readonly WATCH_JOB=$RUN/watch.plist       # 0644
readonly WATCHER=$RUN/watcher.sh          # 0600
readonly KILL_SWITCH_NOTE=/private/var/run/veldmark.watch   # 0644; note.sh describes its content
readonly WATCH_SECONDS=1                  # pf does not report changes

# rules_stand: whether pf is enabled, evaluates the helper's anchor first, and holds its rules unchanged.
rules_stand() {
  local info filter nat now skipped
  info=$(pfctl -s info) && filter=$(list_filter) && nat=$(pfctl -s nat) && now=$(list_rules) && skipped=$(skipped_devices) || return 1
  [[ -z $skipped && $info == *"Status: Enabled"* && $(print_without "$nat") != "$nat" && $now == "$(<"$LISTED")" ]] &&
    [[ $(print_referring filter "$filter") == "$(print_normal "$filter")" ]]
}

# relock: loads everything again, unless a run of the helper has changed or opened the rules meanwhile.
relock() {
  local word=restored
  hold_rules || return 0
  if [[ $(read_marker) == strict ]] && ! rules_stand; then
    # In a subshell, which die() ends.
    (put_rules "$(<"$RULES")") || word=open
    note_rules "$word" || true
  fi
  release_rules
}

watch_rules() {
  while [[ $(read_marker) == strict ]]; do
    if rules_stand; then
      note_rules standing || true
    else
      relock
    fi
    sleep "$WATCH_SECONDS"
  done
}

print_watcher() {
  printf 'set -uo pipefail\numask 077\nPATH=%s\nLC_ALL=C\nexport PATH LC_ALL\ncd /\n' "$PATH"
  # shellcheck disable=SC2090
  declare -p ANCHOR RULES LISTED RULES_LOCK MARKER JOURNAL KILL_SWITCH_NOTE FIREWALL_ENTRY WATCH_SECONDS \
    HOLD PUT TOKEN_LINE WORD MISSED SINCE NOTED
  printf 'JOURNAL_LINES=()\ndie() { exit 1; }\n'
  declare -f read_marker put_in_place write_file note_rules journal_put journal_must journal_has journal_read journal_value boot_id hold_rules \
    release_rules read_lines pf_words load_rules list_filter skipped_devices put_reference print_referring print_without print_normal held_token enable_firewall \
    kill_states list_rules need_devices put_rules rules_stand relock watch_rules
  printf 'watch_rules\nexit 0\n'
}

# print_watch_job: launchd restarts it unless it ended by itself, at the end of the session.
print_watch_job() {
  print_job "$WATCH_LABEL" /bin/bash -p -- "$WATCHER" <<END
	<key>KeepAlive</key>
	<dict>
		<key>SuccessfulExit</key>
		<false/>
	</dict>
	<key>ThrottleInterval</key>
	<integer>1</integer>
END
}

# put_watcher: rules that read back differently are no kill switch, and would be loaded again every second.
put_watcher() {
  undo_entry "$WATCHER_ENTRY" || true
  { kill_switch_stands && rules_stand; } || die "The firewall does not hold the rules that were loaded."
  # The application reads the note as soon as the helper has ended, perhaps before the watcher's first check.
  note_rules standing || true
  { write_file "$WATCHER" 0600 root "$(print_watcher)"$'\n' && write_file "$WATCH_JOB" 0644 root "$(print_watch_job)"$'\n' &&
    journal_put "$WATCHER_ENTRY" "label $WATCH_LABEL"; } || die "The file $WATCHER cannot be written."
  start_job "$WATCH_LABEL" "$WATCH_JOB" || die "The watcher of the firewall rules could not be started."
}

# undo_watcher: a change of the rules that it interrupts is completed or undone afterwards.
undo_watcher() {
  stop_job "$WATCH_LABEL" && rm -f -- "$WATCHER" "$WATCH_JOB" "$KILL_SWITCH_NOTE" && return 0
  UNDONE="The watcher of the firewall rules could not be stopped."
  return 1
}
