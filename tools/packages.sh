# SPDX-License-Identifier: MIT
# The Debian and Ubuntu packages this tree needs, in one place; sourced by ./run, ./test and tools/tidy.
# shellcheck shell=bash disable=SC2034

# What builds the program and runs it.
RUN_PACKAGES=(
    g++ cmake ninja-build pkg-config
    qt6-base-dev qt6-svg-dev # with them come the xcb platform and the SVG icon engine plugins
    libfmt-dev libutf8proc-dev libx11-dev
    fonts-dejavu-core
)

# A virtual display with a window manager and an accessibility bus, and what drives a program on it.
DISPLAY_PACKAGES=(
    xvfb openbox dbus at-spi2-core
    libatspi2.0-dev libxtst-dev
)

# The pictures of the tour, and what it shows.
TOUR_PACKAGES=("${DISPLAY_PACKAGES[@]}" imagemagick git vim-tiny poppler-utils)

# The tests, and the shells they start.
TEST_PACKAGES=(
    "${RUN_PACKAGES[@]}" "${DISPLAY_PACKAGES[@]}"
    libgtest-dev libbenchmark-dev
    bash tcsh ksh zsh dash busybox fish
    procps xclip less vim-tiny python3-minimal openssh-client ghostscript poppler-utils sharutils subversion
)

# What only a machine for tests should have: it starts a service, so ./test leaves it to its user, and what
# needs it is skipped.
CI_PACKAGES=(openssh-server)

# What builds the Debian package and checks it.
PACKAGE_PACKAGES=(dpkg-dev file lintian desktop-file-utils appstream groff-base)

# What checks the form of the code.
TIDY_PACKAGES=(clang-format clang-tidy)

# Prints one line about what is being done.
say() { printf '%s: %s\n' "${0##*/}" "$*"; }

# Prints why nothing more can be done, and ends the script.
fail() {
    printf '%s: %s\n' "${0##*/}" "$*" >&2
    exit 1
}

# Prints those of the named packages that are not installed, one a line.
missing_packages() {
    comm -13 \
        <(dpkg-query -W -f '${db:Status-Status} ${Package}\n' "$@" 2>/dev/null | sed -n 's/^installed //p' | sort -u) \
        <(printf '%s\n' "$@" | sort -u)
}

# Installs what is missing of the named packages; as root, or through sudo.
require_packages() {
    local missing as_root=()
    command -v dpkg-query >/dev/null || fail "this is no Debian or Ubuntu system; install by hand: $*"
    mapfile -t missing < <(missing_packages "$@")
    ((${#missing[@]})) || return 0
    if (($(id -u) != 0)); then
        command -v sudo >/dev/null && sudo -v 2>/dev/null ||
            fail "packages are missing, and neither root nor sudo is to be had; install: ${missing[*]}"
        as_root=(sudo)
    fi
    say "installing ${missing[*]}"
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -q -q update ||
        fail "apt-get update failed; missing: ${missing[*]}"
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
        apt-get -q -q install --yes --no-install-recommends -o Dpkg::Use-Pty=0 "${missing[@]}" >/dev/null ||
        fail "apt-get install failed; missing: ${missing[*]}"
}

# Installs what the fuzz targets need beside TEST_PACKAGES: clang and the run-time library of its version, which
# has a package of its own.
require_fuzz_packages() {
    require_packages clang
    require_packages "libclang-rt-$(clang++ -dumpversion | cut -d . -f 1)-dev"
}

# Makes the build folder of a preset.
configure() {
    local preset=$1 output
    say "configuring build/$preset"
    output=$(cmake --preset "$preset" 2>&1) || {
        printf '%s\n' "$output" >&2
        fail "cmake could not configure build/$preset"
    }
}
