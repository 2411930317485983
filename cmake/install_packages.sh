#!/bin/bash
# install_packages.sh [LIST...]: installs those packages of the lists (packages.txt, if none is named) that are missing. Does nothing, and
# needs no rights, when all are there.
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)

[ $# -gt 0 ] || set -- "$here/packages.txt"
mapfile -t wanted < <(sed -e 's/#.*//' -e '/^[[:space:]]*$/d' "$@")

if ! command -v dpkg-query >/dev/null; then
    echo "This is no Debian system. Make sure that it has the equivalents of: ${wanted[*]}" >&2
    exit 0
fi

missing=()
for package in "${wanted[@]}"; do
    status=$(dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null || true)
    [ "$status" = installed ] || missing+=("$package")
done
[ ${#missing[@]} -gt 0 ] || exit 0

as_root=()
if [ "$(id -u)" -ne 0 ]; then
    if ! command -v sudo >/dev/null; then
        echo "These packages are missing: ${missing[*]}" >&2
        echo "Neither root nor sudo is at hand. Install them as root: apt-get install ${missing[*]}" >&2
        exit 1
    fi
    as_root=(sudo)
fi

echo "Installing: ${missing[*]}"
"${as_root[@]}" apt-get update -qq
if ! "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}"; then
    echo "These packages could not be installed: ${missing[*]}" >&2
    exit 1
fi
