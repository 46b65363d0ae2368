#!/bin/bash -p
# stepped.sh HELPER COUNT_FILE KILL_AT ARGUMENT...: runs the helper's functions and kills the shell with SIGKILL before
# its KILL_ATth command; 0 never does, and writes the number of commands to COUNT_FILE. Subshells count on from the
# number at which they began, so a kill may also come while one of them is at work.
helper=$1 count_file=$2 kill_at=$3 step=0
shift 3
set -o functrace
. "$helper"
trap '((++step == kill_at)) && kill -KILL $$' DEBUG
main "$@"
trap - DEBUG
printf '%s\n' "$step" >"$count_file"
