#include "cautions.h"
#include "job_words.h"
#include "left_out_covers.h"
#include "page_placement.h"
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
    QTest::addColumn<PrinterCondition>("condition");
    QTest::addColumn<int>("weight"); // -1: nothing is to be said
    QTest::addColumn<QString>("text");
    const auto condition = [](PrinterCondition::State state, bool accepts, const char *message,
                              const QStringList &reasons) {
        return PrinterCondition{state, accepts, stateWords(QString::fromUtf8(message), reasons)};
    };
    const int asked = int(Weight::Asked);
    const int refused = int(Weight::Refused);

    QTest::newRow("idle") << condition(Idle, true, "Ready.", {"none"}) << -1 << "";
    QTest::newRow("busy, and paper low")
        << condition(Busy, true, "", {"media-low-warning"}) << -1 << "";
    QTest::newRow("stopped by somebody who says why")
        << condition(Stopped, true, " Toner is\non order. ", {"paused"}) << asked
        << "“Q” is stopped: Toner is on order.";
    QTest::newRow("stopped without a word")
        << condition(Stopped, true, "Paused", {"paused"}) << asked << "“Q” is stopped.";
    QTest::newRow("reasons of the device")
        << condition(Stopped, true, "",
                     {"media-empty-error", "door-open-report", "com.example-glued", "other"})
        << asked << "“Q” is stopped: there is no paper, a door is open, com.example glued.";
    QTest::newRow("takes no jobs")
        << condition(Idle, false, "Rejecting Jobs", {"none"}) << refused << "“Q” takes no jobs.";
    QTest::newRow("takes no jobs, and is stopped")
        << condition(Stopped, false, "Closed", {"paused"}) << refused
        << "“Q” takes no jobs: Closed.";
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
    QTest::addColumn<QList<int>>("pages");
    QTest::addColumn<QString>("begin"); // empty: nothing is to be said
    QList<int> many;
    for (int page = 1; page < 40; page += 2)
        many << page;

    QTest::newRow("none") << QList<int>() << "";
    QTest::newRow("one") << QList<int>{7} << "Page 7 is larger than the paper, A4: ";
    QTest::newRow("neighbours") << QList<int>{1, 2} << "Pages 1–2 are larger ";
    QTest::newRow("both") << QList<int>{2, 4, 5, 6, 9} << "Pages 2, 4–6 and 9 are larger ";
    QTest::newRow("many") << many << "Pages 1, 3, 5, 7, 9, 11, 13, 15 and 12 more are larger ";
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
    QTest::addColumn<QStringList>("looks");
    QTest::addColumn<int>("last");

    QTest::newRow("no cover") << QStringList{"None 1", "None 2"} << int(Cover::None);
    QTest::newRow("with a source") << QStringList{"Tray2 1"} << int(Cover::None);
    QTest::newRow("without one") << QStringList{"None 1", "- 1"} << int(Cover::LeftOut);
    QTest::newRow("still held elsewhere") << QStringList{"- 1", "- 2"} << int(Cover::LeftOut);
    QTest::newRow("given a source") << QStringList{"- 1", "Tray2 1"} << int(Cover::None);
    QTest::newRow("taken away") << QStringList{"- 1", "None 1"} << int(Cover::None);
    QTest::newRow("forgotten by the next panel")
        << QStringList{"- 1", "None 2"} << int(Cover::Gone);
    QTest::newRow("forgotten for good")
        << QStringList{"- 1", "None 2", "None 2", "None 1"} << int(Cover::Gone);
    QTest::newRow("chosen anew") << QStringList{"- 1", "None 2", "Auto 2"} << int(Cover::None);
}

void TestCautions::remembersCoversThatAreLeftOut()
{
    QFETCH(QStringList, looks);
    QFETCH(int, last);
    LeftOutCovers covers;
    for (const QString &look : looks) {
        const QString choice = look.section(u' ', 0, 0);
        SpecialSheets sheets;
        sheets.backCover = choice == "-" ? SpecialSheets::Cover::Unsaid
            : choice == "None"           ? SpecialSheets::Cover::None
                                         : SpecialSheets::Cover::Sheet;
        covers.look(sheets, look.section(u' ', 1));
    }
    QCOMPARE(int(covers.back()), last);
    QCOMPARE(covers.front(), Cover::None);
}

void TestCautions::speaksAnotherLanguage_data()
{
    QTest::addColumn<QStringList>("languages");
    QTest::addColumn<QStringList>("pages"); // of 1, 22 and 112 of them
    QTest::addColumn<QString>("refused");
    QTest::addColumn<QString>("cut");
    const QStringList english = {QStringLiteral("1 page, 1 sheet"),
                                 QStringLiteral("22 pages, 22 sheets"),
                                 QStringLiteral("112 pages, 112 sheets")};
    const QString refused = QStringLiteral("“%2 %n” takes no jobs: paper is jammed.");
    const QString cut = QStringLiteral("Pages 1, 3 and 5 are larger than the paper, %n: what does "
                                       "not fit is cut off.");

    // What is not in its table is said in English.
    QTest::newRow("three forms") << QStringList{"yy-YY", "xx"}
                                 << QStringList{"1 pago, 1 sheet", "22 pagi, 22 sheets",
                                                "112 pagov, 112 sheets"}
                                 << QStringLiteral("papo hema! «%2 %n» nu.")
                                 << QStringLiteral("%n mina: pagi 1, 3 do 5.");
    QTest::newRow("none that is there") << QStringList{"yy-YY"} << english << refused << cut;
    QTest::newRow("rather English") << QStringList{"en-GB", "xx"} << english << refused << cut;
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
