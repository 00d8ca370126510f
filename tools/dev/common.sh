# shellcheck shell=bash
# What the verbs of ./dev share: messages, the installation of packages, configuring, building and testing.

jobs=$(nproc)

# The folders whose code is in the libraries, and what reads the machine for their users.
library_folders=(core units bytes weather sensors clock platform port settings localization catalogue c widest machine)

say() { printf '\033[1m==>\033[0m %s\n' "$*" >&2; }
fail() { printf 'dev: %s\n' "$*" >&2; exit 1; }
refuse() { printf 'dev: %s\n' "$*" >&2; exit 2; }

# takes_nothing "$@": for a verb without arguments.
takes_nothing() { [ $# -eq 0 ] || refuse "$verb: no argument \"$1\"; ./dev help lists them"; }

# The Debian packages that each purpose needs.
compiler=(g++)
case ${CXX:-} in *clang*) compiler=(clang) ;; esac
packages_build=("${compiler[@]}" cmake ninja-build pkg-config
    libicu-dev libglib2.0-dev libcairo2-dev libcctz-dev nlohmann-json3-dev tzdata)
packages_test=("${packages_build[@]}" libgtest-dev)
packages_bench=("${packages_build[@]}" valgrind)
packages_peers=(libfmt-dev libbytesize-dev qtbase5-dev libkf5coreaddons-dev libkf5sysguard-dev)
packages_languages=(gobject-introspection libgirepository1.0-dev python3-gi gjs lua5.3 lua-lgi valac rustc clang)
packages_all=("${packages_test[@]}" libpango1.0-dev fish zsh
    fonts-dejavu-core fonts-noto-ui-core fonts-wqy-microhei fonts-sil-abyssinica)
packages_panels=(libgtk-4-dev gir1.2-gtk-4.0 qt6-base-dev qt6-declarative-dev
    qml6-module-qtquick qml6-module-qtqml-workerscript xvfb xauth scrot)
packages_docs=(doxygen python3)
packages_check=("${packages_all[@]}" "${packages_panels[@]}" clang-format clang-tidy valgrind
    abigail-tools xz-utils)

# need PACKAGE...: installs those that are not there yet.
need() {
    command -v dpkg-query >/dev/null || fail "this script installs Debian packages, and this system has no dpkg"
    local package missing=() as_root=()
    for package in "$@"; do
        [ "$(dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null)" = installed ] || missing+=("$package")
    done
    [ ${#missing[@]} -eq 0 ] && return
    if [ "$(id -u)" -ne 0 ]; then
        command -v sudo >/dev/null || fail "not installed: ${missing[*]}; become root or install sudo first"
        as_root=(sudo)
    fi
    say "Installing ${missing[*]}"
    "${as_root[@]}" apt-get update -qq --error-on=any >/dev/null 2>&1 ||
        fail "not installed: ${missing[*]}; the package lists cannot be fetched: is there a network?"
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
        apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null 2>&1 ||
        fail "not installed: ${missing[*]}; apt-get install says why"
}

# configure PRESET [-DOPTION=VALUE...]
configure() {
    local preset=$1 log
    shift
    log=$(mktemp)
    cmake --preset "$preset" "$@" >"$log" 2>&1 || { cat "$log" >&2; rm -f "$log"; fail "the configuration failed"; }
    rm -f "$log"
}

# build PRESET [TARGET...]: shows how far it is.
build() {
    local preset=$1
    shift
    NINJA_STATUS='[%p of %t steps, %e s] ' cmake --build --preset "$preset" -j "$jobs" ${1:+--target "$@"} >&2 ||
        fail "the build failed"
}

# run_tests PRESET [VARIABLE=VALUE...] [CTEST ARGUMENT...]: the variables are those of the tests, not of this script.
run_tests() {
    local preset=$1 environment=()
    shift
    while [[ ${1:-} == *=* ]]; do
        environment+=("$1")
        shift
    done
    env "${environment[@]}" ctest --test-dir "build/$preset" --output-on-failure -j "$jobs" "$@"
}

# configure_all PRESET [-DOPTION=VALUE...]: all sources, with what they need; for the verbs that look at all of them.
configure_all() {
    configure "$@" -DKZM_BUILD_TESTS=ON -DKZM_BUILD_EXAMPLES=ON -DKZM_BUILD_BENCHMARKS=ON -DKZM_ALL_TESTS=ON
}

# Instructions of one warm call of each kind, as "instructions<TAB>call".
count_instructions() {
    configure release -DKZM_BUILD_BENCHMARKS=ON
    build release kzm_bench
    bench/count_instructions build/release/bin/kzm_bench
}

# The file of the counts that belong to this compiler and these libraries.
instructions_record() {
    local icu glibc
    icu=$(pkg-config --modversion icu-uc)
    glibc=$(getconf GNU_LIBC_VERSION)
    printf 'bench/instructions/%s-%s-icu-%s-%s.tsv\n' "$(uname -m)" "$("${CXX:-g++}" --version | head -n 1 |
        sed -E 's/ \(.*\)//; s/ /-/g')" "$icu" "${glibc// /-}"
}

# The libraries with what debuggers know of them, from which names and layouts are read.
build_abi() {
    configure abi -DKZM_BUILD_TESTS=OFF -DKZM_BUILD_PROGRAM=OFF -DKZM_BUILD_EXAMPLES=OFF -DKZM_BUILD_BENCHMARKS=OFF \
        -DKZM_BUILD_C=ON
    build abi
}

# Layouts of the standard library's types are in the records, so each belongs to one compiler.
abi_record() { printf 'abi/%s-%s-%s\n' "$(uname -m)" "$(basename "${CXX:-g++}")" "$("${CXX:-g++}" -dumpversion)"; }

abi_libraries=(KZMUtilities KZMSettings KZMLocalization KZMUtilities-c)
abi_headers() { if [ "$1" = KZMUtilities-c ]; then echo c; else echo include; fi; }

record_abi() {
    local record library
    build_abi
    record=$(abi_record)
    mkdir -p "$record"
    for library in "${abi_libraries[@]}"; do
        say "Recording the names and layouts of $library"
        abidw --no-corpus-path --no-comp-dir-path --no-show-locs --type-id-style hash --drop-private-types \
            --headers-dir "$(abi_headers "$library")" "build/abi/lib/lib$library.so" |
            xz -9 >"$record/$library.abi.xz" || fail "$library: its names and layouts cannot be read"
    done
}

# One library beside its record; what joined is only shown.
compare_library() {
    local library=$1 record=$2 recorded found=0 breaks=8 faults=3
    recorded=$(mktemp --suffix=.abi)
    xz -dc "$record/$library.abi.xz" >"$recorded"
    abidiff --drop-private-types --headers-dir2 "$(abi_headers "$library")" "$recorded" \
        "build/abi/lib/lib$library.so" || found=$?
    rm -f "$recorded"
    [ $((found & (breaks | faults))) -eq 0 ] && return
    printf '%s: programs that were built before would break\n' "$library" >&2
    return 1
}

compare_abi() {
    local record library process processes=() status=0
    record=$(abi_record)
    if [ ! -d "$record" ]; then
        say "No names and layouts are recorded for this compiler; ./dev abi --record would write $record"
        return
    fi
    build_abi
    for library in "${abi_libraries[@]}"; do
        compare_library "$library" "$record" &
        processes+=($!)
    done
    for process in "${processes[@]}"; do wait "$process" || status=1; done
    return $status
}
