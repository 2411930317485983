#!/bin/bash
# Fails when a catalogue lacks a text of the sources or holds one that is not translated. Changes nothing.
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)

lupdate=$(command -v lupdate6 || command -v lupdate-qt6 || true)
[ -n "$lupdate" ] || lupdate=$(qtpaths6 --query QT_HOST_BINS)/lupdate

temporary=$(mktemp -d)
trap 'rm -rf "$temporary"' EXIT

bad=0
for catalogue in "$root"/translations/*.ts; do
    name=$(basename "$catalogue")
    cp "$catalogue" "$temporary/$name"
    "$root/cmake/update_translations.sh" "$lupdate" "$temporary/$name" 2>/dev/null
    missing=$(awk '
        /<name>/ { context = $0; gsub(/^ *<name>|<\/name>$/, "", context) }
        /<source>/ { text = $0; gsub(/^ *<source>|<\/source>$/, "", text) }
        /<translation[^>]*type="unfinished"/ { print "  " context ": \"" text "\"" }' "$temporary/$name")
    if [ -n "$missing" ]; then
        echo "$name: $(wc -l <<<"$missing") texts are not translated:" >&2
        echo "$missing" >&2
        bad=1
    else
        echo "$name: $(grep -c '<source>' "$temporary/$name") texts, all translated"
    fi
done
exit $bad
