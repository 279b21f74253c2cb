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
bench_packages=(libbenchmark-dev python3 chromium firefox-esr fonts-liberation)

as_root() {
    if [ "$(id -u)" -eq 0 ]; then
        "$@"
    elif command -v sudo >/dev/null; then
        sudo "$@"
    else
        echo "Please install as root: $*" >&2
        return 1
    fi
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
    echo "Installing ${missing[*]}"
    as_root apt-get update -qq
    as_root env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends \
        "${missing[@]}" >/dev/null
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
