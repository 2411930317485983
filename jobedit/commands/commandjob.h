#pragma once

#include "command.h"
#include "jobmodel/jobfile.h"

#include <QJsonObject>
#include <QLockFile>
#include <memory>

namespace JOBEDIT
{

/// A job that a command works on, in a tree of its own.
///
/// Paths are those of the tree, or relative to a top node of the job. In patterns, "*" stands for any characters ("/"
/// too) and "?" for one.
class CommandJob
{
public:
    CommandJob();

    /// False when the file cannot be read; the call's error stream says why.
    bool Load(const QString& fileName, Call& call);
    /// A new job like the sample.
    bool LoadSample(Call& call);
    bool SaveAs(const QString& fileName, Call& call);

    TKE::Tree& GetTree() { return m_tree; }
    TKE::JobFile& GetFile() { return m_file; }

    TKE::ValueBase* FindValue(const QString& path) const;
    TKE::Node* FindNode(const QString& path) const;
    /// The value of that path, or all that the pattern matches, in the order of the tree.
    std::vector<TKE::ValueBase*> FindValues(const QString& pattern) const;
    /// The job's own nodes that the pattern matches, each before those below it; empty: all.
    std::vector<const TKE::Node*> FindNodes(const QString& pattern) const;

    static bool IsPattern(const QString& text) { return text.contains(u'*') || text.contains(u'?'); }
    static bool Matches(QStringView pattern, QStringView text);
    /// All values at the node and below it.
    static void Collect(const TKE::Node& node, std::vector<TKE::ValueBase*>& values);

private:
    bool Told(bool good, const TKE::FileError& error, Call& call);
    void Loaded();
    void CollectNodes(const TKE::Node& node, bool below, std::vector<const TKE::Node*>& nodes) const;
    bool IsMatch(const QString& pattern, const QString& path) const;

    TKE::Tree m_tree;
    TKE::JobFile m_file{m_tree};
    QStringList m_tops; ///< paths of the top nodes, "/" at the end
};

/// Keeps other editors away from a file while a command writes it.
class CommandLock
{
public:
    explicit CommandLock(const QString& fileName);
    /// Who has the file open; empty when nobody else has.
    QString GetHolder() const;

private:
    QLockFile m_lock;
    bool m_taken;
};

/// How commands print values.
namespace CommandText
{

/// The content as people read it, or in stored form.
QString Of(const TKE::ValueBase& value, bool stored);
/// On one line and in one column: backslash, tab and line ends are written as \\, \t, \n and \r.
QString Escaped(QString text);
/// The keys are documented in docs/jobedit.1 and stay.
QJsonObject JsonOf(const TKE::ValueBase& value);

} // namespace CommandText

/// Writes a JSON document {"<head>": ..., "<name>": [items]} without holding all items at once.
class JsonList
{
public:
    JsonList(QTextStream& out, const QJsonObject& head, const QString& name);
    ~JsonList();
    JsonList(const JsonList&) = delete;
    JsonList& operator=(const JsonList&) = delete;
    void Add(const QJsonObject& item);

private:
    QTextStream& m_out;
    const char* m_separator = "\n";
};

} // namespace JOBEDIT
