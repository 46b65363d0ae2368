
# ---- Running without a password prompt ---------------------------------------------------------------------
# A root-owned copy of this helper, and a sudo rule that lets one user run exactly that copy. The copy runs no
# program of the user without an approval, so the rule gives no power beyond the helper's verbs.

# The system's own part sets INSTALLED, the folder, and SUDO_DRAFT, where the rule is checked first.
readonly INSTALLED_HELPER=$INSTALLED/veldmark-helper.sh
readonly INSTALLED_LAUNCHER=$INSTALLED/veldmark-launch
readonly SUDO_RULE=/etc/sudoers.d/veldmark   # 0440

# print_sudo_rule UID: the rule for a number, so that a user name cannot have a special meaning in it.
print_sudo_rule() {
  local helper=${INSTALLED_HELPER// /\\ }
  cat <<END
# Written by Veldmark: this user may run its helper, and nothing else, without a password.
Defaults!$helper env_reset
#$1 ALL=(root) NOPASSWD:NOSETENV: $helper
END
}

# print_self PATH: the helper itself, which runs as root already, so root reads it. A program of the caller's could put
# words of its own into what a reader with the caller's rights prints.
print_self() { head -c "$MAX_PROGRAM_BYTES" -- "$1"; }

# install_file READER FROM TO: READER is print_self or, for what runs with the caller's rights only, print_file.
install_file() {
  local new=$3.new
  rm -f -- "$new"
  set -o noclobber
  : >"$new" || return 1
  set +o noclobber
  "$1" "$2" >"$new" && [[ -s $new ]] && chmod -- 0755 "$new" && put_in_place "$new" "$3" && return 0
  rm -f -- "$new"
  return 1
}

any_install-privileged() {
  local uid
  parse_options " --user --launch " "$@"
  [[ $OPT_USER =~ ^[A-Za-z0-9_][A-Za-z0-9_.@-]{0,63}\$?$ ]] || die "The user name is not valid."
  [[ -z $OPT_LAUNCH ]] || check_program --launch "$OPT_LAUNCH"
  # The rule itself must not be able to change which program it allows.
  [[ -n $PROMPTED ]] || die "An administrator password is needed to set this up."
  command -v visudo >/dev/null || die "sudo is not installed on this system."
  take_lock
  trap finish EXIT
  { uid=$(id -u -- "$OPT_USER") && is_uid "$uid"; } || die "The user $OPT_USER is not known on this system."
  [[ $uid != 0 ]] || die "The user root needs no password for the helper."
  [[ $CALLER_UID == 0 || $CALLER_UID == "$uid" ]] || die "Passwordless mode can be set up only for the user who asks."
  read_accounts
  root_owned /etc/sudoers.d || die "The folder /etc/sudoers.d is missing or not safe."
  make_installed
  root_owned "$INSTALLED" || die "The folder $INSTALLED is not safe: only root may own or write it and those above it."
  chmod -- 0755 "$INSTALLED" || die "The folder $INSTALLED cannot be changed."

  install_file print_self "$SELF" "$INSTALLED_HELPER" || die "The helper could not be copied to $INSTALLED."
  if [[ -n $OPT_LAUNCH ]]; then
    install_file print_file "$OPT_LAUNCH" "$INSTALLED_LAUNCHER" || die "The launcher could not be copied to $INSTALLED."
  fi
  { write_file "$SUDO_DRAFT" 0440 root "$(print_sudo_rule "$uid")"$'\n' &&
    visudo -c -q -f "$SUDO_DRAFT" >/dev/null; } || die "sudo rejects the rule for passwordless mode."
  rm -f -- "$SUDO_DRAFT"
  write_file "$SUDO_RULE" 0440 root "$(print_sudo_rule "$uid")"$'\n' || die "The file $SUDO_RULE cannot be written."
}

any_uninstall-privileged() {
  (($# == 0)) || die "The verb uninstall-privileged takes no options."
  take_lock
  trap finish EXIT
  rm -f -- "$SUDO_RULE" || die "The file $SUDO_RULE cannot be removed."
  rm -f -- "$INSTALLED_HELPER" "$INSTALLED_LAUNCHER" || die "The files in $INSTALLED cannot be removed."
  [[ ! -d $INSTALLED ]] || rmdir -- "$INSTALLED" || true
}
