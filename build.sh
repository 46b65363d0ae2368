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
  test     every test: unit, helper and lab
  asan     the unit tests under the address and undefined-behaviour sanitizers
  bench    print the benchmarks
TEXT
}

die() {
    printf 'build.sh: %s\n' "$1" >&2
    exit 1
}

# What compiles the programs, what they call, and what the tests and the private Tor network need.
packages=(
    g++ cmake ninja-build ccache pkg-config git
    qt6-base-dev qt6-declarative-dev libgl-dev qcoro-qt6-dev libexpected-dev
    tor tor-geoipdb obfs4proxy nftables iproute2 util-linux sudo pkexec polkitd procps
    python3 openssl ca-certificates curl gnupg tcpdump shellcheck unzip netcat-openbsd zsh dash
    libglib2.0-bin dconf-cli dconf-gsettings-backend gsettings-desktop-schemas dbus
    python3-stem
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
    mkdir -p build/test
    ctest --preset dev --parallel 2 --output-junit ../test/junit.xml "$@"
    ;;
asan)
    deps
    compile asan
    ctest --preset asan "$@"
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
