#pragma once

#include "value/valuebase.h"

#include <QLocale>

namespace TKE
{

/// Integers, numbers and frequencies seen as one kind. Stored numbers are doubles here, which hold each of them
/// exactly.
class NumericValue
{
public:
    static bool Is(const ValueBase& value);

    /// The stored number of a value that is one; 0 of any other.
    static double Get(const ValueBase& value);
    /// Writes `stored`, which must be whole for integers and frequencies.
    static bool Set(ValueBase& value, double stored, const IObserver* excluded, QString& reason);

    /// The range of the descriptor, or of the kind, in stored units; infinite where there is none.
    static double GetMinimum(const ValueBase& value);
    static double GetMaximum(const ValueBase& value);
    /// Decimals that show all digits of a stored number x `factor`.
    static int GetDecimals(const ValueBase& value, double factor);

    /// Reads what was typed for `value`, or for an entry of a list, shown = stored x `factor`, and checks it. A
    /// frequency may have a unit, which goes before the factor. `reason` is for people.
    static bool Read(const ValueBase& value, const QString& typed, double factor, const QLocale& locale, double& stored,
                     QString& reason);
    /// Whether `stored` lies in the range; the reason otherwise is in shown units.
    static bool IsInRange(const ValueBase& value, double stored, double factor, const QLocale& locale, QString& reason);
};

} // namespace TKE
