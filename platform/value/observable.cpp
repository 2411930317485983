#include "value/observable.h"

namespace TKE
{

// The observers of an observable that has more than one. Within a round, who leaves becomes a hole, so that indices
// stay.
struct Observable::Crowd
{
    std::vector<IObserver*> observers;
    size_t live = 0;
    int rounds = 0;        // rounds of notification under way
    bool orphaned = false; // the observable died within a round; the outermost round deletes the crowd
};

struct Observable::Round
{
    explicit Round(Observable& o) : owner(o), crowd(*o.Many()) { ++crowd.rounds; }
    ~Round()
    {
        if (--crowd.rounds > 0)
            return;
        if (!crowd.orphaned && crowd.live > 0)
        {
            if (crowd.live < crowd.observers.size())
                std::erase(crowd.observers, nullptr);
            return;
        }
        if (!crowd.orphaned)
            owner.m_word = 0;
        delete &crowd;
    }
    Observable& owner; // gone once the crowd is orphaned
    Crowd& crowd;
};

IObserver::~IObserver()
{
    while (Observable* observable = m_observed.TakeOne())
        observable->Remove(this);
}

Observable::~Observable()
{
    if (IObserver* only = Single())
    {
        only->m_observed.Remove(this);
        return;
    }
    Crowd* crowd = Many();
    if (!crowd)
        return;
    for (IObserver*& observer : crowd->observers)
    {
        if (observer)
            observer->m_observed.Remove(this);
        observer = nullptr; // which ends the rounds under way
    }
    if (crowd->rounds > 0)
        crowd->orphaned = true;
    else
        delete crowd;
}

bool Observable::IsObserved() const
{
    const Crowd* crowd = Many();
    return crowd ? crowd->live > 0 : m_word != 0;
}

bool Observable::IsAttached(const IObserver* observer) const
{
    const Crowd* crowd = Many();
    if (!crowd)
        return Single() == observer;
    // Whichever list is shorter.
    if (observer->m_observed.Size() < crowd->live)
        return observer->m_observed.Contains(this);
    return std::find(crowd->observers.begin(), crowd->observers.end(), observer) != crowd->observers.end();
}

void Observable::AttachFurther(IObserver* observer)
{
    if (!observer || IsAttached(observer))
        return;
    Crowd* crowd = Many();
    if (!crowd)
    {
        crowd = new Crowd{{Single()}, 1, 0, false};
        m_word = reinterpret_cast<quintptr>(crowd) | 1;
    }
    crowd->observers.push_back(observer);
    ++crowd->live;
    observer->m_observed.Add(this);
}

void Observable::DetachOneOfMany(IObserver* observer)
{
    if (observer && observer->m_observed.Remove(this))
        Remove(observer);
}

void Observable::Remove(const IObserver* observer)
{
    Crowd* crowd = Many();
    if (!crowd)
    {
        m_word = 0;
        return;
    }
    // From the back: who came last usually goes first.
    size_t place = crowd->observers.size() - 1;
    while (crowd->observers[place] != observer)
        --place;
    --crowd->live;
    if (crowd->rounds > 0)
        crowd->observers[place] = nullptr;
    else
        crowd->observers.erase(crowd->observers.begin() + ptrdiff_t(place));
    if (crowd->live == 0 && crowd->rounds == 0)
    {
        delete crowd;
        m_word = 0;
    }
}

void Observable::NotifyMany(TChangeCode code, const IObserver* excluded)
{
    const Round round(*this);
    Crowd& crowd = round.crowd;
    const size_t count = crowd.observers.size();
    for (size_t i = 0; i < count; ++i)
    {
        IObserver* observer = crowd.observers[i];
        if (observer && observer != excluded)
            observer->Update(this, code);
    }
}

} // namespace TKE
