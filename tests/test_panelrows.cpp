#include "analysis/classificatordlg.h"
#include "analysis/correlatordlg.h"
#include "analysis/decoderdlg.h"
#include "analysis/demodulatordlg.h"
#include "analysis/detectiondlg.h"
#include "analysis/detectionshortdlg.h"
#include "analysis/fftdatadlg.h"
#include "analysis/generaldlg.h"
#include "analysis/spectralzoomdlg.h"
#include "analysis/tdsheaderddcdlg.h"
#include "analysis/tdsheadermsdlg.h"
#include "analysis/tdsheaderwbdlg.h"
#include "demodulatorfixture.h"
#include "exciterfixture.h"
#include "ipcparam/activitygenerationdlg.h"
#include "ipcparam/alarmconditionsspdlg.h"
#include "ipcparam/autorecordingdlg.h"
#include "ipcparam/dflocatedlg.h"
#include "ipcparam/shorttimeprofiledlg.h"
#include "ipcparam/shorttimeprofileheaderdlg.h"
#include "ipcparam/sigtrackingcontroldlg.h"
#include "ipcparam/wavecomdlg.h"
#include "keys/keymanager.h"
#include "recording/surveillancedlg.h"
#include "scan/memoryscandlg.h"
#include "scan/scandlg.h"
#include "scan/wbrxscandlg.h"
#include "tuner/antennadlg.h"
#include "tuner/tunerddcdlg.h"
#include "tuner/tunerdlg.h"
#include "tuner/tunerexternaldlg.h"
#include "tuner/tunervuhfdlg.h"
#include "tuner/tunerwbdlg.h"
#include "tuner/tunerwbrxdlg.h"
#include "valuewidgets/guicentral.h"
#include "valuewidgets/vcnumericfloatspin.h"

#include <QTest>

using namespace TKE;
using PanelTest::basePath;

namespace
{

using Panel = std::unique_ptr<ParameterDlg>;

/// The flags of its constructor that a panel of the table is made with, a letter each.
struct Form
{
    QString letters;
    bool operator()(char letter) const { return letters.contains(QLatin1Char(letter)); }
};

template <class P, class... Arguments> Panel New(Arguments... arguments)
{
    return std::make_unique<P>(basePath, arguments...);
}

Panel Make(const QString& name, const Form& form)
{
    static const QHash<QString, Panel (*)(const Form&)> makers{
        {"ActivityGenerationDlg",
         [](const Form& is) { return New<ActivityGenerationDlg>(nullptr, is('e'), is('l'), is('c'), false); }},
        {"AlarmConditionsSPDlg", [](const Form&) { return New<AlarmConditionsSPDlg>(nullptr); }},
        {"AntennaDlg", [](const Form& is) { return New<AntennaDlg>(is('v'), is('w'), is('t'), nullptr, false); }},
        {"AutoRecordingDlg", [](const Form& is) { return New<AutoRecordingDlg>(nullptr, is('r'), false); }},
        {"ClassificatorDlg",
         [](const Form& is) { return New<ClassificatorDlg>(true, is('y'), is('s'), nullptr, false); }},
        {"CorrelatorDlg", [](const Form&) { return New<CorrelatorDlg>(nullptr, false); }},
        {"DFLocateDlg", [](const Form&) { return New<DFLocateDlg>(nullptr, false); }},
        {"DecoderDlg", [](const Form& is) { return New<DecoderDlg>(nullptr, is('v'), false, false); }},
        {"DemodulatorDlg",
         [](const Form& is)
         {
             Panel panel = New<DemodulatorDlg>(is('v'), nullptr, false);
             static_cast<DemodulatorDlg&>(*panel).BuildPanel();
             return panel;
         }},
        {"DetectionDlg", [](const Form& is) { return New<DetectionDlg>(is('m'), nullptr, false); }},
        {"DetectionShortDlg", [](const Form& is) { return New<DetectionShortDlg>(false, is('m'), nullptr, false); }},
        {"FFTDataDlg", [](const Form& is) { return New<FFTDataDlg>(is('l'), is('r'), nullptr, false); }},
        {"GeneralDlg", [](const Form& is) { return New<GeneralDlg>(nullptr, false, is('t')); }},
        {"MemoryScanDlg", [](const Form& is) { return New<MemoryScanDlg>(2, is('j'), is('v'), nullptr, false); }},
        {"ScanDlg", [](const Form& is) { return New<ScanDlg>(is('o'), is('v'), nullptr, false); }},
        {"ShorttimeProfileDlg", [](const Form&) { return New<ShorttimeProfileDlg>(nullptr, false); }},
        {"ShorttimeProfileHeaderDlg", [](const Form&) { return New<ShorttimeProfileHeaderDlg>(nullptr, false); }},
        {"SigTrackingControlDlg", [](const Form&) { return New<SigTrackingControlDlg>(nullptr); }},
        {"SpectralZoomDlg", [](const Form&) { return New<SpectralZoomDlg>(nullptr, false); }},
        {"SurveillanceDlg", [](const Form& is) { return New<SurveillanceDlg>(is('d'), nullptr, false); }},
        {"TdsHeaderDDCDlg", [](const Form& is) { return New<TdsHeaderDDCDlg>(nullptr, false, is('n'), false); }},
        {"TdsHeaderMSDlg", [](const Form&) { return New<TdsHeaderMSDlg>(nullptr, false); }},
        {"TdsHeaderWBDlg", [](const Form& is) { return New<TdsHeaderWBDlg>(nullptr, false, is('x'), is('m'), false); }},
        {"TunerDDCDlg", [](const Form& is) { return New<TunerDDCDlg>(is('s'), is('a'), is('v'), nullptr, false); }},
        {"TunerDlg", [](const Form&) { return New<TunerDlg>(false, true, nullptr, false); }},
        {"TunerExternalDlg", [](const Form& is) { return New<TunerExternalDlg>(is('s'), is('j'), nullptr, false); }},
        {"TunerVUHFDlg", [](const Form&) { return New<TunerVUHFDlg>(false, true, nullptr, false); }},
        {"TunerWBDlg", [](const Form& is) { return New<TunerWBDlg>(is('s'), is('v'), nullptr, false); }},
        {"TunerWBRXDlg", [](const Form& is) { return New<TunerWBRXDlg>(is('v'), is('j'), nullptr, false); }},
        {"WBRXScanDlg", [](const Form& is) { return New<WBRXScanDlg>(is('v'), nullptr, false); }},
        {"WavecomDlg", [](const Form& is) { return New<WavecomDlg>(nullptr, is('d'), false); }},
    };
    if (const auto make = makers.value(name))
        return make(form);
    if (ExciterTest::panelNames.contains(name))
        return ExciterTest::Make(name, 1);
    // The other names are those of demodulations.
    return Panel(CreateDemodulatorPanel(name, basePath, form('v'), nullptr, false));
}

QString KindOf(const QWidget* widget)
{
    static const QHash<QString, QString> kinds{{"QGroupBox", "group"},
                                               {"QPushButton", "button"},
                                               {"QScrollArea", "area"},
                                               {"TKE::VCButtonGroup", "choice"},
                                               {"TKE::VCCheckBox", "check"},
                                               {"TKE::VCCheckableGroupBox", "checkgroup"},
                                               {"TKE::VCComboBoxClassic", "combo"},
                                               {"TKE::VCDatePeriod", "dates"},
                                               {"TKE::VCDateTimeEdit", "datetime"},
                                               {"TKE::VCFrequency", "frequency"},
                                               {"TKE::VCLabel", "text"},
                                               {"TKE::VCLineEdit", "line"},
                                               {"TKE::VCListBoxNumeric", "list"},
                                               {"TKE::VCListBoxString", "checklist"},
                                               {"TKE::VCNumericFloatSpin", "spin"},
                                               {"TKE::VCTimePeriod", "times"}};
    const QString className = QString::fromUtf8(widget->metaObject()->className());
    if (className == "QLabel")
    {
        const auto* label = static_cast<const QLabel*>(widget);
        if (label->frameShape() != QFrame::NoFrame)
            return label->frameShape() == QFrame::HLine ? "hline" : "vline";
        return label->alignment() & Qt::AlignLeft ? "left" : "label";
    }
    if (const auto* spin = qobject_cast<const VCNumericFloatSpin*>(widget))
        return (spin->wrapping() ? "wrapping" : kinds[className]) + QString::number(spin->decimals());
    if (const auto* edit = qobject_cast<const QLineEdit*>(widget); edit && !edit->hasFrame())
        return "bareline";
    return kinds.value(className, className);
}

QString TextOf(const QWidget* widget)
{
    if (const auto* box = qobject_cast<const QGroupBox*>(widget))
        return box->title();
    if (const auto* button = qobject_cast<const QAbstractButton*>(widget))
        return button->text();
    if (const auto* label = qobject_cast<const QLabel*>(widget); label && !dynamic_cast<const ValueLink*>(widget))
        return label->text();
    QStringList headers;
    if (const auto* list = qobject_cast<const QTableWidget*>(widget))
        for (int column = 0; column < list->columnCount(); ++column)
            headers << list->horizontalHeaderItem(column)->text();
    return headers.join(';');
}

/// The grid of rows that the widget holds: a group, or the channels in a scroll area.
QGridLayout* GridIn(QWidget* widget)
{
    const auto* area = qobject_cast<QScrollArea*>(widget);
    if (!area && !qobject_cast<QGroupBox*>(widget))
        return nullptr;
    return qobject_cast<QGridLayout*>((area ? area->widget() : widget)->layout());
}

/// Where the values are that the widget shows, seen from the panel's base path.
QString PathOf(QWidget* widget)
{
    QStringList paths;
    QList<QWidget*> parts{widget};
    if (!GridIn(widget))
        parts += widget->findChildren<QWidget*>();
    for (const QWidget* part : parts)
        if (const QString path = PanelTest::Grid::PathOf(part); !path.isEmpty())
            paths << QDir(basePath).relativeFilePath(path);
    return paths.join(' ');
}

void Describe(QGridLayout& grid, const QString& indent, const QString& prefix, QStringList& lines)
{
    int rowBefore = -1;
    for (int i = 0; i < grid.count(); ++i)
    {
        PanelTest::Place place;
        grid.getItemPosition(i, &place.row, &place.column, &place.rows, &place.columns);
        QWidget* widget = grid.itemAt(i)->widget();
        QStringList words{QString::number(place.column)};
        if (place.rows > 1 || place.columns > 1)
            words << QString("%1x%2").arg(place.rows).arg(place.columns);
        const QSize gap = grid.itemAt(i)->sizeHint();
        words << (widget ? KindOf(widget) : QString("gap%1x%2").arg(gap.width()).arg(gap.height()));
        if (const QString path = widget ? PathOf(widget) : QString(); !path.isEmpty())
            words << (!prefix.isEmpty() && path.startsWith(prefix) ? '~' + path.mid(prefix.size()) : path);
        if (const QString text = widget ? TextOf(widget) : QString(); !text.isEmpty())
            words << '"' + text + '"';
        if (widget && !widget->accessibleName().isEmpty())
            words << '(' + widget->accessibleName() + ')';
        if (place.row == rowBefore)
            lines.last() += " | " + words.join(' ');
        else
            lines << indent + QString::number(place.row) + ": " + words.join(' ');
        rowBefore = place.row;
        if (QGridLayout* inner = GridIn(widget))
        {
            Describe(*inner, indent + "  ", prefix, lines);
            rowBefore = -1;
        }
    }
}

/// The rows and columns that take the room left over.
QString StretchOf(const QGridLayout& grid)
{
    QStringList places;
    for (int row = 0; row < grid.rowCount(); ++row)
        if (grid.rowStretch(row) > 0)
            places << "row " + QString::number(row);
    for (int column = 0; column < grid.columnCount(); ++column)
        if (grid.columnStretch(column) > 0)
            places << "column " + QString::number(column);
    return places.join(", ");
}

/// The panel, and what stands where in it, in the order of building: a line for each row.
QStringList Describe(const ParameterDlg& panel, const QString& prefix)
{
    auto* grid = static_cast<QGridLayout*>(panel.layout());
    const auto boxes = panel.findChildren<QGroupBox*>(QString(), Qt::FindDirectChildrenOnly);
    const bool isFramed = grid->count() == 1 && boxes.contains(qobject_cast<QGroupBox*>(grid->itemAt(0)->widget()));
    if (isFramed)
        grid = GridIn(grid->itemAt(0)->widget());
    QStringList lines{QString("%1%2%3; stretch: %4")
                          .arg(panel.objectName(), isFramed ? ", framed" : "", panel.IsReadOnly() ? ", read-only" : "",
                               StretchOf(*grid))};
    Describe(*grid, {}, prefix, lines);
    for (QGroupBox* box : boxes)
    {
        if (panel.layout()->indexOf(box) >= 0)
            continue;
        lines << "outside: " + box->title();
        Describe(*GridIn(box), "  ", prefix, lines);
    }
    return lines;
}

} // namespace

/// Every panel against tests/panelrows.txt, which says what stands where in it.
class TestPanelRows : public QObject
{
    Q_OBJECT

private slots:
    // Every value at every place where a panel may look for it.
    void initTestCase()
    {
        ExciterTest::FillTree();
        for (const auto& group : JobModel::Load()->GetGroups())
            for (const auto& parameter : group->GetParameters())
                for (int n = 1; n <= (parameter->IsPerChannel() ? 2 : 1); ++n)
                {
                    const QString key = QString(parameter->GetUniqueParameterName()).replace("{n}", QString::number(n));
                    KeyManager::Instance()->Register(key, "full/" + key);
                    for (const char* node :
                         {"", "../", "full/", "../full/", "TDSSpectralZoom/full/", "WAVECOM_DEMODULATOR_HF/", "Data/",
                          "Data/full/", "Data/WAVECOM_DEMODULATOR_HF/"})
                        Tree::Instance()->CreateValue(QDir::cleanPath(basePath + node) + '/' + key,
                                                      parameter->GetValueDescriptor(n));
                }
    }
    void cleanupTestCase()
    {
        KeyManager::Instance()->Clear();
        Tree::Instance()->Clear();
    }

    void everythingStandsInItsPlace_data()
    {
        QTest::addColumn<QString>("prefix");
        QTest::addColumn<QStringList>("rows");
        QFile file(QFINDTESTDATA("panelrows.txt"));
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QString text = QString::fromUtf8(file.readAll());
        for (const QString& section : text.mid(text.indexOf("\n[") + 2).split("\n["))
        {
            QStringList rows = section.split('\n', Qt::SkipEmptyParts);
            const QString head = rows.takeFirst();
            QTest::newRow(qPrintable(head.section(']', 0, 0))) << head.section(']', 1).trimmed() << rows;
        }
    }
    void everythingStandsInItsPlace()
    {
        QFETCH(QString, prefix);
        QFETCH(QStringList, rows);
        const QString name = QString::fromUtf8(QTest::currentDataTag());
        GuiCentral::Instance().SetFrequencyUnit(SuffixedDouble::Giga);
        const Panel panel = Make(name.section(", ", 0, 0), {name.section(", ", 1)});
        QVERIFY(panel);
        QStringList described = Describe(*panel, prefix);
        if (GuiCentral::Instance().GetFrequencyUnit() != SuffixedDouble::Giga)
            described.first() += "; chooses the unit of frequencies";
        for (qsizetype i = 0; i < qMax(described.size(), rows.size()); ++i)
            QCOMPARE(described.value(i), rows.value(i));
    }
};

QTEST_MAIN(TestPanelRows)
#include "test_panelrows.moc"
