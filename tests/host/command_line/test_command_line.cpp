#include "command_line.h"
#include "document_origin.h"
#include "table.h"

#include <QTest>

using namespace kelvo;

class TestCommandLine : public QObject
{
    Q_OBJECT

private slots:
    void takesEveryForm_data();
    void takesEveryForm();
    void aFullLineIsUnderstood();
    void refusesWrongLines_data();
    void refusesWrongLines();
    void whatIsRefusedIsSaidInTheLanguageAskedFor_data();
    void whatIsRefusedIsSaidInTheLanguageAskedFor();
    void usageFitsTheTerminal();
    void findsTheDocument_data();
    void findsTheDocument();
};

namespace {

// The parts of a command line that the tables look at, as one text.
QString told(const CommandLine &line)
{
    QStringList parts;
    const auto add = [&parts](const char *name, const std::optional<QString> &value) {
        if (value)
            parts << QLatin1String(name) + u'=' + *value;
    };
    for (const QString &file : line.files)
        parts << QStringLiteral("file=") + file;
    add("d", line.destination);
    if (line.copies)
        parts << QStringLiteral("n=%1").arg(*line.copies);
    for (const auto &[name, value] : line.options)
        parts << (value ? QStringLiteral("o=%1:%2").arg(name, *value)
                        : QStringLiteral("o=%1").arg(name));
    add("P", line.pages);
    if (line.priority)
        parts << QStringLiteral("q=%1").arg(*line.priority);
    add("H", line.holdUntil);
    if (line.wait)
        parts << QStringLiteral("wait");
    add("t", line.title);
    add("ppd", line.ppd);
    add("to", line.toFolder);
    for (auto secret = line.secretFiles.cbegin(); secret != line.secretFiles.cend(); ++secret)
        parts << QStringLiteral("secret=%1:%2").arg(secret.key(), secret.value());
    if (line.timeoutSeconds != 30)
        parts << QStringLiteral("timeout=%1").arg(line.timeoutSeconds);
    add("language", line.language);
    return parts.join(u' ');
}

} // namespace

void TestCommandLine::takesEveryForm_data()
{
    const Table<QStringList, QString> row{"arguments", "expected"};

    row("nothing", {}, "");
    row("a document", {"a.pdf"}, "file=a.pdf");
    row("standard input", {"-"}, "file=-");
    row("several documents", {"b.pdf", "-n2", "-", "a.pdf"}, "file=b.pdf file=- file=a.pdf n=2");
    row("value beside", {"-d", "Hall-3"}, "d=Hall-3");
    row("value joined", {"-dHall-3"}, "d=Hall-3");
    row("document first", {"a.pdf", "-n2"}, "file=a.pdf n=2");
    row("most copies", {"-n", "9999"}, "n=9999");
    row("options in order", {"-o", "B=1", "-oA=2"}, "o=B:1 o=A:2");
    row("several options in one", {"-o", "B=1  A=2"}, "o=B:1 o=A:2");
    row("a name alone", {"-o", "landscape noDuplex A=1"}, "o=landscape o=noDuplex o=A:1");
    row("value with a sign", {"-o", "A=b=c"}, "o=A:b=c");
    row("open range", {"-P", "1-3, 7,9-"}, "P=1-3, 7,9-");
    row("urgent", {"-q100"}, "q=100");
    row("at once", {"-H", "immediate"}, "H=no-hold");
    row("later", {"-H", "hold", "--wait"}, "H=indefinite wait");
    row("at a time", {"-H", "7:05"}, "H=07:05");
    row("in words", {"-H", "Second-Shift", "-o", "job-hold-until=second-shift"},
        "o=job-hold-until:second-shift H=second-shift");
    row("later beats earlier", {"-n2", "-n3"}, "n=3");
    row("the same said twice",
        {"-n2", "-o", "copies=3 copies=02", "-P", "1 - 3", "-o", "page-ranges=1-3"},
        "n=2 o=copies:3 o=copies:02 o=page-ranges:1-3 P=1 - 3");
    row("long, beside", {"--ppd", "x.ppd"}, "ppd=x.ppd");
    row("long, joined", {"--to=a=b"}, "to=a=b");
    row("a value that looks like an option", {"-t", "--demo"}, "t=--demo");
    row("end of options", {"--", "-d"}, "file=-d");
    row("a secret", {"--secret", "pin=/a=b"}, "secret=pin:/a=b");
    row("longest timeout", {"--timeout=3600"}, "timeout=3600");
    row("a language", {"--language", "de_AT"}, "language=de_AT");
}

void TestCommandLine::takesEveryForm()
{
    QFETCH(QStringList, arguments);

    const auto line = parseCommandLine(arguments);

    QVERIFY2(line, qPrintable(line ? QString() : line.error().text()));
    QTEST(told(line.value()), "expected");
}

void TestCommandLine::aFullLineIsUnderstood()
{
    const auto line =
        parseCommandLine({"--preset", "Draft", "--ticket-in", "i", "--ticket-out", "o", "--script",
                          "s", "--print", "--no-window", "--demo", "--to", "d"});
    QVERIFY(line);
    QCOMPARE(line.value().preset, "Draft");
    QCOMPARE(line.value().ticketIn, "i");
    QCOMPARE(line.value().ticketOut, "o");
    QCOMPARE(line.value().script, "s");
    QVERIFY(line.value().print && line.value().noWindow && line.value().demo);
    QCOMPARE(line.value().timeoutSeconds, 30);
}

void TestCommandLine::refusesWrongLines_data()
{
    const Table<QStringList, QString> row{"arguments", "message"};

    row("unknown, a near one", {"--tickt-in", "x"},
        "--tickt-in: there is no such option, did you mean --ticket-in?");
    row("unknown, one dash", {"-print"}, "-print: there is no such option, did you mean --print?");
    row("unknown, none near", {"--qqqqqqqqqqqqq=1"}, "--qqqqqqqqqqqqq: there is no such option");
    row("no value", {"a", "-d"}, "-d: its value DESTINATION is missing");
    row("empty value", {"--to="}, "--to: its value is empty");
    row("a value too much", {"--demo=yes"}, "--demo: it takes no value; “yes” is too much");
    for (const char *copies : {"0", "10000", "+1", "2.5", "", "9999999999"})
        row(qPrintable(QStringLiteral("copies \"%1\"").arg(copies)), {"-n", copies},
            QStringLiteral("-n: “%1” is not a whole number from 1 to 9999").arg(copies));
    row("too urgent", {"-q", "101"},
        "-q 101: a priority is a number from 1 to 100, the higher the sooner");
    row("no time", {"-H", "24:00"},
        "-H 24:00: it takes immediate, hold, a time HH:MM in UTC, or a word of job-hold-until: "
        "no-hold, indefinite, day-time, evening, night, second-shift, third-shift, weekend");
    row("of a job that is there", {"-H", "resume"},
        "-H resume: that is for a job that is there already; use “lp -i JOB -H resume”");
    row("held twice", {"-H", "hold", "-o", "job-hold-until=night"},
        "-H indefinite: -o job-hold-until=night says something else; leave out one of them");
    row("waiting for a folder", {"--wait", "--to", "x"},
        "--wait: what is written to a file is not printed, and there is nothing to wait for; leave "
        "out "
        "--to");
    row("timeout too long", {"--timeout", "3601"},
        "--timeout: “3601” is not a whole number from 1 to 3600");
    for (const char *option : {"Jog=", "=1", ""})
        row(qPrintable(QStringLiteral("option \"%1\"").arg(option)), {"-o", option},
            QStringLiteral("-o: “%1” is not NAME=VALUE, NAME or noNAME").arg(option));
    row("pages from 0", {"-P", "0-2"}, "-P: page range “0-2”: pages begin at 1");
    row("pages from 0, as an option", {"-o", "Page-Ranges=0-2"},
        "-o: page range “0-2”: pages begin at 1");
    row("copies said twice", {"-o", "copies=2", "-n3"},
        "-n 3: -o copies=2 says something else; leave out one of them");
    row("copies without a number", {"-n3", "-o", "copies"},
        "-n 3: -o copies says something else; leave out one of them");
    row("pages said twice", {"-P", "1", "-o", "page-ranges=1", "-o", "PAGE-RANGES=2-3"},
        "-P 1: -o PAGE-RANGES=2-3 says something else; leave out one of them");
    row("no pages", {"-P", " "}, "-P: “ ” is not a list of pages such as 1-3,7,9-");
    row("a secret on the line", {"--secret", "1234"},
        "--secret: it takes NAME=FILE; the secret itself stands in the file");
    row("secret with a blank name", {"--secret", "a b=f"},
        "--secret: a secret’s name has only letters, digits, - and _");
    row("secret twice", {"--secret=a=f", "--secret=a=g"}, "--secret: the secret a is given twice");
    row("standard input twice", {"-", "a", "-"}, "-: standard input can be read only once");
    row("several in one file", {"a", "b", "--to", "x.pdf"},
        "--to: a PDF file has room for one job: add --join, or name a folder");
    row("two readers of the input", {"a", "-", "--script", "-"},
        "--script -: standard input is the document already; name one of them as a file");
    row("two devices", {"--demo", "--ppd", "x"},
        "--demo: it brings a device of its own; leave out --ppd");
    row("a queue and a device without one", {"-d", "q", "--ppd", "x"},
        "-d: --ppd shows a device without a queue; leave out one of them");
    row("nowhere to print to", {"--demo", "--no-window"},
        "--no-window: a device without a queue cannot print; add --to DIR");
    row("print without script", {"--print"},
        "--print: it prints after a script: add --script FILE, or use --no-window to print at "
        "once");
    row("one input, two readers", {"--script", "-"},
        "--script -: standard input is the document already; name one of them as a file");
}

void TestCommandLine::refusesWrongLines()
{
    QFETCH(QStringList, arguments);

    const auto line = parseCommandLine(arguments);

    QVERIFY(!line);
    QTEST(line.error().text(), "message");
}

void TestCommandLine::whatIsRefusedIsSaidInTheLanguageAskedFor_data()
{
    const Table<QStringList, QString> row{"arguments", "language"};

    row("none", {"--demo"}, "");
    row("behind what is refused", {"--nonsense", "-n", "0", "--language=ja"}, "ja");
    row("the last one", {"--language", "ja", "--language", "de"}, "de");
    row("another option's value", {"-t", "--language", "de"}, "");
    row("a document's name", {"--", "--language", "de"}, "");
    row("without a value", {"--language"}, "");
}

void TestCommandLine::whatIsRefusedIsSaidInTheLanguageAskedFor()
{
    QFETCH(QStringList, arguments);

    QTEST(languageAsked(arguments).value_or(QString()), "language");
}

void TestCommandLine::usageFitsTheTerminal()
{
    const QStringList lines = usageText().split(u'\n');
    for (const QString &line : lines)
        QVERIFY2(line.size() <= 80, qPrintable(line));
}

void TestCommandLine::findsTheDocument_data()
{
    using Origin = DocumentOrigin;
    // the origin by what standard input is
    const Table<QStringList, Origin, Origin, Origin> row{"arguments", "terminal", "nothing",
                                                         "data"};

    row("named", {"a.pdf"}, Origin::Files, Origin::Files, Origin::Files);
    row("none named", {}, Origin::Chooser, Origin::Chooser, Origin::StandardInput);
    row("none named, none to ask", {"--no-window"}, Origin::Missing, Origin::StandardInput,
        Origin::StandardInput);
    row("none named in a script", {"--script", "s"}, Origin::Missing, Origin::StandardInput,
        Origin::StandardInput);
    row("standard input", {"-"}, Origin::Missing, Origin::StandardInput, Origin::StandardInput);
    row("sample", {"--demo"}, Origin::Sample, Origin::Sample, Origin::Sample);
    row("sample's device", {"--demo", "-"}, Origin::Missing, Origin::StandardInput,
        Origin::StandardInput);
}

void TestCommandLine::findsTheDocument()
{
    QFETCH(QStringList, arguments);

    const auto line = parseCommandLine(arguments);

    QVERIFY(line);
    QTEST(documentOrigin(line.value(), StandardInput::Terminal), "terminal");
    QTEST(documentOrigin(line.value(), StandardInput::Nothing), "nothing");
    QTEST(documentOrigin(line.value(), StandardInput::Data), "data");
}

QTEST_APPLESS_MAIN(TestCommandLine)
#include "test_command_line.moc"
