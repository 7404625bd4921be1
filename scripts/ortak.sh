# What the commands of this project share. Sourced with the root of the project as working folder; every path in
# here is relative to it.

PACKAGES=scripts/packages.txt
LOGS=build/log
CORE_FOLDERS="storage table reservation accounts documents setup access online maintenance screen"
SOURCE_FOLDERS="src tests tools benchmarks"
HOUSE_RULES="sizes core-purity arrows doors readmes"

say() { printf '%s\n' "$*"; }
complain() { printf '%s\n' "$*" >&2; }

# The project's own files, one path a line: known to git or about to be, never what a build left behind.
project_files() {
    if git -c safe.directory='*' rev-parse --is-inside-work-tree >/dev/null 2>&1; then
        git -c safe.directory='*' -c core.quotePath=off ls-files -co --exclude-standard
    else
        find . \( -path ./build -o -path './build-*' -o -path ./.git \) -prune -o -type f -print | sed 's|^\./||'
    fi | sort -u | while IFS= read -r file; do [[ -f $file ]] && printf '%s\n' "$file"; done
}

# Where what may be kept from one checkout to the next is kept: the user's cache, or else the build folder.
cache_folder() {
    local folder=${XDG_CACHE_HOME:-${HOME:-}/.cache}/velora
    mkdir -p "$folder" 2>/dev/null && [[ -w $folder ]] || folder=$PWD/build/cache
    printf '%s' "$folder"
}

# Names of the packages of the given groups.
packages_of() {
    awk -v groups=" $* " '!/^#/ && NF && index(groups, " " $2 " ") { print $1 }' "$PACKAGES"
}

# Those of them that aren't installed.
missing_packages() {
    local all installed
    mapfile -t all < <(packages_of "$@")
    installed=$(dpkg-query -W -f '${db:Status-Status} ${Package}\n' "${all[@]}" 2>/dev/null |
        awk '$1 == "installed" { print $2 }')
    comm -23 <(printf '%s\n' "${all[@]}" | sort) <(sort <<<"$installed")
}

# How this user becomes root: nothing for root, else the sudo to put before a command. Fails where there is no way.
root_prefix() {
    if ((EUID == 0)); then
        return 0
    elif command -v sudo >/dev/null && sudo -n true 2>/dev/null; then
        printf 'sudo -n'
    elif command -v sudo >/dev/null && [[ -t 0 ]]; then
        printf 'sudo'
    else
        return 1
    fi
}

# Installs what is missing of the given groups. Asks the package system first, so that nothing happens when all is
# there. Returns 1 when something stays missing.
install_missing() {
    local missing prefix as_root
    if ! command -v dpkg-query >/dev/null; then
        say "Not a Debian system: the packages of $PACKAGES are taken as given."
        return 0
    fi
    mapfile -t missing < <(missing_packages "$@")
    ((${#missing[@]})) || return 0
    if ! prefix=$(root_prefix); then
        complain "Packages are missing. Run this line once, then start again:"
        complain "  sudo apt-get update && sudo apt-get install -y --no-install-recommends ${missing[*]}"
        return 1
    fi
    say "Installing: ${missing[*]}"
    read -ra as_root <<<"$prefix env DEBIAN_FRONTEND=noninteractive apt-get -q -o DPkg::Lock::Timeout=300"
    quietly update "${as_root[@]}" update || complain "The package lists couldn't be refreshed."
    quietly install "${as_root[@]}" install -y --no-install-recommends "${missing[@]}"
}

# Runs a command with its output in build/log/<name>.log. Shows the end of it only when the command fails, without
# the steps of a build.
quietly() {
    local name=$1 log=$LOGS/$1.log status
    shift
    mkdir -p "$LOGS"
    "$@" >"$log" 2>&1 && return 0
    status=$?
    complain "--- $name: failed; the end of $log:"
    grep -vE '^\[[0-9]+/[0-9]+\] ' "$log" | tail -n 80 >&2
    return $status
}

# Configures a build folder. The rest are options for CMake.
configure() {
    local folder=$1
    shift
    # What was compiled once, in whatever checkout, isn't compiled again.
    if command -v ccache >/dev/null; then
        export CCACHE_DIR CCACHE_BASEDIR=$PWD CCACHE_NOHASHDIR=1 CCACHE_MAXSIZE=2G
        CCACHE_DIR=$(cache_folder)/ccache
        set -- -DCMAKE_CXX_COMPILER_LAUNCHER=ccache "$@"
    fi
    cmake -S . -B "$folder" -G Ninja "$@"
}

build_release() {
    quietly configure configure build -DCMAKE_BUILD_TYPE=Release || return
    ninja -C build "$@"
}
