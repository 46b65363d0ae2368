#!/bin/bash -p
# Veldmark's root helper: starts and stops Tor and switches the network over and back.
#
#   veldmark-helper.sh connect --tor PATH --hash HASH --strict 0|1 --lan 0|1 [--separate 0|1] [--exit CC]
#                      [--bridge LINE]... [--pt-lyrebird PATH] [--pt-snowflake PATH] [--pt-webtunnel PATH]
#                      [--bundle ARCHIVE]
#   veldmark-helper.sh replace …       connect, where that lessens what protects a strict session
#   veldmark-helper.sh approve --program PATH --as tor|lyrebird|snowflake-client|webtunnel-client --sha256 DIGEST
#   veldmark-helper.sh disconnect [--process PID]
#   veldmark-helper.sh fix-dns
#   veldmark-helper.sh launch --uid UID --app PATH
#   veldmark-helper.sh install-privileged --user NAME [--launch PATH]
#   veldmark-helper.sh uninstall-privileged
#
# "-" in place of all options reads them from standard input: a word on each line, the last line "end".
#
# Runs as root, through the administrator prompt or a sudo rule. Exit status 0 means done. Any other status
# comes with one line on standard error, "ERROR: " and a sentence for the user; 3 when only an administrator's
# approval of that very verb is missing.
#
# This file is joined from parts; each part's head says what it holds. Functions named print_... are pure:
# they write generated text to standard output and touch nothing.

# Started as "bash FILE", without -p, bash has taken functions and BASH_ENV from the caller's environment. In
# POSIX mode `exec` cannot be replaced by such a function, so begin again with nothing but the caller's uid.
case $- in
*p*) ;;
*)
  POSIXLY_CORRECT=1
  case $0 in */*) ;; *) exec /usr/bin/env -i ${SUDO_UID+SUDO_UID="$SUDO_UID"} \
    ${PKEXEC_UID+PKEXEC_UID="$PKEXEC_UID"} /bin/bash -p -- "./$0" "$@" ;; esac
  exec /usr/bin/env -i ${SUDO_UID+SUDO_UID="$SUDO_UID"} ${PKEXEC_UID+PKEXEC_UID="$PKEXEC_UID"} \
    /bin/bash -p -- "$0" "$@"
  ;;
esac

set -euo pipefail
umask 077
PATH=/usr/sbin:/usr/bin:/sbin:/bin
LC_ALL=C
export PATH LC_ALL

SAID=''         # set once there was a message
LOCKED=''       # set while what we say has to wait until we let go of our locks
MESSAGE=''      # what waits
CALLER_UID=''   # whose session this is: the uid that sudo or pkexec reports, else 0
PROMPTED=''     # 1 when an administrator approved this very run, empty under the password-free rule
BY_DIALOG=''    # 1 when that was in a dialog that showed no more than the verb
VERB=''
SELF=''         # absolute path of this file
STAYS_CLOSED='' # added to the message when a failure leaves the kill switch on

# open_messages: from here on only say() reaches the caller's standard error, on descriptor 8, so that no
# program's own complaint comes before our sentence.
open_messages() {
  exec 8>&2 || exec 8>/dev/null
  exec 2>/dev/null
}

# say TEXT: one line for the user. Never fails, also when nobody reads it any more. Whoever has us write into a full pipe makes us
# wait, so nothing is said while others wait for us: finish says it.
say() {
  SAID=1
  if [[ -n $LOCKED ]] && ((BASH_SUBSHELL == 0)); then
    MESSAGE=${MESSAGE:-$1}
  else
    printf 'ERROR: %s\n' "$1" >&8 || true
  fi
}

die() {
  say "$1$STAYS_CLOSED"
  exit 1
}

# unapproved TEXT: the same, where an administrator's approval is all that is missing.
unapproved() {
  say "$1$STAYS_CLOSED"
  exit 3
}

# print_text: prints standard input. Rules are of many pieces, and cat would be a process for each.
print_text() {
  local text
  IFS= read -r -d '' text || true
  printf '%s' "$text"
}

# The number patterns come before any arithmetic: bash would run a command hidden in an index.
is_uid() {
  [[ $1 =~ ^(0|[1-9][0-9]{0,9})$ ]] && (($1 < 4294967295))
}

# C0 controls, DEL, and the C1 controls in their UTF-8 form.
has_controls() {
  [[ $1 == *[[:cntrl:]]* || $1 == *$'\xc2'[$'\x80'-$'\x9f']* ]]
}

# Everything in the environment but the caller's uid goes, so that no child is steered by it.
clean_environment() {
  local name
  for name in $(compgen -e); do
    case $name in
    PATH | LC_ALL | PWD | OLDPWD | SHLVL | _ | SUDO_UID | PKEXEC_UID) ;;
    __CF_USER_TEXT_ENCODING) ;;   # macOS may put it back into every program, and it steers nothing that runs here
    *)
      exec /usr/bin/env -i ${SUDO_UID+SUDO_UID="$SUDO_UID"} ${PKEXEC_UID+PKEXEC_UID="$PKEXEC_UID"} \
        /bin/bash -p -- "$0" "$@"
      ;;
    esac
  done
}

# let_in_by_rule: whether sudo may have run this by the password-free rule, which is for the installed copy alone. Another
# copy runs by a right of the caller's own, with which an administrator has let them run more than this. What cannot be
# told counts as the rule: a copy that is just being removed, or one that was handed over as an open file.
let_in_by_rule() {
  case $SELF in
  "$INSTALLED"/* | /dev/*) return 0 ;;
  esac
  [[ ! -f $SELF || $SELF -ef $INSTALLED_HELPER ]]
}

identify_caller() {
  local id
  for id in ${SUDO_UID+"$SUDO_UID"} ${PKEXEC_UID+"$PKEXEC_UID"}; do
    is_uid "$id" || die "The caller's user id is not a number."
    [[ -z $CALLER_UID || $CALLER_UID == "$id" ]] || die "Two different callers were reported, so nothing was done."
    CALLER_UID=$id
  done
  [[ -n ${SUDO_UID+x} ]] && let_in_by_rule || PROMPTED=1
  [[ -z ${PKEXEC_UID+x} ]] || BY_DIALOG=1
  CALLER_UID=${CALLER_UID:-0}
  unset SUDO_UID PKEXEC_UID
  ((EUID == 0)) || die "The helper must run as root."
}
