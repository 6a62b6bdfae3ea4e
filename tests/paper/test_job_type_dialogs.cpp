#include "dialog_driver.h"

#include "delayed_print.h"
#include "delayed_print_dialog.h"
#include "history_field.h"
#include "input_history.h"
#include "preferences.h"
#include "saved_job_dialog.h"
#include "secure_print_dialog.h"

#include <QLineEdit>

using namespace kelvo;

class TestJobTypeDialogs : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup() { WriteUserPreferences(kInputHistoryFile, {}); }

    void differentPasscodesAreRefused();
    void aMissingPasscodeIsMadeAndAnnounced();
    void cancelKeepsThePasscode();
    void delayedPrintSaysTheDay_data();
    void delayedPrintSaysTheDay();
    void cancelKeepsTheTime();
    void savedJobStoresWhatWasChosen();
    void mailboxesBeyondTheLastAreRefused();
    void aSecureSavedJobNeedsFourDigits();
    void aSecureSavedJobWithoutPasscodeGetsOne();
    void whatIsNotTouchedStays();
    void aLocationElsewhereIsNamedAndCanBeTakenBack();
    void cancelKeepsTheSavedJob();

private:
    CFBundleRef m_bundle = nullptr;
};

void TestJobTypeDialogs::initTestCase()
{
    const auto opened = Bundle::open(QStringLiteral(KELVO_BUILD_DIR "/lib/KelvoPDE.pde"));
    QVERIFY2(opened, qPrintable(opened ? QString() : opened.error().text()));
    m_bundle = opened.value();
}

void TestJobTypeDialogs::differentPasscodesAreRefused()
{
    std::optional<QString> passcode;
    const DialogDriver driver({expect("confirmPasscode", "enabled", "false"), type("passcode", "1"),
                               expect("confirmPasscode", "enabled", "true"),
                               type("passcode", "123"), type("confirmPasscode", "124"),
                               press("okButton"), answerNoticeWith("1 to 12 digits"),
                               expect("confirmPasscode", "focus", "true"),
                               type("confirmPasscode", "123"), press("okButton")});
    QCOMPARE(RunModalSecurePrintSetup(m_bundle, &passcode), noErr);
    QCOMPARE(passcode, std::optional<QString>("123"));
}

void TestJobTypeDialogs::aMissingPasscodeIsMadeAndAnnounced()
{
    std::optional<QString> passcode = QStringLiteral("77");
    QString announced;
    const DialogDriver driver({// what was to be confirmed goes with the passcode
                               type("passcode", ""), expect("confirmPasscode", "text", ""),
                               press("okButton"), [&announced] {
                                   announced = frontNotice().header + frontNotice().message;
                                   answerNotice(1);
                               }});
    QCOMPARE(RunModalSecurePrintSetup(m_bundle, &passcode), noErr);
    QVERIFY(passcode && *passcode >= "1000" && *passcode <= "9999" && passcode->size() == 4);
    QVERIFY2(announced.contains(*passcode) && announced.contains("1 to 12")
                 && !announced.contains(u'%'),
             qPrintable(announced));
}

void TestJobTypeDialogs::cancelKeepsThePasscode()
{
    std::optional<QString> passcode = QStringLiteral("4711");
    const DialogDriver driver(
        {expect("passcode", "text", "••••"), expect("confirmPasscode", "text", "••••"),
         press("showPasscode"),
         [] {
             const auto *field = qobject_cast<QLineEdit *>(control("passcode"));
             QCOMPARE(field->displayText(), QStringLiteral("4711"));
         },
         // Shown to the user, and not to a log.
         expect("passcode", "text", "••••"), type("passcode", "9"), press("cancelButton")});
    QCOMPARE(RunModalSecurePrintSetup(m_bundle, &passcode), noErr);
    QCOMPARE(passcode, std::optional<QString>("4711"));
}

void TestJobTypeDialogs::delayedPrintSaysTheDay_data()
{
    QTest::addColumn<int>("fromNow"); // seconds
    QTest::addColumn<int>("expected");

    QTest::newRow("later") << 7200 << 7200;
    QTest::newRow("before now") << -7200 << 86'400 - 7200;
}

void TestJobTypeDialogs::delayedPrintSaysTheDay()
{
    QFETCH(int, fromNow);
    QFETCH(int, expected);
    const LongDateTime now = currentLongDate();
    LongDateTime time = defaultDelayedPrintTime(now);
    const LongDateTime chosen = now + expected;
    const DialogDriver driver(
        {[&] {
             expectDone(inspector::setTime(control("timeToPrint"), timeOf(now + fromNow)));
             const bool isToday = dateOf(chosen) == dateOf(now);
             const QString day = shown("timeToPrintDay");
             QVERIFY2(day.contains(isToday ? "today" : "tomorrow"), qPrintable(day));
             QVERIFY2(day.contains(timeOf(chosen).toString("HH:mm")), qPrintable(day));
         },
         press("okButton")});
    QCOMPARE(RunModalDelayedPrintSetup(m_bundle, &time), noErr);
    QCOMPARE(time, chosen);
}

void TestJobTypeDialogs::cancelKeepsTheTime()
{
    LongDateTime time = 1234;
    const DialogDriver driver(
        {[] { expectDone(inspector::setTime(control("timeToPrint"), QTime(1, 2))); },
         press("cancelButton")});
    QCOMPARE(RunModalDelayedPrintSetup(m_bundle, &time), noErr);
    QCOMPARE(time, 1234);
}

void TestJobTypeDialogs::savedJobStoresWhatWasChosen()
{
    SavedJobData data;
    data.documentName = QStringLiteral("A document whose name has more than 24 characters");
    const DialogDriver driver(
        {expect("jobName", "enabled", "false"),
         expect("jobName", "text", "A document whose name has more than 24 characters"),
         press("useJobName"), expect("jobName", "text", ""), type("jobName", "Price list"),
         type("mailbox", "007"), [] { expectDone(inspector::set(control("saveOption"), 2)); },
         choose("fileFormat", kSavedAsRaster), expect("fileFormat", "value", "4"),
         press("okButton")});
    QCOMPARE(RunModalSavedJobDialog(m_bundle, &data), noErr);
    SavedJob job;
    job.usesJobName = false;
    job.name = QStringLiteral("Price list");
    job.location = QStringLiteral("file:///job-repository/7");
    job.saveDisposition = kSaveAndPrint;
    job.fileFormat = kSavedAsRaster;
    QCOMPARE(data.job, job);
    QVERIFY(!data.passcode);
    QCOMPARE(readHistory("savedJobNames"), QStringList{"Price list"});
    QCOMPARE(readHistory("mailboxNumbers"), QStringList{"7"});
}

void TestJobTypeDialogs::mailboxesBeyondTheLastAreRefused()
{
    SavedJobData data;
    const DialogDriver driver({type("mailbox", "201"), press("okButton"),
                               answerNoticeWith("from 1 to 200"), type("mailbox", "0"),
                               press("okButton"), answerNoticeWith("from 1 to 200"),
                               type("mailbox", "200"), press("okButton")});
    QCOMPARE(RunModalSavedJobDialog(m_bundle, &data), noErr);
    QCOMPARE(mailboxOf(data.job.location), std::optional(200));
    QVERIFY(data.job.usesJobName);
    QCOMPARE(readHistory("savedJobNames"), QStringList()); // none was typed
}

void TestJobTypeDialogs::aSecureSavedJobNeedsFourDigits()
{
    SavedJobData data;
    const DialogDriver driver(
        {expect("passcode", "enabled", "false"),
         press("secureSavedJob"),
         expect("passcode", "enabled", "true"),
         type("passcode", "123"),
         expect("okButton", "enabled", "false"),
         expect("confirmPasscode", "enabled", "false"),
         expect("passcodeHint", "visible", "true"),
         [] { QVERIFY2(shown("passcodeHint").contains("4 to 12"), "why OK is disabled"); },
         press("secureSavedJob"),
         expect("okButton", "enabled", "true"),
         expect("passcodeHint", "visible", "false"),
         press("secureSavedJob"),
         type("passcode", "1234"),
         expect("okButton", "enabled", "true"),
         expect("passcodeHint", "visible", "false"),
         type("confirmPasscode", "1243"),
         press("okButton"),
         answerNoticeWith("same"),
         type("confirmPasscode", "1234"),
         press("okButton")});
    QCOMPARE(RunModalSavedJobDialog(m_bundle, &data), noErr);
    QCOMPARE(data.passcode, std::optional<QString>("1234"));
}

void TestJobTypeDialogs::aSecureSavedJobWithoutPasscodeGetsOne()
{
    SavedJobData data;
    const DialogDriver driver(
        {press("secureSavedJob"), press("okButton"), answerNoticeWith("1 to 20 digits")});
    QCOMPARE(RunModalSavedJobDialog(m_bundle, &data), noErr);
    QVERIFY(data.passcode && data.passcode->size() == 4);
}

void TestJobTypeDialogs::whatIsNotTouchedStays()
{
    SavedJobData data;
    data.job.usesJobName = false;
    data.job.name = QStringLiteral("Report");
    data.job.location = QStringLiteral("smb://archive/17");
    data.job.saveDisposition = 9; // the window has no such choice
    data.job.fileFormat = 9;
    data.passcode = QStringLiteral("123456");
    const SavedJobData before = data;
    const DialogDriver driver({press("okButton")});
    QCOMPARE(RunModalSavedJobDialog(m_bundle, &data), noErr);
    QCOMPARE(data.job, before.job);
    QCOMPARE(data.passcode, before.passcode);
}

void TestJobTypeDialogs::aLocationElsewhereIsNamedAndCanBeTakenBack()
{
    const QString archive = QStringLiteral("smb://archive/17");
    SavedJobData data;
    data.job.location = archive;
    data.job.elsewhere = archive; // as the panel reads it
    const auto hintNamesIt = [archive] {
        const QString hint = shown("mailboxHint");
        QVERIFY2(hint.contains(archive), qPrintable(hint));
    };
    {
        const DialogDriver driver({expect("mailbox", "text", "smb://archive/17"), hintNamesIt,
                                   type("mailbox", "7"), hintNamesIt, press("okButton")});
        QCOMPARE(RunModalSavedJobDialog(m_bundle, &data), noErr);
        QCOMPARE(mailboxOf(data.job.location), std::optional(7));
        QCOMPARE(readHistory("mailboxNumbers"), QStringList{"7"});
    }
    const DialogDriver driver(
        {expect("mailbox", "text", "7"),
         [] { QVERIFY(qobject_cast<HistoryField *>(control("mailbox"))->chooseItem(0)); },
         press("okButton")});
    QCOMPARE(RunModalSavedJobDialog(m_bundle, &data), noErr);
    QCOMPARE(data.job.location, std::optional(archive));
    QCOMPARE(readHistory("mailboxNumbers"), QStringList{"7"});
}

void TestJobTypeDialogs::cancelKeepsTheSavedJob()
{
    SavedJobData data;
    const DialogDriver driver({press("useJobName"), type("jobName", "Report"), type("mailbox", "7"),
                               press("cancelButton")});
    QCOMPARE(RunModalSavedJobDialog(m_bundle, &data), noErr);
    QCOMPARE(data.job, SavedJob());
    QCOMPARE(readHistory("savedJobNames"), QStringList());
}

QTEST_MAIN(TestJobTypeDialogs)
#include "test_job_type_dialogs.moc"
