
# ---- macOS: running Tor ------------------------------------------------------------------------------------
# Tor is a launchd job, in the account _veldmark and with its process group, so its transports end with it. Its
# label identifies it. Its description is in the helper's own folder, so that it does not start after a restart of
# the computer.

readonly TOR_ENTRY=20-tor
readonly TOR_LABEL=veldmark.tor
readonly TOR_JOB=$RUN/tor.plist           # 0644
readonly LAUNCHD_OUT=$RUN/launchd.out     # Tor's output before it opens its log
readonly SPAWN_POLLS=20    # of about 0.1 s: launchd has a process for it by then
readonly START_POLLS=100   # of about 0.1 s: Tor opens its control port within 10 s or has failed

print_tor_job() {
  print_job "$TOR_LABEL" "$OPT_TOR" -f "$TORRC" <<END
	<key>UserName</key>
	<string>$TOR_ACCOUNT</string>
	<key>GroupName</key>
	<string>$TOR_ACCOUNT</string>
	<key>InitGroups</key>
	<false/>
	<key>EnvironmentVariables</key>
	<dict>
		<key>HOME</key>
		<string>$DATA</string>
		<key>LC_ALL</key>
		<string>C</string>
		<key>PATH</key>
		<string>$PATH</string>
	</dict>
	<key>Umask</key>
	<integer>63</integer>
	<key>StandardOutPath</key>
	<string>$LAUNCHD_OUT</string>
	<key>StandardErrorPath</key>
	<string>$LAUNCHD_OUT</string>
	<key>KeepAlive</key>
	<false/>
	<key>ExitTimeOut</key>
	<integer>4</integer>
END
}

# tor_listens PROCESS: whether it has opened the control port.
tor_listens() {
  local held
  held=$(lsof -nP -a -p "$1" -iTCP:"$CONTROL_PORT" -sTCP:LISTEN -t) && [[ $held == "$1" ]]
}

# ready_logs: empties the log files. Tor writes them through its group, and only the session's user may read them:
# the user's own group may include all users.
ready_logs() {
  rm -f -- "$NOTICES" "$LAUNCHD_OUT" && : >"$NOTICES" && : >"$LAUNCHD_OUT" &&
    chown -- "$CALLER_UID:$TOR_GID" "$NOTICES" "$LAUNCHD_OUT" && chmod -- 0460 "$NOTICES" "$LAUNCHD_OUT"
}

tor_failure() {
  local reason
  reason=$(tor_reason "$(cat -- "$LAUNCHD_OUT" "$NOTICES" | tail -c 16384 | tr -d '\0')")
  printf '%s' "${reason:-it ended without a message.}"
}

# put_tor: returns once Tor listens on its control port.
put_tor() {
  local process poll output status had=''
  put_in_place "$TORRC.checked" "$TORRC" || die "The file $TORRC cannot be written."
  ready_logs || die "Tor's log files cannot be made."
  write_file "$TOR_JOB" 0644 root "$(print_tor_job)"$'\n' || die "The file $TOR_JOB cannot be written."
  journal_must "$TOR_ENTRY" "label $TOR_LABEL"
  output=$(start_job "$TOR_LABEL" "$TOR_JOB" 2>&1) || {
    output=${output##*$'\n'}
    die "Tor could not be started (${output//[[:cntrl:]]/ })."
  }
  for ((poll = 0; poll < START_POLLS; poll++)); do
    status=0
    process=$(job_process "$TOR_LABEL") || status=$?
    ((status != 1)) || die "Tor did not start: $(tor_failure)"
    # Tor opens all its ports before it fails because of one of them.
    if [[ -n $process ]]; then
      had=1
      if tor_listens "$process" && [[ $(<"$LAUNCHD_OUT")$(<"$NOTICES") != *"Could not bind to"* ]]; then
        return
      fi
    elif [[ -n $had ]] || ((poll >= SPAWN_POLLS && status == 0)); then
      die "Tor did not start: $(tor_failure)"
    fi
    sleep 0.1
  done
  die "Tor did not open its control port in time."
}

# undo_tor: needs no record, because launchd knows the job by its label.
undo_tor() {
  stop_job "$TOR_LABEL" && rm -f -- "$TOR_JOB" && return 0
  UNDONE="Tor could not be stopped."
  return 1
}
