# Sourced by windows.sh: the folder with all that the program ships, the archive and the installer.
# Expects scripts/setup.sh.

PACK_PACKAGES=(zip nsis librsvg2-bin icoutils breeze-icon-theme qt6-translations-l10n)

# icons_used SOURCES: the names of icons that the forms and the code ask the theme for.
icons_used() {
    grep -rhoE 'iconset theme="[^"]+"' --include='*.ui' "$1" | sed 's/.*"\(.*\)"/\1/' | sort -u
}

# ship_icons FOLDER: of Debian's theme what is used, light and dark, as pictures, since Qt's base
# reads no SVG; also twice as large for screens with small dots. The larger ones of the theme are
# other drawings.
ship_icons() {
    local theme name file scale side
    for theme in breeze breeze-dark; do
        mkdir -p "$1/$theme"
        cp "/usr/share/icons/$theme/index.theme" "$1/$theme/"
        for name in $(icons_used src); do
            while read -r file; do
                for scale in 1 2; do
                    ship_icon "/usr/share/icons/$theme/$file" "$scale" \
                        "$1/$theme/$(dirname "$file")$([ $scale = 1 ] || echo @2x)/$name.png"
                done
            done < <(drawings_of "/usr/share/icons/$theme" "$name")
        done
    done
    for side in 16 24 32 48 64 128 256; do
        mkdir -p "$1/hicolor/$side"
        cp "build/windows/usmira-$side.png" "$1/hicolor/$side/usmira.png"
    done
    cp resources/windows/hicolor.theme "$1/hicolor/index.theme"
}

# drawings_of THEME NAME: in the two sizes of menus and buttons. One that is borrowed from another
# name, which may look quite otherwise, counts only where the theme has none of this name.
drawings_of() {
    local sizes=(-name "$2.svg" \( -path '*/16/*' -o -path '*/22/*' \)) own
    own=$(cd "$1" && find . "${sizes[@]}" -type f)
    if [ -n "$own" ]; then
        printf '%s\n' "$own"
    else
        (cd "$1" && find . "${sizes[@]}")
    fi
}

# ship_icon SVG SCALE PNG
ship_icon() {
    mkdir -p "$(dirname "$3")"
    rsvg-convert --zoom "$2" --output "$3" "$1"
}

# ship_licences FOLDER QT: of all that is not ours.
ship_licences() {
    mkdir -p "$1"
    cp "$2/qt6-base/debian/copyright" "$1/Qt.txt"
    cp /usr/share/doc/breeze-icon-theme/copyright "$1/Breeze.txt"
    cp /usr/share/doc/gcc-mingw-w64-base/copyright "$1/GCC.txt"
    cp /usr/share/doc/mingw-w64-x86-64-dev/copyright "$1/MinGW.txt"
    cp "$2"/windows/licences/*.txt "$1/"
    local words
    for words in hyphen-fr hunspell-fr-comprehensive mythes-fr; do
        cp "/usr/share/doc/$words/copyright" "$1/$words.txt"
    done
    cp /usr/share/common-licenses/{LGPL-2.1,LGPL-3,GPL-2,GPL-3} "$1/"
}

# ship_libraries FOLDER QT
ship_libraries() {
    local file
    for file in Core Gui PrintSupport Widgets; do
        cp "$2/windows/bin/Qt6$file.dll" "$1/"
    done
    for file in libstdc++-6.dll libgcc_s_seh-1.dll libwinpthread-1.dll; do
        cp "$(x86_64-w64-mingw32-g++-posix -print-file-name="$file")" "$1/"
    done
    # offscreen: the tool draws on no screen.
    for file in platforms/qwindows platforms/qoffscreen styles/qwindowsvistastyle \
        imageformats/qjpeg; do
        mkdir -p "$1/plugins/$(dirname "$file")"
        cp "$2/windows/plugins/$file.dll" "$1/plugins/$file.dll"
    done
    find "$1" -name '*.dll' -exec x86_64-w64-mingw32-strip --strip-unneeded {} +
    mkdir -p "$1/translations"
    cp /usr/share/qt6/translations/qtbase_fr.qm "$1/translations/"
    cp resources/windows/qt.conf "$1/"
}

# A text that Windows shows as it is: with its line ends.
ship_text() { sed 's/$/\r/' "$1" >"$2"; }

# ship FOLDER QT: all that the program needs, so that it runs from wherever the folder lies.
ship() {
    rm -rf "$1"
    mkdir -p "$1/documents"
    cp build/windows/src/app/usmira.exe build/windows/src/outil/usmira-outil.exe "$1/"
    x86_64-w64-mingw32-strip "$1"/*.exe
    ship_libraries "$1" "$2"
    ship_icons "$1/icons"
    mkdir -p "$1/hyphen"
    cp -L /usr/share/hyphen/hyph_fr.dic "$1/hyphen/"
    mkdir -p "$1/hunspell" "$1/mythes"
    cp -L /usr/share/hunspell/fr.{aff,dic} "$1/hunspell/"
    cp -L /usr/share/mythes/th_fr_FR_v2.{idx,dat} "$1/mythes/"
    ship_licences "$1/licences" "$2"
    cp resources/documents/* "$1/documents/"
    cp -r resources/samples "$1/documents/"
    ship_text LICENSE "$1/LICENSE.txt"
    ship_text LISEZMOI.md "$1/LISEZMOI.txt"
    ship_text README.md "$1/README.txt"
}

# removals FOLDER: what takes away again what the installer has put down, and nothing else.
removals() {
    (cd "$1" && find . -type f | sed -e 's#^\./##' -e 's#/#\\#g' -e 's#.*#Delete "$INSTDIR\\&"#')
    (cd "$1" && find . -depth -mindepth 1 -type d |
        sed -e 's#^\./##' -e 's#/#\\#g' -e 's#.*#RMDir "$INSTDIR\\&"#')
}

# pack_all FOLDER QT VERSION: the archive and the installer, in build/.
pack_all() {
    local made archive=$PWD/build/Usmira-$3-windows.zip installer=$PWD/build/Usmira-$3-windows.exe
    say "Packing"
    ship "$1" "$2"
    rm -f "$archive" "$installer"
    (cd "$(dirname "$1")" && zip -q -9 -r "$archive" "$(basename "$1")")
    removals "$1" >build/windows/removals.nsh
    makensis -V2 -INPUTCHARSET UTF8 "-DVERSION=$3" "-DFILES=$1" "-DICON=$PWD/build/windows/usmira.ico" \
        "-DREMOVALS=$PWD/build/windows/removals.nsh" "-DOUTPUT=$installer" resources/windows/usmira.nsi
    for made in "$archive" "$installer"; do
        say "$made, $(du -h "$made" | cut -f1)"
    done
}
