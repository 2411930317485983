#pragma once

#include "value/valuedescriptor.h"

#include <QString>
#include <deque>

namespace TKE
{
class JobModelReader;
}

namespace JOBXMLGENERATOR
{

/// Which control shows a parameter in a panel; the numbers are those of the descriptor files.
enum class ControlType
{
    Combo = 0,
    CheckBox = 1,
    Integer = 2,
    Real = 3,
    Text = 4,
    Number = 5,
    Frequency = 6,
};

/// Where the value of a parameter sits, seen from the node that lists its group.
enum class Place
{
    Mapped,      ///< M, C, Z: below the node, under the name that the key manager gives
    Raw,         ///< R, P, U: below the node, under the key
    Channel,     ///< N: in a channel node below the node
    Data,        ///< W: as Mapped; in the data form below "Data/"
    DataBeside,  ///< W0: as Mapped; in the data form beside "Data/"
    Demodulator, ///< WD: as Data, in the demodulator's node
    Absolute,    ///< A: the key is the whole path
};

/// Describes one parameter of the job model: its key, texts, kind, range and items, and the panel row that shows it.
/// Made by the job model, which owns it.
class Parameter
{
public:
    Parameter() = default;
    /// Stands in for a parameter that the job model lacks: it has a key, no texts and no control.
    explicit Parameter(const QString& uniqueName) : m_name(uniqueName), m_controlType(ControlType::Real) {}

    /// The key. "{n}" in it stands for the number of a channel.
    const QString& GetUniqueParameterName() const { return m_name; }
    const QString& GetLabel() const { return m_descriptor.label; }
    const QString& GetDescription() const { return m_descriptor.description; }
    /// The unit that the panel shows beside the control, possibly empty. The unit of the stored number is in the value
    /// descriptor.
    const QString& GetUnit() const { return m_panelUnit; }

    ControlType GetControlType() const { return m_controlType; }
    /// Meaningful only when IsValidControlType says so.
    int GetControlSubType() const { return m_controlSubType; }
    /// Whether the sub-type of the control is given.
    bool IsValidControlType() const { return m_controlSubType >= 0; }

    bool IsFloat() const { return m_number == Number::Float; }
    bool IsDouble() const { return m_number == Number::Double; }
    bool IsLong() const { return m_number == Number::Long; }
    bool IsInteger() const { return m_number == Number::Integer; }
    bool IsDoubleList() const { return m_descriptor.kind == TKE::ValueKind::DoubleList; }
    /// Decimals.
    int GetFloatPrecision() const { return m_descriptor.precision; }
    int GetDoublePrecision() const { return m_descriptor.precision; }
    /// Lists: most rows, and numbers per row.
    int GetRowCount() const { return m_rowCount; }
    int GetColumnCount() const { return m_columnCount; }

    /// What the values of this parameter share. The values of a channel differ from those of the first one in their
    /// default at most.
    const TKE::ValueDescriptor& GetValueDescriptor(int channel = 1) const;

    Place GetPlace() const { return m_place; }
    /// Place::Channel: channel n has the node noun + n.
    const QString& GetChannelNoun() const { return m_channelNoun; }
    /// Whether each channel of a node has a value of its own.
    bool IsPerChannel() const { return m_place == Place::Channel || m_name.contains(QLatin1String("{n}")); }
    bool StartsDisabled() const { return m_startsDisabled; }

private:
    friend class TKE::JobModelReader;

    enum class Number
    {
        None,
        Float,
        Double,
        Long,
        Integer,
    };

    QString m_name;
    QString m_panelUnit;
    QString m_channelNoun;
    ControlType m_controlType = ControlType::Text;
    int m_controlSubType = -1;
    Number m_number = Number::None;
    int m_rowCount = 0;
    int m_columnCount = 1;
    Place m_place = Place::Mapped;
    bool m_startsDisabled = false;
    TKE::ValueDescriptor m_descriptor;
    qint64 m_channelStep = 0; // from one channel's default to the next one's
    mutable std::deque<TKE::ValueDescriptor>
        m_channelDescriptors; // of the channels from 2, as far as asked for; addresses stay
};

} // namespace JOBXMLGENERATOR
