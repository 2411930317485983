#pragma once

#include "jobmodel/jobfile.h"

#include <optional>

namespace JOBEDIT
{

/// What a job is to grow to.
struct LargeJobPlan
{
    int chains = 0;              ///< in all
    int channels = 0;            ///< of each new node that has channels; 0: as many as its model has
    std::optional<quint32> seed; ///< a third of the new values get other contents; the same seed gives the same
    bool allValues = false;      ///< every value stands in the file, whether it differs from its default or not
};

/// Makes large jobs of small ones, for trying out and measuring: repeats the tasks of a job with their chains and
/// values, under new names, until there are as many chains as planned.
class LargeJob
{
    Q_DECLARE_TR_FUNCTIONS(JOBEDIT::LargeJob)

public:
    /// `tree` is the one that holds the values of `job`.
    LargeJob(TKE::JobFile& job, TKE::Tree& tree) : m_job(job), m_tree(tree) {}

    int CountChains() const;
    /// False when the job cannot become what is planned; `reason` says why.
    bool Grow(const LargeJobPlan& plan, QString& reason);

private:
    bool IsChain(const TKE::Node& node) const;
    int CountChains(const TKE::Node& node) const;
    void CollectTasks(const TKE::Node& node, std::vector<const TKE::Node*>& tasks) const;
    TKE::Node* Copy(const TKE::Node& source, const QString& parentPath, const QString& name, int channels,
                    QString& reason);
    void CopyValues(const TKE::Node& source, qsizetype prefix, const TKE::Node& copy);
    QString FreeName(const TKE::Node& task, int round) const;

    TKE::JobFile& m_job;
    TKE::Tree& m_tree;
    int m_left = 0; ///< chains that are still to be made
};

} // namespace JOBEDIT
