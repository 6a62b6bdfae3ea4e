#include "file_store.h"
#include "files.h"
#include "ppd_file.h"
#include "ppd_translation.h"
#include "sample_ppds.h"
#include "size_limits.h"
#include "table.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>

using namespace kelvo;
using namespace Qt::StringLiterals;
using Code = Error::Code;

// The device of test.ppd: two finishers that are options, staples that need one,
// and a rule over three options.
class TestPpdFile : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void tellsWhatTheDeviceIs();
    void listsOptionsInTheirGroups();
    void listsPageSizes();
    void marksWhatIsOffered_data();
    void marksWhatIsOffered();
    void marksDefaultsAgain();
    void namesConflicts_data();
    void namesConflicts();
    void readsTextsInTheirEncoding_data();
    void readsTextsInTheirEncoding();
    void speaksTheLanguagesItLists_data();
    void speaksTheLanguagesItLists();
    void speaksTheLanguageOfTheProgram();
    void linesKeepTheirNumbersBesideTranslations();
    void namesConflictsOfPairs();
    void knowsWhatTheEquipmentRulesOut();
    void resolvesConflicts_data();
    void resolvesConflicts();
    void leavesTheMarksAloneWhenItLooksForConflicts();
    void refusesOtherFiles_data();
    void refusesOtherFiles();

private:
    std::shared_ptr<PpdFile> m_ppd;
};

static QString testPpd()
{
    return QStringLiteral(KELVO_TEST_DATA "/platform/test.ppd");
}

void TestPpdFile::init()
{
    const auto ppd = PpdFile::open(testPpd());
    QVERIFY2(ppd, qPrintable(ppd.reason()));
    m_ppd = ppd.value();
}

void TestPpdFile::tellsWhatTheDeviceIs()
{
    QCOMPARE(m_ppd->path(), testPpd());
    QCOMPARE(m_ppd->manufacturer(), u"Kelvo"_s);
    QCOMPARE(m_ppd->modelName(), u"Kelvo Test Device"_s);
    QCOMPARE(m_ppd->attribute("KelvoTicket"), std::optional(u"1"_s));
    QVERIFY(!m_ppd->attribute("KelvoNothing"));
    QCOMPARE(m_ppd->attributes("cupsFilter"),
             (QStringList{u"application/pdf 0 -"_s, u"application/postscript 10 -"_s}));

    const auto bare = PpdFile::fromBytes("*PPD-Adobe: \"4.3\"\n", u"bare.ppd"_s);
    QVERIFY2(bare, qPrintable(bare.reason()));
    QCOMPARE(bare.value()->manufacturer(), QString());
    QCOMPARE(bare.value()->languageEncoding(), QString());
    QVERIFY(!bare.value()->customPageLimits());
    QVERIFY(bare.value()->groups().empty() && bare.value()->pageSizes().empty());
}

void TestPpdFile::listsOptionsInTheirGroups()
{
    QStringList groups;
    for (const PpdGroup &group : m_ppd->groups())
        groups << group.name;
    QVERIFY(groups.contains(u"InstallableOptions"_s));

    const PpdOption *media = m_ppd->findOption(u"MediaType"_s);
    QVERIFY(media);
    QCOMPARE(media->text, u"Papersorte é"_s);
    QCOMPARE(media->defaultChoice, u"Standard"_s);
    QVERIFY(!media->pickMany);
    QCOMPARE(media->choices.size(), std::size_t(3));
    QCOMPARE(media->choices[1].keyword, u"Transparency"_s);
    const PpdChoice *card = media->findChoice(u"CardStock"_s);
    QVERIFY(card);
    QCOMPARE(card->text, u"Card Stock"_s);
    QVERIFY(!media->findChoice(u"cardstock"_s));
    QVERIFY(!m_ppd->findOption(u"Media"_s));
    QVERIFY(!m_ppd->findOption(QString()));
    QVERIFY(m_ppd->findOption(u"KVMarks"_s)->pickMany);
    QVERIFY(m_ppd->findOption(u"JCLBanner"_s));
}

void TestPpdFile::listsPageSizes()
{
    QStringList names;
    for (const PpdPageSize &size : m_ppd->pageSizes())
        names << size.name;
    QCOMPARE(names, (QStringList{u"A4"_s, u"Letter"_s, u"A3"_s}));
    const PpdPageSize *a4 = m_ppd->findPageSize(u"A4"_s);
    QVERIFY(a4);
    QCOMPARE(a4->width, 595.0);
    QCOMPARE(a4->height, 842.0);
    QCOMPARE(a4->left, 12.0);
    QCOMPARE(a4->bottom, 14.0);
    QCOMPARE(a4->right, 579.0);
    QCOMPARE(a4->top, 824.0);
    QVERIFY(!m_ppd->findPageSize(u"Custom"_s));
    const auto limits = m_ppd->customPageLimits();
    QVERIFY(limits);
    QCOMPARE(limits->minWidth, 216.0);
    QCOMPARE(limits->maxHeight, 1368.0);
}

void TestPpdFile::marksWhatIsOffered_data()
{
    // marked: afterwards; empty: none
    const Table<QString, QString, bool, QString> row{"option", "choice", "conflict", "marked"};
    row("no conflict", "Duplex", "DuplexTumble", false, "DuplexTumble");
    row("no finisher", "StapleLocation", "DualLandscape", true, "DualLandscape");
    row("unknown option", "Colour", "Red", false, "");
    row("unknown choice", "Duplex", "Sideways", false, "None");
    row("empty choice", "Duplex", "", false, "None");
    row("custom size", "PageSize", "Custom.400x500", false, "Custom");
    row("custom size of nothing", "Duplex", "Custom.400x500", false, "None");
}

void TestPpdFile::marksWhatIsOffered()
{
    QFETCH(QString, option);
    QFETCH(QString, choice);
    QTEST(m_ppd->mark(option, choice), "conflict");
    QTEST(m_ppd->markedChoice(option).value_or(QString()), "marked");
}

void TestPpdFile::marksDefaultsAgain()
{
    QVERIFY(m_ppd->mark(u"StapleLocation"_s, u"DualLandscape"_s));
    // The marks are in conflict, but what the PPD lacks adds none.
    QVERIFY(!m_ppd->mark(u"Colour"_s, u"Red"_s));
    m_ppd->markDefaults();
    QCOMPARE(m_ppd->markedChoice(u"StapleLocation"_s), std::optional(u"None"_s));
    QVERIFY(!m_ppd->mark(u"Duplex"_s, u"DuplexTumble"_s));
}

using Groups = QList<QStringList>;

void TestPpdFile::namesConflicts_data()
{
    const Table<PpdSelection, Groups> row{"selection", "groups"};
    row("defaults", {}, Groups());
    row("two options", {{"StapleLocation", "DualLandscape"}},
        Groups{{"StapleLocation", "KVFinisher"}});
    row("one option in two conflicts",
        {{"StapleLocation", "DualLandscape"}, {"MediaType", "Transparency"}},
        Groups{{"MediaType", "StapleLocation"}, {"StapleLocation", "KVFinisher"}});
    row("two conflicts apart",
        {{"PageSize", "A3"}, {"InputSlot", "Bypass"}, {"KVMarks", "Fold"}, {"JCLBanner", "True"}},
        Groups{{"PageSize", "InputSlot"}, {"KVMarks", "JCLBanner"}});
    row("custom size", {{"PageSize", "Custom.400x500"}, {"Duplex", "DuplexTumble"}},
        Groups{{"PageSize", "Duplex"}});
    row("two of three", {{"MediaType", "CardStock"}, {"InputSlot", "Bypass"}}, Groups());
    row("three together",
        {{"MediaType", "CardStock"}, {"InputSlot", "Bypass"}, {"Duplex", "DuplexTumble"}},
        Groups{{"MediaType", "Duplex", "InputSlot"}});
    row("second of many", {{"KVMarks", "Fold"}, {"JCLBanner", "True"}},
        Groups{{"KVMarks", "JCLBanner"}});
    row("unknown names", {{"Colour", "Red"}, {"Duplex", "Sideways"}}, Groups());
}

void TestPpdFile::namesConflicts()
{
    QFETCH(PpdSelection, selection);
    Groups found;
    for (const PpdConflict &conflict : m_ppd->conflicts(selection))
        found << conflict.options;
    QTEST(found, "groups");
}

void TestPpdFile::readsTextsInTheirEncoding_data()
{
    // encoding: as the PPD's line says it; text: of the bytes D0 DD DE F0 FD FE E7
    const Table<QByteArray, QString> row{"encoding", "text"};
    row("Latin 1", "ISOLatin1", u"ÐÝÞðýþç"_s);
    row("Latin 2", "ISOLatin2", u"ĐÝŢđýţç"_s);
    row("Latin 5", "ISOLatin5", u"ĞİŞğışç"_s);
    row("Latin 5 with a carriage return", "ISOLatin5\r", u"ĞİŞğışç"_s);
}

void TestPpdFile::readsTextsInTheirEncoding()
{
    QFETCH(QByteArray, encoding);
    const QByteArray letters("\xD0\xDD\xDE\xF0\xFD\xFE\xE7");
    const auto ppd = PpdFile::fromBytes("*PPD-Adobe: \"4.3\"\n*LanguageEncoding: " + encoding
                                            + "\n*NickName: \"" + letters + "\"\n*OpenUI *Jog/"
                                            + letters + ": PickOne\n*DefaultJog: None\n*Jog None/"
                                            + letters + ": \"\"\n*CloseUI: *Jog\n",
                                        u"letters.ppd"_s);
    QVERIFY2(ppd, qPrintable(ppd.reason()));
    QTEST(ppd.value()->modelName(), "text");
    QTEST(ppd.value()->findOption("Jog")->text, "text");
    QTEST(ppd.value()->findOption("Jog")->findChoice("None")->text, "text");
}

void TestPpdFile::speaksTheLanguagesItLists_data()
{
    const Table<QString, QString, QString> row{"language", "option", "choice"};
    row("as it was written", "en", "Stapling", "1 Staple");
    row("another language", "de", "Heften/lochen", "1 Heftklammer");
    row("of a country", "de_AT", "Klammern", "1 Klammer");
    row("of another country", "de_CH", "Heften/lochen", "1 Heftklammer");
    row("bytes as digits, a text missing", "fr", "Agrafé", "1 Staple");
    row("not listed", "it", "Stapling", "1 Staple");
    row("the beginning of one", "d", "Stapling", "1 Staple");
    row("none", "", "Stapling", "1 Staple");
}

void TestPpdFile::speaksTheLanguagesItLists()
{
    QFETCH(QString, language);
    const PpdTranslation translation("*PPD-Adobe: \"4.3\"\r\n"
                                     "*cupsLanguages: \"de fr  de_AT\"\n"
                                     "*de.Translation Staple/Heften/lochen: \"\"\r\n"
                                     "*de.Staple  One/1 Heftklammer: \"\"\n"
                                     "*de.Staple Two: \"no text\"\n"
                                     "*de_AT.Translation Staple/Klammern: \"\"\r"
                                     "*de_AT.Staple One/1 Klammer: \"\"\n"
                                     "*% *fr.Staple One/Une: \"\"\n"
                                     "*it.Translation Staple/Cucitura: \"\"\n"
                                     "*fr.Translation Staple/Agraf<C3A9>: \"\"",
                                     language);
    QTEST(translation.text("Staple", "Stapling"), "option");
    QTEST(translation.text("Staple", "One", "1 Staple"), "choice");
    QCOMPARE(translation.text("Staple", "Two", "2 < 3"), u"2 < 3"_s);
}

// What is read of a file has no translations, and messages name the file's lines.
void TestPpdFile::linesKeepTheirNumbersBesideTranslations()
{
    QByteArray bytes = bytesOf(samplePpd("full"));
    bytes.insert(bytes.lastIndexOf("*OpenUI"),
                 QByteArray("*de.PageSize A4/A4: \"\"\n").repeated(3));
    const qsizetype last = bytes.lastIndexOf("*OpenUI");
    bytes.truncate(bytes.indexOf('\n', last) + 1);
    const auto opened = PpdFile::fromBytes(bytes, "cut.ppd");
    QVERIFY(!opened);
    const QString line = QStringLiteral("line %1: ").arg(bytes.left(last).count('\n') + 1);
    QVERIFY2(opened.error().text().contains(line), qPrintable(line + opened.error().text()));
}

void TestPpdFile::speaksTheLanguageOfTheProgram()
{
    QFile file(testPpd());
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray bytes = file.readAll()
        + "*cupsLanguages: \"de en\"\n"
          "*en.Translation General/All: \"\"\n"
          "*en.Translation MediaType/Kind of Paper: \"\"\n"
          "*en.MediaType CardStock/Board: \"\"\n"
          "*de.MediaType CardStock/Karton: \"\"\n";
    const auto ppd = PpdFile::fromBytes(bytes, u"english.ppd"_s);
    QVERIFY2(ppd, qPrintable(ppd.reason()));
    const auto &groups = ppd.value()->groups();
    const auto general = std::ranges::find(groups, u"General"_s, &PpdGroup::name);
    QVERIFY(general != groups.end());
    QCOMPARE(general->text, u"All"_s);
    const PpdOption *media = ppd.value()->findOption(u"MediaType"_s);
    QCOMPARE(media->text, u"Kind of Paper"_s);
    QCOMPARE(media->findChoice(u"CardStock"_s)->text, u"Board"_s);
    QCOMPARE(media->findChoice(u"Transparency"_s)->text,
             m_ppd->findOption(u"MediaType"_s)->findChoice(u"Transparency"_s)->text);
}

// The older kind of rule, of two options, each way round.
void TestPpdFile::namesConflictsOfPairs()
{
    QFile file(testPpd());
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray bytes = file.readAll().replace("*cupsUI", "*%")
        + "*UIConstraints: *StapleLocation *MediaType Transparency\n"
          "*UIConstraints: *MediaType Transparency *StapleLocation\n"
          "*UIConstraints: *Duplex *CustomPageSize True\n"
          "*UIConstraints: *Duplex *Nowhere\n";
    const auto ppd = PpdFile::fromBytes(bytes, u"pairs.ppd"_s);
    QVERIFY2(ppd, qPrintable(ppd.reason()));
    const auto conflicts = ppd.value()->conflicts({{"StapleLocation", "DualLandscape"},
                                                   {"MediaType", "Transparency"},
                                                   {"Duplex", "DuplexTumble"},
                                                   {"PageSize", "Custom.400x500"}});
    QCOMPARE(conflicts.size(), std::size_t(2));
    QCOMPARE(conflicts[0].options, (QStringList{"PageSize", "Duplex"}));
    QCOMPARE(conflicts[1].options, (QStringList{"MediaType", "StapleLocation"}));
    QVERIFY(ppd.value()->conflicts({{"Duplex", "DuplexTumble"}}).empty());
}

// A rule that needs a third setting, or more equipment than is fitted, rules nothing
// out by itself.
void TestPpdFile::knowsWhatTheEquipmentRulesOut()
{
    QFile file(testPpd());
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray bytes = file.readAll()
                                 .replace("*cupsUI", "*%")
                                 .replace("*OpenUI *KVFinisher",
                                          "*OpenUI *KVFax: Boolean\n*DefaultKVFax: False\n"
                                          "*KVFax False: \"\"\n*KVFax True: \"\"\n"
                                          "*CloseUI: *KVFax\n*OpenUI *KVFinisher");
    const auto ruledOut = [&bytes](const QByteArray &rules) {
        const auto ppd = PpdFile::fromBytes(bytes + rules, u"equipment.ppd"_s);
        QStringList found;
        for (const QString &option :
             {u"StapleLocation"_s, u"JCLBanner"_s, u"KVFinisher"_s, u"KVFax"_s}) {
            for (const PpdChoice &choice : ppd.value()->findOption(option)->choices) {
                if (ppd.value()->isRuledOutByEquipment(option, choice.keyword))
                    found << choice.keyword;
            }
        }
        return found.join(u' ');
    };
    const QByteArray rule = "*cupsUIConstraints: \"*KVFinisher None ";
    QCOMPARE(ruledOut(""), QString());
    QCOMPARE(ruledOut("*UIConstraints: *StapleLocation DualLandscape *KVFinisher None\n"),
             u"DualLandscape"_s);
    QCOMPARE(ruledOut(rule + "*StapleLocation\"\n"), u"SinglePortrait DualLandscape"_s);
    QCOMPARE(ruledOut(rule + "*JCLBanner\"\n"), u"True"_s);
    QCOMPARE(ruledOut(rule + "*StapleLocation None *KVFax False\"\n"), u"None"_s);
    QCOMPARE(ruledOut(rule + "*StapleLocation None *KVFax True\"\n"), QString());
    QCOMPARE(ruledOut(rule + "*StapleLocation None *Duplex None\"\n"), QString());
    QCOMPARE(ruledOut(rule + "*KVFax False\"\n"), QString());
    QCOMPARE(ruledOut("*UIConstraints: *StapleLocation None *Duplex None\n"), QString());
}

void TestPpdFile::resolvesConflicts_data()
{
    using Changes = std::optional<PpdSelection>;
    const Table<PpdSelection, QString, Changes> row{"selection", "keep", "changes"};
    const PpdSelection transparency{{"StapleLocation", "DualLandscape"},
                                    {"MediaType", "Transparency"},
                                    {"KVFinisher", "BClass"}};
    row("no conflict", {{"Duplex", "DuplexTumble"}}, "", Changes(PpdSelection()));
    row("media is kept", transparency, "MediaType",
        Changes(PpdSelection{{"StapleLocation", "None"}}));
    row("staples are kept", transparency, "StapleLocation",
        Changes(PpdSelection{{"MediaType", "Standard"}}));
    row("the PPD's own way",
        {{"MediaType", "CardStock"}, {"InputSlot", "Bypass"}, {"Duplex", "DuplexTumble"}}, "",
        Changes(PpdSelection{{"Duplex", "None"}}));
    row("only the kept option can give way", {{"StapleLocation", "DualLandscape"}},
        "StapleLocation", Changes(PpdSelection{{"StapleLocation", "None"}}));
    row("page sizes stay", {{"PageSize", "A3"}, {"InputSlot", "Bypass"}}, "PageSize",
        Changes(PpdSelection{{"InputSlot", "Auto"}}));
}

void TestPpdFile::resolvesConflicts()
{
    QFETCH(PpdSelection, selection);
    QFETCH(QString, keep);
    QFETCH(std::optional<PpdSelection>, changes);
    const auto found = m_ppd->resolve(selection, keep);
    QCOMPARE(found.has_value(), changes.has_value());
    if (!changes)
        return;
    QCOMPARE(*found, *changes);
    selection.insert(*found);
    QVERIFY(m_ppd->conflicts(selection).empty());
}

void TestPpdFile::leavesTheMarksAloneWhenItLooksForConflicts()
{
    m_ppd->mark(u"Duplex"_s, u"DuplexTumble"_s);
    const PpdSelection selection{{"StapleLocation", "DualLandscape"}, {"Duplex", "None"}};
    QVERIFY(!m_ppd->conflicts(selection).empty());
    QVERIFY(m_ppd->resolve(selection));
    QCOMPARE(m_ppd->markedChoice(u"Duplex"_s), std::optional(u"DuplexTumble"_s));
    QCOMPARE(m_ppd->markedChoice(u"StapleLocation"_s), std::optional(u"None"_s));
    QVERIFY(!m_ppd->mark(u"Duplex"_s, u"DuplexNoTumble"_s));
}

void TestPpdFile::refusesOtherFiles_data()
{
    const Table<QByteArray, std::optional<Code>> row{"bytes", "code"};
    using Answer = std::optional<Code>;
    const QByteArray bare = "*PPD-Adobe: \"4.3\"\n";
    const auto padded = [&](qint64 size) { // comments of 100 bytes
        QByteArray lines = QByteArray("*% ").leftJustified(99, '.') + '\n';
        lines = bare + lines.repeated((size - bare.size()) / lines.size());
        return lines + QByteArray(size - lines.size(), '\n');
    };
    row("empty", {}, Answer(Code::Damaged));
    row("another kind", "%PDF-1.4\n", Answer(Code::Damaged));
    row("bad rule", bare + "*UIConstraints: a\n", Answer(Code::Damaged));
    row("compressed", "\x1f\x8b\x08", Answer(Code::Unsupported));
    for (const char *cut :
         {"*OpenUI *A/Text: PickOne\n*A B/C: \"x\"\n", "*JCLOpenUI *JCLA/Text: PickOne\n",
          "*OpenGroup: G/Text\n", "*OpenGroup: G\r\n*OpenUI *A: PickOne\r\n*CloseUI: *A\r\n"})
        row(qPrintable(QStringLiteral("cut off after %1").arg(QLatin1String(cut))), bare + cut,
            Answer(Code::Damaged));
    row("a word of the kind in a text", bare + "*A: \"\n*OpenUI *B: PickOne\n\"\n*End\n", Answer());
    row("most options",
        bare + QByteArray("*OpenUI *A: PickOne\n*CloseUI: *A\n").repeated(limits::ppdOptions),
        Answer());
    row("too many options",
        bare + QByteArray("*OpenUI *A: PickOne\n*CloseUI: *A\n").repeated(limits::ppdOptions + 1),
        Answer(Code::TooLarge));
    const QByteArray size = "*PaperDimension A: \"1 1\"\n";
    row("most sizes", bare + size.repeated(limits::ppdPageSizes), Answer());
    row("too many sizes", bare + size.repeated(limits::ppdPageSizes + 1), Answer(Code::TooLarge));
    const QByteArray rule = "*UIConstraints: *A *B\n";
    row("most rules", bare + rule.repeated(limits::ppdConstraints), Answer());
    row("too many rules", bare + rule.repeated(limits::ppdConstraints + 1), Answer(Code::TooLarge));
    row("largest", padded(limits::ppdBytes), Answer());
    row("too large", padded(limits::ppdBytes + 1), Answer(Code::TooLarge));
}

void TestPpdFile::refusesOtherFiles()
{
    QFETCH(QByteArray, bytes);
    QFETCH(std::optional<Code>, code);
    QTemporaryDir folder;
    const QString path = folder.filePath(u"a.ppd"_s);
    QVERIFY(replaceFile(path, bytes));
    const auto ppd = PpdFile::open(path);
    QCOMPARE(bool(ppd), !code);
    if (code) {
        QCOMPARE(ppd.error().code, *code);
        QCOMPARE(ppd.error().where, path);
        QVERIFY(!ppd.error().detail.isEmpty());
    }
    QCOMPARE(PpdFile::open(folder.filePath(u"none.ppd"_s)).error().code, Code::NotFound);
    QCOMPARE(PpdFile::open(folder.path()).error().code, Code::NotReadable);
}

QTEST_GUILESS_MAIN(TestPpdFile)
#include "test_ppd_file.moc"
