#include "demodulatorfixture.h"
#include "table.h"

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
    for (QLabel* label : panel.findChildren<QLabel*>(QString(), Qt::FindDirectChildrenOnly))
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
            for (const bool vuhf : {false, true})
                QTest::addRow("%s %d", qPrintable(name), vuhf) << name << vuhf;
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

    void anUnknownNameMakesNoPanel()
    {
        for (const char* name : {"", "psk", "PSK ", "SELCAL", "MFSK", "8PSK"})
            QVERIFY2(!Make(QString::fromLatin1(name), false), name);
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
        row("ASK", true, "PRIMARYMODULATION", 8, 2); // no sideband row
        row("FSK", false, "SIDEBAND", 8, 2);
        row("FSK", false, "SEQ_TONESPACING", 7, 6);
        row("FSK", true, "SEQ_TONESPACING", 5, 6);
        row("PSK", false, "EQUALIZERMODE", 4, 7);
        row("MTONE", false, "SEQ_TONESPACING", 9, 6);
        row("MTONE", true, "TONESPACING", 9, 6);
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
        // lines: row and columns of each, and the cell where one divides the columns
        const Table<QString, QString> row("name", "lines");
        row("all lines", "FSK", "1/8 3/8 2|4");
        row("nothing of its own", "ASK", "1/10 3/10");
        row("nothing in common", "F7W", "3/10");
        row("small and wide", "MORSE", "1/12");
        row("not counted as small", "GMDSS", "1/10 3/10 2|4");
    }
    void linesStandWhereTheDemodulationHasSomethingToDivide()
    {
        QFETCH(QString, name);
        const auto panel = Make(name, false);
        QStringList lines;
        for (const Place& place : LinesOf(*panel, QFrame::HLine))
            lines << QString("%1/%2").arg(place.row).arg(place.columns);
        lines.sort();
        for (const Place& place : LinesOf(*panel, QFrame::VLine))
            lines << QString("%1|%2").arg(place.row).arg(place.column);
        QTEST(lines.join(u' '), "lines");
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

    void onePanelMayAlignItsUnitsInTwoWays()
    {
        const auto panel = Make(QStringLiteral("MTONE"), false);
        const auto labels = panel->findChildren<QLabel*>();
        for (const auto& [unit, alignment] : {std::pair{QString("ms"), Qt::AlignRight}, {QString("Hz"), Qt::AlignLeft}})
        {
            const auto label = std::ranges::find(labels, unit, &QLabel::text);
            QVERIFY(label != labels.end());
            QCOMPARE((*label)->alignment() & Qt::AlignHorizontal_Mask, alignment);
        }
    }

    void spacingsOfMcPSKAreStoredInTenths()
    {
        for (const auto& [name, shown] : {std::pair{"McPSK", u"110"}, std::pair{"McFSK", u"400"}})
        {
            const auto panel = Make(QString::fromLatin1(name), false);
            QCOMPARE(panel->findChild<QTableWidget*>()->item(0, 0)->text(), shown);
        }
    }
};

QTEST_MAIN(TestDemodulatorPanels)
#include "test_demodulatorpanels.moc"
