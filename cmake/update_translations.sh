#!/bin/bash
# update_translations.sh LUPDATE CATALOGUE...: brings each catalogue (.ts) up to date with the translatable texts of the sources.
# Without line numbers, so that a change of the sources changes the catalogue only where a text has changed.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
lupdate=$1
shift
"$lupdate" -silent -extensions cpp,h -no-obsolete -locations none -I platform -I include -I ipcparam/source \
    include ipcparam platform jobedit -ts "$@"
