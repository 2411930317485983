#pragma once

#include <QBuffer>
#include <cstdlib>

/// What the fuzz targets share.
namespace Fuzz
{

inline void Require(bool holds)
{
    if (!holds)
        abort();
}

/// Bytes as a file that is open for reading.
struct Input : QBuffer
{
    explicit Input(const QByteArray& bytes)
    {
        setData(bytes);
        open(ReadOnly);
    }
    Input(const uint8_t* data, size_t size) : Input(QByteArray(reinterpret_cast<const char*>(data), qsizetype(size))) {}
};

} // namespace Fuzz
