#include "jobedit/dialogpane.h"
#include "jobedit/guidewindow.h"
#include "jobedit/hintbar.h"
#include "jobedit/languages.h"
#include "jobedit/mainwindow.h"
#include "jobedit/nightcolours.h"
#include "jobedit/nodepane.h"
#include "jobedit/recentfiles.h"

#include <QtTest>
#include <QtWidgets>

// The catalogues stand in a static library.
static void InitResources()
{
    Q_INIT_RESOURCE(ipcparam_translations);
}

using namespace JOBEDIT;
using namespace TKE;

namespace
{

/// How well one colour is read on the other: 1 to 21.
double Contrast(const QColor& one, const QColor& other)
{
    const auto luminance = [](const QColor& colour)
    {
        const auto linear = [](double part)
        { return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4); };
        return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
    };
    const auto [low, high] = std::minmax({luminance(one), luminance(other)});
    return (high + 0.05) / (low + 0.05);
}

QChar MnemonicOf(QString text)
{
    text.remove("&&");
    const qsizetype mark = text.indexOf('&');
    return mark < 0 || mark + 1 == text.size() ? QChar() : text.at(mark + 1).toLower();
}

} // namespace

class TestHabits : public QObject
{
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> m_directory;
    std::unique_ptr<MainWindow> m_window;

    QString File(const QString& name) const { return m_directory->filePath(name); }
    void MakeWindow()
    {
        m_window.reset();
        m_window = std::make_unique<MainWindow>(JobModel::Load());
        m_window->show();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    }
    QString PathOf(const char* type)
    {
        return std::ranges::find(m_window->Nodes().GetNodes(), QString(type), &JobNode::type)->path;
    }

private Q_SLOTS:
    void initTestCase()
    {
        InitResources();
        QCoreApplication::setOrganizationName("ipcparam");
        QCoreApplication::setApplicationName("jobedit");
    }

    void init()
    {
        m_directory = std::make_unique<QTemporaryDir>();
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, File("settings"));
        Languages::Apply("en");
        MakeWindow();
        QVERIFY(m_window->NewFromSample());
    }

    void cleanup()
    {
        m_window.reset();
        Tree::Instance()->Clear();
        Languages::Apply("en");
    }

    void aFileThatIsDroppedAnywhereIsOpened()
    {
        QVERIFY(m_window->SaveTo(File("a.job.xml")));
        QVERIFY(m_window->NewFromSample());
        m_window->Nodes().SelectNode(PathOf("IPC_TUNER_HF"));
        auto* field = m_window->Dialog().GetDialog()->findChild<QLineEdit*>();
        const QString before = field->text();
        const QPointer<QLineEdit> watched = field;
        QMimeData files;
        files.setUrls({QUrl::fromLocalFile(File("a.job.xml"))});
        files.setText(File("a.job.xml"));
        QDragEnterEvent enter({2, 2}, Qt::CopyAction, &files, Qt::LeftButton, {});
        QCoreApplication::sendEvent(field, &enter);
        QVERIFY(enter.isAccepted());
        QDropEvent drop({2, 2}, Qt::CopyAction, &files, Qt::LeftButton, {});
        QCoreApplication::sendEvent(field, &drop);
        QCOMPARE(watched->text(), before);
        QTRY_COMPARE(m_window->Document().GetFileName(), File("a.job.xml"));

        files.setUrls({QUrl::fromLocalFile("/a"), QUrl::fromLocalFile("/b")});
        QDragEnterEvent two({2, 2}, Qt::CopyAction, &files, Qt::LeftButton, {});
        QCoreApplication::sendEvent(m_window.get(), &two);
        QVERIFY(!two.isAccepted());
    }

    void aFileOpensWhereItWasLeft()
    {
        const QString path = PathOf("IPC_FULL");
        QVERIFY(m_window->SaveTo(File("a.job.xml")));
        QVERIFY(m_window->Nodes().SelectNode(path));
        m_window->Dialog().SetForm(Form::StandAlone);
        m_window->Dialog().GetDialog()->setCurrentIndex(4);
        QVERIFY(m_window->close());

        MakeWindow();
        QVERIFY(m_window->NewFromSample());
        QVERIFY(m_window->Nodes().GetCurrentNode()->path != path);
        QVERIFY(m_window->OpenFile(File("a.job.xml")));
        QCOMPARE(m_window->Nodes().GetCurrentNode()->path, path);
        QCOMPARE(m_window->Dialog().GetForm(), Form::StandAlone);
        QCOMPARE(m_window->Dialog().GetDialog()->currentIndex(), 4);
        QVERIFY(!m_window->isWindowModified());
    }

    void theWindowComesBackAsItWas()
    {
        m_window->resize(1000, 700);
        m_window->MessageDock()->hide();
        QVERIFY(m_window->close());
        MakeWindow();
        QCOMPARE(m_window->size(), QSize(1000, 700));
        QVERIFY(!m_window->MessageDock()->isVisible());
    }

    void aRecentFileThatIsGoneIsMarked()
    {
        QVERIFY(m_window->SaveTo(File("a.job.xml")));
        RecentFiles::Add(File("gone.job.xml"));
        auto* menu = m_window->findChild<RecentFiles*>();
        emit menu->aboutToShow();
        QVERIFY(menu->actions().at(0)->text().endsWith("gone.job.xml (not there)"));
        QVERIFY(menu->actions().at(1)->text().endsWith("a.job.xml"));
    }

    void theHintIsOfferedUntilItIsNotWanted()
    {
        auto* hint = m_window->findChild<HintBar*>();
        QVERIFY(!hint->isVisible());
        m_window->OfferHint();
        QVERIFY(hint->isVisible());
        QTest::mouseClick(hint->findChild<QPushButton*>("neverAgain"), Qt::LeftButton);
        QVERIFY(!hint->isVisible());
        MakeWindow();
        m_window->OfferHint();
        QVERIFY(!m_window->findChild<HintBar*>()->isVisible());
    }

    void f1OpensTheGuideOnce()
    {
        QTest::keyClick(m_window.get(), Qt::Key_F1);
        QTest::keyClick(m_window.get(), Qt::Key_F1);
        const auto guides = m_window->findChildren<GuideWindow*>();
        QCOMPARE(guides.size(), 1);
        auto* browser = guides.first()->findChild<QTextBrowser*>();
        QVERIFY(browser->toPlainText().contains("guide for operators"));
        QVERIFY(browser->document()->resource(QTextDocument::ImageResource, QUrl("pictures/en/plan.png")).isValid());
        QTest::keyClick(guides.first(), Qt::Key_Escape);
        QVERIFY(!guides.first()->isVisible());
    }

    void everyActionIsReachedByKeyboardAndNoMnemonicTwice_data()
    {
        QTest::addColumn<QString>("language");
        QTest::newRow("English") << "en";
        QTest::newRow("German") << "de";
    }
    void everyActionIsReachedByKeyboardAndNoMnemonicTwice()
    {
        QFETCH(QString, language);
        Languages::Apply(language);
        MakeWindow();
        QVERIFY(m_window->SaveTo(File("a.job.xml")));
        QSet<const QAction*> inMenus;
        QHash<QKeySequence, QString> shortcuts;
        QList<std::pair<QString, QList<QAction*>>> menus{{"menu bar", m_window->menuBar()->actions()}};
        for (QMenu* menu : m_window->findChildren<QMenu*>())
        {
            emit menu->aboutToShow();
            menus << std::pair(menu->title(), menu->actions());
        }
        for (const auto& [title, actions] : menus)
        {
            QHash<QChar, QString> mnemonics;
            for (const QAction* action : actions)
            {
                inMenus << action;
                const QChar key = MnemonicOf(action->text());
                if (key.isNull())
                    continue;
                const QString other = std::exchange(mnemonics[key], action->text());
                QVERIFY2(other.isEmpty(), qPrintable(title + ": " + other + " and " + action->text()));
            }
            QVERIFY2(title != "menu bar" || mnemonics.size() == actions.size(), "A menu without a mnemonic.");
        }
        for (const QAction* action : m_window->findChildren<QAction*>())
        {
            if (action->isSeparator() || action->text().isEmpty())
                continue;
            // Of a context menu, which opens by keyboard too; docks have theirs in that of the window.
            const auto* owner = qobject_cast<const QWidget*>(action->parent());
            const bool inContext = owner && (owner->contextMenuPolicy() == Qt::ActionsContextMenu ||
                                             qobject_cast<const QDockWidget*>(owner));
            QVERIFY2(inMenus.contains(action) || inContext || !action->shortcut().isEmpty(),
                     qPrintable(action->text()));
            if (action->shortcut().isEmpty() || action->shortcutContext() != Qt::WindowShortcut)
                continue;
            const QString other = std::exchange(shortcuts[action->shortcut()], action->text());
            QVERIFY2(other.isEmpty(), qPrintable(other + " and " + action->text()));
        }
        for (const auto key : {QKeySequence::New, QKeySequence::Open, QKeySequence::Save, QKeySequence::Find})
            QVERIFY(shortcuts.contains(QKeySequence(key)));
    }

    void whatIsDimmedCanStillBeReadInBothPalettes_data()
    {
        QTest::addColumn<bool>("night");
        QTest::newRow("day") << false;
        QTest::newRow("night") << true;
    }
    void whatIsDimmedCanStillBeReadInBothPalettes()
    {
        QFETCH(bool, night);
        const auto restore = qScopeGuard([] { NightColours::Switch(false); });
        NightColours::Switch(night);
        QCoreApplication::processEvents();
        const auto* model = m_window->Nodes().View()->model();
        // One of the nodes below the job that have no dialog.
        const auto found = model->match(model->index(0, 0), Qt::DisplayRole, "PROFILES", 1, Qt::MatchExactly | Qt::MatchRecursive);
        QCOMPARE(found.size(), 1);
        const QBrush dimmed = found.first().data(Qt::ForegroundRole).value<QBrush>();
        const QPalette palette = m_window->Nodes().View()->palette();
        for (const auto role : {QPalette::Base, QPalette::AlternateBase})
        {
            QVERIFY(Contrast(palette.color(QPalette::Text), palette.color(role)) > 7);
            const QImage sheet = [&]
            {
                // Dimmed texts may be half transparent.
                QImage image(1, 1, QImage::Format_RGB32);
                image.fill(palette.color(role));
                QPainter(&image).fillRect(0, 0, 1, 1, dimmed);
                return image;
            }();
            const double contrast = Contrast(sheet.pixelColor(0, 0), palette.color(role));
            QVERIFY2(contrast > 3, qPrintable(QString::number(contrast)));
        }
    }
};

QTEST_MAIN(TestHabits)
#include "test_habits.moc"
