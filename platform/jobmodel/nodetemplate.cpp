#include "jobmodel/nodetemplate.h"

#include "keys/keymanager.h"
#include "value/tree.h"

#include <algorithm>
#include <cctype>

namespace TKE
{

using JOBXMLGENERATOR::Place;

namespace
{

QString WithChannel(QString key, int channel)
{
    return key.replace(QLatin1String("{n}"), QString::number(channel));
}

struct Paths
{
    QString file; // below the node, as files name it
    QString tree; // the same in the tree
    bool absolute = false;
};

Paths PathsOf(const JOBXMLGENERATOR::Parameter& parameter, int channel, bool dataForm)
{
    const QString key = WithChannel(parameter.GetUniqueParameterName(), channel);
    const auto mapped = [](const QString& path) { return Paths{path, KeyManager::Instance()->GetFullNameByKey(path)}; };
    const auto raw = [](const QString& path) { return Paths{path, path}; };
    const QString data = QStringLiteral("Data/");
    const QString demodulator = QStringLiteral("WAVECOM_DEMODULATOR_HF/");
    switch (parameter.GetPlace())
    {
    case Place::Mapped:
        return mapped(key);
    case Place::Raw:
        return raw(key);
    case Place::Channel:
        return raw(parameter.GetChannelNoun() + QString::number(channel) + QLatin1Char('/') + key);
    case Place::Data:
        return dataForm ? raw(data + key) : mapped(key);
    case Place::DataBeside:
        return dataForm ? raw(key) : mapped(key);
    case Place::Demodulator:
        return dataForm ? raw(data + demodulator + key) : mapped(demodulator + key);
    case Place::Absolute:
        return {key, key, true};
    }
    return {};
}

} // namespace

NodeTemplate::NodeTemplate(const JobModel& model, const NodeSpec& spec)
{
    HomeOf({}, false);
    for (const QString& name : spec.groups)
    {
        if (const ParameterGroup* group = model.FindGroup(name, spec.band))
            AddGroup(*group, spec);
        else
            m_unknownGroups.append(name);
    }
    // Templates stay; those of many channels are large.
    m_entries.shrink_to_fit();
    m_homes.shrink_to_fit();
}

void NodeTemplate::AddGroup(const ParameterGroup& group, const NodeSpec& spec)
{
    // Common values first, then channel by channel.
    for (const auto& parameter : group.GetParameters())
    {
        if (!parameter->IsPerChannel())
            AddParameter(*parameter, 1, spec);
    }
    for (int channel = 1; channel <= spec.count; ++channel)
    {
        for (const auto& parameter : group.GetParameters())
        {
            if (parameter->IsPerChannel())
                AddParameter(*parameter, channel, spec);
        }
    }
    for (const ParameterRule& rule : group.GetRules())
    {
        if (!group.FindParameter(rule.target)->IsPerChannel())
            AddRule(rule, group, 1, spec.dataForm);
        else
        {
            for (int channel = 1; channel <= spec.count; ++channel)
                AddRule(rule, group, channel, spec.dataForm);
        }
    }
}

void NodeTemplate::AddParameter(const Parameter& parameter, int channel, const NodeSpec& spec)
{
    const Paths paths = PathsOf(parameter, channel, spec.dataForm);
    const qsizetype slash = paths.tree.lastIndexOf(QLatin1Char('/'));
    Entry entry;
    entry.fileName = paths.file.toStdString();
    // A key that several groups name exists once, as the first describes it.
    if (m_byFileName.contains(std::string_view(entry.fileName)))
        return;
    entry.descriptor = &parameter.GetValueDescriptor(channel);
    entry.defaultText = entry.descriptor->defaultText.toStdString();
    entry.name = &Tree::Intern(QStringView(paths.tree).mid(slash + 1));
    entry.home = HomeOf(QStringView(paths.tree).left(slash + 1), paths.absolute);
    entry.slot = quint32(m_homes[entry.home].size++);
    entry.startsDisabled = parameter.StartsDisabled();
    entry.isPlain = std::all_of(entry.fileName.begin(), entry.fileName.end(),
                                [](unsigned char byte) { return std::isalnum(byte) || byte == '_' || byte == '/'; });
    m_entries.push_back(std::move(entry));
    m_byFileName.insert(quint32(m_entries.size() - 1));
}

void NodeTemplate::AddRule(const ParameterRule& rule, const ParameterGroup& group, int channel, bool dataForm)
{
    const auto indexOf = [&](const QString& key)
    {
        const Parameter& parameter = *group.FindParameter(key);
        return FindEntry(PathsOf(parameter, channel, dataForm).file.toStdString());
    };
    const qsizetype target = indexOf(rule.target);
    const qsizetype source = indexOf(rule.source);
    if (target >= 0 && source >= 0)
        m_rules.push_back({quint32(target), quint32(source), rule.keys});
}

quint32 NodeTemplate::HomeOf(QStringView path, bool absolute)
{
    // Usually the latest: a channel's values follow one another.
    for (size_t i = m_homes.size(); i-- > 0;)
    {
        if (m_homes[i].path == path && m_homes[i].absolute == absolute)
            return quint32(i);
    }
    m_homes.push_back({path.toString(), absolute});
    return quint32(m_homes.size() - 1);
}

qsizetype NodeTemplate::FindEntry(std::string_view fileName, size_t hint) const
{
    if (hint < m_entries.size() && m_entries[hint].fileName == fileName)
        return qsizetype(hint);
    const auto found = m_byFileName.find(fileName);
    return found != m_byFileName.end() ? qsizetype(*found) : -1;
}

} // namespace TKE
