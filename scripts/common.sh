# SPDX-License-Identifier: MIT
# Shared by the commands in this folder: what they need from Debian, and how they build.
# Sourced, never run; expects `set -euo pipefail`.

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cd "$root"

# What each job needs, as Debian packages.
core_packages=(g++ cmake ninja-build libcli11-dev)
editor_packages=(qt6-base-dev qt6-webengine-dev qt6-svg-dev libqt6svg6 qt6-qpa-plugins
    xdg-utils fonts-dejavu-core)
display_packages=(xvfb xauth)
test_packages=(ca-certificates libgtest-dev chromium firefox-esr webkit2gtk-driver xdotool
    fonts-liberation strace python3 acl attr clang-format clang-tidy)
# What the tests of the installation and of the packages ask.
desktop_packages=(desktop-file-utils appstream libglib2.0-bin shared-mime-info fish zsh)
package_packages=(dpkg-dev file gzip git)
package_test_packages=(lintian mmdebstrap bubblewrap)
bench_packages=(libbenchmark-dev python3 chromium firefox-esr fonts-liberation)

as_root() {
    if [ "$(id -u)" -eq 0 ]; then
        "$@"
    else
        sudo "$@"
    fi
}

# Says how much an installation takes: a person may be on a slow line, or short of room.
say_plan() {
    local plan count download size
    plan=$(LC_ALL=C apt-get install --assume-no --no-install-recommends "$@" 2>/dev/null || true)
    count=$(sed -n 's/.* \([0-9]*\) newly installed.*/\1/p' <<<"$plan")
    download=$(sed -n 's/^Need to get \(.*\) of archives.*/\1/p' <<<"$plan")
    size=$(sed -n 's/^After this operation, \(.*\) of additional.*/\1/p' <<<"$plan")
    echo "Installing ${count:-some} packages of Debian: ${download:-0 B} to download," \
        "${size:-nothing} more on the disk."
}

discard() {
    cat >/dev/null
}

# Shows how far apt is, on a terminal: reads what its option APT::Status-Fd tells.
show_progress() {
    local kind name percent rest
    while IFS=: read -r kind name percent rest; do
        case $kind in
            dlstatus) printf '\r  downloading %3d %%' "${percent%.*}" ;;
            pmstatus) printf '\r  installing  %3d %%' "${percent%.*}" ;;
        esac
    done
    printf '\r\033[K'
}

# Installs those of the named packages that are missing. Asks dpkg only, so that it costs nothing
# when everything is there.
need_packages() {
    local missing=() package
    for package in "$@"; do
        case $(dpkg-query -W -f='${db:Status-Abbrev}' "$package" 2>/dev/null || true) in
            ii*) ;;
            *) missing+=("$package") ;;
        esac
    done
    [ ${#missing[@]} -gt 0 ] || return 0
    if [ "$(id -u)" -ne 0 ] && ! command -v sudo >/dev/null; then
        echo "Some packages of Debian are missing, and there is no sudo. Please run as root:" >&2
        echo "  apt-get update && apt-get install -y --no-install-recommends ${missing[*]}" >&2
        return 1
    fi
    as_root apt-get update -qq
    say_plan "${missing[@]}"
    local show=discard
    [ ! -t 1 ] || show=show_progress
    # apt tells each time that it cannot ask questions, which it is not to do.
    as_root env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends \
        -o APT::Status-Fd=1 "${missing[@]}" 2> >(grep -v '^debconf: delaying' >&2) |
        "$show"
}

# A folder of its own for each session is what the desktop gives; without one Qt warns.
need_runtime_folder() {
    [ -z "${XDG_RUNTIME_DIR:-}" ] || return 0
    export XDG_RUNTIME_DIR=$root/build/session
    mkdir -p "$XDG_RUNTIME_DIR"
    chmod 700 "$XDG_RUNTIME_DIR"
}

# Node.js and npm may come from elsewhere than Debian's packages; what counts is that they run.
need_node() {
    command -v node >/dev/null || need_packages nodejs
    command -v npm >/dev/null || need_packages npm
}

# A folder's Node packages, the browser tests' if none is named, installed once for each state of its
# lock file.
need_node_modules() {
    local folder=${1:-tests/runtime}
    if [ ! -e "$folder/node_modules/.package-lock.json" ] ||
        [ "$folder/package-lock.json" -nt "$folder/node_modules/.package-lock.json" ]; then
        echo "Installing the packages of $folder for Node."
        npm ci --prefix "$folder" --no-audit --no-fund --loglevel=error
        touch "$folder/node_modules/.package-lock.json"
    fi
}

# Configures and builds a preset: build PRESET [TARGET...]
build() {
    local preset=$1
    shift
    cmake --preset "$preset" >"/dev/null"
    cmake --build --preset "$preset" ${1:+--target "$@"}
}
