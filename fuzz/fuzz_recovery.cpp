// A file of kept edits of any bytes: reading never crashes, and what counts of it is written so that it reads as the
// same. As no fuzzer guesses checksums, the lines are read a second time with the right ones.

#include "fuzz.h"
#include "jobedit/recoveryfile.h"

using namespace JOBEDIT;
using Fuzz::Require;

namespace
{

RecoveryFile ReadBytes(const QByteArray& bytes)
{
    Fuzz::Input buffer(bytes);
    return RecoveryFile::Read(buffer);
}

void Check(const QByteArray& bytes)
{
    const RecoveryFile read = ReadBytes(bytes);
    QByteArray written;
    if (read.base)
        written = RecoveryFile::LineOf(*read.base);
    for (const RecoveryChange& change : read.changes)
        written += RecoveryFile::LineOf(change);
    const RecoveryFile again = ReadBytes(written);
    Require(again.damaged == 0 && again.base.has_value() == read.base.has_value());
    Require(!read.base || RecoveryFile::LineOf(*again.base) == RecoveryFile::LineOf(*read.base));
    Require(again.changes.size() == read.changes.size());
    for (size_t i = 0; i < read.changes.size(); ++i)
    {
        const RecoveryChange& left = read.changes[i];
        const RecoveryChange& right = again.changes[i];
        Require(left.kind == right.kind && left.step == right.step && left.path == right.path &&
                left.text == right.text && (left.kind != RecoveryChange::Kind::Add || left.spec == right.spec));
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char*>(data), qsizetype(size));
    Check(bytes);
    QByteArray lines;
    for (const QByteArray& json : bytes.split('\n'))
        lines += QByteArray::number(qChecksum(json), 16).rightJustified(4, '0') + ' ' + json + '\n';
    Check(lines);
    return 0;
}
