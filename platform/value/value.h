#pragma once

#include "value/format.h"
#include "value/valuebase.h"

namespace TKE
{

/// A value whose content is a T. Format converts between content and text (and checks the range), Stream between
/// content and the stored form of files.
template <class T, class Format, class Stream> class Q_DECL_EXPORT Value final : public ValueBase
{
public:
    using Content = T;

    explicit Value(const QString& name, const ValueDescriptor& descriptor = ValueDescriptor::Plain(Format::kind))
        : ValueBase(name, descriptor)
    {
    }
    ~Value() override { this->Release(); }

    const T& GetValue() const { return m_content; }

    bool SetValue(const T& content, const IObserver* excluded = nullptr, QString* reason = nullptr)
    {
        if (Format::IsSame(content, m_content))
            return true;
        if (!Format::IsAccepted(content, GetDescriptor(), reason))
            return false;
        Change(excluded, [&] { m_content = content; });
        return true;
    }

    QString GetText() const override { return Format::ToText(m_content); }
    bool SetFromText(const QString& text, const IObserver* excluded = nullptr, QString* reason = nullptr) override
    {
        T content{};
        return Format::FromText(text, content, reason) && SetValue(content, excluded, reason);
    }
    void AppendStored(std::string& out) const override { Stream::Append(out, m_content); }
    bool SetStored(std::string_view utf8, const IObserver* excluded = nullptr, QString* reason = nullptr) override
    {
        T content{};
        return Stream::Read(utf8, content, reason) && SetValue(content, excluded, reason);
    }

private:
    T m_content{};
};

using BoolValue = Value<bool, FormatBool<bool>, StreamFormat<bool, FormatBool<bool>>>;
using IntValue = Value<int, FormatInt<int>, StreamFormat<int, FormatInt<int>>>;
using DoubleValue = Value<double, FormatDouble<double>, StreamFormat<double, FormatDouble<double>>>;
using FrequencyValue = Value<qint64, FormatFrequency<qint64>, StreamFormat<qint64, FormatFrequency<qint64>>>;
using TextValue = Value<QString, FormatString<QString>, StreamFormat<QString, FormatString<QString>>>;
using DateTimeValue = Value<QDateTime, FormatDateTime<QDateTime>, StreamFormat<QDateTime, FormatDateTime<QDateTime>>>;
using DoubleListValue =
    Value<QList<double>, FormatDoubleList<QList<double>>, StreamFormat<QList<double>, FormatDoubleList<QList<double>>>>;

} // namespace TKE
