#!/bin/sh
# What packaging/run.sh does on the bare Debian, as root; the packages are beside this script.
set -eu

# Files of the system, without what other programs write while they run.
files() {
    find / -xdev \( -path /proc -o -path /dev -o -path /tmp -o -path /var -o -path /root -o -path /run \
        -o -path /home \) -prune -o -print | sort
}
as_user() {
    runuser -u tester -- env HOME=/home/tester QT_QPA_PLATFORM=offscreen "$@"
}
quietly() {
    "$@" >/root/log 2>&1 || { cat /root/log; exit 1; }
}

# Removes the packages with all that came with them, and looks for what they left.
remove_and_look() {
    quietly apt-get purge -y -q "$@"
    if grep -rl -i tessaforma /usr /etc /var/lib/dpkg/info; then
        echo "These files still know of it." >&2
        exit 1
    fi
    files >/root/after
    if grep -i -E 'docbench|docmodel|tessaforma' /root/after; then
        echo "These files stayed." >&2
        exit 1
    fi
}

useradd --create-home tester
quietly apt-get update -q
# What a desktop has, so that the package meets the caches that it is entered into.
quietly apt-get install -y -q --no-install-recommends desktop-file-utils shared-mime-info man-db
files >/root/before

echo "== Installing"
quietly apt-get install -y -q --no-install-recommends /root/docbench_*.deb
docbench --version

echo "== Working with a new sample library"
cd /home/tester
assembly=$(as_user docbench-samples /home/tester/gearbox | tail -n 1)
as_user docbench tree "$assembly"
as_user docbench where-used "/home/tester/gearbox/fasteners/washer.tfmprt" --in /home/tester/gearbox
as_user docmodel check "$assembly"

echo "== What the desktop knows"
man -w docbench docbench-rename docmodel docbench-thumbnailer
as_user docbench-thumbnailer -s 128 "$assembly" /home/tester/thumbnail.png
test "$(head -c 4 /home/tester/thumbnail.png | tail -c 3)" = PNG
grep -h tessaforma /usr/share/mime/globs2
grep -h tessaforma /usr/share/applications/mimeinfo.cache
as_user docbench --screenshot /home/tester/window.png "$assembly"
test -s /home/tester/window.png

echo "== Removing"
remove_and_look docbench
quietly apt-get autoremove --purge -y -q
files >/root/after
if ! diff /root/before /root/after; then
    echo "The system is not what it was." >&2
    exit 1
fi
echo "The system has the files that it had before."

echo "== Building a host of the controls"
quietly apt-get install -y -q --no-install-recommends /root/docbench_*.deb /root/docbench-dev_*.deb \
    g++ cmake make
cp -r /usr/share/doc/docbench/example /home/tester/host
chown -R tester /home/tester/host
quietly as_user cmake -S /home/tester/host -B /home/tester/host/build
quietly as_user cmake --build /home/tester/host/build
as_user /home/tester/host/build/docbench-host "$assembly" /home/tester/host.png
test -s /home/tester/host.png
remove_and_look docbench docbench-dev
echo "Everything is as it should be."
