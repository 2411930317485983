#include "common.h"
#include "editorfixture.h"
#include "jobedit/addnodedialog.h"
#include "jobedit/chains.h"
#include "jobedit/nodeactions.h"
#include "jobedit/otherjob.h"
#include "jobedit/presetdialog.h"
#include "jobedit/reuseactions.h"

using namespace EditorTest;

namespace
{

const QString vuhfPath = QStringLiteral("/Jobs/Demo/TDS_VUHF1/CS_TUNER/TUNER/");
const QString key = Keys::TUNER_HF_NB_FREQUENCY;

/// Types this name instead of what the dialog offers.
void TypeName(QDialog& dialog, const char* text)
{
    auto* name = dialog.findChild<QLineEdit*>("name");
    name->selectAll();
    QTest::keyClick(name, Qt::Key_Delete);
    QTest::keyClicks(name, text);
}

} // namespace

class TestReuse : public DeskTest
{
    Q_OBJECT

    QTreeView* NodeView() { return Window().Nodes().View(); }
    bool Has(const QString& path) { return Window().Document().File().FindNodeSpec(path); }
    /// Ctrl and this key in the list of the nodes.
    void Press(Qt::Key key) { QTest::keyClick(NodeView(), key, Qt::ControlModifier); }
    /// Selects these nodes, the first as the current one.
    void Select(const QStringList& paths)
    {
        Window().activateWindow(); // a dialog that closes gives it back only on some platforms
        QTRY_COMPARE(QApplication::activeWindow(), &Window());
        QItemSelection selection;
        for (const QString& path : paths)
        {
            QVERIFY(Window().Nodes().SelectNode(path));
            selection.select(NodeView()->currentIndex(), NodeView()->currentIndex());
        }
        Window().Nodes().SelectNode(paths.first());
        NodeView()->selectionModel()->select(selection,
                                             QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
        NodeView()->setFocus();
        QCOMPARE(Window().Nodes().GetSelectedNodes().size(), size_t(paths.size()));
    }

private Q_SLOTS:
    void init()
    {
        Begin();
        QDir(QFileInfo(Presets().FileOf("x")).path()).removeRecursively();
        QGuiApplication::clipboard()->clear();
    }
    void cleanup() { End(); }

    void aCopiedChainIsPastedIntoAllSelectedOnesWhereItFits()
    {
        const QString classifier = "/Jobs/Demo/TDS_HF1/CS_CLASS/CLASSIFIER/";
        Set(tunerPath + key, "7040000");
        Select({tunerPath});
        Press(Qt::Key_C);
        const QString text = QGuiApplication::clipboard()->text();
        QVERIFY(text.contains(key + "\t7.04 MHz\n"));

        Select({voicePath, classifier, vuhfPath});
        Press(Qt::Key_V);
        QCOMPARE(Stored(voicePath + key), "7040000");
        QCOMPARE(Stored(classifier + key), "7040000");
        QVERIFY(Window().Messages().GetText().contains(vuhfPath + key + " was not written"));
        QVERIFY(!Window().Messages().GetText().contains(voicePath));
        QVERIFY(Window().isWindowModified());
        History().Undo();
        QCOMPARE(Stored(voicePath + key), "10000000");
        QCOMPARE(Stored(classifier + key), "10000000");
        QCOMPARE(Stored(tunerPath + key), "7040000");
    }

    void everyValueOfATabIsCopied()
    {
        // What the widgets of a tab write to is what its copy holds: values of the channel set above the chain too.
        QSet<QString> kinds;
        for (const JobNode& node : std::vector(Window().Nodes().GetNodes()))
        {
            Window().Nodes().SelectNode(node.path);
            QTabWidget* dialog = Dialog();
            for (int tab = 0; dialog && tab < dialog->count(); ++tab)
            {
                dialog->setCurrentIndex(tab);
                const auto set = ParameterSet::OfTab(node, *dialog->currentWidget(), dialog->tabText(tab));
                for (const ValueChange& change : set.ChangesFor(node.path))
                {
                    QVERIFY2(Value(change.path), qPrintable(change.path));
                    QCOMPARE(change.stored, Stored(change.path));
                }
                for (const auto& parameter : set.parameters)
                    kinds << (parameter.path.startsWith("../") ? "above" : "own");
            }
        }
        QCOMPARE(kinds.size(), 2);
        QVERIFY(!Window().isWindowModified());
    }

    void aTabIsCopiedFromTheDialogAndPastedElsewhere()
    {
        Select({tunerPath});
        m_desk->TypeFrequency("7040 k\t"); // brings its tab to the front
        QTest::keyClick(&Window(), Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
        const QString text = QGuiApplication::clipboard()->text();
        QVERIFY(text.contains(key));
        QVERIFY(text.count('\n') < int(Tree::Instance()->FindNode(tunerPath)->GetValues().size()));
        Select({voicePath});
        QTest::keyClick(&Window(), Qt::Key_V, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(Stored(voicePath + key), "7040000");
    }

    void theFormsOfADecoderTakeEachOthersParameters()
    {
        const QString plain = "/Jobs/Demo/TDS_HF1/CS_DATA/WAVECOM/";
        const QString data = "/Jobs/Demo/TDS_VUHF1/CS_DATA/WAVECOM/";
        const QString type = "WAVECOM_DEMODULATOR_HF/WAVECOM_DEMODULATOR_HF_FSK_MODTYPE";
        auto* value = dynamic_cast<ValueSelection*>(Value(plain + type));
        QVERIFY(value && value->SelectKey(value->GetItems().back().GetKey()));
        const QString last = value->GetStoredText();
        for (const auto& [from, to] : {std::pair(plain, data), {data, plain}})
        {
            Select({from});
            Press(Qt::Key_C);
            Select({to});
            value->SelectKey(value->GetItems().front().GetKey());
            Press(Qt::Key_V);
            QCOMPARE(Stored(data + "Data/" + type), last);
        }
        QCOMPARE(value->GetStoredText(), last);
        QVERIFY(!Window().Messages().GetText().contains("was not written"));
    }

    void whatTheClipboardHoldsBesidesIsNotPasted_data()
    {
        const Table<QByteArray, QByteArray> row("type", "content");
        row("text", "text/plain", "a\tb\n");
        const QByteArray own = "application/x-jobedit-parameters";
        row("damaged", own, "{\"format\":");
        row("something else", own, "{}");
        row("newer", own, QByteArray(R"({"format":"jobedit-parameters","version":2,"values":[]})"));
        row("without content", own,
            QByteArray(R"({"format":"jobedit-parameters","version":1,"values":[{"path":"A"}]})"));
    }
    void whatTheClipboardHoldsBesidesIsNotPasted()
    {
        QFETCH(QByteArray, type);
        QFETCH(QByteArray, content);
        auto* data = new QMimeData;
        data->setData(type, content);
        QGuiApplication::clipboard()->setMimeData(data);
        Select({voicePath});
        Press(Qt::Key_V);
        QVERIFY(!Window().statusBar()->currentMessage().isEmpty());
        QVERIFY(!Window().isWindowModified());
    }

    void aValueThatAnotherOneSetsHoldsWhatWasWritten()
    {
        // The panel of the exciter sets the switches when the mode changes.
        Hearer panel{[] { Value(voicePath + "OFFSET")->SetStoredText("0"); }};
        auto* offset = Tree::Instance()->CreateValue<IntValue>(QString(voicePath + "OFFSET"));
        auto* mode = Tree::Instance()->CreateValue<IntValue>(QString(voicePath + "MODE"));
        mode->Attach(&panel);
        WriteValues(Window().Document(), {}, {{offset->GetPathName(), "5"}, {mode->GetPathName(), "1"}});
        QCOMPARE(offset->GetValue(), 5);
        QCOMPARE(mode->GetValue(), 1);
    }

    void presetsAreKeptUnderAnyName_data()
    {
        EachText("name", {"Tuner", "../a/b\\c", "50 % : *?", ".hidden", "Empfänger", "a&b"});
    }
    void presetsAreKeptUnderAnyName()
    {
        QFETCH(QString, name);
        const auto entries = [&]
        { return QDir(QFileInfo(File()).path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot); };
        const QStringList before = entries();
        Presets presets(File("presets"));
        QVERIFY(presets.NameFault(name).isEmpty());
        QString reason;
        const ParameterSet set{"here", "T", {{"A", "1\n2", "label", "text"}}};
        QVERIFY2(presets.Save(name, set, reason), qPrintable(reason));
        QCOMPARE(presets.GetNames(), QStringList{name});
        const auto loaded = presets.Load(name, reason);
        QVERIFY2(loaded, qPrintable(reason));
        QCOMPARE(loaded->ToJson(), set.ToJson());
        QVERIFY(presets.Rename(name, "other", reason));
        QCOMPARE(presets.GetNames(), QStringList{"other"});
        QVERIFY(presets.Save(name, set, reason));
        QVERIFY(!presets.Rename(name, "other", reason));
        QVERIFY(presets.Remove(name, reason));
        QVERIFY(!presets.Load(name, reason));
        QCOMPARE(entries().size(), before.size() + 1);
    }

    void aPresetIsSavedReplacedOnlyWhenWantedAndApplied()
    {
        const auto save = [&]
        {
            const Next name(
                [](QDialog& dialog)
                {
                    TypeName(dialog, "mine");
                    QTest::keyClick(&dialog, Qt::Key_Return);
                });
            m_desk->Action("Save Chain as Preset...")->trigger();
        };
        Select({tunerPath});
        Set(tunerPath + key, "7040000");
        save();
        QCOMPARE(Presets().GetNames(), QStringList{"mine"});

        WriteAll(Presets().FileOf("mine"), "{damaged");
        {
            const Answer question({"No"});
            save();
            QVERIFY(question.GetText().contains("damaged"));
        }
        QString reason;
        QVERIFY(!Presets().Load("mine", reason));
        {
            const Answer answer({"OK"});
            Window().findChild<ReuseActions*>()->ApplyPreset("mine");
            QVERIFY(answer.WasAsked());
        }
        QVERIFY(Window().Messages().GetText().contains(Presets().FileOf("mine")));
        QVERIFY(Presets().Remove("mine", reason));
        save();

        Select({voicePath});
        auto* dialog = new PresetDialog(&Window());
        connect(dialog, &PresetDialog::Chosen, Window().findChild<ReuseActions*>(), &ReuseActions::ApplyPreset);
        dialog->show();
        QTRY_COMPARE(QApplication::activeWindow(), dialog);
        QVERIFY(dialog->findChild<QLabel*>("details")->text().contains(tunerPath));
        QTest::mouseClick(dialog->findChild<QPushButton*>("apply"), Qt::LeftButton);
        QCOMPARE(Stored(voicePath + key), "7040000");
    }

    void aChainOfEveryKindCanBeAddedAndSaved()
    {
        Window().Nodes().SelectNode("/Jobs/Demo"); // no dialog that follows
        JobDocument& document = Window().Document();
        QSet<const Chain*> chains;
        for (const NodeKind& kind : NodeKinds(document.GetModel()))
            for (const QString& near : {QString(), tunerPath, vuhfPath})
            {
                const auto places = PlacesFor(kind, document, near);
                QVERIFY2(!places.empty(), qPrintable(kind.spec.type));
                QString reason;
                const QString name = UniqueNodeName(places[0].ParentPath(), kind.spec.name);
                const QString path = AddNodeOfKind(document, kind, places[0], name, reason);
                QVERIFY2(!path.isEmpty(), qPrintable(kind.spec.type + reason));
                const JobNode node{path, name, kind.spec.type, kind.spec.band, kind.spec.dataForm};
                chains << FindChain(node);
                QCOMPARE(MakeDialog(node, Form::Job, nullptr) != nullptr, kind.isChain);
            }
        chains.remove(nullptr);
        QCOMPARE(size_t(chains.size()), Chains().size());
        QVERIFY(Window().SaveTo(File()));
        QVERIFY(JobFile::Check(File()).isEmpty());
    }

    void aChainIsAddedByKeyboard()
    {
        Select({tunerPath});
        Next next(
            [](QDialog& dialog)
            {
                auto* ok = dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok);
                QCOMPARE(dialog.findChild<QTreeWidget*>("kinds")->currentItem()->text(0), QString("IPC_TUNER_HF"));
                QTest::keyClicks(dialog.findChild<QLineEdit*>("kindFilter"), "ipc_voice_hf");
                QCOMPARE(dialog.findChild<QLabel*>("reason")->text(),
                         QString("Adds /Jobs/Demo/TDS_HF1/CS_VOICE2/VOICE"));
                for (const char* bad : {"", "a/b", ".."})
                {
                    TypeName(dialog, bad);
                    QVERIFY2(!ok->isEnabled(), bad);
                    dialog.accept(); // by whichever way
                    QVERIFY2(dialog.isVisible(), bad);
                }
                TypeName(dialog, "NIGHT");
                QTest::keyClick(&dialog, Qt::Key_Return);
            });
        QTest::keyClick(NodeView(), Qt::Key_Insert);
        QVERIFY(next.HasActed());
        const QString added = "/Jobs/Demo/TDS_HF1/CS_VOICE2/NIGHT/";
        QCOMPARE(m_desk->CurrentPath(), added);
        QVERIFY(Dialog());
        // The channel set has the antenna of its kind.
        const auto& antenna = Tree::Instance()->FindNode(u"/Jobs/Demo/TDS_HF1/CS_VOICE")->GetValues();
        QVERIFY(Value("/Jobs/Demo/TDS_HF1/CS_VOICE2/" + antenna.front()->GetName()));
        QVERIFY(Window().isWindowModified());
        History().Undo();
        QVERIFY(!Has("/Jobs/Demo/TDS_HF1/CS_VOICE2/"));
        QVERIFY(!Window().isWindowModified());
    }

    void nodesAreRenamedAndDuplicatedWithAllBelowThem_data() { WithAndWithout("duplicate"); }
    void nodesAreRenamedAndDuplicatedWithAllBelowThem()
    {
        QFETCH(bool, duplicate);
        const QString before = "/Jobs/Demo/TDS_HF1/CS_TUNER/";
        const QString after = "/Jobs/Demo/TDS_HF1/CS_NIGHT/";
        Set(before + "TUNER/" + key, "7040000");
        Select({before});
        Next next(
            [](QDialog& dialog)
            {
                const auto* reason = dialog.findChild<QLabel*>("reason");
                TypeName(dialog, "CS_VOICE"); // taken
                QVERIFY(!reason->text().isEmpty());
                QTest::keyClick(&dialog, Qt::Key_Return);
                QVERIFY(dialog.isVisible());
                TypeName(dialog, "CS_NIGHT");
                QVERIFY(reason->text().isEmpty());
                QTest::keyClick(&dialog, Qt::Key_Return);
            });
        if (duplicate)
            Window().findChild<NodeActions*>()->Duplicate();
        else
            QTest::keyClick(NodeView(), Qt::Key_F2);
        QVERIFY(next.HasActed());
        QCOMPARE(m_desk->CurrentPath(), after);
        QCOMPARE(Stored(after + "TUNER/" + key), "7040000");
        QCOMPARE(Has(before), duplicate);
        QCOMPARE(Tree::Instance()->FindNode(after)->GetNodes().size(), size_t(1));
    }

    void nodesAreRemovedSeveralOnlyAfterAQuestion()
    {
        Select({tunerPath});
        QTest::keyClick(NodeView(), Qt::Key_Delete);
        QVERIFY(!Has(tunerPath));
        QVERIFY(!Window().Nodes().SelectNode(tunerPath));

        const QStringList both{"/Jobs/Demo/TDS_HF1/CS_VOICE/", voicePath, vuhfPath};
        for (const char* button : {"No", "Yes"})
        {
            Select(both);
            const Answer answer({button});
            QTest::keyClick(NodeView(), Qt::Key_Delete);
            QVERIFY(answer.GetText().contains('3'));
            for (const QString& path : both)
                QCOMPARE(Has(path), *button == 'N');
        }
        QVERIFY(!Window().Nodes().SelectNode(vuhfPath));
        History().Undo();
        for (const QString& path : both)
            QVERIFY2(Has(path) && Window().Nodes().SelectNode(path), qPrintable(path));
        Select({"/Jobs/Demo/"});
        QTest::keyClick(NodeView(), Qt::Key_Delete);
        QVERIFY(Has("/Jobs/Demo/"));
    }
};

QTEST_MAIN(TestReuse)
#include "test_reuse.moc"
