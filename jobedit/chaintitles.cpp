#include "chaintitles.h"

#include <QCoreApplication>
#include <algorithm>
#include <iterator>

namespace JOBEDIT
{

namespace
{

struct Title
{
    const char* type;
    const char* text;
};

// clang-format off
constexpr Title chainTitles[] = {
    {"IPC_CLASSIFIER_DDC_HF", QT_TRANSLATE_NOOP("TKE::IPCParam", "Classifier DDC Configuration")},
    {"IPC_CLASSIFIER_DDC_REDUCED", QT_TRANSLATE_NOOP("TKE::IPCParam", "Classifier DDC Configuration")},
    {"IPC_CLASSIFIER_DDC_VUHF", QT_TRANSLATE_NOOP("TKE::IPCParam", "Classifier DDC Configuration")},
    {"IPC_CLASSIFIER_HF", QT_TRANSLATE_NOOP("TKE::IPCParam", "Classifier HF Configuration")},
    {"IPC_CLASSIFIER_VUHF", QT_TRANSLATE_NOOP("TKE::IPCParam", "Classifier VUHF Configuration")},
    {"IPC_DATATRANS_DDC_HF", QT_TRANSLATE_NOOP("TKE::IPCParam", "Data Transmission DDC Configuration")},
    {"IPC_DATATRANS_DDC_VUHF", QT_TRANSLATE_NOOP("TKE::IPCParam", "Data Transmission DDC Configuration")},
    {"IPC_DATATRANS_HF", QT_TRANSLATE_NOOP("TKE::IPCParam", "Data Transmission HF Configuration")},
    {"IPC_DATATRANS_VUHF", QT_TRANSLATE_NOOP("TKE::IPCParam", "Data Transmission VUHF Configuration")},
    {"IPC_DETECTION_CONV", QT_TRANSLATE_NOOP("TKE::IPCParam", "Detection Conventional Configuration")},
    {"IPC_DETECTION_SHORT", QT_TRANSLATE_NOOP("TKE::IPCParam", "Detection Shorttime Configuration")},
    {"IPC_EXCITER_GENERAL", QT_TRANSLATE_NOOP("TKE::IPCParam", "Exiter General Configuration")},
    {"IPC_EXCITER_SCAN", QT_TRANSLATE_NOOP("TKE::IPCParam", "Exciter Configuration")},
    {"IPC_EXCITER_WDE", QT_TRANSLATE_NOOP("TKE::IPCParam", "Exciter Configuration")},
    {"IPC_FULL", QT_TRANSLATE_NOOP("TKE::IPCParam", "JobEdit Online")},
    {"IPC_HEADER_CLASS_AGMC", QT_TRANSLATE_NOOP("TKE::IPCParam", "Classifier DDC Header Configuration")},
    {"IPC_HEADER_EXT_AGSC", QT_TRANSLATE_NOOP("TKE::IPCParam", "External Receiver Header Configuration")},
    {"IPC_HEADER_HF_AGSC", QT_TRANSLATE_NOOP("TKE::IPCParam", "Header Configuration")},
    {"IPC_HEADER_MS", QT_TRANSLATE_NOOP("TKE::IPCParam", "Header MS Configuration")},
    {"IPC_HEADER_MSCANDATA", QT_TRANSLATE_NOOP("TKE::IPCParam", "Tuner Configuration")},
    {"IPC_HEADER_TUNER_AGED", QT_TRANSLATE_NOOP("TKE::IPCParam", "Tuner Configuration")},
    {"IPC_HEADER_VOICE_AGMC", QT_TRANSLATE_NOOP("TKE::IPCParam", "Voice DDC Header Configuration")},
    {"IPC_HEADER_WB_AGED", QT_TRANSLATE_NOOP("TKE::IPCParam", "Header WB Configuration")},
    {"IPC_MEMORYSCAN_HF", QT_TRANSLATE_NOOP("TKE::IPCParam", "Memory Scan Configuration")},
    {"IPC_MEMORYSCAN_VUHF", QT_TRANSLATE_NOOP("TKE::IPCParam", "Memory Scan Configuration")},
    {"IPC_MSCAN_HF", QT_TRANSLATE_NOOP("TKE::IPCParam", "Surveillance Memory Scan HF Configuration")},
    {"IPC_MSCAN_VUHF", QT_TRANSLATE_NOOP("TKE::IPCParam", "Surveillance Memory Scan VUHF Configuration")},
    {"IPC_SPECTRALZOOM", QT_TRANSLATE_NOOP("TKE::IPCParam", "Spectral Zoom Configuration")},
    {"IPC_TUNER_EXT", QT_TRANSLATE_NOOP("TKE::IPCParam", "External Tuner")},
    {"IPC_TUNER_HF", QT_TRANSLATE_NOOP("TKE::IPCParam", "Tuner HF Configuration")},
    {"IPC_TUNER_VUHF", QT_TRANSLATE_NOOP("TKE::IPCParam", "Tuner VUHF Configuration")},
    {"IPC_VOICE_DDC_HF", QT_TRANSLATE_NOOP("TKE::IPCParam", "Voice DDC Configuration")},
    {"IPC_VOICE_DDC_VUHF", QT_TRANSLATE_NOOP("TKE::IPCParam", "Voice DDC Configuration")},
    {"IPC_VOICE_HF", QT_TRANSLATE_NOOP("TKE::IPCParam", "Voice HF Configuration")},
    {"IPC_VOICE_VUHF", QT_TRANSLATE_NOOP("TKE::IPCParam", "Voice VUHF Configuration")},
    {"IPC_WBRX_HF", QT_TRANSLATE_NOOP("TKE::IPCParam", "Receiver Configuration")},
    {"IPC_WBRX_VUHF", QT_TRANSLATE_NOOP("TKE::IPCParam", "Receiver Configuration")},
    {"IPC_WBTUNER_HF", QT_TRANSLATE_NOOP("TKE::IPCParam", "Tuner WB Configuration")},
    {"IPC_WBTUNER_VUHF", QT_TRANSLATE_NOOP("TKE::IPCParam", "Tuner WB Configuration")},
    {"IPC_WDE_EXCITER", QT_TRANSLATE_NOOP("TKE::IPCParam", "Exciter Configuration")},
    {"IPC_WDE_RASTER", QT_TRANSLATE_NOOP("TKE::IPCParam", "Rasterdetector Configuration")},
    {"IPC_WDE_SIMULATION", QT_TRANSLATE_NOOP("TKE::IPCParam", "Simulation Configuration")},
    {"IPC_WDE_SINGLE", QT_TRANSLATE_NOOP("TKE::IPCParam", "SingleChannelDetector Configuration")},
};
// clang-format on

} // namespace

QString ChainTitle(const JobNode& node)
{
    const auto found = std::ranges::find_if(chainTitles, [&](const Title& title)
                                            { return node.type == QLatin1StringView(title.type); });
    return found == std::end(chainTitles) ? QString() : QCoreApplication::translate("TKE::IPCParam", found->text);
}

} // namespace JOBEDIT
