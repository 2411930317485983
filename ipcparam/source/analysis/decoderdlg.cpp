#include "analysis/decoderdlg.h"

#include "framework/panelrows.h"
#include "keys/keys.h"
#include "valuewidgets/vccomboboxclassic.h"

#include <QGridLayout>
#include <QGroupBox>
#include <algorithm>

namespace TKE
{

using namespace Keys;

namespace
{

constexpr int decoderWidth = 175; // pixels; more where the letters are large

} // namespace

DecoderDlg::DecoderDlg(const QString& basePath, QWidget* parent, bool vuhf, bool jobContext, bool readOnly)
    : ParameterDlg(basePath, parent, QStringLiteral("DecoderDlg"), readOnly, false)
    , m_modulationTypeKey(vuhf ? DEMODULATOR_VUHF_MODTYPE : DEMODULATOR_HF_DDC_MODTYPE)
    , m_vuhf(vuhf)
    , m_jobContext(jobContext)
{
    SetTranslationNamespace("TKE::DecoderDlg");
    BuildPanel();
    SetDefaultStretchFactor();
}

void DecoderDlg::BuildPanel()
{
    GetValuePtr(m_modulationType, m_modulationTypeKey);
    m_decoderBox = new QGroupBox(GetSelectedValue(m_modulationTypeKey), this);
    PanelRows rows(*this, *new QGridLayout(m_decoderBox));
    // The decoder's key is the same on V/UHF receivers.
    rows.Combo({0, 0}, QT_TR_NOOP("Decoder module:"), DECODER_HF_DDC_DECODER_ID);
    FixDecoderWidth();
    m_alphabet = rows.Combo({1, 0}, QT_TR_NOOP("Alphabet:"), AlphabetKey());
    Grid()->addWidget(m_decoderBox, 0, 0);
}

void DecoderDlg::FixDecoderWidth()
{
    if (auto* decoder = m_decoderBox->findChild<VCComboBoxClassic*>(DECODER_HF_DDC_DECODER_ID))
        decoder->setFixedWidth(std::max(decoderWidth, decoder->minimumSizeHint().width()));
}

// Without a demodulation there is no alphabet either: the empty key names no value.
QString DecoderDlg::AlphabetKey() const
{
    if (!m_modulationType)
        return {};
    return m_modulationType->GetText().toUpper() == QLatin1String("MORSE") ? MORSE_MORSEALPHABET
                                                                           : DECODED_TEXT_ALPHABET;
}

void DecoderDlg::Update(Observable* source, TChangeCode code)
{
    ParameterDlg::Update(source, code);
    if (code != ccContent || !m_modulationType || source != m_modulationType.Get())
        return;
    if (m_decoderBox)
    {
        m_decoderBox->setTitle(GetSelectedValue(m_modulationTypeKey));
        FixDecoderWidth();
    }
    if (m_alphabet)
        m_alphabet->SetValueSelection_ValuePath(GetItemPath(AlphabetKey()));
}

} // namespace TKE
