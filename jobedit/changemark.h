#pragma once

#include <QCoreApplication>
#include <QRect>

class QPainter;
class QPalette;

namespace TKE
{
class ValueBase;
}

namespace JOBEDIT
{

class JobDocument;

/// How a value's content stands to the saved file and to its default, and the mark that shows it: a filled bar where it
/// differs from the file, an outlined one where it differs from the default, one above the other where both hold.
struct ChangeMark
{
    Q_DECLARE_TR_FUNCTIONS(JOBEDIT::ChangeMark)

public:
    static constexpr int width = 4;

    bool fromSaved = false;
    bool fromDefault = false;

    static ChangeMark Of(const JobDocument& document, const TKE::ValueBase& value);
    static bool DiffersFromDefault(const TKE::ValueBase& value);
    bool IsSet() const { return fromSaved || fromDefault; }
    /// The mark in words, with what the value was; empty when it is not set.
    QString InWords(const JobDocument& document, const TKE::ValueBase& value) const;
    /// `bar` is ChangeMark::width wide.
    void Paint(QPainter& painter, const QRect& bar, const QPalette& palette) const;

    bool operator==(const ChangeMark&) const = default;
};

} // namespace JOBEDIT
