#!/bin/bash
# walls.sh COMMAND...: runs a test of a program with a mistake where no mistake can do harm. It has no network, and sees only its
# own processes. It can write only to /tmp, /run and similar folders, which are empty, in memory and its own. Status 125 when the
# walls cannot be built.
set -u
if [[ ${1-} != --inside ]]; then
    user=()
    [[ $EUID -eq 0 ]] || user=(--user --map-root-user)
    # It ends at once with the caller.
    exec setpriv --pdeathsig KILL unshare ${user[@]+"${user[@]}"} --mount --net --pid --fork --kill-child --mount-proc /bin/bash -- "$0" --inside "$@"
fi
shift
{
    mount --make-rprivate /
    ip link set lo up
    # Mounts of control groups and devices stay unchanged.
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
# A test may have left a process that cleans up (its control group). It gets time here, since the first process takes all others
# with it.
for ((wait = 0; wait < 250; wait++)); do
    shopt -s nullglob
    processes=(/proc/[0-9]*)
    ((${#processes[@]} > 1)) || break
    sleep 0.1
done
exit "$status"
