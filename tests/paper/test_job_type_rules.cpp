#include "job_type_setup.h"
#include "passcode.h"
#include "saved_job.h"
#include "table.h"

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
    const Table<QString, QString, PasscodeProblem> row{"passcode", "confirmation", "problem"};

    row("the same", "123", "123", PasscodeProblem::None);
    row("another", "123", "124", PasscodeProblem::Unconfirmed);
    row("not confirmed", "123", "", PasscodeProblem::Unconfirmed);
    row("only confirmed", "", "123", PasscodeProblem::Unconfirmed);
    row("leading zero", "0123", "123", PasscodeProblem::Unconfirmed);
    row("letter case, from an old ticket", "aB", "Ab", PasscodeProblem::None);
    row("neither", "", "", PasscodeProblem::Missing);
}

void TestJobTypeRules::passcodesAreConfirmed()
{
    QFETCH(QString, passcode);
    QFETCH(QString, confirmation);
    QTEST(findProblem(passcode, confirmation), "problem");
}

void TestJobTypeRules::delayedJobsPrintWithinADay_data()
{
    const Table<QDateTime, QTime, QDate> row{"now", "time", "day"};

    const QDate day(2026, 6, 15);
    const QTime noon(12, 0);
    row("equal to now", QDateTime(day, noon), noon, day);
    row("a second before", QDateTime(day, noon), QTime(11, 59, 59), day.addDays(1));
    row("a minute before", QDateTime(day, noon), QTime(11, 59), day.addDays(1));
    row("later", QDateTime(day, noon), QTime(23, 59, 59), day);
    row("after midnight", QDateTime(day, QTime(23, 59)), QTime(0, 5), day.addDays(1));
    row("into the next year", QDateTime(QDate(2026, 12, 31), noon), QTime(8, 0), QDate(2027, 1, 1));
    // 29 March 2026 has 23 hours and 25 October 25: the clock that is set counts.
    row("into the short day", QDateTime(QDate(2026, 3, 28), noon), QTime(11, 0),
        QDate(2026, 3, 29));
    row("over the hour that is left out", QDateTime(QDate(2026, 3, 29), QTime(1, 30)), QTime(3, 30),
        QDate(2026, 3, 29));
    row("into the hour that is left out", QDateTime(QDate(2026, 3, 28), noon), QTime(2, 30),
        QDate(2026, 3, 29));
    row("into the long day", QDateTime(QDate(2026, 10, 24), noon), QTime(11, 0),
        QDate(2026, 10, 25));
    row("out of the long day", QDateTime(QDate(2026, 10, 25), QTime(23, 30)), QTime(23, 0),
        QDate(2026, 10, 26));
}

void TestJobTypeRules::delayedJobsPrintWithinADay()
{
    QFETCH(QDateTime, now);
    QFETCH(QTime, time);

    const LongDateTime moment = nextMomentAt(time, longDateFrom(now));

    QTEST(dateOf(moment), "day");
    QCOMPARE(timeOf(moment), time);
    // A job that is never set up prints at the same clock tomorrow.
    const LongDateTime usual = defaultDelayedPrintTime(longDateFrom(now));
    QCOMPARE(QDateTime(dateOf(usual), timeOf(usual)), QDateTime(now.date().addDays(1), now.time()));
}

void TestJobTypeRules::locationsAreMailboxes_data()
{
    // location null: none; mailbox 0: none
    const Table<QString, int> row{"location", "mailbox"};

    row("first", "file:///job-repository/1", 1);
    row("last", "file:///job-repository/200", 200);
    row("beyond", "file:///job-repository/201", 0);
    row("before", "file:///job-repository/0", 0);
    row("another name of 17", "file:///job-repository/017", 0);
    row("too large for a number", "file:///job-repository/99999999999999999999", 0);
    row("below a mailbox", "file:///job-repository/17/3", 0);
    row("signed", "file:///job-repository/+17", 0);
    row("digits of another script", u"file:///job-repository/\u0661"_qs, 0);
    row("the folder itself", "file:///job-repository/", 0);
    row("another server", "smb://archive/17", 0);
    row("none", {}, 0);
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
    // mailbox 0: none
    const Table<QString, bool, int> row{"number", "isAllowed", "mailbox"};

    row("first", "1", true, 1);
    row("last", "200", true, 200);
    row("beyond", "201", false, 0);
    row("none that there is", "0", false, 0);
    row("zeros", "000", false, 0);
    row("leading zeros", "007", true, 7);
    row("zero at the end", "020", true, 20);
    row("nothing", "", true, 0);
}

void TestJobTypeRules::typedNumbersAreMailboxes()
{
    QFETCH(QString, number);
    QTEST(isMailboxAllowed(number, {}), "isAllowed");
    QTEST(mailboxOf(locationOfMailbox(number)).value_or(0), "mailbox");
}

void TestJobTypeRules::aLocationElsewhereCanBeChosen_data()
{
    // location null: none
    const Table<QString, QString, QString, QString, QString> row{"location", "elsewhere", "shown",
                                                                 "typed", "after"};

    const QString seven = "file:///job-repository/7", archive = "smb://archive/17", none;
    row("elsewhere, untouched", archive, none, archive, archive, archive);
    row("elsewhere, replaced", archive, none, archive, "7", seven);
    row("elsewhere, emptied", archive, none, archive, "", none);
    row("elsewhere, taken back", seven, archive, "7", archive, archive);
    row("mailbox, untouched", seven, archive, "7", "7", seven);
    row("mailbox, emptied", seven, none, "7", "", none);
    row("none, untouched", none, none, "", "", none);
    row("several lines", "a:\n b", none, "a: b", "a: b", "a:\n b");
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
