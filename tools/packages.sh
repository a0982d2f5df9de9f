# Debian packages by what they are needed for; sourced by the other tools.
QUILL_BUILD_PACKAGES="g++ cmake ninja-build pkg-config libxml2-dev nlohmann-json3-dev
qt6-base-dev qt6-svg-dev qt6-tools-dev qt6-tools-dev-tools qt6-l10n-tools fonts-dejavu-core"
QUILL_TEST_PACKAGES="libgtest-dev libgmock-dev libudunits2-dev libbenchmark-dev xvfb clang
libclang-rt-14-dev"
QUILL_LINT_PACKAGES="clang-format clang-tidy python3"

# Installs those of the named packages that are missing; does nothing where all are there.
quill_install() {
    local missing=""
    local package
    for package in "$@"; do
        if ! dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q "install ok installed"; then
            missing="$missing $package"
        fi
    done
    [ -n "$missing" ] || return 0
    local sudo=""
    [ "$(id -u)" = 0 ] || sudo="sudo"
    echo "Installing:$missing"
    $sudo apt-get update -qq
    # shellcheck disable=SC2086
    DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y -qq --no-install-recommends $missing >/dev/null
}

# A compiler cache is used where there is one.
quill_launcher() {
    command -v ccache >/dev/null 2>&1 && echo "-DCMAKE_CXX_COMPILER_LAUNCHER=ccache"
    return 0
}
