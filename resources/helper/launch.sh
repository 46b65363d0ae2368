
# ---- Opening an application that bypasses Tor --------------------------------------------------------------
# Only as the caller, and only after a prompt, also in passwordless mode: otherwise any program of the user's could
# bypass Tor unnoticed while the kill switch is reported as on. The system's own part defines find_launcher,
# run_launcher and bypass_stands.

readonly LAUNCHER_SECONDS=20
readonly LAUNCHER_BYTES=2000   # of its output; more is not read

# choose_launcher PATH...: sets LAUNCHER to the first of these programs. It reads the application's entry and runs
# with the caller's rights only, so it need not be protected from changes.
LAUNCHER=''
choose_launcher() {
  local path
  for path in "$@"; do
    LAUNCHER=$path
    [[ ! -f $path || ! -x $path ]] || return 0
  done
  return 1
}

check_launch() {
  parse_options " --uid --app " "$@"
  [[ -n $OPT_UID ]] || die "The option --uid is missing."
  [[ -n $OPT_APP ]] || die "The option --app is missing."
  is_uid "$OPT_UID" || die "The user id is not a number."
  [[ $OPT_UID == "$CALLER_UID" ]] || die "The helper opens applications only for the user who asks."
  [[ $OPT_UID != 0 ]] || die "Applications are not opened as root."
  [[ $OPT_APP == /* ]] || die "The path given with --app is not absolute."
  [[ -n $PROMPTED ]] || unapproved "An administrator password is needed to open an application without Tor."
}

ready_launch() {
  find_launcher || die "The program veldmark-launch is missing."
  take_lock
  trap finish EXIT
  read_accounts
  [[ -n $CALLER_NAME && $CALLER_GID =~ ^[0-9]+$ ]] || die "The user with the id $CALLER_UID is not known on this system."
  { folders_are_safe && [[ $(read_marker) == strict ]] && kill_switch_stands; } ||
    die "The kill switch is not on, so no application needs to bypass it."
  bypass_stands || die "Applications cannot be opened without Tor on this system."
}

open_application() {
  local words
  words=$(run_launcher "$OPT_APP" 2>&1 </dev/null | take_output $((LAUNCHER_SECONDS + 2)) "$LAUNCHER_BYTES") && return 0
  words=${words%%$'\n'*}
  words=${words//[[:cntrl:]]/ }
  die "${words:-The application could not be started.}"
}
