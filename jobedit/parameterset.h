#pragma once

#include "jobnode.h"
#include "valuewriting.h"

#include <QJsonObject>
#include <memory>
#include <optional>

class QMimeData;
class QWidget;

namespace JOBEDIT
{

/// Parameters of a chain with their contents, detached from any job: what is copied, pasted and kept as a preset.
///
/// A parameter is known by its path from the chain on ("TUNER_FREQUENCY", "Channel3/Level"; "../X" lies one level
/// above), so that it fits every chain that has the same one.
struct ParameterSet
{
    struct Parameter
    {
        QString path;
        QString stored; ///< content in stored form
        QString label;  ///< for people
        QString text;   ///< content for people
    };

    QString source; ///< where it was taken from, for people
    QString type;   ///< type text of the chain
    std::vector<Parameter> parameters;

    /// The values of the node and those below it that do not belong to another node of the job.
    static ParameterSet OfNode(const JobNode& node, const std::vector<JobNode>& jobNodes);
    /// What the widgets of a dialog's tab are bound to.
    static ParameterSet OfTab(const JobNode& node, const QWidget& tab, const QString& title);

    QJsonObject ToJson() const;
    /// Nothing, with the reason, when it is no parameter set or one of a newer version.
    static std::optional<ParameterSet> FromJson(const QByteArray& json, QString& reason);

    /// One "key<TAB>content" a line, with names of items.
    QString ToText() const;
    std::unique_ptr<QMimeData> ToMimeData() const;
    static bool IsIn(const QMimeData* data);
    static std::optional<ParameterSet> FromMimeData(const QMimeData* data, QString& reason);

    /// The changes that put these contents into the chain at `nodePath`. What the chain does not have is changed where
    /// it would be, so that writing refuses it.
    std::vector<ValueChange> ChangesFor(const QString& nodePath) const;
};

} // namespace JOBEDIT
