#pragma once

#include "parameterset.h"

#include <QCoreApplication>
#include <QDir>

namespace JOBEDIT
{

/// Parameter sets that are kept under names, one readable file each. A file that is damaged stays as it is; using it
/// says what is wrong with it.
class Presets
{
    Q_DECLARE_TR_FUNCTIONS(JOBEDIT::Presets)

public:
    /// In the user's data directory unless another is given.
    explicit Presets(const QString& directory = {});

    QStringList GetNames() const;
    bool Contains(const QString& name) const { return QFile::exists(FileOf(name)); }
    /// Why a preset cannot have this name; empty when it can.
    QString NameFault(const QString& name) const;
    QString FileOf(const QString& name) const;

    std::optional<ParameterSet> Load(const QString& name, QString& reason) const;
    /// Takes the place of a preset of the same name: ask before.
    bool Save(const QString& name, const ParameterSet& set, QString& reason);
    /// Refused when the new name is taken.
    bool Rename(const QString& name, const QString& newName, QString& reason);
    bool Remove(const QString& name, QString& reason);

private:
    QDir m_directory;
};

} // namespace JOBEDIT
