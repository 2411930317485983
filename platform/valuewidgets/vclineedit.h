#pragma once

#include "valuewidgets/suffixeddouble.h"
#include "valuewidgets/textentry.h"

#include <QLineEdit>

namespace TKE
{

/// A line edit for a text, an integer, a number, a frequency, or a date and time ("dd.MM.yyyy hh:mm:ss").
///
/// Numbers are shown as the user's locale has it, without group separators; see Decimal for what is understood. The
/// user's edit is written on Return and on leaving the field.
class VCLineEdit : public QLineEdit, public TextEntry
{
    Q_OBJECT

public:
    explicit VCLineEdit(QWidget* parent = nullptr, const QString& name = {});

    bool SetText_ValuePath(const QString& path) { return BindPath(path); }

    /// Whether a refused entry is only marked in place (true), or reported through ErrorHandler as well (false, the
    /// default).
    void SuppressErrorMessage(bool suppress) { m_suppressMessage = suppress; }

    /// How a number is shown: at least `digits` digits before the decimal point (filled with zeros; 0: as many as it
    /// takes), exactly `decimals` behind it, between `prefix` and `suffix`; shown = stored x `factor`. What is typed
    /// may leave prefix and suffix out.
    void SetFormat(int digits, int decimals, const QString& prefix, const QString& suffix, double factor);

    /// Shows frequencies (stored in Hz) as a number of kHz or MHz. A unit that is typed behind the number overrides it.
    void SetFrequencyForm(bool kiloHertz) { SetFrequencyUnit(kiloHertz ? SuffixedDouble::Kilo : SuffixedDouble::Mega); }
    void SetFrequencyUnit(SuffixedDouble::ESuffix unit);

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

    bool CanShow(const ValueBase& value) const override;
    QLineEdit& Field() const override { return const_cast<VCLineEdit&>(*this); }
    QString ContentText() const override;
    bool Write(const QString& typed, QString& reason) override;
    void OnRefused(const QString& reason) override;

private:
    struct Format
    {
        int digits;
        int decimals;
        QString prefix;
        QString suffix;
        double factor;
    };
    QString NumberAsText(double stored) const;
    bool WriteNumber(ValueBase& value, QString typed, QString& reason);

    std::unique_ptr<const Format> m_format; // null: numbers as they are
    SuffixedDouble::ESuffix m_unit = SuffixedDouble::Hertz;
    bool m_suppressMessage = false;
};

} // namespace TKE
