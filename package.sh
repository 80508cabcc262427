#!/usr/bin/env bash
# Installs what is missing, builds Usmira, makes a Debian package of it and checks that.
cd "$(dirname "$0")"
. scripts/setup.sh

install_missing "${PACKAGES[@]}" dpkg-dev lintian appstream desktop-file-utils
build release usmira usmira-outil

say "Packing"
folder=build/release/package
rm -rf "$folder"
umask 022 # whatever it is, others are to read what the package installs
export LC_ALL=C.UTF-8 # else cpack stops at the first accent in a name
cpack --config build/release/CPackConfig.cmake >build/release/package.log 2>&1 ||
    { cat build/release/package.log; fail "cpack could not make the package"; }
package=$(ls "$folder"/*.deb)

say "Checking the package"
# The tag left out is about uploads to Debian, whose first one answers a request there.
lintian --fail-on error,warning --suppress-tags initial-upload-closes-no-bugs "$package" ||
    fail "lintian complains about $package"
dpkg-deb --extract "$package" "$folder/content"
desktop-file-validate "$folder"/content/usr/share/applications/*.desktop
appstreamcli validate --no-net --strict "$folder"/content/usr/share/metainfo/*.xml
rm -r "$folder/content"

say "Made $package, $(numfmt --to=iec-i --suffix=B "$(stat -c %s "$package")")"
echo "Install it with: sudo apt install ./$package"
