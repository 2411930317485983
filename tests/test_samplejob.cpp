#include "jobedit/chains.h"
#include "ipcparam/parameterdlg.h"
#include "jobedit/jobdocument.h"
#include "keys/keys.h"
#include "value/tree.h"
#include "valuewidgets/valuelink.h"
#include "valuewidgets/vcfrequency.h"

#include <QTest>
#include <QtWidgets>

using namespace JOBEDIT;
using namespace TKE;

namespace
{

bool IsEditor(const QWidget* widget)
{
    return widget->focusPolicy() & Qt::TabFocus && !qobject_cast<const QTabBar*>(widget) &&
           !qobject_cast<const QScrollBar*>(widget);
}

/// Whether assistive technology has a name for the editor: its own, its text, or that of what it is a part of.
bool HasName(const QWidget* editor, const QSet<const QWidget*>& buddies)
{
    for (const QWidget* widget = editor; widget && !qobject_cast<const ParameterDlg*>(widget); widget = widget->parentWidget())
    {
        const auto* button = qobject_cast<const QAbstractButton*>(widget);
        const auto* box = qobject_cast<const QGroupBox*>(widget);
        if (buddies.contains(widget) || !widget->accessibleName().isEmpty() || (button && !button->text().isEmpty()))
            return true;
        if (box)
            return widget == editor && !box->title().isEmpty();
    }
    return false;
}

QString Where(const QWidget* widget)
{
    QStringList names;
    for (; widget; widget = widget->parentWidget())
        if (!widget->objectName().isEmpty() && !widget->objectName().startsWith("qt_"))
            names.prepend(widget->objectName());
    return names.join('/');
}

} // namespace

/// Every dialog of the sample job in both forms, and every panel that is opened directly.
class TestSampleJob : public QObject
{
    Q_OBJECT

    std::unique_ptr<JobDocument> m_document;
    QByteArray m_loaded;

    QByteArray Bytes()
    {
        FileError error;
        const QString copy = m_directory.filePath("copy.xml");
        return m_document->SaveAs(copy, error) ? ReadAll(copy) : error.ToText().toUtf8();
    }
    static QByteArray ReadAll(const QString& name)
    {
        QFile file(name);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    /// The dialog of the row's node, at the least size that it lets itself be given.
    std::unique_ptr<QTabWidget> Open() const
    {
        QFETCH(QString, path);
        QFETCH(int, form);
        for (const JobNode& node : m_document->GetNodes())
            if (node.path == path)
                return Open(node, form);
        return nullptr;
    }
    static std::unique_ptr<QTabWidget> Open(const JobNode& node, int form)
    {
        auto dialog = form < 2 ? MakeDialog(node, form == 0 ? Form::Job : Form::StandAlone, nullptr)
                               : MakePanels(node, FindDirectPanels(node), nullptr);
        if (!dialog)
            return nullptr;
        dialog->resize(dialog->minimumSizeHint().expandedTo(dialog->minimumSize()));
        dialog->show();
        return dialog;
    }
    /// Rows that work on an empty job or task path in this form.
    static bool IsUnbound(const ParameterDlg& panel)
    {
        QFETCH(int, form);
        return form == 1 && panel.objectName() == "FFTDataDlg";
    }

    void AddRows()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<int>("form"); // 0 job, 1 stand-alone, 2 direct panels
        for (const JobNode& node : m_document->GetNodes())
        {
            if (FindChain(node))
                for (const int form : {0, 1})
                    QTest::addRow("%s %s", qPrintable(node.path), form ? "stand-alone" : "job") << node.path << form;
            if (!FindDirectPanels(node).empty())
                QTest::addRow("%s direct", qPrintable(node.path)) << node.path << 2;
        }
    }
    QTemporaryDir m_directory;

private slots:
    void initTestCase()
    {
        QStandardPaths::setTestModeEnabled(true);
        m_document = std::make_unique<JobDocument>(JobModel::Load());
        FileError error;
        QVERIFY2(m_document->NewFromSample(error), qPrintable(error.ToText()));
        m_loaded = Bytes();
        QVERIFY(m_loaded.contains("<Job"));
    }
    void cleanupTestCase()
    {
        m_document.reset();
        Tree::Instance()->Clear();
    }

    void everyFieldIsBoundNamedAndInSight_data() { AddRows(); }
    void everyFieldIsBoundNamedAndInSight()
    {
        const auto dialog = Open();
        QVERIFY(dialog && dialog->count() > 0);
        for (int index = 0; index < dialog->count(); ++index)
        {
            dialog->setCurrentIndex(index);
            QCoreApplication::processEvents();
            auto* panel = qobject_cast<ParameterDlg*>(dialog->widget(index));
            QVERIFY(panel);
            QSet<const QWidget*> buddies;
            for (const QLabel* label : panel->findChildren<QLabel*>())
                buddies.insert(label->buddy());

            int links = 0;
            QStringList faults;
            for (const QWidget* widget : panel->findChildren<QWidget*>())
            {
                // The unit of a frequency has no value, and this group of the activities stands in no grid.
                const auto* box = qobject_cast<const QGroupBox*>(widget->parentWidget());
                if (qobject_cast<const VCFrequency*>(widget->parentWidget()) || (box && box->title() == "Detection Conventional"))
                    continue;
                const auto* link = dynamic_cast<const ValueLink*>(widget);
                links += link ? 1 : 0;
                if (link && !link->GetBoundValue() && !IsUnbound(*panel))
                    faults << "unbound: " + Where(widget);
                if (IsEditor(widget) && !HasName(widget, buddies))
                    faults << "without a name: " + Where(widget);
                const bool isShown = link || qobject_cast<const QLabel*>(widget) || qobject_cast<const QAbstractButton*>(widget);
                const QSize need = widget->minimumSizeHint();
                if (widget->isVisible() && isShown && (widget->width() < need.width() || widget->height() < need.height()))
                    faults << "clipped: " + Where(widget);
            }
            QVERIFY(links > 0);
            QVERIFY2(faults.isEmpty(), qPrintable(dialog->tabText(index) + ": " + faults.join("; ")));
        }
    }

    void noTwoWidgetsOfAGridOverlap_data() { AddRows(); }
    void noTwoWidgetsOfAGridOverlap()
    {
        const auto dialog = Open();
        for (const QGridLayout* grid : dialog->findChildren<QGridLayout*>())
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
                    QVERIFY2(holder.isEmpty(), qPrintable(Where(widget) + ": " + holder + " and " + name));
                    holder = name;
                }
            }
        }
    }

    void tabbingThroughAllOfItLeavesTheFileAsItIs()
    {
        int fields = 0;
        for (const JobNode& node : m_document->GetNodes())
        {
            for (const int form : {0, 1, 2})
            {
                const auto dialog = Open(node, form);
                if (!dialog || dialog->count() == 0)
                    continue;
                dialog->activateWindow();
                QVERIFY(QTest::qWaitForWindowActive(dialog.get()));
                for (int index = 0; index < dialog->count(); ++index)
                {
                    dialog->setCurrentIndex(index);
                    dialog->tabBar()->setFocus();
                    QSet<QWidget*> seen;
                    do
                    {
                        seen.insert(QApplication::focusWidget());
                        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
                    } while (!seen.contains(QApplication::focusWidget()));
                    fields += int(seen.size());
                }
            }
        }
        QVERIFY2(fields > 1000, qPrintable(QString::number(fields)));
        QVERIFY(!m_document->IsModified());
        QCOMPARE(Bytes(), m_loaded);
    }
};

QTEST_MAIN(TestSampleJob)
#include "test_samplejob.moc"
