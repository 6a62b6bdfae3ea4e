#include "job_settings.h"
#include "sample_ppds.h"
#include "table.h"
#include "ticket_file.h"

#include <QTest>

using namespace kelvo;
using Code = Error::Code;

// The host's settings in the tickets of a full device.
class TestJobSettings : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void comeBackFromTheTickets_data();
    void comeBackFromTheTickets();
    void standInTheTicketsInPoints();
    void takeThePaperThatAPanelChose();
    void ignoreValuesThatAreNone();
    void leaveLockedEntriesAlone();
    void knowPaperSizes_data();
    void knowPaperSizes();
    void takeOptions_data();
    void takeOptions();
    void refuseOptions_data();
    void refuseOptions();
    void workWithoutPpd();

private:
    std::shared_ptr<PpdFile> m_ppd;
};

void TestJobSettings::initTestCase()
{
    auto ppd = PpdFile::open(samplePpd("full"));
    QVERIFY2(ppd, qPrintable(ppd.reason()));
    m_ppd = ppd.value();
}

void TestJobSettings::comeBackFromTheTickets_data()
{
    const Table<JobSettings> row{"settings"};
    row("one portrait copy", JobSettings{1, true, {}, "A4", Orientation::Portrait});
    row("everything set",
        JobSettings{9999, false, "1-3,7", "Legal", Orientation::ReverseLandscape});
    row("own size", JobSettings{2, true, {}, "Custom.100x200mm", Orientation::Landscape});
    row("laid out",
        JobSettings{1,
                    true,
                    {},
                    "A4",
                    Orientation::Portrait,
                    {PageScaling::Percent, 71, 16, PageFlow::BtRl, true},
                    PageSet::Even,
                    true});
    row("paper of another device",
        JobSettings{1, true, {}, "Papyrus", Orientation::ReversePortrait});
}

void TestJobSettings::comeBackFromTheTickets()
{
    QFETCH(JobSettings, settings);
    PrintSession session;
    writeJobSettings(settings, m_ppd.get(), session);
    QCOMPARE(jobSettingsFrom(session, m_ppd.get()), settings);
    // A second time changes nothing.
    const TicketFile before = ticketFileFrom(session);
    writeJobSettings(jobSettingsFrom(session, m_ppd.get()), m_ppd.get(), session);
    QCOMPARE(ticketFileFrom(session), before);
}

void TestJobSettings::standInTheTicketsInPoints()
{
    PrintSession session;
    writeJobSettings({2, true, {}, {}, Orientation::ReversePortrait}, m_ppd.get(), session);
    const PMTicketRef page = session.pageFormatTicket();
    QCOMPARE(PMTicketGetCFString(page, kPMPaperNameKey), std::optional(QStringLiteral("A4")));
    QCOMPARE(PMTicketGetCFArray(page, kPMPaperSizeKey), std::optional(Array{595.28, 841.89}));
    QCOMPARE(PMTicketGetCFArray(page, kPMUnadjustedPaperRectKey),
             std::optional(Array{0.0, 0.0, 841.89, 595.28}));
    QCOMPARE(PMTicketGetCFNumber(page, kPMOrientationKey), std::optional<std::int64_t>(3));
    QCOMPARE(PMTicketGetCFNumber(session.printSettingsTicket(), kPMCopiesKey),
             std::optional<std::int64_t>(2));
    QCOMPARE(session.printSettings().ppdChoices,
             (PPDDictionary{{QStringLiteral("PageSize"), QStringLiteral("A4")}}));
    QCOMPARE(session.pageFormat().entries[kPMPaperNameKey].client,
             QStringLiteral("com.kelvo.printingmanager"));
}

void TestJobSettings::takeThePaperThatAPanelChose()
{
    PrintSession session;
    writeJobSettings({}, m_ppd.get(), session);
    session.printSettings().ppdChoices[QStringLiteral("PageSize")] = QStringLiteral("A3");
    QCOMPARE(jobSettingsFrom(session, m_ppd.get()).paperName, QStringLiteral("A3"));
}

void TestJobSettings::ignoreValuesThatAreNone()
{
    const QString client = QStringLiteral("test");
    PrintSession session;
    PMTicketSetCFNumber(session.printSettingsTicket(), client, kPMCopiesKey, 10000);
    PMTicketSetCFString(session.printSettingsTicket(), client, kPMCollateKey,
                        QStringLiteral("false"));
    PMTicketSetCFNumber(session.pageFormatTicket(), client, kPMOrientationKey, 5);
    PMTicketSetCFNumber(session.pageFormatTicket(), client, kPMPaperNameKey, 3);
    QCOMPARE(jobSettingsFrom(session, m_ppd.get()),
             (JobSettings{1, true, {}, "A4", Orientation::Portrait}));
}

void TestJobSettings::leaveLockedEntriesAlone()
{
    PrintSession session;
    PMTicketSetCFNumber(session.printSettingsTicket(), QStringLiteral("site"), kPMCopiesKey, 2,
                        true);
    writeJobSettings({50, true, {}, {}, Orientation::Portrait}, m_ppd.get(), session);
    QCOMPARE(jobSettingsFrom(session, m_ppd.get()).copies, 2);
}

void TestJobSettings::knowPaperSizes_data()
{
    // points invalid: no such paper
    const Table<QString, QSizeF> row{"name", "points"};
    row("of the PPD", "Legal", QSizeF(612, 1008));
    row("points", "Custom.252x360", QSizeF(252, 360));
    row("inches", "Custom.4x6.5in", QSizeF(288, 468));
    row("centimetres", "Custom.25.4x30.48cm", QSizeF(720, 864));
    row("one point too narrow", "Custom.251x360", QSizeF());
    row("one point too long", "Custom.300x1369", QSizeF());
    row("unknown unit", "Custom.300x400px", QSizeF());
    row("no length", "Custom.300", QSizeF());
    row("not a number", "Custom.infxnan", QSizeF());
    row("endless", "Custom.300x" + QString(400, u'9'), QSizeF());
    row("unknown", "Papyrus", QSizeF());
}

void TestJobSettings::knowPaperSizes()
{
    QFETCH(QString, name);
    QFETCH(QSizeF, points);
    const auto size = paperSize(name, *m_ppd);
    QCOMPARE(size.has_value(), points.isValid());
    if (size) {
        QCOMPARE(size->width(), points.width());
        QCOMPARE(size->height(), points.height());
    }
}

// A null value: the name alone.
static AskedOption asked(const QString &name, const QString &value)
{
    return {name, value.isNull() ? std::nullopt : std::optional(value)};
}

void TestJobSettings::takeOptions_data()
{
    const auto orientation = [](int value) {
        JobSettings settings{1, true, {}, "A4", static_cast<Orientation>(value)};
        return settings;
    };
    const JobSettings plain = orientation(1);
    const Table<QString, QString, JobSettings, PpdSelection> table{"name", "value", "settings",
                                                                   "choices"};
    const auto row = [&](const char *title, const char *name, const char *value,
                         const JobSettings &settings, const PpdSelection &choices = {}) {
        table(title, name, value, settings, choices);
    };
    row("PPD option", "StapleLocation", "DualPortrait", plain,
        {{"StapleLocation", "DualPortrait"}});
    row("in any case", "staplelocation", "dualportrait", plain,
        {{"StapleLocation", "DualPortrait"}});
    row("page size", "PageSize", "Legal", {1, true, {}, "Legal"}, {{"PageSize", "Legal"}});
    row("media by PPD name", "media", "legal", {1, true, {}, "Legal"}, {{"PageSize", "Legal"}});
    row("media by its own description", "media", "iso_a3_297x420mm", {1, true, {}, "A3"},
        {{"PageSize", "A3"}});
    row("media by description in inches", "media", "na_legal_8.5x14in", {1, true, {}, "Legal"},
        {{"PageSize", "Legal"}});
    row("own size", "media", "custom.300x400", {1, true, {}, "Custom.300x400"},
        {{"PageSize", "Custom.300x400"}});
    row("media with tray and type", "media", "A3,Tray2,Bond", {1, true, {}, "A3"},
        {{"PageSize", "A3"}, {"InputSlot", "Tray2"}, {"MediaType", "Bond"}});
    row("portrait", "orientation-requested", "3", orientation(1), {{"PageSize", "A4"}});
    row("landscape", "orientation-requested", "4", orientation(2), {{"PageSize", "A4"}});
    row("reverse landscape", "orientation-requested", "5", orientation(4), {{"PageSize", "A4"}});
    row("reverse portrait", "orientation-requested", "6", orientation(3), {{"PageSize", "A4"}});
    row("two sides", "sides", "two-sided-short-edge", plain, {{"Duplex", "DuplexTumble"}});
    row("copies", "copies", "9999", {9999, true, {}, "A4"}, {{"PageSize", "A4"}});
    row("collate", "Collate", "False", {1, false, {}, "A4"}, {{"PageSize", "A4"}});
    row("uncollated", "multiple-document-handling", "separate-documents-uncollated-copies",
        {1, false, {}, "A4"}, {{"PageSize", "A4"}});
    row("pages", "page-ranges", "1-3,7", {1, true, "1-3,7", "A4"}, {{"PageSize", "A4"}});
    // A name alone is true, and with "no" before it false.
    row("a name", "landscape", nullptr, orientation(2), {{"PageSize", "A4"}});
    row("no name", "nolandscape", nullptr, orientation(1), {{"PageSize", "A4"}});
    row("the other name for it", "portrait", "no", orientation(2), {{"PageSize", "A4"}});
    row("no name of the host's", "noCollate", nullptr, {1, false, {}, "A4"}, {{"PageSize", "A4"}});
    row("a choice called otherwise", "JCLBanner", nullptr, plain, {{"JCLBanner", "True"}});
    row("none is no", "noDuplex", nullptr, plain, {{"Duplex", "None"}});

    const auto laidOut = [&plain](const PageLayout &layout) {
        JobSettings settings = plain;
        settings.layout = layout;
        return settings;
    };
    const auto ordered = [&plain](PageSet set, bool isReversed) {
        JobSettings settings = plain;
        settings.pageSet = set;
        settings.isReversed = isReversed;
        return settings;
    };
    const PpdSelection a4{{"PageSize", "A4"}};
    using enum PageScaling;
    row("no fitting", "nofit-to-page", nullptr, plain, a4);
    row("fitting", "fit-to-page", nullptr, laidOut({.scaling = Fit}), a4);
    row("scaling", "print-scaling", "Fill", laidOut({.scaling = Fill}), a4);
    row("no scaling", "print-scaling", "none", laidOut({.scaling = None}), a4);
    row("scaling where needed", "print-scaling", "auto-fit", plain, a4);
    row("percent", "scaling", "800", laidOut({.scaling = Percent, .percent = 800}), a4);
    row("percent with a sign", "scaling", "50%", laidOut({.scaling = Percent, .percent = 50}), a4);
    row("several on a side", "number-up", "6", laidOut({.pagesPerSide = 6}), a4);
    row("their order", "number-up-layout", "tbrl", laidOut({.flow = PageFlow::TbRl}), a4);
    row("borders", "page-border", "single", laidOut({.drawsBorders = true}), a4);
    row("odd pages", "page-set", "odd", ordered(PageSet::Odd, false), a4);
    row("reversed", "outputorder", "reverse", ordered(PageSet::All, true), a4);
}

void TestJobSettings::takeOptions()
{
    QFETCH(QString, name);
    QFETCH(QString, value);
    PrintSession session;
    const auto applied = applyOption(asked(name, value), m_ppd.get(), session);
    QVERIFY2(applied, qPrintable(applied.reason()));
    QTEST(session.printSettings().ppdChoices, "choices");
    QTEST(jobSettingsFrom(session, m_ppd.get()), "settings");
}

void TestJobSettings::refuseOptions_data()
{
    const Table<QString, QString, Code, QString> row{"name", "value", "code", "says"};
    row("unknown option", "StapleLocaton", "None", Code::Unsupported,
        "did you mean StapleLocation?");
    row("unknown host option", "orientation", "4", Code::Unsupported, "orientation-requested");
    row("another program's option", "mirror", "true", Code::Unsupported, "neither this printer");
    row("fitting, perhaps", "fit-to-page", "maybe", Code::NotFound, "true, false");
    row("unknown scaling", "print-scaling", "percent", Code::NotFound, "auto-fit, fit, fill");
    row("nothing left", "scaling", "0", Code::OutOfRange, "from 1 to 800");
    row("larger than any paper", "scaling", "801", Code::OutOfRange, "from 1 to 800");
    row("5 on a side", "number-up", "5", Code::OutOfRange, "1, 2, 4, 6, 9 or 16");
    row("unknown order", "number-up-layout", "lrlr", Code::NotFound, "lrtb");
    row("unknown border", "page-border", "double", Code::NotFound, "single");
    row("unknown set", "page-set", "prime", Code::NotFound, "all, odd, even");
    row("several choices are no", "StapleLocation", "yes", Code::NotFound, "there are None, ");
    row("unknown choice", "StapleLocation", "DualPortait", Code::NotFound,
        "did you mean DualPortrait?");
    row("equipment", "KVFinisher", "None", Code::Refused, "its administrator");
    row("unknown paper", "media", "Leagl", Code::NotFound, "did you mean Legal?");
    row("unknown part of media", "media", "A4,Tray9", Code::NotFound, "Tray9");
    row("custom paper too long", "media", "Custom.300x1400", Code::NotFound, "Custom.300x1400");
    const char *custom = "Custom.WIDTHxHEIGHT with in, mm, cm or pt behind it; this printer takes "
                         "widths from 88.9 to 330.2 mm and heights from 127 to 482.6 mm";
    row("custom paper without a size", "PageSize", "Custom", Code::NotFound, custom);
    row("custom page outside the limits", "PageSize", "Custom.10x20in", Code::NotFound, custom);
    row("custom media outside the limits", "media", "Custom.50x50mm", Code::NotFound, custom);
    row("custom media of an unknown unit", "media", "Tray2,custom.8x10px", Code::NotFound, custom);
    row("a page size of one letter", "PageSize", "x", Code::NotFound, "there are Letter, ");
    row("described paper that it lacks", "media", "iso_a0_841x1189mm", Code::NotFound, "iso_a0");
    row("orientation 2", "orientation-requested", "2", Code::OutOfRange, "3 is portrait");
    row("orientation 7", "orientation-requested", "7", Code::OutOfRange, "3 is portrait");
    row("no copy", "copies", "0", Code::OutOfRange, "from 1 to 9999");
    row("one copy too many", "copies", "10000", Code::OutOfRange, "from 1 to 9999");
    row("half a copy", "copies", "1.5", Code::OutOfRange, "from 1 to 9999");
    row("unknown sides", "sides", "two-sided-longedge", Code::NotFound, "two-sided-long-edge");
    row("collate maybe", "collate", "maybe", Code::NotFound, "there are true, false");
    row("a name alone", "nolandscap", {}, Code::Unsupported, "neither this printer");
    row("several choices, and a name alone", "StapleLocation", {}, Code::NotFound,
        "there are None, ");
    row("no urgency", "job-priority", "0", Code::OutOfRange, "from 1 to 100");
    row("no such time of the day", "job-hold-until", "evning", Code::OutOfRange,
        "did you mean evening?");
    row("pages in words", "page-ranges", "two", Code::OutOfRange, "1-3,7");
}

void TestJobSettings::refuseOptions()
{
    QFETCH(QString, name);
    QFETCH(QString, value);
    QFETCH(Code, code);
    QFETCH(QString, says);
    PrintSession session;
    const auto applied = applyOption(asked(name, value), m_ppd.get(), session);
    QVERIFY(!applied);
    QCOMPARE(applied.error().code, code);
    QVERIFY2(applied.error().detail.contains(says), qPrintable(applied.reason()));
    QCOMPARE(applied.error().where, value.isNull() ? name : name + u'=' + value);
    QCOMPARE(ticketFileFrom(session), TicketFile());
}

void TestJobSettings::workWithoutPpd()
{
    PrintSession session;
    QVERIFY(applyOption({"media", "A4"}, nullptr, session));
    QVERIFY(applyOption({"sides", "one-sided"}, nullptr, session));
    // What is not known of it is not said of it either.
    for (const AskedOption &option :
         {AskedOption{"sides", "two-sided-long-edge"}, {"Duplex", "None"}}) {
        const auto applied = applyOption(option, nullptr, session);
        QVERIFY(!applied && applied.error().text().contains("no description"));
    }
    QVERIFY(!isTwoSided({{"Duplex", "DuplexTumble"}}, nullptr)); // of another printer
    QCOMPARE(jobSettingsFrom(session, nullptr).paperName, QStringLiteral("A4"));
    QVERIFY(session.printSettings().ppdChoices.isEmpty());
}

QTEST_GUILESS_MAIN(TestJobSettings)
#include "test_job_settings.moc"
