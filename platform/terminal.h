#pragma once

#include <QString>
#include <QStringList>

#include <cstdio>

class QJsonDocument;

// The one way to standard output and standard error. What is written there comes
// from strangers as often as not (PPDs, tickets, queues, file names, converters),
// and a terminal obeys control characters: it would take them as commands, and
// the reader as lines of ours.
namespace kelvo {

// `text` with what a terminal would obey, or show as nothing, written out: \n \t
// \r, \x1b (C0, DEL, C1), \u202e and the other characters that turn the direction
// of text or are not seen (isSeen()), line and paragraph separators, lone surrogates,
// \xfc for a byte of a file name that is no UTF-8. A backslash stays one: this is for reading, not
// for reading back.
QString visibleText(QStringView text);

// visibleText() without pairs of bidi isolates: translated sentences have them.
QString terminalText(const QString &text);

// What a message repeats of what it was given: the beginning, where it is long.
QString shortened(const QString &text);

// One line: the terminal's text and a line end, as UTF-8, flushed.
void printLine(std::FILE *stream, const QString &text);
// One line with a tab between its columns.
void printLine(std::FILE *stream, const QStringList &columns);
// Lines that were put together here, each made visible by itself. Where a line
// takes in a stranger's text, that was made visible before: its line ends would
// be lines.
void printLines(std::FILE *stream, const QString &lines);
// Indented; what is not seen stands as \u escapes in its strings.
void printJson(std::FILE *stream, const QJsonDocument &json);

} // namespace kelvo
