#include "damaged_bundle.h"
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
    void keepsPagesAndUndoThatTheTicketHas();
    void selectsNoPageThatCameInAnothersPlace();
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
    const DamagedBundle damaged("SpecialPages/SpecialPages", description);
    panel.data().bundle = damaged.bundle;
    QCOMPARE(panel.operations.Initialize(panel.context, nullptr, nullptr, &panel.pane,
                                         &panel.session.session),
             noErr);

    std::fflush(stdout);
    const int terminal = ::dup(STDOUT_FILENO);
    QFile out(damaged.folder.filePath("out"));
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

void TestSpecialPagesPanel::keepsPagesAndUndoThatTheTicketHas()
{
    Panel panel;
    panel.begin();
    addTo(*panel.data().inserts, insertAfter(3), insertAfter(4));
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
    for (auto *cover : {&panel.data().frontCover, &panel.data().backCover}) {
        cover->emplace().stock().setSource(1);
    }
    panel.sync(kSyncWrite);
    panel.refill();
    panel.select({1});
    panel.sync(kSyncRead); // both are made anew, the back one where the front one was
    QCOMPARE(panel.rows(), QStringLiteral("Front Cover · Back Cover"));
    QVERIFY(panel.data().list->selectedRows().empty());
}

QTEST_MAIN(TestSpecialPagesPanel)
#include "test_special_pages_panel.moc"
