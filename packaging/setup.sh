# shellcheck shell=bash
# Packages and builds, shared by run.sh, test.sh and lint.sh. Sourced, never run.

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)

Fail() {
    printf '%s: %s\n' "${0##*/}" "$*" >&2
    exit 1
}

# PackagesOf SECTION...: the names that debian-packages.txt lists under these sections.
PackagesOf() {
    awk -v wanted=" $* " '
        /^\[/ { section = substr($0, 2, index($0, "]") - 2); next }
        NF && !/^#/ && index(wanted, " " section " ") { print $1 }' "$root/packaging/debian-packages.txt"
}

MissingPackages() {
    local -a names
    mapfile -t names < <(PackagesOf "$@")
    # dpkg-query fails when it has never heard of one of the names; that one is missing like the others.
    comm -23 <(printf '%s\n' "${names[@]}" | sort) <(
        dpkg-query --show --showformat='${db:Status-Status} ${Package}\n' "${names[@]}" 2>/dev/null |
            awk '$1 == "installed" { print $2 }' | sort
    )
}

AptGet() {
    local -a asRoot=()
    ((EUID == 0)) || asRoot=(sudo)
    # Another apt-get may run on a machine that has just been started; wait for it for a while.
    "${asRoot[@]}" env DEBIAN_FRONTEND=noninteractive apt-get --option DPkg::Lock::Timeout=120 "$@"
}

# InstallPackages SECTION...: installs what these sections list and the machine lacks; calls apt-get for nothing else.
InstallPackages() {
    if ! command -v dpkg-query >/dev/null || ! command -v apt-get >/dev/null; then
        Fail "this is no Debian system. Install by hand what packaging/debian-packages.txt lists," \
            "then build with 'cmake --preset release' and 'cmake --build --preset release'."
    fi

    local -a missing
    mapfile -t missing < <(MissingPackages "$@")
    ((${#missing[@]})) || return 0

    if ((EUID != 0)) && ! command -v sudo >/dev/null; then
        Fail "packages are missing, and there is no sudo to install them with." \
            "As root, run: apt-get install ${missing[*]}"
    fi

    echo "Installing: ${missing[*]}"
    # A package list that is empty or old cannot resolve every name; fetch a new one only then.
    apt-get install --simulate --no-install-recommends "${missing[@]}" >/dev/null 2>&1 || AptGet update || true
    # The list can also name versions that the server no longer has, which shows only at the download.
    AptGet install --yes --no-install-recommends "${missing[@]}" ||
        { AptGet update && AptGet install --yes --no-install-recommends "${missing[@]}"; } ||
        Fail "could not install ${missing[*]}. Is this machine online, and is it Debian 12 or newer?"
}

# IsConfigured PRESET: whether its build folder was configured, for the sources where they stand now.
IsConfigured() {
    [[ -e $root/build/$1/build.ninja ]] &&
        grep -qxF "CMAKE_HOME_DIRECTORY:INTERNAL=$root" "$root/build/$1/CMakeCache.txt"
}

# Configure PRESET [NAME=VALUE...]: configures unless that was done with the same values. Ninja itself notices a
# CMakeLists.txt that has changed since, and much sooner than another run of cmake would.
Configure() {
    local preset=$1 option upToDate=true
    shift
    IsConfigured "$preset" || upToDate=false
    for option; do
        grep -qsxE "${option%%=*}:[A-Z]+=${option#*=}" "$root/build/$preset/CMakeCache.txt" || upToDate=false
    done
    $upToDate && return

    local -a arguments=("${@/#/-D}")
    IsConfigured "$preset" || arguments+=(--fresh)
    (cd "$root" && cmake --preset "$preset" "${arguments[@]}")
}

# Build PRESET [TARGET...]: all targets when none is named.
Build() {
    local preset=$1
    shift
    cmake --build "$root/build/$preset" ${1:+--target "$@"}
}
