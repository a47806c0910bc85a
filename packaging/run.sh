#!/usr/bin/env bash
# Builds the release, makes the .deb packages (in out/packages), checks them with lintian, and tries
# them on a bare Debian 12 of its own: installs them, works with them, removes them, and looks for
# what stayed. Needs root for the Debian in a folder, and some minutes.
set -euo pipefail
cd "$(dirname "$0")/.."

./setup.sh
tools=(dpkg-dev fakeroot lintian debootstrap)
missing=()
for tool in "${tools[@]}"; do
    dpkg-query -W -f='${Status}' "$tool" 2>/dev/null | grep -q 'install ok installed' ||
        missing+=("$tool")
done
if [ ${#missing[@]} -gt 0 ]; then
    apt-get update -q
    DEBIAN_FRONTEND=noninteractive apt-get install -y -q --no-install-recommends "${missing[@]}"
fi

echo "== Building the packages"
cmake --preset package
cmake --build --preset package
packages=$(pwd)/out/packages
rm -rf "$packages"
mkdir -p "$packages"
cpack --config build/package/CPackConfig.cmake -B "$packages"
rm -rf "$packages/_CPack_Packages"

echo "== Checking them"
lintian --fail-on error --tag-display-limit 0 "$packages"/*.deb

echo "== Making a bare Debian 12"
root=$(mktemp -d)
trap 'rm -rf "$root"' EXIT
chmod 755 "$root"
mirror=$(apt-get indextargets --format '$(REPO_URI)' 'Created-By: Packages' 'Codename: bookworm' |
    head -n 1)
debootstrap --variant=minbase bookworm "$root" "$mirror" >"$packages/debootstrap.log" ||
    { tail "$packages/debootstrap.log" >&2; exit 1; }
rm "$packages/debootstrap.log"
# Nothing is to be started in there.
printf '#!/bin/sh\nexit 101\n' >"$root/usr/sbin/policy-rc.d"
chmod 755 "$root/usr/sbin/policy-rc.d"
cp /etc/resolv.conf "$root/etc/resolv.conf"
cp packaging/inside.sh "$packages"/*.deb "$root/root/"

# A mount namespace of its own: whatever happens, no mount is left behind.
unshare --mount --propagation private sh -ec "
    mount -t proc proc '$root/proc'
    exec env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin HOME=/root LC_ALL=C.UTF-8 \
        DEBIAN_FRONTEND=noninteractive chroot '$root' sh -eu /root/inside.sh"
echo
echo "The packages:"
ls -l "$packages"
