#pragma once

#include "jobmodel/jobfile.h"
#include "value/tree.h"

#include <QCoreApplication>
#include <QHash>
#include <vector>

namespace JOBEDIT
{

/// What is wrong with the content of a value.
struct Finding
{
    TKE::FileError::Severity severity;
    QString path;  ///< of the value
    QString label; ///< in the language that runs
    QString text;  ///< what is wrong, with the content and what is permitted
};

/// Checks the contents of values against their descriptors, and values that belong together against each other. What a
/// rule has disabled does not apply and is not checked. Looking changes nothing.
class Checker
{
    Q_DECLARE_TR_FUNCTIONS(JOBEDIT::Checker)

public:
    /// `tree` is not owned and outlives the checker; its values are described by `model`.
    Checker(const TKE::Tree& tree, const TKE::JobModel& model);

    /// Of the values right below the node. Values belong together within a node only.
    std::vector<Finding> CheckNode(const TKE::Node& node) const;
    /// Of all values, in the order of the tree.
    std::vector<Finding> CheckValues() const;

    /// What is wrong with a job file: its form and, where that has no error, its values. Touches no tree in use.
    static TKE::FileErrors CheckFile(const QString& fileName, const std::shared_ptr<const TKE::JobModel>& model,
                                     const TKE::JobFile::Progress& progress = {});

private:
    struct ListShape
    {
        qsizetype columns;
        qsizetype rows; // most; 0: any number
    };

    void CheckBelow(const TKE::Node& node, std::vector<Finding>& findings) const;
    /// What is wrong with the value; empty when nothing is.
    QString FaultOf(const TKE::ValueBase& value) const;
    QString FaultOfList(const TKE::ValueBase& value) const;
    QString FaultOfPair(const TKE::ValueBase& value) const;
    const QStringList& UpperNames(const QString& name) const;

    const TKE::Tree& m_tree;
    QHash<const TKE::ValueDescriptor*, ListShape> m_lists;
    mutable QHash<const QString*, QStringList> m_upperNames; // by interned name, of the values that must not be less
};

} // namespace JOBEDIT
