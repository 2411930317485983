#include "analysis/demodulatordlg.h"
#include "common.h"
#include "demodulatorfixture.h"
#include "valuewidgets/vccomboboxclassic.h"
#include "valuewidgets/vcnumericfloatspin.h"

#include <QTest>
#include <QtWidgets>

using namespace DemodulatorTest;

namespace
{

ValueSelection* Demodulation(bool vuhf = false)
{
    return dynamic_cast<ValueSelection*>(
        Tree::Instance()->FindValue(basePath + Prefix(vuhf) + Keys::Demodulator::MODTYPE));
}

DemodulatorPanel* PanelOf(const DemodulatorDlg& dialog)
{
    const auto panels = dialog.findChildren<DemodulatorPanel*>();
    return panels.size() == 1 ? panels.first() : nullptr;
}

/// The dialog in view, with the keyboard.
std::unique_ptr<DemodulatorDlg> Open(bool vuhf = false)
{
    auto dialog = std::make_unique<DemodulatorDlg>(basePath, vuhf, nullptr, false);
    dialog->BuildPanel();
    dialog->show();
    return QTest::qWaitForWindowActive(dialog.get()) ? std::move(dialog) : nullptr;
}

} // namespace

class TestDemodulator : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { FillBothBands(); }
    void cleanup() { Tree::Instance()->SetJournal({}); }

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

    void commonAndOwnRowsAreTranslatedInContextsOfTheirOwn()
    {
        const ContextTranslator translator;
        const auto panel = Make(QStringLiteral("FSK"), false);
        QSet<QString> texts;
        for (QLabel* label : panel->findChildren<QLabel*>())
            texts << label->text();
        QVERIFY(texts.contains({"TKE::DemodulatorPanel|Baud rate :", "TKE::DemodulatorPanelFSK|Block length :"}));
    }

    void spacingsOfMcPSKAreStoredInTenths()
    {
        for (const auto& [name, shown] : {std::pair{"McPSK", u"110"}, std::pair{"McFSK", u"400"}})
        {
            const auto panel = Make(QString::fromLatin1(name), false);
            QCOMPARE(panel->findChild<QTableWidget*>()->item(0, 0)->text(), shown);
        }
    }

    void aNewSelectionReplacesThePanelAtOnce()
    {
        const auto dialog = Open();
        QCOMPARE(PanelOf(*dialog)->GetModulationTag(), "FSK");
        QCOMPARE(PanelOf(*dialog)->geometry(), QRect(0, 40, 600, 400));
        QPointer<DemodulatorPanel> old = PanelOf(*dialog);
        QWidget* editor = EditorsOf(*old).value(QStringLiteral("BAUDRATE"));
        editor->setFocus();
        QTest::keyClick(editor, Qt::Key_5); // an entry begun and never ended
        Demodulation()->SetFromText(QStringLiteral("ACARS HF"));
        QVERIFY(!old);
        old = PanelOf(*dialog);
        QCOMPARE(old->GetModulationTag(), "ACARS");
        Demodulation()->SetState(stDisabled);
        dialog->Update(Demodulation(true), ccContent);
        QVERIFY(old);                              // neither another code nor another value counts
        dialog->Update(Demodulation(), ccContent); // told again without a new name
        QVERIFY(!old);
    }

    void withoutAKnownDemodulationThereIsNoPanel()
    {
        auto items = Demodulation()->GetItems();
        items.emplace_back(99, QStringLiteral("NEWER"));
        Demodulation()->SetItems(items);
        for (const char* name : {"", "psk", "PSK ", "SELCAL", "MFSK", "8PSK"})
            QVERIFY2(!Make(QString::fromLatin1(name), false), name);
        const auto dialog = Open();
        Demodulation()->SelectKey(99);
        QVERIFY(!dialog->findChild<DemodulatorPanel*>());
        QCOMPARE(dialog->minimumSize(), QSize(600, 400));
        Demodulation()->SetStoredText(QStringLiteral("1234")); // a key that no item has
        QVERIFY(!dialog->findChild<DemodulatorPanel*>());
        Demodulation()->SetFromText(QStringLiteral("GMSK"));
        QVERIFY(PanelOf(*dialog) && PanelOf(*dialog)->isVisible());
        Tree::Instance()->RemoveValue(basePath + Keys::DEMODULATOR_HF_DDC_MODTYPE);
        QVERIFY(!Open()->findChild<DemodulatorPanel*>());
    }

    void theKeyboardWalksThroughAllDemodulationsAndLookingWritesNothing()
    {
        Demodulation()->SetFromText(AllNames().first());
        const auto dialog = Open();
        auto* selector = dialog->findChild<VCComboBoxClassic*>(Demodulation()->GetName());
        QStringList written;
        Tree::Instance()->SetJournal([&](const JournalEntry& entry) { written << entry.value.GetName(); });
        for (const QString& name : AllNames().mid(1))
        {
            selector->setFocus();
            QPointer<DemodulatorPanel> old = PanelOf(*dialog);
            QTest::keyClick(selector, Qt::Key_Down);
            QCOMPARE(Demodulation()->GetText(), name);
            QVERIFY(!old && PanelOf(*dialog) && selector->hasFocus());
            const auto expected = Make(name, false);
            QCOMPARE(PanelOf(*dialog)->metaObject()->className(), expected->metaObject()->className());
            QCOMPARE(PanelOf(*dialog)->GetModulationTag(), expected->GetModulationTag());
            for (qsizetype i = 0; i <= EditorsOf(*PanelOf(*dialog)).size() + 2; ++i)
                QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        }
        QCOMPARE(written.removeAll(Demodulation()->GetName()), AllNames().size() - 1);
        QCOMPARE(written, QStringList());
    }

    void anObserverMayChangeTheSelectionAgain()
    {
        const auto choose = [] { Demodulation()->SetFromText(QStringLiteral("MORSE")); };
        std::optional<Hearer> before(std::in_place, choose);
        Demodulation()->Attach(&*before);
        const auto dialog = Open();
        const auto check = [&]
        {
            for (const QString& name : AllNames())
            {
                Demodulation()->SetFromText(name);
                QVERIFY(PanelOf(*dialog));
                QCOMPARE(PanelOf(*dialog)->GetModulationTag(), "MORSE");
            }
        };
        check(); // heard before the dialog
        before.reset();
        Hearer after(choose);
        Demodulation()->Attach(&after);
        check(); // and after it
    }

    void anEditInThePanelMayReplaceThePanel_data()
    {
        const Table<QString, QList<int>> row("key", "strokes");
        row("combo box", "MODTYPE", QList<int>{Qt::Key_Down});
        row("list of a combo box", "MODTYPE", QList<int>{Qt::Key_F4, Qt::Key_Down, Qt::Key_Return});
        row("number typed", "BAUDRATE", QList<int>{Qt::Key_7, Qt::Key_Tab});
        row("check box", "EQUALIZERMODE", QList<int>{Qt::Key_Space});
    }
    void anEditInThePanelMayReplaceThePanel()
    {
        QFETCH(QString, key);
        QFETCH(QList<int>, strokes);
        Demodulation()->SetFromText(QStringLiteral("PSK"));
        const auto dialog = Open();
        QPointer<QWidget> editor = EditorsOf(*PanelOf(*dialog)).value(key);
        Hearer chooser([] { Demodulation()->SetFromText(QStringLiteral("FSK")); });
        Tree::Instance()->FindValue(basePath + "DEMODULATOR_HF_DDC_PSK_" + key)->Attach(&chooser);
        editor->setFocus();
        for (const int stroke : strokes)
        {
            const QWidget* popup = QApplication::activePopupWidget();
            if (QWidget* target = popup ? popup->findChild<QAbstractItemView*>() : editor.data())
                QTest::keyClick(target, Qt::Key(stroke));
        }
        QTRY_VERIFY(!editor); // a choice in the list is written when the list is closed
        QVERIFY(PanelOf(*dialog));
        QCOMPARE(PanelOf(*dialog)->GetModulationTag(), "FSK");
    }

    void thePanelKeepsItsPlaceAndGrowsWithItsRowsOnly()
    {
        const auto dialog = Open();
        const QRect place(0, 40, 600, 400);
        dialog->resize(1000, 700);
        for (const char* name : {"PSK31", "McFSK", "ASK"})
        {
            Demodulation()->SetFromText(QString::fromUtf8(name));
            const DemodulatorPanel* panel = PanelOf(*dialog);
            QTRY_COMPARE(panel->geometry(), place.united({place.topLeft(), panel->layout()->totalMinimumSize()}));
            QTRY_COMPARE(panel->layout()->geometry().size(), panel->size()); // its rows have moved along
        }
        dialog->hide();
        Demodulation()->SetFromText(QStringLiteral("MORSE"));
        QCOMPARE(PanelOf(*dialog)->geometry(), place);
        dialog->show();
        QTRY_COMPARE(PanelOf(*dialog)->geometry(), place);
    }

    void everyEditorCanBeReachedInASmallWindow_data() { WithAndWithout("vuhf"); }
    void everyEditorCanBeReachedInASmallWindow()
    {
        QFETCH(bool, vuhf);
        Demodulation(vuhf)->SetFromText(vuhf ? "FSK" : "McPSK"); // many common rows, or a list
        const auto dialog = Open(vuhf);
        QFont large = dialog->font();
        large.setPointSize(18);
        dialog->setFont(large);
        dialog->resize(dialog->minimumSize());
        DemodulatorPanel* panel = PanelOf(*dialog);
        const auto seen = [&](QWidget* editor)
        {
            const QRect place = editor->geometry();
            return panel->mask().boundingRect().contains(place) &&
                   dialog->rect().contains(place.translated(panel->pos()));
        };
        const auto editors = EditorsOf(*panel);
        QTRY_VERIFY(!std::ranges::all_of(editors, seen));
        for (QWidget* editor : editors)
        {
            editor->setFocus();
            QVERIFY2(seen(editor), qPrintable(editor->objectName()));
        }

        dialog->resize(dialog->sizeHint());
        QTRY_VERIFY(panel->mask().isEmpty());
        QVERIFY(panel->y() >= 40);
        for (QScrollBar* bar : dialog->findChildren<QScrollBar*>(QString(), Qt::FindDirectChildrenOnly))
            QVERIFY(!bar->isVisible());
    }

    void tabGoesFromTheTopRowIntoANewPanel()
    {
        QWidget window;
        QVBoxLayout layout(&window);
        auto dialog = Open();
        layout.addWidget(dialog.get());
        QPushButton button(QStringLiteral("OK"), &window);
        layout.addWidget(&button);
        window.show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        Demodulation()->SetFromText(QStringLiteral("PSK"));
        auto* offset = dialog->findChild<VCNumericFloatSpin*>(QString(Keys::DEMODULATOR_HF_DDC_FREQUENCYOFFSET));
        offset->setFocus();
        QTest::keyClick(offset, Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget()->objectName(), Keys::Demodulator::MODTYPE);
        for (int i = 0; i < EditorsOf(*PanelOf(*dialog)).size(); ++i)
        {
            QVERIFY(!button.hasFocus());
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        }
        QVERIFY(button.hasFocus());
    }
};

QTEST_MAIN(TestDemodulator)
#include "test_demodulator.moc"
