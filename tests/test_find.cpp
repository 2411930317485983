#include "editorfixture.h"
#include "ipcparam/parameterdlg.h"
#include "jobedit/fieldindex.h"
#include "jobedit/fieldnavigator.h"
#include "jobedit/fieldtexts.h"
#include "valuewidgets/valuelink.h"

using namespace EditorTest;

namespace
{

/// The value that the widget, or what it is a part of, edits; empty when it edits none.
QString PathOf(const QWidget* widget)
{
    for (; widget; widget = widget->parentWidget())
        if (const auto* link = dynamic_cast<const ValueLink*>(widget); link && link->GetBoundValue())
            return link->GetBoundValue()->GetPathName();
    return {};
}

/// All values that any dialog of the job shows, in a widget that can be seen and used.
QSet<QString> ShownPaths(const std::vector<JOBEDIT::JobNode>& nodes)
{
    QSet<QString> paths;
    for (const JOBEDIT::JobNode& node : nodes)
        for (const Form form : {Form::Job, Form::StandAlone})
            if (const auto dialog = HasDialog(node) ? MakeDialog(node, form, nullptr) : nullptr)
                for (int tab = 0; tab < dialog->count(); ++tab)
                    for (QWidget* widget : dialog->widget(tab)->findChildren<QWidget*>())
                        if (widget->isVisibleTo(dialog->widget(tab)) && widget->isEnabledTo(dialog.get()) &&
                            dialog->isTabEnabled(tab) && widget->focusPolicy() != Qt::NoFocus)
                            paths << PathOf(widget);
    paths.remove({});
    return paths;
}

} // namespace

class TestFind : public DeskTest
{
    Q_OBJECT

    QLineEdit* Text() { return Window().findChild<QLineEdit*>("findText"); }
    QTreeView* Hits() { return Window().findChild<QTreeView*>("findHits"); }
    QString Cell(int row, int column) { return Hits()->model()->index(row, column).data().toString(); }
    void Find(const QString& text)
    {
        m_desk->Press(Qt::Key_F);
        QVERIFY(Text()->hasFocus());
        QTest::keyClicks(Text(), text);
    }

private Q_SLOTS:
    void init() { Begin(); }
    void cleanup() { End(); }

    void wordsFindTheBestFieldFirst_data()
    {
        // path: end of the first path; empty: nothing is found
        const Table<QString, QString> row("words", "path");
        const QString tuner = "CS_TUNER/TUNER/";
        row("label", "tds_hf1/cs_tuner if bandwidth", tuner + Keys::TUNER_HF_NB_IFBANDWIDTH);
        row("words in any order and case", "BANDWIDTH cs_tuner IF tds_hf1", tuner + Keys::TUNER_HF_NB_IFBANDWIDTH);
        row("German label", "cs_tuner zf-bandbreite", tuner + Keys::TUNER_HF_NB_IFBANDWIDTH);
        row("umlaut", QString::fromUtf8("cs_tuner VERST\u00c4RKUNG"), tuner + Keys::TUNER_HF_NB_GAIN_CTRL_METHOD);
        row("key", "tuner_hf_nb_bfo tds_hf1/cs_tuner", tuner + Keys::TUNER_HF_NB_BFOFREQUENCY);
        row("whole path", tunerPath + Keys::TUNER_HF_NB_NF2_BANDWIDTH, tuner + Keys::TUNER_HF_NB_NF2_BANDWIDTH);
        row("description", "offset for cw /tds_hf1/cs_tuner", tuner + Keys::TUNER_HF_NB_BFOFREQUENCY);
        row("unit", QString::fromUtf8("dB\u00b5V cs_tuner/tuner tds_hf1"), tuner + Keys::TUNER_HF_NB_SQUELCH_THRESHOLD);
        row("a word that is nowhere", "gain xyzzy", "");
        row("no word", " / ", "");
    }
    void wordsFindTheBestFieldFirst()
    {
        QFETCH(QString, words);
        QFETCH(QString, path);
        const auto result = FieldIndex(*Tree::Instance()).Find(words, 200);
        QCOMPARE(result.paths.isEmpty(), path.isEmpty());
        QVERIFY2(path.isEmpty() || result.paths.constFirst().endsWith(path), qPrintable(result.paths.value(0)));
    }

    void aLabelThatBeginsGoesBeforeAWordBeforeAKeyBeforeADescription()
    {
        std::list<ValueDescriptor> descriptors;
        Tree tree;
        const auto make = [&](const char* key, const char* label, const char* description = "")
        {
            ValueDescriptor& descriptor = descriptors.emplace_back();
            descriptor.label = label;
            descriptor.description = description;
            tree.CreateValue(QStringLiteral("/A/") + key, descriptor);
        };
        make("D1", "", "about volume");
        make("VOLUMEK", "");
        make("W1", "Audio volume");
        make("B1", "Volume of audio");
        make("B2", "Volume");
        make("OTHER", "");
        FieldIndex index(tree);
        QCOMPARE(index.Find("volume", 200).paths, (QStringList{"/A/B1", "/A/B2", "/A/W1", "/A/VOLUMEK", "/A/D1"}));
        QCOMPARE(index.Find("volume", 2).paths, (QStringList{"/A/B1", "/A/B2"}));
        QCOMPARE(index.Find("volume", 2).count, 5);
        make("B3", "Volume");
        QCOMPARE(index.Find("volume", 200).count, 6);
    }

    void allPanelContextsOfTheCatalogueAreLookedInto()
    {
        const QString text = QString::fromUtf8(ReadAll(QFINDTESTDATA("../translations/ipcparam_de.ts")));
        static const QRegularExpression name("<name>(TKE::\\w*(?:Dlg|Panel\\w*))</name>");
        int count = 0;
        for (auto match = name.globalMatch(text); match.hasNext(); ++count)
        {
            const QByteArray context = match.next().captured(1).toUtf8();
            const bool isKnown =
                std::ranges::any_of(FieldTexts::Contexts(), [&](const char* known) { return context == known; });
            QVERIFY2(isKnown || context == "TKE::ParameterDlg", context.constData());
        }
        QVERIFY(count > 30);
    }

    void aFieldIsFoundAndGoneToByKeyboard()
    {
        Window().Nodes().View()->setFocus();
        Find("tds_hf1 cs_tuner mgcvalue");
        const QString path = tunerPath + Keys::TUNER_HF_NB_MGCVALUE;
        QCOMPARE(Cell(0, 0), QStringLiteral("Value"));
        QCOMPARE(Cell(0, 1), QStringLiteral("60 dB"));
        QCOMPARE(Cell(0, 2) + '/' + Cell(0, 3), path);

        Text()->selectAll();
        QTest::keyClicks(Text(), "tds_hf1 cs_tuner if");
        const QString second = Cell(1, 2) + '/' + Cell(1, 3);
        QTest::keyClick(Text(), Qt::Key_Down);
        QTest::keyClick(Text(), Qt::Key_Return);
        QCOMPARE(PathOf(QApplication::focusWidget()), second);
        QVERIFY(!Text()->isVisible());
        QCOMPARE(m_desk->CurrentPath(), tunerPath);

        QWidget* field = QApplication::focusWidget();
        Find("gain");
        QTest::keyClick(Text(), Qt::Key_Escape);
        QVERIFY(!Text()->isVisible());
        QCOMPARE(QApplication::focusWidget(), field);
        QVERIFY(!Window().isWindowModified());
    }

    void moreThanAPageOfHitsIsShownOnDemand()
    {
        Find("frequency");
        const auto rows = [&] { return Hits()->model()->rowCount(); };
        QCOMPARE(rows(), 201);
        QVERIFY(Cell(200, 0).endsWith("more"));
        Hits()->setCurrentIndex(Hits()->model()->index(200, 0));
        QTest::keyClick(Text(), Qt::Key_Return);
        QVERIFY(rows() > 201);
        QVERIFY(Text()->isVisible() && !Cell(200, 2).isEmpty());
        Text()->selectAll();
        QTest::keyClicks(Text(), "xyzzy");
        QCOMPARE(rows(), 0);
        QTest::keyClick(Text(), Qt::Key_Return);
        QVERIFY(Text()->hasFocus());
        QVERIFY(Window().NewFromSample());
        QVERIFY(!Text()->isVisible());
    }

    void everyFieldThatADialogShowsIsReached()
    {
        const QSet<QString> shown = ShownPaths(Window().Nodes().GetNodes());
        int count = 0;
        for (const QString& path : shown)
        {
            // What stands in a group that is unchecked is shown and takes no keyboard.
            static const QRegularExpression grouped("/JOB_WORKFLOW|PERIOD_ST");
            if (qHash(path, 1) % 4 != 0 || path.contains(grouped))
                continue;
            const bool isReached = FieldNavigator(Window()).GoTo(path);
            QWidget* focus = QApplication::focusWidget();
            // Opening a panel may disable what does not apply in it.
            if (Value(path)->GetState() != stEnabled)
                continue;
            QVERIFY2(isReached && PathOf(focus) == path, qPrintable(path + " -> " + PathOf(focus)));
            QVERIFY2(focus->isVisible() && !focus->visibleRegion().isEmpty(), qPrintable(path));
            ++count;
        }
        QVERIFY(count > 100);
        QVERIFY(!Window().isWindowModified());
    }

    void valuesOfNodesWithoutADialogAreReachedInADialogOfAnotherNode_data()
    {
        EachText("node", {"/Jobs/Demo/TDS_EXC/CS_WDE/WDEEXCITER/Channel3/", "/Jobs/Demo/TDS_HF1/",
                          "/Jobs/Demo/TDS_EXC/", "/Jobs/Demo/TDSSpectralZoom/"});
    }
    void valuesOfNodesWithoutADialogAreReachedInADialogOfAnotherNode()
    {
        QFETCH(QString, node);
        int reached = 0;
        for (const auto& value : Tree::Instance()->FindNode(node)->GetValues())
            if (FieldNavigator(Window()).GoTo(value->GetPathName()) && value->GetState() == stEnabled)
            {
                QCOMPARE(PathOf(QApplication::focusWidget()), value->GetPathName());
                ++reached;
            }
        QVERIFY(reached > 0);
    }

    void whatNoDialogShowsOrDoesNotApplyIsTold()
    {
        const QString hiddenPath = "/Jobs/Demo/TDS_HF1/CS_CLASS/CLASSIFIER/STATE_AUTOMATICMODE";
        QVERIFY(!FieldNavigator(Window()).GoTo(hiddenPath));
        QVERIFY(!FieldNavigator(Window()).GoTo("/Nowhere/X"));
        Window().Nodes().SelectNode(tunerPath);
        Find(hiddenPath);
        QTest::keyClick(Text(), Qt::Key_Return);
        QCOMPARE(m_desk->CurrentPath(), ParameterDlg::GetParentPath(hiddenPath + '/'));
        QVERIFY(Window().statusBar()->currentMessage().contains(hiddenPath));
        QVERIFY(Window().Nodes().View()->hasFocus());
        // What does not apply is shown without the keyboard.
        Window().Dialog().SetForm(Form::StandAlone);
        const QString path = tunerPath + Keys::TUNER_HF_NB_NF1_BANDWIDTH;
        QVERIFY(FieldNavigator(Window()).GoTo(path));
        QCOMPARE(Window().Dialog().GetForm(), Form::StandAlone);
        const auto* field = Dialog()->findChild<QWidget*>(Keys::TUNER_HF_NB_NF1_BANDWIDTH);
        QVERIFY(field && field->isVisible() && !field->hasFocus());
        QVERIFY(Window().statusBar()->currentMessage().contains(path));
    }
};

QTEST_MAIN(TestFind)
#include "test_find.moc"
