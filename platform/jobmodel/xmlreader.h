#pragma once

#include "jobmodel/fileerror.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <expat.h>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

class QIODevice;

namespace TKE
{

/// Reads an XML file in blocks and passes its elements on. Refuses what files of this system never hold: other
/// encodings than UTF-8, document types (and with them entities), excessive depth or length.
///
/// Findings are reported by byte offset while reading; their lines and columns are sought once, afterwards.
class XmlReader
{
    Q_DECLARE_TR_FUNCTIONS(TKE::XmlReader)

public:
    /// Called once per block, and within one that takes long every few milliseconds, with the bytes done and all; false
    /// cancels.
    using Progress = std::function<bool(qint64 done, qint64 all)>;

    XmlReader(const XmlReader&) = delete;
    XmlReader& operator=(const XmlReader&) = delete;

    /// Reads the whole device, which is open, at its begin and not sequential. False when there was an error.
    bool Read(QIODevice& device);
    const FileErrors& GetErrors() const { return m_errors; }
    void SetProgress(Progress progress) { m_progress = std::move(progress); }

protected:
    using Attributes = const char* const*; // name, value, name, value, ..., null

    enum class AfterError
    {
        Stop,
        GoOn, // for as long as the file is well-formed
    };

    /// `shownName` is the name that findings carry.
    XmlReader(const QString& shownName, AfterError afterError);
    virtual ~XmlReader();

    virtual void OnStart(std::string_view name, Attributes attributes) = 0;
    virtual void OnEnd(std::string_view name) = 0;
    /// Text, as long as WantText is on; possibly in several pieces.
    virtual void OnText(std::string_view) {}
    /// A comment or a processing instruction.
    virtual void OnOther() {}
    /// The whole file was read without a fault in its form.
    virtual void OnFinish() {}

    /// Lets the progress be told when it is time. For who does much for a few bytes of the file.
    void Tick();

    static const char* Find(Attributes attributes, std::string_view name);
    void WantText(bool on);

    /// Where the piece of the file begins and ends that is being passed on. Of an element that closes itself, the end
    /// is an empty piece.
    qint64 PieceBegin() const { return XML_GetCurrentByteIndex(m_parser.get()); }
    qint64 PieceEnd() const { return PieceBegin() + XML_GetCurrentByteCount(m_parser.get()); }
    qint64 FileSize() const { return m_size; }
    qint64 FileEnd() const { return m_windowBegin + qint64(m_window.size()); }
    /// The bytes of the file from `begin` to `end`; nothing before the place last released. Valid until the next call
    /// from outside.
    std::string_view Source(qint64 begin, qint64 end) const;
    /// Says that Source is not asked for anything before `end` any more.
    void Release(qint64 end) { m_keepFrom = end; }

    void Report(FileError::Severity severity, qint64 offset, const QString& itemPath, const QString& reason);
    void ReportError(const QString& itemPath, const QString& reason)
    {
        Report(FileError::Severity::Error, PieceBegin(), itemPath, reason);
    }
    void ReportWarning(const QString& itemPath, const QString& reason)
    {
        Report(FileError::Severity::Warning, PieceBegin(), itemPath, reason);
    }

private:
    struct Callbacks;
    struct ParserDeleter
    {
        void operator()(XML_Parser parser) const { XML_ParserFree(parser); }
    };

    void Start(const char* name, Attributes attributes);
    void Stop();
    void TellProgress(qint64 done);
    bool ReadBlock(QIODevice& device);
    void ReportFault();
    void Locate(QIODevice& device);

    std::unique_ptr<XML_ParserStruct, ParserDeleter> m_parser;
    Progress m_progress;
    QElapsedTimer m_sinceProgress;
    qint64 m_size = 0; // of the file
    FileErrors m_errors;
    std::vector<qint64> m_offsets; // one per error, until they are located
    QString m_shownName;
    AfterError m_afterError;
    std::string m_window; // the latest bytes of the file, from m_windowBegin
    qint64 m_windowBegin = 0;
    qint64 m_keepFrom = 0;
    int m_depth = 0;
    bool m_stopped = false;
    bool m_cancelled = false;
    bool m_failed = false;
};

} // namespace TKE
