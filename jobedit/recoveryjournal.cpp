#include "recoveryjournal.h"

#include "application/errorhandler.h"
#include "application/qtcompat.h"
#include "jobdocument.h"

#include <QDateTime>
#include <QDir>
#include <QGuiApplication>
#include <QLockFile>
#include <QRandomGenerator>
#include <QStandardPaths>

namespace JOBEDIT
{

namespace
{

constexpr int delay = 500;             // ms from an edit to its writing
constexpr size_t recordsAtOnce = 1000; // so that the window goes on working meanwhile

constexpr QLatin1StringView editsSuffix{".edits"};

using ChangeKind = RecoveryChange::Kind;

RecoveryChange Forth(qint64 step, const EditChange& change)
{
    if (!change.structure)
        return {ChangeKind::Value, step, change.path, change.after};
    const StructureEdit& edit = *change.structure;
    switch (edit.kind)
    {
    case StructureEdit::Kind::Add:
        return {ChangeKind::Add, step, edit.other, {}, edit.spec};
    case StructureEdit::Kind::Remove:
        return {ChangeKind::Remove, step, edit.path};
    case StructureEdit::Kind::Rename:
        return {ChangeKind::Rename, step, edit.path, edit.name};
    case StructureEdit::Kind::Duplicate:
        break;
    }
    return {ChangeKind::Duplicate, step, edit.other, edit.name};
}

} // namespace

RecoveryJournal::RecoveryJournal(JobDocument& document, QObject* parent) : QObject(parent), m_document(document)
{
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &RecoveryJournal::WriteSome);
    EditHistory& history = document.History();
    connect(&history, &EditHistory::ChangeRecorded, this, &RecoveryJournal::Slot_OnChange);
    connect(&history, &EditHistory::StepUndone, this, &RecoveryJournal::Slot_OnUndone);
    connect(&history, &EditHistory::StepRedone, this, &RecoveryJournal::Slot_OnRedone);
    connect(&document, &JobDocument::Saved, this, &RecoveryJournal::Begin);
    connect(&document, &JobDocument::Replaced, this, &RecoveryJournal::Begin);
    connect(qGuiApp, &QGuiApplication::applicationStateChanged, this,
            [this](Qt::ApplicationState state)
            {
                if (state != Qt::ApplicationActive)
                    Flush();
            });
}

RecoveryJournal::~RecoveryJournal()
{
    Forget();
}

QString RecoveryJournal::Directory()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation) + QStringLiteral("/recovery");
}

QStringList RecoveryJournal::FindAbandoned()
{
    QStringList found;
    const QDir directory(Directory());
    for (const QFileInfo& info : directory.entryInfoList({u'*' + editsSuffix}, QDir::Files, QDir::Time))
        if (Lock(info.filePath()))
            found << info.filePath();
    return found;
}

std::unique_ptr<QLockFile> RecoveryJournal::Lock(const QString& fileName)
{
    auto lock = std::make_unique<QLockFile>(fileName + QStringLiteral(".lock"));
    lock->setStaleLockTime(0); // a lock is stale only when its holder is gone
    if (!lock->tryLock(0))
        lock.reset();
    return lock;
}

void RecoveryJournal::Begin()
{
    Forget();
    m_failed = false;
    m_base = RecoveryBase::Of(m_document.GetFileName());
}

void RecoveryJournal::Forget()
{
    m_timer.stop();
    m_waiting.clear();
    m_written = 0;
    m_positions.clear();
    m_steps.clear();
    if (m_file)
        m_file->remove();
    m_file.reset();
    m_lock.reset();
}

void RecoveryJournal::Slot_OnChange(quint64 step, const EditChange& change)
{
    Keep(Forth(qint64(step), change));
}

void RecoveryJournal::Slot_OnUndone(const EditStep& step)
{
    const auto number = qint64(step.number);
    if (m_steps.contains(number))
        Keep({.kind = ChangeKind::Undo, .step = number});
    else if (m_steps.contains(-number))
        Keep({.kind = ChangeKind::Redo, .step = -number});
    else
        KeepBack(step);
}

void RecoveryJournal::Slot_OnRedone(const EditStep& step)
{
    const auto number = qint64(step.number);
    if (m_steps.contains(-number))
        Keep({.kind = ChangeKind::Undo, .step = -number});
    else if (m_steps.contains(number))
        Keep({.kind = ChangeKind::Redo, .step = number});
    else
        for (const EditChange& change : step.changes)
            Keep(Forth(number, change));
}

// A step of the time before the last save is taken back: that is a change of what is saved.
void RecoveryJournal::KeepBack(const EditStep& step)
{
    const qint64 number = -qint64(step.number);
    for (auto each = step.changes.rbegin(); each != step.changes.rend(); ++each)
    {
        const EditChange& change = *each;
        if (!change.structure)
        {
            Keep({ChangeKind::Value, number, change.path, change.before});
            continue;
        }
        const StructureEdit& edit = *change.structure;
        switch (edit.kind)
        {
        case StructureEdit::Kind::Add:
        case StructureEdit::Kind::Duplicate:
            Keep({ChangeKind::Remove, number, edit.path});
            break;
        case StructureEdit::Kind::Rename:
            Keep({ChangeKind::Rename, number, edit.other, edit.oldName});
            break;
        case StructureEdit::Kind::Remove:
            KeepNode(number, edit.path + '/');
            break;
        }
    }
}

// The node at `path` with all below it, as it is now.
void RecoveryJournal::KeepNode(qint64 step, const QString& path)
{
    const std::function<void(const TKE::Node&)> keepValues = [&](const TKE::Node& node)
    {
        for (const auto& value : node.GetValues())
            if (const QString text = value->GetStoredText(); text != value->GetDescriptor().defaultText)
                Keep({ChangeKind::Value, step, value->GetPathName(), text});
        for (const auto& below : node.GetNodes())
            keepValues(*below);
    };
    m_document.File().VisitNodes(
        [&](const QString& nodePath, const TKE::NodeSpec& spec, const QString& parentPath)
        {
            if (nodePath.startsWith(path))
                Keep({ChangeKind::Add, step, parentPath, {}, spec});
        });
    if (const TKE::Node* node = TKE::Tree::Instance()->FindNode(path))
        keepValues(*node);
}

void RecoveryJournal::Keep(RecoveryChange change)
{
    if (m_failed)
        return;
    m_steps.insert(change.step);
    // Of a value that changes again and again in one step, only the last content is written.
    if (change.kind != ChangeKind::Value || (!m_waiting.empty() && m_waiting.back().step != change.step))
        m_positions.clear();
    const auto known = change.kind == ChangeKind::Value ? m_positions.constFind(change.path) : m_positions.constEnd();
    if (known != m_positions.constEnd())
        m_waiting[*known].text = change.text;
    else
    {
        if (change.kind == ChangeKind::Value)
            m_positions.insert(change.path, m_waiting.size());
        m_waiting.push_back(std::move(change));
    }
    if (!m_timer.isActive())
        m_timer.start(delay);
}

void RecoveryJournal::Flush()
{
    while (!m_waiting.empty())
        WriteSome();
}

bool RecoveryJournal::Open()
{
    if (m_file)
        return true;
    QString name = m_base.file.isEmpty() ? QStringLiteral("new job") : QFileInfo(m_base.file).fileName();
    name +=
        QStringLiteral("-%1-%2").arg(QCoreApplication::applicationPid()).arg(QRandomGenerator::global()->generate());
    QDir().mkpath(Directory());
    const QString fileName = Directory() + '/' + name + editsSuffix;
    m_lock = Lock(fileName); // first: a file without a lock is one that was left behind
    m_file = std::make_unique<QFile>(fileName);
    m_base.begun = QDateTime::currentDateTime().toString(Qt::ISODate);
    // Twice, since all depends on it.
    const QByteArray base = RecoveryFile::LineOf(m_base) + RecoveryFile::LineOf(m_base);
    // Opened in any case: it says why, where the lock cannot be made either.
    return m_file->open(QIODevice::WriteOnly | QIODevice::NewOnly) && m_lock && m_file->write(base) == base.size();
}

void RecoveryJournal::WriteSome()
{
    m_positions.clear();
    m_timer.stop();
    const size_t end = std::min(m_waiting.size(), m_written + recordsAtOnce);
    bool good = Open();
    for (; good && m_written < end; ++m_written)
    {
        const QByteArray line = RecoveryFile::LineOf(m_waiting[m_written]);
        good = m_file->write(line) == line.size();
    }
    good = good && m_file->flush();
    if (!good)
    {
        const QString reason = m_file ? QtCompat::ErrorText(*m_file) : QString();
        Forget();
        m_failed = true;
        TKE::ErrorHandler::Interface().Report(
            TKE::Severity::Warning, tr("Edits that are not saved cannot be kept for the case of a crash. Save often."),
            tr("%1: %2").arg(Directory(), reason));
        return;
    }
    if (m_written < m_waiting.size())
    {
        m_timer.start(0);
        return;
    }
    m_sync.Start(*m_file);
    m_waiting.clear();
    m_written = 0;
}

} // namespace JOBEDIT
