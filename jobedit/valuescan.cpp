#include "valuescan.h"

#include "changemark.h"
#include "jobdocument.h"
#include "value/tree.h"
#include "valuetexts.h"

#include <QElapsedTimer>
#include <algorithm>
#include <limits>
#include <memory>
#include <numeric>

namespace JOBEDIT
{

namespace
{

constexpr int sliceLength = 8; // ms; others work in slices at the same time
constexpr quint32 atOnce = 64;  // values between two looks at the clock

bool Holds(const QString& text, const QString& sought)
{
    return text.contains(sought, Qt::CaseInsensitive);
}

bool IsNumber(const TKE::ValueBase& value)
{
    return value.GetKind() == TKE::ValueKind::Int || value.GetKind() == TKE::ValueKind::Double ||
           value.GetKind() == TKE::ValueKind::Frequency;
}

} // namespace

ValueScan::ValueScan(const JobDocument& document, QObject* parent) : QObject(parent), m_document(document)
{
    m_timer.setInterval(0);
    connect(&m_timer, &QTimer::timeout, this, &ValueScan::Slot_OnSlice);
    m_sorter.setMaxThreadCount(1);
}

void ValueScan::Start(ValueQuery query)
{
    Stop();
    m_query = std::move(query);
    m_listing = {};
    m_keys.clear();
    m_labels.clear();
    m_branch = 1;
    m_place = 0;
    m_running = true;
    m_timer.start();
}

void ValueScan::Begin()
{
    m_listing.isFlat = m_query.isFlat;
    m_listing.branches.emplace_back();
    for (const TKE::Node* top : TKE::Tree::Instance()->GetTopNodes())
    {
        // The root has no name to show.
        if (!top->GetName().isEmpty() || !top->GetValues().empty())
            AddBranches(*top, 0);
        else
            for (const auto& node : top->GetNodes())
                AddBranches(*node, 0);
    }
}

void ValueScan::Stop()
{
    ++m_generation;
    m_running = false;
    m_timer.stop();
}

void ValueScan::AddBranches(const TKE::Node& node, quint32 parent)
{
    const QString& path = node.GetBasePath();
    // Those above the node asked for lead to it and show no values.
    if (!path.startsWith(m_query.below) && !m_query.below.startsWith(path))
        return;
    const auto branch = quint32(m_listing.branches.size());
    ValueListing::Branch& added = m_listing.branches.emplace_back();
    added.path = path;
    added.parent = parent;
    for (const auto& below : node.GetNodes())
        AddBranches(*below, branch);
}

void ValueScan::Slot_OnSlice()
{
    QElapsedTimer slice;
    slice.start();
    if (m_listing.branches.empty())
        Begin(); // in a turn of its own: a new job keeps the one that asks busy
    while (m_branch < m_listing.branches.size())
    {
        ScanSome();
        if (slice.hasExpired(sliceLength))
            return;
    }
    m_timer.stop();
    if (m_query.isFlat)
        return Sort();
    Prune();
    m_running = false;
    emit Finished(m_listing);
}

void ValueScan::ScanSome()
{
    ValueListing::Branch& branch = m_listing.branches[m_branch];
    if (m_place == 0)
        branch.firstRow = quint32(m_listing.rows.size());
    // Found anew each time: it may have gone, or lost values.
    const TKE::Node* node =
        branch.path.startsWith(m_query.below) ? TKE::Tree::Instance()->FindNode(branch.path) : nullptr;
    const auto count = quint32(node ? node->GetValues().size() : 0);
    const bool pathMatches = Holds(branch.path, m_query.text);
    for (const quint32 end = std::min(count, m_place + atOnce); m_place < end; ++m_place)
    {
        const TKE::ValueBase& value = *node->GetValues()[m_place];
        if (!Accepts(value, pathMatches))
            continue;
        m_listing.rows.push_back({m_branch, m_place});
        ++branch.rowCount;
        if (m_query.isFlat)
            m_keys.push_back(KeyOf(value));
    }
    if (m_place < count)
        return;
    ++m_branch;
    m_place = 0;
}

bool ValueScan::Accepts(const TKE::ValueBase& value, bool pathMatches)
{
    if (m_query.onlyFromSaved && !m_document.DiffersFromSaved(value))
        return false;
    if (m_query.onlyFromDefault && !ChangeMark::DiffersFromDefault(value))
        return false;
    if (pathMatches || Holds(value.GetName(), m_query.text))
        return true;
    auto label = m_labels.find(&value.GetDescriptor());
    if (label == m_labels.end())
        label = m_labels.insert(&value.GetDescriptor(), Holds(ValueTexts::Label(value), m_query.text));
    return *label || Holds(ValueTexts::OfContent(value), m_query.text);
}

ValueScan::SortKey ValueScan::KeyOf(const TKE::ValueBase& value) const
{
    const auto ofStored = [&](const QString& stored) -> SortKey
    {
        bool isNumber = false;
        const double number = IsNumber(value) ? stored.toDouble(&isNumber) : 0.0;
        // Numbers go before texts.
        return isNumber ? SortKey{number, {}}
                        : SortKey{std::numeric_limits<double>::infinity(), ValueTexts::OfStored(value.GetDescriptor(), stored)};
    };
    switch (m_query.sortedBy)
    {
    case ValueListing::Label:
        return {0, ValueTexts::Label(value)};
    case ValueListing::Content:
        return ofStored(value.GetStoredText());
    case ValueListing::Saved:
        return ofStored(m_document.SavedText(value));
    case ValueListing::Default:
        return ofStored(value.GetDescriptor().defaultText);
    case ValueListing::Key:
        return {0, value.GetName()};
    case ValueListing::Path:
    case ValueListing::ColumnCount:
        break;
    }
    return {double(m_branch), value.GetName()}; // nodes in the order of the job
}

void ValueScan::Prune()
{
    auto& branches = m_listing.branches;
    std::vector<bool> leads(branches.size());
    for (size_t branch = branches.size(); --branch > 0;)
    {
        leads[branch] = leads[branch] || branches[branch].rowCount > 0;
        if (leads[branch])
            leads[branches[branch].parent] = true;
    }
    for (size_t branch = 1; branch < branches.size(); ++branch)
    {
        if (!leads[branch])
            continue;
        auto& siblings = branches[branches[branch].parent].branches;
        branches[branch].position = quint32(siblings.size());
        siblings.push_back(quint32(branch));
    }
}

void ValueScan::Sort()
{
    m_listing.branches.front().rowCount = quint32(m_listing.rows.size());
    struct Work
    {
        ValueListing listing;
        std::vector<SortKey> keys;
    };
    auto work = std::make_shared<Work>(Work{std::exchange(m_listing, {}), std::exchange(m_keys, {})});
    const auto sort = [this, work, generation = m_generation, order = m_query.order]
    {
        const std::vector<SortKey>& keys = work->keys;
        const auto less = [&](quint32 left, quint32 right)
        {
            if (order == Qt::DescendingOrder)
                std::swap(left, right);
            return keys[left].number != keys[right].number
                       ? keys[left].number < keys[right].number
                       : keys[left].text.compare(keys[right].text, Qt::CaseInsensitive) < 0;
        };
        std::vector<quint32> sorted(keys.size());
        std::iota(sorted.begin(), sorted.end(), 0);
        std::stable_sort(sorted.begin(), sorted.end(), less);
        std::vector<ValueListing::Row> rows(sorted.size());
        std::transform(sorted.begin(), sorted.end(), rows.begin(),
                       [&](quint32 row) { return work->listing.rows[row]; });
        work->listing.rows = std::move(rows);
        work->keys = std::vector<SortKey>(); // a million texts take a while to go
        const auto finish = [this, work, generation]
        {
            if (generation != m_generation)
                return; // another list has been asked for
            m_running = false;
            emit Finished(work->listing);
        };
        QMetaObject::invokeMethod(this, finish, Qt::QueuedConnection);
    };
    m_sorter.start(sort);
}

} // namespace JOBEDIT
