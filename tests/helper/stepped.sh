#!/bin/bash -p
# stepped.sh HELPER CHANGES KILL_AFTER EDGE MARK ARGUMENT...: runs the helper's functions. Each command that changes something is
# written to the file CHANGES as one line, its way through the functions, before it runs. Right after the change whose line is
# KILL_AFTER the shell is killed with SIGKILL, and the subshell that it was made in; '' kills nothing. The program MARK runs once,
# before the first command that begins with EDGE ('' for none); for EDGE note_listing, before a kill that comes between the
# loading of the rules and that.
# The text of the trap runs by eval, and has the words that it compares as they are written.
# shellcheck disable=SC1090,SC2016,SC2034,SC2089,SC2090
helper=$1 changes=$2 kill_after=$3 edge=$4 mark=$5
shift 5
set -o functrace
. "$helper"
: >"$changes"

# The beginnings of commands that change something.
stepped_words=" mkdir mv rm rmdir chmod chown mount umount useradd kill timeout nft sync : networksetup pfctl exec launchctl perl dscl "

# is_change COMMAND
is_change() {
  [[ $stepped_words == *" ${1%% *} "* ]] || return 1
  case $1 in
  "timeout -k 1 5 /bin/sh -c 'exec 7>&- 8>&- 9>&-; exec readlink "*) return 1 ;;
  nft\ -f* | "nft delete "* | "sync -- \"\$1\"" | :\ \>*) ;;
  'networksetup "$@"'* | pfctl\ -q* | "exec pfctl"* | launchctl\ boot* | 'perl -e "$PUT"'* | dscl\ .\ -create*) ;;
  nft* | sync* | :* | networksetup* | pfctl* | exec* | launchctl* | perl* | dscl*) return 1 ;;
  esac
}

# stop_after COMMAND LINES: notes a change, and tells whether to stop after it. A line that repeats in a loop gets a number.
stop_after() {
  local line former='' number=0
  line="$2 $1"
  line=${line//[[:cntrl:]]/ }
  IFS= read -r -d '' former <"$changes" || true
  while [[ $former == *"$line #"* ]]; do former=${former#*"$line #"} number=$((number + 1)); done
  line="$line #$number"
  printf '%s\n' "$line" >>"$changes"
  [[ $line == "$kill_after" ]]
}

# at_edge COMMAND: whether to make the mark now.
at_edge() {
  [[ -n $edge && $1 == "$edge"* && ! -e $changes.marked ]] && : >"$changes.marked"
}

rm -f -- "$changes.marked"
stepped_text='
  if [[ -n $edge ]] && at_edge "$BASH_COMMAND"; then "$mark" || true; fi
  if is_change "$BASH_COMMAND" && stop_after "$BASH_COMMAND" "${FUNCNAME[*]} ${BASH_LINENO[*]}"; then
    # A subshell that becomes another program makes its change after the others are killed.
    case $BASH_COMMAND in exec\ *) kill -KILL $$ ;; esac
    eval "$BASH_COMMAND" || true
    if at_edge "${BASH_COMMAND/#nft -f*/note_listing}"; then "$mark" || true; fi
    kill -KILL $$ $BASHPID
  fi'
# Bash parses a trap again before each command, so this one is short.
trap '[[ "$stepped_words${edge%% *} " != *" ${BASH_COMMAND%% *} "* ]] || eval "$stepped_text"' DEBUG
main "$@"
