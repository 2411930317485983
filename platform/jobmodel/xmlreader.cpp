#include "jobmodel/xmlreader.h"

#include "application/qtcompat.h"

#include <QIODevice>
#include <algorithm>
#include <cstring>

namespace TKE
{

namespace
{

constexpr qint64 readSize = 64LL * 1024;
constexpr qint64 longestPiece = 4LL * 1024 * 1024; // of one tag or comment
constexpr qint64 tickMs = 10;
constexpr int deepest = 256;
constexpr qsizetype mostErrors = 1000;

} // namespace

// What expat calls. After Stop it may still call for what it has at hand; nobody hears of that.
struct XmlReader::Callbacks
{
    static XmlReader* Reader(void* user)
    {
        auto* reader = static_cast<XmlReader*>(user);
        return reader->m_stopped ? nullptr : reader;
    }
    static void OnStart(void* user, const char* name, const char** attributes)
    {
        if (XmlReader* reader = Reader(user))
            reader->Start(name, attributes);
    }
    static void OnEnd(void* user, const char* name)
    {
        if (XmlReader* reader = Reader(user))
        {
            --reader->m_depth;
            reader->OnEnd(name);
        }
    }
    static void OnText(void* user, const char* text, int length)
    {
        if (XmlReader* reader = Reader(user))
            reader->OnText({text, size_t(length)});
    }
    static void OnComment(void* user, const char*)
    {
        if (XmlReader* reader = Reader(user))
            reader->OnOther();
    }
    static void OnInstruction(void* user, const char*, const char*) { OnComment(user, nullptr); }
    static void OnDeclaration(void* user, const char*, const char* encoding, int)
    {
        XmlReader* reader = Reader(user);
        if (!reader || !encoding || qstricmp(encoding, "UTF-8") == 0)
            return;
        reader->ReportError({}, tr("The encoding %1 is not supported, only UTF-8 is").arg(QString::fromUtf8(encoding)));
        reader->Stop();
    }
    static void OnDocumentType(void* user, const char*, const char*, const char*, int)
    {
        if (XmlReader* reader = Reader(user))
        {
            reader->ReportError({}, tr("A document type is not allowed"));
            reader->Stop();
        }
    }
};

XmlReader::XmlReader(const QString& shownName, AfterError afterError)
    : m_parser(XML_ParserCreate(nullptr)), m_shownName(shownName), m_afterError(afterError)
{
    XML_SetUserData(m_parser.get(), this);
    XML_SetElementHandler(m_parser.get(), Callbacks::OnStart, Callbacks::OnEnd);
    XML_SetCommentHandler(m_parser.get(), Callbacks::OnComment);
    XML_SetProcessingInstructionHandler(m_parser.get(), Callbacks::OnInstruction);
    XML_SetXmlDeclHandler(m_parser.get(), Callbacks::OnDeclaration);
    XML_SetStartDoctypeDeclHandler(m_parser.get(), Callbacks::OnDocumentType);
}

XmlReader::~XmlReader() = default;

const char* XmlReader::Find(Attributes attributes, std::string_view name)
{
    for (; *attributes; attributes += 2)
    {
        if (name == *attributes)
            return attributes[1];
    }
    return nullptr;
}

void XmlReader::WantText(bool on)
{
    XML_SetCharacterDataHandler(m_parser.get(), on ? Callbacks::OnText : nullptr);
}

std::string_view XmlReader::Source(qint64 begin, qint64 end) const
{
    return std::string_view(m_window).substr(size_t(begin - m_windowBegin), size_t(end - begin));
}

void XmlReader::Start(const char* name, Attributes attributes)
{
    if (++m_depth <= deepest)
    {
        OnStart(name, attributes);
        return;
    }
    ReportError({}, tr("Elements are nested more than %1 deep").arg(deepest));
    Stop();
}

void XmlReader::Stop()
{
    m_stopped = true;
    XML_StopParser(m_parser.get(), XML_FALSE);
}

void XmlReader::Tick()
{
    if (!m_stopped && m_progress && m_sinceProgress.hasExpired(tickMs))
        TellProgress(PieceBegin());
}

void XmlReader::TellProgress(qint64 done)
{
    if (!m_progress || m_cancelled)
        return;
    const bool goesOn = m_progress(done, m_size);
    m_sinceProgress.start();
    if (goesOn)
        return;
    m_cancelled = true;
    Report(FileError::Severity::Error, -1, {}, tr("Cancelled"));
    Stop();
}

void XmlReader::Report(FileError::Severity severity, qint64 offset, const QString& itemPath, const QString& reason)
{
    const bool isError = severity == FileError::Severity::Error;
    m_failed = m_failed || isError;
    if (m_errors.size() < mostErrors || isError)
    {
        m_errors.append({severity, m_shownName, 0, 0, itemPath, reason});
        m_offsets.push_back(offset);
    }
    if (isError && !m_stopped && (m_afterError == AfterError::Stop || m_errors.size() >= mostErrors))
        Stop();
}

bool XmlReader::Read(QIODevice& device)
{
    m_size = device.size();
    m_sinceProgress.start();
    bool more = true;
    while (more && !m_stopped)
    {
        more = ReadBlock(device);
        if (!m_stopped)
            TellProgress(FileEnd());
    }
    if (!m_stopped)
        OnFinish();
    Locate(device);
    return !m_failed;
}

// Whether more may follow.
bool XmlReader::ReadBlock(QIODevice& device)
{
    m_window.erase(0, size_t(m_keepFrom - m_windowBegin));
    m_windowBegin = m_keepFrom;
    const size_t kept = m_window.size();
    m_window.resize(kept + readSize);
    const qint64 count = device.read(m_window.data() + kept, readSize);
    m_window.resize(kept + size_t(std::max<qint64>(count, 0)));
    if (count < 0)
    {
        Report(FileError::Severity::Error, -1, {}, QtCompat::ErrorText(device));
        m_stopped = true;
        return false;
    }
    const std::string_view block = std::string_view(m_window).substr(kept);
    if (m_windowBegin == 0 && kept == 0 && (block.starts_with("\xFE\xFF") || block.starts_with("\xFF\xFE")))
    {
        Report(FileError::Severity::Error, 0, {},
               tr("The encoding %1 is not supported, only UTF-8 is").arg(QLatin1String("UTF-16")));
        m_stopped = true;
        return false;
    }
    const XML_Status status = XML_Parse(m_parser.get(), block.data(), int(block.size()), count == 0);
    if (m_stopped)
        return false;
    if (status == XML_STATUS_ERROR)
        ReportFault();
    else if (PieceBegin() >= 0 && FileEnd() - PieceBegin() > longestPiece)
    {
        // Text comes in pieces of the blocks' size, so this is a tag or a comment whose end has not come yet.
        ReportError({}, tr("A tag or comment is longer than %1 bytes").arg(longestPiece));
        Stop();
    }
    return count > 0 && !m_stopped;
}

void XmlReader::ReportFault()
{
    const qint64 offset = std::max<qint64>(PieceBegin(), 0); // the parser has no place yet in an empty file
    const XML_Error code = XML_GetErrorCode(m_parser.get());
    const bool atByte = offset >= m_windowBegin && offset < FileEnd();
    const bool notAscii = atByte && (Source(offset, offset + 1).front() & 0x80);
    m_stopped = true;
    if (code == XML_ERROR_INVALID_TOKEN && notAscii)
        Report(FileError::Severity::Error, offset, {}, tr("Not well-formed: a character is not UTF-8"));
    else
        Report(FileError::Severity::Error, offset, {},
               tr("Not well-formed: %1").arg(QString::fromUtf8(XML_ErrorString(code))));
}

// Lines and columns of all findings, in one pass over the file.
void XmlReader::Locate(QIODevice& device)
{
    std::vector<size_t> order;
    for (size_t i = 0; i < m_offsets.size(); ++i)
    {
        if (m_offsets[i] >= 0)
            order.push_back(i);
    }
    if (order.empty() || !device.seek(0))
        return;
    std::stable_sort(order.begin(), order.end(),
                     [&](size_t left, size_t right) { return m_offsets[left] < m_offsets[right]; });

    std::string block(size_t(readSize), '\0');
    qint64 offset = 0;
    qint64 line = 1;
    qint64 column = 1;
    auto next = order.begin();
    const auto placeAll = [&]
    {
        for (; next != order.end() && m_offsets[*next] <= offset; ++next)
        {
            m_errors[qsizetype(*next)].line = line;
            m_errors[qsizetype(*next)].column = column;
        }
    };
    for (qint64 count = 0; next != order.end() && (count = device.read(block.data(), readSize)) > 0;)
    {
        TellProgress(FileEnd());
        for (const char byte : std::string_view(block).substr(0, size_t(count)))
        {
            placeAll();
            ++offset;
            if (byte == '\n')
            {
                ++line;
                column = 1;
            }
            else if ((byte & 0xC0) != 0x80 && !(offset <= 3 && std::memcmp(block.data(), "\xEF\xBB\xBF", 3) == 0))
                ++column; // continuation bytes and the byte order mark take no column
        }
    }
    offset = std::max(offset, next != order.end() ? m_offsets[order.back()] : offset);
    placeAll();
}

} // namespace TKE
