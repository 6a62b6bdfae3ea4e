#include "driven_panel.h"
#include "mnemonics.h"
#include "special_pages_context.h"
#include "special_pages_panel.h"
#include "special_pages_view.h"
#include "ticket.h"
#include "ticket_values.h"

#include <QAbstractButton>
#include <QLabel>
#include <QTest>

using namespace kelvo;

namespace {

Insert insertAfter(std::int32_t page, std::int32_t quantity = 1)
{
    Insert insert;
    insert.stock().setColor(kUnset);
    insert.setStartPage(page);
    insert.setQuantity(quantity);
    return insert;
}

// The panel of the full sample device.
struct Panel : DrivenPanel
{
    Panel()
        : DrivenPanel(GetSpecialPagesPanelInterface, QStringLiteral("full"))
    {
    }
    _SpecialPagesContext &data() { return *_specialPagesContext; }
};

} // namespace

class TestSpecialPagesPanel : public QObject
{
    Q_OBJECT

private slots:
    void answersAsItsProtocolSays();
    void theWordsBesideAButtonPressIt();
    void forgetsTheUndoOfAnotherTicket();
};

void TestSpecialPagesPanel::answersAsItsProtocolSays()
{
    Panel panel;
    const PanelOperations &call = panel.operations;
    QVERIFY(_specialPagesContext);
    QCOMPARE(_specialPagesContext->title, QStringLiteral("Special Pages"));
    PrintSession *session = &panel.session.session;
    QCOMPARE(call.Sync(nullptr, session, kSyncRead), kPMInvalidPDEContext);
    QCOMPARE(call.Initialize(panel.context, nullptr, nullptr, nullptr, session),
             kPMInvalidPDEContext);

    SummaryArray titles = QStringList("kept"), texts = titles;
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

void TestSpecialPagesPanel::theWordsBesideAButtonPressIt()
{
    Panel panel;
    panel.begin();
    QList<std::int32_t> hits;
    const auto handler =
        installEventHandler(panel.data().content, [&hits](const Event &event) -> OSStatus {
            if (event.kind != EventKind::ControlHit)
                return eventNotHandledErr;
            hits << event.control.number;
            return noErr;
        });
    for (const std::int32_t number : {100, 200, 300}) {
        auto *button = panel.find<QAbstractButton>(number);
        auto *label = panel.find<QLabel>(number + 1);
        QTest::mouseClick(label, Qt::LeftButton);
        QTest::mouseDClick(label, Qt::LeftButton); // soon after that
        QTest::mouseRelease(label, Qt::LeftButton);
        QCOMPARE(std::exchange(hits, {}), QList<std::int32_t>(2, number));
        QVERIFY(button->hasFocus() || !panel.pane.isActiveWindow());

        QTest::mousePress(label, Qt::LeftButton);
        QVERIFY(button->isDown());
        QTest::mouseMove(label, {-500, -500});
        QVERIFY(!button->isDown());
        QTest::mouseRelease(label, Qt::LeftButton, {}, {-500, -500});
        QTest::mouseClick(label, Qt::RightButton);
        button->setEnabled(false);
        QVERIFY(!label->isEnabled());
        QTest::mouseClick(label, Qt::LeftButton);
        button->setEnabled(true);
        QVERIFY(label->isEnabled());
        QCOMPARE(hits, QList<std::int32_t>());
        QCOMPARE(button->accessibleName(), withoutMnemonic(label->text()));
    }
}

// The ticket's own pages stay what they are, and can be undone; others are no undo's.
void TestSpecialPagesPanel::forgetsTheUndoOfAnotherTicket()
{
    Panel panel;
    panel.begin();
    const Insert insert = insertAfter(3), other = insertAfter(9);
    const SpecialPage *const pages[] = {&insert};
    panel.data().settings.inserts.add(pages);
    SaveUndoState(&panel.data());
    for (const bool isAnother : {false, true}) {
        QCOMPARE(panel.sync(kSyncWrite), noErr);
        if (isAnother)
            PMTicketSetCFArray(panel.session.settings(), "test",
                               ticketKey("SpecialPages.InsertList"), {other.asTicket()});
        panel.sync(kSyncRead);
        QCOMPARE(panel.data().undo.has_value(), !isAnother);
        QCOMPARE(panel.data().settings.inserts.pageAtIndex(0)->startPage(), isAnother ? 9 : 3);
    }
    // Another direction moves nothing.
    panel.data().settings.inserts.clear();
    QCOMPARE(panel.sync(7), noErr);
    QCOMPARE(panel.data().settings.inserts.count(), 0);
}

QTEST_MAIN(TestSpecialPagesPanel)
#include "test_special_pages_panel.moc"
