#include "largejob.h"

#include "chains.h"

#include <QRegularExpression>
#include <random>

namespace JOBEDIT
{

namespace
{

template <class Visit> void ForEachValue(const TKE::Node& node, const Visit& visit)
{
    for (const auto& value : node.GetValues())
        visit(*value);
    for (const auto& below : node.GetNodes())
        ForEachValue(*below, visit);
}

/// Contents that the values accept. Nothing here depends on the platform, as the distributions of the library would.
class Contents
{
public:
    explicit Contents(quint32 seed) : m_random(seed) {}

    void Vary(TKE::ValueBase& value)
    {
        // What bounds another value stays, or the job would contradict itself.
        static const QRegularExpression bound("START|STOP|MIN|MAX|FIRST|LAST", QRegularExpression::CaseInsensitiveOption);
        if (Below(3) == 0 && !value.GetName().contains(bound))
            value.SetStoredText(For(value));
    }

private:
    quint32 Below(quint64 limit) { return quint32(m_random() % limit); }

    double Number(const TKE::ValueDescriptor& descriptor)
    {
        const double first = descriptor.minimum.value_or(0);
        const double last = descriptor.maximum.value_or(first + 1000);
        const double step = descriptor.step > 0 ? descriptor.step : 1;
        const double steps = std::min(std::floor((last - first) / step), 1e9);
        return first + step * Below(quint64(steps) + 1);
    }
    QString Decimals(const TKE::ValueDescriptor& descriptor)
    {
        return QString::number(Number(descriptor), 'f', descriptor.precision);
    }

    QString For(const TKE::ValueBase& value)
    {
        const TKE::ValueDescriptor& descriptor = value.GetDescriptor();
        switch (descriptor.kind)
        {
        case TKE::ValueKind::Bool:
            return value.GetBool() ? QStringLiteral("false") : QStringLiteral("true");
        case TKE::ValueKind::Int:
        case TKE::ValueKind::Frequency:
            return QString::number(qint64(Number(descriptor)));
        case TKE::ValueKind::Double:
            return Decimals(descriptor);
        case TKE::ValueKind::Text:
            return QStringLiteral("Text %1").arg(Below(100'000));
        case TKE::ValueKind::DateTime:
            return QDateTime(QDate(2024, 1, 1), QTime(0, 0), Qt::UTC)
                .addSecs(Below(366ULL * 86'400))
                .toString(QStringLiteral("yyyy-MM-ddThh:mm:ss"));
        case TKE::ValueKind::DoubleList:
        {
            // In order, since it may be a range.
            const double one = Number(descriptor);
            const double two = Number(descriptor);
            return QString::number(std::min(one, two), 'f', descriptor.precision) + u';' +
                   QString::number(std::max(one, two), 'f', descriptor.precision);
        }
        case TKE::ValueKind::Selection:
            if (!descriptor.items.empty())
                return QString::number(descriptor.items[Below(descriptor.items.size())].GetKey());
            break;
        }
        return value.GetStoredText();
    }

    std::mt19937 m_random;
};

} // namespace

bool LargeJob::IsChain(const TKE::Node& node) const
{
    const TKE::NodeSpec* spec = m_job.FindNodeSpec(node.GetBasePath());
    return spec && FindChain({.path = {}, .name = {}, .type = spec->type, .band = spec->band});
}

int LargeJob::CountChains(const TKE::Node& node) const
{
    int count = IsChain(node);
    for (const auto& below : node.GetNodes())
        count += CountChains(*below);
    return count;
}

int LargeJob::CountChains() const
{
    int count = 0;
    for (const TKE::Node* top : m_tree.GetTopNodes())
        count += CountChains(*top);
    return count;
}

// A task is what stands directly below a top node of the job and has chains.
void LargeJob::CollectTasks(const TKE::Node& node, std::vector<const TKE::Node*>& tasks) const
{
    const bool isTop = m_job.FindNodeSpec(node.GetBasePath());
    for (const auto& below : node.GetNodes())
    {
        if (!isTop)
            CollectTasks(*below, tasks);
        else if (m_job.FindNodeSpec(below->GetBasePath()) && CountChains(*below) > 0)
            tasks.push_back(below.get());
    }
}

QString LargeJob::FreeName(const TKE::Node& task, int round) const
{
    QString name = QStringLiteral("%1_%2").arg(task.GetName()).arg(round);
    while (m_tree.FindNode(task.GetParent()->GetBasePath() + name))
        name += u'x';
    return name;
}

TKE::Node* LargeJob::Copy(const TKE::Node& source, const QString& parentPath, const QString& name, int channels,
                          QString& reason)
{
    TKE::NodeSpec spec = *m_job.FindNodeSpec(source.GetBasePath());
    spec.name = name;
    if (spec.count > 0 && channels > 0)
        spec.count = channels;
    TKE::Node* copy = m_job.AddNode(parentPath, spec, &reason);
    if (!copy)
        return nullptr;
    m_left -= IsChain(*copy);
    for (const auto& below : source.GetNodes())
    {
        if (m_left == 0)
            break;
        if (m_job.FindNodeSpec(below->GetBasePath()) &&
            !Copy(*below, copy->GetBasePath(), below->GetName().toString(), channels, reason))
            return nullptr;
    }
    return copy;
}

void LargeJob::CopyValues(const TKE::Node& source, qsizetype prefix, const TKE::Node& copy)
{
    const QStringView place = QStringView(source.GetBasePath()).mid(prefix);
    if (const TKE::Node* target = m_tree.FindNode(copy.GetBasePath() + place.toString()))
    {
        for (const auto& value : source.GetValues())
        {
            if (TKE::ValueBase* same = m_tree.FindValue(*target, value->GetName()))
            {
                same->SetStoredText(value->GetStoredText());
                same->SetExplicit(value->IsExplicit());
            }
        }
    }
    for (const auto& below : source.GetNodes())
        CopyValues(*below, prefix, copy);
}

bool LargeJob::Grow(const LargeJobPlan& plan, QString& reason)
{
    std::vector<const TKE::Node*> tasks;
    for (const TKE::Node* top : m_tree.GetTopNodes())
        CollectTasks(*top, tasks);
    m_left = plan.chains - CountChains();
    if (m_left < 0)
        reason = tr("The job has %1 chains already.").arg(CountChains());
    else if (m_left > 0 && tasks.empty())
        reason = tr("The job has no chain that could be repeated.");
    if (!reason.isEmpty())
        return false;

    std::optional<Contents> contents;
    if (plan.seed)
        contents.emplace(*plan.seed);
    for (int round = 2; m_left > 0; ++round)
    {
        for (const TKE::Node* task : tasks)
        {
            if (m_left == 0)
                break;
            const TKE::Node* copy =
                Copy(*task, task->GetParent()->GetBasePath(), FreeName(*task, round), plan.channels, reason);
            if (!copy)
                return false;
            CopyValues(*task, task->GetBasePath().size(), *copy);
            if (contents)
                ForEachValue(*copy, [&](TKE::ValueBase& value) { contents->Vary(value); });
        }
    }
    if (plan.allValues)
        for (const TKE::Node* top : m_tree.GetTopNodes())
            ForEachValue(*top, [](TKE::ValueBase& value) { value.SetExplicit(true); });
    return true;
}

} // namespace JOBEDIT
