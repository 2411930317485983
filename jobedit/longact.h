#pragma once

#include "edithistory.h"
#include "longwork.h"

namespace JOBEDIT
{

/// Long work that writes into the job or takes back what was written: it tells how far it is and is cancelled as a
/// whole.
class LongAct : public LongWork
{
public:
    LongAct(QString title, QWidget* window, EditHistory& history)
        : LongWork(std::move(title), window), m_history(history)
    {
        m_history.SetProgress([this](qint64 done, qint64 all) { return Progress(done, all); });
    }
    ~LongAct() override { m_history.SetProgress({}); }

private:
    EditHistory& m_history;
};

} // namespace JOBEDIT
