#include "files.h"
#include "help_book.h"
#include "help_search.h"
#include "table.h"

#include <QDirIterator>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

using namespace kelvo;
using namespace Qt::StringLiterals;

// The pages of help, apart from the window that shows them.
class TestHelp : public QObject
{
    Q_OBJECT

private slots:
    void findsAPageInTheUsersLanguage_data();
    void findsAPageInTheUsersLanguage();
    void findsAsOneTypes_data();
    void findsAsOneTypes();
    void showsWhatWasFound();

    // The pages that we ship
    void windowsHaveTheirPages();
    void codeNamesPagesThatAreThere();
    void contentsNameAllPages_data();
    void contentsNameAllPages();
    void pagesLeadOn_data();
    void pagesLeadOn();
    void pagesSayWhatWindowsSay_data();
    void pagesSayWhatWindowsSay();
};

void TestHelp::findsAPageInTheUsersLanguage_data()
{
    const Table<QStringList, QString, QString> row{"languages", "page", "file"};
    const QStringList austrian{"de-AT"};

    row("of the country", austrian, "all.html", "de_AT/all.html");
    row("of the language", austrian, "sub/two.html", "de/sub/two.html");
    row("not translated", austrian, "english.html", "en/english.html");
    row("another language", {"fr"}, "all.html", "en/all.html");
    row("English before German", {"en-GB", "de"}, "german.html", "");
    row("a path outside", austrian, "../../outside.html", "");
    row("a link that leads outside", austrian, "link.html", "");
    row("a folder", austrian, "sub", "");
}

void TestHelp::findsAPageInTheUsersLanguage()
{
    QFETCH(QStringList, languages);
    QFETCH(QString, page);
    QFETCH(QString, file);
    QTemporaryDir folder;
    const QString help = folder.filePath("help/");
    for (const char *path : {"../outside.html", "de_AT/all.html", "de/all.html", "de/sub/two.html",
                             "de/german.html", "en/all.html", "en/sub/two.html", "en/english.html"})
        putFile(help + path, "text");
    QVERIFY(QFile::link(folder.filePath("outside.html"), help + "de/link.html"));

    HelpBook book(languages);
    book.addFolder(folder.filePath("none"));
    book.addFolder(help);
    const QString found = book.findFile(page);
    QCOMPARE(found, file.isEmpty() ? file : help + file);
    // A page is the same in every language, and its links lead on from any of them.
    QCOMPARE(book.pageOf(found), file.isEmpty() ? QString() : page);
    QCOMPARE(book.languageOf(found), file.section(u'/', 0, 0));
}

void TestHelp::findsAsOneTypes_data()
{
    const Table<QString, QString> row{"typed", "pages"};

    row("titles first, then beginnings", "fold", "fold unfold book bind");
    row("all words, in any order", "stapled MIDDLE", "book");
    row("one in the title, one in the text", "fold panels", "fold");
    row("the title counts for more", "paper", "unfold fold");
    row("without accents", "cafe", "book");
    row("with others", "bòok", "book");
    row("one letter as two", "STRASSE", "bind");
    row("a part of a word", "anels", "fold");
    row("one word is nowhere", "fold nowhere", "");
    row("blanks", "  ", "");
}

void TestHelp::findsAsOneTypes()
{
    QFETCH(QString, typed);
    QFETCH(QString, pages);
    const HelpSearch search({{"bind", "Binding", "Straße. Not unfolded."},
                             {"book", "Booklets", "A café menu: (folded) in the middle, stapled."},
                             {"fold", "Fold", "Panels of paper."},
                             {"unfold", "Unfolding paper", "Flat."}});
    QStringList found;
    for (const HelpHit &hit : search.find(typed))
        found << hit.page;
    QCOMPARE(found.join(u' '), pages);
}

void TestHelp::showsWhatWasFound()
{
    const QString html = R"(<title>Fold</title><body><h1>Fold</h1><p>Folds
every   <b>sheet</b>.</p><table><tr><td><img src="picture:a.svg"></td><td>Z-fold</td>
<td>It opens in one pull.</td></tr></table><p>)"
        + u"And so on. "_s.repeated(30)
        + u"At last: a tray.</p><h2><a name=\"see\"></a>See also</h2><p>Holes</p></body>"_s;
    const HelpText page = helpText("fold.html", html);
    QCOMPARE(page.title, "Fold");
    QVERIFY2(page.text.startsWith("Folds every sheet. Z-fold: It opens in one pull. And so on."),
             qPrintable(page.text));

    const HelpSearch search({page});
    QVERIFY(search.find("fold").front().excerpt.startsWith("Folds every sheet. Z-fold:"));
    QVERIFY(search.find("fold").front().excerpt.endsWith("…"));
    QCOMPARE(search.find("tray").front().excerpt, "…on. At last: a tray.");
    QVERIFY(search.find("holes").empty()); // they are another page's
}

namespace {

const QString resources = QStringLiteral(KELVO_SOURCE_DIR "/resources");

QStringList filesIn(const QString &folder, const QStringList &patterns)
{
    QStringList files;
    QDirIterator found(folder, patterns, QDir::Files, QDirIterator::Subdirectories);
    while (found.hasNext())
        files << found.next();
    return files;
}

QStringList languages()
{
    return QDir(resources + "/help").entryList(QDir::Dirs | QDir::NoDotAndDotDot);
}

QStringList pagesIn(const QString &language)
{
    const QDir folder(resources + "/help/" + language);
    QStringList pages;
    for (const QString &file : filesIn(folder.path(), {"*"}))
        pages << folder.relativeFilePath(file);
    pages.sort();
    return pages;
}

QStringList allOf(const char *pattern, const QString &text)
{
    QStringList found;
    auto matches = QRegularExpression(QString::fromLatin1(pattern)).globalMatch(text);
    while (matches.hasNext())
        found << matches.next().captured(1);
    found.sort();
    return found;
}

QString htmlOf(const QString &language, const QString &page)
{
    return QString::fromUtf8(bytesOf(resources + "/help/" + language + u'/' + page));
}

// What the panels, the program and the sample devices say in a language, without the marks of
// mnemonics and the colons behind labels.
QSet<QString> labelsIn(const QString &language)
{
    const bool isEnglish = language == "en"; // which the program and the devices speak themselves
    const auto textOf = [](const QString &file) { return QString::fromUtf8(bytesOf(file)); };
    QStringList texts;
    for (const QString &file : filesIn(resources + "/strings/" + language, {"*.ts"}))
        texts << allOf("<translation>(.*)</translation>", textOf(file));
    const QString translated = isEnglish ? "de" : language;
    texts << allOf(isEnglish ? "<source>(.*)</source>" : "<translation>(.*)</translation>",
                   textOf(resources + "/program_strings/" + translated + ".ts"));
    for (const QString &line : textOf(resources + "/ppds/" + translated + ".words").split(u'\n'))
        texts << line.section(" = ", isEnglish ? 0 : 1, isEnglish ? 0 : 1);

    QSet<QString> labels;
    for (QString &text : texts)
        labels.insert(text.remove("&amp;").remove(QRegularExpression(":$")));
    return labels;
}

} // namespace

void TestHelp::windowsHaveTheirPages()
{
    // The parts of a window that has one; and the window of several dialogs, each with its own.
    const QStringList without{"ChoiceDialog", "JobNotesEnhanced", "ShellWindow"};
    const QStringList pages = pagesIn("en");
    for (const QString &file : filesIn(resources + "/dialogs", {"*.ui"})) {
        const QString window = QString::fromUtf8(bytesOf(file));
        const QString name = allOf("<class>(.*)</class>", window).value(0);
        const QString page =
            allOf("name=\"helpPage\" stdset=\"0\">\\s*<string notr=\"true\">(.*)</string>", window)
                .value(0);
        QVERIFY2(without.contains(name) ? page.isEmpty() : pages.contains(page), qPrintable(file));
    }
}

void TestHelp::codeNamesPagesThatAreThere()
{
    const QStringList pages = pagesIn("en");
    int named = 0;
    const QStringList folders = QDir(KELVO_SOURCE_DIR).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QString &folder : folders) {
        if (folder == "build" || folder == "tests")
            continue;
        for (const QString &file : filesIn(KELVO_SOURCE_DIR "/" + folder, {"*.cpp"})) {
            for (const QString &page :
                 allOf("\"([\\w/]+\\.html?)\"", QString::fromUtf8(bytesOf(file)))) {
                QVERIFY2(pages.contains(page), qPrintable(file + ": " + page));
                ++named;
            }
        }
    }
    QVERIFY(named > 5);
}

void TestHelp::contentsNameAllPages_data()
{
    QTest::addColumn<QString>("language");
    for (const QString &language : languages())
        QTest::newRow(qPrintable(language)) << language;
}

void TestHelp::contentsNameAllPages()
{
    QFETCH(QString, language);
    const QStringList pages = pagesIn(language);
    QCOMPARE(pages, pagesIn("en"));
    const QStringList links = allOf("href=\"([^\"#]*)", htmlOf(language, "index.html"));
    for (const QString &page : pages)
        QVERIFY2(page == "index.html" || links.contains(page), qPrintable(page));
}

void TestHelp::pagesLeadOn_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("page");
    for (const QString &language : languages()) {
        for (const QString &page : pagesIn(language))
            QTest::newRow(qPrintable(language + u'/' + page)) << language << page;
    }
}

void TestHelp::pagesLeadOn()
{
    QFETCH(QString, language);
    QFETCH(QString, page);
    const QString html = htmlOf(language, page);
    QCOMPARE(allOf("<html lang=\"(.*)\">", html), QStringList{language});
    QCOMPARE(allOf("<title>(.*)</title>", html), allOf("<h1>(.*)</h1>", html));

    const QStringList links = allOf("href=\"([^\"]*)\"", html);
    for (const QString &link : links) {
        const QString target =
            QDir::cleanPath(QFileInfo(page).path() + u'/' + link.section(u'#', 0, 0));
        QVERIFY2(pagesIn(language).contains(target), qPrintable(link));
        const QString section = link.section(u'#', 1);
        QVERIFY2(section.isEmpty()
                     || htmlOf(language, target).contains("<a name=\"" + section + "\">"),
                 qPrintable(link));
    }
    const QStringList pictures = allOf("src=\"([^\"]*)\"", html);
    for (QString names : pictures) {
        QVERIFY2(names.startsWith("picture:"), qPrintable(names));
        for (const QString &name : names.replace("&amp;", "&").mid(8).split(u'+'))
            QVERIFY2(QFile::exists(resources + "/pictures/" + name), qPrintable(name));
    }
    QCOMPARE(html.count("<img "), html.count("alt=\""));
    // What is said in one language and not in another leads somewhere else, or shows less.
    const QString english = htmlOf("en", page);
    QCOMPARE(links, allOf("href=\"([^\"]*)\"", english));
    QCOMPARE(pictures, allOf("src=\"([^\"]*)\"", english));
    QCOMPARE(allOf("<a name=\"([^\"]*)\"", html), allOf("<a name=\"([^\"]*)\"", english));
    QCOMPARE(html.count("<tr>"), english.count("<tr>"));
}

void TestHelp::pagesSayWhatWindowsSay_data()
{
    pagesLeadOn_data();
}

// A page has in bold what the reader finds in a window; a name that has changed there is sought
// in vain.
void TestHelp::pagesSayWhatWindowsSay()
{
    QFETCH(QString, language);
    QFETCH(QString, page);
    static QHash<QString, QSet<QString>> labels;
    if (!labels.contains(language))
        labels[language] = labelsIn(language);
    const auto isLabel = [&](const QString &name) {
        const QSet<QString> &all = labels[language];
        return all.contains(name) || all.contains(name.left(1).toUpper() + name.mid(1));
    };
    // Keys, what one types as pages, and a measure that the window says at more length
    static const QRegularExpression others(
        "^[\\d-]|^&[lg]t;$|\\+|^F\\d|^(E(nter|nd|nde|scape|ingabe|sc)|Space|Leertaste|Home|Pos1|"
        "Page (Up|Down)|Bild (auf|ab))$");

    const QString html = htmlOf(language, page).simplified();
    for (const QString &name : allOf("<b>(.*?)</b>", html)) {
        const QStringList parts = name.split(", ");
        QVERIFY2(others.match(name).hasMatch() || isLabel(name)
                     || std::all_of(parts.begin(), parts.end(), isLabel),
                 qPrintable(name));
    }
}

QTEST_MAIN(TestHelp)
#include "test_help.moc"
