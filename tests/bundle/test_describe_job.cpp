#include "describe_job.h"

#include "files.h"
#include "long_date.h"
#include "sample_ppds.h"
#include "table.h"

#include <QTest>

#include <algorithm>
#include <future>
#include <limits>

using namespace kelvo;

using Inserts = QList<SpecialSheets::Insert>;
using Exceptions = QList<SpecialSheets::Exception>;
using Cover = SpecialSheets::Cover;

Q_DECLARE_METATYPE(kelvo::SpecialSheets)

class TestDescribeJob : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void saysWhatIsSet_data();
    void saysWhatIsSet();
    void saysWhatTheDeviceDoes();
    void namesWhereItIsSet();
    void namesWhatHoldsTheSame();
    void keepsSecrets();
    void whatAFaxLacksIsTold_data();
    void whatAFaxLacksIsTold();
    void aBinderThatIsNotThereIsTold();
    void findsSpecialSheets_data();
    void findsSpecialSheets();
    void readsListsAgainWhenTheyChange();
    void tellsThePageThatIsSentFirst();
    void findsNothingOnOtherDevices();
    void describesOnTwoThreads();
    void refusesNothing();

private:
    Bundle *m_bundle = nullptr;
    std::shared_ptr<PpdFile> m_ppd;
    JobDescription describe(const Ticket &ticket, const PpdFile *ppd) const;
};

namespace {

const QString fullPpd = samplePpd("full");

QString keyOf(const char *name)
{
    return QStringLiteral("com.kelvo.print.") + QLatin1String(name);
}

Ticket ticketOf(const Dictionary &entries, const PPDDictionary &choices = {})
{
    Ticket ticket;
    for (auto entry = entries.cbegin(); entry != entries.cend(); ++entry)
        ticket.entries[keyOf(entry.key().toLatin1().constData())] = {entry.value(), "test"};
    ticket.ppdChoices = choices;
    return ticket;
}

Ticket jobTypeOf(const Dictionary &options)
{
    return ticketOf({{"JobType", options}});
}

QVariant insert(const QVariant &after, const QVariant &quantity)
{
    return Dictionary{{"StartPage", after}, {"Quantity", quantity}, {"Stock", Dictionary()}};
}

QVariant exception(const QVariant &first, const QVariant &last, const QVariant &sides = {})
{
    Dictionary made{{"StartPage", first}, {"EndPage", last}};
    if (sides.isValid())
        made.insert("SidesImaged", sides);
    return made;
}

Ticket pagesOf(const QVariant &inserts, const QVariant &exceptions,
               const PPDDictionary &choices = {})
{
    return ticketOf(
        {{"SpecialPages.InsertList", inserts}, {"SpecialPages.ExceptionList", exceptions}},
        choices);
}

QStringList linesOf(const JobDescription &description, bool defaults)
{
    QStringList lines;
    for (const DescribedSetting &setting : description.settings) {
        if (setting.isDefault == defaults)
            lines << setting.label + QStringLiteral(": ") + setting.words;
    }
    return lines;
}

const DescribedSetting *lineAt(const JobDescription &description, const TicketPlace &place)
{
    const auto found = std::ranges::find(description.settings, place, &DescribedSetting::place);
    return found == description.settings.cend() ? nullptr : &*found;
}

} // namespace

void TestDescribeJob::initTestCase()
{
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedKingdom));
    auto ppd = PpdFile::open(fullPpd);
    QVERIFY(ppd);
    m_ppd = std::move(ppd).value();
    const auto bundle = Bundle::open(QStringLiteral(KELVO_BUILD_DIR "/lib/KelvoPDE.pde"));
    QVERIFY(bundle);
    m_bundle = bundle.value();
}

JobDescription TestDescribeJob::describe(const Ticket &ticket, const PpdFile *ppd) const
{
    const Ticket pageFormat;
    const JobToDescribe job{&ticket, &pageFormat, ppd, m_bundle};
    JobDescription description;
    if (KelvoDescribeJob(&job, &description) != noErr)
        qFatal("nothing was described");
    return description;
}

void TestDescribeJob::saysWhatIsSet_data()
{
    // lines: what differs from the device's defaults
    const Table<Ticket, QStringList> row{"ticket", "lines"};
    const qint64 halfPastFive = longDateFrom(QDate(2026, 11, 22), QTime(17, 30));

    row("nothing", Ticket(), {});
    row("what panels write by themselves",
        ticketOf({{"FinishingOffset", 1},
                  {"FinishingOptions", 0},
                  {"FinishingBindValue", 1},
                  {"FinishingCustom", ""},
                  {"JobLevelStock", Dictionary{{"Color", 1}, {"Type", 1}, {"Size", 1}}},
                  {"JobType", Dictionary{{"JobType", 1}, {"DelayedPrintTime", halfPastFive}}},
                  {"InvertImageOptions", Dictionary{{"MirrorImage", 0}}}}),
        {});
    row("a delayed job", jobTypeOf({{"JobType", 7}, {"DelayedPrintTime", halfPastFive}}),
        {"Job type: Delayed print", "Time to print: 17:30"});
    row("a saved job",
        jobTypeOf({{"JobType", 3},
                   {"UseJobName", false},
                   {"SavedJobName", "Plan"},
                   {"SavedJobLocation", "file:///job-repository/17"},
                   {"SavedJobFormat", 1},
                   {"SaveDisposition", 2}}),
        {"Job type: Saved job", "Job name: Plan", "Mailbox: 17", "Save option: Save and print",
         "File format: TIFF, one file per page"});
    row("a fax, whatever is fitted",
        ticketOf({{"JobType", Dictionary{{"JobType", 5}}},
                  {"FaxRecipientList",
                   Array{Dictionary{{"FirstName", "Ann"}, {"FaxNumber", "+1 (555) 1"}},
                         Dictionary{{"FaxNumber", "555-2"}}, Dictionary()}}}),
        {"Job type: Fax", "Fax recipients: Ann +1 (555) 1, 555-2, (no name and no number)"});
    row("a fax to nobody", jobTypeOf({{"JobType", 5}}),
        {"Job type: Fax", "Fax recipients: nobody yet; add recipients in the fax settings"});
    row("a fax as the set-up leaves it",
        ticketOf({{"JobType", Dictionary{{"JobType", 5}}},
                  {"FaxRecipientList", Array(23, Dictionary{{"FaxNumber", "1"}})},
                  {"FaxOptions",
                   Dictionary{{"ConfirmationSheet", false},
                              {"SendSpeed", 3},
                              {"Resolution", 3},
                              {"SendTime", qint64(3'900'000'000)},
                              {"DialingPrefix", "9,"},
                              {"CoverSheet", true},
                              {"Size", 4},
                              {"ShowWatermark", true},
                              {"WatermarkName", "Logo"}}}}),
        {"Job type: Fax", "Fax recipients: " + QString("1, ").repeated(19) + "1 and 3 more",
         "Send time: 01/08/2027 21:20", "Confirmation sheet: Do not print a confirmation sheet",
         "Send speed: G4 (automatic)", "Fax resolution: Ultrafine", "Dialing prefix: 9,",
         "Fax cover sheet: A4 (210 × 297 mm)",
         "Cover sheet image: “Logo” is not in your list of cover images"});
    row("recipients of a job that is none",
        ticketOf({{"FaxRecipientList", Array{Dictionary{{"LastName", "Lee"}}}},
                  {"FaxOptions", Dictionary{{"Resolution", 4}, {"CoverSheet", true}}}}),
        {"Fax recipients: Lee (no number to dial)"});
    row("a job type of later days", jobTypeOf({{"JobType", 42}}), {"Job type: 42"});

    row("paper by choices", ticketOf({}, {{"MediaColor", "Blue"}, {"MediaType", "Transparency"}}),
        {"Paper color: Blue", "Paper type: Transparency"});
    row("paper of the user's own",
        ticketOf({{"JobLevelStock",
                   Dictionary{{"Color", 10},
                              {"CustomColor", "Salmon"},
                              {"Type", 7},
                              {"CustomType", "Parchment"},
                              {"CustomName", "Deeds"},
                              {"Weight", 120}}}}),
        {"Paper name: Deeds", "Paper color: Salmon", "Paper type: Parchment",
         "Paper properties: 120 g/m²"});
    row("paper without the names of its own",
        ticketOf({{"JobLevelStock", Dictionary{{"Color", 10}, {"Type", 7}}}}),
        {"Paper color: Custom color", "Paper type: Custom type"});
    row("a stock that choices overrule",
        ticketOf({{"JobLevelStock", Dictionary{{"Color", 10}, {"CustomColor", "Salmon"}}}},
                 {{"MediaColor", "Blue"}}),
        {"Paper color: Blue"});

    row("sides, as panels read them", ticketOf({{"FinishingDuplex", 2}}, {{"Duplex", "None"}}),
        {"Two-sided printing: 2-sided print"});
    row("offset subsets",
        ticketOf({{"FinishingOffset", 4},
                  {"FinishingOffsetEnableSubset", 1},
                  {"FinishingOffsetPagesPerSubset", 12}}),
        {"Offset: Between subsets, 12 pages per subset"});
    row("subsets without an offset",
        ticketOf({{"FinishingOffset", 2},
                  {"FinishingOffsetEnableSubset", 1},
                  {"FinishingOffsetPagesPerSubset", 12}}),
        {"Offset: No offset, 12 pages per subset"});
    row("offset by both panels", ticketOf({{"FinishingOffset", 3}}, {{"Jog", "EndOfSet"}}),
        {"Offset: Between sets", "Request offset: Offset each set"});
    row("binding and an instruction",
        ticketOf({{"FinishingBindValue", 3}, {"FinishingCustom", "Trim\n2 mm"}}),
        {"Bind: Right edge", "Finishing instruction: Trim 2 mm"});
    row("a booklet", ticketOf({{"BookletLayout", true}, {"Gutter", 36}, {"Creep", 5}}),
        {"Booklet layout: gutter 36 pt, creep 0.5"});

    row("a booklet beyond its dialog",
        ticketOf({{"BookletLayout", true}, {"Gutter", -9}, {"Creep", 2'000'000'000}}),
        {"Booklet layout: gutter 0 pt, creep 1"});
    row("a booklet of another size",
        ticketOf({{"BookletLayout", true},
                  {"BookletDrawOutlines", 2},
                  {"BookletForceNewSize", true},
                  {"JobLevelStock", Dictionary{{"Size", 5}}}}),
        {"Booklet layout: gutter 24 pt, creep 0, page borders, fit to A3 (297 × 420 mm)"});
    row("a watermark of somebody else", ticketOf({{"watermark.Watermark", "Hall-3 only"}}),
        {"Watermark: “Hall-3 only” is not in your list of watermarks, and none is printed"});
    row("values of later days", ticketOf({{"FinishingOffset", 77}, {"FinishingBindValue", 99}}),
        {"Offset: 77", "Bind: 99"});
    row("the printer's own lightness", ticketOf({{"PrinterDefaultLightness", true}}),
        {"Lighten/darken: Printer default"});
    row("inverted",
        ticketOf({{"InvertImageOptions", Dictionary{{"MirrorImage", 1}, {"NegativeImage", 1}}}}),
        {"Invert image: Mirror image", "Invert image: Negative image"});
    row("special pages",
        pagesOf(Array{insert(1, 1), insert(0, 30)},
                Array{exception(5, 8, 2), exception(12, 12), exception(5, 0), "?"},
                {{"KVFrontCoverSheet", "Tray1"}, {"KVBackCoverSheet", "None"}}),
        {"Front cover source: Tray 1",
         "Inserts: after page 1 (Sheets [1]), before page 1 (Sheets [30])",
         "Exception pages: 5–8 (2-sided print), 12 (Use job setting),"
         " 5 (Applies to no pages), ?"});
}

void TestDescribeJob::saysWhatIsSet()
{
    QFETCH(Ticket, ticket);

    const JobDescription description = describe(ticket, m_ppd.get());

    QTEST(linesOf(description, false), "lines");
    // Every entry is spoken for.
    for (const auto &[key, entry] : ticket.entries) {
        const auto isAt = [&key = key](const TicketPlace &place) { return place[1] == key; };
        const bool isSaid = std::ranges::any_of(description.unspoken, isAt)
            || std::ranges::any_of(description.settings, isAt, &DescribedSetting::place)
            || std::ranges::any_of(description.settings, [&key = key](const auto &setting) {
                                return setting.repeats.contains(key);
                            });
        QVERIFY2(isSaid, qPrintable(key));
    }
}

void TestDescribeJob::saysWhatTheDeviceDoes()
{
    const QStringList lines = linesOf(describe({}, m_ppd.get()), true);
    for (const char *line : {"Job type: Normal", "Paper color: White", "Stapling: No staple",
                             "Lighten/darken: Normal", "Request offset: No offset"})
        QVERIFY2(lines.contains(QLatin1String(line)), qPrintable(lines.join('\n')));
    // Nothing that another line has already said otherwise.
    const Ticket job =
        ticketOf({{"FinishingOffset", 4},
                  {"FinishingOffsetEnableSubset", 1},
                  {"JobLevelStock", Dictionary{{"Color", 10}, {"CustomColor", "Salmon"}}},
                  {"PrinterDefaultLightness", true}});
    const QStringList left = linesOf(describe(job, m_ppd.get()), true);
    for (const char *label : {"Request offset", "Paper color", "Lighten/darken"})
        QVERIFY2(left.filter(QLatin1String(label)).isEmpty(), label);
}

void TestDescribeJob::namesWhereItIsSet()
{
    const QString controls =
        QString::fromUtf8(bytesOf(QStringLiteral(KELVO_SOURCE_DIR "/docs/controls.md")));
    QVERIFY(!controls.isEmpty());
    const auto everything = pagesOf(Array{insert(1, 1)}, {});
    for (const DescribedSetting &setting : describe(everything, m_ppd.get()).settings) {
        // Panels have a window of their name.
        const QString window =
            controls.section(u'/' + setting.panel + u'\n', 1).section("\n## ", 0, 0);
        const QString row = QStringLiteral("| KPDE %1 |").arg(setting.control.number);
        QVERIFY2(window.contains(row), qPrintable(setting.panel + row + setting.label));
    }
}

void TestDescribeJob::namesWhatHoldsTheSame()
{
    const JobDescription description = describe({}, m_ppd.get());
    const DescribedSetting *sides = lineAt(description, {kPPDChoices, "Duplex"});
    QVERIFY(sides);
    QCOMPARE(sides->repeats,
             (QStringList{keyOf("FinishingDuplex"), "com.apple.print.PrintSettings.PMDuplexing"}));
}

void TestDescribeJob::keepsSecrets()
{
    const Ticket ticket =
        ticketOf({{"JobType", Dictionary{{"JobType", 6}, {"SecurePrintPassword", "271828"}}},
                  {"FaxOptions", Dictionary{{"CreditCard", "314159"}}}});
    int secrets = 0;
    for (const DescribedSetting &setting : describe(ticket, m_ppd.get()).settings) {
        secrets += setting.isSecret ? 1 : 0;
        QVERIFY(!setting.words.contains("271828") && !setting.words.contains("314159"));
    }
    QCOMPARE(secrets, 2);
}

void TestDescribeJob::whatAFaxLacksIsTold_data()
{
    const Table<int, Array, bool> row{"jobType", "recipients", "isLost"};
    const QVariant ann = Dictionary{{"FirstName", "Ann"}, {"FaxNumber", "1"}};
    const QVariant undialed = Dictionary{{"FirstName", "Bo"}, {"FaxNumber", "(-)"}};
    row("nothing", 5, {ann}, false);
    row("recipients", 5, {}, true);
    row("a number", 5, {ann, undialed}, true);
    row("a short number", 5, {Dictionary{{"FaxNumber", QString(51, '1')}}}, true);
    row("it is no fax", 1, {undialed}, false);
}

void TestDescribeJob::whatAFaxLacksIsTold()
{
    QFETCH(int, jobType);
    QFETCH(Array, recipients);
    const JobDescription description = describe(
        ticketOf({{"JobType", Dictionary{{"JobType", jobType}}}, {"FaxRecipientList", recipients}}),
        m_ppd.get());
    const DescribedSetting *line =
        lineAt(description, {kPMPrintSettingsTicket, keyOf("FaxRecipientList")});
    QVERIFY(line);
    QTEST(line->isLost, "isLost");
}

void TestDescribeJob::aBinderThatIsNotThereIsTold()
{
    const auto bare = PpdFile::open(samplePpd("bare"));
    QVERIFY(bare);
    const Ticket ticket = ticketOf({{"FinishingBindValue", 2}});
    const struct
    {
        const PpdFile *ppd;
        bool isLost;
        QString words;
    } rows[] = {
        {m_ppd.get(), false, "Left edge"},
        {bare.value().get(), true, "Left edge, but this device has no tape binder"},
        {nullptr, false, "Left edge"}, // nobody knows
    };
    for (const auto &row : rows) {
        const JobDescription description = describe(ticket, row.ppd);
        const DescribedSetting *line =
            lineAt(description, {kPMPrintSettingsTicket, keyOf("FinishingBindValue")});
        QVERIFY(line);
        QCOMPARE(line->words, row.words);
        QCOMPARE(line->isLost, row.isLost);
    }
}

void TestDescribeJob::findsSpecialSheets_data()
{
    const Table<Ticket, SpecialSheets> row{"ticket", "sheets"};
    constexpr int most = std::numeric_limits<int>::max();
    const PPDDictionary none{{"KVFrontCoverSheet", "None"}, {"KVBackCoverSheet", "None"}};

    row("nothing is chosen", Ticket(), SpecialSheets{Cover::Unsaid, Cover::Unsaid});
    row("a front cover",
        pagesOf({}, {}, {{"KVFrontCoverSheet", "Tray1"}, {"KVBackCoverSheet", "None"}}),
        SpecialSheets{Cover::Sheet, Cover::None});
    row("a cover from a tray that is not there",
        pagesOf({}, {}, {{"KVFrontCoverSheet", "None"}, {"KVBackCoverSheet", "Tray99"}}),
        SpecialSheets());
    row("lists",
        pagesOf(Array{insert(3, 2), insert(0, 1), insert(3, 1)},
                Array{exception(5, 8, 1), exception(9, 9, 3), exception(12, 99999),
                      exception(100000, 100001, 7)},
                none),
        SpecialSheets{
            .inserts = {{0, 1}, {3, 2}, {3, 1}},
            .exceptions = {{5, 8, false}, {9, 9, true}, {12, 99999, {}}, {100000, 100001, {}}}});
    row("inserts that are none",
        pagesOf(Array{insert(2, 0), insert(2, -5), "2", QVariant()}, "none", none),
        SpecialSheets());
    row("inserts whose page is before page 1, as the panel reads them",
        pagesOf(Array{insert(-5, 1), insert("2", 2), insert(qint64(1) << 40, 3)}, {}, none),
        SpecialSheets{.inserts = {{0, 1}, {0, 2}, {0, 3}}});
    row("inserts brought within bounds",
        pagesOf(Array{insert(1, 10000), insert(most, most), Dictionary{{"StartPage", 2}}}, {},
                none),
        SpecialSheets{.inserts = {{1, 9999}, {2, 1}, {most, 9999}}});
    row("exceptions that are none",
        pagesOf({}, Array{exception(-5, 0), exception(5, 4), exception(3, "4"), Dictionary()},
                none),
        SpecialSheets());
    row("exceptions that begin before page 1",
        pagesOf({}, Array{exception(0, 3), exception({}, 5), exception(5, 6)}, none),
        SpecialSheets{.exceptions = {{1, 3, {}}, {5, 6, {}}}});
    row("exceptions that overlap",
        pagesOf({}, Array{exception(4, most), exception(1, 4), exception(9, 9)}, none),
        SpecialSheets{.exceptions = {{1, 4, {}}, {9, 9, {}}}});
}

void TestDescribeJob::findsSpecialSheets()
{
    QFETCH(Ticket, ticket);
    QFETCH(SpecialSheets, sheets);

    QCOMPARE(describe(ticket, m_ppd.get()).sheets, sheets);
}

void TestDescribeJob::readsListsAgainWhenTheyChange()
{
    JobDescription description;
    const auto inserts = [&](const QVariant &list) {
        const Ticket ticket = pagesOf(list, {}), pageFormat;
        const JobToDescribe job{&ticket, &pageFormat, m_ppd.get(), m_bundle};
        KelvoDescribeJob(&job, &description);
        return description.sheets.inserts;
    };
    Array list{insert(1, 1)};
    QCOMPARE(inserts(list), (Inserts{{1, 1}}));
    list[0] = insert(2, 1);
    QCOMPARE(inserts(list), (Inserts{{2, 1}}));
    QCOMPARE(inserts({}), Inserts());
}

void TestDescribeJob::tellsThePageThatIsSentFirst()
{
    const Dictionary options{{"CoverSheet", true}, {"ShowRecipients", 2}, {"Size", 4}};
    const Array recipients{Dictionary{{"FirstName", "Ann"}, {"FaxNumber", "1"}}};
    const auto told = [&](int jobType, const QVariant &hasSheet) {
        Dictionary changed = options;
        changed.insert("CoverSheet", hasSheet);
        return describe(ticketOf({{"JobType", Dictionary{{"JobType", jobType}}},
                                  {"FaxOptions", changed},
                                  {"FaxRecipientList", recipients}}),
                        m_ppd.get())
            .leadingPage;
    };
    const std::optional<LeadingPage> page = told(5, true);
    QVERIFY(page);
    QCOMPARE(page->name, "Fax cover sheet");
    QCOMPARE(page->inShort, "with a cover sheet");
    QCOMPARE(page->size, QSizeF(595, 842));
    QCOMPARE(page->content.value("Recipients").toString(), "Ann");
    QVERIFY(!told(5, false));
    QVERIFY(!told(0, true));
}

void TestDescribeJob::findsNothingOnOtherDevices()
{
    const auto other = PpdFile::open(ppdWithoutTicket());
    QVERIFY(other);
    Ticket ticket = pagesOf(Array{insert(1, 1)}, Array{exception(1, 1)},
                            {{"KVFrontCoverSheet", "Tray1"}, {"Duplex", "DuplexTumble"}});
    ticket.entries[keyOf("JobLevelStock")] = {Dictionary{{"Color", 10}, {"CustomColor", "Salmon"}},
                                              "test"};
    for (const PpdFile *ppd : {static_cast<const PpdFile *>(other.value().get()),
                               static_cast<const PpdFile *>(nullptr)}) {
        const JobDescription description = describe(ticket, ppd);
        QCOMPARE(description.sheets, SpecialSheets());
        // What is lost there is said all the same.
        QVERIFY(!linesOf(description, false).filter("Inserts: after page 1").isEmpty());
        const DescribedSetting *color = lineAt(description, {kPPDChoices, "MediaColor"});
        QVERIFY(color && color->isOnlyInTicket
                && color->label.compare("paper color", Qt::CaseInsensitive) == 0);
        QVERIFY(!lineAt(description, {kPPDChoices, "KVFrontCoverSheet"}));
    }
}

void TestDescribeJob::describesOnTwoThreads()
{
    const Ticket ticket = pagesOf(Array{insert(1, 1)}, Array{exception(1, 4)},
                                  {{"KVFrontCoverSheet", "Tray1"}, {"MediaColor", "Blue"}});
    const auto work = [this, &ticket] {
        const auto ppd = PpdFile::open(fullPpd); // of its own
        QStringList lines;
        for (int i = 0; i < 20; ++i)
            lines = linesOf(describe(ticket, ppd.value().get()), false);
        return lines;
    };
    auto one = std::async(std::launch::async, work);
    auto other = std::async(std::launch::async, work);
    const QStringList lines = one.get();
    QCOMPARE(lines, other.get());
    QCOMPARE(lines, linesOf(describe(ticket, m_ppd.get()), false));
}

void TestDescribeJob::refusesNothing()
{
    const Ticket ticket;
    JobDescription description;
    const JobToDescribe without{nullptr, &ticket, m_ppd.get(), m_bundle};
    const JobToDescribe complete{&ticket, &ticket, m_ppd.get(), m_bundle};
    QCOMPARE(KelvoDescribeJob(nullptr, &description), paramErr);
    QCOMPARE(KelvoDescribeJob(&without, &description), paramErr);
    QCOMPARE(KelvoDescribeJob(&complete, nullptr), paramErr);
}

QTEST_GUILESS_MAIN(TestDescribeJob)
#include "test_describe_job.moc"
