#include "client_information.h"
#include "print_checks.h"
#include "print_session.h"
#include "shell_panel.h"
#include "tab_selection.h"
#include "table.h"
#include "ticket.h"

#include <QTest>

#include <vector>

using namespace kelvo;

using Tabs = std::vector<std::int32_t>;
Q_DECLARE_METATYPE(JobTypeState)

class TestShellRules : public QObject
{
    Q_OBJECT

private slots:
    void tabsFollowOneAnother_data();
    void tabsFollowOneAnother();
    void clientInformationIsWrittenOrRemoved_data();
    void clientInformationIsWrittenOrRemoved();
    void shellEntriesCarryTheirClient();
    void minimumSizeGrowsWithTheFont();
};

void TestShellRules::tabsFollowOneAnother_data()
{
    const Table<Tabs, int, int, int, int> row{"present", "from", "next", "previous", "shown"};

    const Tabs all{1, 2, 3, 4};
    row("in the middle", all, 2, 3, 1, 2);
    row("past the last", all, 4, 1, 3, 4);
    row("before the first", all, 1, 2, 4, 1);
    row("nothing shown yet", all, 0, 1, 4, 1);
    row("only one", Tabs{4}, 4, 4, 4, 4);
    row("over a missing one", Tabs{1, 4}, 1, 4, 4, 1);
    row("from a missing one", Tabs{1, 3, 4}, 2, 3, 1, 1);
    row("no tab", Tabs{}, 2, 0, 0, 0);
}

void TestShellRules::tabsFollowOneAnother()
{
    QFETCH(Tabs, present);
    QFETCH(int, from);

    QTEST(static_cast<int>(nextTab(present, from)), "next");
    QTEST(static_cast<int>(previousTab(present, from)), "previous");
    QTEST(static_cast<int>(tabToShow(present, from)), "shown");
}

void TestShellRules::clientInformationIsWrittenOrRemoved_data()
{
    using Text = std::optional<QString>;
    const Table<Text, Text, Text, Text> row{"user", "computer", "address", "computerWritten"};

    const Text eva(QStringLiteral("eva"));
    const Text host(QStringLiteral("desk-12"));
    const Text ip(QStringLiteral("192.0.2.7"));
    const auto edge = [](char16_t character) {
        return Text(QStringLiteral("desk") + QChar(character));
    };
    row("all known", eva, host, ip, host);
    row("nothing known", Text(), Text(), Text(), Text());
    row("no user: the name is not looked at", Text(), host, ip, Text());
    row("no address", eva, host, Text(), host);
    row("U+0020", eva, edge(0x20), ip, edge(0x20));
    row("U+001F", eva, edge(0x1F), ip, Text());
    row("U+00FE", eva, edge(0xFE), ip, edge(0xFE));
    row("U+00FF", eva, edge(0xFF), ip, Text());
    row("two units", eva, Text(QStringLiteral("desk 😀")), ip, Text());
}

void TestShellRules::clientInformationIsWrittenOrRemoved()
{
    using Text = std::optional<QString>;
    QFETCH(Text, user);
    QFETCH(Text, computer);
    QFETCH(Text, address);
    const QString prefix = QStringLiteral("com.kelvo.print.ClientInformation.");
    PrintSession session;
    const PMTicketRef ticket = session.printSettingsTicket();
    // What an earlier dialog left must not stand for a user who is not there.
    for (const char *name : {"UserName", "ComputerName", "IPAddress"})
        PMTicketSetCFString(ticket, QStringLiteral("K"), prefix + QLatin1String(name),
                            QStringLiteral("old"));

    writeClientInformation(ticket, {user, computer, address});

    QCOMPARE(PMTicketGetCFString(ticket, prefix + QStringLiteral("UserName")), user);
    QTEST(PMTicketGetCFString(ticket, prefix + QStringLiteral("ComputerName")), "computerWritten");
    QCOMPARE(PMTicketGetCFString(ticket, prefix + QStringLiteral("IPAddress")), address);
}

void TestShellRules::shellEntriesCarryTheirClient()
{
    PrintSession session;
    const PMTicketRef ticket = session.printSettingsTicket();
    const QString rotate = QStringLiteral("com.kelvo.print.RotateBooklet180Degrees");
    PMTicketSetCFBoolean(ticket, QStringLiteral("K"), rotate, true);

    writeShellEntries(ticket);

    const std::map<QString, TicketEntry> expected{
        {QStringLiteral("com.kelvo.print.KPIFOptions"),
         {Dictionary{{QStringLiteral("KPIFOptionCovers"), true},
                     {QStringLiteral("KPIFOptionExceptions"), true},
                     {QStringLiteral("KPIFOptionInserts"), true}},
          QStringLiteral("K")}},
        {QStringLiteral("com.kelvo.print.ControllerInformation.ControllerFamily"),
         {QStringLiteral("Green"), QStringLiteral("K")}},
        {QStringLiteral("com.kelvo.print.ControllerInformation.ControllerVersion"),
         {QStringLiteral("7.0"), QStringLiteral("K")}},
    };
    QVERIFY(session.printSettings().entries == expected);
}

void TestShellRules::minimumSizeGrowsWithTheFont()
{
    QCOMPARE(minimumShellSize(9), QSize(540, 491));
    QCOMPARE(minimumShellSize(13), QSize(540, 491));
    QCOMPARE(minimumShellSize(26), QSize(1080, 982));
}

QTEST_GUILESS_MAIN(TestShellRules)
#include "test_shell_rules.moc"
