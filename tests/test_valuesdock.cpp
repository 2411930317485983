#include "editorfixture.h"
#include "jobedit/valuesdock.h"
#include "jobedit/valuesmodel.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>

using namespace EditorTest;

class TestValuesDock : public DeskTest
{
    Q_OBJECT

    ValuesDock* m_dock = nullptr;

    ValuesModel& Model() { return m_dock->Model(); }
    QTreeView* View() { return m_dock->View(); }

    void Settle() { QTRY_VERIFY_WITH_TIMEOUT(m_dock->IsUpToDate(), 5000); }
    void Switch(const char* name, bool on)
    {
        m_dock->findChild<QCheckBox*>(name)->setChecked(on);
        Settle();
    }
    /// The paths of all values listed, from top to bottom.
    QStringList Listed()
    {
        QStringList paths;
        for (const QModelIndex& index : AllRows(Model()))
            if (!Model().IsBranch(index))
                paths << Model().PathAt(index);
        return paths;
    }
    QModelIndex ContentOf(const QString& path) { return Model().IndexOf(path).siblingAtColumn(ValueListing::Content); }
    /// Selects the row of the value and presses F2; the editor that then has the keyboard.
    QWidget* Edit(const QString& path)
    {
        View()->setCurrentIndex(Model().IndexOf(path));
        View()->setFocus();
        QTest::keyClick(View(), Qt::Key_F2);
        QWidget* editor = QApplication::focusWidget();
        return editor != View() && View()->isAncestorOf(editor) ? editor : nullptr;
    }
    /// Into an editor, instead of what it holds.
    static void Type(QWidget* editor, const QString& text)
    {
        static_cast<QLineEdit*>(editor)->selectAll();
        QTest::keyClicks(editor, text);
        QTest::keyClick(editor, Qt::Key_Return);
    }
    QString FirstOfKind(ValueKind kind)
    {
        for (const QString& path : Listed())
            if (Value(path)->GetKind() == kind && Value(path)->GetState() == stEnabled &&
                !Value(path)->GetDescriptor().multiple)
                return path;
        return {};
    }

private Q_SLOTS:
    void init()
    {
        Begin();
        Window().resize(1500, 1000);
        QVERIFY(Window().SaveTo(File()));
        m_dock = Window().findChild<ValuesDock*>();
        m_desk->Press(Qt::Key_F9, {});
        QVERIFY(m_dock->isVisible() && m_dock->Filter()->hasFocus());
        Settle();
    }
    void cleanup() { End(); }
    void allValuesAreListedAsATreeAndFlat()
    {
        const QAbstractItemModelTester tester(&Model(), QAbstractItemModelTester::FailureReportingMode::QtTest);
        for (const bool asTree : {false, true})
        {
            Switch("asTree", asTree);
            const QStringList listed = Listed();
            QCOMPARE(size_t(listed.size()), Tree::Instance()->ValueCount());
            QCOMPARE(QSet<QString>(listed.begin(), listed.end()).size(), listed.size());
            QCOMPARE(Model().rowCount() == listed.size(), !asTree);
            for (const QString& path : {listed.front(), listed.back(), frequencyPath})
                QCOMPARE(Model().PathAt(Model().IndexOf(path)), path);
        }
        QVERIFY(!Window().isWindowModified());
    }

    void theFilterLooksIntoEveryText_data()
    {
        EachText("text", {"tuner_hf_nb_frequency", "/CS_TUNER/TUNER/", "<label>", "<content>"});
    }
    void theFilterLooksIntoEveryText()
    {
        QFETCH(QString, text);
        Set(frequencyPath, "7123456");
        if (text == "<content>")
            text = "7.123456";
        if (text == "<label>")
            text = ContentOf(frequencyPath).siblingAtColumn(ValueListing::Label).data().toString();
        QTest::keyClicks(m_dock->Filter(), text);
        Settle();
        const QStringList listed = Listed();
        QVERIFY(listed.contains(frequencyPath));
        QVERIFY(size_t(listed.size()) < Tree::Instance()->ValueCount() / 2);
        QVERIFY2(View()->indexBelow(View()->indexAt({5, 5})).isValid(), "found values are shown at once");
    }

    void onlyChangedValuesOrThoseOfTheSelectedNodeAreListedWhenAskedFor()
    {
        QVERIFY(Value(frequencyPath)->SetToDefault());
        QVERIFY(Window().Save());
        Switch("onlyFromSaved", true);
        QVERIFY(Listed().isEmpty());
        Set(frequencyPath, "7123456");
        QTRY_COMPARE(Listed(), QStringList{frequencyPath});
        const QModelIndex content = ContentOf(frequencyPath);
        QVERIFY(content.data().toString() != content.siblingAtColumn(ValueListing::Saved).data().toString());
        QVERIFY(Window().Save());
        QTRY_VERIFY(Listed().isEmpty());
        Switch("onlyFromSaved", false);
        Switch("onlyFromDefault", true);
        const QStringList listed = Listed();
        QVERIFY(listed.contains(frequencyPath));
        for (const QString& path : listed)
            QVERIFY(Stored(path) != Value(path)->GetDescriptor().defaultText);
        Switch("onlyFromDefault", false);
        Window().Nodes().SelectNode(tunerPath);
        Switch("onlyThisNode", true);
        QVERIFY(Listed().contains(frequencyPath));
        for (const QString& path : Listed())
            QVERIFY(path.startsWith(tunerPath));
        Window().Nodes().SelectNode("/Jobs/Demo/TDS_HFWB/HEADER_VOICE/");
        Settle();
        QVERIFY(!Listed().isEmpty() && !Listed().contains(frequencyPath));
    }
    void aFlatListIsSortedByAColumn()
    {
        Switch("asTree", false);
        QHeaderView* header = View()->header();
        for (const int column : {ValueListing::Label, ValueListing::Default, ValueListing::Key})
        {
            const QPoint place(header->sectionViewportPosition(column) + 20, 5);
            QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, place);
            if (header->sortIndicatorOrder() != Qt::AscendingOrder)
                QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, place);
            Settle();
            // Numbers come first and go by their size: 9 before 10.
            std::pair before(false, -HUGE_VAL);
            QString textBefore;
            for (const QModelIndex& index : AllRows(Model()))
            {
                const ValueBase& value = *Model().ValueAt(index);
                const std::array numbers{ValueKind::Int, ValueKind::Double, ValueKind::Frequency};
                const bool isText = column != ValueListing::Default || !std::ranges::count(numbers, value.GetKind());
                const std::pair here(isText, isText ? 0.0 : value.GetDescriptor().defaultText.toDouble());
                QVERIFY(std::exchange(before, here) <= here);
                const QString text = isText ? index.siblingAtColumn(column).data().toString() : QString();
                QVERIFY(std::exchange(textBefore, text).compare(text, Qt::CaseInsensitive) <= 0);
            }
        }
    }

    void aNumberIsEditedInPlaceAndARefusedOneStaysInTheEditor()
    {
        const QString before = Stored(frequencyPath);
        QWidget* editor = Edit(frequencyPath);
        QVERIFY(editor);
        Type(editor, "much");
        QCOMPARE(QApplication::focusWidget(), editor);
        QVERIFY(editor->toolTip().contains("much"));
        QCOMPARE(Stored(frequencyPath), before);
        Type(editor, "7040 k");
        QCOMPARE(Stored(frequencyPath), "7040000");
        QTRY_VERIFY(View()->hasFocus());
        QCOMPARE(ContentOf(frequencyPath).data().toString(), "7.04 MHz");
        QVERIFY(Window().isWindowModified());
        Value(frequencyPath)->SetState(stDisabled);
        QVERIFY(!Edit(frequencyPath));
        QVERIFY(!Model().setData(ContentOf(frequencyPath), "7000000"));
    }

    void everyKindIsEditedByItsEditor()
    {
        const QString boolean = FirstOfKind(ValueKind::Bool);
        const QString selection = FirstOfKind(ValueKind::Selection);
        const QString list = FirstOfKind(ValueKind::DoubleList);
        QVERIFY(!boolean.isEmpty() && !selection.isEmpty() && !list.isEmpty());
        const bool on = Value(boolean)->GetBool();
        QVERIFY(!Edit(boolean)); // switched at once
        QCOMPARE(Value(boolean)->GetBool(), !on);

        auto* combo = qobject_cast<QComboBox*>(Edit(selection));
        QVERIFY(combo && combo->count() > 1);
        const int row = combo->currentIndex();
        QTest::keyClick(combo, row == 0 ? Qt::Key_Down : Qt::Key_Up);
        QTest::keyClick(combo, Qt::Key_Return);
        QTRY_VERIFY(View()->hasFocus());
        QVERIFY(Window().Document().DiffersFromSaved(*Value(selection)));

        QWidget* editor = Edit(list);
        QVERIFY(editor);
        Type(editor, "nothing");
        QTRY_VERIFY(Window().Messages().GetText().contains(list));
        QVERIFY(!Window().Document().DiffersFromSaved(*Value(list)));
    }

    void whatIsTypedIntoTheListFiltersAndReturnGoesToTheField()
    {
        View()->setCurrentIndex(Model().IndexOf(frequencyPath));
        View()->setFocus();
        QTest::keyClick(View(), Qt::Key_T);
        QTest::keyClicks(QApplication::focusWidget(), "uner_hf");
        QCOMPARE(m_dock->Filter()->text(), "tuner_hf");
        Settle();
        QCOMPARE(Model().PathAt(View()->currentIndex()), frequencyPath);
        Window().Nodes().SelectNode("/Jobs/Demo/TDS_HFWB/HEADER_VOICE/");
        const QSignalSpy wanted(m_dock, &ValuesDock::Activated);
        QTest::keyClick(View(), Qt::Key_Return);
        QCOMPARE(wanted.size(), 1);
        QCOMPARE(wanted.front().front().toString(), frequencyPath);
        QCOMPARE(m_desk->CurrentPath(), tunerPath);
    }

    void anotherJobMayComeWhileTheListIsShownFilteredAndEdited_data()
    {
        const Table<bool, bool> row("asTree", "scanning");
        row("tree, settled", true, false);
        row("tree, under way", true, true);
        row("flat, settled", false, false);
        row("flat, under way", false, true);
    }
    void anotherJobMayComeWhileTheListIsShownFilteredAndEdited()
    {
        QFETCH(bool, asTree);
        QFETCH(bool, scanning);
        // Whoever hears of the old values' end may look at the list.
        Switch("asTree", asTree);
        QTest::keyClicks(m_dock->Filter(), "TUNER");
        Settle();
        QVERIFY(Edit(frequencyPath));
        int looked = 0;
        Hearer looker{[&]
                      {
                          looked += int(Listed().size());
                          m_dock->grab();
                      }};
        Value(frequencyPath)->Attach(&looker);
        if (scanning)
            m_dock->findChild<QCheckBox*>("onlyFromDefault")->setChecked(true);
        WriteAll(File("b.job.xml"), "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<Job version=\"1\">"
                                    "<Node name=\"/T\" type=\"IPC_TUNER_HF\" groups=\"G_TUNER_HF\"/></Job>");
        QVERIFY(Window().OpenFile(File("b.job.xml")));
        Switch("onlyFromDefault", false);
        const QStringList listed = Listed();
        QVERIFY(!listed.isEmpty());
        for (const QString& path : listed)
            QVERIFY(path.startsWith("/T/") && Value(path));
        QVERIFY(looked > 0);
    }

    void valuesThatGoLeaveEmptyRowsUntilTheListIsMadeAnew()
    {
        Switch("asTree", false);
        const QModelIndex index = ContentOf(frequencyPath);
        Tree::Instance()->RemoveBranch(tunerPath);
        QCOMPARE(index.data(), QVariant());
        QVERIFY(!Model().setData(index, "1"));
        m_dock->grab();
        emit Window().Document().NodesChanged();
        Settle();
        QCOMPARE(size_t(Listed().size()), Tree::Instance()->ValueCount());
    }

    void theContextMenuTakesAValueBack()
    {
        const QString saved = Stored(frequencyPath);
        Set(frequencyPath, "7123456");
        View()->setCurrentIndex(Model().IndexOf(frequencyPath));
        View()->setFocus();
        QTest::keyClick(View(), Qt::Key_F10, Qt::ShiftModifier);
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        QVERIFY(menu);
        for (QAction* action : menu->actions())
            if (action->text().contains("Saved Value"))
                action->trigger();
        menu->close();
        QTRY_COMPARE(Stored(frequencyPath), saved);
    }
};

QTEST_MAIN(TestValuesDock)
#include "test_valuesdock.moc"
