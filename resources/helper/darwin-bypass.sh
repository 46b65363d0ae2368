
# ---- macOS: applications that bypass Tor -------------------------------------------------------------------
# They run as the user with a separate group. It has no members, so only root can start a program in it. The
# firewall lets out the traffic of sockets that were created with that group. Child processes keep it.

readonly BYPASS_GROUP=_veldmark_bypass

BYPASS_GID=''   # empty when the rules must not name it

# put_bypass: creates the group if it is missing. Without the group no application bypasses Tor.
put_bypass() {
  BYPASS_GID=$(ready_group "$BYPASS_GROUP" "Applications without Tor") || BYPASS_GID=''
  if ! is_uid "${BYPASS_GID:-x}" || [[ $BYPASS_GID == 0 || $BYPASS_GID == "$TOR_GID" ]]; then
    BYPASS_GID=''
  fi
  # A member could enter the group without the helper.
  [[ -z $(record_value "/Groups/$BYPASS_GROUP" GroupMembership) ]] || BYPASS_GID=''
}

# run_launcher PATH: runs it in the caller's login session, which can open windows.
run_launcher() {
  local groups
  groups=$(caller_groups) || return 1
  env -i PATH="$PATH" LC_ALL=C HOME="$CALLER_HOME" launchctl asuser "$CALLER_UID" \
    perl -e "$BECOME" "$LAUNCHER_SECONDS" "$CALLER_UID" "$BYPASS_GID" "$BYPASS_GID $groups" \
    "$LAUNCHER" --app "$1" 8>&- 9>&-
}

# find_launcher: sets LAUNCHER.
find_launcher() { choose_launcher "${SELF%/*}/veldmark-launch" "${SELF%/*}/../MacOS/veldmark-launch"; }

# bypass_stands: whether the rules in force let the group bypass Tor.
bypass_stands() {
  put_bypass
  [[ -n $BYPASS_GID && $(<"$RULES") == *" group $BYPASS_GID "* ]]
}

darwin_launch() {
  check_launch "$@"
  [[ $OPT_APP == /*.app || $OPT_APP == /*.app/ ]] || die "The path given with --app names no application."
  need_programs perl pfctl launchctl dscl dscacheutil stat
  ready_launch
  open_application
}
