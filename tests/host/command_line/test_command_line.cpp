#include "command_line.h"

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
    void usageFitsTheTerminal();
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
    if (!line.file.isEmpty())
        parts << QStringLiteral("file=") + line.file;
    add("d", line.destination);
    if (line.copies)
        parts << QStringLiteral("n=%1").arg(*line.copies);
    for (const auto &[name, value] : line.options)
        parts << QStringLiteral("o=%1:%2").arg(name, value);
    add("P", line.pages);
    add("t", line.title);
    add("ppd", line.ppd);
    add("to", line.toFolder);
    for (auto secret = line.secretFiles.cbegin(); secret != line.secretFiles.cend(); ++secret)
        parts << QStringLiteral("secret=%1:%2").arg(secret.key(), secret.value());
    if (line.timeoutSeconds != 30)
        parts << QStringLiteral("timeout=%1").arg(line.timeoutSeconds);
    return parts.join(u' ');
}

} // namespace

void TestCommandLine::takesEveryForm_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("expected");

    QTest::newRow("nothing") << QStringList{} << "";
    QTest::newRow("a document") << QStringList{"a.pdf"} << "file=a.pdf";
    QTest::newRow("standard input") << QStringList{"-"} << "";
    QTest::newRow("value beside") << QStringList{"-d", "Hall-3"} << "d=Hall-3";
    QTest::newRow("value joined") << QStringList{"-dHall-3"} << "d=Hall-3";
    QTest::newRow("document first") << QStringList{"a.pdf", "-n2"} << "file=a.pdf n=2";
    QTest::newRow("most copies") << QStringList{"-n", "9999"} << "n=9999";
    QTest::newRow("options in order") << QStringList{"-o", "B=1", "-oA=2"} << "o=B:1 o=A:2";
    QTest::newRow("several options in one") << QStringList{"-o", "B=1  A=2"} << "o=B:1 o=A:2";
    QTest::newRow("landscape") << QStringList{"-o", "landscape"} << "o=orientation-requested:4";
    QTest::newRow("portrait") << QStringList{"-o", "portrait A=1"}
                              << "o=orientation-requested:3 o=A:1";
    QTest::newRow("value with a sign") << QStringList{"-o", "A=b=c"} << "o=A:b=c";
    QTest::newRow("open range") << QStringList{"-P", "1-3, 7,9-"} << "P=1-3, 7,9-";
    QTest::newRow("later beats earlier") << QStringList{"-n2", "-n3"} << "n=3";
    QTest::newRow("the same said twice")
        << QStringList{"-n2", "-o", "copies=3 copies=02", "-P", "1 - 3", "-o", "page-ranges=1-3"}
        << "n=2 o=copies:3 o=copies:02 o=page-ranges:1-3 P=1 - 3";
    QTest::newRow("long, beside") << QStringList{"--ppd", "x.ppd"} << "ppd=x.ppd";
    QTest::newRow("long, joined") << QStringList{"--to=a=b"} << "to=a=b";
    QTest::newRow("a value that looks like an option") << QStringList{"-t", "--demo"} << "t=--demo";
    QTest::newRow("end of options") << QStringList{"--", "-d"} << "file=-d";
    QTest::newRow("a secret") << QStringList{"--secret", "pin=/a=b"} << "secret=pin:/a=b";
    QTest::newRow("longest timeout") << QStringList{"--timeout=3600"} << "timeout=3600";
}

void TestCommandLine::takesEveryForm()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, expected);

    const auto line = parseCommandLine(arguments);

    QVERIFY2(line, qPrintable(line ? QString() : line.error().text()));
    QCOMPARE(told(line.value()), expected);
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
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("message");

    QTest::newRow("unknown, a near one")
        << QStringList{"--tickt-in", "x"}
        << "--tickt-in: there is no such option, did you mean --ticket-in?";
    QTest::newRow("unknown, one dash")
        << QStringList{"-print"} << "-print: there is no such option, did you mean --print?";
    QTest::newRow("unknown, none near")
        << QStringList{"--qqqqqqqqqqqqq=1"} << "--qqqqqqqqqqqqq: there is no such option";
    QTest::newRow("no value") << QStringList{"a", "-d"} << "-d: its value DESTINATION is missing";
    QTest::newRow("empty value") << QStringList{"--to="} << "--to: its value is empty";
    QTest::newRow("a value too much")
        << QStringList{"--demo=yes"} << "--demo: it takes no value; \"yes\" is too much";
    for (const char *copies : {"0", "10000", "+1", "2.5", "", "9999999999"})
        QTest::newRow(qPrintable(QStringLiteral("copies \"%1\"").arg(copies)))
            << QStringList{"-n", copies}
            << QStringLiteral("-n: \"%1\" is not a whole number from 1 to 9999").arg(copies);
    QTest::newRow("timeout too long") << QStringList{"--timeout", "3601"}
                                      << "--timeout: \"3601\" is not a whole number from 1 to 3600";
    QTest::newRow("option without value")
        << QStringList{"-o", "Jog"} << "-o: \"Jog\" is not NAME=VALUE";
    QTest::newRow("scaling")
        << QStringList{"-o", "A=1 fit-to-page"}
        << "-o: fit-to-page: pages are printed at their own size; choose a paper that holds them, "
           "-o media=NAME";
    QTest::newRow("unknown letter") << QStringList{"-x"} << "-x: there is no such option";
    QTest::newRow("option without name")
        << QStringList{"-o", "=x"} << "-o: \"=x\" is not NAME=VALUE";
    QTest::newRow("pages backwards")
        << QStringList{"-P", "5-2"}
        << "-P: page range \"5-2\": the last page comes before the first; write 2-5";
    QTest::newRow("page 0") << QStringList{"-P", "1,0"} << "-P: page range \"0\": pages begin at 1";
    QTest::newRow("pages in words")
        << QStringList{"-P", "odd"}
        << "-P: page range \"odd\": pages are written like this: 1-3, 7, 9-";
    QTest::newRow("pages backwards, as an option")
        << QStringList{"-o", "Page-Ranges=5-2"}
        << "-o: page range \"5-2\": the last page comes before the first; write 2-5";
    QTest::newRow("copies said twice")
        << QStringList{"-o", "copies=2", "-n3"}
        << "-n 3: -o copies=2 says something else; leave out one of them";
    QTest::newRow("pages said twice")
        << QStringList{"-P", "1", "-o", "page-ranges=1", "-o", "PAGE-RANGES=2-3"}
        << "-P 1: -o page-ranges=2-3 says something else; leave out one of them";
    QTest::newRow("no pages") << QStringList{"-P", " "}
                              << "-P: \" \" is not a list of pages such as 1-3,7,9-";
    QTest::newRow("a secret on the line")
        << QStringList{"--secret", "1234"}
        << "--secret: it takes NAME=FILE; the secret itself stands in the file";
    QTest::newRow("secret with a blank name")
        << QStringList{"--secret", "a b=f"}
        << "--secret: a secret's name has only letters, digits, - and _";
    QTest::newRow("secret twice") << QStringList{"--secret=a=f", "--secret=a=g"}
                                  << "--secret: the secret a is given twice";
    QTest::newRow("two documents")
        << QStringList{"a", "b"} << "b: only one document is printed at a time";
    QTest::newRow("two devices") << QStringList{"--demo", "--ppd", "x"}
                                 << "--demo: it brings a device of its own; leave out --ppd";
    QTest::newRow("a queue and a device without one")
        << QStringList{"-d", "q", "--ppd", "x"}
        << "-d: --ppd shows a device without a queue; leave out one of them";
    QTest::newRow("nowhere to print to")
        << QStringList{"--demo", "--no-window"}
        << "--no-window: a device without a queue cannot print; add --to DIR";
    QTest::newRow("print without script")
        << QStringList{"--print"}
        << "--print: it prints after a script: add --script FILE, or use --no-window to print at "
           "once";
    QTest::newRow("one input, two readers")
        << QStringList{"--script", "-"}
        << "--script -: standard input is the document already; name one of them as a file";
}

void TestCommandLine::refusesWrongLines()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, message);

    const auto line = parseCommandLine(arguments);

    QVERIFY(!line);
    QCOMPARE(line.error().text(), message);
}

void TestCommandLine::usageFitsTheTerminal()
{
    const QStringList lines = usageText().split(u'\n');
    for (const QString &line : lines)
        QVERIFY2(line.size() <= 80, qPrintable(line));
}

QTEST_APPLESS_MAIN(TestCommandLine)
#include "test_command_line.moc"
