# Debian packages: what is needed, what is missing, and how it gets here. To be sourced.

# To build the program and to run it.
run_packages=(cmake g++ libxcb1-dev ninja-build python3 qt6-base-dev qt6-multimedia-dev)

# To run every test on top of that.
test_packages=(
    clang-14 clang-format-14 clang-tidy-14 libclang-rt-14-dev # sanitized fuzzing, checks of the sources
    libbenchmark-dev libgmock-dev libgtest-dev
    iproute2 nftables util-linux  # private networks, and a firewall in one of them
    openbox xdotool xvfb   # a screen without a monitor
    dbus-daemon libglib2.0-bin        # a session's bus, and what reads its entries
    at-spi2-core python3-dbus         # what a screen reader is told
    fish groff-base zsh               # who completes a command line, and who shows a manual
    trayer xfce4-panel xfconf         # panels with a place for the tray icon, of two kinds
)

# Prints those of the named packages that are not installed.
missing_packages() {
    local present
    present=" $(dpkg-query -W -f='${Package} ${db:Status-Status}\n' "$@" 2>/dev/null |
        awk '$2 == "installed" { print $1 }' | tr '\n' ' ')"
    local name
    for name in "$@"; do
        [[ $present == *" $name "* ]] || printf '%s\n' "$name"
    done
}

# The command in front of apt-get that makes us root; fails where we cannot become root.
way_to_root() {
    if [[ $EUID -eq 0 ]]; then
        echo env
    elif command -v sudo >/dev/null && { sudo -n true 2>/dev/null || [[ -t 0 && -z ${CI:-} ]]; }; then
        echo sudo
    else
        return 1
    fi
}

apt_install() {
    local root=$1
    shift
    "$root" env DEBIAN_FRONTEND=noninteractive \
        apt-get install --yes --quiet --no-install-recommends "$@"
}

# Installs what is missing of the named packages. Needs no network when nothing is. Where it cannot
# install, it says what is missing and which command brings it, and fails.
need_packages() {
    if ! command -v dpkg-query >/dev/null; then
        echo "This is no Debian system, so packages are not looked after. Needed are: $*"
        return 0
    fi
    local missing root log=build/logs/packages.log
    mapfile -t missing < <(missing_packages "$@")
    [[ ${#missing[@]} -eq 0 ]] && return 0

    if root=$(way_to_root); then
        echo "Installing ${missing[*]}"
        # The lists of packages may be old or empty: then once more with new ones.
        if apt_install "$root" "${missing[@]}" >"$log" 2>&1 ||
            { "$root" apt-get update --quiet && apt_install "$root" "${missing[@]}"; } >>"$log" 2>&1
        then
            return 0
        fi
        tail -n 15 "$log"
        echo "The installation failed; the whole story is in $log."
    fi
    {
        echo "Missing packages: ${missing[*]}"
        echo "Please install them as root and start again:"
        echo "    apt-get update && apt-get install --no-install-recommends ${missing[*]}"
    } >&2
    return 1
}
