#pragma once

#include <QJsonObject>
#include <QTextStream>

namespace JOBEDIT
{

/// Writes a JSON document {"<head>": ..., "<name>": [items]} without holding all items at once.
class JsonList
{
public:
    JsonList(QTextStream& out, const QJsonObject& head, const QString& name);
    ~JsonList();
    JsonList(const JsonList&) = delete;
    JsonList& operator=(const JsonList&) = delete;
    void Add(const QJsonObject& item);

private:
    QTextStream& m_out;
    const char* m_separator = "\n";
};

} // namespace JOBEDIT
