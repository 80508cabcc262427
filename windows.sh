#!/usr/bin/env bash
# Builds Usmira for Windows on a Debian 12 machine, tests it under Wine, and packs it: an archive to
# unpack anywhere, and an installer.
cd "$(dirname "$0")"
. scripts/setup.sh
set -E # a step that fails within a function says so too
. scripts/windows/sources.sh
. scripts/windows/qt.sh
. scripts/windows/libraries.sh
. scripts/windows/wine.sh
. scripts/windows/pack.sh

install_missing "${QT_PACKAGES[@]}" "${LIBRARY_PACKAGES[@]}" "${WINE_PACKAGES[@]}" "${PACK_PACKAGES[@]}" ccache
qt_for_windows
libraries_for_windows
wine_folder
grep -qsF "$QT_FOLDER/" build/windows/CMakeCache.txt || rm -rf build/windows/CMake*
if [ ! -f build/windows/CMakeCache.txt ]; then
    say "Configuring (windows)"
    "$QT_FOLDER/windows/bin/qt-cmake" -S . -B build/windows -G Ninja -DCMAKE_BUILD_TYPE=Release \
        -DCMAKE_CXX_FLAGS_RELEASE="-O2 -DNDEBUG" -DCMAKE_CROSSCOMPILING_EMULATOR="$WINE"
fi
say "Building (windows)"
cmake --build build/windows
say "Testing under Wine"
wine_tests
version=$(sed -n 's/^project(usmira VERSION \([0-9.]*\).*/\1/p' CMakeLists.txt)
pack_all "$PWD/build/windows/Usmira-$version" "$QT_FOLDER" "$version"
