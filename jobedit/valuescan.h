#pragma once

#include "valuelisting.h"

#include <QHash>
#include <QObject>
#include <QThreadPool>
#include <QTimer>

namespace TKE
{
class Node;
struct ValueDescriptor;
} // namespace TKE

namespace JOBEDIT
{

class JobDocument;

/// What is asked of a list of values.
struct ValueQuery
{
    QString text;  ///< within label, key, path or content; case does not matter
    QString below; ///< only the node at this path ("/" at the end) and those below it; empty: all
    bool onlyFromSaved = false;
    bool onlyFromDefault = false;
    bool isFlat = false;
    ValueListing::Column sortedBy = ValueListing::Path; ///< flat lists only
    Qt::SortOrder order = Qt::AscendingOrder;

    /// Whether a change of a value's content may change the list.
    bool DependsOnContent() const
    {
        return !text.isEmpty() || onlyFromSaved || onlyFromDefault || (isFlat && sortedBy == ValueListing::Content);
    }
};

/// Makes lists of values without holding up the event loop: it looks through the job in slices of some milliseconds and
/// sorts in a thread, which sees copies only. The job may change meanwhile.
class ValueScan : public QObject
{
    Q_OBJECT

public:
    explicit ValueScan(const JobDocument& document, QObject* parent);

    /// Begins anew; a scan under way is given up.
    void Start(ValueQuery query);
    void Stop();
    bool IsRunning() const { return m_running; }

signals:
    /// The receiver may take the list.
    void Finished(ValueListing& listing);

private:
    struct SortKey
    {
        double number;
        QString text;
    };
    void Begin();
    void AddBranches(const TKE::Node& node, quint32 parent);
    void Slot_OnSlice();
    void ScanSome();
    bool Accepts(const TKE::ValueBase& value, bool pathMatches);
    SortKey KeyOf(const TKE::ValueBase& value) const;
    void Prune();
    void Sort();

    const JobDocument& m_document;
    ValueQuery m_query;
    ValueListing m_listing;
    std::vector<SortKey> m_keys;                       // one for each row when it is to be sorted
    QHash<const TKE::ValueDescriptor*, bool> m_labels; // whether the text is within the label
    QTimer m_timer;
    quint32 m_branch = 0; // where the next slice begins
    quint32 m_place = 0;
    bool m_running = false;
    int m_generation = 0;
    QThreadPool m_sorter; // the last member: it is waited for before the others go
};

} // namespace JOBEDIT
