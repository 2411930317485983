#pragma once

#include "report.h"

class QIODevice;

namespace JOBEDIT
{

/// A report as one HTML document that needs nothing beside it and is well-formed XML. Written section by section.
class ReportHtml
{
    Q_DECLARE_TR_FUNCTIONS(JOBEDIT::ReportHtml)

public:
    /// Both outlive this.
    ReportHtml(ReportContent& content, const ReportProgress& progress) : m_content(content), m_progress(progress) {}

    /// False when it was cancelled or the device takes no more.
    bool Write(QIODevice& device);

private:
    void AddText(const QString& text);
    void AddElement(const char* start, const QString& text, const char* end);
    void AddHead();
    void AddContents();
    void AddSection(size_t index);

    ReportContent& m_content;
    const ReportProgress& m_progress;
    std::string m_out;
};

} // namespace JOBEDIT
