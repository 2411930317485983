#include "common.h"
#include "demodulatorfixture.h"

#include <QtWidgets>

using namespace DemodulatorTest;

class TestDemodulatorPanels : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { FillBothBands(); }

    void everyDemodulationShowsEachOfItsValuesOnce_data()
    {
        const Table<QString, bool> row("name", "vuhf");
        for (const QString& name : AllNames())
            for (const bool vuhf : {false, true})
                row(name + (vuhf ? " V/UHF" : " HF"), name, vuhf);
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

    void commonAndOwnRowsAreTranslatedInContextsOfTheirOwn()
    {
        const ContextTranslator translator;
        const auto panel = Make(QStringLiteral("FSK"), false);
        QStringList texts;
        for (QLabel* label : panel->findChildren<QLabel*>())
            texts << label->text();
        QVERIFY2(texts.contains("TKE::DemodulatorPanel|Baud rate :"), qPrintable(texts.join(u'\n')));
        QVERIFY(texts.contains("TKE::DemodulatorPanelFSK|Block length :"));
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
