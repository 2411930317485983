#pragma once

#include "harness.h"
#include "jobedit/largejob.h"

#include <QTemporaryDir>
#include <stdexcept>

/// A job of about a million values, all of them in its file: what goals of loading, saving and finding are measured on.
class LargeJobFile
{
public:
    LargeJobFile() : m_directory(InMemory())
    {
        TKE::Tree tree;
        TKE::JobFile job(tree);
        TKE::FileError error;
        QString reason;
        JOBEDIT::LargeJobPlan plan;
        plan.chains = Bench::Size(1150, 60);
        plan.channels = Bench::Size(1000, 8);
        plan.seed = 4711;
        plan.allValues = true;
        if (!job.LoadSample(&error) || !JOBEDIT::LargeJob(job, tree).Grow(plan, reason) ||
            !job.SaveAs(GetFileName(), &error))
            throw std::runtime_error((error.ToText() + reason).toStdString());
        m_values = tree.ValueCount();
    }

    QString GetFileName() const { return m_directory.filePath(QStringLiteral("large.job.xml")); }
    /// A name beside it, for what is saved.
    QString GetOtherName() const { return m_directory.filePath(QStringLiteral("other.job.xml")); }
    size_t CountValues() const { return m_values; }

private:
    // Not on a disk, whose moods are no part of the goals.
    static QString InMemory()
    {
        const QString memory = QStringLiteral("/dev/shm");
        return (QFileInfo(memory).isWritable() ? memory : QDir::tempPath()) + QStringLiteral("/largejob-XXXXXX");
    }

    QTemporaryDir m_directory;
    size_t m_values = 0;
};
