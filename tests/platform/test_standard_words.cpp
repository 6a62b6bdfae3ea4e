#include "ppd_file.h"
#include "standard_words.h"
#include "table.h"

#include <QTest>

using namespace kelvo;

class TestStandardWords : public QObject
{
    Q_OBJECT

private slots:
    void namesGoBothWays_data();
    void namesGoBothWays();
    void choicesHaveWords_data();
    void choicesHaveWords();
    void papersHaveTheirSize_data();
    void papersHaveTheirSize();
    void standInWhereAPpdHasNoText();
};

void TestStandardWords::namesGoBothWays_data()
{
    const Table<QString, QString> row{"keyword", "name"};
    row("words", "photographic-high-gloss", "PhotographicHighGloss");
    row("number", "tray-12", "Tray12");
    row("dots", "com.maker.fast", "Com.maker.fast");
}

void TestStandardWords::namesGoBothWays()
{
    QFETCH(QString, keyword);
    QFETCH(QString, name);
    QCOMPARE(ppdName(keyword), name);
    QCOMPARE(ippKeyword(name), keyword);
    QCOMPARE(ppdName(QStringLiteral("a\"b:c/d*\n") + keyword).contains(u'"'), false);
    QCOMPARE(ppdName(QString(300, u'x')).size(), 40);
}

void TestStandardWords::choicesHaveWords_data()
{
    const Table<QString, QString, QString> row{"option", "choice", "words"};
    row("as IPP has it", "InputSlot", "by-pass-tray", "Bypass tray");
    row("as a PPD has it", "InputSlot", "ByPassTray", "Bypass tray");
    row("any number", "InputSlot", "Tray23", "Tray 23");
    row("of this option alone", "OutputBin", "ByPassTray", "");
    row("dots", "Resolution", "600x1200dpi", "600 × 1200 dpi");
    row("unknown", "MediaType", "Com.maker.Papyrus", "");
}

void TestStandardWords::choicesHaveWords()
{
    QFETCH(QString, option);
    QFETCH(QString, choice);
    QTEST(standardChoiceWords(option, choice), "words");
}

void TestStandardWords::papersHaveTheirSize_data()
{
    const Table<QString, QSizeF, QString> row{"name", "size", "words"};
    row("metric", "A4", {595.276, 841.89}, "A4 (210 × 297 mm)");
    row("inches", "Letter", {612, 792}, "Letter (8.5 × 11 in)");
    row("envelope", "EnvDL.Borderless", {311.811, 623.622},
        "Envelope DL, borderless (110 × 220 mm)");
    row("only a size", "4x6", {288, 432}, "4 × 6 in");
    row("a name that is a word", "Postcard", {283.465, 419.528}, "Postcard (100 × 148 mm)");
}

void TestStandardWords::papersHaveTheirSize()
{
    QFETCH(QString, name);
    QFETCH(QSizeF, size);
    QTEST(paperWords(name, size.width(), size.height()), "words");
}

static QString textOf(const PpdFile &ppd, const char *option, const char *choice)
{
    return ppd.findOption(QLatin1String(option))->findChoice(QLatin1String(choice))->text;
}

// A text of the maker's stays, also where the standards have another.
void TestStandardWords::standInWhereAPpdHasNoText()
{
    const auto make = [](const QByteArray &nickname) {
        const auto ppd = PpdFile::fromBytes("*PPD-Adobe: \"4.3\"\n"
                                            "*FormatVersion: \"4.3\"\n*FileVersion: \"1\"\n"
                                            "*LanguageVersion: English\n"
                                            "*LanguageEncoding: ISOLatin1\n"
                                            "*PCFileName: \"X.PPD\"\n*Manufacturer: \"X\"\n"
                                            "*Product: \"(X)\"\n*PSVersion: \"(3010.000) 0\"\n"
                                            "*ModelName: \"X\"\n*ShortNickName: \"X\"\n"
                                            "*NickName: \""
                                                + nickname
                                                + "\"\n*cupsLanguages: \"C\"\n"
                                                  "*OpenUI *InputSlot/Feeder: PickOne\n"
                                                  "*DefaultInputSlot: Tray2\n"
                                                  "*InputSlot Tray2: \"\"\n"
                                                  "*InputSlot Manual/By hand: \"\"\n"
                                                  "*InputSlot Com.maker.fast: \"\"\n"
                                                  "*CloseUI: *InputSlot\n"
                                                  "*OpenUI *Glue: PickOne\n*DefaultGlue: Hot\n"
                                                  "*C.Translation Glue/Back glue: \"\"\n"
                                                  "*Glue Hot: \"\"\n*Glue Cold: \"\"\n"
                                                  "*C.Glue Hot/Very hot: \"\"\n"
                                                  "*CloseUI: *Glue\n",
                                            QStringLiteral("x"));
        return ppd ? ppd.value() : nullptr;
    };
    const auto makers = make("Maker X");
    QVERIFY(makers);
    QCOMPARE(makers->findOption("InputSlot")->text, "Feeder");
    QCOMPARE(textOf(*makers, "InputSlot", "Tray2"), "Tray 2");
    QCOMPARE(textOf(*makers, "InputSlot", "Manual"), "By hand");
    QCOMPARE(textOf(*makers, "InputSlot", "Com.maker.fast"), "Com.maker.fast");

    const auto servers = make("Maker X - IPP Everywhere");
    QVERIFY(servers);
    QCOMPARE(servers->findOption("InputSlot")->text, "Paper source");
    QCOMPARE(servers->findOption("Glue")->text, "Back glue");
    QCOMPARE(textOf(*servers, "Glue", "Hot"), "Very hot");
    QCOMPARE(textOf(*servers, "Glue", "Cold"), "Cold");
    QCOMPARE(textOf(*servers, "InputSlot", "Com.maker.fast"), "Fast");
}

QTEST_GUILESS_MAIN(TestStandardWords)
#include "test_standard_words.moc"
