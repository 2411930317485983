#pragma once

#include "jobmodel/jobfile.h"
#include "structureedit.h"

#include <QString>
#include <deque>
#include <memory>
#include <vector>

namespace JOBEDIT
{

/// One change of a step: a value's content before and after it in stored form or, with `structure`, one of the nodes.
struct EditChange
{
    QString path{};
    QString before{};
    QString after{};
    std::shared_ptr<StructureEdit> structure{};
    const TKE::ValueDescriptor* descriptor = nullptr; ///< of the value, for telling of it when it is gone
};

/// What one step of undo takes back: changes in the order in which they were made, each value once between two changes
/// of nodes.
struct EditStep
{
    quint64 number = 0; ///< of its making: no two steps of a run of the program share one
    quint64 act = 0;    ///< of the user; 0: none that could go on
    QString name;       ///< empty: told by the changes
    QString label;      ///< of the field of the first change
    std::vector<EditChange> changes;

    /// The step's name or what it did, like "Gain: AGC -> MGC", in the user's language.
    QString GetText() const;
};

} // namespace JOBEDIT
