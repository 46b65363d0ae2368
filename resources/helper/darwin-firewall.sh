
# ---- macOS: firewall ---------------------------------------------------------------------------------------
# pf: the helper's rules are in an anchor of their own, replaced as a whole in one transaction. The main rules get
# a line that refers to the anchor. A token keeps pf enabled and is released at the end; tokens of other programs
# stay.

readonly FIREWALL_ENTRY=10-firewall
readonly RULES=$RUN/firewall.pf       # 0600; the rules in force, for restoring them after a flush
readonly LISTED=$RUN/firewall.listed  # 0600; the same rules as pf lists them
readonly RULES_LOCK=/private/var/db/veldmark.rules   # held during every change of the rules; the watcher has no other lock

# hold_rules / release_rules: descriptor 7.
hold_rules() { { exec 7>>"$RULES_LOCK"; } && perl -e "$HOLD" 7 10; }
release_rules() { exec 7>&-; }

# list_rules: the rules in the helper's anchor.
list_rules() { pfctl -a "$ANCHOR" -s nat && pfctl -a "$ANCHOR" -s rules; }

# note_listing: writes the listing that the watcher compares with. The same text gives the same listing, so the
# listing is written only for a new text. The watcher does not write it when it loads the rules again: another
# program is changing rules then, and its rules could be taken for the helper's.
note_listing() {
  local text
  text=$(list_rules) && write_file "$LISTED" 0600 root "$text"$'\n'
}

# pf_words: the first line of pfctl's error output, without its constant messages.
pf_words() {
  local line
  while IFS= read -r line; do
    case $line in
    '' | *ALTQ* | "pfctl: Use of -f option"* | *"present in the main ruleset"* | "See /etc/pf.conf"*) ;;
    *)
      line=${line//[[:cntrl:]]/ }
      printf '%s' "${line:0:300}"
      return
      ;;
    esac
  done <<<"$1"
}

# load_rules TEXT: all or nothing; the former rules stay on failure.
load_rules() {
  local output
  output=$(pfctl -q -a "$ANCHOR" -f - 2>&1 <<<"$1") ||
    die "The firewall rules were not accepted ($(pf_words "$output"))."
}

# list_filter: the main rules for packets in the order of pf.conf: normalising, then dummynet, then filtering.
# Loading filter rules also replaces the dummynet rules, which "-s rules" does not show. A pfctl that does not know
# dummynet has none.
list_filter() {
  local rules line dummynet
  rules=$(pfctl -s rules) || return 1
  dummynet=$(pfctl -s dummynet) || dummynet=''
  while IFS= read -r line; do [[ $line != *scrub* ]] || printf '%s\n' "$line"; done <<<"$rules"
  [[ -z $dummynet ]] || printf '%s\n' "$dummynet"
  while IFS= read -r line; do [[ $line == *scrub* ]] || printf '%s\n' "$line"; done <<<"$rules"
}

# skipped_devices: prints the network devices that the main rules leave out ("set skip on"). No anchor's rules
# apply there.
skipped_devices() {
  local listing line
  listing=$(pfctl -v -s Interfaces) || return 1
  while IFS= read -r line; do
    [[ $line != *" (skip)"* ]] || printf '%s ' "${line%% *}"
  done <<<"$listing"
}

# put_reference: makes the main rules evaluate the helper's anchor first. pfctl reads and writes them, each kind
# separately, and never through a pipe: if the writing end were killed, pfctl would load the half that it got.
put_reference() {
  local filter nat output
  { filter=$(list_filter) && nat=$(pfctl -s nat); } || die "The firewall's main rules cannot be read."
  if [[ $(print_without "$nat") == "$nat" ]]; then
    nat=$(print_referring nat "$nat")
    output=$(pfctl -q -N -f - 2>&1 <<<"$nat") ||
      die "The firewall's main rules cannot be changed ($(pf_words "$output"))."
  fi
  # Another program may have put its rules before the anchor since.
  if [[ $(print_referring filter "$filter") != "$(print_normal "$filter")" ]]; then
    filter=$(print_referring filter "$filter")
    output=$(pfctl -q -R -f - 2>&1 <<<"$filter") ||
      die "The firewall's main rules cannot be changed ($(pf_words "$output"))."
  fi
}

# print_normal TEXT: the main rules with the anchor's line as the helper writes it; pfctl prints an additional
# word.
print_normal() {
  local line
  while IFS= read -r line; do
    [[ $line != "anchor \"$ANCHOR\""* ]] || line="anchor \"$ANCHOR\""
    [[ -z $line ]] || printf '%s\n' "$line"
  done <<<"$1"
}

# take_back_reference: status 1 when the main rules still name the anchor.
take_back_reference() {
  local filter nat
  filter=$(list_filter) && nat=$(pfctl -s nat) || return 1
  if [[ $(print_without "$filter") != "$filter" ]]; then
    filter=$(print_without "$filter")
    pfctl -q -R -f - <<<"$filter" || return 1
  fi
  if [[ $(print_without "$nat") != "$nat" ]]; then
    nat=$(print_without "$nat")
    pfctl -q -N -f - <<<"$nat" || return 1
  fi
}

readonly TOKEN_LINE='Token : ([0-9]+)'

# held_token: prints the token of the current entry, if pf still knows it. A run that was killed before it could
# record its token has recorded the process that took it. Status 2: unknown.
held_token() {
  local token enabler pid name held rest boot listing
  boot=$(boot_id) || return 2
  [[ $(journal_value boot) == "$boot" ]] || return 0
  token=$(journal_value token) || token=''
  enabler=$(journal_value enabler) || enabler=''
  [[ -n $token$enabler ]] || return 0
  listing=$(pfctl -s References) || return 2
  while read -r pid name held rest; do
    [[ $held =~ ^[0-9]+$ ]] || continue
    if [[ $held == "$token" ]] || [[ -z $token && $pid == "$enabler" && $name == pfctl ]]; then
      printf '%s' "$held"
      return 0
    fi
  done <<<"$listing"
}

# enable_firewall: keeps pf enabled until the token is released.
enable_firewall() {
  local output token boot
  journal_read "$FIREWALL_ENTRY" || true
  { boot=$(boot_id) && token=$(held_token); } || die "The firewall's state cannot be read."
  if [[ -z $token ]]; then
    # In bash 3.2 a subshell learns its process id only from a child. pfctl has the same id, because the subshell
    # becomes pfctl.
    # shellcheck disable=SC2016
    output=$(
      pid=$(exec sh -c 'echo "$PPID"') &&
        journal_put "$FIREWALL_ENTRY" "boot $boot" "enabler $pid" && exec pfctl -E 2>&1
    ) || die "The firewall cannot be switched on ($(pf_words "$output"))."
    [[ $output =~ $TOKEN_LINE ]] || die "The firewall gave no token."
    token=${BASH_REMATCH[1]}
  fi
  journal_must "$FIREWALL_ENTRY" "boot $boot" "token $token"
}

# kill_states: removes all of pf's states, so that connections from before a change end.
kill_states() { pfctl -q -F states; }

# kill_switch_stands: queries the kernel; the marker alone may be from before a restart of the computer. Status 2:
# the kernel gave no answer. 3: it stands, but the main rules leave out a device.
kill_switch_stands() {
  local info main rules skipped
  info=$(pfctl -s info) && main=$(pfctl -s rules) && rules=$(pfctl -a "$ANCHOR" -s rules) && skipped=$(skipped_devices) || return 2
  [[ $info == *"Status: Enabled"* && $main == *"anchor \"$ANCHOR\""* && $rules == *"block return out quick all"* ]] || return 1
  [[ -z $skipped ]] || return 3
}

# put_firewall MODE: marker, rules, reference, pf itself, old connections, in this order. The rules' text is saved
# first.
put_firewall() {
  local text udp=0
  if [[ $1 == strict ]]; then
    [[ -z $USED_SNOWFLAKE ]] || udp=1
    text=$(print_strict_rules "$TOR_UID" "$CALLER_UID" "$OPT_LAN" "$udp" "$BYPASS_GID")
  else
    text=$(print_proxy_rules "$TOR_UID" "$CALLER_UID")
  fi
  hold_rules || die "Another program is changing the firewall. Try again in a moment."
  put_marker "$1"
  write_file "$RULES" 0600 root "$text"$'\n' || die "The file $RULES cannot be written."
  put_rules "$text"
  note_listing || die "The file $LISTED cannot be written."
  release_rules
}

# need_devices: ends the run where the main rules leave out a device.
need_devices() {
  local skipped
  skipped=$(skipped_devices) || die "The firewall's devices cannot be read."
  [[ -z $skipped ]] || die "The firewall leaves out the network device ${skipped%% *} (\"set skip\" in /etc/pf.conf), where nothing would be blocked."
}

# put_rules TEXT: the caller holds the lock on the rules.
put_rules() {
  need_devices
  load_rules "$1"
  put_reference
  enable_firewall
  kill_states || die "The firewall cannot end the earlier connections."
}

# undo_firewall: empty rules open the network; the other steps only clean up. Status 3: the network is open, but
# the entry must stay.
undo_firewall() {
  local output token
  # Held to the end of the run, when the marker is removed too.
  if command -v perl >/dev/null && ! hold_rules; then
    UNDONE="The kill switch could not be switched off, because another program is changing the firewall."
    return 1
  fi
  if ! output=$(pfctl -q -a "$ANCHOR" -f - 2>&1 </dev/null); then
    UNDONE="The kill switch could not be switched off ($(pf_words "$output"))."
    return 1
  fi
  kill_states || true
  if ! take_back_reference; then
    UNDONE="The network is open, but the firewall's main rules could not be put back."
    return 3
  fi
  if ! token=$(held_token) || { [[ -n $token ]] && ! pfctl -q -X "$token"; }; then
    UNDONE="The network is open, but pf could not be released."
    return 3
  fi
}
