#include "valuewidgets/decimal.h"

#include <QCoreApplication>
#include <array>
#include <charconv>
#include <cmath>

namespace TKE
{

namespace
{

QString Tr(const char* text)
{
    return QCoreApplication::translate("TKE::Decimal", text);
}

bool IsBlankSeparator(char16_t c)
{
    switch (c)
    {
    case u' ':
    case u'\'':
    case u'\u00a0': // no-break space
    case u'\u2009': // thin space
    case u'\u202f': // narrow no-break space
    case u'\u2019': // right quotation mark
    case u'\u066c': // what groups Arabic digits
        return true;
    default:
        return false;
    }
}

// The digits of an integer part that may be grouped by `separator` (0: by nothing); nothing when a group is malformed.
std::optional<std::string> JoinGroups(const std::u16string& part, char16_t separator)
{
    std::string digits;
    size_t group = 0; // digits since the last separator
    bool grouped = false;
    for (const char16_t c : part)
    {
        if (c == separator)
        {
            if (grouped ? group != 3 : (group < 1 || group > 3))
                return {};
            grouped = true;
            group = 0;
            continue;
        }
        if (c < u'0' || c > u'9')
            return {};
        digits += char(c);
        ++group;
    }
    if (grouped && group != 3)
        return {};
    return digits;
}

// How a locale writes numbers, looked up once as long as the locale stays the same.
struct Marks
{
    QLocale locale;
    QString point;
    bool plain; // digits and minus are those of ASCII

    explicit Marks(const QLocale& l)
        : locale(l), point(l.decimalPoint()), plain(l.zeroDigit() == u"0" && l.negativeSign() == u"-")
    {
        locale.setNumberOptions(QLocale::OmitGroupSeparator);
    }
    static const Marks& Of(const QLocale& locale)
    {
        static QLocale last = locale;
        static Marks marks(locale);
        if (locale != last)
        {
            last = locale;
            marks = Marks(locale);
        }
        return marks;
    }
    /// `text` is a number as C writes it.
    QString Localized(const char* text, qsizetype size) const
    {
        QString result;
        result.reserve(size);
        for (const char* c = text; c != text + size; ++c)
        {
            if (*c == '.')
                result += point;
            else if (!plain && *c == '-')
                result += locale.negativeSign();
            else if (!plain && *c >= '0' && *c <= '9')
                result += locale.toString(*c - '0');
            else
                result += QLatin1Char(*c);
        }
        return result;
    }
};

} // namespace

std::optional<Decimal> Decimal::Read(const QString& text, const QLocale& locale, QString& reason)
{
    const auto refuse = [&]() -> std::optional<Decimal>
    {
        reason = Tr("\"%1\" is not a number").arg(text);
        return {};
    };

    // Digits of any script, one kind of minus, the decimal point of Arabic digits as a dot. The marks of the writing
    // direction, which come with a minus there, mean nothing.
    std::u16string typed;
    const QString trimmed = text.trimmed();
    for (const QChar c : trimmed)
    {
        if (c.isDigit())
            typed += char16_t(u'0' + c.digitValue());
        else if (c.category() != QChar::Other_Format)
            typed += c == u'\u2212' ? u'-' : c == u'\u066b' ? u'.' : c.unicode();
    }
    if (typed.empty())
    {
        reason = Tr("A number is missing");
        return {};
    }

    Decimal number;
    if (typed.front() == u'-' || typed.front() == u'+')
    {
        number.m_negative = typed.front() == u'-';
        typed.erase(0, 1);
    }
    if (const size_t e = typed.find_first_of(u"eE"); e != std::u16string::npos)
    {
        bool ok = false;
        number.m_exponent = QStringView(typed).mid(qsizetype(e) + 1).toInt(&ok);
        if (!ok || std::abs(number.m_exponent) > 1000)
            return refuse();
        typed.erase(e);
    }

    // Which separator is the decimal point, and which one groups?
    const auto count = [&](char16_t c) { return std::count(typed.begin(), typed.end(), c); };
    const auto dots = count(u'.');
    const auto commas = count(u',');
    const auto blank = std::find_if(typed.begin(), typed.end(), IsBlankSeparator);
    const size_t lastMark = typed.find_last_of(u".,");
    char16_t point = 0;
    char16_t group = blank != typed.end() ? *blank : 0;
    if (dots + commas == 1 || (dots && commas))
        point = typed[lastMark];
    if (dots > 1 || commas > 1 || (dots && commas))
    {
        if (group)
            return refuse();
        group = point ? (point == u'.' ? u',' : u'.') : typed[lastMark];
    }
    if (point && count(point) > 1)
        return refuse();

    const std::u16string whole = typed.substr(0, point ? lastMark : typed.size());
    const std::u16string fraction = point ? typed.substr(lastMark + 1) : std::u16string();
    const auto wholeDigits = JoinGroups(whole, group);
    const auto fractionDigits = JoinGroups(fraction, 0);
    if (!wholeDigits || !fractionDigits || wholeDigits->size() + fractionDigits->size() == 0)
        return refuse();

    if (point && !group && locale.groupSeparator() == QChar(point) && fraction.size() == 3 && !whole.empty() &&
        whole.size() <= 3 && whole.front() != u'0')
    {
        reason = Tr("\"%1\" can be read as %2 and as %3")
                     .arg(text, QString::fromStdString(*wholeDigits + *fractionDigits),
                          QString::fromStdString(*wholeDigits) + locale.decimalPoint() +
                              QString::fromStdString(*fractionDigits));
        return {};
    }

    number.m_digits = *wholeDigits + *fractionDigits;
    number.m_digits.erase(0, std::min(number.m_digits.find_first_not_of('0'), number.m_digits.size()));
    number.m_exponent -= int(fractionDigits->size());
    return number;
}

std::optional<qint64> Decimal::ToInteger(int exponent) const
{
    std::string digits = m_digits;
    for (exponent += m_exponent; exponent < 0 && !digits.empty() && digits.back() == '0'; ++exponent)
        digits.pop_back();
    if (digits.empty())
        return 0;
    if (exponent < 0 || digits.size() + size_t(exponent) > 19)
        return {};
    digits.append(size_t(exponent), '0');
    if (m_negative)
        digits.insert(0, 1, '-');
    qint64 number = 0;
    if (std::from_chars(digits.data(), digits.data() + digits.size(), number).ec != std::errc())
        return {};
    return number;
}

std::optional<double> Decimal::ToDouble(int exponent) const
{
    if (m_digits.empty())
        return 0.0;
    const std::string text = (m_negative ? "-" : "") + m_digits + "e" + std::to_string(m_exponent + exponent);
    double number = 0;
    if (std::from_chars(text.data(), text.data() + text.size(), number).ec != std::errc())
        return {};
    return number;
}

QString Decimal::ToText(double number, int decimals, const QLocale& locale)
{
    std::array<char, 512> text;
    char* const end = text.data() + text.size();
    const double size = std::abs(number);
    std::to_chars_result written{};
    if (decimals >= 0)
        written = std::to_chars(text.data(), end, number, std::chars_format::fixed, decimals);
    else if (size == 0 || (size >= 1e-7 && size < 1e16))
        written = std::to_chars(text.data(), end, number, std::chars_format::fixed);
    else
        written = std::to_chars(text.data(), end, number);
    return Marks::Of(locale).Localized(text.data(), written.ec == std::errc() ? written.ptr - text.data() : 0);
}

QString Decimal::ToText(qint64 number, int decimals, const QLocale& locale)
{
    std::string text = std::to_string(number);
    const size_t sign = number < 0;
    if (decimals > 0)
    {
        const size_t most = size_t(decimals) + 1;
        if (text.size() - sign < most)
            text.insert(sign, most - (text.size() - sign), '0');
        text.insert(text.size() - size_t(decimals), 1, '.');
        text.erase(text.find_last_not_of('0') + 1);
        if (text.back() == '.')
            text.pop_back();
    }
    return Marks::Of(locale).Localized(text.data(), qsizetype(text.size()));
}

} // namespace TKE
