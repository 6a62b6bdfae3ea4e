#include "folders.h"
#include "long_date.h"
#include "menu.h"
#include "string_table.h"
#include "system_information.h"
#include "table.h"

#include <QFile>
#include <QRegularExpression>
#include <QTest>

#include <pwd.h>
#include <unistd.h>

using namespace kelvo;
using namespace Qt::StringLiterals;

// The small services: folders, dates, menus, texts, the computer.
class TestSurroundings : public QObject
{
    Q_OBJECT

private slots:
    void choosesFoldersFromTheEnvironment_data();
    void choosesFoldersFromTheEnvironment();
    void countsSecondsSince1904_data();
    void countsSecondsSince1904();
    void findsMenuItemsInSubmenus();
    void fillsPlaceHoldersAtOnce_data();
    void fillsPlaceHoldersAtOnce();
    void findsTheDefaultRoute_data();
    void findsTheDefaultRoute();
    void knowsUserAndComputer();
    void measuresPaperAsTheLocaleDoes();
};

void TestSurroundings::choosesFoldersFromTheEnvironment_data()
{
    using Variables = QMap<QByteArray, QByteArray>;
    const Table<Variables, QString, QString, QStringList> row{"variables", "preferences", "support",
                                                              "site"};
    const QStringList site{u"/etc/xdg/kelvo"_s};

    row("home alone", Variables{{"HOME", "/h/u/"}}, "/h/u/.config/kelvo", "/h/u/.local/share",
        site);
    row("desktop's folders",
        Variables{{"HOME", "/h"}, {"XDG_CONFIG_HOME", "/c/"}, {"XDG_DATA_HOME", "/d"}}, "/c/kelvo",
        "/d", site);
    row("relative folders are ignored",
        Variables{{"HOME", "/h"}, {"XDG_CONFIG_HOME", "c"}, {"XDG_DATA_HOME", "d"}},
        "/h/.config/kelvo", "/h/.local/share", site);
    row("our own",
        Variables{{"HOME", "/h"},
                  {"KELVO_SUPPORT_DIR", "/s"},
                  {"KELVO_SITE_DIR", "/t"},
                  {"XDG_CONFIG_DIRS", "/x"}},
        "/h/.config/kelvo", "/s", QStringList("/t"));
    row("the system's folders",
        Variables{{"HOME", "/h"}, {"XDG_CONFIG_DIRS", "/etc/site/:etc::/etc/xdg"}},
        "/h/.config/kelvo", "/h/.local/share", {"/etc/site/kelvo", "/etc/xdg/kelvo"});
    row("none of the system's folders", Variables{{"HOME", "/h"}, {"XDG_CONFIG_DIRS", ":etc"}},
        "/h/.config/kelvo", "/h/.local/share", site);
    const QString listed = QFile::decodeName(::getpwuid(::geteuid())->pw_dir);
    row("the list of users", Variables(), listed + "/.config/kelvo", listed + "/.local/share",
        site);
    row("root folder", Variables{{"HOME", "/"}}, "/.config/kelvo", "/.local/share", site);
}

void TestSurroundings::choosesFoldersFromTheEnvironment()
{
    using Variables = QMap<QByteArray, QByteArray>;
    QFETCH(Variables, variables);
    const char *const names[] = {"HOME",           "XDG_CONFIG_HOME",
                                 "XDG_DATA_HOME",  "KELVO_SUPPORT_DIR",
                                 "KELVO_SITE_DIR", "XDG_CONFIG_DIRS"};
    Variables before;
    for (const char *name : names) {
        before.insert(name, qgetenv(name));
        variables.contains(name) ? qputenv(name, variables.value(name)) : qunsetenv(name);
    }
    QTEST(userPreferencesFolder(), "preferences");
    QTEST(localApplicationSupportFolder(), "support");
    QTEST(siteFolders(), "site");
    for (const char *name : names)
        qputenv(name, before.value(name));
}

void TestSurroundings::countsSecondsSince1904_data()
{
    const Table<QDate, QTime, qint64> row{"date", "time", "seconds"};
    row("epoch", QDate(1904, 1, 1), QTime(0, 0), 0);
    row("a second before", QDate(1903, 12, 31), QTime(23, 59, 59), -1);
    row("Unix epoch", QDate(1970, 1, 1), QTime(0, 0), 2082844800);
    row("above 32 bits", QDate(2040, 2, 6), QTime(6, 28, 16), 4294967296);
}

void TestSurroundings::countsSecondsSince1904()
{
    QFETCH(QDate, date);
    QFETCH(QTime, time);
    QFETCH(qint64, seconds);
    QCOMPARE(qint64(longDateFrom(date, time)), seconds);
    QCOMPARE(qint64(longDateFrom(QDateTime(date, time.addMSecs(400), Qt::OffsetFromUTC, 7200))),
             seconds);
    QCOMPARE(dateOf(seconds), date);
    QCOMPARE(timeOf(seconds), time);
}

void TestSurroundings::findsMenuItemsInSubmenus()
{
    constexpr OSType command = fourCharCode("edit");
    Menu menu;
    menu.items.resize(2);
    menu.items[0].submenu.resize(1);
    menu.items[0].submenu[0].command = command;
    menu.items[1].command = command;
    QCOMPARE(findItem(menu, command), &menu.items[0].submenu[0]);
    QCOMPARE(findItem(menu, fourCharCode("none")), nullptr);
    QCOMPARE(findItem(menu, kNoCommand), nullptr);
}

void TestSurroundings::fillsPlaceHoldersAtOnce_data()
{
    const Table<QString, QStringList, QString> row{"format", "arguments", "text"};
    row("order and repeat", "%2 of %1, %2", {"a", "b"}, "b of a, b");
    row("typed place holder", "%1 and %2", {"%2", "b"}, "%2 and b");
    row("missing argument", "%1 %2", {"a"}, "a %2");
    row("not a place holder", "100% %0 %x %", {"a"}, "100% %0 %x %");
    row("one digit only", "%10", {"a"}, "a0");
}

void TestSurroundings::fillsPlaceHoldersAtOnce()
{
    QFETCH(QString, format);
    QFETCH(QStringList, arguments);
    QTEST(formatted(format, arguments), "text");
}

void TestSurroundings::findsTheDefaultRoute_data()
{
    // routes: interface, destination, gateway, flags, …; interface empty: none
    const Table<QByteArray, QByteArray> row{"routes", "interface"};
    const QByteArray header =
        "Iface\tDestination\tGateway \tFlags\tRefCnt\tUse\tMetric\tMask\t\tMTU\tWindow\tIRTT\n";
    const QByteArray wired = "eth0\t00000000\t0100A8C0\t0003\t0\t0\t100\t00000000\t0\t0\t0\n";
    const QByteArray wireless = "wlan0\t00000000\t0100A8C0\t0003\t0\t0\t60\t00000000\t0\t0\t0\n";
    row("lowest metric", header + wired + wireless, "wlan0");
    row("first of equal metric", header + wired + QByteArray(wired).replace("eth0", "eth1"),
        "eth0");
    row("no gateway", header + QByteArray(wired).replace("0003", "0001"), "eth0");
    row("not up", header + QByteArray(wired).replace("0003", "0002"), {});
    row("rejects", header + QByteArray(wired).replace("0003", "0201"), {});
    row("not every destination",
        header + QByteArray(wired).replace("\t00000000\t0\t", "\t00FFFFFF\t0\t"), {});
    row("cut off", header + wired.left(30), {});
    row("empty", {}, {});
}

void TestSurroundings::findsTheDefaultRoute()
{
    QFETCH(QByteArray, routes);
    QTEST(defaultRouteInterface(routes).value_or(QByteArray()), "interface");
}

void TestSurroundings::knowsUserAndComputer()
{
    QVERIFY(consoleUser() && !consoleUser()->isEmpty());
    QVERIFY(computerName() && !computerName()->isEmpty());
    if (const auto address = primaryIPv4Address()) // a bare machine may have no route
        QVERIFY2(QRegularExpression(u"^\\d+\\.\\d+\\.\\d+\\.\\d+$"_s).match(*address).hasMatch(),
                 qPrintable(*address));
}

void TestSurroundings::measuresPaperAsTheLocaleDoes()
{
    for (const auto &[locale, system] : {std::pair("en_US", QLocale::ImperialUSSystem),
                                         {"en_GB", QLocale::MetricSystem},
                                         {"de_DE", QLocale::MetricSystem}}) {
        QLocale::setDefault(QLocale(QLatin1String(locale)));
        QCOMPARE(measurementSystem(), system);
    }
    QLocale::setDefault(QLocale::c());
}

QTEST_GUILESS_MAIN(TestSurroundings)
#include "test_surroundings.moc"
