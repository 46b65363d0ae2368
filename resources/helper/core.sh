#!/bin/bash -p
# Veldmark's root helper: starts and stops Tor, and sets the network up for Tor and restores it.
#
#   veldmark-helper.sh connect --tor PATH --hash HASH --strict 0|1 --lan 0|1 [--separate 0|1] [--exit CC]
#                      [--bridge LINE]... [--reserve LINE]... [--pt-lyrebird PATH] [--pt-snowflake PATH]
#                      [--pt-webtunnel PATH] [--bundle ARCHIVE]
#   veldmark-helper.sh replace …       connect that weakens the protection of a strict session
#   veldmark-helper.sh approve --program PATH --as tor|lyrebird|snowflake-client|webtunnel-client --sha256 DIGEST
#   veldmark-helper.sh disconnect [--process PID]
#   veldmark-helper.sh fix-dns
#   veldmark-helper.sh launch --uid UID --app PATH
#   veldmark-helper.sh install-privileged --user NAME [--launch PATH]
#   veldmark-helper.sh uninstall-privileged
#
# "-" instead of all options reads them from standard input: one word per line, the last line "end".
#
# Runs as root, through the administrator prompt or a sudo rule. Exit status 0 means success. Any other status
# comes with one line on standard error: "ERROR: " and a sentence for the user. Status 3: only an administrator's
# approval of the same verb is missing. Status 4: only the approval of a program (the verb approve) is missing.
#
# This file is joined from parts, in this order; the head of each describes its content:
#   core, options, files, note, addresses       messages and the caller, the words of the verbs, files, what Veldmark says
#   session, launch                             lock, marker and failures; opening an application that bypasses Tor
#   state, groups, programs, bundle, torrc      folders, accounts and journal; control groups; what may run as Tor
#   firewall, rules, bridges, loopback, others  the kill switch, transports' ports, the loopback device, other firewalls
#   resolver, resolved, names                   DNS
#   jobs, tor, service                          Tor, and Debian's own tor service
#   proxy, gnome, kde, services                 the desktop's proxy settings; macOS's network services
#   bypass, identify                            applications that bypass Tor; circuits of their own for each application
#   watcher, owner                              the process that keeps the rules in force; whose session it is
#   session, privileged, main                   connect and disconnect; passwordless mode; which verb runs
# put_KIND sets a part of the session up after it has noted the former state in the journal entry NUMBER-KIND, and
# undo_KIND restores that. Functions named print_... are pure: they write text to standard output and change nothing.

# Started as "bash FILE", without -p, bash has imported functions and BASH_ENV from the caller's environment. In
# POSIX mode such a function cannot replace `exec`, so start again with only the caller's uid.
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

SAID=''         # set after the first message
LOCKED=''       # set while a message must wait until the locks are released
MESSAGE=''      # the waiting message
CALLER_UID=''   # the session's user: the uid that sudo or pkexec reports, otherwise 0
PROMPTED=''     # 1 when an administrator approved this very run, empty under the passwordless rule
BY_DIALOG=''    # 1 when that was in a dialog that showed only the verb
VERB=''
SELF=''         # absolute path of this file
STAYS_CLOSED='' # added to the message when a failure leaves the kill switch on

# open_messages: from now on only say() writes to the caller's standard error, on descriptor 8, so that no
# program's own error message comes before the helper's sentence.
open_messages() {
  exec 8>&2 || exec 8>/dev/null
  exec 2>/dev/null
}

# say TEXT: one line for the user. Never fails, also without a reader. A full pipe of the caller can block the
# helper, so under a lock the message waits: finish prints it.
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

# unapproved TEXT [STATUS]: the same, when only an administrator's approval is missing.
unapproved() {
  say "$1$STAYS_CLOSED"
  exit "${2:-3}"
}

# print_text: prints standard input. Rules consist of many pieces, and cat would cost a process for each.
print_text() {
  local text
  IFS= read -r -d '' text || true
  printf '%s' "$text"
}

# The number patterns come before any arithmetic: bash would execute a command in an array index.
is_uid() {
  [[ $1 =~ ^(0|[1-9][0-9]{0,9})$ ]] && (($1 < 4294967295))
}

# C0 controls, DEL, and the C1 controls in their UTF-8 form.
has_controls() {
  [[ $1 == *[[:cntrl:]]* || $1 == *$'\xc2'[$'\x80'-$'\x9f']* ]]
}

# Removes everything from the environment but the caller's uid, so that it influences no child process.
clean_environment() {
  local name
  for name in $(compgen -e); do
    case $name in
    PATH | LC_ALL | PWD | OLDPWD | SHLVL | _ | SUDO_UID | PKEXEC_UID) ;;
    __CF_USER_TEXT_ENCODING) ;;   # macOS may add it to every program again; it affects no program that runs here
    *)
      exec /usr/bin/env -i ${SUDO_UID+SUDO_UID="$SUDO_UID"} ${PKEXEC_UID+PKEXEC_UID="$PKEXEC_UID"} \
        /bin/bash -p -- "$0" "$@"
      ;;
    esac
  done
}

# let_in_by_rule: whether sudo may have run this through the passwordless rule, which covers only the installed
# copy. Another copy runs by a right of the caller's own, by which an administrator allows more than this helper.
# Unclear cases count as the rule: a copy that is being removed, or one passed as an open file.
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
