# shellcheck shell=bash disable=SC2034
# Sourced by the other scripts. Finds the Debian packages that a step needs; installs those that are
# missing if it runs as root, otherwise names them.

set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

build_packages=(g++ cmake ninja-build libcli11-dev nlohmann-json3-dev libjs-three)
test_packages=(libgtest-dev libgmock-dev gnuplot-nox libxml2-utils python3 parallel procps)
check_packages=(clang clang-format clang-tidy libclang-rt-dev libbenchmark-dev shellcheck git doxygen
    pandoc mandoc groff-base busybox zsh fish python3-yaml)
browser_packages=(chromium chromium-driver python3-selenium python3-vtk9 fonts-dejavu-core)
python_packages=(pybind11-dev python3-dev python3-numpy python3-pytest python3-matplotlib python3-xarray)
package_packages=(dpkg-dev lintian pandoc debootstrap git)
arm64_packages=(g++-aarch64-linux-gnu)
windows_packages=(g++-mingw-w64-x86-64-posix wine64 wine zip unzip)

is_installed() {
    dpkg-query -W -f='${Status}' "$1" 2>/dev/null | grep -q 'install ok installed'
}

# require PACKAGE...: installs the missing packages.
require() {
    local package missing=()
    command -v dpkg-query >/dev/null || return 0
    for package in "$@"; do
        is_installed "$package" || missing+=("$package")
    done
    [ ${#missing[@]} -eq 0 ] && return 0
    if [ "$(id -u)" -ne 0 ]; then
        echo "Missing packages: ${missing[*]}" >&2
        echo "Install them with: sudo apt-get install ${missing[*]}" >&2
        exit 1
    fi
    echo "Installing ${missing[*]}"
    apt-get update -qq
    DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends \
        "${missing[@]}" >/dev/null
}

# build PRESET [TARGET...]: configures and builds quietly; shows the log on failure.
build() {
    local preset=$1 log
    shift
    log=$(mktemp)
    if ! { cmake --preset "$preset" && cmake --build --preset "$preset" ${1:+--target "$@"}; } \
        >"$log" 2>&1; then
        cat "$log"
        rm -f "$log"
        exit 1
    fi
    rm -f "$log"
}

# folder_of PRESET: the build folder of a preset.
folder_of() {
    case $1 in
        release | program) echo build ;;
        *) echo "build-$1" ;;
    esac
}

# program_of PRESET [NAME]: sets `program` to the command that runs sorvikPre, or NAME, of that build.
program_of() {
    local folder file name=${2:-sorvikPre}
    folder=$PWD/$(folder_of "$1")
    IFS=';' read -ra program < <(sed -n 's/^CMAKE_CROSSCOMPILING_EMULATOR:[^=]*=//p' \
        "$folder/CMakeCache.txt") || true
    file=$folder/$name
    [ -e "$file" ] || file=$file.exe
    program+=("$file")
}
