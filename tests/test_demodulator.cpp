#include "analysis/demodulatordlg.h"
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

/// Runs a function in each notification.
class Listener : public IObserver
{
public:
    Listener(Observable* source, std::function<void()> reaction) : m_reaction(std::move(reaction))
    {
        source->Attach(this);
    }
    void Update(Observable*, TChangeCode code) override
    {
        if (code == ccContent)
            m_reaction();
    }

private:
    std::function<void()> m_reaction;
};

std::unique_ptr<DemodulatorDlg> Open(bool vuhf = false, bool readOnly = false)
{
    auto dialog = std::make_unique<DemodulatorDlg>(basePath, vuhf, nullptr, readOnly);
    dialog->BuildPanel();
    return dialog;
}

} // namespace

class TestDemodulator : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { FillBothBands(); }
    void cleanup() { Tree::Instance()->SetJournal({}); }

    void aReadOnlyPanelStaysDisabledWhateverItsValuesSay()
    {
        Demodulation()->SetFromText(QStringLiteral("McFSK"));
        const auto dialog = Open(false, true);
        dialog->show();
        const auto editors = EditorsOf(*PanelOf(*dialog));
        QVERIFY(editors.size() > 5);
        for (const auto& value : Tree::Instance()->FindNode(basePath)->GetValues())
        {
            value->SetState(stDisabled);
            value->SetState(stEnabled);
        }
        for (QWidget* editor : editors)
            QVERIFY2(!editor->isEnabled(), qPrintable(editor->objectName()));
        QVERIFY(!dialog->findChild<VCComboBoxClassic*>(Demodulation()->GetName())->isEnabled());
    }

    void aNewSelectionReplacesThePanelAtOnce()
    {
        const auto dialog = Open();
        QCOMPARE(PanelOf(*dialog)->GetModulationTag(), "FSK");
        QCOMPARE(PanelOf(*dialog)->geometry(), QRect(0, 40, 600, 400));
        QCOMPARE(dialog->minimumSize(), QSize(600, 400));
        QCOMPARE(PanelOf(*dialog)->parentWidget(), dialog.get());

        QPointer<DemodulatorPanel> old = PanelOf(*dialog);
        Demodulation()->SetFromText(QStringLiteral("ACARS HF"));
        QVERIFY(!old);
        QCOMPARE(PanelOf(*dialog)->GetModulationTag(), "ACARS");

        old = PanelOf(*dialog);
        dialog->Update(Demodulation(), ccContent); // told again without a new name
        QVERIFY(!old);
        old = PanelOf(*dialog);
        Demodulation()->SetState(stDisabled);
        dialog->Update(Demodulation(true), ccContent);
        QVERIFY(old); // neither another code nor another value counts
    }

    void anUnknownNameLeavesTheTopRowAlone()
    {
        auto items = Demodulation()->GetItems();
        items.emplace_back(99, QStringLiteral("NEWER"));
        Demodulation()->SetItems(items);
        const auto dialog = Open();
        dialog->show();
        Demodulation()->SelectKey(99);
        QVERIFY(!dialog->findChild<DemodulatorPanel*>());
        QCOMPARE(dialog->minimumSize(), QSize(600, 400));
        Demodulation()->SetStoredText(QStringLiteral("1234")); // a key that no item has
        QVERIFY(!dialog->findChild<DemodulatorPanel*>());
        Demodulation()->SetFromText(QStringLiteral("GMSK"));
        QVERIFY(PanelOf(*dialog) && PanelOf(*dialog)->isVisible());
    }

    void theKeyboardWalksThroughAllDemodulations()
    {
        Demodulation()->SetFromText(AllNames().first());
        const auto dialog = Open();
        dialog->show();
        QVERIFY(QTest::qWaitForWindowActive(dialog.get()));
        auto* selector = dialog->findChild<VCComboBoxClassic*>(Demodulation()->GetName());
        selector->setFocus();
        for (const QString& name : AllNames().mid(1))
        {
            QPointer<DemodulatorPanel> old = PanelOf(*dialog);
            QTest::keyClick(selector, Qt::Key_Down);
            QCOMPARE(Demodulation()->GetText(), name);
            QVERIFY(!old);
            QVERIFY(PanelOf(*dialog));
            QVERIFY(selector->hasFocus());
        }
    }

    void anObserverMayChangeTheSelectionAgain_data()
    {
        QTest::addColumn<bool>("before");
        QTest::newRow("heard before the dialog") << true;
        QTest::newRow("heard after the dialog") << false;
    }
    void anObserverMayChangeTheSelectionAgain()
    {
        QFETCH(bool, before);
        std::optional<Listener> listener;
        const auto attach = [&]
        {
            listener.emplace(Demodulation(),
                             []
                             {
                                 if (Demodulation()->GetText() != u"MORSE")
                                     Demodulation()->SetFromText(QStringLiteral("MORSE"));
                             });
        };
        if (before)
            attach();
        const auto dialog = Open();
        dialog->show();
        if (!before)
            attach();
        for (const QString& name : AllNames())
        {
            Demodulation()->SetFromText(name);
            QVERIFY(PanelOf(*dialog));
            QCOMPARE(PanelOf(*dialog)->GetModulationTag(), "MORSE");
        }
    }

    void anEditInThePanelMayReplaceThePanel_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QList<int>>("strokes");
        QTest::newRow("combo box") << "MODTYPE" << QList<int>{Qt::Key_Down};
        QTest::newRow("list of a combo box") << "MODTYPE" << QList<int>{Qt::Key_F4, Qt::Key_Down, Qt::Key_Return};
        QTest::newRow("number by step") << "BAUDRATE" << QList<int>{Qt::Key_Up, Qt::Key_Return};
        QTest::newRow("number typed") << "BAUDRATE" << QList<int>{Qt::Key_7, Qt::Key_Tab};
        QTest::newRow("check box") << "EQUALIZERMODE" << QList<int>{Qt::Key_Space};
    }
    void anEditInThePanelMayReplaceThePanel()
    {
        QFETCH(QString, key);
        QFETCH(QList<int>, strokes);
        Demodulation()->SetFromText(QStringLiteral("PSK"));
        const auto dialog = Open();
        dialog->show();
        QVERIFY(QTest::qWaitForWindowActive(dialog.get()));
        QPointer<QWidget> editor = EditorsOf(*PanelOf(*dialog)).value(key);
        Listener listener(Tree::Instance()->FindValue(basePath + "DEMODULATOR_HF_DDC_PSK_" + key),
                          [] { Demodulation()->SetFromText(QStringLiteral("FSK")); });
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

    void aThousandRandomChangesLeaveOnePanel()
    {
        QRandomGenerator random(20);
        const QStringList names = AllNames();
        const auto dialog = Open(true);
        dialog->show();
        auto* selector = dialog->findChild<VCComboBoxClassic*>(Demodulation(true)->GetName());
        for (int round = 0; round < 1000; ++round)
        {
            const QString name = names.at(random.bounded(names.size()));
            if (QWidget* editor = EditorsOf(*PanelOf(*dialog)).value(QStringLiteral("BAUDRATE"));
                editor && round % 3 == 0)
            {
                editor->setFocus();
                QTest::keyClick(editor, Qt::Key_5); // an entry begun and never ended
            }
            if (round % 2)
                Demodulation(true)->SetFromText(name);
            else
                QTest::keyClick(selector, Qt::Key(Qt::Key_A + random.bounded(26)));
            if (round % 10 == 0)
                QCoreApplication::processEvents();
            const DemodulatorPanel* panel = PanelOf(*dialog);
            QVERIFY(panel);
            const auto expected = Make(Demodulation(true)->GetText(), true);
            QCOMPARE(panel->metaObject()->className(), expected->metaObject()->className());
            QCOMPARE(panel->GetModulationTag(), expected->GetModulationTag());
        }
    }

    void valuesAndDialogGoInEitherOrder()
    {
        auto dialog = Open();
        dialog->show();
        QPointer<DemodulatorPanel> panel = PanelOf(*dialog);
        Tree::Instance()->RemoveBranch(basePath);
        QVERIFY(panel);
        QTest::qWait(1);
        init();
        Demodulation()->SetFromText(QStringLiteral("PSK")); // another value than the dialog was built for
        QVERIFY(panel);
        dialog = Open();
        dialog.reset();
        for (const auto& value : Tree::Instance()->FindNode(basePath)->GetValues())
            QVERIFY2(!value->IsObserved(), qPrintable(value->GetName()));
    }

    void withoutASelectionThereIsNoPanel()
    {
        Tree::Instance()->RemoveValue(basePath + Keys::DEMODULATOR_HF_DDC_MODTYPE);
        const auto dialog = Open();
        dialog->show();
        QVERIFY(!dialog->findChild<DemodulatorPanel*>());
    }

    void lookingAtEveryDemodulationWritesNothing()
    {
        QStringList written;
        const auto dialog = Open();
        dialog->show();
        QVERIFY(QTest::qWaitForWindowActive(dialog.get()));
        Tree::Instance()->SetJournal([&](const JournalEntry& entry) { written << entry.value.GetName(); });
        for (const QString& name : AllNames())
        {
            Demodulation()->SetFromText(name);
            for (qsizetype i = 0; i <= EditorsOf(*PanelOf(*dialog)).size() + 2; ++i)
                QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        }
        written.removeAll(Demodulation()->GetName());
        QCOMPARE(written, QStringList());
    }

    void thePanelGrowsWithTheDialog()
    {
        const auto dialog = Open();
        dialog->resize(1000, 700);
        dialog->show();
        QVERIFY(QTest::qWaitForWindowExposed(dialog.get()));
        QCOMPARE(PanelOf(*dialog)->geometry(), QRect(0, 40, 1000, 660));
        Demodulation()->SetFromText(QStringLiteral("PSK"));
        QCOMPARE(PanelOf(*dialog)->geometry(), QRect(0, 40, 1000, 660));
        dialog->resize(1100, 750);
        QTRY_COMPARE(PanelOf(*dialog)->geometry(), QRect(0, 40, 1100, 710));
        dialog->hide();
        Demodulation()->SetFromText(QStringLiteral("ASK"));
        dialog->show();
        QTRY_COMPARE(PanelOf(*dialog)->geometry(), QRect(0, 40, 1100, 710));
    }

    void everyEditorCanBeReachedInASmallWindow_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("vuhf");
        QTest::newRow("many common rows") << "FSK" << true;
        QTest::newRow("many rows of its own") << "MTONE" << true;
        QTest::newRow("a list") << "McPSK" << false;
    }
    void everyEditorCanBeReachedInASmallWindow()
    {
        QFETCH(QString, name);
        QFETCH(bool, vuhf);
        Demodulation(vuhf)->SetFromText(name);
        const auto dialog = Open(vuhf);
        QFont large = dialog->font();
        large.setPointSize(18);
        dialog->setFont(large);
        dialog->resize(dialog->minimumSize());
        dialog->show();
        QVERIFY(QTest::qWaitForWindowActive(dialog.get()));
        DemodulatorPanel* panel = PanelOf(*dialog);
        const auto seen = [&](QWidget* editor)
        {
            const QRect place = editor->geometry();
            return panel->mask().boundingRect().contains(place) &&
                   dialog->rect().contains(place.translated(panel->pos()));
        };
        const auto editors = EditorsOf(*panel);
        QVERIFY(!std::ranges::all_of(editors, seen));
        for (QWidget* editor : editors)
        {
            editor->setFocus();
            QVERIFY2(seen(editor), qPrintable(editor->objectName()));
        }

        dialog->resize(dialog->sizeHint());
        QTRY_VERIFY(panel->mask().isEmpty());
        QVERIFY(panel->y() >= 40);
        for (QScrollBar* bar : dialog->findChildren<QScrollBar*>(Qt::FindDirectChildrenOnly))
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
