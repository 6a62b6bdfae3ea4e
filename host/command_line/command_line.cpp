#include "command_line.h"

#include "job_timing.h"
#include "nearest_name.h"
#include "page_ranges.h"
#include "terminal.h"
#include "texts.h"

#include <QFileInfo>

#include <algorithm>
#include <limits>

namespace kelvo {

namespace {

using Code = Error::Code;

constexpr int maximumCopies = 9999;
constexpr int maximumTimeoutSeconds = 3600;

Error refused(const QString &where, const QString &detail)
{
    return {Code::Refused, where, detail};
}

// A whole number in plain digits: no sign, no blank, no exponent.
std::optional<int> wholeNumber(const QString &text, int minimum, int maximum)
{
    const bool isPlain = !text.isEmpty() && text.size() <= 9
        && std::all_of(text.cbegin(), text.cend(), [](QChar c) { return c >= u'0' && c <= u'9'; });
    if (!isPlain)
        return std::nullopt;
    const int number = text.toInt();
    if (number < minimum || number > maximum)
        return std::nullopt;
    return number;
}

// How many pages there are is known later; the form is known now.
Result<std::vector<PageRun>> runsOf(const QString &pages)
{
    return pageRunsFrom(pages, std::numeric_limits<int>::max());
}

QString notANumber(const QString &value, int minimum, int maximum)
{
    return translate("CommandLine", "“%1” is not a whole number from %2 to %3")
        .arg(value, QString::number(minimum), QString::number(maximum));
}

// NAME=VALUE; none when there is no name before the sign.
std::optional<QPair<QString, QString>> nameAndValue(const QString &text)
{
    const qsizetype sign = text.indexOf(u'=');
    if (sign < 1)
        return std::nullopt;
    return QPair<QString, QString>{text.left(sign), text.mid(sign + 1)};
}

bool isSecretName(const QString &name)
{
    return std::all_of(name.cbegin(), name.cend(), [](QChar c) {
        return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z') || (c >= u'0' && c <= u'9')
            || c == u'_' || c == u'-';
    });
}

// What an option does with its value; `where` is the option as it was written.
using Take = Result<void> (*)(CommandLine &line, const QString &value, const QString &where);

struct OptionRow
{
    const char *shortName; // "-d", or null
    const char *longName;  // "--ppd", or null
    const char *value;     // what the usage calls its value; null: it takes none
    const char *help;      // null: known, but not in the usage
    Take take;
};

template <std::optional<QString> CommandLine::*Member>
Result<void> takeText(CommandLine &line, const QString &value, const QString &where)
{
    if (value.isEmpty())
        return refused(where, translate("CommandLine", "its value is empty"));
    line.*Member = value;
    return {};
}

template <bool CommandLine::*Member>
Result<void> takeFlag(CommandLine &line, const QString &, const QString &)
{
    line.*Member = true;
    return {};
}

Result<void> takeCopies(CommandLine &line, const QString &value, const QString &where)
{
    line.copies = wholeNumber(value, 1, maximumCopies);
    if (!line.copies)
        return refused(where, notANumber(value, 1, maximumCopies));
    return {};
}

// Names of options are found in any case.
constexpr char copiesOption[] = "copies", pageRangesOption[] = "page-ranges";

bool isNamed(const AskedOption &option, const char *name)
{
    return option.name.compare(QLatin1String(name), Qt::CaseInsensitive) == 0;
}

Result<void> takeOption(CommandLine &line, const QString &value, const QString &where)
{
    // Several in one, separated by blanks.
    const QStringList words = value.simplified().split(u' ');
    for (const QString &word : words) {
        // A name alone is a value, too: which one, the printer's options say.
        const auto named = nameAndValue(word);
        const AskedOption option =
            named ? AskedOption{named->first, named->second} : AskedOption{word, std::nullopt};
        if (named ? named->second.isEmpty() : word.isEmpty() || word.contains(u'='))
            return refused(
                where,
                translate("CommandLine", "“%1” is not NAME=VALUE, NAME or noNAME").arg(word));
        if (isNamed(option, pageRangesOption)) {
            if (const auto runs = runsOf(option.value.value_or(option.name)); !runs)
                return refused(where, runs.error().text());
        }
        line.options.append(option);
    }
    return {};
}

Result<void> takePages(CommandLine &line, const QString &value, const QString &where)
{
    if (value.trimmed().isEmpty())
        return refused(
            where,
            translate("CommandLine", "“%1” is not a list of pages such as 1-3,7,9-").arg(value));
    if (const auto runs = runsOf(value); !runs)
        return refused(where, runs.error().text());
    line.pages = value;
    return {};
}

Result<void> takePriority(CommandLine &line, const QString &value, const QString &where)
{
    const auto priority = priorityFrom(value);
    if (!priority)
        return refused(QStringLiteral("%1 %2").arg(where, value), priority.error().detail);
    line.priority = priority.value();
    return {};
}

Result<void> takeHandling(CommandLine &line, const QString &value, const QString &where)
{
    const auto hold = holdUntilOfHandling(value);
    if (!hold)
        return refused(QStringLiteral("%1 %2").arg(where, value), hold.error().detail);
    line.holdUntil = hold.value();
    return {};
}

Result<void> takeSecret(CommandLine &line, const QString &value, const QString &where)
{
    const auto secret = nameAndValue(value);
    if (!secret || secret->second.isEmpty())
        return refused(where,
                       translate("CommandLine",
                                 "it takes NAME=FILE; the secret itself stands in the "
                                 "file"));
    if (!isSecretName(secret->first))
        return refused(
            where, translate("CommandLine", "a secret’s name has only letters, digits, - and _"));
    if (line.secretFiles.contains(secret->first))
        return refused(where,
                       translate("CommandLine", "the secret %1 is given twice").arg(secret->first));
    line.secretFiles.insert(secret->first, secret->second);
    return {};
}

// A folder, or a file that its name says to be a PDF.
Result<void> takeTarget(CommandLine &line, const QString &value, const QString &where)
{
    if (value.isEmpty())
        return refused(where, translate("CommandLine", "its value is empty"));
    const bool isPdf =
        value.endsWith(QLatin1String(".pdf"), Qt::CaseInsensitive) && !QFileInfo(value).isDir();
    line.toPdf = isPdf ? std::optional(value) : std::nullopt;
    line.toFolder = isPdf ? std::nullopt : std::optional(value);
    return {};
}

Result<void> takeTimeout(CommandLine &line, const QString &value, const QString &where)
{
    const auto seconds = wholeNumber(value, 1, maximumTimeoutSeconds);
    if (!seconds)
        return refused(where, notANumber(value, 1, maximumTimeoutSeconds));
    line.timeoutSeconds = *seconds;
    return {};
}

// In the order of the usage.
// clang-format off
constexpr OptionRow optionRows[] = {
    {"-d", nullptr, "DESTINATION", QT_TRANSLATE_NOOP("CommandLine", "print to this queue"), takeText<&CommandLine::destination>},
    {"-n", nullptr, "COPIES", QT_TRANSLATE_NOOP("CommandLine", "print this many copies, 1 to 9999"), takeCopies},
    {"-o", nullptr, "NAME=VALUE", QT_TRANSLATE_NOOP("CommandLine", "set an option of the device, or media, sides,\nlandscape and others that lp has; NAME alone\nswitches one on, noNAME off"), takeOption},
    {"-P", nullptr, "PAGES", QT_TRANSLATE_NOOP("CommandLine", "print only these pages: 1-3,7,9-"), takePages},
    {"-q", nullptr, "PRIORITY", QT_TRANSLATE_NOOP("CommandLine", "how urgent the job is, 1 to 100"), takePriority},
    {"-H", nullptr, "HOLD", QT_TRANSLATE_NOOP("CommandLine", "when the server prints it: immediate, hold, HH:MM\n(UTC), evening and others that lp has"), takeHandling},
    {"-t", nullptr, "TITLE", QT_TRANSLATE_NOOP("CommandLine", "call the job so"), takeText<&CommandLine::title>},
    {nullptr, "--join", nullptr, QT_TRANSLATE_NOOP("CommandLine", "print several files as one job"), takeFlag<&CommandLine::join>},
    {nullptr, "--ppd", "FILE", QT_TRANSLATE_NOOP("CommandLine", "show a device without a queue"), takeText<&CommandLine::ppd>},
    {nullptr, "--demo", nullptr, QT_TRANSLATE_NOOP("CommandLine", "show the sample device and document"), takeFlag<&CommandLine::demo>},
    {nullptr, "--preset", "NAME", QT_TRANSLATE_NOOP("CommandLine", "begin with this preset"), takeText<&CommandLine::preset>},
    {nullptr, "--preset-out", "FILE", QT_TRANSLATE_NOOP("CommandLine", "write what was set as a preset when printing or when\nthe script ends"), takeText<&CommandLine::presetOut>},
    {nullptr, "--ticket-in", "FILE", QT_TRANSLATE_NOOP("CommandLine", "begin with the settings in this ticket"), takeText<&CommandLine::ticketIn>},
    {nullptr, "--ticket-out", "FILE", QT_TRANSLATE_NOOP("CommandLine", "write all settings when printing or when the\nscript ends"), takeText<&CommandLine::ticketOut>},
    {nullptr, "--script", "FILE", QT_TRANSLATE_NOOP("CommandLine", "drive the dialog; - is standard input"), takeText<&CommandLine::script>},
    {nullptr, "--print", nullptr, QT_TRANSLATE_NOOP("CommandLine", "print when the script has ended"), takeFlag<&CommandLine::print>},
    {nullptr, "--secret", "NAME=FILE", QT_TRANSLATE_NOOP("CommandLine", "a secret for the script, in a file of mode 0600;\nDOCUMENT is the password of a PDF, DOCUMENT2\nthat of the second file"), takeSecret},
    {nullptr, "--no-window", nullptr, QT_TRANSLATE_NOOP("CommandLine", "show nothing; without a script, print at once"), takeFlag<&CommandLine::noWindow>},
    {nullptr, "--to", "FILE.pdf", QT_TRANSLATE_NOOP("CommandLine", "write a PDF of what would be printed; with the\nname of a folder, document.pdf, options and\nticket.plist into it, or into a folder there for\neach of several jobs"), takeTarget},
    {nullptr, "--wait", nullptr, QT_TRANSLATE_NOOP("CommandLine", "end when the job is printed, and say what becomes\nof it"), takeFlag<&CommandLine::wait>},
    {nullptr, "--timeout", "SECONDS", QT_TRANSLATE_NOOP("CommandLine", "wait this long for the print server, or for a\npipe named as file, 1 to 3600 (30)"), takeTimeout},
    {nullptr, "--language", "LANGUAGE", QT_TRANSLATE_NOOP("CommandLine", "speak this language instead of the desktop’s"), takeText<&CommandLine::language>},
    {nullptr, "--list-printers", nullptr, QT_TRANSLATE_NOOP("CommandLine", "list the queues and end"), takeFlag<&CommandLine::listPrinters>},
    {nullptr, "--list-controls", nullptr, QT_TRANSLATE_NOOP("CommandLine", "list what scripts can reach, and end"), takeFlag<&CommandLine::listControls>},
    {nullptr, "--version", nullptr, QT_TRANSLATE_NOOP("CommandLine", "print the version and end"), takeFlag<&CommandLine::version>},
    {nullptr, "--help-scripts", nullptr, QT_TRANSLATE_NOOP("CommandLine", "list the commands of scripts and end"), takeFlag<&CommandLine::helpScripts>},
    {"-h", "--help", nullptr, QT_TRANSLATE_NOOP("CommandLine", "print this and end"), takeFlag<&CommandLine::help>},
};
// clang-format on

QString nameOf(const OptionRow &row)
{
    return QString::fromLatin1(row.longName ? row.longName : row.shortName);
}

const OptionRow *findLong(const QString &name)
{
    for (const OptionRow &row : optionRows) {
        if (row.longName && name == QLatin1String(row.longName))
            return &row;
    }
    return nullptr;
}

const OptionRow *findShort(const QString &name)
{
    for (const OptionRow &row : optionRows) {
        if (row.shortName && name == QLatin1String(row.shortName))
            return &row;
    }
    return nullptr;
}

QStringList allNames()
{
    QStringList names;
    for (const OptionRow &row : optionRows)
        names.append(nameOf(row));
    return names;
}

Error noSuchOption(const QString &name)
{
    const QString problem = translate("CommandLine", "there is no such option");
    // Every single letter is near every other one.
    return refused(shortened(name),
                   name.size() > 2 ? didYouMean(problem, name, allNames()) : problem);
}

// An option as it is written: --name, --name=value, -n, -nvalue, or the value in the
// argument after it.
struct WrittenOption
{
    const OptionRow *row;
    QString name;
    QString value;
};

// The option that begins at `i`, which moves on to the last argument that is its own.
Result<WrittenOption> optionAt(const QStringList &arguments, qsizetype &i)
{
    const QString &argument = arguments[i];
    const bool isLong = argument.startsWith(QLatin1String("--"));
    const qsizetype sign = isLong ? argument.indexOf(u'=') : -1;
    const QString name = isLong ? argument.left(sign) : argument.left(2);
    const OptionRow *row = isLong ? findLong(name) : findShort(name);
    if (!row)
        return noSuchOption(isLong ? name : argument);
    std::optional<QString> value;
    if (sign >= 0)
        value = argument.mid(sign + 1);
    else if (!isLong && argument.size() > 2)
        value = argument.mid(2);
    if (!row->value && value)
        return refused(name,
                       translate("CommandLine", "it takes no value; “%1” is too much").arg(*value));
    if (row->value && !value) {
        if (i + 1 == arguments.size())
            return refused(
                name,
                translate("CommandLine", "its value %1 is missing").arg(QLatin1String(row->value)));
        value = arguments[++i];
    }
    return WrittenOption{row, name, value.value_or(QString())};
}

bool isOption(const QString &argument)
{
    return argument.startsWith(u'-') && argument != QLatin1String("-");
}

constexpr QLatin1String standardInputName("-");

Result<void> takeFile(CommandLine &line, const QString &file)
{
    if (file == standardInputName && line.files.contains(file))
        return refused(file, translate("CommandLine", "standard input can be read only once"));
    line.files.append(file);
    return {};
}

// The last -o of this name, which beats the earlier ones; null: there is none.
const AskedOption *findLastOption(const CommandLine &line, const char *name)
{
    const auto found =
        std::find_if(line.options.crbegin(), line.options.crend(),
                     [name](const AskedOption &option) { return isNamed(option, name); });
    return found == line.options.crend() ? nullptr : &*found;
}

// -n, -P, -q and -H beat the same said with -o, wherever they stand. Whoever says two things
// would lose one of them.
std::optional<Error> findTwoValues(const CommandLine &line)
{
    const auto twice = [](const char *option, const QString &value, const AskedOption &other) {
        return refused(QStringLiteral("%1 %2").arg(QLatin1String(option), value),
                       translate("CommandLine", "-o %1 says something else; leave out one of them")
                           .arg(other.text()));
    };
    const AskedOption *copies = findLastOption(line, copiesOption);
    if (line.copies && copies
        && wholeNumber(copies->value.value_or(QString()), 1, maximumCopies) != line.copies)
        return twice("-n", QString::number(*line.copies), *copies);
    const AskedOption *priority = findLastOption(line, kJobPriorityOption);
    if (line.priority && priority) {
        const auto other = priorityFrom(priority->value.value_or(QString()));
        if (!other || other.value() != *line.priority)
            return twice("-q", QString::number(*line.priority), *priority);
    }
    const AskedOption *hold = findLastOption(line, kJobHoldUntilOption);
    if (line.holdUntil && hold) {
        const auto other = holdUntilFrom(hold->value.value_or(QString()));
        if (!other || other.value() != *line.holdUntil)
            return twice("-H", *line.holdUntil, *hold);
    }
    const AskedOption *pages = findLastOption(line, pageRangesOption);
    if (!line.pages || !pages)
        return std::nullopt;
    const auto runs = runsOf(*line.pages), others = runsOf(*pages->value); // well written, both
    if (runs.value() != others.value())
        return twice("-P", *line.pages, *pages);
    return std::nullopt;
}

// What is wrong with options that are right by themselves.
std::optional<Error> findClash(const CommandLine &line)
{
    if (line.ppd && line.demo)
        return refused(QStringLiteral("--demo"),
                       translate("CommandLine", "it brings a device of its own; leave out --ppd"));
    if (line.destination && (line.ppd || line.demo))
        return refused(
            QStringLiteral("-d"),
            translate("CommandLine", "%1 shows a device without a queue; leave out one of them")
                .arg(line.ppd ? QStringLiteral("--ppd") : QStringLiteral("--demo")));
    if (line.print && !line.script)
        return refused(QStringLiteral("--print"),
                       translate("CommandLine",
                                 "it prints after a script: add --script FILE, or use "
                                 "--no-window to print at once"));
    if (line.toPdf && line.files.size() > 1 && !line.join)
        return refused(QStringLiteral("--to"),
                       translate("CommandLine",
                                 "a PDF file has room for one job: add --join, or name a folder"));
    if (line.noWindow && !line.script && (line.ppd || line.demo) && !line.toFolder && !line.toPdf)
        return refused(
            QStringLiteral("--no-window"),
            translate("CommandLine", "a device without a queue cannot print; add --to DIR"));
    if (line.wait && (line.toFolder || line.toPdf))
        return refused(QStringLiteral("--wait"),
                       translate("CommandLine",
                                 "what is written to a file is not printed, and there is nothing "
                                 "to wait for; leave out --to"));
    if (line.script == QStringLiteral("-") && readsStandardInput(line))
        return refused(QStringLiteral("--script -"),
                       translate("CommandLine",
                                 "standard input is the document already; name one of them "
                                 "as a file"));
    return findTwoValues(line);
}

} // namespace

bool readsStandardInput(const CommandLine &line)
{
    return line.files.isEmpty() ? !line.demo : line.files.contains(standardInputName);
}

Result<CommandLine> parseCommandLine(const QStringList &arguments)
{
    CommandLine line;
    bool optionsEnded = false;
    for (qsizetype i = 0; i < arguments.size(); ++i) {
        const QString &argument = arguments[i];
        if (optionsEnded || !isOption(argument)) {
            if (argument.isEmpty())
                return refused(QStringLiteral("\"\""),
                               translate("CommandLine", "a document has a name"));
            if (const auto taken = takeFile(line, argument); !taken)
                return taken.error();
            continue;
        }
        if (argument == QLatin1String("--")) {
            optionsEnded = true;
            continue;
        }

        const auto option = optionAt(arguments, i);
        if (!option)
            return option.error();
        const auto &[row, name, value] = option.value();
        if (const auto taken = row->take(line, value, name); !taken)
            return taken.error();
    }

    if (line.help || line.helpScripts || line.version || line.listPrinters || line.listControls)
        return line;
    if (const auto clash = findClash(line))
        return *clash;
    return line;
}

std::optional<QString> languageAsked(const QStringList &arguments)
{
    const OptionRow *wanted = findLong(QStringLiteral("--language"));
    std::optional<QString> language;
    for (qsizetype i = 0; i < arguments.size() && arguments[i] != QLatin1String("--"); ++i) {
        if (!isOption(arguments[i]))
            continue;
        const auto option = optionAt(arguments, i);
        if (option && option.value().row == wanted)
            language = option.value().value;
    }
    return language;
}

QString usageText()
{
    constexpr int helpColumn = 28;
    QString text =
        translate("CommandLine",
                  "Usage: kelvo-print [OPTION]... [FILE]...\n"
                  "\n"
                  "Shows the print dialog for the FILEs, or for standard input (-): PDF,\n"
                  "PostScript, text or pictures. Each is a job of its own.\n"
                  "\n");
    for (const OptionRow &row : optionRows) {
        QStringList names;
        for (const char *name : {row.shortName, row.longName}) {
            if (name)
                names.append(QString::fromLatin1(name));
        }
        QString left = QStringLiteral("  ") + names.join(QStringLiteral(", "));
        if (row.value)
            left += u' ' + QLatin1String(row.value);
        const QStringList help = translate("CommandLine", row.help).split(u'\n');
        text += left.leftJustified(helpColumn) + help.first() + u'\n';
        for (qsizetype i = 1; i < help.size(); ++i)
            text += QString(helpColumn, u' ') + help[i] + u'\n';
    }
    text += translate(
        "CommandLine",
        "\n"
        "Later beats earlier: the device’s defaults, the queue’s, the site’s preset,\n"
        "--preset, --ticket-in, -o, --script.\n"
        "\n"
        "Ends with 0 printed, 1 failed, 2 wrong usage or script, 3 settings of -o or a\n"
        "script in conflict or not offered, 4 destination or PPD unknown, unreachable or\n"
        "unreadable, 6 ticket missing or invalid, 130 cancelled.\n");
    return text;
}

} // namespace kelvo
