#include "jobedit/dialogpane.h"
#include "jobedit/fieldindex.h"
#include "jobedit/fieldnavigator.h"
#include "jobedit/fieldtexts.h"
#include "jobedit/mainwindow.h"
#include "jobedit/nodepane.h"
#include "keys/keys.h"
#include "valuewidgets/valuelink.h"

#include <QTest>
#include <QtWidgets>

using namespace JOBEDIT;
using namespace TKE;

namespace
{

const QString tunerPath = QStringLiteral("/Jobs/Demo/TDS_HF1/CS_TUNER/TUNER/");

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

class TestFind : public QObject
{
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> m_directory;
    std::unique_ptr<MainWindow> m_window;

    QLineEdit* Text() { return m_window->findChild<QLineEdit*>("findText"); }
    QTreeView* Hits() { return m_window->findChild<QTreeView*>("findHits"); }
    QString Cell(int row, int column) { return Hits()->model()->index(row, column).data().toString(); }
    void Find(const QString& text)
    {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_F, Qt::ControlModifier);
        QVERIFY(Text()->hasFocus());
        QTest::keyClicks(Text(), text);
    }

private Q_SLOTS:
    void initTestCase()
    {
        QCoreApplication::setOrganizationName("ipcparam");
        QCoreApplication::setApplicationName("jobedit");
        QStandardPaths::setTestModeEnabled(true);
    }
    void init()
    {
        QLocale::setDefault(QLocale::C);
        m_directory = std::make_unique<QTemporaryDir>();
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_directory->filePath("settings"));
        m_window = std::make_unique<MainWindow>(JobModel::Load());
        m_window->show();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
        QVERIFY(m_window->NewFromSample());
    }
    void cleanup()
    {
        m_window.reset();
        Tree::Instance()->Clear();
    }

    void scratch()
    {
        const QSet<QString> shown = ShownPaths(m_window->Nodes().GetNodes());
        int all = 0, good = 0; QStringList bad, wrong; qint64 worst=0; QString worstPath;
        std::function<void(const Node&)> visit = [&](const Node& node)
        {
            for (const auto& value : node.GetValues())
            {
                ++all;
                QElapsedTimer t; t.start();
                const QString path = value->GetPathName();
                const bool gone = FieldNavigator(*m_window).GoTo(path);
                if (t.nsecsElapsed() > worst) { worst = t.nsecsElapsed(); worstPath = path; }
                if (gone) ++good;
                if (gone != shown.contains(path)) bad << path + (gone ? " gone" : " not");
                if (gone && PathOf(QApplication::focusWidget()) != path) wrong << path + QString(" -> ") + PathOf(QApplication::focusWidget())+ QString(QApplication::focusWidget()->metaObject()->className());
            }
            for (const auto& child : node.GetNodes()) visit(*child);
        };
        QElapsedTimer t; t.start();
        for (const Node* top : Tree::Instance()->GetTopNodes()) visit(*top);
        qDebug() << all << shown.size() << good << "in" << t.elapsed() << worst/1e6 << worstPath << m_window->isWindowModified();
        qDebug() << bad.size(); for (auto& b : bad.mid(0,60)) qDebug() << b;
        qDebug() << wrong.size(); for (auto& b : wrong.mid(0,60)) qDebug() << b;
    }
};

QTEST_MAIN(TestFind)
#include "test_find.moc"
