#include "device_session.h"
#include "dialog_driver.h"
#include "special_pages_context.h"
#include "special_pages_notices.h"
#include "special_pages_panel.h"
#include "special_pages_view.h"
#include "ticket.h"
#include "ticket_values.h"

#include <QLabel>
#include <QTest>

using namespace kelvo;

namespace {

constexpr std::int32_t kBlue = 2;

Insert insertAfter(std::int32_t page, std::int32_t quantity = 1)
{
    Insert insert;
    insert.stock().setColor(kUnset);
    insert.setStartPage(page);
    insert.setQuantity(quantity);
    return insert;
}

ExceptionPage exceptionOf(std::int32_t first, std::int32_t last)
{
    ExceptionPage page;
    page.stock().setColor(kUnset);
    page.setStartPage(first);
    page.setEndPage(last);
    return page;
}

template <typename... Page>
void addTo(SpecialPageList &list, const Page &...page)
{
    const std::vector<const SpecialPage *> pages{&page...};
    list.add(pages);
}

// The panel of the full sample device, in front of its user.
class Panel
{
public:
    Panel()
        : session(QStringLiteral("full"))
    {
        PanelInterface *interface = nullptr;
        GetSpecialPagesPanelInterface(&interface);
        operations = *interface->table;
        delete interface->table;
        delete interface;
        OSType creator = 0;
        CFStringRef kind = nullptr, title = nullptr;
        std::uint32_t width = 0, height = 0;
        operations.Prologue(&context, &creator, &kind, &title, &width, &height);
    }
    ~Panel() { end(); }
    Panel(const Panel &) = delete;
    Panel &operator=(const Panel &) = delete;

    void begin()
    {
        QCOMPARE(operations.Initialize(context, nullptr, nullptr, &pane, &session.session), noErr);
        QCOMPARE(operations.Open(context), noErr);
        pane.show();
    }
    void end()
    {
        if (context)
            operations.Terminate(context, noErr);
        context = nullptr;
    }
    OSStatus sync(std::int32_t direction)
    {
        return operations.Sync(context, &session.session, direction);
    }
    _SpecialPagesContext &data() { return *_specialPagesContext; }
    void refill() { UpdateSpecialPagesSummary(_specialPagesContext); }

    QWidget *find(std::int32_t number) { return findControl(&pane, {kPanelSignature, number}); }
    void select(const std::vector<int> &rows) { expectDone(inspector::select(find(1000), rows)); }
    // Answers the question that it asks, when it asks one.
    void press(std::int32_t number, int answer = 0)
    {
        QStringList asked;
        if (answer != 0)
            QTimer::singleShot(0, [answer, &asked] {
                asked = {frontNotice().header, frontNotice().message};
                answerNotice(answer);
            });
        expectDone(inspector::click(find(number)));
        question = asked;
    }
    // "3 Insert" for each row.
    QString rows()
    {
        QStringList texts;
        for (int row = 0; row < data().list->rowCount(); ++row)
            texts << data().list->cellText(row, 0) + u' ' + data().list->cellText(row, 1);
        return texts.join(QStringLiteral(" · "));
    }
    // Edit, delete, delete all, undo, move up, move down.
    QString enabled()
    {
        QString states;
        for (const std::int32_t number : {1200, 1300, 1400, 1500, 1600, 1700})
            states += find(number)->isEnabled() ? u'1' : u'0';
        return states;
    }

    DeviceSession session;
    QWidget pane;
    PanelOperations operations{};
    PMPDEContext context = nullptr;
    QStringList question; // header and message of the last one
};

} // namespace

class TestSpecialPagesPanel : public QObject
{
    Q_OBJECT

private slots:
    void answersAsItsProtocolSays();
    void saysOnStandardOutputWhyItIsEmpty_data();
    void saysOnStandardOutputWhyItIsEmpty();
    void listsPagesInTheirOrder();
    void describesPages_data();
    void describesPages();
    void lastOneSelectedSaysWhetherItMoves();
    void asksBeforeItDeletes();
    void movesOneAfterTheOtherAndUndoesOnce();
    void carriesPagesThroughTheTicket();
    void keepsPagesAndUndoThatTheTicketHas();
    void selectsNoPageThatCameInAnothersPlace();
    void everyAlertHasItsTexts_data();
    void everyAlertHasItsTexts();
};

void TestSpecialPagesPanel::answersAsItsProtocolSays()
{
    Panel panel;
    const PanelOperations &call = panel.operations;
    PrintSession *session = &panel.session.session;
    QVERIFY(_specialPagesContext);
    QCOMPARE(_specialPagesContext->title, QStringLiteral("Special Pages"));
    QCOMPARE(GetSpecialPagesPanelInterface(nullptr), paramErr);
    SummaryArray titles = QStringList("kept"), texts = titles;
    for (const OSStatus status :
         {call.Initialize(nullptr, nullptr, nullptr, &panel.pane, session),
          call.Initialize(panel.context, nullptr, nullptr, nullptr, session),
          call.Initialize(panel.context, nullptr, nullptr, &panel.pane, nullptr),
          call.Sync(nullptr, session, kSyncRead), call.Open(nullptr), call.Close(nullptr),
          call.GetSummaryText(nullptr, &titles, &texts), call.Terminate(nullptr, noErr)})
        QCOMPARE(status, kPMInvalidPDEContext);

    panel.begin();
    QCOMPARE(call.Close(panel.context), noErr);
    QCOMPARE(call.Open(panel.context), kPMInvalidPDEContext);
    QVERIFY(panel.find(1000)->isVisible());
    QCOMPARE(call.GetSummaryText(panel.context, &titles, &texts), noErr);
    QVERIFY(!titles && !texts);
    QString text;
    QCOMPARE(
        SpecialPagesListItemDataCallback(panel.data(), insertAfter(1), fourCharCode("SIZE"), &text),
        -4979);
    // A cover that is neither the front nor the back one has no place.
    QCOMPARE(SpecialPagesListItemDataCallback(panel.data(), Cover(), kPropertyPages, &text), noErr);
    QCOMPARE(text, QString());
    panel.end();
    QVERIFY(!_specialPagesContext);
}

void TestSpecialPagesPanel::saysOnStandardOutputWhyItIsEmpty_data()
{
    QTest::addColumn<QByteArray>("description"); // null: none
    QTest::addColumn<QByteArray>("message");

    QTest::newRow("no description")
        << QByteArray() << QByteArray("!! Failed to load nib from bundle.\n");
    QTest::newRow("a damaged one")
        << QByteArray("<ui") << QByteArray("!! Failed to create window from nib.\n");
    QTest::newRow("one without the pane")
        << QByteArray("<ui version=\"4.0\"><widget class=\"QWidget\" name=\"w\"/></ui>")
        << QByteArray("!! Failed to get user pane control reference.\n");
    QTest::newRow("one with an empty pane")
        << QByteArray("<ui version=\"4.0\"><widget class=\"QWidget\" name=\"w\"><property "
                      "name=\"controlID\" stdset=\"0\"><string notr=\"true\">KPDE "
                      "1</string></property></widget></ui>")
        << QByteArray("!! Failed to get control reference.\n");
}

void TestSpecialPagesPanel::saysOnStandardOutputWhyItIsEmpty()
{
    QFETCH(QByteArray, description);
    QFETCH(QByteArray, message);
    Panel panel;
    // A bundle of its own, with nothing but that description.
    const QTemporaryDir folder;
    const QString resources = folder.filePath("Test.pde/Resources/dialogs/SpecialPages");
    QVERIFY(QDir().mkpath(resources));
    const auto write = [](const QString &path, const QByteArray &bytes) {
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    };
    write(folder.filePath("Test.pde/Info.plist"),
          "<plist version=\"1.0\"><dict><key>CFBundleIdentifier</key><string>"
              + folder.path().toUtf8() + "</string></dict></plist>");
    if (!description.isNull())
        write(resources + "/SpecialPages.ui", description);
    const auto opened = Bundle::open(folder.filePath("Test.pde"));
    QVERIFY(opened);
    panel.data().bundle = opened.value();
    QCOMPARE(panel.operations.Initialize(panel.context, nullptr, nullptr, &panel.pane,
                                         &panel.session.session),
             noErr);

    std::fflush(stdout);
    const int terminal = ::dup(STDOUT_FILENO);
    QFile out(folder.filePath("out"));
    QVERIFY(out.open(QIODevice::ReadWrite));
    ::dup2(out.handle(), STDOUT_FILENO);
    const OSStatus status = panel.operations.Open(panel.context);
    std::fflush(stdout);
    ::dup2(terminal, STDOUT_FILENO);
    ::close(terminal);

    QVERIFY(status != noErr);
    out.seek(0);
    const QByteArray said = out.readAll();
    QVERIFY2(said.endsWith(message), said.constData());
    const auto *label = panel.pane.findChild<QLabel *>("panelNotMade");
    QVERIFY(label && label->text().contains("SpecialPages/SpecialPages"));
    // It goes on without its pane.
    QCOMPARE(panel.sync(kSyncWrite), noErr);
}

void TestSpecialPagesPanel::listsPagesInTheirOrder()
{
    Panel panel;
    panel.begin();
    QCOMPARE(panel.rows(), QString());
    addTo(panel.data().settings.inserts, insertAfter(5), insertAfter(3), insertAfter(0));
    addTo(panel.data().settings.exceptions, exceptionOf(3, 5), exceptionOf(1, 1));
    panel.data().settings.frontCover.emplace();
    panel.data().settings.backCover.emplace();
    panel.refill();
    QCOMPARE(panel.rows(),
             QStringLiteral("Front Cover · Before page 1 Insert · 1 Exception · 3-5 Exception"
                            " · 3 Insert · 5 Insert · Back Cover"));

    // What is selected stays so, wherever it moves to.
    panel.select({3, 6});
    addTo(panel.data().settings.inserts, insertAfter(1));
    panel.refill();
    QCOMPARE(panel.data().list->selectedRows(), (std::vector<int>{3 - 1, 6}));
}

void TestSpecialPagesPanel::describesPages_data()
{
    QTest::addColumn<std::shared_ptr<SpecialPage>>("page");
    QTest::addColumn<QString>("text");
    const auto row = [](const char *name, auto page, const char *text) {
        using Page = decltype(page);
        QTest::newRow(name) << std::shared_ptr<SpecialPage>(std::make_shared<Page>(page))
                            << QString::fromUtf8(text);
    };
    const auto insertOn = [](const auto &change) {
        Insert insert = insertAfter(2, 3);
        change(insert.stock());
        return insert;
    };

    Cover cover;
    cover.stock().setSource(1);
    row("a cover from a tray", cover, "Blank or preprinted");
    cover.setSidesImaged(kCoverPrinted);
    cover.stock().setSource(kUnset);
    cover.stock().setCustomName("Card");
    row("a printed cover of named stock", cover,
        "Name: Card; Printed; White; No paper source: left out");
    row("an insert", insertAfter(2, 3), "Sheets [3]");
    row("from the inserter", insertOn([](Stock &stock) {
            stock.setSource(kStockSourceInserter);
            stock.setColor(kBlue);
        }),
        "Sheets [3]; Post-print inserter");
    row("size, colour and type", insertOn([](Stock &stock) {
            stock.setSize(4);
            stock.setColor(kBlue);
            stock.setType(kStockTypeStandard);
        }),
        "Sheets [3]; A4 (210 × 297 mm); Blue; Plain");
    row("ordered, in a colour of its own", insertOn([](Stock &stock) {
            stock.setColor(kStockColorCustom);
            stock.setCustomColor("Teal");
            stock.setType(kStockTypeOrdered);
            stock.setCustomType("Maps");
            stock.setModulus(4);
        }),
        "Sheets [3]; Teal; Maps (4)");
    row("tabs", insertOn([](Stock &stock) {
            stock.setType(kStockTypeTab);
            stock.setModulus(5);
        }),
        "Sheets [3]; Tab Stock (5)");
    row("a colour that the device does not have",
        insertOn([](Stock &stock) { stock.setColor(4711); }), "Sheets [3]");

    ExceptionPage exception = exceptionOf(1, 2);
    row("an exception that differs in nothing", exception, "Use job setting");
    exception.setPlex(3);
    exception.setLightenDarken(-2);
    row("an exception's sides and image", exception,
        "2-sided print, flip on short edge; Lighten 2");
    row("an exception without a last page", ExceptionPage(Dictionary{{"StartPage", 5}}),
        "Covers no page");
    row("an exception before page 1", ExceptionPage(Dictionary{{"SidesImaged", 1}}),
        "1-sided print; Covers no page");
}

void TestSpecialPagesPanel::describesPages()
{
    QFETCH(std::shared_ptr<SpecialPage>, page);
    Panel panel;
    panel.begin();
    if (dynamic_cast<const Cover *>(page.get()))
        panel.data().settings.frontCover.emplace(static_cast<const Cover &>(*page));
    else if (dynamic_cast<const Insert *>(page.get()))
        addTo(panel.data().settings.inserts, *page);
    else
        addTo(panel.data().settings.exceptions, *page);
    panel.refill();
    QTEST(panel.data().list->cellText(0, 2), "text");
}

void TestSpecialPagesPanel::lastOneSelectedSaysWhetherItMoves()
{
    Panel panel;
    panel.begin();
    QCOMPARE(panel.enabled(), QStringLiteral("000000"));
    addTo(panel.data().settings.inserts, insertAfter(3, 1), insertAfter(3, 2), insertAfter(4));
    addTo(panel.data().settings.exceptions, exceptionOf(3, 3));
    panel.refill(); // exception 3, three inserts
    QCOMPARE(panel.enabled(), QStringLiteral("001000"));
    const std::pair<std::vector<int>, const char *> selections[] = {
        {{1}, "111000"},    {{2}, "111001"},    {{3}, "111010"},   {{4}, "111000"},
        {{3, 4}, "011000"}, {{2, 3}, "011010"}, {{1, 2}, "011001"}};
    for (const auto &[rows, enabled] : selections) {
        panel.select(rows);
        QCOMPARE(panel.enabled(), QLatin1String(enabled));
    }
}

void TestSpecialPagesPanel::asksBeforeItDeletes()
{
    Panel panel;
    panel.begin();
    addTo(panel.data().settings.inserts, insertAfter(3), insertAfter(4));
    addTo(panel.data().settings.exceptions, exceptionOf(5, 6));
    panel.data().settings.frontCover.emplace();
    panel.refill();
    const QString all = panel.rows();

    panel.select({1, 3});
    panel.press(1300, 1);
    const auto text = [&panel](const char *key) {
        return localizedText(panel.session.bundle, QLatin1String(key));
    };
    QCOMPARE(
        panel.question,
        QStringList({text("Delete Special Pages Title"), text("Delete Selected Special Pages")}));
    QCOMPARE(panel.rows(), all);
    QVERIFY(panel.find(1500)->isEnabled()); // saved before the question
    panel.press(1500);
    QCOMPARE(panel.rows(), all);

    panel.select({1, 3});
    panel.press(1300, 2);
    QCOMPARE(panel.rows(), QStringLiteral("3 Insert · 5-6 Exception"));
    panel.press(1400, 2);
    QCOMPARE(panel.question.value(1), text("Delete All Special Pages"));
    QCOMPARE(panel.rows(), QString());
    panel.press(1500);
    QCOMPARE(panel.rows(), QStringLiteral("3 Insert · 5-6 Exception"));
}

void TestSpecialPagesPanel::movesOneAfterTheOtherAndUndoesOnce()
{
    Panel panel;
    panel.begin();
    addTo(panel.data().settings.inserts, insertAfter(3, 1), insertAfter(3, 2), insertAfter(3, 3));
    panel.refill();
    const auto quantities = [&panel] {
        QString texts;
        for (int i = 0; i < panel.data().settings.inserts.count(); ++i)
            texts += QString::number(panel.data().settings.inserts.pageAtIndex(i)->quantity());
        return texts;
    };
    panel.select({1, 2}); // the first cannot, and the second passes it
    panel.press(1600);
    QCOMPARE(quantities(), QStringLiteral("213"));
    QCOMPARE(panel.data().list->selectedRows(), (std::vector<int>{0, 1}));
    panel.press(1500);
    QCOMPARE(quantities(), QStringLiteral("123"));
    QVERIFY(!panel.find(1500)->isEnabled());
    panel.select({1, 2}); // each passes the other; that can be undone as well
    panel.press(1700);
    QCOMPARE(quantities(), QStringLiteral("123"));
    QVERIFY(panel.find(1500)->isEnabled());
    panel.select({2});
    panel.press(1700);
    QCOMPARE(quantities(), QStringLiteral("132"));
    QCOMPARE(panel.data().list->selectedRows(), (std::vector<int>{2}));
}

void TestSpecialPagesPanel::carriesPagesThroughTheTicket()
{
    const QString insertsKey = ticketKey("SpecialPages.InsertList");
    const QString exceptionsKey = ticketKey("SpecialPages.ExceptionList");
    Panel panel;
    panel.begin();
    const PMTicketRef ticket = panel.session.settings();
    addTo(panel.data().settings.inserts, insertAfter(3, 2));
    addTo(panel.data().settings.exceptions, exceptionOf(5, 6));
    panel.data().settings.frontCover.emplace();
    panel.data().settings.frontCover->stock().setSource(2);
    QCOMPARE(panel.sync(kSyncWrite), noErr);
    QCOMPARE(panel.session.choice("KVFrontCoverSheet"), QStringLiteral("Tray2"));
    QCOMPARE(panel.session.choice("KVBackCoverSheet"), QStringLiteral("None"));
    const auto inserts = PMTicketGetCFArray(ticket, insertsKey);
    QVERIFY(inserts && PMTicketGetCFArray(ticket, exceptionsKey));
    QCOMPARE(inserts->first().toMap().value("Quantity"), QVariant(qint64(2)));

    // Another ticket, with what nobody checked in it.
    Array others{*inserts, 7, Dictionary{{"StartPage", 1}}, *inserts};
    others.pop_front();
    others.push_back(insertAfter(9).asTicket());
    PMTicketSetCFArray(ticket, "test", insertsKey, others);
    PMTicketReleaseItem(ticket, exceptionsKey);
    PMTicketSetCFDictionary(ticket, "test", ticketKey("JobLevelStock"), {{"Color", kBlue}});
    // Another direction moves nothing, covers neither.
    panel.data().settings.frontCover->stock().setSource(1);
    QCOMPARE(panel.sync(7), noErr);
    QCOMPARE(panel.rows(), QString());
    QCOMPARE(panel.data().settings.frontCover->stock().source(), 1);
    QCOMPARE(panel.session.choice("KVFrontCoverSheet"), QStringLiteral("Tray2"));
    QCOMPARE(panel.sync(kSyncRead), noErr);
    QCOMPARE(panel.rows(), QStringLiteral("Front Cover · 1 Insert · 9 Insert"));
    QCOMPARE(panel.data().settings.jobStock->color(), kBlue);

    panel.data().settings.inserts.clear();
    panel.data().settings.frontCover.reset();
    panel.sync(kSyncWrite);
    QVERIFY(!PMTicketGetCFArray(ticket, insertsKey) && !PMTicketGetCFArray(ticket, exceptionsKey));
    PMTicketReleaseItem(ticket, ticketKey("JobLevelStock"));
    panel.sync(kSyncRead);
    QVERIFY(!panel.data().settings.jobStock);
}

void TestSpecialPagesPanel::keepsPagesAndUndoThatTheTicketHas()
{
    Panel panel;
    panel.begin();
    addTo(panel.data().settings.inserts, insertAfter(3), insertAfter(4));
    panel.refill();
    panel.select({2});
    panel.press(1300, 1); // declined: there is something to undo
    panel.sync(kSyncWrite);
    panel.sync(kSyncRead);
    QCOMPARE(panel.data().list->selectedRows(), (std::vector<int>{1}));
    QVERIFY(panel.find(1500)->isEnabled());
    PMTicketSetCFArray(panel.session.settings(), "test", ticketKey("SpecialPages.InsertList"),
                       {insertAfter(9).asTicket()});
    panel.sync(kSyncRead);
    QCOMPARE(panel.rows(), QStringLiteral("9 Insert"));
    QVERIFY(!panel.find(1500)->isEnabled());
}

void TestSpecialPagesPanel::selectsNoPageThatCameInAnothersPlace()
{
    Panel panel;
    panel.begin();
    for (auto *cover : {&panel.data().settings.frontCover, &panel.data().settings.backCover}) {
        cover->emplace().stock().setSource(1);
    }
    panel.sync(kSyncWrite);
    panel.refill();
    panel.select({1});
    panel.sync(kSyncRead); // both are made anew, the back one where the front one was
    QCOMPARE(panel.rows(), QStringLiteral("Front Cover · Back Cover"));
    QVERIFY(panel.data().list->selectedRows().empty());
}

void TestSpecialPagesPanel::everyAlertHasItsTexts_data()
{
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("title"); // keys; none: nothing is shown
    QTest::addColumn<QString>("message");

    const auto row = [](int code, const char *title, const char *message) {
        QTest::addRow("%d", code) << code << title << message;
    };
    row(1000, "Page Number Limit Title", "Page Number Limit");
    row(1001, "Invalid Pages Title", "Invalid Page Ranges");
    row(1002, "Invalid Ranges Title", "Invalid Range Order");
    row(1003, "Invalid Page Numbers Title", "Invalid Page Numbers Message");
    row(1234, "PageRangeConflictTitle", "PageRangeConflictMessage");
    row(1004, "", "");
}

void TestSpecialPagesPanel::everyAlertHasItsTexts()
{
    QFETCH(int, code);
    QFETCH(QString, title);
    QFETCH(QString, message);
    const Panel panel;
    ShownNotice shown;
    QTimer::singleShot(0, [&shown] {
        shown = frontNotice();
        answerNotice(1);
    });
    SpecialPagesUserNotification(code, panel.session.bundle);
    QCoreApplication::processEvents(); // the timer of what shows nothing
    const auto text = [&panel](const QString &key) {
        return key.isEmpty() ? QString() : localizedText(panel.session.bundle, key);
    };
    QCOMPARE(shown.header, text(title));
    QCOMPARE(shown.message, text(message).replace("%1", "5")); // digits of 99999
}

QTEST_MAIN(TestSpecialPagesPanel)
#include "test_special_pages_panel.moc"
