#!/bin/bash
# make_docs.sh BUILD [--keep]: puts all documents into BUILD/docs, with what is made from sources: the formats, the pictures of the guides,
# and the reference where doxygen is installed. Fails when one of them is out of step. --keep puts the pictures into docs/pictures too.
set -euo pipefail
build=$(realpath "$1")
cd "$(dirname "${BASH_SOURCE[0]}")/.."
docs=$build/docs
mkdir -p "$docs"

bad=0
cmake/make_formats.py "$docs/formats.html" || bad=1

# The pictures of the guides, as the program draws them now. Those kept in docs/pictures follow by --keep.
rm -rf "$docs/pictures"
for language in en de; do
    mkdir -p "$docs/pictures/$language"
    XDG_CONFIG_HOME=$docs/settings XDG_DATA_HOME=$docs/settings QT_QPA_PLATFORM=offscreen \
        "$build/jobedit/jobedit" render --guide --language "$language" --out "$docs/pictures/$language" >/dev/null 2>"$docs/render.log" ||
        { cat "$docs/render.log" >&2; bad=1; }
    for picture in "$docs/pictures/$language"/*.png; do
        kept=docs/pictures/$language/$(basename "$picture")
        if [ "${2:-}" = --keep ]; then
            install -D -m 644 "$picture" "$kept"
        elif ! cmp -s "$picture" "$kept"; then
            echo "$kept shows something else than the program; cmake/make_docs.sh BUILD --keep renews it."
        fi
    done
done
rm -rf "$docs/settings" "$docs/render.log"

cp docs/*.md docs/*.svg "$docs"

# Both guides say the same: headings, rows, points and pictures in the same order.
outline() { grep -oP '^(#+|\||- |!)' "$1"; }
diff <(outline docs/userguide.md) <(outline docs/userguide_de.md) >/dev/null ||
    { echo "docs/userguide_de.md is not built like docs/userguide.md." >&2; bad=1; }

# Links between the documents lead somewhere.
for file in "$docs"/*.md; do
    for link in $(grep -oP '\]\(\K[^)#:]+(?=[)#])' "$file"); do
        [ -e "$docs/$link" ] || { echo "$(basename "$file"): $link is not there." >&2; bad=1; }
    done
done

if command -v doxygen >/dev/null; then
    DOCS_OUTPUT=$docs doxygen docs/Doxyfile || bad=1
else
    echo "doxygen is not installed: no reference."
fi
exit $bad
