#include "driven_panel.h"
#include "embed_control.h"
#include "image_options_panel.h"
#include "image_options_view.h"
#include "invert_image_controls.h"
#include "printed_example.h"
#include "table.h"
#include "ticket.h"
#include "ticket_values.h"

#include <QCheckBox>
#include <QLabel>
#include <QSlider>
#include <QTest>

using namespace kelvo;

namespace {

const QString kInvertKey = QStringLiteral("com.kelvo.print.InvertImageOptions");

// The panel of the full sample device, in front of its user.
struct Panel : DrivenPanel
{
    Panel()
        : DrivenPanel(GetImageOptionsPanelInterface, QStringLiteral("full"))
    {
    }
};

} // namespace

class TestImageOptionsPanel : public QObject
{
    Q_OBJECT

private slots:
    void answersAsEveryPanel();
    void invertsWhereAWindowHasTheControls_data();
    void invertsWhereAWindowHasTheControls();
    void showsAnExampleOfThePrint();
};

void TestImageOptionsPanel::answersAsEveryPanel()
{
    Panel panel;
    QCOMPARE(panel.creator, kShellSignature);
    QCOMPARE(panel.kind, kPDEPanelKind);
    QCOMPARE(panel.title, QStringLiteral("Image Options"));
    const PanelOperations &call = panel.operations;
    PrintSession *session = &panel.session.session;
    QCOMPARE(GetImageOptionsPanelInterface(nullptr), paramErr);
    QCOMPARE(call.Initialize(nullptr, nullptr, nullptr, &panel.pane, session),
             kPMInvalidPDEContext);
    QCOMPARE(call.Initialize(panel.context, nullptr, nullptr, &panel.pane, nullptr),
             kPMInvalidPDEContext);
    QCOMPARE(call.Sync(nullptr, session, kSyncRead), kPMInvalidParameter);
    QCOMPARE(call.Sync(panel.context, nullptr, kSyncRead), kPMInvalidParameter);
    QCOMPARE(call.Open(panel.context), kPMInvalidPDEContext); // no pane yet
    QCOMPARE(call.Open(nullptr), kPMInvalidPDEContext);
    QCOMPARE(call.Close(nullptr), kPMInvalidPDEContext);
    QCOMPARE(call.Terminate(nullptr, noErr), kPMInvalidPDEContext);

    // Before it is opened it says nothing of the lightness.
    QCOMPARE(panel.initialize(), noErr);
    QCOMPARE(panel.sync(kSyncWrite), noErr);
    QCOMPARE(panel.session.choice(QStringLiteral("KVImageQuality")), QString());
    QCOMPARE(panel.session.choice(QStringLiteral("KVEconomode")), QStringLiteral("None"));
    panel.begin();
    auto *field = panel.find<SpinField>(1104);
    QCOMPARE(call.Open(panel.context), noErr); // once is enough
    QCOMPARE(panel.find<SpinField>(1104), field);
    QCOMPARE(panel.find<QLabel>(1106)->text(), QStringLiteral("-5"));
    QCOMPARE(panel.find<QLabel>(1108)->text(), QStringLiteral("+5"));
}

void TestImageOptionsPanel::invertsWhereAWindowHasTheControls_data()
{
    // controls: Kshl; negative: what is written
    const Table<QList<std::int32_t>, bool, bool> row{"controls", "negative", "mirror"};

    row("none", QList<std::int32_t>(), false, false);
    row("mirror", QList{910, 912}, false, true);
    row("both", QList{910, 911, 912}, true, true);
    row("without group", QList{911}, true, false);
}

void TestImageOptionsPanel::invertsWhereAWindowHasTheControls()
{
    QFETCH(QList<std::int32_t>, controls);
    QFETCH(bool, negative);
    QFETCH(bool, mirror);
    const DeviceSession session(QStringLiteral("full"));
    QWidget window, pane;
    QWidget *parent = &window;
    for (const std::int32_t number : controls) {
        QWidget *control = number == 910 ? new QWidget(&window) : new QCheckBox(parent);
        setControlID(control, {kShellSignature, number});
        if (number == 910)
            parent = control;
    }
    InvertImageContext context;
    II_Options options{.valid = false, .negative = true, .mirror = true};
    InvertImageInitialize(&context, &options);
    QCOMPARE(options, (II_Options{true, false, false}));
    QCOMPARE(InvertImageOpen(session.bundle, &window, &pane, &context, nullptr), paramErr);
    QCOMPARE(InvertImageOpen(session.bundle, &window, &pane, &context, &options), noErr);
    QVERIFY(window.findChildren<QCheckBox *>().isEmpty());

    QCOMPARE(InvertImageSync(&context, nullptr, kSyncWrite, session.settings()),
             kPMInvalidParameter);
    QCOMPARE(InvertImageSync(&context, &options, kSyncWrite, session.settings()), noErr);
    QCOMPARE(options, (II_Options{true, negative, mirror}));
    QCOMPARE(PMTicketGetCFDictionary(session.settings(), kInvertKey),
             (Dictionary{{"NegativeImage", qint64(negative)}, {"MirrorImage", qint64(mirror)}}));

    // Read, they are what the ticket says, and the controls show it.
    PMTicketReleaseItem(session.settings(), kInvertKey);
    QCOMPARE(InvertImageSync(&context, &options, kSyncRead, session.settings()), noErr);
    QCOMPARE(options, (II_Options{true, false, false}));
    PMTicketSetCFDictionary(session.settings(), QStringLiteral("test"), kInvertKey,
                            {{"NegativeImage", 1}, {"MirrorImage", 1}});
    QCOMPARE(InvertImageSync(&context, &options, kSyncRead, session.settings()), noErr);
    for (const QCheckBox *box : pane.findChildren<QCheckBox *>())
        QVERIFY(box->isChecked());
    InvertImageTerminate(&context);
    QVERIFY(!context.group && !context.negative && !context.mirror);
}

// The light of an image on average, from 0 to 255.
double lightOf(const QImage &image)
{
    return qGray(image.scaled(1, 1, Qt::IgnoreAspectRatio, Qt::SmoothTransformation).pixel(0, 0));
}

void TestImageOptionsPanel::showsAnExampleOfThePrint()
{
    Panel panel;
    panel.pane.resize(560, 470);
    panel.begin();
    auto *view = panel.find<DrawingView>(2201);
    const auto shown = [view] { return view->grab().toImage(); };
    const QImage plain = shown();
    QVERIFY(!plain.allGray());

    auto *slider = panel.find<QSlider>(1102);
    QTest::keyClick(slider, Qt::Key_End);
    QVERIFY(lightOf(shown()) < lightOf(plain));
    QTest::keyClick(slider, Qt::Key_Home);
    QVERIFY(lightOf(shown()) > lightOf(plain));
    QVERIFY(view->accessibleDescription().contains(QStringLiteral("Lighten 5")));
    panel.find<SpinField>(1104)->setValue(0);
    panel.find<PopupButton>(1202)->choose(2); // the panel takes the field, and shows all again
    panel.find<PopupButton>(1202)->choose(1);
    panel.find<QCheckBox>(2103)->click();
    QVERIFY(shown() != plain);
    panel.find<QCheckBox>(2103)->click();
    QCOMPARE(shown(), plain);

    // Said, though the page looks the same.
    QVERIFY(panel.find<PopupButton>(1902)->choose(3));
    const QString source = panel.find<PopupButton>(1902)->shownText();
    QVERIFY2(view->accessibleDescription().contains(source), qPrintable(source));
    QCOMPARE(shown(), plain);

    // What another panel has chosen, read when this one is shown.
    panel.session.session.printSettings().ppdChoices.insert(QStringLiteral("KVColorMode"),
                                                            QStringLiteral("Grayscale"));
    QCOMPARE(panel.sync(kSyncRead), noErr);
    QVERIFY(shown().allGray());

    // Lying or standing, whichever is larger.
    for (const QSizeF room : {QSizeF(260, 180), QSizeF(260, 400)}) {
        const QSizeF page = printedExampleSize(room);
        QCOMPARE(page.width() > page.height(), room.width() > room.height());
        QVERIFY(page.boundedTo(room) == page);
    }
}

QTEST_MAIN(TestImageOptionsPanel)
#include "test_image_options_panel.moc"
