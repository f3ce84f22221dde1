#!/usr/bin/env bash
# Installs those of the named Debian packages that are missing; does nothing when all are there.
#
# Usage: tools/install-packages.sh PACKAGE...
set -u

fail() {
    echo "$*" >&2
    exit 1
}

command -v dpkg-query >/dev/null || fail "This is not a Debian system; please install the equivalents of these packages: $*."

missing=()
for package in "$@"; do
    state=$(dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null)
    [ "$state" = installed ] || missing+=("$package")
done
[ ${#missing[@]} -gt 0 ] || exit 0

as_root=()
if [ "$(id -u)" != 0 ]; then
    command -v sudo >/dev/null || fail "Please run as root or install sudo; these packages are missing: ${missing[*]}."
    as_root=(sudo)
    # Without a terminal nobody can type a password.
    [ -t 0 ] || as_root+=(-n)
    "${as_root[@]}" true || fail "Without root's rights these missing packages cannot be installed: ${missing[*]}."
fi

echo "Installing ${missing[*]}"
log=$(mktemp)
apt() {
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
        apt-get -q -y -o DPkg::Lock::Timeout=300 "$@" </dev/null >>"$log" 2>&1
}
# Old package lists may still serve, so only a failed installation counts.
apt update
apt install --no-install-recommends "${missing[@]}" ||
    fail "These packages could not be installed, for the reason told in $log: ${missing[*]}."
rm -f "$log"
