#pragma once

#include "jobmodel/nodespec.h"

#include <QByteArray>
#include <QString>
#include <optional>
#include <vector>

class QIODevice;

namespace JOBEDIT
{

/// The job that edits belong to: its file, and what the file was like when they were made.
struct RecoveryBase
{
    QString file{}; ///< empty: a new job from the sample
    qint64 size = 0;
    QString changed{}; ///< when the file was changed last
    QString hash{};    ///< of its begin and its end
    QString begun{};   ///< when the first of the edits was kept

    static RecoveryBase Of(const QString& fileName);
    /// Whether the file on disk is another one by now.
    bool HasChanged() const;
};

/// One change that is kept for recovery.
struct RecoveryChange
{
    enum class Kind
    {
        Value,     ///< `path` gets the stored content `text`
        Add,       ///< a node like `spec` comes below `path`
        Remove,    ///< the node at `path` goes
        Rename,    ///< the node at `path` gets the name `text`
        Duplicate, ///< a copy with the name `text` comes behind the node at `path`
        Undo,      ///< the changes of the step do not count
        Redo,      ///< they do again
    };
    Kind kind = Kind::Value;
    qint64 step = 0;
    QString path{};
    QString text{};
    TKE::NodeSpec spec{};
};

/// What a file of kept edits holds. One record a line, each with a checksum: a line that is damaged costs itself only.
struct RecoveryFile
{
    std::optional<RecoveryBase> base;    ///< none: unreadable
    std::vector<RecoveryChange> changes; ///< those that count, in the order of their making
    int damaged = 0;                     ///< lines that could not be read

    /// Never fails: what cannot be read counts as damaged.
    static RecoveryFile Read(const QString& fileName);
    static RecoveryFile Read(QIODevice& device);

    static QByteArray LineOf(const RecoveryBase& base);
    static QByteArray LineOf(const RecoveryChange& change);
};

} // namespace JOBEDIT
