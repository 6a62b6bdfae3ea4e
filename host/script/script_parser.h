#pragma once

#include "four_char_code.h"
#include "result.h"

#include <QByteArray>
#include <QString>

#include <vector>

// One command a line, UTF-8, # comments, texts in double quotes (\" \\ \n),
// four-character codes in single quotes.
namespace kelvo {

struct ScriptWord
{
    enum class Kind { Bare, Text, Code } kind = Kind::Bare;
    QString text;     // unquoted and unescaped
    OSType code = 0;  // Kind::Code

    friend bool operator==(const ScriptWord &, const ScriptWord &) = default;
};

struct ScriptLine
{
    int number = 0;  // from 1
    std::vector<ScriptWord> words; // never empty; the first is the command
};

// Every line is checked for its form (an unknown command with the nearest one,
// too few or too many words, an open quote) before anything runs: `where` is
// "FILE:LINE".
Result<std::vector<ScriptLine>> parseScript(const QByteArray &text, const QString &file);
Result<std::vector<ScriptLine>> readScript(const QString &path); // "-": standard input

} // namespace kelvo
