# Sourced by windows.sh: builds Qt for Windows from Debian's own sources, once, in the user's cache
# folder. Expects scripts/setup.sh and sources.sh.

QT_PACKAGES=(dpkg-dev g++-mingw-w64-x86-64-posix cmake ninja-build perl qt6-base-dev
    qt6-base-dev-tools qt6-l10n-tools)

# What Usmira has no use for is left out; what Windows does not bring comes with Qt's sources.
# Debian's sources of Qt lack the header of the tablets. Without Direct2D there would be no
# DirectWrite either, which draws the texts; what its newer half is for is a plugin that nobody uses.
QT_OPTIONS=(-DCMAKE_BUILD_TYPE=Release -DBUILD_SHARED_LIBS=ON -DQT_BUILD_EXAMPLES=OFF
    -DQT_BUILD_TESTS=OFF -DQT_HOST_PATH=/usr
    -DQT_HOST_PATH_CMAKE_DIR=/usr/lib/x86_64-linux-gnu/cmake
    -DFEATURE_system_zlib=OFF -DFEATURE_system_png=OFF -DFEATURE_system_jpeg=OFF
    -DFEATURE_system_freetype=OFF -DFEATURE_system_harfbuzz=OFF -DFEATURE_system_pcre2=OFF
    -DFEATURE_sql=OFF -DFEATURE_dbus=OFF -DFEATURE_network=OFF -DFEATURE_xml=OFF
    -DFEATURE_concurrent=OFF -DINPUT_opengl=no -DFEATURE_opengl=OFF -DFEATURE_vulkan=OFF
    -DFEATURE_direct2d1_1=OFF -DFEATURE_tabletevent=OFF -DCMAKE_CXX_FLAGS=-Wno-attributes)

# A library of Qt and the tools that its build runs must be of one version.
qt_version() { dpkg-query -W -f '${source:Version}' "$1"; }

# Of ninja's lines one for each twentieth of the way.
every_twentieth() {
    awk '
        match($0, /^\[[0-9]+\/[0-9]+\]/) {
            split(substr($0, 2, RLENGTH - 2), n, "/")
            part = int(20 * n[1] / n[2])
            if (part != last) { printf "   %d %%\n", 5 * part; fflush() }
            last = part
        }'
}

# qt_build FOLDER: configures if need be, builds from where the last run stopped, and installs.
qt_build() {
    local build=$1/build log=$1/qt6-base.log
    if [ ! -f "$build/build.ninja" ]; then
        rm -rf "$build"
        say "Configuring Qt for Windows"
        cmake --toolchain "$1/Mingw.cmake" -DCMAKE_INSTALL_PREFIX="$1/windows" "${QT_OPTIONS[@]}" \
            -S "$1/qt6-base" -B "$build" -G Ninja >"$log" 2>&1 ||
            { tail -n 40 "$log"; fail "cmake could not configure Qt"; }
    fi
    say "Building Qt for Windows"
    cmake --build "$build" 2>&1 | tee -a "$log" | every_twentieth ||
        { tail -n 40 "$log"; fail "Qt could not be built"; }
    cmake --install "$build" >>"$log"
}

# qt_for_windows: where it lies is in QT_FOLDER then. Another version of Debian's packages or other
# options are another folder.
qt_for_windows() {
    local needed=2000 there
    QT_FOLDER=${XDG_CACHE_HOME:-$HOME/.cache}/usmira/qt-$(qt_version qt6-base-dev)-$(
        cat <(printf '%s\n' "${QT_OPTIONS[@]}") cmake/Mingw.cmake | sha256sum | head -c 8)
    if [ -f "$QT_FOLDER/windows/complete" ]; then
        say "Qt for Windows is in $QT_FOLDER"
        return
    fi
    # Qt remembers where its toolchain lies, and this clone may be gone when the next one comes.
    mkdir -p "$QT_FOLDER"
    cp cmake/Mingw.cmake "$QT_FOLDER/"
    there=$(df -Pm "$QT_FOLDER" | awk 'NR == 2 { print $4 }')
    [ "$there" -ge "$needed" ] ||
        fail "building Qt takes $needed MB in $QT_FOLDER, and $there MB are free"
    say "Building Qt for Windows in $QT_FOLDER: once, about 35 minutes on two cores. When it is
   interrupted, the next run goes on where it stopped."
    say "Fetching Debian's sources of Qt"
    debian_sources "$QT_FOLDER" qt6-base "$(qt_version qt6-base-dev)"
    qt_build "$QT_FOLDER"
    touch "$QT_FOLDER/windows/complete"
    rm -rf "$QT_FOLDER/build" "$QT_FOLDER"/*.tar.xz "$QT_FOLDER/apt"
}
