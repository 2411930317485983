#pragma once

#include <QStringView>
#include <cstring>

namespace TKE
{

/// Folds two words into one; every bit of both counts.
inline quint64 Mix(quint64 left, quint64 right)
{
    __extension__ using Wide = unsigned __int128;
    const Wide product = Wide(left) * right;
    return quint64(product) ^ quint64(product >> 64);
}

/// Hash of a text, the same in every run. Much cheaper for the length of a path than Qt's.
inline quint64 HashOf(QStringView text)
{
    constexpr quint64 a = 0x9d3f'8b61'c5e2'744d, b = 0xe41c'a5d7'3b96'f08b, c = 0xb7e1'5162'8aed'2a6b;
    const auto word = [](const char* at)
    {
        quint64 bits;
        std::memcpy(&bits, at, sizeof bits);
        return bits;
    };
    const char* at = reinterpret_cast<const char*>(text.utf16());
    const size_t size = size_t(text.size()) * sizeof(char16_t);
    quint64 left = size ^ a, right = b;
    if (size >= 16)
    {
        // Two lanes, so that one multiplication need not wait for the other; the last bytes are taken twice where they
        // do not fill a block.
        const char* const last = at + size - 16;
        for (; at + 16 < last; at += 32)
        {
            left = Mix(word(at) ^ a, word(at + 8) ^ left);
            right = Mix(word(at + 16) ^ b, word(at + 24) ^ right);
        }
        if (at < last)
            left = Mix(word(at) ^ a, word(at + 8) ^ left);
        right = Mix(word(last) ^ b, word(last + 8) ^ right);
    }
    else if (size >= 8)
        left = Mix(word(at) ^ a, word(at + size - 8) ^ left);
    else if (size > 0) // an empty text may have no data
    {
        quint64 rest = 0;
        std::memcpy(&rest, at, size);
        left = Mix(rest ^ a, left);
    }
    return Mix(left ^ c, right);
}

} // namespace TKE
