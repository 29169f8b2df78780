# What ./run and ./test share: the Debian packages, the build folders and Wine's settings. To be sourced.
# shellcheck shell=bash

ProjectRoot=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
BuildRoot=$(realpath -m "${VARROCADE_BUILD:-$ProjectRoot/build}")
readonly ProjectRoot BuildRoot
export VARROCADE_BUILD=$BuildRoot

# Every package that is needed on a bare Debian 12, by what it is needed for.
readonly BuildPackages=(cmake ninja-build ccache)
readonly ProgramPackages=("${BuildPackages[@]}" g++-mingw-w64-x86-64-posix mingw-w64-x86-64-dev
    wine wine64 fonts-wine fonts-liberation xvfb xdotool imagemagick)
readonly BenchPackages=("${BuildPackages[@]}" g++ libbenchmark-dev libpugixml-dev)
readonly SamplePackages=("${BuildPackages[@]}" g++ pkg-config libcairo2-dev)
# shellcheck disable=SC2034 # used where this file is sourced
readonly TestPackages=("${ProgramPackages[@]}" "${BenchPackages[@]}"
    git googletest clang clang-tidy clang-format libclang-rt-14-dev)

export WINEPREFIX=$BuildRoot/wine WINEARCH=win64 WINEDEBUG=-all WINEDLLOVERRIDES="mscoree,mshtml="
# Compiled files are found again in a fresh clone, wherever that lies.
export CCACHE_BASEDIR=$ProjectRoot CCACHE_NOHASHDIR=1

fail() {
    printf '%s\n' "$*" >&2
    exit 1
}

asRoot() {
    if [ "$(id -u)" -eq 0 ]; then
        "$@"
    elif command -v sudo >/dev/null; then
        sudo "$@"
    else
        fail "These packages are missing, and neither root nor sudo is at hand: ${Missing[*]}"
    fi
}

# missingPackages PACKAGE...: prints those that are not installed.
missingPackages() {
    local installed
    installed=$(dpkg-query -W -f '${db:Status-Status} ${Package}\n' "$@" 2>/dev/null | sed -n 's/^installed //p') || true
    printf '%s\n' "$@" | sort -u | grep -vxF -e "$installed" || true
}

# allowInstalling PACKAGE...: has sudo ask for its password now, while a terminal is there, if it will be needed.
allowInstalling() {
    if [ "$(id -u)" -ne 0 ] && [ -n "$(missingPackages "$@")" ] && command -v sudo >/dev/null; then
        sudo -v
    fi
}

# installPackages PACKAGE...: installs what is missing; where nothing is, no package manager is started.
installPackages() {
    mapfile -t Missing < <(missingPackages "$@")
    if [ "${#Missing[@]}" -eq 0 ]; then
        return
    fi
    printf 'installing: %s\n' "${Missing[*]}"
    local log=$BuildRoot/logs/packages.log
    mkdir -p "$BuildRoot/logs"
    if ! { asRoot apt-get update && asRoot env DEBIAN_FRONTEND=noninteractive \
        apt-get -o Dpkg::Options::=--force-unsafe-io install -y --no-install-recommends "${Missing[@]}"; } >"$log" 2>&1 </dev/null; then
        tail -n 30 "$log" >&2
        fail "Packages could not be installed; the whole log: $log"
    fi
}

# configurePreset PRESET FOLDER [CMAKE_ARGUMENT...]: into that folder below the build folder.
configurePreset() {
    local preset=$1 folder=$2
    shift 2
    (cd "$ProjectRoot" && cmake --preset "$preset" -B "$BuildRoot/$folder" --log-level=WARNING \
        -DCMAKE_CXX_COMPILER_LAUNCHER=ccache "$@")
}

# buildFolder FOLDER [CMAKE_ARGUMENT...]
buildFolder() {
    cmake --build "$BuildRoot/$1" -j "$(nproc)" "${@:2}"
}

# cachedValue FOLDER NAME: a variable of a configured build.
cachedValue() { sed -n "s/^$2:[A-Z]*=//p" "$BuildRoot/$1/CMakeCache.txt"; }

# Debian's Wine does not look where its own fonts are: without them captions have letters for buttons, and dialogs
# are measured with another font than the system's.
prepareWine() {
    if [ ! -f "$WINEPREFIX/ready" ]; then
        mkdir -p "$WINEPREFIX"
        env -u DISPLAY wineboot --init
        wineserver -w
        cp /usr/share/wine/fonts/{tahoma,tahomabd,marlett}.ttf "$WINEPREFIX/drive_c/windows/Fonts"
        touch "$WINEPREFIX/ready"
    fi
}

# Ends every Wine process of our prefix, and waits until they are gone.
stopWine() {
    if [ -d "$WINEPREFIX" ]; then
        wineserver -k 2>/dev/null || true
        timeout 20 wineserver -w || true
    fi
}

# projectFiles PATTERN...: the project's own files of these names, NUL-terminated, relative to its root. The makers of the
# sample are left to themselves: they are run once in a while, and nothing of the program depends on them. So are the
# libraries of others.
projectFiles() {
    local file
    cd "$ProjectRoot" || return
    while IFS= read -r -d '' file; do
        if [ -f "$file" ]; then
            printf '%s\0' "$file"
        fi
    done < <(git -c safe.directory='*' ls-files -z --cached --others --exclude-standard --deduplicate -- "$@" ':!sample/makers' ':!third_party')
}
