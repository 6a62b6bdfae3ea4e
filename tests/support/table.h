#pragma once

#include <QTest>

// The table of a data-driven test: its columns, then a call for each row. Cells are
// converted as arguments are, so that a list or a text needs no type of its own:
//
//     const Table<QString, QStringList> row{"text", "words"};
//     row("two words", "a b", {"a", "b"});
template <typename... Columns>
class Table
{
    template <typename>
    using Name = const char *;

public:
    explicit Table(Name<Columns>... names) { (QTest::addColumn<Columns>(names), ...); }

    void operator()(const char *name, const Columns &...cells) const
    {
        (QTest::newRow(name) << ... << cells);
    }
};
