#pragma once

#include "value/observable.h"

#include <QFile>
#include <QTest>
#include <QTranslator>
#include <functional>
#include <vector>

/// The data of a test as a table: the names of the columns first, then a row by each call.
template <class... Cells> class Table
{
public:
    template <class... Names> explicit Table(Names... columns) { (QTest::addColumn<Cells>(columns), ...); }
    void operator()(const QString& name, const Cells&... cells) const
    {
        (QTest::newRow(qPrintable(name)) << ... << cells);
    }
};

/// A row for each text, called by it.
inline void EachText(const char* column, const QStringList& texts)
{
    QTest::addColumn<QString>(column);
    for (const QString& text : texts)
        QTest::newRow(qPrintable(text)) << text;
}

/// A row with and one without.
inline void WithAndWithout(const char* column)
{
    QTest::addColumn<bool>(column);
    QTest::newRow(column) << true;
    QTest::newRow("without") << false;
}

inline QByteArray ReadAll(const QString& fileName)
{
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("cannot be read");
}

inline void WriteAll(const QString& fileName, const QByteArray& bytes)
{
    QFile file(fileName);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
}

/// Keeps what it hears and does something then.
struct Hearer final : TKE::IObserver
{
    explicit Hearer(std::function<void()> todo = {}) : act(std::move(todo)) {}
    void Update(TKE::Observable* from, TKE::TChangeCode code) override
    {
        source = from;
        codes.push_back(code);
        if (const auto now = act) // a copy: it may delete or replace this
            now();
    }
    TKE::Observable* source = nullptr; // of the last change
    std::vector<int> codes;
    std::function<void()> act;
};

/// Shows texts together with their context.
class ContextTranslator : public QTranslator
{
public:
    ContextTranslator() { QCoreApplication::installTranslator(this); }
    QString translate(const char* context, const char* text, const char*, int) const override
    {
        return QString::fromLatin1(context) + u'|' + QString::fromUtf8(text);
    }
    bool isEmpty() const override { return false; }
};
