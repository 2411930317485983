#pragma once

#include "jobmodel/fileerror.h"
#include "jobmodel/parametergroup.h"

#include <memory>
#include <vector>

namespace TKE
{

/// The description of all values that jobs can have: the parameter groups of a set of descriptor files. GUI thread
/// only.
///
/// A model is made even of faulty files: what can be used is there, GetErrors says what is not.
class JobModel
{
public:
    JobModel();
    ~JobModel();
    JobModel(const JobModel&) = delete;
    JobModel& operator=(const JobModel&) = delete;

    /// The model of all descriptor files in `directory`; empty: the compiled-in ones. Files that have not changed are
    /// not read again.
    static std::shared_ptr<const JobModel> Load(const QString& directory = {});
    /// The model of these files.
    static std::shared_ptr<const JobModel> LoadFiles(const QStringList& files);

    /// In the order of the files, which is that of their names.
    const std::vector<std::unique_ptr<ParameterGroup>>& GetGroups() const { return m_groups; }
    /// The group of that name for `band`, or the one that serves both; null when there is none.
    const ParameterGroup* FindGroup(QStringView name, Band band) const;
    const FileErrors& GetErrors() const { return m_errors; }

    /// Values refer to the descriptors of their model, whoever holds the model: keeps `model` until the program ends.
    static void KeepForValues(std::shared_ptr<const JobModel> model);

private:
    friend class JobModelReader;

    std::vector<std::unique_ptr<ParameterGroup>> m_groups;
    FileErrors m_errors;
};

} // namespace TKE
