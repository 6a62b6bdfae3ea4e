#include "script_parser.h"

#include "file_store.h"
#include "nearest_name.h"
#include "size_limits.h"
#include "terminal.h"
#include "texts.h"

#include <QStringDecoder>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>

#include <unistd.h>

namespace kelvo {

namespace {

// What a command takes, in order; a lower-case letter may be left out.
//   C control   K four-character code   I item   N whole number   D real number
//   W word or text
struct CommandRow
{
    ScriptCommand command;
    const char *name;
    const char *form;
    ScriptEffects effects;
    ScriptCommandHelp help;
};
constexpr ScriptEffects NoEffect;
constexpr ScriptEffects InFront = ScriptEffect::InFront;
constexpr ScriptEffects BehindDialogs = ScriptEffect::BehindDialogs;
constexpr ScriptEffects MeetsNotice = ScriptEffect::MeetsNotice;

// clang-format off
constexpr CommandRow commandRows[] = {
    {ScriptCommand::Panel, "panel", "W", InFront | BehindDialogs, {"panel NAME", QT_TRANSLATE_NOOP("Script", "shows a panel of the window, or a tab of the device, by name; a name that there is not lists them")}},
    {ScriptCommand::Tab, "tab", "N", InFront | BehindDialogs, {"tab N", QT_TRANSLATE_NOOP("Script", "shows the device’s tab N, from 1")}},
    {ScriptCommand::Choose, "choose", "CI", InFront, {"choose CONTROL WHAT", QT_TRANSLATE_NOOP("Script", "picks an item of a pop-up; WHAT: 12, 'code', unset, key NAME, text \"…\", row 3")}},
    {ScriptCommand::Item, "item", "CKi", InFront, {"item CONTROL 'code' [WHAT]", QT_TRANSLATE_NOOP("Script", "picks the menu item with that command, submenus included")}},
    {ScriptCommand::Click, "click", "C", InFront, {"click CONTROL", QT_TRANSLATE_NOOP("Script", "presses a button or a radio button")}},
    {ScriptCommand::Check, "check", "CW", InFront, {"check CONTROL on|off", QT_TRANSLATE_NOOP("Script", "sets a check box")}},
    {ScriptCommand::Type, "type", "CWw", InFront, {"type CONTROL \"text\"", QT_TRANSLATE_NOOP("Script", "replaces the text as a user types it; `secret NAME` types a secret from --secret")}},
    {ScriptCommand::Set, "set", "CN", InFront, {"set CONTROL N", QT_TRANSLATE_NOOP("Script", "sets a spin field, slider, radio group or tab control")}},
    {ScriptCommand::Time, "time", "CW", InFront, {"time CONTROL HH:MM[:SS]", QT_TRANSLATE_NOOP("Script", "sets a time field")}},
    {ScriptCommand::Select, "select", "CW", InFront, {"select CONTROL ROW[,ROW…]", QT_TRANSLATE_NOOP("Script", "selects rows of a list, from 1; 0 is the empty area")}},
    {ScriptCommand::DoubleClick, "double-click", "CN", InFront, {"double-click CONTROL ROW", QT_TRANSLATE_NOOP("Script", "double-clicks a row of a list; 0 is the empty area")}},
    {ScriptCommand::Key, "key", "W", NoEffect, {"key \"Ctrl+P\"", QT_TRANSLATE_NOOP("Script", "presses keys in the front window, or in the menu, list or help that is open there")}},
    {ScriptCommand::Drag, "drag", "CDD", InFront, {"drag CONTROL DX DY", QT_TRANSLATE_NOOP("Script", "drags from the control’s middle, in points; of a page, in points of the paper")}},
    {ScriptCommand::File, "file", "W", NoEffect, {"file \"PATH\"", QT_TRANSLATE_NOOP("Script", "answers a file chooser")}},
    {ScriptCommand::Command, "command", "K", InFront, {"command 'code'", QT_TRANSLATE_NOOP("Script", "sends a command to the front window")}},
    {ScriptCommand::Answer, "answer", "N", InFront | MeetsNotice, {"answer N", QT_TRANSLATE_NOOP("Script", "presses button N of the notice in front; 1 is its default")}},
    {ScriptCommand::Print, "print", "", InFront | BehindDialogs, {"print", QT_TRANSLATE_NOOP("Script", "presses Print")}},
    {ScriptCommand::Cancel, "cancel", "", InFront, {"cancel", QT_TRANSLATE_NOOP("Script", "cancels the front dialog")}},
    {ScriptCommand::Sync, "sync", "W", BehindDialogs, {"sync read|write", QT_TRANSLATE_NOOP("Script", "all panels read the ticket or write it")}},
    {ScriptCommand::Expect, "expect", "CWWww", NoEffect, {"expect CONTROL PROPERTY VALUE", QT_TRANSLATE_NOOP("Script", "value, index, text, enabled, visible, checked, focus, items, maximum, selection, cell ROW COLUMN")}},
    {ScriptCommand::ExpectItem, "expect-item", "CKiW", NoEffect, {"expect-item CONTROL 'code' [WHAT] STATE", QT_TRANSLATE_NOOP("Script", "present, absent, enabled, disabled, checked, unchecked")}},
    {ScriptCommand::ExpectTicket, "expect-ticket", "WW", NoEffect, {"expect-ticket PATH VALUE|absent", QT_TRANSLATE_NOOP("Script", "the ticket as it stands; PATH steps into it with /")}},
    {ScriptCommand::ExpectChoice, "expect-choice", "WW", NoEffect, {"expect-choice OPTION CHOICE|absent", QT_TRANSLATE_NOOP("Script", "a PPD choice in the ticket")}},
    {ScriptCommand::ExpectNotice, "expect-notice", "W", MeetsNotice, {"expect-notice \"text\"", QT_TRANSLATE_NOOP("Script", "the front notice contains the text")}},
    {ScriptCommand::ExpectWindow, "expect-window", "W", NoEffect, {"expect-window \"title\"|@name", QT_TRANSLATE_NOOP("Script", "the front window is that one")}},
    {ScriptCommand::Show, "show", "C", NoEffect, {"show CONTROL", QT_TRANSLATE_NOOP("Script", "prints one control as JSON")}},
    {ScriptCommand::Controls, "controls", "", NoEffect, {"controls", QT_TRANSLATE_NOOP("Script", "prints the front window’s controls as JSON")}},
    {ScriptCommand::Summary, "summary", "", NoEffect, {"summary", QT_TRANSLATE_NOOP("Script", "prints what will be sent, in words")}},
    {ScriptCommand::Screenshot, "screenshot", "W", NoEffect, {"screenshot FILE", QT_TRANSLATE_NOOP("Script", "writes the front window as PNG, for its owner alone")}},
};
// clang-format on

// The words that a command with a closed set takes as its argument.
struct ClosedWords
{
    ScriptCommand command;
    QStringList words;
};
const std::array<ClosedWords, 3> &closedWords()
{
    static const std::array<ClosedWords, 3> rows{{
        {ScriptCommand::Check, {QStringLiteral("on"), QStringLiteral("off")}},
        {ScriptCommand::Sync, {QStringLiteral("read"), QStringLiteral("write")}},
        {ScriptCommand::ExpectItem,
         {QStringLiteral("present"), QStringLiteral("absent"), QStringLiteral("enabled"),
          QStringLiteral("disabled"), QStringLiteral("checked"), QStringLiteral("unchecked")}},
    }};
    return rows;
}

struct Word
{
    enum class Kind { Bare, Text, Code } kind = Kind::Bare;
    QString text; // a code as its number
    OSType code = 0;
};

// Splits one line into words. The error is a sentence.
struct Words
{
    std::vector<Word> words;
    QString problem;
};

Words split(const QString &line)
{
    Words result;
    qsizetype at = 0;
    while (at < line.size()) {
        const QChar c = line[at];
        if (c.isSpace()) {
            ++at;
            continue;
        }
        if (c == u'#')
            return result;
        Word word;
        if (c == u'"') {
            word.kind = Word::Kind::Text;
            bool closed = false;
            for (++at; at < line.size() && !closed; ++at) {
                if (line[at] == u'"') {
                    closed = true;
                } else if (line[at] == u'\\' && at + 1 < line.size()) {
                    const QChar escaped = line[++at];
                    if (escaped == u'n')
                        word.text += u'\n';
                    else if (escaped == u'"' || escaped == u'\\')
                        word.text += escaped;
                    else
                        return {
                            {},
                            translate("Script", "\\%1 is no escape; there are \\\" \\\\ and \\n")
                                .arg(escaped)};
                } else {
                    word.text += line[at];
                }
            }
            if (!closed)
                return {{}, translate("Script", "the text is not closed with a double quote")};
            if (at < line.size() && !line[at].isSpace())
                return {{}, translate("Script", "after a closing quote comes a blank")};
        } else if (c == u'\'') {
            word.kind = Word::Kind::Code;
            const qsizetype end = line.indexOf(u'\'', at + 1);
            const QString code = end < 0 ? QString() : line.mid(at + 1, end - at - 1);
            bool printable = code.size() == 4;
            for (const QChar one : code)
                printable = printable && one.unicode() >= 0x20 && one.unicode() < 0x7f;
            if (!printable)
                return {
                    {},
                    translate("Script", "a code is four characters in single quotes, like 'KFup'")};
            for (const QChar one : code)
                word.code = word.code << 8 | one.unicode();
            word.text = QString::number(static_cast<std::int32_t>(word.code));
            at = end + 1;
            if (at < line.size() && !line[at].isSpace())
                return {{}, translate("Script", "after a closing quote comes a blank")};
        } else {
            while (at < line.size() && !line[at].isSpace())
                word.text += line[at++];
        }
        result.words.push_back(std::move(word));
    }
    return result;
}

// Takes a command's words off one by one. Every take answers false and leaves a
// sentence when the next word is not of that form.
class Taker
{
public:
    Taker(const std::vector<Word> &words, ScriptLine &line)
        : m_words(words)
        , m_line(line)
    {
    }

    bool atEnd() const { return m_at == m_words.size(); }
    const QString &problem() const { return m_problem; }

    bool take(char form)
    {
        if (atEnd())
            return false;
        switch (form) {
        case 'C':
            return takeControl();
        case 'K':
            return takeCode();
        case 'I':
            return takeItem();
        case 'N':
        case 'D':
            return takeNumber(form == 'N');
        default:
            return takeWord();
        }
    }

    std::size_t left() const { return m_words.size() - m_at; }

private:
    const Word &next() { return m_words[m_at++]; }
    bool refuse(const QString &problem)
    {
        m_problem = problem;
        return false;
    }

    bool takeControl()
    {
        const Word &word = next();
        QString name = word.text;
        if (word.kind == Word::Kind::Bare && !name.startsWith(u'@') && !atEnd()
            && m_words[m_at].kind == Word::Kind::Bare)
            name += u' ' + next().text;
        auto control = inspector::controlNameFrom(name);
        if (!control) {
            // Where the control was forgotten or misspelled, what is typed may be
            // a secret: of `type` the line is not repeated.
            return refuse(
                m_line.command == ScriptCommand::Type
                    ? translate("Script",
                                "what follows type is no control; write KPDE 102 or @objectName")
                    : translate("Script", "“%1” is no control; write KPDE 102 or @objectName")
                          .arg(name));
        }
        m_line.control = control.value();
        return true;
    }

    bool takeCode()
    {
        const Word &word = next();
        if (word.kind != Word::Kind::Code)
            return refuse(
                translate("Script", "“%1” is no code; write four characters in single quotes")
                    .arg(word.text));
        m_line.code = word.code;
        return true;
    }

    bool takeItem()
    {
        using By = inspector::ItemName::By;
        const Word &word = next();
        inspector::ItemName item;
        if (word.kind == Word::Kind::Code) {
            item.reference = static_cast<std::int32_t>(word.code);
        } else if (word.kind == Word::Kind::Bare && word.text == QLatin1String("unset")) {
            item.reference = std::numeric_limits<std::int32_t>::min();
        } else if (word.kind == Word::Kind::Bare
                   && (word.text == QLatin1String("key") || word.text == QLatin1String("text")
                       || word.text == QLatin1String("row"))) {
            if (atEnd())
                return refuse(translate("Script", "after %1 comes what it is").arg(word.text));
            const Word &name = next();
            item.by = word.text == QLatin1String("key") ? By::Key
                : word.text == QLatin1String("text")    ? By::Text
                                                        : By::Row;
            item.text = name.text;
            if (item.by == By::Row) {
                bool isNumber = false;
                item.row = name.text.toInt(&isNumber);
                if (!isNumber || item.row < 1 || name.kind != Word::Kind::Bare)
                    return refuse(
                        translate("Script", "“%1” is no row; rows count from 1").arg(name.text));
            }
        } else {
            bool isNumber = false;
            item.reference = word.text.toInt(&isNumber);
            if (!isNumber || word.kind != Word::Kind::Bare)
                return refuse(translate("Script",
                                        "“%1” names no item; write a number, 'code', unset, "
                                        "key NAME, text \"…\" or row N")
                                  .arg(word.text));
        }
        m_line.item = item;
        return true;
    }

    bool takeNumber(bool whole)
    {
        const Word &word = next();
        bool isNumber = false;
        if (whole)
            word.text.toInt(&isNumber);
        else
            word.text.toDouble(&isNumber);
        if (!isNumber || word.kind != Word::Kind::Bare)
            return refuse((whole ? translate("Script", "“%1” is no whole number")
                                 : translate("Script", "“%1” is no number"))
                              .arg(word.text));
        m_line.arguments.push_back({word.text, false});
        return true;
    }

    bool takeWord()
    {
        const Word &word = next();
        m_line.arguments.push_back({word.text, word.kind == Word::Kind::Text});
        return true;
    }

    const std::vector<Word> &m_words;
    ScriptLine &m_line;
    std::size_t m_at = 0;
    QString m_problem;
};

// What the form alone does not say. Empty when the line is fine.
QString problemOf(const ScriptLine &line)
{
    const auto &arguments = line.arguments;
    for (const ClosedWords &row : closedWords()) {
        if (row.command == line.command && !row.words.contains(arguments.back().text))
            return translate("Script", "“%1” is none of %2")
                .arg(arguments.back().text, row.words.join(QStringLiteral(", ")));
    }
    if (line.command == ScriptCommand::Type && arguments.size() == 2
        && (arguments[0].quoted || arguments[0].text != QLatin1String("secret")))
        return translate("Script", "put a text with blanks into double quotes");
    if (line.command == ScriptCommand::Type && arguments.size() == 1 && !arguments[0].quoted
        && arguments[0].text == QLatin1String("secret"))
        return translate("Script", "after secret comes its name");
    if (line.command == ScriptCommand::Time
        && !QTime::fromString(arguments[0].text, QStringLiteral("H:mm")).isValid()
        && !QTime::fromString(arguments[0].text, QStringLiteral("H:mm:ss")).isValid())
        return translate("Script", "“%1” is no time; write HH:MM or HH:MM:SS")
            .arg(arguments[0].text);
    if (line.command == ScriptCommand::Select) {
        for (const QString &row : arguments[0].text.split(u',')) {
            bool isNumber = false;
            if (row.toInt(&isNumber) < 0 || !isNumber)
                return translate("Script", "“%1” is no list of rows; write 1,2,5")
                    .arg(arguments[0].text);
        }
    }
    if (line.command == ScriptCommand::Expect) {
        const bool isCell = arguments[0].text == QLatin1String("cell");
        if (!inspector::propertyNames().contains(arguments[0].text) && !isCell)
            return translate("Script", "%1; there are %2")
                .arg(didYouMean(translate("Script", "“%1” is no property").arg(arguments[0].text),
                                arguments[0].text, inspector::propertyNames()),
                     inspector::propertyNames().join(QStringLiteral(", ")));
        if (arguments.size() != (isCell ? 4U : 2U))
            return isCell ? translate("Script", "cell takes a row, a column and the text")
                          : translate("Script", "put a value with blanks into double quotes");
    }
    return {};
}

QString readLine(const QString &text, ScriptLine &line)
{
    const Words words = split(text);
    if (!words.problem.isEmpty())
        return words.problem;
    if (words.words.empty())
        return {};

    const QString name = words.words.front().text;
    const CommandRow *row = nullptr;
    QStringList names;
    for (const CommandRow &one : commandRows) {
        names << QLatin1String(one.name);
        if (name == QLatin1String(one.name) && words.words.front().kind == Word::Kind::Bare)
            row = &one;
    }
    if (!row)
        return translate("Script", "%1 (kelvo-print --help-scripts lists them)")
            .arg(didYouMean(translate("Script", "there is no command “%1”").arg(shortened(name)),
                            name, names));

    line.command = row->command;
    const std::vector<Word> rest(words.words.begin() + 1, words.words.end());
    Taker taker(rest, line);
    const std::size_t length = std::strlen(row->form);
    for (std::size_t i = 0; i < length; ++i) {
        const char form = row->form[i];
        const bool optional = form >= 'a';
        // An optional word is there when more words are left than must follow.
        std::size_t mustFollow = 0;
        for (std::size_t j = i + 1; j < length; ++j)
            mustFollow += row->form[j] < 'a' ? 1 : 0;
        if (optional && taker.left() <= mustFollow)
            continue;
        const char upper = optional ? static_cast<char>(form - 'a' + 'A') : form;
        if (!taker.take(upper))
            return taker.problem().isEmpty() ? translate("Script", "something is missing: %1")
                                                   .arg(QString::fromUtf8(row->help.usage))
                                             : taker.problem();
    }
    if (!taker.atEnd())
        return translate("Script", "there is too much: %1").arg(QString::fromUtf8(row->help.usage));
    return problemOf(line);
}

} // namespace

Result<std::vector<ScriptLine>> parseScript(const QByteArray &text, const QString &file)
{
    QStringDecoder decoder(QStringDecoder::Utf8);
    const QString decoded = decoder(text);
    const auto at = [&file](int number) { return QStringLiteral("%1:%2").arg(file).arg(number); };
    if (decoder.hasError() || text.contains('\0')) {
        // The first line that does not survive is the one to look at.
        int number = 1;
        for (const QByteArray &line : text.split('\n')) {
            QStringDecoder one(QStringDecoder::Utf8);
            static_cast<void>(QString(one(line)));
            if (one.hasError() || line.contains('\0'))
                break;
            ++number;
        }
        return Error{Error::Code::Damaged, at(number),
                     translate("Script", "this is not UTF-8 text; a script is a text file")};
    }

    // A program that wrote nothing, or a file that was lost; comments are somebody's intent.
    if (decoded.trimmed().isEmpty())
        return Error{Error::Code::Damaged, at(1),
                     translate("Script",
                               "the script is empty; write a command a line (kelvo-print "
                               "--help-scripts lists them)")};

    std::vector<ScriptLine> lines;
    int number = 0;
    for (QStringView one : QStringView(decoded).split(u'\n')) {
        ++number;
        if (one.endsWith(u'\r'))
            one.chop(1);
        ScriptLine line;
        line.number = number;
        const QString trimmed = one.trimmed().toString();
        if (trimmed.isEmpty() || trimmed.startsWith(u'#'))
            continue;
        const QString problem = readLine(trimmed, line);
        if (!problem.isEmpty())
            return Error{Error::Code::Damaged, at(number), problem};
        lines.push_back(std::move(line));
    }
    return lines;
}

namespace {

// To its end: a pipe gives what is there, and more later. Whoever waits for more
// can be interrupted.
Result<QByteArray> readStandardInput()
{
    const QString name = translate("Script", "standard input");
    QByteArray text;
    char block[65536];
    for (;;) {
        const ssize_t count = ::read(STDIN_FILENO, block, sizeof block);
        if (count < 0 && errno == EINTR)
            return Error{Error::Code::Cancelled, name, translate("Script", "interrupted")};
        if (count < 0)
            return Error{Error::Code::NotReadable, name,
                         QString::fromLocal8Bit(std::strerror(errno)), errno};
        if (count == 0)
            return text;
        text.append(block, count);
        if (text.size() > limits::scriptBytes)
            return Error{Error::Code::TooLarge, name,
                         translate("Script", "a script has at most 16 MiB")};
    }
}

} // namespace

Result<std::vector<ScriptLine>> readScript(const QString &path)
{
    if (path == QLatin1String("-")) {
        const auto text = readStandardInput();
        return text ? parseScript(text.value(), standardInputName) : text.error();
    }
    auto text = readFile(path, limits::scriptBytes);
    if (!text)
        return text.error();
    return parseScript(text.value(), path);
}

ScriptEffects effectsOf(ScriptCommand command)
{
    return std::ranges::find(commandRows, command, &CommandRow::command)->effects;
}

std::vector<ScriptCommandHelp> scriptCommandHelp()
{
    std::vector<ScriptCommandHelp> help;
    for (const CommandRow &row : commandRows)
        help.push_back(row.help);
    return help;
}

QString scriptCommandsText()
{
    QString text = translate("Script",
                             "A script has one command a line; # begins a comment. CONTROL "
                             "is KPDE 614 or\n@bannerSheet: kelvo-print --list-controls "
                             "lists them.\n\n");
    for (const ScriptCommandHelp &help : scriptCommandHelp())
        text += QStringLiteral("  %1\n      %2\n")
                    .arg(QString::fromUtf8(help.usage), translate("Script", help.meaning));
    return text;
}

} // namespace kelvo
