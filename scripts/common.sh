# What the scripts of this folder share. Meant to be sourced by a bash script with `set -euo pipefail`.

# Prints a line about what the script does. Standard error is left to what goes wrong.
say()
{
    printf '== %s\n' "$*"
}

# Prints why the script gives up, and ends it.
die()
{
    printf '%s: %s\n' "$(basename "$0")" "$*" >&2
    exit 1
}

# Tells whether a Debian package is installed.
package_is_installed()
{
    local status
    status=$(dpkg-query --show --showformat='${db:Status-Status}' "$1" 2>/dev/null) || return 1
    [[ $status == installed* ]]
}

# Runs a command as root, through sudo if need be.
as_root()
{
    if [ "$(id -u)" -eq 0 ]; then
        "$@"
    elif command -v sudo >/dev/null; then
        sudo "$@"
    else
        die "this needs root, and there is no sudo: $*"
    fi
}

# Installs those of the given Debian packages that are missing, without questions.
# apt-get update runs at most once, and only if something is missing.
ensure_packages()
{
    local missing=() package
    for package in "$@"; do
        package_is_installed "$package" || missing+=("$package")
    done
    [ "${#missing[@]}" -gt 0 ] || return 0

    command -v apt-get >/dev/null || die "these packages are missing, and there is no apt-get: ${missing[*]}"
    say "installing ${missing[*]}"
    if [ -z "${PACKAGE_LISTS_ARE_FRESH:-}" ]; then
        as_root apt-get update -qq
        PACKAGE_LISTS_ARE_FRESH=yes
    fi
    as_root env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}"
}
