#include "cautions.h"
#include "job_words.h"
#include "left_out_covers.h"
#include "page_placement.h"
#include "table.h"
#include "texts.h"

#include <QScopeGuard>
#include <QTest>

using namespace kelvo;

using Cover = LeftOutCovers::Cover;
using Weight = Caution::Weight;

Q_DECLARE_METATYPE(kelvo::PrinterCondition)

class TestCautions : public QObject
{
    Q_OBJECT

private slots:
    void saysWhyAPrinterDoesNotPrint_data();
    void saysWhyAPrinterDoesNotPrint();
    void numbersThePagesThatAreCut_data();
    void numbersThePagesThatAreCut();
    void pagesAreCutBothWays();
    void remembersCoversThatAreLeftOut_data();
    void remembersCoversThatAreLeftOut();
    void speaksAnotherLanguage_data();
    void speaksAnotherLanguage();
};

void TestCautions::saysWhyAPrinterDoesNotPrint_data()
{
    using enum PrinterCondition::State;
    // weight -1: nothing is to be said
    const Table<PrinterCondition, int, QString> row{"condition", "weight", "text"};
    const auto condition = [](PrinterCondition::State state, bool accepts, const char *message,
                              const QStringList &reasons) {
        return PrinterCondition{state, accepts, stateWords(QString::fromUtf8(message), reasons)};
    };
    const int asked = int(Weight::Asked);
    const int refused = int(Weight::Refused);

    row("idle", condition(Idle, true, "Ready.", {"none"}), -1, "");
    row("busy, and paper low", condition(Busy, true, "", {"media-low-warning"}), -1, "");
    row("stopped by somebody who says why",
        condition(Stopped, true, " Toner is\non order. ", {"paused"}), asked,
        "“Q” is stopped: Toner is on order.");
    row("stopped without a word", condition(Stopped, true, "Paused", {"paused"}), asked,
        "“Q” is stopped.");
    row("reasons of the device",
        condition(Stopped, true, "",
                  {"media-empty-error", "door-open-report", "com.example-glued", "other"}),
        asked, "“Q” is stopped: there is no paper, a door is open, com.example glued.");
    row("takes no jobs", condition(Idle, false, "Rejecting Jobs", {"none"}), refused,
        "“Q” takes no jobs.");
    row("takes no jobs, and is stopped", condition(Stopped, false, "Closed", {"paused"}), refused,
        "“Q” takes no jobs: Closed.");
}

void TestCautions::saysWhyAPrinterDoesNotPrint()
{
    QFETCH(PrinterCondition, condition);
    QFETCH(int, weight);
    QFETCH(QString, text);
    const auto caution = printerCaution("Q", condition);
    QCOMPARE(caution ? int(caution->weight) : -1, weight);
    QCOMPARE(caution ? caution->text : QString(), text);
}

void TestCautions::numbersThePagesThatAreCut_data()
{
    // begin empty: nothing is to be said
    const Table<QList<int>, QString> row{"pages", "begin"};
    QList<int> many;
    for (int page = 1; page < 40; page += 2)
        many << page;

    row("none", QList<int>(), "");
    row("one", QList<int>{7}, "Page 7 is larger than the paper, A4: ");
    row("neighbours", QList<int>{1, 2}, "Pages 1–2 are larger ");
    row("both", QList<int>{2, 4, 5, 6, 9}, "Pages 2, 4–6 and 9 are larger ");
    row("many", many, "Pages 1, 3, 5, 7, 9, 11, 13, 15 and 12 more are larger ");
}

void TestCautions::numbersThePagesThatAreCut()
{
    QFETCH(QList<int>, pages);
    QFETCH(QString, begin);
    const auto caution = cutPagesCaution(pages, "A4");
    QCOMPARE(caution.has_value(), !begin.isEmpty());
    if (caution)
        QVERIFY2(caution->text.startsWith(begin), qPrintable(caution->text));
}

void TestCautions::pagesAreCutBothWays()
{
    const QSizeF paper(595, 842);
    for (const auto &[page, isCut] : {std::pair(QSizeF(595, 842), false),
                                      {QSizeF(596, 843), false},
                                      {QSizeF(597, 842), true},
                                      {QSizeF(595, 844), true},
                                      {QSizeF(842, 595), false}})
        QCOMPARE(placePage(page, paper, Orientation::Portrait).isCut(), isCut);
}

void TestCautions::remembersCoversThatAreLeftOut_data()
{
    // What the ticket says each time, "-" for no choice, and where the user is then.
    const Table<QStringList, int> row{"looks", "last"};

    row("no cover", {"None 1", "None 2"}, int(Cover::None));
    row("with a source", {"Tray2 1"}, int(Cover::None));
    row("without one", {"None 1", "- 1"}, int(Cover::LeftOut));
    row("still held elsewhere", {"- 1", "- 2"}, int(Cover::LeftOut));
    row("given a source", {"- 1", "Tray2 1"}, int(Cover::None));
    row("taken away", {"- 1", "None 1"}, int(Cover::None));
    row("forgotten by the next panel", {"- 1", "None 2"}, int(Cover::Gone));
    row("forgotten for good", {"- 1", "None 2", "None 2", "None 1"}, int(Cover::Gone));
    row("chosen anew", {"- 1", "None 2", "Auto 2"}, int(Cover::None));
}

void TestCautions::remembersCoversThatAreLeftOut()
{
    QFETCH(QStringList, looks);
    LeftOutCovers covers;
    for (const QString &look : looks) {
        const QString choice = look.section(u' ', 0, 0);
        SpecialSheets sheets;
        sheets.backCover = choice == "-" ? SpecialSheets::Cover::Unsaid
            : choice == "None"           ? SpecialSheets::Cover::None
                                         : SpecialSheets::Cover::Sheet;
        covers.look(sheets, look.section(u' ', 1));
    }
    QTEST(int(covers.back()), "last");
    QCOMPARE(covers.front(), Cover::None);
}

void TestCautions::speaksAnotherLanguage_data()
{
    // pages: of 1, 22 and 112 of them
    const Table<QStringList, QStringList, QString, QString> row{"languages", "pages", "refused",
                                                                "cut"};
    const QStringList english = {QStringLiteral("1 page, 1 sheet"),
                                 QStringLiteral("22 pages, 22 sheets"),
                                 QStringLiteral("112 pages, 112 sheets")};
    const QString refused = QStringLiteral("“%2 %n” takes no jobs: paper is jammed.");
    const QString cut = QStringLiteral("Pages 1, 3 and 5 are larger than the paper, %n: what does "
                                       "not fit is cut off.");

    // What is not in its table is said in English.
    row("three forms", {"yy-YY", "xx"},
        {"1 pago, 1 sheet", "22 pagi, 22 sheets", "112 pagov, 112 sheets"},
        "papo hema! «%2 %n» nu.", "%n mina: pagi 1, 3 do 5.");
    row("none that is there", {"yy-YY"}, english, refused, cut);
    row("rather English", {"en-GB", "xx"}, english, refused, cut);
}

void TestCautions::speaksAnotherLanguage()
{
    QFETCH(QStringList, languages);
    loadTexts(QStringLiteral(TEXTS), languages);
    const auto backToEnglish = qScopeGuard([] { loadTexts({}, {}); });
    QStringList pages;
    for (const int count : {1, 22, 112})
        pages << shortSummary({}, {}, count, count, {});
    QTEST(pages, "pages");
    // What users typed is no place holder.
    const auto refused = printerCaution(QStringLiteral("%2 %n"),
                                        {PrinterCondition::State::Stopped, false,
                                         stateWords({}, {QStringLiteral("media-jam-error")})});
    QTEST(refused->text, "refused");
    QTEST(cutPagesCaution({1, 3, 5}, QStringLiteral("%n"))->text, "cut");
}

QTEST_GUILESS_MAIN(TestCautions)
#include "test_cautions.moc"
