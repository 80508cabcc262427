# Sourced by windows.sh: builds the libraries that Usmira has beside Qt from Debian's own sources,
# once, into the folder of Qt for Windows. Expects scripts/setup.sh, sources.sh and QT_FOLDER.

LIBRARY_PACKAGES=(libz-mingw-w64-dev hyphen-fr hunspell-fr-comprehensive mythes-fr)
LIBRARIES=(libzip libjpeg-turbo qpdf hyphen hunspell)

# library NAME TARGET CMAKE...: the built library alone, part of the programs that use it.
library() {
    local name=$1 target=$2 folder=$LIBRARY_BUILD/build-$1
    shift 2
    say "Building $name for Windows"
    { cmake --toolchain "$QT_FOLDER/Mingw.cmake" -S "$LIBRARY_BUILD/$name" -B "$folder" -G Ninja \
        -DCMAKE_BUILD_TYPE=Release -DBUILD_SHARED_LIBS=OFF \
        -DCMAKE_INSTALL_PREFIX="$QT_FOLDER/windows" "$@" &&
        cmake --build "$folder" --target "$target" && cmake --install "$folder" \
            --component "${LIBRARY_COMPONENT:-Unspecified}"; } >"$folder.log" 2>&1 ||
        { tail -n 40 "$folder.log"; fail "$name could not be built"; }
}

# plain_library NAME SOURCES HEADERS FILE...: a few files and no CMake. They lie in the folder
# SOURCES, and what is included of them goes to HEADERS.
plain_library() {
    local name=$1 sources=$LIBRARY_BUILD/$2 headers=$QT_FOLDER/windows/include/$3 file
    shift 3
    say "Building $name for Windows"
    for file in "$@"; do
        x86_64-w64-mingw32-gcc-posix -O2 -DHUNSPELL_STATIC -c "$sources/$file" \
            -o "$sources/${file%.*}.o" || fail "$name could not be built"
    done
    x86_64-w64-mingw32-ar rcs "$QT_FOLDER/windows/lib/lib$name.a" "$sources"/*.o
    mkdir -p "$headers"
    find "$sources" -maxdepth 1 \( -name '*.h' -o -name '*.hxx' \) -exec cp -t "$headers" {} +
}

# libraries_for_windows: a changed script builds them anew.
libraries_for_windows() {
    local name prefix=$QT_FOLDER/windows stamp
    stamp=$prefix/libraries-$(sha256sum scripts/windows/libraries.sh | head -c 8)
    if [ -f "$stamp" ]; then
        say "The other libraries for Windows are there, too"
        return
    fi
    LIBRARY_BUILD=$QT_FOLDER/libraries
    mkdir -p "$LIBRARY_BUILD" "$prefix"/{include,lib,licences}
    export PKG_CONFIG_LIBDIR=$prefix/lib/pkgconfig # those of this machine are for this machine
    for name in "${LIBRARIES[@]}"; do
        debian_sources "$LIBRARY_BUILD" "$name"
        cp "$LIBRARY_BUILD/$name/debian/copyright" "$prefix/licences/$name.txt"
    done
    library libzip all -DENABLE_COMMONCRYPTO=OFF -DENABLE_GNUTLS=OFF -DENABLE_MBEDTLS=OFF \
        -DENABLE_OPENSSL=OFF -DENABLE_WINDOWS_CRYPTO=OFF -DENABLE_BZIP2=OFF -DENABLE_LZMA=OFF \
        -DBUILD_TOOLS=OFF -DBUILD_REGRESS=OFF -DBUILD_EXAMPLES=OFF -DBUILD_DOC=OFF
    library libjpeg-turbo all -DENABLE_SHARED=OFF -DWITH_SIMD=OFF -DWITH_TURBOJPEG=OFF
    LIBRARY_COMPONENT=dev library qpdf libqpdf -DREQUIRE_CRYPTO_NATIVE=ON -DBUILD_DOC=OFF \
        -DUSE_IMPLICIT_CRYPTO=OFF -DCMAKE_CXX_FLAGS="-include cstdint"
    plain_library hyphen hyphen . hyphen.c hnjalloc.c
    # Names with letters that the code page of the system lacks it opens for one compiler only.
    sed -i 's/ && defined(_MSC_VER)//' "$LIBRARY_BUILD/hunspell/src/hunspell/csutil.cxx"
    plain_library hunspell hunspell/src/hunspell hunspell affentry.cxx affixmgr.cxx csutil.cxx \
        filemgr.cxx hashmgr.cxx hunspell.cxx hunzip.cxx phonet.cxx replist.cxx suggestmgr.cxx
    unset PKG_CONFIG_LIBDIR
    touch "$stamp"
    rm -rf "$LIBRARY_BUILD"
}
