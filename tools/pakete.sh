# The Debian packages that building, playing and checking need, and their installation.
# Sourced by ./play and ./check. Where a package is called differently from release to release,
# the names stand with a bar between them, the first that exists is taken.

pakete_spiel=(
    build-essential cmake ninja-build ccache pkg-config
    qt6-base-dev "qt6-svg-dev|libqt6svg6-dev" libpulse-dev libxcb1-dev libxcb-render0-dev
    libpulse0 fonts-liberation2\|fonts-liberation
    python3 weasyprint librsvg2-bin
)

pakete_pruefung=(
    clang clang-format clang-tidy "libclang-rt-dev|libclang-rt-14-dev"
    libgtest-dev libbenchmark-dev
    xvfb xauth openbox fluxbox i3-wm xdotool x11-utils imagemagick
    pulseaudio pulseaudio-utils chromium
    at-spi2-core dbus python3-pyatspi
    python3-fonttools poppler-utils
    desktop-file-utils appstream man-db mandoc debhelper lintian
)

# Node, which Emscripten runs, may be of another maker than Debian and has no libraries then.
pakete_browser=(
    cmake ninja-build ccache emscripten node-acorn
    python3 weasyprint librsvg2-bin fonts-liberation2\|fonts-liberation
)

ist_installiert() {
    [ "$(dpkg-query -W -f '${db:Status-Status}' "$1" 2>/dev/null)" = installed ]
}

# Prints those of the given packages of which no alternative is installed.
fehlende_pakete() {
    local eintrag name
    for eintrag in "$@"; do
        for name in ${eintrag//|/ }; do
            ist_installiert "$name" && continue 2
        done
        printf '%s\n' "$eintrag"
    done
}

# Prints the first of the alternatives "A|B" that the package sources offer.
waehle_paket() {
    local name
    for name in ${1//|/ }; do
        if apt-cache show --no-all-versions "$name" >/dev/null 2>&1; then
            printf '%s\n' "$name"
            return
        fi
    done
    printf '%s\n' "${1%%|*}"
}

# Installs what is missing of the given packages; says nothing where all are there.
installiere_fehlende() {
    if ! command -v apt-get >/dev/null; then
        echo "No apt-get here, so the packages have to be there already (Debian's names: $*)." >&2
        return 0
    fi
    local fehlend namen=() eintrag als_root=() optionen=()
    mapfile -t fehlend < <(fehlende_pakete "$@")
    [ ${#fehlend[@]} -gt 0 ] || return 0
    if [ "$(id -u)" -ne 0 ]; then
        if ! command -v sudo >/dev/null; then
            echo "These packages are missing, and only root can install them: ${fehlend[*]}" >&2
            return 1
        fi
        als_root=(sudo)
    fi
    echo "Installing ${#fehlend[@]} packages: ${fehlend[*]}"
    "${als_root[@]}" apt-get update -qq || return 1
    for eintrag in "${fehlend[@]}"; do
        namen+=("$(waehle_paket "$eintrag")")
    done
    # A machine of continuous integration is thrown away, so that dpkg need not wait for its disk.
    [ -z "${CI:-}" ] || optionen=(-o Dpkg::Options::=--force-unsafe-io)
    local protokoll
    protokoll=$(mktemp)
    if ! "${als_root[@]}" env DEBIAN_FRONTEND=noninteractive \
        apt-get install -qq -y --no-install-recommends "${optionen[@]}" "${namen[@]}" >"$protokoll" 2>&1; then
        cat "$protokoll" >&2
        rm -f "$protokoll"
        return 1
    fi
    rm -f "$protokoll"
}
