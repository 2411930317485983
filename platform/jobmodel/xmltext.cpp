#include "jobmodel/xmltext.h"

#include <array>

namespace TKE::XmlText
{

namespace
{

// Whether the byte stands for itself wherever it is.
constexpr std::array<bool, 256> plain = []
{
    std::array<bool, 256> all{};
    for (size_t byte = 0x20; byte < all.size(); ++byte)
        all[byte] = std::string_view("&<>\"\xEF").find(char(byte)) == std::string_view::npos;
    return all;
}();

void Append(std::string& out, std::string_view utf8, bool attribute)
{
    for (size_t i = 0; i < utf8.size(); ++i)
    {
        const size_t begin = i;
        while (i < utf8.size() && plain[static_cast<unsigned char>(utf8[i])])
            ++i;
        out.append(utf8, begin, i - begin);
        if (i == utf8.size())
            break;
        const char byte = utf8[i];
        switch (byte)
        {
        case '&':
            out += "&amp;";
            break;
        case '<':
            out += "&lt;";
            break;
        case '>':
            out += "&gt;";
            break;
        case '\r': // a parser would take it for part of a line end
            out += "&#13;";
            break;
        case '"':
            out += attribute ? "&quot;" : "\"";
            break;
        case '\n':
            out += attribute ? "&#10;" : "\n";
            break;
        case '\t':
            out += attribute ? "&#9;" : "\t";
            break;
        case '\xEF': // U+FFFE and U+FFFF are no characters
            if (utf8.substr(i).starts_with("\xEF\xBF\xBE") || utf8.substr(i).starts_with("\xEF\xBF\xBF"))
            {
                out += "\xEF\xBF\xBD";
                i += 2;
                break;
            }
            [[fallthrough]];
        default:
            if (static_cast<unsigned char>(byte) < 0x20)
                out += "\xEF\xBF\xBD";
            else
                out += byte;
        }
    }
}

} // namespace

void AppendContent(std::string& out, std::string_view utf8)
{
    Append(out, utf8, false);
}
void AppendAttribute(std::string& out, std::string_view utf8)
{
    Append(out, utf8, true);
}

std::string_view Trimmed(std::string_view text)
{
    text = text.substr(0, BlankEnd(text));
    while (!text.empty() && IsBlank(text.front()))
        text.remove_prefix(1);
    return text;
}

size_t BlankEnd(std::string_view text)
{
    size_t end = text.size();
    while (end > 0 && IsBlank(text[end - 1]))
        --end;
    return end;
}

} // namespace TKE::XmlText
