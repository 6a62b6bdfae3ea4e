#include "driven_dialog.h"

#include "bundle.h"
#include "files.h"
#include "panel_interface.h"
#include "picture_view.h"
#include "popup_button.h"
#include "sample_ppds.h"
#include "summary_view.h"
#include "table.h"
#include "ticket.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QWheelEvent>

#include <malloc.h>

using namespace kelvo;

namespace {

constexpr std::int32_t kJobType = 102, kTwoSided = 110, kStapling = 113, kHolePunch = 116,
                       kOutputColor = 119, kOutputDestination = 126, kBanner = 614,
                       kOffset = 616; // the last two of the Advanced panel
const QList<std::int32_t> kPopups = {kJobType,   kTwoSided,    kStapling,
                                     kHolePunch, kOutputColor, kOutputDestination};

// While it lives, whatever window opens is cancelled at once.
class WindowCloser
{
public:
    WindowCloser()
    {
        QObject::connect(&m_timer, &QTimer::timeout, [this] {
            if (auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget())) {
                m_closed << dialog->objectName();
                dialog->reject();
            }
        });
        m_timer.start();
    }

    const QStringList &closed() const { return m_closed; }

private:
    QTimer m_timer;
    QStringList m_closed;
};

// The panel of one sample device, or of a PPD file, in front of its user.
class Panel : public DrivenDialog
{
public:
    Panel(PlugInFactoryFunction factory, const QString &device, const Panel *before = nullptr)
        : DrivenDialog(factory, device.endsWith(QLatin1String(".ppd")) ? device : samplePpd(device))
    {
        if (before) {
            session.printSettings() = before->session.printSettings();
            session.pageFormat() = before->session.pageFormat();
        }
        isUp = begin();
    }

    PopupButton *popup(std::int32_t number) { return find<PopupButton>(kPanelSignature, number); }
    QString summary(std::int32_t number)
    {
        return find<SummaryView>(kPanelSignature, number)->toPlainText();
    }
    // What the controls show, in one text.
    QString shown()
    {
        QStringList values;
        for (const std::int32_t number : kPopups)
            values << QStringLiteral("%1=%2").arg(number).arg(popup(number)->chosenReference());
        return values.join(u' ') + u'\n' + summary(107) + u'\n' + summary(127);
    }
    QString choice(const QString &option)
    {
        return session.printSettings().ppdChoices.value(option);
    }

    bool isUp = false;
};

} // namespace

class TestPaperOutputPanel : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();

    void showsAgainWhatItWrote_data();
    void showsAgainWhatItWrote();
    void opensAgainAfterItWasClosed();
    void aJobTypeIsChosenInItsListAlone();
    void offersWhatTheDeviceCanDo_data();
    void offersWhatTheDeviceCanDo();
    void saysWhatTheDeviceDoesNotOffer();
    void drawsWhatComesOut();
    void summarizesForTheDialog();
    void doesNotGrow();

private:
    // A sample device's PPD in which `line`, a pattern, is another one.
    QString changedPpd(const QString &device, const QString &line, const QString &other)
    {
        const QString path = m_folder.filePath(QStringLiteral("changed.ppd"));
        QString text = QString::fromUtf8(bytesOf(samplePpd(device)));
        putFile(path, text.replace(QRegularExpression(line), other).toUtf8());
        return path;
    }

    PlugInFactoryFunction m_factory = nullptr;
    Bundle *m_bundle = nullptr;
    QTemporaryDir m_folder;
};

void TestPaperOutputPanel::initTestCase()
{
    Result<Bundle *> bundle = Bundle::open(QStringLiteral(KELVO_BUILD_DIR "/lib/KelvoPDE.pde"));
    QVERIFY2(bundle, qPrintable(bundle.reason()));
    m_bundle = bundle.value();
    const auto factory =
        m_bundle->findFactory(QUuid::fromString(QLatin1String(kPDEPlugInTypeUUID)));
    QVERIFY(factory);
    m_factory = reinterpret_cast<PlugInFactoryFunction>(
        m_bundle->findFunction(factory->functionName.toLatin1().constData()));
    QVERIFY2(m_factory, qPrintable(m_bundle->loadError()));
}

void TestPaperOutputPanel::showsAgainWhatItWrote_data()
{
    const Table<QString> row{"device"};
    for (const char *device : {"full", "mid", "bare"})
        row(device, QString::fromLatin1(device));
}

// Every item of every pop-up.
void TestPaperOutputPanel::showsAgainWhatItWrote()
{
    QFETCH(QString, device);
    int shown = 0;
    for (const std::int32_t number : kPopups) {
        const std::size_t count = Panel(m_factory, device).popup(number)->menu().items.size();
        for (std::size_t row = 1; row <= count; ++row) {
            Panel panel(m_factory, device);
            QVERIFY(panel.isUp);
            PopupButton *popup = panel.popup(number);
            if (!popup->isEnabled())
                continue;
            const WindowCloser closer;
            QVERIFY(popup->choose(static_cast<int>(row)));
            const std::int32_t value = popup->chosenReference();
            const QString before = panel.shown();
            QCOMPARE(panel.sync(kSyncWrite), noErr);

            Panel again(m_factory, device, &panel);
            // One hole pattern is never written.
            const bool isException = number == kHolePunch && value == 2;
            if (!isException)
                QCOMPARE(again.shown(), before);
            QCOMPARE(again.sync(kSyncWrite), noErr);
            QCOMPARE(again.session.printSettings(), panel.session.printSettings());
            ++shown;
        }
    }
    QVERIFY(shown > 5);
}

void TestPaperOutputPanel::opensAgainAfterItWasClosed()
{
    Panel panel(m_factory, QStringLiteral("full"));
    // It was built and filled while the shell held drawing off.
    QVERIFY(panel.find<SummaryView>(kPanelSignature, 107)->updatesEnabled());
    QVERIFY(panel.popup(kTwoSided)->choose(2));
    const QString before = panel.shown();
    QCOMPARE(panel.close(), noErr);
    QVERIFY(!panel.popup(kTwoSided));
    QCOMPARE(panel.sync(kSyncWrite), noErr);
    QCOMPARE(panel.open(), noErr);

    QCOMPARE(panel.shown(), before);
    QVERIFY(panel.popup(kOutputColor)->choose(2));
    QCOMPARE(panel.sync(kSyncWrite), noErr);
    QCOMPARE(panel.choice(QStringLiteral("KVColorMode")), QStringLiteral("Grayscale"));
}

// Each opens its set-up, and no key or wheel on the closed pop-up may.
void TestPaperOutputPanel::aJobTypeIsChosenInItsListAlone()
{
    Panel panel(m_factory, QStringLiteral("full"));
    const WindowCloser closer;
    PopupButton *popup = panel.popup(kJobType);
    popup->setFocus();
    const auto list = [popup] { return popup->view(); };
    const std::int32_t before = popup->chosenReference();
    for (const Qt::Key key :
         {Qt::Key_Down, Qt::Key_Up, Qt::Key_PageDown, Qt::Key_PageUp, Qt::Key_End, Qt::Key_Home}) {
        QTest::keyClick(popup, key);
        QCOMPARE(popup->chosenReference(), before);
        QVERIFY2(list()->isVisible(), qPrintable(QKeySequence(key).toString()));
        QTest::keyClick(list(), Qt::Key_Escape);
        QVERIFY(!list()->isVisible());
    }
    // X gives a letter with Alt a text, too: it is a mnemonic, of another control.
    QKeyEvent mnemonic(QEvent::KeyPress, Qt::Key_Z, Qt::AltModifier, QStringLiteral("z"));
    QApplication::sendEvent(popup, &mnemonic);
    QVERIFY(!list()->isVisible());
    const QPointF middle = QRectF(popup->rect()).center();
    QWheelEvent wheel(middle, popup->mapToGlobal(middle), {}, {0, -120}, Qt::NoButton, {},
                      Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(popup, &wheel);
    QVERIFY(!list()->isVisible());
    QCOMPARE(popup->chosenReference(), before);
    QCOMPARE(closer.closed(), QStringList());

    QTest::keyClick(popup, Qt::Key_D); // looked up in the list, as typed there
    QCOMPARE(popup->chosenReference(), before);
    QTest::keyClick(list(), Qt::Key_Return);
    QCOMPARE(popup->chosenReference(), 7);
    QTRY_COMPARE(closer.closed(), QStringList(QStringLiteral("delayedPrintWindow")));
}

void TestPaperOutputPanel::offersWhatTheDeviceCanDo_data()
{
    // option: and another default for it, in the full device's PPD; offered: choices of the PPD
    const Table<QString, QString, std::int32_t, QString> row{"option", "choice", "popup",
                                                             "offered"};

    // A job may have another paper or tray than the one that the PPD begins with.
    const QString staples = "None SinglePortrait DualLandscape MultipleStaples";
    const QString holes = "None 2HolePunch 3HolePunch 4HolePunch";
    row("envelopes: offset", "PageSize", "EnvDL", kOffset, "None EndOfSet");
    row("labels: staples", "MediaType", "Labels", kStapling, staples);
    row("labels: holes", "MediaType", "Labels", kHolePunch, holes);
    row("bypass: banner", "InputSlot", "Bypass", kBanner, "False True");
    // What is not fitted cannot be asked for, whatever else the job says.
    row("no finisher", "KVFinisher", "None", kStapling, "None");
    row("single stapler", "KVFinisher", "AClass", kStapling, "None SinglePortrait MultipleStaples");
    row("two holes", "KVPunchUnit", "TwoHole", kHolePunch, "None 2HolePunch");
}

void TestPaperOutputPanel::offersWhatTheDeviceCanDo()
{
    QFETCH(QString, option);
    QFETCH(QString, choice);
    QFETCH(std::int32_t, popup);
    Panel panel(m_factory,
                changedPpd("full", QStringLiteral("\\*Default%1: \\w+").arg(option),
                           QStringLiteral("*Default%1: %2").arg(option, choice)));
    QVERIFY(panel.isUp);
    QStringList offered;
    for (const MenuItem &item : panel.popup(popup)->menu().items)
        offered << item.key;
    QTEST(offered.join(u' '), "offered");
}

// On every panel, and nothing of it is lost.
void TestPaperOutputPanel::saysWhatTheDeviceDoesNotOffer()
{
    const QMap<std::int32_t, std::pair<QString, QString>> choices = {
        {kTwoSided, {"Duplex", "DuplexTumble"}},
        {kStapling, {"StapleLocation", "Corner"}},
        {kHolePunch, {"KVPunch", "3HolePunch"}},
        {kOutputColor, {"KVColorMode", "Sepia"}},
        {kOutputDestination, {"OutputBin", "Lower"}},
        {kOffset, {"Jog", "EveryPage"}},
        {kBanner, {"JCLBanner", "Maybe"}},
        {1202, {"KVOutputMode", "HighSpeed"}},
        {1902, {"KVCMYKColorSpace", "SNAP"}},
        {2002, {"KVColorCorrection", "Vivid"}}};
    Panel panel(m_factory, changedPpd("mid", "\\*Duplex DuplexTumble.*\n", {}));
    QVERIFY(panel.isUp);
    PPDDictionary &ticket = panel.session.printSettings().ppdChoices;
    panel.session.printSettings() = {};
    for (const auto &[option, choice] : choices)
        ticket.insert(option, choice);
    QCOMPARE(panel.sync(kSyncRead), noErr);
    for (auto each = choices.cbegin(); each != choices.cend(); ++each) {
        const PopupButton *popup = panel.popup(each.key());
        QCOMPARE(QStringLiteral("%1 %2").arg(each.key()).arg(popup->shownText()),
                 QStringLiteral("%1 Not offered here").arg(each.key()));
        QVERIFY(popup->accessibleDescription().contains(QLatin1String("keeps it")));
    }
    QCOMPARE(panel.sync(kSyncWrite), noErr);
    for (const auto &[option, choice] : choices)
        QCOMPARE(ticket.value(option), choice);

    // The pop-ups say so no longer than the job does.
    for (auto each = choices.cbegin(); each != choices.cend(); ++each) {
        PopupButton *popup = panel.popup(each.key());
        if (!popup->isEnabled()) // of another tab
            continue;
        QVERIFY(popup->choose(1));
        QVERIFY(!popup->accessibleDescription().contains(QLatin1String("keeps it")));
    }
    QCOMPARE(panel.popup(kStapling)->shownText(), QStringLiteral("No staple"));
    QCOMPARE(panel.sync(kSyncWrite), noErr);
    QCOMPARE(ticket.value("StapleLocation"), QStringLiteral("None"));
}

void TestPaperOutputPanel::drawsWhatComesOut()
{
    Panel panel(m_factory, QStringLiteral("full"));
    const auto shown = [&panel] {
        return QStringList{panel.find<QLabel>(kPanelSignature, 132)->text(),
                           panel.find<QWidget>(kPanelSignature, 131)->accessibleDescription()};
    };
    // In lines for the eye, in one for the ear.
    const auto both = [](const QStringList &words) {
        return QStringList{words.join(u'\n'), words.join(QLatin1String("; "))};
    };
    QCOMPARE(shown(), both({"1-sided print"}));
    QVERIFY(panel.popup(kStapling)->choose(3));
    QVERIFY(panel.popup(kHolePunch)->choose(2));
    QCOMPARE(
        shown(),
        both({"1-sided print", "2 staples along the left edge", "2 holes along the left edge"}));
    // The picture beside the staples has the holes as well.
    QCOMPARE(panel.find<PictureView>(kPanelSignature, 114)->pictures().size(), 2);

    // The dialog turns the pages, and says so when it has the panels write.
    panel.session.pageFormat().entries[kPMOrientationKey].value = qint64(4);
    QCOMPARE(panel.sync(kSyncWrite), noErr);
    QCOMPARE(shown(),
             both({"1-sided print", "1 staple in the upper left corner",
                   "2 holes along the left edge"}));
}

// The shell's own answer is empty: its last panel takes the lines away. The
// panel's stands for dialogs that ask it alone.
void TestPaperOutputPanel::summarizesForTheDialog()
{
    DrivenDialog dialog(m_factory, samplePpd("mid"));
    const auto operations =
        findPanelOperations(*m_bundle, QStringLiteral("GetPaperOutputPanelInterface"));
    QVERIFY2(operations, qPrintable(operations.reason()));
    QVERIFY(dialog.begin());
    PMPDEContext context = nullptr;
    OSType creator = 0;
    CFStringRef kind = nullptr, title = nullptr;
    std::uint32_t width = 0, height = 0;
    QCOMPARE(operations.value().Prologue(&context, &creator, &kind, &title, &width, &height),
             noErr);
    QCOMPARE(creator, kPanelSignature);
    QWidget pane;
    QCOMPARE(operations.value().Initialize(context, nullptr, nullptr, &pane, &dialog.session),
             noErr);
    QCOMPARE(operations.value().Open(context), noErr);
    SummaryArray titles, texts;
    QCOMPARE(operations.value().GetSummaryText(context, &titles, &texts), noErr);
    QCOMPARE(titles->join(u'|'),
             QStringLiteral("Job type:|Paper:|Two-sided printing:|Output color:|Stapling:|"
                            "Hole punching:|Output destination:"));
    QCOMPARE(texts->join(u'|'),
             QStringLiteral("Normal|- White\n- Plain|1-sided print|Color|No staple|"
                            "No hole punch|Automatic"));
    QCOMPARE(operations.value().Terminate(context, noErr), noErr);
}

void TestPaperOutputPanel::doesNotGrow()
{
    Panel one(m_factory, QStringLiteral("full"));
    const Ticket plain = one.session.printSettings();
    QCOMPARE(one.sync(kSyncWrite), noErr);
    Ticket rich = one.session.printSettings();
    rich.ppdChoices = {{"MediaType", "Transparency"},
                       {"KVSlipSheetPrint", "Blank"},
                       {"KVFrontCoverSheet", "Tray2"},
                       {"StapleLocation", "MultipleStaples"}};
    const auto refill = [&](int times) {
        for (int i = 0; i < times; ++i) {
            one.session.printSettings() = i % 2 ? plain : rich;
            one.sync(kSyncRead);
        }
        QCoreApplication::processEvents();
    };
    refill(200);
    const auto before = mallinfo2().uordblks;
    refill(1000);
    const auto after = mallinfo2().uordblks;
    QVERIFY2(after < before + 50'000,
             qPrintable(QStringLiteral("%1 bytes before, %2 after").arg(before).arg(after)));
}

QTEST_MAIN(TestPaperOutputPanel)
#include "test_paper_output_panel.moc"
