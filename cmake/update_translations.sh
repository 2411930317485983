#!/bin/bash
# update_translations.sh LUPDATE CATALOGUE...: brings each catalogue (.ts) up to date with the translatable texts of the sources.
# Without line numbers, so that a change of the sources changes the catalogue only where a text has changed.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
lupdate=$1
shift

# The exciter panels take their texts from the descriptors: labels, units, and the descriptions of frequencies, which are tool tips.
texts=$(mktemp -d)
trap 'rm -rf "$texts"' EXIT
awk '
    BEGIN {
        panel["G_EXC_MODE"] = "ExciterGeneralDlg";            panel["G_EXC_SMU"] = "ExciterSMUDlg"
        panel["G_EXC_SCU"] = "ExciterSCUDlg";                 panel["G_EXC_WDE"] = "ExciterWDEDlg"
        panel["G_EXC_SCAN"] = "ExciterScanSettingsDlg";       panel["G_WDE_EXCITER"] = "WDEExciterDlg"
        panel["G_WDE_RASTER"] = "WDERasterDetectorDlg";       panel["G_WDE_SINGLE"] = "WDESingleChannelDetectorDlg"
        panel["G_WDE_SIMULATION"] = "WDESimulationDlg"
    }
    function attribute(name) { return match($0, " " name "=\"[^\"]*\"") ? substr($0, RSTART + length(name) + 3, RLENGTH - length(name) - 4) : "" }
    function emit(text) { if (context != "" && text != "") printf "QT_TRANSLATE_NOOP(\"TKE::%s\", \"%s\")\n", context, text }
    /<Group / { context = panel[attribute("name")] }
    /<Parameter / {
        emit(attribute("label"))
        emit(attribute("panelUnit"))
        if (attribute("control") == "6" && attribute("kind") != "list")
            emit(attribute("description"))
    }' models/exciter_hf.xml models/exciter_vuhf.xml > "$texts/descriptors.cpp"

"$lupdate" -silent -extensions cpp,h -no-obsolete -locations none -I platform -I include -I ipcparam/source \
    include ipcparam platform jobedit "$texts" -ts "$@"
