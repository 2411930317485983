#!/bin/bash
# make_docs.sh BUILD: makes the documents that are made from sources, and fails when one of them is out of step: BUILD/docs/formats.html,
# the pictures of the user guide, and the reference where doxygen is installed.
set -euo pipefail
build=$(realpath "$1")
cd "$(dirname "${BASH_SOURCE[0]}")/.."
docs=$build/docs
mkdir -p "$docs"

bad=0
cmake/make_formats.py "$docs/formats.html" || bad=1

# The guide shows these dialogs: name of the picture, entry of `jobedit render`, beginning of the file that it writes.
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
picture scan TunerNBDlg TunerNBDlg_IPC_TUNER_HF_job_2 || bad=1
picture job JobDlg JobDlg_JOB || bad=1
QT_QPA_PLATFORM=offscreen "$build/jobedit/jobedit" new "$docs/sample.job.xml" --force >/dev/null
QT_QPA_PLATFORM=offscreen "$build/jobedit/jobedit" plan "$docs/sample.job.xml" --out "$docs/pictures/plan.png" >/dev/null || bad=1
rm -rf "$rendered" "$docs/sample.job.xml"

# What the guide shows and what is made are the same.
for name in $(grep -oP '\(pictures/\K[a-z]+(?=\.png\))' docs/userguide.md); do
    [ -s "$docs/pictures/$name.png" ] || { echo "docs/userguide.md: there is no picture $name." >&2; bad=1; }
done
cp docs/*.md docs/*.svg docs/*.png "$docs"

# Links between the documents lead somewhere.
for file in "$docs"/*.md; do
    for link in $(grep -oP '\]\(\K[^)#:]+(?=[)#])' "$file"); do
        [ -e "$docs/$link" ] || [ -e "docs/$link" ] || { echo "$(basename "$file"): $link is not there." >&2; bad=1; }
    done
done

if command -v doxygen >/dev/null; then
    DOCS_OUTPUT=$docs doxygen docs/Doxyfile || bad=1
else
    echo "doxygen is not installed: no reference."
fi
exit $bad
