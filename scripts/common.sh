# What the scripts of this folder share; sourced by them after `set -euo pipefail`.

# Packages of Debian 12 that a build of the library and its tests needs.
build_packages=(g++ cmake ninja-build pkg-config libexpat1-dev libpcre2-dev zlib1g-dev libgtest-dev libcli11-dev)
# What the benchmarks need besides.
benchmark_packages=(libbenchmark-dev python3 valgrind)

cd "$(dirname "${BASH_SOURCE[0]}")/.."
logs=build/logs
mkdir -p "$logs"

# The lines that ctest prints about a test that passes.
passed_test='^ +Start +[0-9]+: |^ *[0-9]+/[0-9]+ Test .* Passed '

say() { printf '==> %s\n' "$*"; }
fail() { printf 'error: %s\n' "$*" >&2; exit 1; }

# step NAME WHAT COMMAND...: says what it is about to do and does it, with the output in a log that is
# shown only on failure.
step() {
    local log=$logs/$1.log
    say "$2"
    shift 2
    if ! "$@" </dev/null >"$log" 2>&1; then
        grep -vE "$passed_test" "$log" | tail -n 300 >&2
        fail "that failed; the whole output is in $log"
    fi
}

as_root() {
    if [ "$(id -u)" = 0 ]; then
        "$@"
    else
        command -v sudo >/dev/null || fail "not root and no sudo; please install: ${missing[*]}"
        sudo "$@"
    fi
}

apt_install() {
    as_root apt-get update && as_root env DEBIAN_FRONTEND=noninteractive apt-get install -y --no-install-recommends "$@"
}

is_installed() { [ "$(dpkg-query -W -f='${db:Status-Status}' "$1" 2>/dev/null)" = installed ]; }

# need_packages NAME...: installs those of the packages that are missing.
need_packages() {
    command -v apt-get >/dev/null || { say "No apt-get here; the packages needed are, by Debian's names: $*"; return; }
    missing=()
    for package; do is_installed "$package" || missing+=("$package"); done
    if [ ${#missing[@]} = 0 ]; then
        say "Packages: all there"
    else
        step packages "Packages: install ${missing[*]}" apt_install "${missing[@]}"
    fi
}

# build PRESET [TARGET...]: configures and builds.
build() {
    local preset=$1
    shift
    step "$preset-configure" "Configure: cmake --preset $preset" cmake --preset "$preset"
    step "$preset-build" "Build into build/$preset; from nothing this takes some minutes" \
        cmake --build --preset "$preset" ${1:+--target "$@"}
}

# run_tests PRESET: runs the suite and leaves ctest's closing lines in `summary`.
run_tests() {
    step "$1-tests" "Test: ctest --preset $1" ctest --preset "$1" --parallel "$(nproc)"
    summary=$(sed -n '/% tests passed/,$p' "$logs/$1-tests.log")
}
