#include "compareactions.h"

#include "differencemodel.h"
#include "fieldnavigator.h"
#include "longwork.h"
#include "mainwindow.h"
#include "messagelist.h"
#include "nodepane.h"
#include "otherjob.h"

#include <QApplication>
#include <QEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QInputDialog>
#include <QMenu>
#include <QMessageBox>

namespace JOBEDIT
{

namespace
{

/// Of the nearest node that stands above both.
QString CommonPath(const QString& left, const QString& right)
{
    QString above = ParentPath(left);
    while (!above.isEmpty() && (right == above || !right.startsWith(above)))
        above = ParentPath(above);
    return above;
}

} // namespace

CompareActions::CompareActions(MainWindow& window) : QObject(&window), m_window(window)
{
    QMenu* menu = window.ToolsMenu();
    menu->addAction(tr("Compare with &File..."), this, &CompareActions::Slot_OnCompareWithFile);
    m_withSaved = menu->addAction(tr("Compare with &Saved..."), this, &CompareActions::CompareWithSaved);
    menu->addAction(tr("Compare C&hains..."), this, &CompareActions::Slot_OnCompareChains);
    m_toDifferences = menu->addAction(tr("To the &Differences"), this, [this] { m_open->Activate(); });
    m_toDifferences->setShortcut(Qt::Key_F4);
    m_toDifferences->setEnabled(false);
    connect(menu, &QMenu::aboutToShow, this,
            [this] { m_withSaved->setEnabled(!m_window.Document().GetFileName().isEmpty()); });
    window.installEventFilter(this);
}

CompareDialog* CompareActions::CompareWithFile(const QString& fileName)
{
    const auto other = Load(fileName);
    if (!other)
        return nullptr;
    return Compare({{{}, {}, other->Source()},
                    other,
                    [fileName](const CompareSides&)
                    {
                        const QString name = QFileInfo(fileName).fileName();
                        return CompareTexts{.title = tr("Compare with %1").arg(name),
                                            .heading = tr("The open job at the left, %1 at the right.").arg(fileName),
                                            .leftName = tr("Open job"),
                                            .rightName = name,
                                            .takeOver = tr("&Take Over from File"),
                                            .close = tr("&Close")};
                    }});
}

CompareDialog* CompareActions::CompareWithSaved()
{
    const QString fileName = m_window.Document().GetFileName();
    const auto other = fileName.isEmpty() ? nullptr : Load(fileName);
    if (!other)
        return nullptr;
    return Compare({{{}, {}, other->Source()},
                    other,
                    [fileName](const CompareSides&)
                    {
                        return CompareTexts{
                            .title = tr("Compare with Saved"),
                            .heading = tr("The open job at the left, what %1 holds at the right.").arg(fileName),
                            .leftName = tr("Open job"),
                            .rightName = tr("Saved"),
                            .takeOver = tr("&Take Back to Saved"),
                            .close = tr("&Close")};
                    },
                    true});
}

CompareDialog* CompareActions::CompareChains(const QString& leftPath, const QString& rightPath)
{
    JobDocument& document = m_window.Document();
    const NodeSource open{*TKE::Tree::Instance(),
                          [&document](const QString& path) { return document.File().FindNodeSpec(path); }};
    return Compare({{leftPath, rightPath, open},
                    nullptr,
                    [](const CompareSides& sides)
                    {
                        const QString above = CommonPath(sides.leftBase, sides.rightBase);
                        return CompareTexts{.title = tr("Compare Chains"),
                                            .heading = tr("Two chains below %1; the left one takes over.").arg(above),
                                            .leftName = sides.leftBase.mid(above.size()).chopped(1),
                                            .rightName = sides.rightBase.mid(above.size()).chopped(1),
                                            .takeOver = tr("&Take Over from the Right"),
                                            .close = tr("&Close"),
                                            .canSwap = true};
                    }});
}

CompareDialog* CompareActions::CompareWithDisk(bool evenIfSame)
{
    NoteDisk();
    const QString fileName = m_window.Document().GetFileName();
    const auto other = Load(fileName);
    if (!other)
        return nullptr;
    return Compare({{{}, {}, other->Source()},
                    other,
                    [fileName](const CompareSides&)
                    {
                        return CompareTexts{
                            .title = tr("File Changed by Somebody Else"),
                            .heading = tr("%1 was changed by somebody else since it was opened. Take over what is to "
                                          "come into the open job; what is not taken over stays as it is here, and "
                                          "saving overwrites the file without asking again.")
                                           .arg(fileName),
                            .leftName = tr("Mine (open job)"),
                            .rightName = tr("Theirs (file)"),
                            .takeOver = tr("&Take Over Theirs"),
                            .close = tr("&Keep Mine")};
                    },
                    true,
                    m_told},
                   !m_window.Document().IsModified(), evenIfSame);
}

void CompareActions::TakeView(CompareActions& other)
{
    m_told = other.m_told;
    m_settled = other.m_settled;
    if (!other.m_open || !other.m_comparison)
        return;
    Comparison comparison = *other.m_comparison;
    comparison.sides.leftBase = other.m_open->GetSides().leftBase; // they may have been swapped
    comparison.sides.rightBase = other.m_open->GetSides().rightBase;
    CompareDialog* dialog = Make(comparison);
    dialog->TakeView(*other.m_open);
    Show(dialog, comparison);
}

bool CompareActions::eventFilter(QObject* watched, QEvent* event)
{
    // After the event, which belongs to the window first.
    if (watched == &m_window && event->type() == QEvent::WindowActivate)
        QMetaObject::invokeMethod(this, &CompareActions::LookAtDisk, Qt::QueuedConnection);
    return QObject::eventFilter(watched, event);
}

CompareActions::Stamp CompareActions::DiskStamp() const
{
    const QFileInfo info(m_window.Document().GetFileName());
    return {info.filePath(), info.size(), info.lastModified()};
}

void CompareActions::LookAtDisk()
{
    if (LongWork::IsUnderWay() || QApplication::activeModalWidget() || m_told == DiskStamp() || IsDiskSettled() ||
        m_window.Document().GetDiskState() != TKE::JobFile::DiskState::Changed)
        return;
    CompareWithDisk(false);
}

void CompareActions::Slot_OnCompareWithFile()
{
    const QString start = QFileInfo(m_window.Document().GetFileName()).absolutePath();
    const QString fileName =
        QFileDialog::getOpenFileName(&m_window, tr("Compare with File"), start, tr("Jobs (*.xml);;All files (*)"));
    if (!fileName.isEmpty())
        CompareWithFile(fileName);
}

void CompareActions::Slot_OnCompareChains()
{
    const std::vector<JobNode> selected = m_window.Nodes().GetSelectedNodes();
    if (selected.size() == 2)
    {
        CompareChains(selected[0].path, selected[1].path);
        return;
    }
    const JobNode* current = m_window.Nodes().GetCurrentNode();
    if (!current)
        return;
    // Chains of the same type first: they are what is compared most.
    QStringList others;
    QStringList otherTypes;
    for (const JobNode& node : m_window.Nodes().GetNodes())
        if (node.path != current->path)
            (node.type == current->type ? others : otherTypes) << node.path;
    bool chosen = false;
    const QString path =
        QInputDialog::getItem(&m_window, tr("Compare Chains"), tr("Compare %1 with:").arg(current->path),
                              others + otherTypes, 0, false, &chosen);
    if (chosen)
        CompareChains(current->path, path);
}

std::shared_ptr<OtherJob> CompareActions::Load(const QString& fileName)
{
    auto job = std::make_shared<OtherJob>();
    job->file.SetModel(m_window.Document().GetModel());
    TKE::FileError error;
    {
        LongWork work(tr("Reading %1").arg(QFileInfo(fileName).fileName()), &m_window);
        job->file.SetProgress([&](qint64 done, qint64 all) { return work.Progress(done, all); });
        const bool loaded = job->file.Load(fileName, &error);
        job->file.SetProgress({});
        if (loaded)
            return job;
        if (work.WasCancelled())
            return nullptr;
    }
    const QString text = tr("%1 could not be read.").arg(QFileInfo(fileName).fileName());
    m_window.Messages().Add(TKE::Severity::Error, text, error.ToText());
    QMessageBox(QMessageBox::Critical, tr("Compare"), text + "\n\n" + error.ToText(), QMessageBox::Ok, &m_window)
        .exec();
    return nullptr;
}

void CompareActions::GoTo(const QString& path)
{
    m_window.activateWindow();
    if (path.endsWith(u'/') && m_window.Nodes().SelectNode(path))
        m_window.Nodes().View()->setFocus(Qt::OtherFocusReason);
    else
        FieldNavigator(m_window).GoToOrTell(path);
    if (const QWidget* focus = m_window.focusWidget(); focus && m_open)
        m_open->KeepOff({focus->mapToGlobal(QPoint()), focus->size()});
}

CompareDialog* CompareActions::Make(const Comparison& comparison)
{
    auto* dialog = new CompareDialog(m_window.Document(), comparison.sides, comparison.holder,
                                     comparison.texts(comparison.sides), &m_window);
    connect(dialog, &CompareDialog::Refused, this,
            [this](const QString& path, const QString& reason)
            { m_window.Messages().Add(TKE::Severity::Warning, tr("%1 was not taken over").arg(path), reason); });
    connect(dialog, &CompareDialog::Wanted, this, &CompareActions::GoTo);
    // Closed otherwise than by the button, nothing is decided, and saving asks.
    if (comparison.settles != Stamp())
        connect(dialog, &QDialog::accepted, this, [this, stamp = comparison.settles] { m_settled = stamp; });
    if (comparison.isOfOpenFile)
        connect(&m_window.Document(), &JobDocument::Saved, dialog, &QWidget::close);
    return dialog;
}

CompareDialog* CompareActions::Compare(const Comparison& comparison, bool ticked, bool evenIfSame)
{
    CompareDialog* dialog = Make(comparison);
    const bool compared = dialog->Compare(ticked);
    if (!compared || (!evenIfSame && dialog->Model().rowCount() == 0))
    {
        delete dialog;
        return nullptr;
    }
    Show(dialog, comparison);
    return dialog;
}

void CompareActions::Show(CompareDialog* dialog, const Comparison& comparison)
{
    if (m_open)
        m_open->close();
    m_open = dialog;
    m_comparison.emplace(comparison);
    m_toDifferences->setEnabled(true);
    connect(dialog, &QDialog::finished, this,
            [this]
            {
                m_comparison.reset();
                m_toDifferences->setEnabled(false);
            });
    dialog->show();
}

} // namespace JOBEDIT
