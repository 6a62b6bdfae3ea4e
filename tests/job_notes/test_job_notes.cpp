#include "driven_panel.h"
#include "files.h"
#include "folders.h"
#include "input_history.h"
#include "job_notes_panel.h"
#include "preferences.h"
#include "system_information.h"
#include "table.h"
#include "ticket_values.h"

#include <QTest>

using namespace kelvo;

namespace {

struct Panel : DrivenPanel
{
    Panel()
        : DrivenPanel(GetJobNotesPanelInterface, QStringLiteral("full"))
    {
    }

    Ticket &ticket() { return *findTicket(session.settings()); }
    QVariant written(const char *name) { return valueIn(ticket(), ticketKey(name)); }
    void say(const char *name, const QVariant &value)
    {
        setValue(ticket(), QStringLiteral("test"), ticketKey(name), value);
    }
    QString shown(const JobNotesField &field) { return find<HistoryField>(field.control)->text(); }
};

QString preferencesFile()
{
    return userPreferencesFolder() + QStringLiteral("/com.kelvo.print.jobnotes.plist");
}

JobNotesPreferencesOptions flags(std::int32_t job, std::int32_t sender, std::int32_t recipient)
{
    return {job, sender, recipient};
}

QString textOf(const JobNotesPreferencesOptions &options)
{
    return QStringLiteral("%1 %2 %3")
        .arg(QString::number(options.useDocumentNameAsJobName),
             QString::number(options.useLoginNameAsSenderName),
             QString::number(options.useLoginNameAsRecipientName));
}

const QString login = consoleUser().value_or(QString());

} // namespace

class TestJobNotes : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { QDir(userPreferencesFolder()).removeRecursively(); }

    void answersAsEveryPanel();
    void allNamesHangOnTheJobs_data();
    void allNamesHangOnTheJobs();
    void aTicketIsShownAsItStands();
    void messagesThatAreEmptyAreInNoTicket();
    void preferencesStandInForWhatTheTicketLacks();
    void keepsPreferences_data();
    void keepsPreferences();
    void namesAreOfferedAgainAsTheyWereLeft();
};

void TestJobNotes::answersAsEveryPanel()
{
    Panel panel;
    QCOMPARE(panel.kind, kPDEPanelKind);
    QCOMPARE(panel.title, QStringLiteral("Job Notes"));
    const PanelOperations &call = panel.operations;
    PrintSession *session = &panel.session.session;
    QCOMPARE(call.Initialize(nullptr, nullptr, nullptr, &panel.pane, session),
             kPMInvalidPDEContext);
    QCOMPARE(call.Initialize(panel.context, nullptr, nullptr, &panel.pane, nullptr),
             kPMInvalidPDEContext);
    QCOMPARE(call.Sync(nullptr, session, kSyncRead), kPMInvalidParameter);
    QCOMPARE(call.Sync(panel.context, nullptr, kSyncWrite), kPMInvalidParameter);
    panel.begin();
    SummaryArray titles = SummaryArray::value_type(), texts = titles;
    QCOMPARE(call.GetSummaryText(panel.context, &titles, &texts), noErr);
    QVERIFY(!titles && !texts); // it has no summary
}

// Flags as fixed items are shown; what is typed in a field that is fixed is lost with it.
void TestJobNotes::allNamesHangOnTheJobs_data()
{
    // job, sender, recipient: typed; empty: the fixed item
    const Table<QString, QString, QString, QStringList, QString> row{"job", "sender", "recipient",
                                                                     "names", "flags"};
    row("nothing typed", "", "", "", {login, login, login}, "111");
    row("no job's name", "", "Ann", "Bo", {login, login, login}, "100");
    row("all", "Budget", "Ann", "Bo", {"Budget", "Ann", "Bo"}, "000");
    row("the job's name alone", "Budget", "", "", {"Budget", "", ""}, "011");
}

void TestJobNotes::allNamesHangOnTheJobs()
{
    QFETCH(QString, job);
    QFETCH(QString, sender);
    QFETCH(QString, recipient);
    QFETCH(QStringList, names);
    QFETCH(QString, flags);
    Panel panel;
    panel.begin();
    panel.find<HistoryField>(kJobNameField.control)->setText("Old");
    panel.find<HistoryField>(kSenderNameField.control)->setText("Old");
    QCOMPARE(panel.sync(kSyncWrite), noErr);
    for (const auto &[field, text] : {std::pair(kJobNameField, job),
                                      {kSenderNameField, sender},
                                      {kRecipientNameField, recipient}}) {
        auto *box = panel.find<HistoryField>(field.control);
        box->setText(text.isEmpty() ? box->items().constFirst() : text);
    }

    QCOMPARE(panel.sync(kSyncWrite), noErr);

    const JobNotesField fields[] = {kJobNameField, kSenderNameField, kRecipientNameField};
    for (int i = 0; i < 3; ++i) {
        QCOMPARE(panel.written(fields[i].text), QVariant(names[i]));
        QCOMPARE(panel.written(fields[i].flag), QVariant(flags[i] == u'1'));
    }
    // What is written is what comes back, also to a panel that nobody has opened.
    const Ticket written = panel.ticket();
    QCOMPARE(panel.sync(kSyncRead), noErr);
    QCOMPARE(panel.shown(kSenderNameField) == names[1], flags[1] == u'0');
    Panel unopened;
    unopened.ticket() = written;
    QCOMPARE(unopened.initialize(), noErr);
    QCOMPARE(unopened.sync(kSyncWrite), noErr);
    QCOMPARE(unopened.written(kSenderNameField.text), panel.written(kSenderNameField.text));
    QCOMPARE(unopened.written(kSenderNameField.flag), panel.written(kSenderNameField.flag));
}

void TestJobNotes::aTicketIsShownAsItStands()
{
    Panel panel;
    panel.begin();
    panel.say("JobNotesUseJobName", false);
    panel.say("JobNotesJobName", "Budget");
    panel.say("JobNotesSenderUseLoginName", true);
    panel.say("JobNotesSenderName", "Ann"); // not read: the login name is used
    panel.say("JobNotesRecipientUseLoginName", false);
    panel.say("JobNotesSheetMessage", "Two\nlines");
    Panel unopened;
    unopened.ticket() = panel.ticket();
    QCOMPARE(unopened.initialize(), noErr);
    QCOMPARE(unopened.sync(kSyncWrite), noErr);
    QCOMPARE(unopened.written("JobNotesSenderName"), QVariant(QString()));
    QCOMPARE(panel.sync(kSyncRead), noErr);
    QCOMPARE(panel.shown(kJobNameField), QStringLiteral("Budget"));
    QCOMPARE(panel.shown(kSenderNameField), QStringLiteral("Use login name"));
    QCOMPARE(panel.shown(kRecipientNameField), QString());
    QCOMPARE(panel.find<QPlainTextEdit>(kBannerMessageField.control)->toPlainText(),
             QStringLiteral("Two\nlines"));
    QCOMPARE(panel.find<QPlainTextEdit>(kStartMessageField.control)->toPlainText(), QString());
    // An empty field is nothing that was typed.
    QCOMPARE(panel.sync(kSyncWrite), noErr);
    QCOMPARE(panel.written("JobNotesRecipientUseLoginName"), QVariant(true));
    QCOMPARE(panel.written("JobNotesSenderName"), QVariant(QString()));
    // The keyboard goes where one reads first, and only where the panel is seen.
    QVERIFY(QTest::qWaitForWindowActive(&panel.pane));
    panel.find<QPlainTextEdit>(kStartMessageField.control)->setFocus();
    QCOMPARE(panel.sync(kSyncRead), noErr);
    QVERIFY(panel.find<HistoryField>(kJobNameField.control)->hasFocus());
}

void TestJobNotes::messagesThatAreEmptyAreInNoTicket()
{
    Panel panel;
    panel.say("JobNotesAdditionalInfo", "older software's");
    panel.say("JobNotesMessage", "Call me");
    panel.begin();
    QCOMPARE(panel.sync(kSyncWrite), noErr);
    QVERIFY(!panel.written("JobNotesAdditionalInfo").isValid());
    QCOMPARE(panel.written("JobNotesMessage"), QVariant("Call me"));
    auto *start = panel.find<QPlainTextEdit>(kStartMessageField.control);
    start->setPlainText("Later");
    QCOMPARE(panel.sync(kSyncWrite), noErr);
    QCOMPARE(panel.ticket().entries.at(ticketKey("JobNotesMessage")),
             (TicketEntry{"Later", "com.kelvo.printingmanager", false}));
    start->clear();
    auto *banner = panel.find<QPlainTextEdit>(kBannerMessageField.control);
    banner->setPlainText("For Ann");
    QCOMPARE(panel.sync(kSyncWrite), noErr);
    QCOMPARE(panel.written("JobNotesSheetMessage"), QVariant("For Ann"));
    banner->clear();
    QCOMPARE(panel.sync(kSyncWrite), noErr);
    QVERIFY(!panel.written("JobNotesMessage").isValid());
    QVERIFY(!panel.written("JobNotesSheetMessage").isValid());
}

void TestJobNotes::preferencesStandInForWhatTheTicketLacks()
{
    QCOMPARE(StoreJobNotesPreferences(flags(0, 1, 0)), noErr);
    Panel panel;
    panel.say("JobNotesRecipientUseLoginName", true);
    panel.begin();
    QCOMPARE(panel.shown(kJobNameField), QString());
    QCOMPARE(panel.shown(kSenderNameField), QStringLiteral("Use login name"));
    QCOMPARE(panel.shown(kRecipientNameField), QStringLiteral("Use login name"));
}

void TestJobNotes::keepsPreferences_data()
{
    // content null: no file
    const Table<QByteArray, JobNotesPreferencesOptions> row{"content", "read"};
    const auto list = [](const QByteArray &entries) {
        return "<plist version=\"1.0\"><dict>" + entries + "</dict></plist>";
    };
    row("no file", {}, flags(0, 0, 1));
    row("damaged", "<plist>", flags(0, 0, 1));
    row("one of them", list("<key>useLoginNameAsSenderName</key><integer>1</integer>"),
        flags(0, 1, 1));
    row("no number, and none of 0 and 1",
        list("<key>useDocumentNameAsJobName</key><string>1</string>"
             "<key>useLoginNameAsRecipientName</key><integer>7</integer>"),
        flags(0, 0, 1));
}

void TestJobNotes::keepsPreferences()
{
    QFETCH(QByteArray, content);
    QFETCH(JobNotesPreferencesOptions, read);
    if (!content.isNull())
        putFile(preferencesFile(), content);
    JobNotesPreferencesOptions options = flags(0, 0, 1);
    QCOMPARE(RetrieveJobNotesPreferences(&options), noErr);
    QCOMPARE(textOf(options), textOf(read));
    // All three, and nothing else, are in the file then.
    putFile(preferencesFile(), "<plist version=\"1.0\"><dict><key>a</key><true/></dict></plist>");
    QString notWritten;
    QCOMPARE(StoreJobNotesPreferences(flags(1, 0, 1), &notWritten), noErr);
    QCOMPARE(notWritten, QString());
    QCOMPARE(CopyUserPreferences("com.kelvo.print.jobnotes.plist"),
             (Dictionary{{"useDocumentNameAsJobName", qint64(1)},
                         {"useLoginNameAsSenderName", qint64(0)},
                         {"useLoginNameAsRecipientName", qint64(1)}}));
}

// The host has panels write after each letter.
void TestJobNotes::namesAreOfferedAgainAsTheyWereLeft()
{
    const QString key = QStringLiteral("jobNotesJobName");
    Panel panel;
    panel.begin();
    auto *name = panel.find<HistoryField>(kJobNameField.control);
    for (const char *typed : {"B", "Bu", "Budget"}) {
        name->setText(typed);
        QCOMPARE(panel.sync(kSyncWrite), noErr);
    }
    QCOMPARE(readHistory(key), QStringList());
    panel.operations.Close(panel.context);
    QCOMPARE(readHistory(key), QStringList("Budget"));
    name->setText("  ");
    panel.operations.Close(panel.context);
    QCOMPARE(readHistory(key), QStringList("Budget"));
    // What a ticket brought is nobody's typing.
    panel.say("JobNotesUseJobName", false);
    panel.say("JobNotesJobName", "Of a preset");
    QCOMPARE(panel.sync(kSyncRead), noErr);
    panel.end();
    QCOMPARE(readHistory(key), QStringList("Budget"));
}

QTEST_MAIN(TestJobNotes)
#include "test_job_notes.moc"
