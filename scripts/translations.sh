#!/usr/bin/env bash
# Brings resources/translations up to date with the sources: the French plurals, and all that an
# author reads in English. The tool for scripts speaks French alone.
cd "$(dirname "$0")/.."
. scripts/setup.sh

install_missing "${PACKAGES[@]}"
update() {
    /usr/lib/qt6/bin/lupdate -silent -I src -locations none -no-obsolete "$@"
}
update -pluralonly src -ts resources/translations/usmira_fr.ts
windows=$(ls -d src/*/ | grep -v outil)
# shellcheck disable=SC2086 # a word for each folder
update $windows -source-language fr -target-language en_GB -ts resources/translations/usmira_en.ts
