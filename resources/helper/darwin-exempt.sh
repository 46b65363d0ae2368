
# ---- macOS: applications that bypass Tor -------------------------------------------------------------------
# They run as the user with a separate group. It has no members, so only root can start a program in it. The
# firewall lets out the traffic of sockets that were created with that group. Child processes keep it.

readonly EXEMPT_GROUP=_veldmark_exempt
readonly LAUNCHER_SECONDS=20

EXEMPT_GID=''   # empty when the rules must not name it

# ready_exempt: creates the group if it is missing. Without the group no application bypasses Tor.
ready_exempt() {
  EXEMPT_GID=$(ready_group "$EXEMPT_GROUP" "Applications without Tor") || EXEMPT_GID=''
  if ! is_uid "${EXEMPT_GID:-x}" || [[ $EXEMPT_GID == 0 || $EXEMPT_GID == "$TOR_GID" ]]; then
    EXEMPT_GID=''
  fi
  # A member could enter the group without the helper.
  [[ -z $(record_value "/Groups/$EXEMPT_GROUP" GroupMembership) ]] || EXEMPT_GID=''
}

# find_launcher: sets LAUNCHER to the program that starts the application. It runs only with the caller's rights,
# so it does not matter who can change it.
LAUNCHER=''
find_launcher() {
  local path
  for path in "${SELF%/*}/veldmark-launch" "${SELF%/*}/../MacOS/veldmark-launch"; do
    LAUNCHER=$path
    [[ ! -f $path || ! -x $path ]] || return 0
  done
  return 1
}

# run_launcher PATH: runs it in the caller's login session, which can open windows.
run_launcher() {
  local groups
  groups=$(caller_groups) || return 1
  env -i PATH="$PATH" LC_ALL=C HOME="$CALLER_HOME" launchctl asuser "$CALLER_UID" \
    perl -e "$BECOME" "$LAUNCHER_SECONDS" "$CALLER_UID" "$EXEMPT_GID" "$EXEMPT_GID $groups" \
    "$LAUNCHER" --app "$1" 8>&- 9>&-
}

# darwin_launch: starts the application as the caller and no other user. Every start needs a prompt, also under the
# password-free rule: otherwise any program of the user could leave unseen while the kill switch counts as active.
darwin_launch() {
  local words
  parse_options " --uid --app " "$@"
  [[ -n $OPT_UID ]] || die "The option --uid is missing."
  [[ -n $OPT_APP ]] || die "The option --app is missing."
  is_uid "$OPT_UID" || die "The user id is not a number."
  [[ $OPT_UID != 0 ]] || die "Applications are not opened as root."
  [[ $OPT_APP == /*.app || $OPT_APP == /*.app/ ]] || die "The path given with --app names no application."
  [[ $OPT_UID == "$CALLER_UID" ]] || die "Applications can be opened for the user who asks only."
  [[ -n $PROMPTED ]] || unapproved "An administrator password is needed to open an application without Tor."
  need_programs perl pfctl launchctl dscl dscacheutil stat
  find_launcher || die "The program veldmark-launch is missing."
  take_lock
  trap finish EXIT
  read_accounts
  [[ -n $CALLER_NAME && $CALLER_GID =~ ^[0-9]+$ ]] || die "The user with the id $CALLER_UID is not known on this system."
  { folders_are_safe && [[ $(read_marker) == strict ]] && kill_switch_stands; } ||
    die "The kill switch is not on, so there is nothing to open the application past."
  ready_exempt
  [[ -n $EXEMPT_GID && $(<"$RULES") == *" group $EXEMPT_GID "* ]] ||
    die "Applications cannot be opened without Tor on this system."
  words=$(run_launcher "$OPT_APP" 2>&1 </dev/null | head -c 2000) && return 0
  words=${words%%$'\n'*}
  words=${words//[[:cntrl:]]/ }
  die "${words:-The application could not be started.}"
}
