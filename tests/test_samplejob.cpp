#include "editorfixture.h"
#include "ipcparam/ipcparam.h"
#include "ipcparam/parameterdlg.h"
#include "valuewidgets/valuelink.h"
#include "valuewidgets/vcfrequency.h"
#include "widgets/vccheckablegroupbox.h"

#include <map>

using namespace EditorTest;

/// Every dialog of the sample job in both forms, and every panel that is opened directly.
class TestSampleJob : public DeskTest
{
    Q_OBJECT

    /// The dialog of the row's node, at the least size that it lets itself be given.
    std::unique_ptr<QTabWidget> Open()
    {
        QFETCH(QString, path);
        QFETCH(int, form);
        for (const JobNode& node : Window().Document().GetNodes())
            if (node.path == path)
            {
                auto dialog = form < 2 ? MakeDialog(node, form == 0 ? Form::Job : Form::StandAlone, nullptr)
                                       : MakePanels(node, FindDirectPanels(node), nullptr);
                dialog->resize(dialog->minimumSizeHint().expandedTo(dialog->minimumSize()));
                dialog->show();
                return dialog;
            }
        return nullptr;
    }
    void CheckOverlaps(const QWidget& dialog)
    {
        for (const QGridLayout* grid : dialog.findChildren<QGridLayout*>())
        {
            // Of the cells of widgets; lines cross, and so does what has no look of its own.
            QHash<QPair<int, int>, QString> taken;
            for (int i = 0; i < grid->count(); ++i)
            {
                const QWidget* widget = grid->itemAt(i)->widget();
                const auto* label = qobject_cast<const QLabel*>(widget);
                if (!widget || (label && (label->frameShape() != QFrame::NoFrame || label->text().isEmpty())))
                    continue;
                int row = 0, column = 0, rows = 0, columns = 0;
                grid->getItemPosition(i, &row, &column, &rows, &columns);
                for (int cell = 0; cell < rows * columns; ++cell)
                {
                    QString& holder = taken[QPair(row + cell / columns, column + cell % columns)];
                    const QString name = label ? label->text() : widget->objectName();
                    QVERIFY2(holder.isEmpty(), qPrintable(Describe(*widget) + ": " + holder + " and " + name));
                    holder = name;
                }
            }
        }
    }

private slots:
    void initTestCase() { Begin(); }
    void cleanupTestCase() { End(); }

    void everyFieldIsBoundAndInSightAndNoneOverlaps_data()
    {
        const Table<QString, int> row("path", "form"); // 0 job, 1 stand-alone, 2 direct panels
        for (const JobNode& node : Window().Document().GetNodes())
        {
            if (FindChain(node))
                for (const int form : {0, 1})
                    row(node.path + (form ? " stand-alone" : " job"), node.path, form);
            if (!FindDirectPanels(node).empty())
                row(node.path + " direct", node.path, 2);
        }
    }
    void everyFieldIsBoundAndInSightAndNoneOverlaps()
    {
        const auto dialog = Open();
        QFETCH(int, form);
        QVERIFY(dialog && dialog->count() > 0);
        CheckOverlaps(*dialog);
        for (int index = 0; index < dialog->count(); ++index)
        {
            dialog->setCurrentIndex(index);
            QCoreApplication::processEvents();
            auto* panel = qobject_cast<ParameterDlg*>(dialog->widget(index));
            QVERIFY(panel);
            int links = 0;
            QStringList faults;
            for (const QWidget* widget : panel->findChildren<QWidget*>())
            {
                // The unit of a frequency has no value, and this group of the activities stands in no grid.
                const auto* box = qobject_cast<const QGroupBox*>(widget->parentWidget());
                if (qobject_cast<const VCFrequency*>(widget->parentWidget()) ||
                    (box && box->title() == "Detection Conventional"))
                    continue;
                const auto* link = dynamic_cast<const ValueLink*>(widget);
                links += link ? 1 : 0;
                // This panel works on an empty task path in the stand-alone form.
                if (link && !link->GetBoundValue() && !(form == 1 && panel->objectName() == "FFTDataDlg"))
                    faults << "unbound: " + Describe(*widget);
                const bool isShown =
                    link || qobject_cast<const QLabel*>(widget) || qobject_cast<const QAbstractButton*>(widget);
                const QSize need = widget->minimumSizeHint();
                if (widget->isVisible() && isShown &&
                    (widget->width() < need.width() || widget->height() < need.height()))
                    faults << "clipped: " + Describe(*widget);
            }
            QVERIFY(links > 0);
            QVERIFY2(faults.isEmpty(), qPrintable(dialog->tabText(index) + ": " + faults.join("; ")));
        }
    }

    void aReadOnlyDialogAppliesNoRuleAndStaysDisabledWhateverItsValuesSay()
    {
        std::map<ValueBase*, EnableState> states;
        Window().Document().File().VisitNodes(
            [&](const QString& path, const NodeSpec&, const QString&)
            {
                for (const auto& value : Tree::Instance()->FindNode(path)->GetValues())
                    states[value.get()] = value->GetState();
            });
        // What panels disable in any form, and the switches of the exciter, which its mode sets.
        static const QRegularExpression always(
            "DDC_FREQUENCYOFFSET|_SYMBOLVALANCY|_COUNT$|DetectorCheck|SimulationCheck");
        int locked = 0;
        for (const JobNode& node : Window().Document().GetNodes())
        {
            const Chain* chain = FindChain(node);
            if (!chain)
                continue;
            for (const auto& [value, state] : states)
                value->SetState(stEnabled);
            IPCParam host(node.path, nullptr, true, false, false, node.path, "TKE");
            chain->open(host);
            for (const auto& [value, state] : states)
            {
                QVERIFY2(value->GetState() == stEnabled || value->GetName().contains(always),
                         qPrintable(node.type + ": " + value->GetPathName()));
                value->SetState(stDisabled);
                value->SetState(stEnabled);
            }
            for (const QWidget* widget : host.findChildren<QWidget*>())
                if (dynamic_cast<const ValueLink*>(widget) || qobject_cast<const VCCheckableGroupBox*>(widget))
                {
                    QVERIFY2(!widget->isEnabled(), qPrintable(Describe(*widget)));
                    ++locked;
                }
        }
        QVERIFY(locked > 500);
        for (const auto& [value, state] : states)
            value->SetState(state);
    }
};

QTEST_MAIN(TestSampleJob)
#include "test_samplejob.moc"
