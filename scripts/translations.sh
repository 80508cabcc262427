#!/usr/bin/env bash
# Brings resources/translations/usmira_fr.ts up to date with the plurals in the sources.
cd "$(dirname "$0")/.."
. scripts/setup.sh

install_missing "${PACKAGES[@]}"
/usr/lib/qt6/bin/lupdate -silent -pluralonly -locations none -no-obsolete src \
    -ts resources/translations/usmira_fr.ts
