
# ---- Linux: the watcher over the firewall ------------------------------------------------------------------
# During a strict session a process of root's waits for the kernel to report changes of rules. When the helper's rules are not as they were
# loaded, it loads them again and leaves a note for the application. It outlives the application and the helper's run, and ends at
# disconnect. Its script is written into the helper's folder, so that it depends on no file that another program could have changed since.

readonly WATCHER_ENTRY=15-watcher
readonly WATCHER=$RUN/watcher.sh          # 0600
readonly KILL_SWITCH_NOTE=/run/veldmark.watch   # 0644; note.sh says what it holds
readonly WATCH_SECONDS=3                  # seconds between two looks when the kernel reports nothing
readonly BEAT_SECONDS=0.5                 # how often the note is written, so that a stopped watcher is missed at once
readonly OTHERS_SECONDS=5                 # between two looks at other firewalls' rules, which may be many and change often

# rules_stand: whether the kernel has the helper's table as it was loaded.
rules_stand() {
  read_listing "$TABLE" && [[ $LISTING == "$(<"$LISTED")" ]]
}

# relock: loads the rules again, unless a run of the helper has changed or removed them meanwhile. The same text gives the same listing, so
# the listing is stored again only when a dormant copy of the loaded text confirms it (copy_stands): another program may be changing the
# rules at this moment.
STRUGGLES=0   # how often in a row the rules were not in place right after loading
LESSENED=''   # 1 while the rules are loaded without their bypass
relock() {
  local word=restored text
  hold_rules || return 0
  if [[ $(read_marker) == strict ]] && ! rules_stand; then
    text=$(<"$RULES")
    make_groups   # the rules name them, and they may have been removed
    if nft -f - <<<"$text"; then
      if [[ -n $LESSENED ]]; then
        if copy_stands "$text" && keep_listing; then LESSENED=''; else word=open; fi
      elif ! rules_stand; then
        # Either nft now lists the same rules differently, or another program changes them as fast as the watcher does.
        if ! copy_stands "$text"; then
          STRUGGLES=$((STRUGGLES + 1)) word=open   # the loaded rules are not in place
        elif keep_listing; then
          word=standing
        fi
        ((STRUGGLES < 3)) || sleep "$BEAT_SECONDS"
      else
        STRUGGLES=0
      fi
    elif nft -f - <<<"$(print_not_bypassing "$text")"; then
      # Without its group the bypass rule cannot be loaded, but the other rules can.
      LESSENED=1
      { copy_stands "$(print_not_bypassing "$text")" && keep_listing; } || word=open
    else
      word=open
    fi
    note_rules "$word" || true
  fi
  release_rules
}

# copy_stands TEXT: whether the kernel's listing is that of TEXT, by comparison with a dormant copy of TEXT. LISTING is then that listing; a
# listing read later may already differ.
copy_stands() {
  local copy=$TABLE-copy now text
  read_listing "$TABLE" || return 1
  now=$LISTING
  text=${1//"table inet $TABLE"/"table inet $copy"}
  nft -f - <<<"${text/"$copy {"/"$copy { flags dormant;"}" || return 1
  read_listing "$copy" || LISTING=''
  nft delete table inet "$copy"
  LISTING=${LISTING/"tableinet$copy"/"tableinet$TABLE"}
  [[ ${LISTING/$'flagsdormant\n\n'/} == "$now" ]] || return 1
  LISTING=$now
}

# print_not_bypassing TEXT: the rules without those that name a control group.
print_not_bypassing() {
  local line
  while IFS= read -r line; do
    [[ $line == *"socket cgroupv2"* ]] || printf '%s\n' "$line"
  done <<<"$1"
}

# monitor PARENT KIND: becomes nft's monitor. It ends with its parent, even when the parent ended before this was set up.
# shellcheck disable=SC2016
monitor() {
  exec setpriv --pdeathsig KILL unshare --mount --propagation private \
    sh -c '[ "$PPID" != "$1" ] || { shift; '"$WITHOUT_GROUPS"'; }' monitor "$1" monitor "$2"
}

# monitor_rules: one monitor for each kind of change that the listing shows, and none for the elements of sets, which change with the
# applications. The first is the others' parent.
monitor_rules() {
  local first=$BASHPID
  monitor "$first" tables &
  monitor "$first" chains &
  monitor "$$" rules
}

# beat: writes the unchanged note again, in place, by this shell alone. On descriptor 3, since `declare -f` prints 1<> as <>.
beat() {
  [[ -z $NOTED || ! -f $KILL_SWITCH_NOTE ]] || printf '%s\n' "$NOTED" 3<>"$KILL_SWITCH_NOTE" >&3
}

# await_change: waits until the kernel reports a change or a look is due. Status 1 when the kernel reports nothing any more.
await_change() {
  local status many until=$((SECONDS + WATCH_SECONDS))
  while ((SECONDS < until)); do
    status=0
    IFS= read -r -t "$BEAT_SECONDS" -u 4 _ || status=$?
    beat || true
    if ((status == 0)); then
      CHANGED=1
      break
    fi
    ((status > 128)) || return 1
  done
  # One look serves all changes reported together.
  for ((many = 0; many < 1000; many++)); do
    IFS= read -r -t 0.001 -u 4 _ || break
  done
}

# ports_are_tors: whether only this session's Tor listens at Tor's ports; also when no process does. Sockets once found to be Tor's are not
# checked again. The check is repeated once, for a Tor that is ending.
VOUCHED=''
ports_are_tors() {
  local round sockets line child strange name
  for round in 1 2; do
    sockets=$(all_sockets)
    [[ -n $sockets && $sockets != "$VOUCHED" ]] || return 0
    CHILDREN='' strange=''
    ! { journal_read "$TOR_ENTRY" && find_recorded; } || read_children "$RECORDED_PID"
    # Where the launcher's child is the filter, Tor is the filter's first child. Later ones are what bridge programs left behind.
    child=${CHILDREN%% *} name=''
    if [[ -n $child ]] && { IFS= read -r name <"/proc/$child/comm"; } 2>/dev/null && [[ $name == "${FILTER_NAME:0:15}" ]]; then
      read_children "$child"
      CHILDREN="$child ${CHILDREN%% *}"
    fi
    while IFS= read -r line; do
      for child in $CHILDREN 0; do
        ! has_socket "$child" "${line##* }" || break
      done
      [[ $child != 0 ]] || strange=1
    done <<<"$sockets"
    if [[ -z $strange ]]; then
      VOUCHED=$sockets
      return 0
    fi
    ((round == 2)) || sleep 0.1
  done
  return 1
}

# watch_others: notes what other firewalls deny, after a change of theirs. In the background, since the looks at the helper's rules must not
# wait for it.
CHANGED='' OTHERS_DUE=0
watch_others() {
  [[ -n $CHANGED ]] && ((SECONDS >= OTHERS_DUE)) || return 0
  [[ -z $(jobs -rp) ]] || return 0
  CHANGED='' OTHERS_DUE=$((SECONDS + OTHERS_SECONDS))
  {
    note_others
    [[ $(read_marker) == strict ]] || rm -f -- "$OTHERS_NOTE"   # the session has ended meanwhile
  } 4<&- &
}

# When another process listens in Tor's place, the note is not renewed and so becomes stale.
watch_rules() {
  local again
  exec 4< <(monitor_rules)
  while [[ $(read_marker) == strict ]]; do
    if ! rules_stand; then
      relock
    else
      beat || true   # on a busy computer the check below takes its time
      if ports_are_tors; then note_rules standing || true; else NOTED=''; fi
    fi
    watch_others || true
    await_change || {
      # Keep looking, then start the monitors again.
      for ((again = 0; again < 2 * WATCH_SECONDS; again++)); do
        sleep "$BEAT_SECONDS"
        beat || true
      done
      exec 4< <(monitor_rules)
    }
  done
}

print_watcher() {
  printf 'set -uo pipefail\numask 077\nPATH=%s\nLC_ALL=C\nexport PATH LC_ALL\ncd /\n' "$PATH"
  # shellcheck disable=SC2090
  declare -p TABLE RULES LISTED RULES_LOCK MARKER KILL_SWITCH_NOTE WATCH_SECONDS BEAT_SECONDS BYPASS_NAME RUN_GROUP TOR_GROUP CGROUPS \
    OTHERS_NOTE OTHERS_SECONDS ALWAYS WITHOUT_GROUPS WORD MISSED SINCE NOTED JOURNAL TOR_ENTRY FILTER_NAME SOCKS_PORT CONTROL_PORT DNS_PORT
  printf 'CHANGED= OTHERS_DUE=0 CHAINS=() CHAIN_RULES=() JUDGED= STRUGGLES=0 LESSENED= LISTING= TREE= TOR_UID= VOUCHED= CHILDREN= START_TIME= BOOT= RECORDED_PID= JOURNAL_LINES=()\n'
  declare -f read_marker put_in_place write_file note_rules hold_rules release_rules keep_listing rules_stand find_tree make_group make_groups nft_without_groups read_listing copy_stands \
    print_not_bypassing relock monitor monitor_rules beat await_change port_sockets takes_ipv6_alone wide_sockets all_sockets has_socket \
    journal_has journal_read read_lines read_boot start_time find_recorded read_children ports_are_tors read_chains judge_chain name_others \
    note_others watch_others watch_rules
  printf 'watch_rules\n'
}

launch_watcher() {
  become_recorded "$WATCHER_ENTRY"
  printf -- '-1000\n' >/proc/self/oom_score_adj || true   # the last process to be ended when memory runs out
  exec env -i --default-signal PATH="$PATH" LC_ALL=C setsid /bin/bash -p -- "$WATCHER"
}

put_watcher() {
  undo_entry "$WATCHER_ENTRY" || true
  # The application looks as soon as this run has ended, perhaps before the watcher does.
  ! rules_stand || note_rules standing || true
  write_file "$WATCHER" 0600 root "$(print_watcher)"$'\n' || die "The file $WATCHER cannot be written."
  launch_watcher </dev/null >/dev/null 2>&1 &
}

# kill_stray_watcher: without a record, kills root's processes with that very command in this network namespace.
kill_stray_watcher() {
  local folder word words
  for folder in /proc/[1-9]*; do
    [[ -O $folder && $folder/ns/net -ef /proc/self/ns/net ]] || continue
    words=''
    while IFS= read -r -d '' word; do
      words="$words $word"
    done <"$folder/cmdline" || true
    [[ $words != " /bin/bash -p -- $WATCHER" ]] || kill -KILL "${folder#/proc/}" || true
  done
}

# await_standstill PID: waits up to half a second until a stopped process stands still.
await_standstill() {
  local poll line
  for ((poll = 0; poll < 50; poll++)); do
    { IFS= read -r line <"/proc/$1/stat"; } 2>/dev/null || return 0
    [[ ${line##*) } != [TZX]* ]] || return 0
    pause 0.01
  done
}

# end_recorded: kills the process of the entry that was read, which never waits for the helper, and its children.
end_recorded() {
  local pid child all
  find_recorded || return 0
  pid=$RECORDED_PID
  # A child that it is just starting would be missed; a stopped process starts none.
  kill -STOP "$pid" || true
  await_standstill "$pid"
  read_children "$pid"
  all=$CHILDREN
  for child in $CHILDREN; do
    read_children "$child"
    all="$all $CHILDREN"
  done
  kill -KILL "$pid" || true
  for child in $all; do
    kill -KILL "$child" || true
  done
  recorded_lives || true
  for child in $all; do await_standstill "$child"; done
}

# undo_watcher: a watcher that is just changing rules holds the rules' lock, so the firewall is opened after that.
undo_watcher() {
  remove "$WATCHER"
  end_recorded
  # Remove the copy of the rules that it may have been comparing.
  ! may_stand "$TABLE-copy" "$WATCHER_ENTRY" || nft -f - <<<"delete table inet $TABLE-copy" >/dev/null 2>&1 || true
  remove "$KILL_SWITCH_NOTE"   # the watcher writes no new one
}

# watcher_runs: whether the process in the journal is alive.
watcher_runs() { journal_read "$WATCHER_ENTRY" && find_recorded; }
