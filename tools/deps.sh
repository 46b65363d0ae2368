# Sourced by build.sh: the Debian packages that its verbs need, and how they are installed.
# shellcheck shell=bash

# For compiling the programs.
compiling_packages=(
    g++ cmake ninja-build pkg-config ccache
    libglib2.0-dev qt6-base-dev qt6-declarative-dev libgl-dev qcoro-qt6-dev libexpected-dev
    qt6-svg-dev qt6-tools-dev qt6-l10n-tools qt6-declarative-dev-tools
)
# For the programs at run time, and for the private Tor network of the demonstration.
running_packages=(
    qml6-module-qtquick
    qml6-module-qtquick-templates qml6-module-qtquick-window qml6-module-qtquick-layouts
    qml6-module-qtqml qml6-module-qtqml-models qml6-module-qtqml-workerscript
    fonts-noto-core fonts-noto-mono fonts-noto-color-emoji fonts-wqy-microhei
    tor tor-geoipdb obfs4proxy snowflake-client nftables iproute2 util-linux passwd procps sudo
    python3 openssl ca-certificates curl
    libglib2.0-bin dconf-cli dconf-gsettings-backend gsettings-desktop-schemas dbus dbus-daemon
)
# For making and checking the Debian package.
packaging_packages=(
    git dpkg-dev lintian
)
# For the other verbs: tests, sanitizers, fuzzers, benchmarks.
development_packages=(
    pkexec polkitd gnupg
    tcpdump shellcheck clang-format black unzip netcat-openbsd openssh-client iputils-ping zsh dash
    python3-stem nyx
    clang libclang-rt-14-dev libobjc-12-dev gcovr clang-16 clang-tidy-16 libc++-16-dev libc++abi-16-dev
    xvfb xauth xdotool openbox at-spi2-core gir1.2-atspi-2.0 python3-gi python3-dbus
    debootstrap appstream desktop-file-utils mandoc
)

missing_packages() {
    local installed name
    installed=$(dpkg-query -W -f '${db:Status-Abbrev} ${Package}\n' 2>/dev/null | awk '$1 == "ii" { print $2 }')
    for name in "$@"; do
        grep -qxF -- "$name" <<<"$installed" || printf '%s\n' "$name"
    done
}

# Prints apt's progress from its status descriptor, as "[percent/100]".
apt_percent() {
    awk -F: '/^(dl|pm)status:/ { part = $1 == "dlstatus" ? $3 * 0.4 : 40 + $3 * 0.6; printf "[%d/100]\n", part; fflush() }'
}

# asks_again SECONDS COMMAND...: runs apt-get's update, once more each second while another program holds the lists.
asks_again() {
    local deadline=$((SECONDS + $1)) output status
    shift
    while :; do
        status=0
        output=$("$@" 2>&1) || status=$?
        if ((SECONDS >= deadline)) || [[ $status -eq 0 || $output != *"Could not get lock"* ]]; then break; fi
        sleep 1
    done
    printf '%s\n' "$output"
    return "$status"
}

# install_packages NAME...: Debian starts a service when its package is installed. No verb needs a running tor, and such a tor
# would connect to the public network: dpkg starts no service meanwhile.
install_packages() {
    local -a root=()
    if [[ $EUID -ne 0 ]]; then
        command -v sudo >/dev/null || die "some packages are missing and there is no sudo: run ./build.sh deps as root once"
        root=(sudo)
        sudo -v 2>/dev/null || die "sudo refused: run ./build.sh deps as root once"
    fi
    local log
    log=$(mktemp 2>/dev/null) || die "$(explain_failure <(echo "${TMPDIR:-/tmp}/x: No space left on device"))"
    # Seconds to wait for another program that installs packages.
    local policy=/usr/sbin/policy-rc.d status=0 wait=${VELDMARK_APT_WAIT:-60}
    if [[ ! -e $policy ]]; then
        # Removed also after an interruption: otherwise this computer would start no service any more.
        # shellcheck disable=SC2064
        trap "${root[*]} rm -f $policy" EXIT
        printf '#!/bin/sh\nexit 101\n' | "${root[@]}" tee "$policy" >/dev/null
        "${root[@]}" chmod 755 "$policy"
    fi
    local -a apt=("${root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -o "DPkg::Lock::Timeout=$wait")
    # Completes an interrupted earlier run.
    [[ -z $(dpkg --audit 2>/dev/null) ]] ||
        busy "Finishing an interrupted installation" "$log" "${root[@]}" env DEBIAN_FRONTEND=noninteractive dpkg --configure -a || true
    if busy "Asking Debian's registry" "$log" asks_again "$wait" "${apt[@]}" update &&
        busy "Waiting for another program that installs packages" "$log" "${apt[@]}" check; then
        "${apt[@]}" -o APT::Status-Fd=3 install -y --no-install-recommends "$@" 3> >(apt_percent | progress "Installing packages, percent") >>"$log" 2>&1 ||
            status=$?
    else
        status=1
    fi
    if [[ -e $policy && $(trap -p EXIT) == *"$policy"* ]]; then
        "${root[@]}" rm -f "$policy"
        trap - EXIT
    fi
    if [[ $status -ne 0 ]]; then
        local reason
        reason=$(explain_failure "$log")
        [[ -n $reason ]] || reason="installing packages failed ($(grep -m 1 -E '^E:' "$log" || echo "apt gave no reason")); the whole output is in $log"
        die "$reason"
    fi
    rm -f "$log"
}

# deps [compiling|programs|package]: installs the missing packages of all verbs, or only those for compiling the programs, for
# running and showing them too, or for packaging them.
deps() {
    local -a wanted=("${compiling_packages[@]}") missing=()
    case ${1:-} in
    compiling) ;;
    programs) wanted+=("${running_packages[@]}") ;;
    package) wanted+=("${packaging_packages[@]}") ;;
    *) wanted+=("${running_packages[@]}" "${packaging_packages[@]}" "${development_packages[@]}") ;;
    esac
    command -v dpkg-query >/dev/null ||
        die "only Debian 12 and its descendants are set up by this script; install the equivalents of: ${wanted[*]}"
    local name
    while read -r name; do missing+=("$name"); done < <(missing_packages "${wanted[@]}")
    [[ ${#missing[@]} -gt 0 ]] || return 0
    printf 'Installing %d packages: %s\n' "${#missing[@]}" "${missing[*]}"
    install_packages "${missing[@]}"
}
