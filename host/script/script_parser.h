#pragma once

#include "four_char_code.h"
#include "inspector.h"
#include "result.h"

#include <QByteArray>
#include <QFlags>
#include <QString>

#include <optional>
#include <vector>

// Scripts as text: one command a line, UTF-8, # comments, texts in double quotes
// (\" \\ \n), four-character codes in single quotes. What comes out of here is
// complete and of the right form; whether it can be done is seen when it runs. A script
// is read whole before its first line runs: a typo in the last one leaves no job half done.
namespace kelvo {

enum class ScriptCommand {
    Panel,
    Tab,
    Choose,
    Item,
    Click,
    Check,
    Type,
    Set,
    Time,
    Select,
    DoubleClick,
    Key,
    Drag,
    File,
    Command,
    Answer,
    Print,
    Cancel,
    Sync,
    Expect,
    ExpectItem,
    ExpectTicket,
    ExpectChoice,
    ExpectNotice,
    ExpectWindow,
    Show,
    Controls,
    Summary,
    Screenshot,
};

// What a command does with the windows. One that only looks, or goes where the keyboard is, does
// none of it.
enum class ScriptEffect {
    InFront = 1, // the user's doing in the front window, as a click there is
    // Reaches for what a modal dialog keeps from the user: panels that read, say, would take away
    // the paper that the dialog is about.
    BehindDialogs = 2,
    MeetsNotice = 4, // looks at or deals with a notice that has just come up
};
Q_DECLARE_FLAGS(ScriptEffects, ScriptEffect)
Q_DECLARE_OPERATORS_FOR_FLAGS(ScriptEffects)

ScriptEffects effectsOf(ScriptCommand command);

struct ScriptWord
{
    QString text;        // unquoted and unescaped; a code as its number
    bool quoted = false; // "absent" in quotes is a text, without them it is the word

    friend bool operator==(const ScriptWord &, const ScriptWord &) = default;
};

struct ScriptLine
{
    int number = 0; // from 1
    ScriptCommand command = ScriptCommand::Print;
    std::optional<inspector::ControlName> control;
    std::optional<OSType> code;              // of command, item and expect-item
    std::optional<inspector::ItemName> item; // of choose, item and expect-item
    std::vector<ScriptWord> arguments;       // the other words, in order
};

// Every line is read before anything runs. The error's `where` is "FILE:LINE";
// its detail says what was wrong, what the command takes, and for an unknown
// command which one is nearest.
Result<std::vector<ScriptLine>> parseScript(const QByteArray &text, const QString &file);

// What messages call the script "-".
inline const QString standardInputName = QStringLiteral("(stdin)");

// The same from a file of at most limits::scriptBytes, or standard input for "-".
Result<std::vector<ScriptLine>> readScript(const QString &path);

// One row a command, for the usage text and the help: "choose CONTROL WHAT" and
// what it does.
struct ScriptCommandHelp
{
    const char *usage;
    const char *meaning;
};
std::vector<ScriptCommandHelp> scriptCommandHelp();
// The same as lines for a terminal.
QString scriptCommandsText();

} // namespace kelvo
