
# ---- macOS: launchd jobs -----------------------------------------------------------------------------------
# A label identifies a job. Its file is in the helper's own folder, so that no job starts after a restart of the
# computer.

readonly BUSY_POLLS=20     # of about 0.1 s: until launchd has removed the former job
readonly STOP_POLLS=100    # of about 0.1 s: launchd kills a process that exceeds its time to end

readonly JOB_PROCESS='"PID" = ([0-9]+);'

# print_job LABEL WORD...: the description of a job that runs the words, which have only safe characters, as soon
# as it is loaded. Standard input: its other keys.
print_job() {
  local word
  cat <<END
<?xml version="1.0" encoding="UTF-8"?>
<!DOCTYPE plist PUBLIC "-//Apple//DTD PLIST 1.0//EN" "http://www.apple.com/DTDs/PropertyList-1.0.dtd">
<plist version="1.0">
<dict>
	<key>Label</key>
	<string>$1</string>
	<key>ProgramArguments</key>
	<array>
END
  for word in "${@:2}"; do printf '\t\t<string>%s</string>\n' "$word"; done
  printf '\t</array>\n'
  cat
  cat <<END
	<key>WorkingDirectory</key>
	<string>/</string>
	<key>RunAtLoad</key>
	<true/>
	<key>ProcessType</key>
	<string>Interactive</string>
</dict>
</plist>
END
}

# job_process LABEL: prints the process id of a job; nothing when it is loaded but does not run. Status 1: not
# loaded; 2: launchd gave no answer.
job_process() {
  local output status=0
  output=$(launchctl list "$1" 2>&1) || status=$?
  if ((status != 0)); then
    [[ $status == 113 || $output == *"Could not find service"* ]] || return 2
    return 1
  fi
  [[ ! $output =~ $JOB_PROCESS ]] || printf '%s' "${BASH_REMATCH[1]}"
}

# start_job LABEL FILE: prints the reason of a failure on standard error. Right after the end of a job with that
# label launchd reports for a while that the operation is in progress (37), or a general error (5).
start_job() {
  local poll status
  launchctl enable "system/$1" || true   # it may have been disabled permanently
  for ((poll = 0; poll < BUSY_POLLS; poll++)); do
    status=0
    launchctl bootstrap system "$2" || status=$?
    ((status == 5 || status == 37)) || return "$status"
    sleep 0.1
  done
  return "$status"
}

# stop_job LABEL: status 1 when it still exists after the time limit.
stop_job() {
  local poll status
  for ((poll = 0; poll < STOP_POLLS; poll++)); do
    status=0
    job_process "$1" >/dev/null || status=$?
    ((status != 1)) || return 0
    # bootout may return before a slow job has ended.
    if ((poll % 50 == 0)); then
      launchctl bootout "system/$1" || true
    else
      sleep 0.1
    fi
  done
  return 1
}
