#include "delayed_print.h"
#include "job_type_setup.h"
#include "passcode.h"
#include "saved_job.h"

#include <QTest>

using namespace kelvo;

class TestJobTypeRules : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { qputenv("TZ", "Europe/Berlin"); }

    void someJobTypesAreSetUp();
    void madePasscodesHaveFourDigits();
    void passcodesAreConfirmed_data();
    void passcodesAreConfirmed();
    void delayedJobsPrintWithinADay_data();
    void delayedJobsPrintWithinADay();
    void locationsAreMailboxes_data();
    void locationsAreMailboxes();
    void typedNumbersAreMailboxes_data();
    void typedNumbersAreMailboxes();
    void aLocationElsewhereCanBeChosen_data();
    void aLocationElsewhereCanBeChosen();
    void aJobWithoutNameTakesTheDocuments();
    void shortPasscodesHoldBackASecureJobOnly();
};

// 4 and 9 have a button that opens nothing.
void TestJobTypeRules::someJobTypesAreSetUp()
{
    QList<int> withSetup;
    for (int jobType = 0; jobType <= 10; ++jobType) {
        if (hasJobTypeSetup(jobType))
            withSetup << jobType;
    }
    QCOMPARE(withSetup, (QList{3, 4, 5, 6, 7, 9}));
}

void TestJobTypeRules::madePasscodesHaveFourDigits()
{
    QSet<QString> made;
    for (std::uint32_t seed = 0; seed < 20'000; ++seed) {
        const QString passcode = madePasscode(seed);
        QVERIFY2(passcode >= "1000" && passcode <= "9999" && passcode.size() == 4,
                 qPrintable(passcode));
        made.insert(passcode);
    }
    QVERIFY(made.size() > 7000); // no few favourites
    QCOMPARE(madePasscode(17), madePasscode(17));
}

void TestJobTypeRules::passcodesAreConfirmed_data()
{
    QTest::addColumn<QString>("passcode");
    QTest::addColumn<QString>("confirmation");
    QTest::addColumn<PasscodeProblem>("problem");

    QTest::newRow("the same") << "123"
                              << "123" << PasscodeProblem::None;
    QTest::newRow("another") << "123"
                             << "124" << PasscodeProblem::Unconfirmed;
    QTest::newRow("not confirmed") << "123"
                                   << "" << PasscodeProblem::Unconfirmed;
    QTest::newRow("only confirmed") << ""
                                    << "123" << PasscodeProblem::Unconfirmed;
    QTest::newRow("leading zero") << "0123"
                                  << "123" << PasscodeProblem::Unconfirmed;
    QTest::newRow("letter case, from an old ticket") << "aB"
                                                     << "Ab" << PasscodeProblem::None;
    QTest::newRow("neither") << ""
                             << "" << PasscodeProblem::Missing;
}

void TestJobTypeRules::passcodesAreConfirmed()
{
    QFETCH(QString, passcode);
    QFETCH(QString, confirmation);
    QTEST(findProblem(passcode, confirmation), "problem");
}

void TestJobTypeRules::delayedJobsPrintWithinADay_data()
{
    QTest::addColumn<QDateTime>("now");
    QTest::addColumn<QTime>("time");
    QTest::addColumn<QDate>("day");

    const QDate day(2026, 6, 15);
    const QTime noon(12, 0);
    QTest::newRow("equal to now") << QDateTime(day, noon) << noon << day;
    QTest::newRow("a second before") << QDateTime(day, noon) << QTime(11, 59, 59) << day.addDays(1);
    QTest::newRow("a minute before") << QDateTime(day, noon) << QTime(11, 59) << day.addDays(1);
    QTest::newRow("later") << QDateTime(day, noon) << QTime(23, 59, 59) << day;
    QTest::newRow("after midnight")
        << QDateTime(day, QTime(23, 59)) << QTime(0, 5) << day.addDays(1);
    QTest::newRow("into the next year")
        << QDateTime(QDate(2026, 12, 31), noon) << QTime(8, 0) << QDate(2027, 1, 1);
    // 29 March 2026 has 23 hours and 25 October 25: the clock that is set counts.
    QTest::newRow("into the short day")
        << QDateTime(QDate(2026, 3, 28), noon) << QTime(11, 0) << QDate(2026, 3, 29);
    QTest::newRow("over the hour that is left out")
        << QDateTime(QDate(2026, 3, 29), QTime(1, 30)) << QTime(3, 30) << QDate(2026, 3, 29);
    QTest::newRow("into the hour that is left out")
        << QDateTime(QDate(2026, 3, 28), noon) << QTime(2, 30) << QDate(2026, 3, 29);
    QTest::newRow("into the long day")
        << QDateTime(QDate(2026, 10, 24), noon) << QTime(11, 0) << QDate(2026, 10, 25);
    QTest::newRow("out of the long day")
        << QDateTime(QDate(2026, 10, 25), QTime(23, 30)) << QTime(23, 0) << QDate(2026, 10, 26);
}

void TestJobTypeRules::delayedJobsPrintWithinADay()
{
    QFETCH(QDateTime, now);
    QFETCH(QTime, time);

    const LongDateTime moment = delayedPrintTime(time, longDateFrom(now));

    QTEST(dateOf(moment), "day");
    QCOMPARE(timeOf(moment), time);
    // A job that is never set up prints at the same clock tomorrow.
    const LongDateTime usual = defaultDelayedPrintTime(longDateFrom(now));
    QCOMPARE(QDateTime(dateOf(usual), timeOf(usual)), QDateTime(now.date().addDays(1), now.time()));
}

void TestJobTypeRules::locationsAreMailboxes_data()
{
    QTest::addColumn<QString>("location"); // null: none
    QTest::addColumn<int>("mailbox");      // 0: none

    QTest::newRow("first") << "file:///job-repository/1" << 1;
    QTest::newRow("last") << "file:///job-repository/200" << 200;
    QTest::newRow("beyond") << "file:///job-repository/201" << 0;
    QTest::newRow("before") << "file:///job-repository/0" << 0;
    QTest::newRow("another name of 17") << "file:///job-repository/017" << 0;
    QTest::newRow("too large for a number") << "file:///job-repository/99999999999999999999" << 0;
    QTest::newRow("below a mailbox") << "file:///job-repository/17/3" << 0;
    QTest::newRow("signed") << "file:///job-repository/+17" << 0;
    QTest::newRow("digits of another script") << u"file:///job-repository/\u0661"_qs << 0;
    QTest::newRow("the folder itself") << "file:///job-repository/" << 0;
    QTest::newRow("another server") << "smb://archive/17" << 0;
    QTest::newRow("none") << QString() << 0;
}

void TestJobTypeRules::locationsAreMailboxes()
{
    QFETCH(QString, location);
    QFETCH(int, mailbox);
    const auto given = location.isNull() ? std::nullopt : std::optional(location);
    QCOMPARE(mailboxOf(given).value_or(0), mailbox);
    if (mailbox > 0)
        QCOMPARE(locationOfMailbox(QString::number(mailbox)), given);
}

void TestJobTypeRules::typedNumbersAreMailboxes_data()
{
    QTest::addColumn<QString>("number");
    QTest::addColumn<bool>("isAllowed");
    QTest::addColumn<int>("mailbox"); // 0: none

    QTest::newRow("first") << "1" << true << 1;
    QTest::newRow("last") << "200" << true << 200;
    QTest::newRow("beyond") << "201" << false << 0;
    QTest::newRow("none that there is") << "0" << false << 0;
    QTest::newRow("zeros") << "000" << false << 0;
    QTest::newRow("leading zeros") << "007" << true << 7;
    QTest::newRow("zero at the end") << "020" << true << 20;
    QTest::newRow("nothing") << "" << true << 0;
}

void TestJobTypeRules::typedNumbersAreMailboxes()
{
    QFETCH(QString, number);
    QTEST(isMailboxAllowed(number, {}), "isAllowed");
    QTEST(mailboxOf(locationOfMailbox(number)).value_or(0), "mailbox");
}

void TestJobTypeRules::aLocationElsewhereCanBeChosen_data()
{
    QTest::addColumn<QString>("location"); // null: none
    QTest::addColumn<QString>("elsewhere");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("after");

    const QString seven = "file:///job-repository/7", archive = "smb://archive/17", none;
    QTest::newRow("elsewhere, untouched") << archive << none << archive << archive << archive;
    QTest::newRow("elsewhere, replaced") << archive << none << archive << "7" << seven;
    QTest::newRow("elsewhere, emptied") << archive << none << archive << "" << none;
    QTest::newRow("elsewhere, taken back") << seven << archive << "7" << archive << archive;
    QTest::newRow("mailbox, untouched") << seven << archive << "7"
                                        << "7" << seven;
    QTest::newRow("mailbox, emptied") << seven << none << "7"
                                      << "" << none;
    QTest::newRow("none, untouched") << none << none << ""
                                     << "" << none;
    QTest::newRow("several lines") << "a:\n b" << none << "a: b"
                                   << "a: b"
                                   << "a:\n b";
}

void TestJobTypeRules::aLocationElsewhereCanBeChosen()
{
    QFETCH(QString, location);
    QFETCH(QString, elsewhere);
    QFETCH(QString, typed);
    const auto given = [](const QString &text) {
        return text.isNull() ? std::nullopt : std::optional(text);
    };
    SavedJob job;
    job.location = given(location);
    job.elsewhere = given(elsewhere);
    QTEST(mailboxText(job), "shown");
    QVERIFY(isMailboxAllowed(typed, job));
    QTEST(locationOfText(typed, job).value_or(QString()), "after");
    QVERIFY(!isMailboxAllowed("smb://archive/1", job)); // half typed away
}

void TestJobTypeRules::aJobWithoutNameTakesTheDocuments()
{
    SavedJob job;
    setSavedJobName(job, false, " Price list ");
    QVERIFY(!job.usesJobName);
    QCOMPARE(job.name, QStringLiteral("Price list"));
    setSavedJobName(job, false, "  ");
    QVERIFY(job.usesJobName);
}

void TestJobTypeRules::shortPasscodesHoldBackASecureJobOnly()
{
    QVERIFY(isSavedJobPasscodeAllowed(true, "1234"));
    QVERIFY(!isSavedJobPasscodeAllowed(true, "123"));
    QVERIFY(!isSavedJobPasscodeAllowed(true, "1"));
    QVERIFY(isSavedJobPasscodeAllowed(true, "")); // one is made
    QVERIFY(isSavedJobPasscodeAllowed(false, "123"));
}

QTEST_APPLESS_MAIN(TestJobTypeRules)
#include "test_job_type_rules.moc"
