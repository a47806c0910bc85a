#!/usr/bin/env bash
# Installs what building, running and testing need and is not there yet (Debian 12, Ubuntu), asking
# nothing. Sourced or called by run.sh and test.sh.
set -euo pipefail

packages=(
    g++ cmake ninja-build ccache pkg-config
    qt6-base-dev qt6-tools-dev qt6-tools-dev-tools qt6-l10n-tools libqt6svg6-dev libgl1-mesa-dev
    libqt6svg6 libqt6sql6-sqlite libzip-dev zlib1g-dev libpugixml-dev libneon27-gnutls-dev
    qt6-translations-l10n qtkeychain-qt6-dev libxlsxwriter-dev
    libbenchmark-dev
    fonts-dejavu-core
)
if [ "${1:-}" = tests ]; then
    packages+=(python3 unzip zip dbus dbus-daemon attr apache2-bin openssl curl ugrep
        desktop-file-utils appstream libxml2-utils shared-mime-info man-db zsh)
fi

missing=()
for package in "${packages[@]}"; do
    dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'install ok installed' ||
        missing+=("$package")
done
[ ${#missing[@]} -eq 0 ] && exit 0

echo "Installing: ${missing[*]}"
as_root=()
if [ "$(id -u)" -ne 0 ]; then
    if ! command -v sudo >/dev/null; then
        echo "These packages are missing and only root can install them: ${missing[*]}" >&2
        exit 1
    fi
    as_root=(sudo)
fi
"${as_root[@]}" apt-get update -q
"${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
    apt-get install -y -q --no-install-recommends "${missing[@]}"
