# Sourced by windows.sh: fetches what Debian's packages are made from. Expects scripts/setup.sh.

# debian_sources FOLDER NAME [VERSION]: into FOLDER/NAME, if they are not there. apt is given a
# configuration of its own; that of the machine stays as it is.
debian_sources() {
    local apt=$1/apt wanted=$2${3:+=$3}
    [ ! -d "$1/$2" ] || return 0
    mkdir -p "$apt/lists/partial" "$apt/parts"
    apt-get indextargets --format 'deb-src $(REPO_URI) $(RELEASE) $(COMPONENT) #$(ORIGIN)' \
        'Created-By: Packages' | sed -n 's/ #Debian$//p' >"$apt/sources.list"
    [ -s "$apt/sources.list" ] || fail "apt knows no archive of Debian to take sources from"
    local own=(-o "Dir::Etc::sourcelist=$apt/sources.list" -o "Dir::Etc::sourceparts=$apt/parts"
        -o "Dir::State::lists=$apt/lists" -o Dir::Cache::pkgcache= -o Dir::Cache::srcpkgcache=)
    [ -s "$apt/updated" ] || { apt-get "${own[@]}" update -q; echo yes >"$apt/updated"; }
    rm -f "$1/$2"_*
    (cd "$1" && apt-get "${own[@]}" source -q --download-only "$wanted") ||
        fail "Debian's archive does not give out the sources of $wanted"
    rm -rf "$1/$2.part"
    dpkg-source --no-check -x "$1/$2"_*.dsc "$1/$2.part" >/dev/null
    mv "$1/$2.part" "$1/$2"
}
