#include "demodulatorfixture.h"

#include <QTest>
#include <QTranslator>
#include <QtWidgets>

using namespace DemodulatorTest;
using PanelTest::Place;

namespace
{

Place PlaceOf(const QWidget& panel, QWidget* widget)
{
    Place place;
    auto* grid = qobject_cast<QGridLayout*>(panel.layout());
    if (const int index = grid->indexOf(widget); index >= 0)
        grid->getItemPosition(index, &place.row, &place.column, &place.rows, &place.columns);
    return place;
}

QList<Place> LinesOf(const QWidget& panel, QFrame::Shape shape)
{
    QList<Place> places;
    for (QLabel* label : panel.findChildren<QLabel*>(Qt::FindDirectChildrenOnly))
        if (label->frameShape() == shape)
            places << PlaceOf(panel, label);
    return places;
}

/// Shows texts together with their context.
class ContextTranslator : public QTranslator
{
public:
    QString translate(const char* context, const char* text, const char*, int) const override
    {
        return QString::fromLatin1(context) + u'|' + QString::fromUtf8(text);
    }
    bool isEmpty() const override { return false; }
};

} // namespace

class TestDemodulatorPanels : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { FillBothBands(); }

    void everyDemodulationShowsEachOfItsValuesOnce_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("vuhf");
        for (const QString& name : AllNames())
        {
            QTest::addRow("%s, HF", qPrintable(name)) << name << false;
            QTest::addRow("%s, V/UHF", qPrintable(name)) << name << true;
        }
    }
    void everyDemodulationShowsEachOfItsValuesOnce()
    {
        QFETCH(QString, name);
        QFETCH(bool, vuhf);
        const auto panel = Make(name, vuhf);
        QVERIFY(panel);
        const QString stem = Prefix(vuhf) + panel->GetModulationTag() + u'_';
        QSet<QString> modelled, observed, shown;
        for (const auto& value : Tree::Instance()->FindNode(basePath)->GetValues())
        {
            if (value->IsObserved())
                observed << value->GetName();
            if (value->GetName().startsWith(stem))
                modelled << value->GetName();
        }
        const auto editors = EditorsOf(*panel);
        for (auto editor = editors.cbegin(); editor != editors.cend(); ++editor)
        {
            shown << stem + editor.key();
            QVERIFY2(editor.value()->isEnabled(), qPrintable(editor.key() + " is not bound"));
        }
        QCOMPARE(shown, modelled);
        QCOMPARE(observed, modelled);
    }

    void anUnknownNameMakesNoPanel_data()
    {
        QTest::addColumn<QString>("name");
        for (const char* name : {"", "psk", "PSK ", "SELCAL", "MFSK", "8PSK"})
            QTest::newRow(name) << name;
    }
    void anUnknownNameMakesNoPanel()
    {
        QFETCH(QString, name);
        QVERIFY(!Make(name, false));
    }

    void rowsCloseUpOverWhatADemodulationDoesNotHave_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("vuhf");
        QTest::addColumn<QString>("key");
        QTest::addColumn<int>("row");
        QTest::addColumn<int>("column");
        const auto row = [](const char* name, bool vuhf, const char* key, int gridRow, int column)
        { QTest::addRow("%s %d %s", name, vuhf, key) << name << vuhf << key << gridRow << column; };
        row("ASK", false, "BAUDRATE", 4, 2);
        row("ASK", true, "PRIMARYMODULATION", 8, 2); // no sideband row
        row("FSK", false, "SIDEBAND", 8, 2);
        row("FSK", true, "AFCENTERFREQUENCY", 11, 2);
        row("FSK", false, "MODVARIANT", 2, 6);
        row("FSK", false, "BLOCKCYCLE", 6, 6);
        row("FSK", false, "SEQ_TONESPACING", 7, 6);
        row("FSK", true, "SEQ_TONESPACING", 5, 6);
        row("OQPSK", true, "SIDEBAND", 8, 2);
        row("PSK", false, "EQUALIZERMODE", 4, 7);
        row("MTONE", true, "SIDEBAND", 4, 2);
        row("MTONE", false, "SEQ_TONESPACING", 9, 6);
        row("MTONE", true, "TONESPACING", 9, 6);
        row("SSTV", false, "SSTVMODE", 2, 2);
        row("MIL-STD", false, "AUTOMODE", 4, 2);
        row("MORSE", false, "AUTOMODE", 4, 5);
        row("McPSK", false, "SEQ_CHANNELSPACING", 6, 6);
    }
    void rowsCloseUpOverWhatADemodulationDoesNotHave()
    {
        QFETCH(QString, name);
        QFETCH(bool, vuhf);
        QFETCH(QString, key);
        const auto panel = Make(name, vuhf);
        const Place place = PlaceOf(*panel, EditorsOf(*panel).value(key));
        QTEST(place.row, "row");
        QTEST(place.column, "column");
    }

    void linesStandWhereTheDemodulationHasSomethingToDivide_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QList<int>>("rows");
        QTest::addColumn<int>("span");
        QTest::addColumn<bool>("separator");
        QTest::newRow("all lines") << "FSK" << QList{1, 3} << 8 << true;
        QTest::newRow("nothing of its own") << "ASK" << QList{1, 3} << 10 << false;
        QTest::newRow("nothing in common") << "F7W" << QList{3} << 10 << false;
        QTest::newRow("no type row") << "MTONE" << QList{3} << 8 << true;
        QTest::newRow("small and wide") << "MORSE" << QList{1} << 12 << false;
        QTest::newRow("type row only") << "PACKET RADIO" << QList{1} << 10 << false;
        QTest::newRow("not counted as small") << "GMDSS" << QList{1, 3} << 10 << true;
    }
    void linesStandWhereTheDemodulationHasSomethingToDivide()
    {
        QFETCH(QString, name);
        QFETCH(bool, separator);
        QFETCH(int, span);
        const auto panel = Make(name, false);
        QList<int> rows;
        for (const Place& place : LinesOf(*panel, QFrame::HLine))
        {
            rows << place.row;
            QCOMPARE(place.columns, span);
        }
        std::ranges::sort(rows);
        QTEST(rows, "rows");
        const auto separators = LinesOf(*panel, QFrame::VLine);
        QCOMPARE(separators.size(), separator ? 1 : 0);
        if (separator)
            QCOMPARE(separators.first().row * 100 + separators.first().column, 204);
    }

    void commonAndOwnRowsAreTranslatedInContextsOfTheirOwn()
    {
        ContextTranslator translator;
        QCoreApplication::installTranslator(&translator);
        const auto panel = Make(QStringLiteral("FSK"), false);
        QStringList texts;
        for (QLabel* label : panel->findChildren<QLabel*>())
            texts << label->text();
        QCoreApplication::removeTranslator(&translator);
        QVERIFY2(texts.contains("TKE::DemodulatorPanel|Baud rate :"), qPrintable(texts.join(u'\n')));
        QVERIFY(texts.contains("TKE::DemodulatorPanelFSK|Block length :"));
    }

    void unitsAreAlignedAsTheirPanelsHaveThem_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("unit");
        QTest::addColumn<int>("alignment");
        QTest::newRow("two kinds in one panel: ms") << "MTONE"
                                                    << "ms" << int(Qt::AlignRight);
        QTest::newRow("two kinds in one panel: Hz") << "MTONE"
                                                    << "Hz" << int(Qt::AlignLeft);
        QTest::newRow("procedure") << "FAX"
                                   << "lpm" << int(Qt::AlignRight);
        QTest::newRow("common row") << "ASK"
                                    << "Bd" << int(Qt::AlignLeft);
    }
    void unitsAreAlignedAsTheirPanelsHaveThem()
    {
        QFETCH(QString, name);
        QFETCH(QString, unit);
        const auto panel = Make(name, false);
        const auto labels = panel->findChildren<QLabel*>();
        const auto label = std::ranges::find(labels, unit, &QLabel::text);
        QVERIFY(label != labels.end());
        QTEST(int((*label)->alignment() & Qt::AlignHorizontal_Mask), "alignment");
    }

    void spacingsOfMcPSKAreStoredInTenths()
    {
        for (const auto& [name, shown] : {std::pair{"McPSK", u"110"}, std::pair{"McFSK", u"400"}})
        {
            const auto panel = Make(QString::fromLatin1(name), false);
            const auto* list = panel->findChild<QTableWidget*>();
            QCOMPARE(list->item(0, 0)->text(), shown);
            QCOMPARE(list->size(), QSize(125, 125));
        }
    }
};

QTEST_MAIN(TestDemodulatorPanels)
#include "test_demodulatorpanels.moc"
