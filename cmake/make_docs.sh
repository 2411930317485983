#!/bin/bash
# make_docs.sh BUILD: puts all documents into BUILD/docs, with what is made from sources: the formats, the pictures of the user guide, and
# the reference where doxygen is installed. Fails when one of them is out of step.
set -euo pipefail
build=$(realpath "$1")
cd "$(dirname "${BASH_SOURCE[0]}")/.."
docs=$build/docs
mkdir -p "$docs"

bad=0
cmake/make_formats.py "$docs/formats.html" || bad=1

# picture NAME ENTRY FILE: one of the dialogs that `jobedit render` shows for ENTRY.
rendered=$docs/rendered
rm -rf "$rendered" "$docs/pictures"
mkdir -p "$docs/pictures"
picture()
{
    QT_QPA_PLATFORM=offscreen "$build/jobedit/jobedit" render --out "$rendered/$2" --entry "$2" >/dev/null
    local files=("$rendered/$2/$3"*.png)
    [ -s "${files[0]}" ] || { echo "jobedit render --entry $2 gave no $3." >&2; return 1; }
    cp "${files[0]}" "$docs/pictures/$1.png"
}
picture tuner TunerNBDlg TunerNBDlg_IPC_TUNER_HF_job_1 || bad=1
QT_QPA_PLATFORM=offscreen "$build/jobedit/jobedit" new "$docs/sample.job.xml" --force >/dev/null
QT_QPA_PLATFORM=offscreen "$build/jobedit/jobedit" plan "$docs/sample.job.xml" --out "$docs/pictures/plan.png" >/dev/null || bad=1
rm -rf "$rendered" "$docs/sample.job.xml"

# The guide says by comments where its pictures go, so that it reads well without them too.
cp docs/*.md docs/*.svg docs/*.png "$docs"
sed -E 's/^<!-- picture ([a-z]+): (.*) -->$/![\2](pictures\/\1.png)/' docs/userguide.md > "$docs/userguide.md"

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
