#include "jsonlist.h"

#include <QJsonDocument>

namespace JOBEDIT
{

JsonList::JsonList(QTextStream& out, const QJsonObject& head, const QString& name) : m_out(out)
{
    QString text = QString::fromUtf8(QJsonDocument(head).toJson(QJsonDocument::Compact));
    text.chop(1);
    m_out << text << (head.isEmpty() ? "" : ",") << '"' << name << "\":[";
}

JsonList::~JsonList()
{
    m_out << "\n]}\n";
}

void JsonList::Add(const QJsonObject& item)
{
    m_out << m_separator << QString::fromUtf8(QJsonDocument(item).toJson(QJsonDocument::Compact));
    m_separator = ",\n";
}

} // namespace JOBEDIT
