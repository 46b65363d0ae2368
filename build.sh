#!/usr/bin/env bash
# The one entry to Veldmark's source tree. Each verb first runs the earlier steps that it needs.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"

usage() {
    cat <<'TEXT'
usage: ./build.sh VERB
  deps     install every Debian package that the other verbs need (only when one is missing)
  build    compile the programs, into build/bin/
  run      start veldmarkctl in the foreground (arguments are handed on)
  demo     show the whole thing on a private Tor network: no internet, nothing changed outside it
  test     every test: unit, helper, lab and a moment of each fuzzer; with names of rooms or suites
           (./build.sh test controller lab) only theirs
  fresh-test
           demo, test and package as a stranger runs them: from a clone of the last commit on a clean Debian 12
  asan     the unit tests under the address and undefined-behaviour sanitizers; with names of rooms only theirs
  tsan     the tests whose work crosses threads, under the thread sanitizer (--quick: one room's)
  apple    what a Mac compiles, under clang and libc++: syntax and types only (./build.sh apple [PART OF A PATH...])
  coverage which lines of src/ the unit tests run; with names of rooms only theirs
  format   rewrites the sources that are not as clang-format and black write them
  mutate   small mistakes put into a clone of the last commit, one at a time, and which of them no test notices
           (./build.sh mutate [ROOM...] [--count N] [--seed S]; rooms are also qml, helper and helper_mac; without one it takes the
           C++ of all rooms but ui, app, cli and launch)
  fuzz     the fuzzers, an hour over all (--minutes M for another time)
  soak     500 connects and disconnects, and two hours of a fast clock, in the private Tor network (--quick: some minutes)
  bench    print the benchmarks
  package  make the Debian package: build/veldmark_VERSION_ARCHITECTURE.deb
  package-test
           install, use, upgrade and remove that package on a clean Debian 12, in the private Tor network
  machine-test
           the package on a whole booted Debian 12 with its desktops, in the private Tor network
  dist     make the source archive build/veldmark-VERSION.tar.gz, and build it once without a network (--quick: a part of it)
TEXT
}

die() {
    printf 'build.sh: %s\n' "$1" >&2
    exit 1
}

# shellcheck source=tools/progress.sh
source tools/progress.sh
# shellcheck source=tools/deps.sh
source tools/deps.sh

fetch_unpacked() {
    local package
    cd "$1" || return
    apt-get download "${@:2}" || { apt-get update && apt-get download "${@:2}"; } || return
    for package in *.deb; do dpkg -x "$package" unpacked || return; done
}

# unpack FOLDER PROGRAM PACKAGE...: fetches packages whose programs the tests run in namespaces. Installed, they would change this
# computer (systemd-resolved takes over its resolver, the SSH server would start) or bring large unneeded packages (the headers of
# GNUstep), so they are only unpacked, into build/FOLDER.
unpack() {
    local target=build/$1 program=$2 folder
    local -a packages=("${@:3}")
    [[ ! -e $target/$program ]] || return 0
    folder=$(mktemp -d)
    if busy "Fetching ${packages[0]}" "$folder/log" fetch_unpacked "$folder" "${packages[@]}"; then
        rm -rf "$target"
        mkdir -p build
        mv "$folder/unpacked" "$target"
    else
        printf 'build.sh: %s could not be fetched; its tests will be skipped.\n' "${packages[0]}" >&2
    fi
    rm -rf "$folder"
}

unpack_services() {
    unpack resolved lib/systemd/systemd-resolved systemd-resolved
    unpack sshd usr/sbin/sshd openssh-server libwrap0
    unpack gnustep usr/include/GNUstep/AppKit/AppKit.h libgnustep-gui-dev libgnustep-base-dev
}

# compile PRESET [TARGET...]: configures and compiles; a failure shows the reason, not the whole log.
compile() {
    local preset=$1 log=build/$1.log target reason
    local -a targets=() options=()
    shift
    for target in "$@"; do targets+=(--target "$target"); done
    mkdir -p build 2>/dev/null || die "this folder cannot be written: copy the checkout to one of your own, or run this as its owner"
    (: >"$log") 2>/dev/null || die "build/ belongs to another user: remove it, or run this as that user"
    # Uses a compiler cache if installed, also for sources with precompiled headers, and across checkouts.
    export CCACHE_SLOPPINESS=${CCACHE_SLOPPINESS:-pch_defines,time_macros} CCACHE_BASEDIR=$PWD CCACHE_NOHASHDIR=1
    ! command -v ccache >/dev/null || options=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
    [[ -z ${VELDMARK_PLAIN:-} ]] || options+=(-DVELDMARK_PRECOMPILE=OFF -DVELDMARK_UNITY=OFF)
    # CMake reads a preset only on request: configure again after a change of the file.
    if [[ ! -f build/$preset/build.ninja || CMakePresets.json -nt build/$preset/configured ]]; then
        busy "Configuring" "$log" cmake --preset "$preset" ${options[@]+"${options[@]}"} || {
            reason=$(explain_failure "$log")
            [[ -z $reason ]] || die "$reason"
            grep -m 1 -A 3 'CMake Error' "$log" >&2 || true
            die "configuring failed; run ./build.sh deps, and see $log if that does not help"
        }
        : >"build/$preset/configured"
    fi
    cmake --build "build/$preset" ${targets[@]+"${targets[@]}"} 2>&1 | tee "$log" | progress "Compiling" || {
        reason=$(explain_failure "$log")
        [[ -z $reason ]] || die "$reason"
        grep -m 5 -E 'error:|CMake Error|ninja: error' "$log" >&2 || tail -n 5 "$log" >&2
        die "the build failed; the whole output is in $log"
    }
}

build() {
    deps programs
    compile dev programs
}

# test_targets NAME...: prints the targets that these tests need. A name is a room ("controller") or a suite ("lab").
test_targets() {
    local name
    for name in "$@"; do
        if [[ -d tests/unit/$name ]]; then
            printf 'test-%s\n' "$name"
        elif [[ $name =~ ^(house|helper|helper_mac|lab|ui|package|mutate|fuzz)$ ]]; then
            printf 'suite-%s\n' "$name"
        else
            die "there are no tests of '$name'; rooms: $(cd tests/unit && echo *); suites: house helper helper_mac lab ui package mutate fuzz"
        fi
    done
}

# compile_rooms PRESET ROOM...: compiles the unit tests of these rooms; all without a name.
compile_rooms() {
    local preset=$1 room
    local -a targets=()
    shift
    for room in "$@"; do
        [[ -d tests/unit/$room ]] || die "there is no room '$room'; rooms: $(cd tests/unit && echo *)"
        targets+=("test-$room")
    done
    compile "$preset" ${targets[@]+"${targets[@]}"}
}

# take_names WORD...: sets `names` to the words before the first option, and `rest` to the others.
take_names() {
    names=()
    while [[ $# -gt 0 && $1 != -* ]]; do
        names+=("$1")
        shift
    done
    rest=("$@")
}

# Runs git, also in a checkout that belongs to another user.
own_git() {
    git -c safe.directory="$PWD" "$@"
}

# The time of the sources, in seconds since 1970: the commit's, in a source archive that of its newest file.
source_date() {
    own_git log -1 --format=%ct 2>/dev/null || find . -path ./build -prune -o -type f -printf '%Ts\n' | sort -n | tail -n 1
}

pack() {
    (cd "$1" && cpack -G DEB)
}

# Makes the Debian package of the release build. lintian checks it; an error fails.
package() {
    deps package
    # Times in the archive, and in the resources inside the programs, are the commit's: the same commit always gives the same
    # bytes.
    SOURCE_DATE_EPOCH=$(source_date)
    export SOURCE_DATE_EPOCH QT_RCC_SOURCE_DATE_OVERRIDE=$SOURCE_DATE_EPOCH
    compile release
    local folder=build/release log=build/package.log made
    rm -f "$folder"/*.deb build/*.deb "$log"
    busy "Packing" "$log" pack "$folder" || die "packing failed; see $log"
    made=$(cd "$folder" && echo veldmark_*.deb)
    busy "Checking the package" "$log" lintian --allow-root --fail-on error "$folder/$made" || {
        grep '^E:' "$log" >&2 || true
        die "lintian refuses $folder/$made; see $log"
    }
    mv "$folder/$made" build/
    printf 'build/%s\n' "$made"
}

build_archive() {
    cd "$1" || return
    # Compiles each source alone, so that a missing include is found.
    VELDMARK_PLAIN=1 "${@:2}" ./build.sh package
}

build_part_of_archive() {
    cd "$1" || return
    "${@:2}" cmake --preset release -DVELDMARK_PRECOMPILE=OFF -DVELDMARK_UNITY=OFF || return
    "${@:2}" cmake --build build/release --target veldmark_base veldmark_helper
}

# dist [--quick]: packs the sources of the last commit, and builds exactly these where there is no network.
dist() {
    local building=build_archive
    [[ $# -eq 0 || ($# -eq 1 && $1 == --quick) ]] || die "dist has one option, --quick"
    [[ $# -eq 0 ]] || building=build_part_of_archive
    deps
    local version name folder
    version=$(sed -nE 's/^project\(Veldmark VERSION ([0-9.]+) .*/\1/p' CMakeLists.txt)
    name=veldmark-$version
    own_git rev-parse --is-inside-work-tree >/dev/null 2>&1 || die "a source archive is made from the git repository"
    [[ -z $(own_git status --porcelain) ]] || printf 'build.sh: what is not committed is not in the archive.\n' >&2
    mkdir -p build
    own_git archive --format=tar --prefix="$name/" HEAD | gzip -9n >"build/$name.tar.gz"
    folder=$(mktemp -d)
    tar -xzf "build/$name.tar.gz" -C "$folder"
    local -a alone=(unshare --net)
    [[ $EUID -eq 0 ]] || alone=(unshare --map-root-user --net)
    "${alone[@]}" true 2>/dev/null || alone=()
    [[ ${#alone[@]} -gt 0 ]] || printf 'build.sh: no network namespaces here, so it is built with the network.\n' >&2
    rm -f build/dist.log
    busy "Building the archive's content" build/dist.log "$building" "$folder/$name" ${alone[@]+"${alone[@]}"} || die "the archive does not build; see build/dist.log and $folder/$name/build"
    rm -rf "$folder"
    printf 'build/%s\n' "$name.tar.gz"
}

# needs_root WHAT: called before anything is compiled.
needs_root() {
    [[ $EUID -eq 0 ]] || die "$1 by root: run sudo ./build.sh $verb"
}

# needs_namespaces WHAT: likewise.
needs_namespaces() {
    unshare --mount --net --pid --fork true 2>/dev/null || die "$1 in namespaces, which this machine does not permit"
}

# needs_open_folder: root's tests run programs of this tree as other users, who cannot enter a folder such as /root.
needs_open_folder() {
    local folder=$PWD
    while :; do
        (((8#$(stat -c %a -- "$folder") & 1) == 1)) ||
            die "other users cannot enter $folder, and tests run programs as some: move the checkout to a folder such as /srv"
        [[ $folder != / ]] || return 0
        folder=$(dirname -- "$folder")
    done
}

verb=${1:-}
[[ $# -eq 0 ]] || shift
case $verb in
deps) deps "$@" ;;
build) build ;;
run)
    build
    exec build/bin/veldmarkctl "$@"
    ;;
demo)
    if [[ $EUID -ne 0 ]]; then
        command -v sudo >/dev/null || die "the demonstration's network is made by root and there is no sudo: run ./build.sh demo as root"
        sudo -v 2>/dev/null || die "the demonstration's network is made by root and sudo refused: run sudo ./build.sh demo"
    fi
    deps programs
    compile dev programs veldmark-pictures
    [[ $EUID -ne 0 ]] || exec /usr/bin/python3 tests/lab/demo.py
    sudo /usr/bin/python3 tests/lab/demo.py network
    exec /usr/bin/python3 tests/lab/demo.py pictures
    ;;
test)
    # Most unit tests run as the calling user, and so do the tests that do not need root.
    [[ $EUID -ne 0 || ($# -gt 0 && $1 != -* && ! " $* " =~ \ (helper|helper_mac|lab|ui|package|mutate)\ ) ]] || needs_open_folder
    deps
    take_names "$@"
    set -- ${rest[@]+"${rest[@]}"}
    mkdir -p build/test
    if [[ ${#names[@]} -gt 0 ]]; then
        mapfile -t targets < <(test_targets "${names[@]}")
        [[ ${#targets[@]} -eq ${#names[@]} ]] || exit 2
        compile dev "${targets[@]}"
        [[ " ${names[*]} " != *" fuzz "* ]] || compile fuzz fuzzers
        set -- -R "^(unit/)?($(IFS='|' && echo "${names[*]}"))/" "$@"
    else
        compile dev
        compile fuzz fuzzers
    fi
    unpack_services
    status=0
    # Three places for each of two processors; cmake/Veldmark.cmake sets how many a test takes. The whole output of a test is
    # kept, since its skips may be at the end.
    ctest --preset dev --parallel 6 --output-junit ../test/junit.xml --test-output-size-passed 100000000 "$@" || status=$?
    /usr/bin/python3 tests/skipped.py build/test/junit.xml || status=$?
    exit "$status"
    ;;
fresh-test)
    needs_root "a clean Debian is made"
    needs_namespaces "a clean Debian is made"
    deps
    exec /usr/bin/python3 tests/package/fresh.py "$@"
    ;;
asan)
    deps
    take_names "$@"
    compile_rooms asan ${names[@]+"${names[@]}"}
    [[ ${#names[@]} -eq 0 ]] || rest=(-R "^unit/($(IFS='|' && echo "${names[*]}"))/" ${rest[@]+"${rest[@]}"})
    # The programs would report the counts of an earlier build on standard error, which tests check.
    find build/asan -name '*.gcda' -delete
    ctest --preset asan ${rest[@]+"${rest[@]}"}
    ;;
apple)
    deps
    compile dev
    [[ $# -gt 0 ]] || set -- all
    exec /usr/bin/python3 tests/house/test_apple.py "$PWD" "$PWD/build/dev" "$@"
    ;;
tsan)
    deps
    if [[ ${1-} == --quick ]]; then
        compile tsan DeliberateRace test-base
        set -- -R '^threads/(race|no-race|resume)' "${@:2}"
    else
        compile tsan threads
    fi
    ctest --preset tsan "$@"
    ;;
package) package ;;
package-test)
    needs_root "a clean Debian is entered"
    needs_namespaces "a clean Debian is entered"
    deps
    package
    exec /usr/bin/python3 tests/package/test_debian.py build/veldmark_*.deb "$@"
    ;;
machine-test)
    needs_root "a machine is booted"
    needs_namespaces "a machine is booted"
    deps
    package
    unpack nspawn usr/bin/systemd-nspawn systemd-container libsystemd-shared
    exec /usr/bin/python3 tests/machine/machine_test.py build/veldmark_*.deb "$@"
    ;;
dist) dist "$@" ;;
coverage)
    deps
    take_names "$@"
    compile_rooms asan ${names[@]+"${names[@]}"}
    exec /usr/bin/python3 tests/coverage.py "$@"
    ;;
fuzz)
    deps
    compile dev programs
    compile fuzz fuzzers
    exec /usr/bin/python3 fuzz/run.py "$@"
    ;;
format)
    deps
    exec /usr/bin/python3 tests/house/test_format.py --write
    ;;
mutate)
    deps
    unpack_services
    exec nice /usr/bin/python3 tests/mutate/run.py "$@"
    ;;
soak)
    deps
    compile dev suite-lab
    exec /usr/bin/python3 tests/lab/soak.py "$@"
    ;;
bench)
    deps
    compile dev
    exec /usr/bin/python3 bench/run.py "$@"
    ;;
help | -h | --help) usage ;;
*)
    usage >&2
    exit 2
    ;;
esac
