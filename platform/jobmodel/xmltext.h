#pragma once

#include <string>
#include <string_view>

/// How text stands in an XML file, in UTF-8.
namespace TKE::XmlText
{

/// Appends `utf8` so that a parser reads it back as the content of an element. What XML cannot hold (control
/// characters) becomes U+FFFD.
void AppendContent(std::string& out, std::string_view utf8);
/// The same for the value of an attribute in double quotes.
void AppendAttribute(std::string& out, std::string_view utf8);

inline bool IsBlank(char byte)
{
    return byte == ' ' || byte == '\n' || byte == '\r' || byte == '\t';
}
/// `text` without blanks at either end.
std::string_view Trimmed(std::string_view text);
/// Where the blanks at the end of `text` begin.
size_t BlankEnd(std::string_view text);

} // namespace TKE::XmlText
