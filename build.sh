#!/usr/bin/env bash
# The one entry to Veldmark's source tree. Each verb first does what it needs of the earlier ones.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"

usage() {
    cat <<'TEXT'
usage: ./build.sh VERB
  deps     install every Debian package that the other verbs need (only when one is missing)
  build    compile; programs in build/bin/
  run      start veldmarkctl in the foreground (arguments are handed on)
  demo     show the whole thing on a private Tor network: no internet, nothing changed outside it
  test     every test: unit, helper, lab and a moment of each fuzzer
  asan     the unit tests under the address and undefined-behaviour sanitizers
  tsan     the tests whose work crosses threads, under the thread sanitizer
  coverage which lines of src/ the unit tests run
  fuzz     the fuzzers, an hour over all (--minutes M for another time)
  soak     500 connects and disconnects, and two hours of a fast clock, in the private Tor network
  bench    print the benchmarks
  package  make the Debian package: build/veldmark_VERSION_ARCHITECTURE.deb
  package-test
           install, use, upgrade and remove that package on a clean Debian 12, in the private Tor network
  machine-test
           the package on a whole booted Debian 12 with its desktops, in the private Tor network
  dist     make the source archive build/veldmark-VERSION.tar.gz, and build it once without a network
TEXT
}

die() {
    printf 'build.sh: %s\n' "$1" >&2
    exit 1
}

# What compiles the programs, what they call, and what the tests and the private Tor network need.
packages=(
    g++ cmake ninja-build ccache pkg-config git
    libglib2.0-dev qt6-base-dev qt6-declarative-dev libgl-dev qcoro-qt6-dev libexpected-dev
    tor tor-geoipdb obfs4proxy nftables iproute2 util-linux sudo pkexec polkitd procps
    snowflake-client gnupg passwd
    python3 openssl ca-certificates curl tcpdump shellcheck unzip netcat-openbsd openssh-client iputils-ping zsh dash
    libglib2.0-bin dconf-cli dconf-gsettings-backend gsettings-desktop-schemas dbus
    python3-stem nyx
    clang libclang-rt-14-dev libobjc-12-dev gcovr
    qt6-svg-dev qt6-l10n-tools qt6-declarative-dev-tools qml6-module-qtquick
    qml6-module-qtquick-templates qml6-module-qtquick-window qml6-module-qtquick-layouts
    qml6-module-qtqml qml6-module-qtqml-models qml6-module-qtqml-workerscript
    fonts-noto-core fonts-noto-mono fonts-noto-color-emoji
    xvfb xauth xdotool openbox dbus-daemon at-spi2-core gir1.2-atspi-2.0 python3-gi python3-dbus
    dpkg-dev lintian debootstrap appstream desktop-file-utils mandoc
)

missing_packages() {
    local installed name
    installed=$(dpkg-query -W -f '${db:Status-Abbrev} ${Package}\n' 2>/dev/null | awk '$1 == "ii" { print $2 }')
    for name in "${packages[@]}"; do
        grep -qxF -- "$name" <<<"$installed" || printf '%s\n' "$name"
    done
}

# Debian starts a service when its package is installed. Nothing here wants a running tor, and
# a tor that starts by itself would talk to the public network: tell dpkg to start nothing.
install_packages() {
    local -a root=()
    if [[ $EUID -ne 0 ]]; then
        command -v sudo >/dev/null || die "these packages are missing; install them as root: $*"
        root=(sudo)
    fi
    local policy=/usr/sbin/policy-rc.d made_policy=
    if [[ ! -e $policy ]]; then
        printf '#!/bin/sh\nexit 101\n' | "${root[@]}" tee "$policy" >/dev/null
        "${root[@]}" chmod 755 "$policy"
        made_policy=yes
    fi
    local log status=0
    log=$(mktemp)
    {
        "${root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get update &&
            "${root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y --no-install-recommends "$@"
    } >"$log" 2>&1 || status=$?
    [[ -z $made_policy ]] || "${root[@]}" rm -f "$policy"
    if [[ $status -ne 0 ]]; then
        grep -E '^E:' "$log" | head -n 3 >&2 || true
        die "installing packages failed; see $log, then run ./build.sh deps again"
    fi
    rm -f "$log"
}

deps() {
    command -v dpkg-query >/dev/null ||
        die "only Debian 12 and its descendants are set up by this script; install the equivalents of: ${packages[*]}"
    local -a missing=()
    local name
    while read -r name; do missing+=("$name"); done < <(missing_packages)
    [[ ${#missing[@]} -gt 0 ]] || return 0
    printf 'Installing %d packages: %s\n' "${#missing[@]}" "${missing[*]}"
    install_packages "${missing[@]}"
}

# unpack FOLDER PROGRAM PACKAGE...: fetches packages whose programs the tests run in namespaces. Installing
# them would change this machine (systemd-resolved takes over its resolver, the SSH server would start) or bring
# much that nobody needs (the headers of GNUstep), so they are only unpacked, into build/FOLDER.
unpack() {
    local target=build/$1 program=$2 folder package
    [[ ! -e $target/$program ]] || return 0
    shift 2
    folder=$(mktemp -d)
    if (cd "$folder" && { apt-get download "$@" || { apt-get update && apt-get download "$@"; }; } &&
        for package in *.deb; do dpkg -x "$package" unpacked; done) >"$folder/log" 2>&1; then
        rm -rf "$target"
        mkdir -p build
        mv "$folder/unpacked" "$target"
    else
        printf 'build.sh: %s could not be fetched; its tests will be skipped.\n' "$1" >&2
    fi
    rm -rf "$folder"
}

unpack_services() {
    unpack resolved lib/systemd/systemd-resolved systemd-resolved
    unpack sshd usr/sbin/sshd openssh-server libwrap0
    unpack gnustep usr/include/GNUstep/AppKit/AppKit.h libgnustep-gui-dev libgnustep-base-dev
}

# Compiles one preset; a failure shows the first error lines, not the whole log.
compile() {
    local preset=$1 log
    mkdir -p build
    log=build/$preset.log
    if [[ ! -f build/$preset/build.ninja ]]; then
        cmake --preset "$preset" -DCMAKE_CXX_COMPILER_LAUNCHER=ccache >"$log" 2>&1 || {
            grep -m 1 -A 3 'CMake Error' "$log" >&2 || true
            die "configuring failed; run ./build.sh deps, and see $log if that does not help"
        }
    fi
    cmake --build --preset "$preset" >"$log" 2>&1 || {
        grep -m 5 -E 'error:|CMake Error|ninja: error' "$log" >&2 || tail -n 5 "$log" >&2
        die "the build failed; the whole output is in $log"
    }
}

build() {
    deps
    compile dev
}

# The Debian package of the release build, checked by lintian; an error of its fails.
package() {
    deps
    compile release
    local folder=build/release log=build/package.log made
    rm -f "$folder"/*.deb build/*.deb
    (cd "$folder" && cpack -G DEB) >"$log" 2>&1 || die "packing failed; see $log"
    made=$(cd "$folder" && echo veldmark_*.deb)
    lintian --allow-root --fail-on error "$folder/$made" >>"$log" 2>&1 || {
        grep '^E:' "$log" >&2 || true
        die "lintian refuses $folder/$made; see $log"
    }
    mv "$folder/$made" build/
    printf 'build/%s\n' "$made"
}

# Sources of the last commit, and a build of exactly these where there is no network.
dist() {
    deps
    local version name folder
    version=$(sed -nE 's/^project\(Veldmark VERSION ([0-9.]+) .*/\1/p' CMakeLists.txt)
    name=veldmark-$version
    git rev-parse --is-inside-work-tree >/dev/null 2>&1 || die "a source archive is made from the git repository"
    [[ -z $(git status --porcelain) ]] || printf 'build.sh: what is not committed is not in the archive.\n' >&2
    mkdir -p build
    git archive --format=tar --prefix="$name/" HEAD | gzip -9n >"build/$name.tar.gz"
    folder=$(mktemp -d)
    tar -xzf "build/$name.tar.gz" -C "$folder"
    local -a alone=(unshare --net)
    [[ $EUID -eq 0 ]] || alone=(unshare --map-root-user --net)
    "${alone[@]}" true 2>/dev/null || alone=()
    [[ ${#alone[@]} -gt 0 ]] || printf 'build.sh: no network namespaces here, so it is built with the network.\n' >&2
    (
        cd "$folder/$name"
        export CCACHE_BASEDIR=$PWD CCACHE_NOHASHDIR=1
        "${alone[@]}" ./build.sh package
    ) >build/dist.log 2>&1 || die "the archive does not build; see build/dist.log and $folder/$name/build"
    rm -rf "$folder"
    printf 'build/%s\n' "$name.tar.gz"
}

verb=${1:-}
[[ $# -eq 0 ]] || shift
case $verb in
deps) deps ;;
build) build ;;
run)
    build
    exec build/bin/veldmarkctl "$@"
    ;;
demo)
    build
    exec /usr/bin/python3 tests/lab/demo.py "$@"
    ;;
test)
    build
    compile fuzz
    unpack_services
    mkdir -p build/test
    status=0
    # Two processors; cmake/Veldmark.cmake says how many places a test takes.
    ctest --preset dev --parallel 4 --output-junit ../test/junit.xml "$@" || status=$?
    /usr/bin/python3 tests/skipped.py build/test/junit.xml
    exit "$status"
    ;;
asan)
    deps
    compile asan
    # Counts of an earlier build would be complained about on the standard error of programs whose output is tested.
    find build/asan -name '*.gcda' -delete
    ctest --preset asan "$@"
    ;;
tsan)
    deps
    compile tsan
    ctest --preset tsan "$@"
    ;;
package) package ;;
package-test)
    package
    exec /usr/bin/python3 tests/package/test_debian.py build/veldmark_*.deb "$@"
    ;;
machine-test)
    package
    unpack nspawn usr/bin/systemd-nspawn systemd-container libsystemd-shared
    exec /usr/bin/python3 tests/machine/machine_test.py build/veldmark_*.deb "$@"
    ;;
dist) dist ;;
coverage)
    deps
    compile asan
    exec /usr/bin/python3 tests/coverage.py "$@"
    ;;
fuzz)
    build
    compile fuzz
    exec /usr/bin/python3 fuzz/run.py "$@"
    ;;
soak)
    build
    exec /usr/bin/python3 tests/lab/soak.py "$@"
    ;;
bench)
    build
    exec /usr/bin/python3 bench/run.py "$@"
    ;;
help | -h | --help) usage ;;
*)
    usage >&2
    exit 2
    ;;
esac
