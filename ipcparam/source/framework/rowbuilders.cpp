#include "ipcparam/parameterdlg.h"

#include "value/tree.h"
#include "valuewidgets/guicentral.h"
#include "valuewidgets/vcbuttongroup.h"
#include "valuewidgets/vccheckbox.h"
#include "valuewidgets/vccomboboxclassic.h"
#include "valuewidgets/vcdatetimeedit.h"
#include "valuewidgets/vcfrequency.h"
#include "valuewidgets/vclabel.h"
#include "valuewidgets/vclineedit.h"
#include "valuewidgets/vcnumericfloatspin.h"
#include "widgets/vccheckablegroupbox.h"
#include "widgets/vcdateperiod.h"
#include "widgets/vclistboxnumeric.h"
#include "widgets/vclistboxstring.h"
#include "widgets/vctimeperiod.h"

#include <QBoxLayout>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

namespace TKE
{

namespace
{

constexpr Qt::Alignment rightCentred = Qt::AlignRight | Qt::AlignVCenter;
constexpr Qt::Alignment leftCentred = Qt::AlignLeft | Qt::AlignVCenter;
constexpr int horizontalLine = int(QFrame::HLine) | QFrame::Sunken;
constexpr int verticalLine = int(QFrame::VLine) | QFrame::Sunken;

// The frequency up to which the display unit is kHz, and up to which it is MHz (Hz).
constexpr double kiloHertzLimit = 20000000.0;
constexpr double megaHertzLimit = 1000000000.0;

template <class W> W* Named(W* widget, const QString& name)
{
    widget->setObjectName(name);
    return widget;
}

// A label made under its later parent takes less heap than one that is moved there; there are as many labels as widgets.
QWidget* ParentIn(const QLayout* layout) { return layout ? layout->parentWidget() : nullptr; }

QLabel* AlignedLabel(const QString& text, Qt::Alignment alignment, const QLayout* layout)
{
    auto* label = new QLabel(text, ParentIn(layout));
    label->setAlignment(alignment);
    return label;
}

QLabel* AppendLabel(QHBoxLayout* box, const QString& text, Qt::Alignment alignment)
{
    QLabel* label = Named(AlignedLabel(text, alignment, box), text);
    if (box)
        box->addWidget(label);
    return label;
}

QLabel* LineLabel(int frameStyle, const QLayout* layout)
{
    auto* line = new QLabel(ParentIn(layout));
    line->setFrameStyle(frameStyle);
    return line;
}

} // namespace

// The common end of every builder: lock on a read-only panel, place, clear the tool tip.
template <class W>
W* ParameterDlg::Finish(W* widget, QGridLayout* grid, int row, int column, int rowSpan, int columnSpan)
{
    Sign(widget->objectName(), row, column);
    if constexpr (requires { widget->GetBoundValue(); })
    {
        // Items and range decide how wide the widget is.
        const ValueBase* value = widget->GetBoundValue();
        m_signature = qHashMulti(m_signature, quintptr(value ? &value->GetDescriptor() : nullptr));
    }
    if (m_readOnly)
        widget->Lock();
    if (grid)
        grid->addWidget(widget, row, column, rowSpan, columnSpan);
    widget->setToolTip(QString());
    return widget;
}

template <class W>
W* ParameterDlg::PlacePlain(W* widget, const QString& text, QGridLayout* grid, int row, int column, int rowSpan, int columnSpan)
{
    Sign(text, row, column);
    if (grid)
        grid->addWidget(widget, row, column, rowSpan, columnSpan);
    return widget;
}

void ParameterDlg::Sign(const QString& text, int row, int column) { m_signature = qHashMulti(m_signature, text, row, column); }

void ParameterDlg::AddLine(QGridLayout* grid, int row, int column, int rowSpan, int columnSpan)
{
    PlacePlain(LineLabel(horizontalLine, grid), QString(), grid, row, column, rowSpan, columnSpan);
}

void ParameterDlg::AddVerticalLine(QGridLayout* grid, int row, int column, int rowSpan, int columnSpan)
{
    PlacePlain(LineLabel(verticalLine, grid), QString(), grid, row, column, rowSpan, columnSpan);
}

void ParameterDlg::AddSpacerItem(int width, int height, QGridLayout* grid, int row, int column)
{
    auto spacer = std::make_unique<QSpacerItem>(width, height, QSizePolicy::Expanding, QSizePolicy::Minimum);
    if (grid)
        grid->addItem(spacer.release(), row, column);
}

QLabel* ParameterDlg::AddLabel(QGridLayout* grid, int row, int column, int rowSpan, int columnSpan, const QString& text)
{
    return PlacePlain(AlignedLabel(text, rightCentred, grid), text, grid, row, column, rowSpan, columnSpan);
}

QLabel* ParameterDlg::AddLeftLabel(QGridLayout* grid, int row, int column, int rowSpan, int columnSpan, const QString& text)
{
    return PlacePlain(AlignedLabel(text, leftCentred, grid), text, grid, row, column, rowSpan, columnSpan);
}

QLabel* ParameterDlg::AddLabelToHBoxLayout(QHBoxLayout* box, const QString& text)
{
    return AppendLabel(box, text, rightCentred);
}

QLabel* ParameterDlg::AddLeftLabelToHBoxLayout(QHBoxLayout* box, const QString& text)
{
    return AppendLabel(box, text, leftCentred);
}

VCLabel* ParameterDlg::AddLabelFromVT(QGridLayout* grid, int row, int column, int rowSpan, int columnSpan,
                                      const QString& key, bool fromBase)
{
    auto* label = Named(new VCLabel, key);
    label->SetText_ValuePath(PathOf(key, fromBase));
    return Finish(label, grid, row, column, rowSpan, columnSpan);
}

VCLineEdit* ParameterDlg::AddLineEditFromVT(QGridLayout* grid, int row, int column, int rowSpan, int columnSpan,
                                            const QString& key, bool frame, bool fromBase)
{
    auto* edit = Named(new VCLineEdit, key);
    edit->setFrame(frame);
    edit->SuppressErrorMessage(true);
    edit->SetText_ValuePath(PathOf(key, fromBase));
    return Finish(edit, grid, row, column, rowSpan, columnSpan);
}

VCLineEdit* ParameterDlg::AddLineEditFromVTParent(QGridLayout* grid, int row, int column, int rowSpan, int columnSpan,
                                                  const QString& key, bool frame, bool)
{
    auto* edit = Named(new VCLineEdit, key);
    edit->setFrame(frame);
    edit->SuppressErrorMessage(true);
    edit->SetText_ValuePath(ParentPathOf(key));
    return Finish(edit, grid, row, column, rowSpan, columnSpan);
}

void ParameterDlg::AddLineEditFrequencyFromVT(QGridLayout* grid, int row, int column, int rowSpan, int columnSpan,
                                              const QString& key, bool frame, bool fromBase, bool kiloHertz)
{
    auto* edit = Named(new VCLineEdit, key);
    edit->setFrame(frame);
    edit->SuppressErrorMessage(true);
    edit->SetFrequencyForm(kiloHertz);
    edit->SetText_ValuePath(PathOf(key, fromBase));
    Finish(edit, grid, row, column, rowSpan, columnSpan);
}

void ParameterDlg::AddLineEditFormatFromVT(QGridLayout* grid, int row, int column, int rowSpan, int columnSpan,
                                           const QString& key, int digits, int decimals, const QString& prefix,
                                           const QString& suffix, bool frame, bool fromBase)
{
    auto* edit = Named(new VCLineEdit, key);
    edit->setFrame(frame);
    edit->SuppressErrorMessage(true);
    edit->SetFormat(digits, decimals, prefix, suffix, 1.0);
    edit->SetText_ValuePath(PathOf(key, fromBase));
    Finish(edit, grid, row, column, rowSpan, columnSpan);
}

VCComboBoxClassic* ParameterDlg::AddComboFromVT(QGridLayout* grid, int row, int column, int rowSpan, int columnSpan,
                                                const QString& key, bool fromBase)
{
    auto* combo = Named(new VCComboBoxClassic, key);
    combo->SetValueSelection_ValuePath(PathOf(key, fromBase));
    return Finish(combo, grid, row, column, rowSpan, columnSpan);
}

VCComboBoxClassic* ParameterDlg::AddComboBoxFromVTParent(QGridLayout* grid, int row, int column, int rowSpan,
                                                         int columnSpan, const QString& key)
{
    auto* combo = Named(new VCComboBoxClassic, key);
    combo->SetValueSelection_ValuePath(ParentPathOf(key));
    return Finish(combo, grid, row, column, rowSpan, columnSpan);
}

VCButtonGroup* ParameterDlg::AddVerticalButtonGroupFromVT(QGridLayout* grid, int row, int column, int rowSpan,
                                                          int columnSpan, const QString& key, const QString& title,
                                                          bool fromBase)
{
    auto* group = Named(new VCButtonGroup, key);
    group->setTitle(title);
    group->SetValueSelection_ValuePath(PathOf(key, fromBase));
    return Finish(group, grid, row, column, rowSpan, columnSpan);
}

VCButtonGroup* ParameterDlg::AddVerticalButtonGroupFromVTParent(QGridLayout* grid, int row, int column, int rowSpan,
                                                                int columnSpan, const QString& key, const QString& title)
{
    auto* group = Named(new VCButtonGroup, key);
    group->setTitle(title);
    group->SetValueSelection_ValuePath(ParentPathOf(key));
    return Finish(group, grid, row, column, rowSpan, columnSpan);
}

void ParameterDlg::AddIntSpinFromVT(QGridLayout* grid, int row, int column, int rowSpan, int columnSpan, const QString& key,
                                    bool fromBase, double factor)
{
    auto* spin = Named(new VCNumericFloatSpin, key);
    spin->EnableWrapAround(false);
    if (factor != 1.0)
        spin->SetFactor(factor);
    spin->SetNumericInt_ValuePath(PathOf(key, fromBase));
    Finish(spin, grid, row, column, rowSpan, columnSpan);
}

void ParameterDlg::AddFloatSpinFromVT(QGridLayout* grid, int row, int column, int rowSpan, int columnSpan,
                                      const QString& key, int precision, bool fromBase, double factor)
{
    auto* spin = Named(new VCNumericFloatSpin, key);
    spin->EnableWrapAround(false);
    if (factor != 1.0)
        spin->SetFactor(factor);
    spin->SetNumericFloat_ValuePath(PathOf(key, fromBase));
    spin->setAdditionalPrecision(precision);
    Finish(spin, grid, row, column, rowSpan, columnSpan);
}

void ParameterDlg::AddFrequencyFromVT(QGridLayout* grid, int row, int column, int rowSpan, int columnSpan,
                                      const QString& key, bool adjustUnit, bool fromBase)
{
    const QString path = PathOf(key, fromBase);
    auto* frequency = Named(new VCFrequency, key);
    frequency->GetTuneButton()->hide();
    frequency->SetFrequency_ValuePath(path);
    Finish(frequency, grid, row, column, rowSpan, columnSpan);
    const ValueBase* value = adjustUnit ? m_tree->FindValue(path) : nullptr;
    if (!value)
        return;
    const double hertz = value->GetText().toDouble();
    GuiCentral::Instance().SetFrequencyUnit(hertz <= kiloHertzLimit   ? SuffixedDouble::Kilo
                                            : hertz <= megaHertzLimit ? SuffixedDouble::Mega
                                                                      : SuffixedDouble::Giga);
}

void ParameterDlg::AddTimeEditFromVT(QGridLayout* grid, int row, int column, int rowSpan, int columnSpan,
                                     const QString& key, bool fromBase)
{
    auto* edit = Named(new VCDateTimeEdit, key);
    edit->SetDateTime_ValuePath(PathOf(key, fromBase));
    edit->SetDifferential(false);
    edit->setDisplayFormat(GetTimeFormatString());
    Finish(edit, grid, row, column, rowSpan, columnSpan);
}

void ParameterDlg::AddTimePeriodFromVT(QGridLayout* grid, int row, int column, int rowSpan, int columnSpan,
                                       const QString& startKey, const QString& stopKey)
{
    auto* period = new VCTimePeriod(nullptr, "AlarmConditionsTimePeriod");
    period->SetPeriod_ValuePath(m_basePath + startKey, m_basePath + stopKey);
    Finish(period, grid, row, column, rowSpan, columnSpan);
}

void ParameterDlg::AddDatePeriodFromVT(QGridLayout* grid, int row, int column, int rowSpan, int columnSpan,
                                       const QString& startKey, const QString& stopKey)
{
    auto* period = new VCDatePeriod(nullptr, "AlarmConditionsDatePeriod");
    period->SetPeriod_ValuePath(m_basePath + startKey, m_basePath + stopKey);
    Finish(period, grid, row, column, rowSpan, columnSpan);
}

VCListBoxNumeric* ParameterDlg::AddListBoxFromVT(QGridLayout* grid, int row, int column, int rowSpan, int columnSpan,
                                                 const QString& key, int columns, int minRows, int maxRows, bool sorted,
                                                 const QStringList& headers, FactorType factor, bool fromBase)
{
    auto* list = new VCListBoxNumeric(nullptr, key, columns, minRows, maxRows, sorted, headers, factor);
    list->SetList_ValuePath(PathOf(key, fromBase));
    return Finish(list, grid, row, column, rowSpan, columnSpan);
}

void ParameterDlg::AddListBoxFromVT(QGridLayout* grid, int row, int column, const QString& key, int columns, int minRows,
                                    int maxRows, bool sorted, const QStringList& headers, FactorType factor)
{
    auto* list = new VCListBoxNumeric(nullptr, key, columns, minRows, maxRows, sorted, headers, factor);
    list->SetList_ValuePath(GetItemPath(key));
    Finish(list, grid, row, column, 1, 1);
}

bool ParameterDlg::AddListBoxFromVT(QGridLayout* grid, int row, int column, int rowSpan, int columnSpan, const QString& key,
                                    bool fromBase)
{
    auto* list = new VCListBoxString(nullptr, key);
    const bool isBound = list->SetValueSelection_ValuePath(PathOf(key, fromBase));
    Finish(list, grid, row, column, rowSpan, columnSpan);
    return isBound;
}

VCCheckBox* ParameterDlg::AddCheckBoxFromVT(QGridLayout* grid, int row, int column, int rowSpan, int columnSpan,
                                            const QString& key, const QString& text, bool fromBase)
{
    auto* box = Named(new VCCheckBox, key);
    box->SetText(text);
    box->Set_ValuePath(PathOf(key, fromBase));
    Sign(text, row, column);
    return Finish(box, grid, row, column, rowSpan, columnSpan);
}

VCCheckBox* ParameterDlg::AddCheckBoxFromVTParent(QGridLayout* grid, int row, int column, int rowSpan, int columnSpan,
                                                  const QString& key, const QString& text)
{
    auto* box = Named(new VCCheckBox, key);
    box->SetText(text);
    box->Set_ValuePath(ParentPathOf(key));
    Sign(text, row, column);
    return Finish(box, grid, row, column, rowSpan, columnSpan);
}

VCCheckableGroupBox* ParameterDlg::CreateCheckableGroupBoxFromVT(const QString& key, const QString& title,
                                                                 const QString& toolTip, bool fromBase)
{
    auto* box = new VCCheckableGroupBox(this, key, toolTip);
    box->setTitle(title);
    box->SetValue(m_tree->FindValue(PathOf(key, fromBase)));
    Sign(key + title, -1, -1);
    if (m_readOnly)
        box->Lock();
    return box;
}

} // namespace TKE
