#include "cover_sheet.h"
#include "cover_sheet_dialog.h"
#include "device_session.h"
#include "dialog_steps.h"
#include "table.h"
#include "watermark_store.h"

#include <QThread>

using namespace kelvo;
using namespace dialog_steps;

// The cover sheet's dialog as its user drives it, with a preview that draws.
class TestCoverSheetDialog : public QObject
{
    Q_OBJECT

private slots:
    void aSenderComesFromTheOwnCardAndComesBack();
    void whatIsTypedIsNotReplacedByACardThatComesLater();
    void aCardThatCannotBeUsedSaysWhy_data();
    void aCardThatCannotBeUsedSaysWhy();
    void cancelKeepsTheOptionsAndWaitsForNoAddressBook();
    void thePreviewFollowsEveryLetter();
    void imagesAreMadeEditedAndDeleted();
    void anImageThatIsNotHereIsKept();
};

namespace {

using OwnCard = Result<std::optional<Person>>;

OwnCard annsCard()
{
    return std::optional(Person{.fullName = "Ann Lee",
                                .organization = "Kelvo",
                                .emailAddresses = {"ann@kelvo.example"},
                                .numbers = {{PersonNumber::Kind::Phone, "work", "555-1"},
                                            {PersonNumber::Kind::Fax, "work", "555-2"}}});
}

class CoverDialog : public DialogSteps
{
public:
    DialogResult run(const std::vector<Step> &steps)
    {
        return DialogSteps::run(
            [this] {
                return RunModalCoverSheetDialog(currentDevice(m_session.bundle), &options,
                                                recipients, notes, nullptr, card);
            },
            steps);
    }

    Dictionary options;
    FaxRecipientList recipients;
    QString notes;
    OwnCardReader card = [](AddressBook::Flag) { return annsCard(); };

private:
    DeviceSession m_session{QStringLiteral("full")};
};

QString shown(const char *name, const char *property = "text")
{
    const auto is = inspector::property(control(name), QLatin1String(property));
    return is ? is.value() : is.reason();
}

Step untilShown(const char *name, const QString &text)
{
    return until([=] { return shown(name) == text; });
}

const Step showSender = choose("coverSender", "Show Sender's Information");
const Step hideSender = choose("coverSender", "Hide Sender's Information");

} // namespace

void TestCoverSheetDialog::aSenderComesFromTheOwnCardAndComesBack()
{
    CoverDialog dialog;
    QCOMPARE(dialog.run({
                 expect("coverSenderName", "enabled", "false"),
                 expect("coverMyCard", "enabled", "false"),
                 expect("coverMyCardHint", "text", ""),
                 showSender,
                 untilShown("coverSenderName", "Ann Lee"),
                 expect("coverSenderOrganization", "text", "Kelvo"),
                 expect("coverSenderEmail", "text", "ann@kelvo.example"),
                 expect("coverSenderPhone", "text", "555-1"),
                 expect("coverSenderFax", "text", "555-2"),
                 type("coverSenderName", "Ann"),
                 hideSender,
                 expect("coverSenderName", "enabled", "false"),
                 showSender,
                 expect("coverSenderName", "text", "Ann"),
                 expect("coverCustomText", "enabled", "false"),
                 choose("coverRecipients", "Show Custom Text"),
                 expect("coverCustomText", "focus", "true"),
                 type("coverCustomText", "All offices"),
                 item("coverImage", "FwmA"),
                 click("okButton"),
             }),
             DialogResult::OK);
    QVERIFY(dialog.isDone());
    const Dictionary written{{"ShowSender", true},
                             {"SenderName", "Ann"},
                             {"SenderOrganization", "Kelvo"},
                             {"SenderEmailAddress", "ann@kelvo.example"},
                             {"SenderPhoneNumber", "555-1"},
                             {"SenderFaxNumber", "555-2"},
                             {"ShowRecipients", 3},
                             {"CustomRecipientText", "All offices"},
                             {"LocalizedToLabel", "To:"},
                             {"ShowWatermark", false},
                             {"Size", 4}};
    QCOMPARE(dialog.options, written);

    QCOMPARE(dialog.run({
                 expect("coverSenderName", "text", "Ann"),
                 expect("coverRecipients", "text", "Show custom text"),
                 expect("coverCustomText", "text", "All offices"),
                 expect("coverImageHint", "text", "Paper size: A4 (210 × 297 mm)"),
                 until([] { return shown("coverMyCard", "enabled") == "true"; }),
                 click("coverMyCard"),
                 expect("coverSenderName", "text", "Ann Lee"),
                 hideSender,
                 click("okButton"),
             }),
             DialogResult::OK);
    QVERIFY(dialog.isDone());
    QVERIFY(!dialog.options.contains("SenderName"));
}

void TestCoverSheetDialog::whatIsTypedIsNotReplacedByACardThatComesLater()
{
    CoverDialog dialog;
    std::atomic_bool mayCome = false;
    dialog.card = [&mayCome](AddressBook::Flag) {
        while (!mayCome)
            QThread::msleep(1);
        return annsCard();
    };
    QCOMPARE(dialog.run({
                 showSender,
                 expect("coverMyCardHint", "text", "Looking for your card in the address book…"),
                 type("coverSenderFax", "555-9"),
                 [&] { mayCome = true; },
                 untilShown("coverMyCardHint", ""),
                 expect("coverSenderName", "text", ""),
                 expect("coverSenderFax", "text", "555-9"),
                 click("coverMyCard"),
                 expect("coverSenderFax", "text", "555-2"),
                 click("cancelButton"),
             }),
             DialogResult::Cancel);
    QVERIFY(dialog.isDone());
}

void TestCoverSheetDialog::aCardThatCannotBeUsedSaysWhy_data()
{
    const Table<bool, QString> row{"hasBook", "hint"};
    row("no address book", false, "Your card cannot be used: install it.");
    row("no card", true,
        "No card in your address book is marked as your own. Mark one there, and it can be "
        "used here.");
}

void TestCoverSheetDialog::aCardThatCannotBeUsedSaysWhy()
{
    QFETCH(bool, hasBook);
    QFETCH(QString, hint);
    CoverDialog dialog;
    int asked = 0;
    dialog.card = [&](AddressBook::Flag) -> OwnCard {
        ++asked;
        if (hasBook)
            return std::optional<Person>();
        return Error{Error::Code::NotFound, "The address book", "install it"};
    };
    dialog.run({showSender, untilShown("coverMyCardHint", hint),
                expect("coverMyCard", "enabled", "false"), hideSender,
                expect("coverMyCardHint", "text", ""), showSender, click("cancelButton")});
    QVERIFY(dialog.isDone());
    QCOMPARE(asked, 1);
}

void TestCoverSheetDialog::cancelKeepsTheOptionsAndWaitsForNoAddressBook()
{
    CoverDialog dialog;
    const Dictionary before = dialog.options = {{"Size", 1}, {"ShowRecipients", 2}};
    dialog.card = [](AddressBook::Flag cancelled) -> OwnCard { // one that hangs
        while (!*cancelled)
            QThread::msleep(1);
        return Error{Error::Code::Cancelled, {}, {}};
    };
    QCOMPARE(dialog.run({showSender, item("coverImage", "FwmA"), type("coverSenderName", "Ann"),
                         click("cancelButton")}),
             DialogResult::Cancel);
    QVERIFY(dialog.isDone());
    QCOMPARE(dialog.options, before);
}

// What fits is said of the sheet as it is at the last letter.
void TestCoverSheetDialog::thePreviewFollowsEveryLetter()
{
    CoverDialog dialog;
    dialog.notes = "Please call.";
    const auto ink = [] {
        const QImage seen = control("coverPreview")->grab().toImage();
        int dark = 0;
        for (int y = 0; y < seen.height(); ++y) {
            for (int x = 0; x < seen.width(); ++x)
                dark += qGray(seen.pixel(x, y)) < 128 ? 1 : 0;
        }
        return dark;
    };
    int before = 0;
    dialog.run({
        [&] { before = ink(); },
        choose("coverRecipients", "Show Custom Text"),
        type("coverCustomText", QString("WWWWWWWW\n").repeated(20)),
        [&] { QVERIFY2(ink() > before + 100, qPrintable(QString::number(ink()))); },
        expect("coverNotice", "text", ""),
        type("coverCustomText", QString("All\n").repeated(80)),
        [] {
            QVERIFY2(shown("coverNotice").contains("room for"), qPrintable(shown("coverNotice")));
        },
        type("coverCustomText", QString::fromUtf8("A\uE123")),
        [] {
            QVERIFY2(shown("coverNotice").endsWith("here: U+E123."),
                     qPrintable(shown("coverNotice")));
        },
        type("coverCustomText", ""),
        expect("coverNotice", "text", ""),
        // The window has grown for the notice, and the sheet with it.
        [&] { QVERIFY2(ink() < before + 100, qPrintable(QString::number(ink()))); },
        click("cancelButton"),
    });
    QVERIFY(dialog.isDone());
}

void TestCoverSheetDialog::imagesAreMadeEditedAndDeleted()
{
    const QString path = pictureAt("logo.png");
    // A red picture on white paper.
    const auto density = [](int percent) {
        return Step([=] {
            const QColor seen = middleOf(control("coverPreview"));
            QVERIFY(std::abs(seen.green() - 255 * (100 - percent) / 100) <= 2);
            QVERIFY(seen.red() > 250);
        });
    };
    CoverDialog dialog;
    QCOMPARE(dialog.run({
                 expect("coverImage", "text", "None"),
                 item("coverImage", "LFin"),
                 click("watermarkPicture"),
                 chooseFile(path),
                 set("watermarkDensity", 50),
                 click("okButton"),
                 expect("coverImage", "text", "logo.png"),
                 density(50),
                 item("coverImage", "LFie"),
                 set("watermarkDensity", 100),
                 click("okButton"),
                 density(100), // the same name, and another drawing
                 item("coverImage", "KWmX"),
                 density(0),
                 [] {
                     _WatermarkData seal;
                     setText(seal.filename, "seal.png");
                     QVERIFY(addWatermark(kFaxImagesFile, seal)); // by another dialog
                 },
                 item("coverImage", "KWmW", "seal.png"),
                 item("coverImage", "LFid"),
                 expectNotice("seal.png", 2),
                 expect("coverImage", "text", "seal.png"),
                 item("coverImage", "LFid"),
                 expectNotice("seal.png"),
                 expect("coverImage", "text", "None"),
                 item("coverImage", "KWmW", "logo.png"),
                 click("okButton"),
             }),
             DialogResult::OK);
    QVERIFY(dialog.isDone());
    QCOMPARE(dialog.options.value("WatermarkName"), "logo.png");
    QStringList names;
    loadWatermarkList(kFaxImagesFile, &names);
    QCOMPARE(names, QStringList("logo.png"));

    QFile::remove(path);
    dialog.run({[] {
                    QVERIFY2(shown("coverNotice").contains("logo.png"),
                             qPrintable(shown("coverNotice")));
                },
                density(0), click("cancelButton")});
    QVERIFY(dialog.isDone());
}

void TestCoverSheetDialog::anImageThatIsNotHereIsKept()
{
    CoverDialog dialog;
    dialog.options = {{"ShowWatermark", true}, {"WatermarkName", "lost.png"}};
    QCOMPARE(
        dialog.run({expect("coverImage", "text", "lost.png (not on this computer)"),
                    [] { QVERIFY(shown("coverNotice").contains("lost.png")); }, click("okButton")}),
        DialogResult::OK);
    QVERIFY(dialog.isDone());
    QCOMPARE(dialog.options.value("WatermarkName"), "lost.png");
    dialog.run({item("coverImage", "KWmX"), expect("coverNotice", "text", ""), click("okButton")});
    QVERIFY(!dialog.options.contains("WatermarkName"));
}

QTEST_MAIN(TestCoverSheetDialog)
#include "test_cover_sheet_dialog.moc"
