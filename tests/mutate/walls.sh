#!/bin/bash
# walls.sh COMMAND...: runs a test of a program with a mistake in it where it can do no harm, whatever the mistake is: without a
# network, where it sees no process but its own, and where nothing can be written but /tmp, /run and the like, which are empty, in memory
# and its own. Status 125 when the walls cannot be built.
set -u
if [[ ${1-} != --inside ]]; then
    user=()
    [[ $EUID -eq 0 ]] || user=(--user --map-root-user)
    # Without the one who asked it ends at once.
    exec setpriv --pdeathsig KILL unshare ${user[@]+"${user[@]}"} --mount --net --pid --fork --kill-child --mount-proc /bin/bash -- "$0" --inside "$@"
fi
shift
{
    mount --make-rprivate /
    ip link set lo up
    # Of what is mounted below, control groups and devices stay as they are.
    while read -r place kind; do
        case $place,$kind in
        /proc* | /sys* | /dev*) ;;
        *,ext[234] | *,xfs | *,btrfs | *,overlay | *,tmpfs) mount -o remount,bind,ro "$place" || exit 125 ;;
        esac
    done < <(findmnt -rn -o TARGET,FSTYPE)
    for place in /tmp /var/tmp /run; do mount -t tmpfs -o mode=1777 private "$place" || exit 125; done
    chmod 0755 /run
} 2>/dev/null
mkdir -m 0700 /tmp/home
export HOME=/tmp/home TMPDIR=/tmp
unset XDG_RUNTIME_DIR DBUS_SESSION_BUS_ADDRESS DISPLAY WAYLAND_DISPLAY
"$@"
status=$?
# What a test has left to clear up after it (its control group) gets its time: the first process takes all others with it.
for ((wait = 0; wait < 250; wait++)); do
    shopt -s nullglob
    processes=(/proc/[0-9]*)
    ((${#processes[@]} > 1)) || break
    sleep 0.1
done
exit "$status"
