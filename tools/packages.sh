# Sourced by run.sh and test.sh: installs the Debian packages that are missing.
# need PACKAGE...: installs those that are not there; through sudo when not root.
need() {
    missing=()
    for package in "$@"; do
        dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'install ok installed' || missing+=("$package")
    done
    [ ${#missing[@]} -eq 0 ] && return 0
    echo "== Installing: ${missing[*]}"
    local as_root=()
    [ "$(id -u)" -eq 0 ] || as_root=(sudo)
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get update -q >/dev/null
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -q --no-install-recommends "${missing[@]}" >/dev/null
}

BUILD_PACKAGES=(g++ cmake ninja-build ccache qt6-base-dev libgl1-mesa-dev)
RUN_PACKAGES=(libqt6widgets6 qt6-qpa-plugins fonts-dejavu-core)
TEST_PACKAGES=(libgtest-dev python3 binutils)
