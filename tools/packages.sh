# Lists the Debian packages that playing and checking need, and installs them. Sourced by ./play and
# ./check. A package whose name differs between releases has its names separated by bars; the first
# that exists is installed.

play_packages=(
    build-essential cmake ninja-build ccache pkg-config
    qt6-base-dev "qt6-svg-dev|libqt6svg6-dev" libpulse-dev libxcb1-dev libfontconfig-dev
    libpulse0 fonts-liberation2\|fonts-liberation
    python3 weasyprint librsvg2-bin
)

check_packages=(
    git clang clang-format clang-tidy "libclang-rt-dev|libclang-rt-14-dev"
    libgtest-dev libbenchmark-dev
    xvfb xauth openbox fluxbox fvwm3 i3-wm xdotool x11-utils imagemagick
    pulseaudio pulseaudio-utils chromium firefox-esr webkit2gtk-driver
    at-spi2-core dbus python3-pyatspi
    python3-fonttools poppler-utils
    desktop-file-utils appstream man-db mandoc debhelper apache2-dev lintian
)

# Emscripten needs the library node-acorn, which only Debian's Node brings along.
browser_packages=(
    cmake ninja-build ccache emscripten node-acorn
    python3 weasyprint librsvg2-bin fonts-liberation2\|fonts-liberation
)

# Any other Node brings npm along.
command -v npm >/dev/null || check_packages+=(npm)

is_installed() {
    [ "$(dpkg-query -W -f '${db:Status-Status}' "$1" 2>/dev/null)" = installed ]
}

# Prints the packages of which no alternative is installed.
missing_packages() {
    local entry name
    for entry in "$@"; do
        for name in ${entry//|/ }; do
            is_installed "$name" && continue 2
        done
        printf '%s\n' "$entry"
    done
}

# Prints the first of the alternatives "A|B" that can be installed.
choose_package() {
    local name
    for name in ${1//|/ }; do
        if apt-cache show --no-all-versions "$name" >/dev/null 2>&1; then
            printf '%s\n' "$name"
            return
        fi
    done
    printf '%s\n' "${1%%|*}"
}

# Installs missing packages; prints nothing if there are none.
install_missing() {
    if ! command -v apt-get >/dev/null; then
        echo "There is no apt-get here, so these packages have to be installed already (Debian's names): $*" >&2
        return 0
    fi
    local missing names=() entry as_root=() options=() output
    mapfile -t missing < <(missing_packages "$@" | sort -u)
    [ ${#missing[@]} -gt 0 ] || return 0
    if [ "$(id -u)" -ne 0 ]; then
        if ! command -v sudo >/dev/null; then
            echo "These packages are missing, and only root can install them: ${missing[*]}" >&2
            return 1
        fi
        as_root=(sudo)
    fi
    echo "Installing ${#missing[@]} packages: ${missing[*]}"
    "${as_root[@]}" apt-get update -qq || return 1
    for entry in "${missing[@]}"; do
        names+=("$(choose_package "$entry")")
    done
    # A build server is thrown away afterwards, so dpkg need not wait for its disk.
    [ -z "${CI:-}" ] || options=(-o Dpkg::Options::=--force-unsafe-io)
    output=$("${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
        apt-get install -qq -y --no-install-recommends "${options[@]}" "${names[@]}" 2>&1) || {
        echo "$output" >&2
        return 1
    }
}
