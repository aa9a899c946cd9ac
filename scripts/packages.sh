# The Debian packages the commands need. Sourced, not run by itself.
# The X libraries are those that Wine's display driver opens while running. A command that needs more
# adds it before it asks for them.

needed_packages=(
    cmake ninja-build
    binutils-mingw-w64-x86-64 g++-mingw-w64-x86-64-posix mingw-w64-x86-64-dev googletest
    wine wine64 fonts-wine fonts-liberation
    xvfb x11-utils
    libxcomposite1 libxcursor1 libxfixes3 libxi6 libxinerama1 libxrandr2 libxrender1 libxxf86vm1
)

# Installs what is missing, or says how to and stops. Nothing missing costs one look-up.
ensure_packages() {
    command -v dpkg-query > /dev/null || fail "This needs Debian 12 (its package tools are missing)."
    local -A present=()
    local name state missing=() as_root=()
    while read -r name state; do
        [[ $state == installed ]] && present[$name]=1
    done < <(dpkg-query -W -f '${Package} ${db:Status-Status}\n' "${needed_packages[@]}" 2> /dev/null)
    for name in "${needed_packages[@]}"; do
        [[ -n ${present[$name]-} ]] || missing+=("$name")
    done
    [[ ${#missing[@]} == 0 ]] && return

    local install=(apt-get install -y --no-install-recommends "${missing[@]}")
    if [[ $(id -u) != 0 ]]; then
        # Without a terminal nobody can type a password: then only a sudo that asks for none helps.
        if command -v sudo > /dev/null && { sudo -n true 2> /dev/null || [[ -t 0 && -t 2 ]]; }; then
            as_root=(sudo)
        else
            say "Packages are missing. As root:"
            fail "apt-get update && ${install[*]}"
        fi
    fi
    say "Installing: ${missing[*]}"
    "${as_root[@]}" apt-get update >&2 || fail "The package lists could not be fetched."
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive "${install[@]}" >&2 ||
        fail "The packages could not be installed."
}
