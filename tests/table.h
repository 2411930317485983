#pragma once

#include <QTest>

/// The data of a test as a table: the names of the columns first, then a row by each call.
template <class... Cells> class Table
{
public:
    template <class... Names> explicit Table(Names... columns) { (QTest::addColumn<Cells>(columns), ...); }
    void operator()(const QString& name, const Cells&... cells) const { (QTest::newRow(qPrintable(name)) << ... << cells); }
};
