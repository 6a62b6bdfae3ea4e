#include "cover_image_menu.h"
#include "cover_sheet.h"
#include "fax_options.h"
#include "table.h"
#include "watermark_menu.h"

#include <QTest>

using namespace kelvo;

Q_DECLARE_METATYPE(CoverSheetSettings)
Q_DECLARE_METATYPE(CoverSheetContent)

class TestCoverSheet : public QObject
{
    Q_OBJECT

private slots:
    void readsOptions_data();
    void readsOptions();
    void writesOptions_data();
    void writesOptions();
    void drawsWhatTheOptionsSay_data();
    void drawsWhatTheOptionsSay();
    void theContentSurvivesItsDictionary();
    void aSenderIsTakenFromACard_data();
    void aSenderIsTakenFromACard();
    void theMenuHasTheStoresImages();
};

namespace {

const FaxSender ann{"Ann", "Kelvo", "ann@kelvo.example", "555-1", "555-2"};

Dictionary optionsOfAnn()
{
    return {{"ShowSender", true},
            {"SenderName", "Ann"},
            {"SenderOrganization", "Kelvo"},
            {"SenderEmailAddress", "ann@kelvo.example"},
            {"SenderPhoneNumber", "555-1"},
            {"SenderFaxNumber", "555-2"}};
}

Dictionary with(Dictionary options, const Dictionary &more)
{
    options.insert(more);
    return options;
}

} // namespace

void TestCoverSheet::readsOptions_data()
{
    const Table<Dictionary, CoverSheetSettings> row{"options", "settings"};
    row("nothing set", {}, {});
    row("the sender", optionsOfAnn(), {.showSender = true, .sender = ann});
    row("all recipients", {{"ShowRecipients", 2}}, {.recipients = 1});
    row("hidden recipients", {{"ShowRecipients", 1}}, {.recipients = 2});
    row("a text", {{"ShowRecipients", 3}, {"CustomRecipientText", "All offices"}},
        {.recipients = 3, .customText = "All offices"});
    row("a number that means nothing hides", {{"ShowRecipients", 7}}, {.recipients = 2});
    row("a text is no number", {{"ShowRecipients", "2"}}, {.recipients = 2});
    row("an image", {{"ShowWatermark", true}, {"WatermarkName", "logo.png"}},
        {.image = "logo.png"});
    row("an image that is off", {{"ShowWatermark", false}, {"WatermarkName", "logo.png"}}, {});
    row("Letter", {{"Size", 1}}, {.size = 1});
    row("any other size is A4", {{"Size", 2}}, {.size = 4});
}

void TestCoverSheet::readsOptions()
{
    QFETCH(Dictionary, options);
    QFETCH(CoverSheetSettings, settings);
    QVERIFY(readCoverSheet(options) == settings);
}

void TestCoverSheet::writesOptions_data()
{
    const Table<CoverSheetSettings, Dictionary, Dictionary> row{"settings", "before", "after"};
    const Dictionary nothing{
        {"ShowSender", false}, {"ShowRecipients", 1}, {"ShowWatermark", false}, {"Size", 1}};
    row("what is hidden goes", {.sender = ann},
        with(optionsOfAnn(),
             {{"LocalizedToLabel", "To:"}, {"ShowWatermark", true}, {"WatermarkName", "logo"}}),
        nothing);
    row("what is not the sheet's stays", {}, {{"DialingPrefix", "9"}, {"CoverSheetNotes", "Hi"}},
        with(nothing, {{"DialingPrefix", "9"}, {"CoverSheetNotes", "Hi"}}));
    row("the sender", {.showSender = true, .sender = ann}, {}, with(nothing, optionsOfAnn()));
    row("all recipients", {.recipients = 1}, {},
        with(nothing, {{"ShowRecipients", 2}, {"LocalizedToLabel", "To:"}}));
    row("a text", {.recipients = 3, .customText = "All offices"}, {},
        with(nothing,
             {{"ShowRecipients", 3},
              {"LocalizedToLabel", "To:"},
              {"CustomRecipientText", "All offices"}}));
    row("an image on A4", {.image = "logo.png", .size = 4}, {},
        with(nothing, {{"ShowWatermark", true}, {"WatermarkName", "logo.png"}, {"Size", 4}}));
}

void TestCoverSheet::writesOptions()
{
    QFETCH(CoverSheetSettings, settings);
    QFETCH(Dictionary, before);
    QFETCH(Dictionary, after);
    Dictionary options = before;
    writeCoverSheet(settings, options, "To:");
    QCOMPARE(options, after);
}

void TestCoverSheet::drawsWhatTheOptionsSay_data()
{
    const Table<Dictionary, QString, CoverSheetContent> row{"options", "notes", "content"};
    const QSizeF letter(612, 792), a4(595, 842);
    row("nothing", {}, "", {.size = letter});
    row("notes alone", {}, "Please call.",
        {.size = letter, .notesLabel = "Notes", .notesText = "Please call."});
    row("the sender", optionsOfAnn(), "",
        {.size = letter,
         .senderLabel = "From",
         .senderText = "Ann\nKelvo\nann@kelvo.example\nTel : 555-1\nFax : 555-2\n"});
    row("a hidden sender", with(optionsOfAnn(), {{"ShowSender", false}}), "", {.size = letter});
    row("all recipients, one without a name", {{"ShowRecipients", 2}}, "",
        {.size = letter, .recipientsLabel = "To", .recipientsText = "Ann Lee, Bo, "});
    row("a text", {{"ShowRecipients", 3}, {"CustomRecipientText", "All"}, {"Size", 2}}, "",
        {.size = a4, .recipientsLabel = "To", .recipientsText = "All"});
    row("an image on A4", {{"ShowWatermark", true}, {"WatermarkName", "logo"}, {"Size", 4}}, "",
        {.size = a4, .image = "logo"});
}

void TestCoverSheet::drawsWhatTheOptionsSay()
{
    QFETCH(Dictionary, options);
    QFETCH(QString, notes);
    QFETCH(CoverSheetContent, content);
    FaxRecipientList recipients;
    const Array list{Dictionary{{"FirstName", "Ann"}, {"LastName", "Lee"}},
                     Dictionary{{"FirstName", "Bo"}}, Dictionary{{"FaxNumber", "555"}}};
    recipients.fromTicket(&list);
    QCOMPARE(coverSheetContent(options, notes, recipients, {"From", "To", "Notes", "Tel", "Fax"})
                 .toDictionary(),
             content.toDictionary());
}

void TestCoverSheet::theContentSurvivesItsDictionary()
{
    const CoverSheetContent content{{595, 842}, "From", "Ann", "To", "Bo", "Notes", "Hi", "logo"};
    QVERIFY(CoverSheetContent::fromDictionary(content.toDictionary()) == content);
    // Notes that were emptied are kept, and not shown.
    QCOMPARE(shownNotes({{"CoverSheetNotes", "Hi"}}), QString());
    QCOMPARE(shownNotes({{"CoverSheetNotes", "Hi"}, {"LocalizedNotesLabel", ""}}), "Hi");
}

void TestCoverSheet::aSenderIsTakenFromACard_data()
{
    using Kind = PersonNumber::Kind;
    using Numbers = std::vector<PersonNumber>;
    const Table<FaxSender, Numbers, QString, QString> row{"typed", "numbers", "phone", "fax"};
    row("those of work", {},
        {{Kind::Phone, "home", "1"},
         {Kind::Phone, "other", "2"},
         {Kind::Phone, "work", "3"},
         {Kind::Phone, "work", "4"},
         {Kind::Fax, "work", "5"}},
        "3", "5");
    row("else one that is not of home", {},
        {{Kind::Phone, "home", "1"}, {Kind::Phone, "", "2"}, {Kind::Fax, "home", "5"}}, "2", "");
    row("what it lacks stays as it was typed", {.phoneNumber = "7", .faxNumber = "8"},
        {{Kind::Fax, "work", "5"}}, "7", "5");
}

void TestCoverSheet::aSenderIsTakenFromACard()
{
    QFETCH(FaxSender, typed);
    QFETCH(std::vector<PersonNumber>, numbers);
    QFETCH(QString, phone);
    QFETCH(QString, fax);
    const Person card{.fullName = "Ann Lee",
                      .organization = "Kelvo",
                      .emailAddresses = {"ann@work.example", "ann@home.example"},
                      .numbers = numbers};
    QVERIFY(takenFromCard(typed, card)
            == (FaxSender{"Ann Lee", "Kelvo", "ann@work.example", phone, fax}));
}

void TestCoverSheet::theMenuHasTheStoresImages()
{
    const QStringList names{"logo.png", "seal.png"};
    CoverSheetSettings settings{.image = "seal.png", .size = 4};
    Menu menu = coverImageMenu({}, settings, names);
    QStringList rows;
    for (const MenuItem &item : menu.items)
        rows << (item.divider ? "-" : item.key.isEmpty() ? item.text : item.key);
    QCOMPARE(rows,
             QStringList({"NoWatermark", "logo.png", "seal.png", "-", "Cover Sheet Paper Size",
                          "New...", "Edit...", "Delete"}));
    QVERIFY(!menu.items[0].checked && !menu.items[1].checked && menu.items[2].checked);
    QVERIFY(!menu.items[4].submenu[0].checked && menu.items[4].submenu[1].checked);
    QVERIFY(findItem(menu, kCommandEditCoverImage)->enabled);
    for (const char *image : {"", "lost.png"}) {
        settings.image = image;
        menu = coverImageMenu({}, settings, names);
        QCOMPARE(menu.items[0].checked, settings.image.isEmpty());
        QVERIFY(!findItem(menu, kCommandEditCoverImage)->enabled);
        QVERIFY(!findItem(menu, kCommandDeleteCoverImage)->enabled);
        QVERIFY(findItem(menu, kCommandNewCoverImage)->enabled);
    }
    QVERIFY(applyCoverSize(settings, fourCharCode("FwmL")));
    QCOMPARE(settings.size, 1);
    QVERIFY(!applyCoverSize(settings, kCommandNewCoverImage));
    QCOMPARE(settings.size, 1);
}

QTEST_GUILESS_MAIN(TestCoverSheet)
#include "test_cover_sheet.moc"
