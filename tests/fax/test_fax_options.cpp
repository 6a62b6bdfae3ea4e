#include "fax_options.h"
#include "table.h"

#include <QTest>

using namespace kelvo;
using namespace Qt::StringLiterals;

class TestFaxOptions : public QObject
{
    Q_OBJECT

private slots:
    // A wall clock that is changed twice a year, without the system's table of zones.
    void initTestCase() { qputenv("TZ", "CET-1CEST,M3.5.0,M10.5.0/3"); }
    void controlsShowTheTicket_data();
    void controlsShowTheTicket();
    void controlsAreWritten_data();
    void controlsAreWritten();
    void speedsComeBack_data();
    void speedsComeBack();
    void pastTimesAreTomorrows_data();
    void pastTimesAreTomorrows();
};

Q_DECLARE_METATYPE(kelvo::FaxControls)

namespace {

const QDate today(2026, 11, 22);
const LongDateTime now = longDateFrom(today, QTime(12, 0));

} // namespace

void TestFaxOptions::controlsShowTheTicket_data()
{
    const Table<Dictionary, FaxControls> row{"options", "controls"};
    row("nothing", {}, {});
    row("values of other types",
        {{"ConfirmationSheet", 0}, {"SendTime", "soon"}, {"DialingPrefix", 9}, {"CoverSheet", 1}},
        {});
    row("an empty prefix", {{"DialingPrefix", ""}}, {});
    row("notes without a cover sheet", {{"CoverSheetNotes", "Kept"}}, {});
    row("all",
        {{"ConfirmationSheet", false},
         {"SendSpeed", 5},
         {"Resolution", 3},
         {"SendTime", qint64(longDateFrom(today, QTime(22, 30)))},
         {"DialingPrefix", "9,"},
         {"CreditCard", "4711"},
         {"CoverSheet", true},
         {"CoverSheetNotes", "Read this"},
         {"PromptDuplicate", false},
         {"PromptRemove", false}},
        {.confirmation = 2,
         .sendSpeed = 3,
         .resolution = 3,
         .sendTime = longDateFrom(today, QTime(22, 30)),
         .dialingPrefix = "9,",
         .hasCoverSheet = true,
         .notes = "Read this",
         .promptDuplicate = false,
         .promptRemove = false});
}

void TestFaxOptions::controlsShowTheTicket()
{
    QFETCH(Dictionary, options);
    QFETCH(FaxControls, controls);
    QVERIFY(SyncToUI(options) == controls);
}

void TestFaxOptions::controlsAreWritten_data()
{
    const Table<Dictionary, FaxControls, Dictionary> row{"before", "controls", "after"};
    // What is written in any case.
    const auto with = [](const Dictionary &others) {
        Dictionary all{{"ConfirmationSheet", true}, {"SendSpeed", 1},
                       {"Resolution", 2},           {"CoverSheet", false},
                       {"PromptDuplicate", true},   {"PromptRemove", true}};
        all.insert(others);
        return all;
    };
    row("nothing", {}, {}, with({}));
    row("what is switched off goes, what is not ours stays",
        {{"SendTime", 1}, {"DialingPrefix", "9"}, {"CreditCard", "4711"}, {"Other", 7}}, {},
        with({{"Other", 7}}));
    row("notes", {}, {.hasCoverSheet = true, .notes = "New"},
        with(
            {{"CoverSheet", true}, {"CoverSheetNotes", "New"}, {"LocalizedNotesLabel", "Notes:"}}));
    row("emptied notes", {{"CoverSheetNotes", "Old"}, {"LocalizedNotesLabel", "Notes:"}},
        {.hasCoverSheet = true}, with({{"CoverSheet", true}, {"CoverSheetNotes", "Old"}}));
    row("notes of a sheet that is not sent",
        {{"CoverSheetNotes", "Old"}, {"LocalizedNotesLabel", "Notes:"}}, {.notes = "New"},
        with({{"CoverSheetNotes", "Old"}, {"LocalizedNotesLabel", "Notes:"}}));
    row("a time of a later day", {}, {.sendTime = longDateFrom(today.addDays(4), QTime(9, 0))},
        with({{"SendTime", qint64(longDateFrom(today.addDays(4), QTime(9, 0)))}}));
    row("a box without text", {}, {.dialingPrefix = ""}, with({{"DialingPrefix", ""}}));
    row("a speed that no item shows", {{"SendSpeed", 9}}, {.sendSpeed = 0},
        with({{"SendSpeed", 9}}));
    row("all", {},
        {.confirmation = 2,
         .sendSpeed = 3,
         .resolution = 4,
         .sendTime = longDateFrom(today, QTime(11, 59)),
         .dialingPrefix = "9,",
         .promptDuplicate = false,
         .promptRemove = false},
        with({{"ConfirmationSheet", false},
              {"SendSpeed", 3},
              {"Resolution", 4},
              {"SendTime", qint64(longDateFrom(today.addDays(1), QTime(11, 59)))},
              {"DialingPrefix", "9,"},
              {"PromptDuplicate", false},
              {"PromptRemove", false}}));
}

void TestFaxOptions::controlsAreWritten()
{
    QFETCH(Dictionary, before);
    QFETCH(FaxControls, controls);
    SyncFromUI(controls, before, now, u"Notes:"_s);
    QTEST(before, "after");
}

void TestFaxOptions::speedsComeBack_data()
{
    const Table<int, int, int> row{"stored", "item", "written"};
    row("G3-Auto by its value", 4, 1, 1);
    row("G3-Auto as it is written", 1, 1, 1);
    row("Fixed G3", 2, 2, 2);
    row("G4-Auto by its value", 5, 3, 3);
    row("G4-Auto as it is written", 3, 3, 3);
    row("of later days", 6, 0, 6);
}

void TestFaxOptions::speedsComeBack()
{
    QFETCH(int, stored);
    Dictionary options{{"SendSpeed", stored}};
    const FaxControls controls = SyncToUI(options);
    QTEST(controls.sendSpeed, "item");
    SyncFromUI(controls, options, now, {});
    QTEST(options["SendSpeed"].toInt(), "written");
}

void TestFaxOptions::pastTimesAreTomorrows_data()
{
    const Table<QDateTime, QDateTime, QDateTime> row{"stored", "now", "settled"};
    const auto at = [](int month, int day, int hour) {
        return QDateTime(QDate(2026, month, day), QTime(hour, 0));
    };
    row("still to come", at(11, 22, 22), at(11, 22, 12), at(11, 22, 22));
    row("this minute", at(11, 22, 12), at(11, 22, 12), at(11, 22, 12));
    row("passed today", at(11, 22, 11), at(11, 22, 12), at(11, 23, 11));
    row("days ago, later today", at(11, 1, 22), at(11, 22, 12), at(11, 22, 22));
    row("into summer time", at(3, 28, 11), at(3, 28, 12), at(3, 29, 11));
    row("out of it", at(10, 24, 11), at(10, 24, 12), at(10, 25, 11));
}

void TestFaxOptions::pastTimesAreTomorrows()
{
    QFETCH(QDateTime, stored);
    QFETCH(QDateTime, now);
    Dictionary options{{"SendTime", qint64(longDateFrom(stored))}};
    settleSendTime(options, longDateFrom(now));
    const LongDateTime time = options["SendTime"].toLongLong();
    QTEST(QDateTime(dateOf(time), timeOf(time)), "settled");
}

QTEST_GUILESS_MAIN(TestFaxOptions)
#include "test_fax_options.moc"
