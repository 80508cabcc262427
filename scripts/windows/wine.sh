# Sourced by windows.sh: runs what was built for Windows. Expects scripts/setup.sh and QT_FOLDER.

WINE_PACKAGES=(wine wine64 fonts-liberation fonts-dejavu-core)

# A Windows of its own, in the build folder, so that the user's is left alone.
wine_folder() {
    export WINEPREFIX=$PWD/build/windows/wine WINEDEBUG=-all WINEDLLOVERRIDES="mscoree=;mshtml="
    # wine itself asks for its 32-bit sister, which nothing here needs.
    WINE=$(command -v wine64 || ls /usr/lib/wine/wine64) || fail "wine64 is missing"
    local compiler
    compiler=$(dirname "$(x86_64-w64-mingw32-g++-posix -print-file-name=libstdc++-6.dll)")
    if [ ! -d "$WINEPREFIX/drive_c/windows" ]; then
        say "Preparing Wine"
        mkdir -p "$WINEPREFIX"
        "$WINE" wineboot -i
    fi
    export WINEPATH
    WINEPATH="$(for_wine "$QT_FOLDER/windows/bin");$(for_wine "$compiler");$(
        for_wine /usr/x86_64-w64-mingw32/lib)"
}

for_wine() { printf 'Z:%s' "${1//\//\\}"; }

# What Qt asks the environment for does not get through to Wine, unless its registry says it.
wine_setting() {
    "$WINE" reg add 'HKCU\Environment' /v "$1" /d "$2" /f >/dev/null
}

# Without a screen, with the fonts that the tests have elsewhere too.
wine_tests() {
    mkdir -p build/windows/fonts
    cp /usr/share/fonts/truetype/{liberation,dejavu}/*.ttf build/windows/fonts/
    wine_setting QT_QPA_FONTDIR "$(for_wine "$PWD/build/windows/fonts")"
    wine_setting QT_QPA_PLATFORM offscreen
    # One at a time: Wine gives the number of a file that is removed to the next one, at once, and
    # by that number programs know what others have open.
    ctest --test-dir build/windows --no-tests=error || {
        find build/windows/tests -name '*.report' -exec grep -ahE -A2 '^(FAIL|QFATAL)' {} +
        fail "these tests do not pass under Wine"
    }
}
