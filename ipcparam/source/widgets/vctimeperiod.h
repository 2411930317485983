#pragma once

#include "value/value.h"
#include "valuewidgets/fieldholder.h"

#include <QWidget>

class QLabel;
class QTime;
class QTimeEdit;

namespace TKE
{

template <typename Widget> class PeriodWidget;

/// Edits a period of the day: a start and a stop, each a text value that holds a time as "hh:mm".
class VCTimePeriod : public QWidget, public IObserver, public FieldHolder
{
    Q_OBJECT

public:
    VCTimePeriod(QWidget* parent, const char* name);

    /// Binds the two text values. An empty value takes what its editor shows. Without either of them the widget is left
    /// disabled and unbound: false.
    bool SetPeriod_ValuePath(const QString& startPath, const QString& stopPath);

    /// Disables the widget for good, whatever the state of its values.
    void Lock();

    void Update(Observable* source, TChangeCode code) override;
    std::vector<Field> GetFields() const override;

private slots:
    void SlotStartTimeValueChanged(const QTime& time);
    void SlotStopTimeValueChanged(const QTime& time);

private:
    friend class PeriodWidget<VCTimePeriod>;

    /// Shows the content of `value` in `edit`, or writes what `edit` shows into an empty value.
    void Load(TextValue* value, QTimeEdit& edit);
    void Write(TextValue* value, const QTime& time);

    TextValue* m_startValue = nullptr;
    TextValue* m_stopValue = nullptr;
    QLabel* m_startLabel;
    QLabel* m_stopLabel;
    QTimeEdit* m_startEdit;
    QTimeEdit* m_stopEdit;
    QString m_timeFormat;
    bool m_bound = false;
    bool m_locked = false;
};

} // namespace TKE
