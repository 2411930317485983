#pragma once

#include "valuewidgets/textentry.h"

#include <QAbstractSpinBox>

namespace TKE
{

/// A spin box for an integer, a number or a frequency; range, step and decimals are those of the value's descriptor.
///
/// What is shown is rounded and may lie outside the range; the value stays as it is until the user edits it. Written is
/// on Return, on leaving the field and on each step; steps keep to the range. The wheel works in a focused box only.
class VCNumericFloatSpin : public QAbstractSpinBox, public TextEntry
{
    Q_OBJECT
    Q_PROPERTY(double value READ value)
    Q_PROPERTY(double minimum READ minimum)
    Q_PROPERTY(double maximum READ maximum)
    Q_PROPERTY(int decimals READ decimals)

public:
    explicit VCNumericFloatSpin(QWidget* parent = nullptr, const QString& name = {});

    /// Both take integers, numbers and frequencies (in Hz).
    bool SetNumericInt_ValuePath(const QString& path) { return BindPath(path); }
    bool SetNumericFloat_ValuePath(const QString& path) { return BindPath(path); }

    /// Shown = stored x `factor`: 0.001 shows Hz as kHz. Best set before binding. Nothing happens when `factor` is not
    /// above 0.
    void SetFactor(double factor);
    /// Shows exactly `decimals` decimals. Before that they are those of the descriptor's precision and as many more as
    /// the factor asks for.
    void setAdditionalPrecision(int decimals);
    /// Whether a step beyond one end of the range goes on at the other; off at first.
    void EnableWrapAround(bool enable) { setWrapping(enable); }

    /// Shown number, not rounded; 0 when unbound. The range too is in shown units, and infinite where the descriptor
    /// sets no limit.
    double value() const;
    double minimum() const { return m_minimum * m_factor; }
    double maximum() const { return m_maximum * m_factor; }
    int decimals() const;

    void stepBy(int steps) override;
    /// Boxes of equally long numbers share their hints.
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    bool event(QEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    StepEnabled stepEnabled() const override;

    bool CanShow(const ValueBase& value) const override;
    QLineEdit& Field() const override { return *lineEdit(); }
    void ShowDescription() override;
    void ShowContent() override;
    QString ContentText() const override;
    bool Write(const QString& typed, QString& reason) override;
    bool IsPending() const override { return m_stepped.has_value(); }

private:
    QString Shown(double stored) const;
    bool Read(const QString& typed, double& stored, QString& reason) const;

    double m_factor = 1.0;
    double m_minimum = 0; // of the stored number, like m_maximum
    double m_maximum = 0;
    std::optional<double> m_stepped; // stored number that a step led to, until it is written
    int m_decimals = -1;             // those of setAdditionalPrecision; -1: see there
};

} // namespace TKE
