#pragma once

#include "value/value.h"
#include "valuewidgets/fieldholder.h"

#include <QWidget>

class QDate;
class QDateEdit;
class QLabel;

namespace TKE
{

template <typename Widget> class PeriodWidget;

/// Edits a period of days: a start and a stop, each a text value that holds a date in ISO form.
class VCDatePeriod : public QWidget, public IObserver, public FieldHolder
{
    Q_OBJECT

public:
    VCDatePeriod(QWidget* parent, const char* name);

    /// Binds the two text values. An empty value takes what its editor shows. Without either of them the widget is left
    /// disabled and unbound: false.
    bool SetPeriod_ValuePath(const QString& startPath, const QString& stopPath);

    /// Disables the widget for good, whatever the state of its values.
    void Lock();

    void Update(Observable* source, TChangeCode code) override;
    std::vector<Field> GetFields() const override;

private slots:
    void SlotStartDateValueChanged(const QDate& date);
    void SlotStopDateValueChanged(const QDate& date);

private:
    friend class PeriodWidget<VCDatePeriod>;

    /// Shows the content of `value` in `edit`, or writes what `edit` shows into an empty value.
    void Load(TextValue* value, QDateEdit& edit);
    void Write(TextValue* value, const QDate& date);

    TextValue* m_startValue = nullptr;
    TextValue* m_stopValue = nullptr;
    QLabel* m_startLabel;
    QLabel* m_stopLabel;
    QDateEdit* m_startEdit;
    QDateEdit* m_stopEdit;
    bool m_bound = false;
    bool m_locked = false;
};

} // namespace TKE
