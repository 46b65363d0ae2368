# Sourced by build.sh: shows the progress of steps that take longer than two seconds.
# shellcheck shell=bash

# progress WHAT: shows the progress of lines with "[done/total]" or "done/total" at their start. On a terminal that is one line
# that changes, otherwise one line for each tenth. It prints nothing else: the caller keeps the rest in a log.
progress() {
    local what=$1 line finished total tenth=-1 shown=
    while IFS= read -r line; do
        [[ $line =~ ^\[?([0-9]+)/([0-9]+)[]\ ]? ]] || continue
        finished=${BASH_REMATCH[1]} total=${BASH_REMATCH[2]}
        ((total > 0)) || continue
        if [[ -t 1 ]]; then
            printf '\r%s: %d of %d ' "$what" "$finished" "$total"
            shown=yes
        elif ((finished * 10 / total > tenth)); then
            tenth=$((finished * 10 / total))
            printf '%s: %d of %d\n' "$what" "$finished" "$total"
        fi
    done
    [[ -z $shown ]] || printf '\r\033[K'
}

# busy WHAT LOG COMMAND...: runs a command that cannot count its steps, and appends its output to LOG. A terminal shows the
# seconds; otherwise a line is printed after two seconds and one each half minute. The status is the command's.
busy() {
    local what=$1 log=$2 started=$SECONDS passed told=0 status=0 child
    shift 2
    "$@" >>"$log" 2>&1 &
    child=$!
    # A background command does not get Ctrl-C.
    # shellcheck disable=SC2064
    trap "kill $child 2>/dev/null; exit 130" INT TERM
    while kill -0 "$child" 2>/dev/null; do
        sleep 0.1
        passed=$((SECONDS - started))
        if [[ -t 1 ]]; then
            ((passed < 1)) || printf '\r%s: %d s ' "$what" "$passed"
        elif ((passed >= 2 && passed >= told + (told > 0 ? 30 : 0))) && ((passed != told)); then
            told=$passed
            printf '%s: %d s\n' "$what" "$passed"
        fi
    done
    wait "$child" || status=$?
    trap - INT TERM
    [[ ! -t 1 ]] || printf '\r\033[K'
    return "$status"
}

# has_room KB: whether that much space is left for temporary files.
has_room() {
    (($(df --output=avail -k "${TMPDIR:-/tmp}" | tail -n 1) >= $1))
}

# explain_failure LOG: prints what is wrong with this computer and the remedy in one line, from the log of a failed step; nothing
# when the log has none of these errors.
explain_failure() {
    local log=$1
    local full="${TMPDIR:-/tmp} is full: make room there, or set TMPDIR to a folder with 1 GB, and run this again"
    if grep -qE 'No space left on device|have enough free space' "$log"; then
        if grep -qE '/tmp/[^ ]*: No space left|error writing to /tmp|cannot create temporary' "$log" || ! has_room 51200; then
            printf '%s' "$full"
        else
            printf 'the disk is full: make room (a full build takes 3 GB) and run this again'
        fi
    elif grep -qE 'Could not get lock|is another process using it|Unable to acquire the dpkg frontend lock' "$log"; then
        printf 'another program is installing packages: run this again when it has ended'
    elif grep -qE 'Temporary failure resolving|Could not resolve|Could not connect|Connection failed|Unable to connect|Network is unreachable|Failed getting release file' "$log"; then
        printf "Debian's registry cannot be reached: connect to the network and run this again"
    elif grep -qE 'Unable to locate package|has no installation candidate' "$log"; then
        printf 'a package is unknown to apt (%s): only Debian 12 and its descendants have them all' \
            "$(sed -nE 's/^E: (Unable to locate package|Package .* has no).*$/&/p' "$log" | head -n 1)"
    elif grep -qE 'a password is required|a terminal is required|is not in the sudoers file|may not run sudo' "$log"; then
        printf 'sudo refused: run ./build.sh deps as root once'
    elif grep -qE 'Permission denied' "$log"; then
        printf 'a file may not be written (%s): this checkout, or its build folder, belongs to another user' \
            "$(grep -m 1 -E 'Permission denied' "$log" | cut -c1-120)"
    elif ! has_room 1024; then
        printf '%s' "$full" # the log is there too, and then lacks the message
    fi
}
