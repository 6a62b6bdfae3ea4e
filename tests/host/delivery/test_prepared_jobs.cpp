#include "delivery.h"
#include "files.h"
#include "pdf_ahead.h"
#include "pdf_samples.h"
#include "property_list.h"
#include "sample_documents.h"
#include "sample_ppds.h"
#include "table.h"
#include "ticket_attachment.h"

#include <QCryptographicHash>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>

using namespace kelvo;
using kelvo::test::pdfOf;
using kelvo::test::updatedPdf;
using Code = Error::Code;

static PdfLayout pagesAsTheyAre(std::initializer_list<int> pages)
{
    PdfLayout layout;
    for (const int page : pages)
        layout.push_back({.pages = {{.page = page}}, .isAsItIs = true});
    return layout;
}

// What goes out of the house, before it does.
class TestPreparedJobs : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase_data();
    void init();
    void carryTheTicketWhoseHashTheyName();
    void takeOlderTicketsOutWhereverTheyHang_data();
    void takeOlderTicketsOutWhereverTheyHang();
    void leaveNothingOfEarlierRevisions_data();
    void leaveNothingOfEarlierRevisions();
    void keepOtherFiles();
    void refuseTicketsThatCannotBeTakenOut();
    void refuseSecretsWhereTicketsAreNotRead_data();
    void refuseSecretsWhereTicketsAreNotRead();
    void cutPages();
    void goIntoAPrivateFolder();
    void keepWhatStandsThereOnAFullDisk();
    void sayWhenTheDiskIsFullBefore();

private:
    Result<Document> open(const QString &path);
    Document documentFrom(const QByteArray &pdf);
    JobRequest request(const QString &ppd, int pages = 3,
                       const QMap<QString, QByteArray> &attachments = {});

    std::unique_ptr<QTemporaryDir> m_folder;
    std::shared_ptr<PpdFile> m_ppd;
};

// Everything holds for documents that are read again and for those that a helper has kept.
void TestPreparedJobs::initTestCase_data()
{
    const Table<bool> row{"isKept"};
    row("read again", false);
    row("kept", true);
}

Result<Document> TestPreparedJobs::open(const QString &path)
{
    QFETCH_GLOBAL(bool, isKept);
    const std::atomic_bool notCancelled = false;
    return openDocument(
        {path, QStringLiteral("sample")}, notCancelled,
        isKept ? std::make_shared<PdfAhead>(PdfHelpers::start().value(), kTicketAttachmentName)
               : nullptr);
}

void TestPreparedJobs::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
}

JobRequest TestPreparedJobs::request(const QString &ppd, int pages,
                                     const QMap<QString, QByteArray> &attachments)
{
    const QString path = m_folder->filePath("sample.pdf");
    writePdf(path, pages, attachments);
    m_ppd = ppd.isEmpty() ? nullptr : PpdFile::open(ppd).value();
    JobRequest request;
    request.document = open(path).value();
    request.ppd = m_ppd.get();
    request.secretKeys = {{"Job/Password"}, {"Recipients"}};
    request.ticket.printSettings.ppdChoices["MediaType"] = "Transparency";
    request.ticket.printSettings.entries["Job"] = {Dictionary{{"Password", "1234"}}, "test"};
    return request;
}

Document TestPreparedJobs::documentFrom(const QByteArray &pdf)
{
    QFile file(m_folder->filePath("made.pdf"));
    if (!file.open(QIODevice::WriteOnly) || file.write(pdf) != pdf.size())
        return {};
    file.close();
    const auto document = open(file.fileName());
    return document ? document.value() : Document();
}

static const QString reads = samplePpd("full");
static const QString readsNot = ppdWithoutTicket();

static QString optionOf(const PreparedJob &job, const QString &name)
{
    for (const JobOption &option : job.options) {
        if (option.name == name)
            return option.value;
    }
    return {};
}

static mode_t modeOf(const QString &path)
{
    struct stat status = {};
    ::stat(qPrintable(path), &status);
    return status.st_mode & 0777;
}

void TestPreparedJobs::carryTheTicketWhoseHashTheyName()
{
    JobRequest wanted = request(reads, 3, {{"notes.txt", "mine"}});
    const auto job = prepareJob(wanted);
    QVERIFY2(job, qPrintable(job.reason()));
    const auto attachments = attachmentsOf(job.value().pdfPath);
    QCOMPARE(attachments.keys(), (QStringList{"kelvo-ticket.plist", "notes.txt"}));
    const QByteArray attached = attachments["kelvo-ticket.plist"];
    QCOMPARE(attached, job.value().ticket);
    const QByteArray hash = QCryptographicHash::hash(attached, QCryptographicHash::Sha256);
    QCOMPARE(job.value().ticketSha256, hash);
    QCOMPARE(optionOf(job.value(), "kelvo-ticket"), "1:" + hash.toHex() + ":passcode");
    QCOMPARE(modeOf(job.value().pdfPath), 0600U);
    QVERIFY(job.value().hasPasscode && !job.value().isFax);
    // What was kept is written beside the document.
    QFETCH_GLOBAL(bool, isKept);
    const auto folder = [](const QString &path) { return QFileInfo(path).path(); };
    QCOMPARE(folder(job.value().pdfPath) == folder(wanted.document.pdfPath()), isKept);
    for (const JobOption &option : job.value().options)
        QVERIFY(option.value == optionOf(job.value(), "kelvo-ticket")
                || !option.value.contains("1234"));

    const auto list = CFPropertyListCreateFromXMLData(attached, "ticket");
    QVERIFY2(list, qPrintable(list.reason()));
    auto ticket = ticketFileFromPropertyList(list.value(), "ticket");
    QVERIFY2(ticket, qPrintable(ticket.reason()));
    QCOMPARE(ticket.value().unknown.take(kTicketNonceKey).toByteArray().size(), 16);
    QCOMPARE(ticket.value(), wanted.ticket);

    // The same job is another ticket the next time.
    const auto next = prepareJob(wanted);
    QVERIFY(next && next.value().ticketSha256 != hash);
}

// Objects 1 to 3 are the catalog, the page tree and the page; each form adds what it
// needs, with OLD for the ticket's entry and STREAM for what is in it.
void TestPreparedJobs::takeOlderTicketsOutWhereverTheyHang_data()
{
    // catalog: entries; objects: from number 4
    const Table<QByteArray, QByteArray, QList<QByteArray>> row{"catalog", "page", "objects"};

    const QByteArray stream = "<< /Type /EmbeddedFile /Length 6 >>\nstream\nsecret\nendstream";
    struct Name
    {
        const char *what;
        QByteArray entries;
    };
    const Name names[] = {
        {"/F", "/F (kelvo-ticket.plist)"},
        {"/UF", "/F (x.txt) /UF (kelvo-ticket.plist)"},
        {"/Unix", "/F (x.txt) /Unix (kelvo-ticket.plist)"},
        {"UTF-16",
         "/F (x.txt) /UF <FEFF006B0065006C0076006F002D007400690063006B00650074002E"
         "0070006C006900730074>"},
        {"UTF-16, bytes swapped",
         "/F (x.txt) /UF <FFFE6B0065006C0076006F002D007400690063006B0065"
         "0074002E0070006C00690073007400>"},
        {"UTF-8", "/F (x.txt) /UF <EFBBBF6B656C766F2D7469636B65742E706C697374>"},
        {"capitals", "/F (KELVO-Ticket.PList)"},
        {"with folders", "/F (/C/tmp/kelvo-ticket.plist)"},
        {"with folders of Windows", "/F (C:\\\\tmp\\\\kelvo-ticket.plist)"},
        {"as hexadecimal digits", "/#46 <6b656c766f2d7469636b65742e706c697374>"},
        {"name elsewhere", "/F 6 0 R"},
    };
    struct Place
    {
        const char *what;
        QByteArray catalog, page = {};
        QList<QByteArray> objects = {};
    };
    const Place places[] = {
        {"list", "/Names << /EmbeddedFiles << /Names [(k) OLD] >> >>"},
        {"unsorted list",
         "/Names << /EmbeddedFiles << /Names [(z) << /Type /Filespec /F (z) >> (k) OLD (a) << "
         "/Type /Filespec /F (a) >>] >> >>"},
        {"list of an odd length", "/Names << /EmbeddedFiles << /Names [(k) OLD (z)] >> >>"},
        {"tree without limits",
         "/Names << /EmbeddedFiles << /Kids [<< /Kids [<< /Names [(k) OLD] >>] >>] >> >>"},
        {"tree with wrong limits",
         "/Names << /EmbeddedFiles << /Kids [<< /Limits [(x) (y)] /Names [(k) OLD] >>] >> >>"},
        {"tree in a circle",
         "/Names << /EmbeddedFiles 7 0 R >>",
         "",
         {"<< /Kids [7 0 R 8 0 R] >>", "<< /Names [(k) OLD] /Kids [7 0 R] >>"}},
        {"twice", "/Names << /EmbeddedFiles << /Names [(k) OLD (k) OLD] >> >>"},
        {"document's files", "/AF [OLD]"},
        {"document's file", "/AF OLD"},
        {"page's files", "", "/AF [OLD]", {}},
        {"structure's files",
         "/StructTreeRoot 7 0 R",
         "",
         {"<< /Type /StructTreeRoot /K [<< /S /Document /P 7 0 R /AF [OLD] >>] >>"}},
        {"a picture's files",
         "",
         "/Resources << /XObject << /I 7 0 R >> >>",
         {"<< /Type /XObject /Subtype /Form /BBox [0 0 9 9] /AF [OLD] /Length 0 "
          ">>\nstream\n\nendstream"}},
        {"marked content", "", "/Resources << /Properties << /M OLD >> >>", {}},
        {"note", "",
         "/Annots [<< /Type /Annot /Subtype /FileAttachment /Rect [0 0 9 9] /FS OLD >>]"},
        {"note elsewhere",
         "",
         "/Annots 7 0 R",
         {"[8 0 R 9 0 R]",
          "<< /Type /Annot /Subtype /FileAttachment /Rect [0 0 9 9] /FS OLD /Popup 9 0 R >>",
          "<< /Type /Annot /Subtype /Popup /Rect [0 0 9 9] /Parent 8 0 R >>"}},
        {"files of a link", "",
         "/Annots [<< /Type /Annot /Subtype /Link /Rect [0 0 9 9] /AF [OLD] /A << /S /Launch /F "
         "OLD >> >>]"},
        {"film", "",
         "/Annots [<< /Type /Annot /Subtype /RichMedia /Rect [0 0 9 9] /RichMediaContent << "
         "/Assets << /Names [(k) OLD] >> >> >>]"},
        {"collection",
         "/Collection << /View /D >> /Names << /EmbeddedFiles << /Names [(k) OLD] >> >>"},
        {"related file",
         "/Names << /EmbeddedFiles << /Names [(a) << /Type /Filespec /F (a) /EF << /F STREAM >> "
         "/RF << /F [(kelvo-ticket.plist) STREAM] >> >>] >> >>"},
        {"key of a list",
         "/Names << /EmbeddedFiles << /Names [(z) << /Type /Filespec /F (z) >> "
         "(kelvo-ticket.plist) << /Type /Filespec /F (x) /EF << /F STREAM >> >>] >> >>"},
        {"key of a list, and a file of the page",
         "/Names << /EmbeddedFiles << /Names [(kelvo-ticket.plist) 7 0 R] >> >>",
         "/AF [7 0 R]",
         {"<< /Type /Filespec /F (x) /EF << /F STREAM >> >>"}},
        {"shared with another file", "/AF [<< /Type /Filespec /F (b) /EF << /F STREAM >> >> OLD]"},
    };
    const auto add = [&](const QByteArray &what, const QByteArray &name, const Place &place,
                         bool isDirect, const QByteArray &type) {
        const QByteArray file = "<< " + type + name + " /EF << /F 5 0 R >> >>";
        const auto filled = [&](QByteArray text) {
            return text.replace("OLD", isDirect ? file : "4 0 R").replace("STREAM", "5 0 R");
        };
        QList<QByteArray> objects = {file, stream, "(kelvo-ticket.plist)"};
        for (const QByteArray &object : place.objects)
            objects << filled(object);
        row(what.constData(), filled(place.catalog), filled(place.page), objects);
    };
    const QByteArray type = "/Type /Filespec ";
    for (const Name &name : names)
        add(QByteArray("named by ") + name.what, name.entries, places[0], false, type);
    for (const Place &place : places) {
        add(place.what, names[0].entries, place, false, type);
        add(QByteArray(place.what) + ", directly", names[0].entries, place, true, {});
    }
}

void TestPreparedJobs::takeOlderTicketsOutWhereverTheyHang()
{
    QFETCH(QByteArray, catalog);
    QFETCH(QByteArray, page);
    QFETCH(QList<QByteArray>, objects);
    const auto pdf = pdfOf(
        QList<QByteArray>{"<< /Type /Catalog /Pages 2 0 R " + catalog + " >>",
                          "<< /Type /Pages /Kids [3 0 R] /Count 1 >>",
                          "<< /Type /Page /Parent 2 0 R /MediaBox [0 0 101 200] " + page + " >>"}
        + objects);
    JobRequest wanted = request(reads);
    wanted.document = documentFrom(pdf);
    QVERIFY(!wanted.document.isNull());

    const auto job = prepareJob(wanted);

    QVERIFY2(job, qPrintable(job.reason()));
    QCOMPARE(attachmentsOf(job.value().pdfPath).value("kelvo-ticket.plist"), job.value().ticket);
    QCOMPARE(namesInside(job.value().pdfPath).count("kelvo-ticket.plist"), 3); // F, UF and the key
    QVERIFY(!streamsInside(job.value().pdfPath).contains("secret"));
    QCOMPARE(pagesOf(job.value().pdfPath), QList<int>{1});

    // Nor does a queue get it that reads none.
    wanted.ppd = nullptr;
    wanted.ticket.printSettings.entries.clear();
    const auto plain = prepareJob(wanted);
    QVERIFY2(plain, qPrintable(plain.reason()));
    QCOMPARE(namesInside(plain.value().pdfPath).count("kelvo-ticket.plist"), 0);
    QVERIFY(!streamsInside(plain.value().pdfPath).contains("secret"));
}

using Objects = QMap<int, QByteArray>; // by number

// Objects 4 to 6 of the first revision are the list of files, the ticket's entry and what
// is in it.
void TestPreparedJobs::leaveNothingOfEarlierRevisions_data()
{
    const Table<Objects> row{"update"};
    row("all overwritten", {{4, "<< >>"}, {5, "null"}, {6, "null"}});
    row("only the list overwritten", {{4, "<< >>"}});
    row("without a name", {{4, "<< >>"}, {5, "null"}});
    row("given another name", {{5, "<< /Type /Filespec /F (notes.txt) /EF << /F 7 0 R >> >>"}});
}

void TestPreparedJobs::leaveNothingOfEarlierRevisions()
{
    QFETCH(Objects, update);
    const auto embedded = [](const char *sixBytes) {
        return QByteArray("<< /Type /EmbeddedFile /Length 6 >>\nstream\n") + sixBytes
            + "\nendstream";
    };
    const QByteArray first = pdfOf(
        {"<< /Type /Catalog /Pages 2 0 R /Names << /EmbeddedFiles 4 0 R >> >>",
         "<< /Type /Pages /Kids [3 0 R] /Count 1 >>",
         "<< /Type /Page /Parent 2 0 R /MediaBox [0 0 101 200] >>", "<< /Names [(k) 5 0 R] >>",
         "<< /Type /Filespec /F (kelvo-ticket.plist) /EF << /F 6 0 R >> >>", embedded("secret"),
         embedded("notice")});
    JobRequest wanted = request(readsNot);
    wanted.document = documentFrom(updatedPdf(first, update));
    QVERIFY(!wanted.document.isNull() && !wanted.document.isRepaired());
    wanted.ticket.printSettings.entries.clear();

    for (const QString &ppd : {readsNot, reads}) {
        m_ppd = PpdFile::open(ppd).value();
        wanted.ppd = m_ppd.get();
        const auto job = prepareJob(wanted);
        QVERIFY2(job, qPrintable(job.reason()));
        QCOMPARE(namesInside(job.value().pdfPath).contains("kelvo-ticket.plist"), ppd == reads);
        QVERIFY(!streamsInside(job.value().pdfPath).contains("secret"));
        QVERIFY(!bytesOf(job.value().pdfPath).contains("secret"));
        QCOMPARE(streamsInside(job.value().pdfPath).contains("notice"),
                 update.value(5).contains("notes"));
        QCOMPARE(pagesOf(job.value().pdfPath), QList<int>{1});
    }
}

void TestPreparedJobs::keepOtherFiles()
{
    // Out of order, two of one name, and one that is only called like a ticket's reader.
    const auto file = [](const char *name, int stream) {
        return QByteArray("<< /Type /Filespec /F (") + name + ") /EF << /F "
            + QByteArray::number(stream) + " 0 R >> >>";
    };
    const auto stream = [](const char *bytes) {
        return QByteArray("<< /Type /EmbeddedFile /Length 1 >>\nstream\n") + bytes + "\nendstream";
    };
    const QByteArray link = "<< /Subtype /Link /Rect [0 0 9 9] /Contents (kelvo-ticket.plist) >>";
    JobRequest wanted = request(reads);
    wanted.document = documentFrom(
        pdfOf({"<< /Type /Catalog /Pages 2 0 R /Names << /EmbeddedFiles << /Names [(z) "
                   + file("z", 4) + " (a) " + file("a", 5) + " (a) " + file("b", 6)
                   + " (my-kelvo-ticket.plist) " + file("my-kelvo-ticket.plist", 7) + "] >> >> >>",
               "<< /Type /Pages /Kids [3 0 R] /Count 1 >>",
               "<< /Type /Page /Parent 2 0 R /MediaBox [0 0 101 200] /Annots [" + link + "] >>",
               stream("1"), stream("2"), stream("3"), stream("4")}));

    const auto job = prepareJob(wanted);

    QVERIFY2(job, qPrintable(job.reason()));
    QMap<QString, QByteArray> kept = attachmentsOf(job.value().pdfPath);
    QCOMPARE(kept.take("kelvo-ticket.plist"), job.value().ticket);
    QCOMPARE(kept,
             (QMap<QString, QByteArray>{
                 {"z", "1"}, {"a", "2"}, {"a_ (b)", "3"}, {"my-kelvo-ticket.plist", "4"}}));
}

// What cannot go is found when it is looked at again, and nothing goes out.
void TestPreparedJobs::refuseTicketsThatCannotBeTakenOut()
{
    JobRequest wanted = request(reads);
    wanted.document = documentFrom(
        pdfOf({"<< /Type /Catalog /Pages 2 0 R /F (kelvo-ticket.plist) /EF << /F 4 0 R >> >>",
               "<< /Type /Pages /Kids [3 0 R] /Count 1 >>",
               "<< /Type /Page /Parent 2 0 R /MediaBox [0 0 101 200] >>",
               "<< /Length 6 >>\nstream\nsecret\nendstream"}));
    QVERIFY(!wanted.document.isNull());

    const auto job = prepareJob(wanted);

    QVERIFY(!job);
    QCOMPARE(job.error().code, Code::Refused);
    QVERIFY2(job.error().detail.contains("older file kelvo-ticket.plist"),
             qPrintable(job.error().text()));
}

void TestPreparedJobs::refuseSecretsWhereTicketsAreNotRead_data()
{
    const Table<QString, QString, bool, bool> row{"ppd", "secret", "isFax", "isRefused"};
    row("passcode, read", reads, "1", false, false);
    row("fax, read", reads, "", true, false);
    row("nothing, not read", readsNot, "", false, false);
    row("passcode, not read", readsNot, "1", false, true);
    row("fax, not read", readsNot, "", true, true);
    row("nothing, no PPD", {}, "", false, false);
    row("passcode, no PPD", {}, "1", false, true);
    row("fax, no PPD", {}, "", true, true);
}

void TestPreparedJobs::refuseSecretsWhereTicketsAreNotRead()
{
    QFETCH(QString, ppd);
    QFETCH(QString, secret);
    QFETCH(bool, isFax);
    JobRequest wanted = request(ppd);
    wanted.ticket.printSettings.entries["Job"].value = Dictionary{{"Password", secret}};
    if (isFax)
        wanted.ticket.printSettings.entries["Recipients"] = {Array{"030"}, "test"};
    const auto job = prepareJob(wanted);
    QTEST(!job, "isRefused");
    if (!job) {
        QCOMPARE(job.error().code, Code::Unsupported);
        QVERIFY(job.error().detail.contains("KelvoTicket"));
    } else if (ppd != reads) {
        QVERIFY(optionOf(job.value(), "kelvo-ticket").isEmpty());
        QVERIFY(attachmentsOf(job.value().pdfPath).isEmpty());
        QCOMPARE(pagesOf(job.value().pdfPath), pagesOf(wanted.document.pdfPath()));
    }
}

void TestPreparedJobs::cutPages()
{
    JobRequest wanted = request(reads, 5);
    wanted.settings.pageRanges = "2-3,5";
    wanted.ticket.printSettings.entries[kPMPageRangesKey] = {"2-3,5", "test"};
    wanted.ticket.printSettings.entries[kPMPagesPerSideKey] = {4, "test"};
    wanted.layout = pagesAsTheyAre({2, 6});
    QCOMPARE(prepareJob(wanted).error().code, Code::OutOfRange);
    wanted.layout = pagesAsTheyAre({2, 3, 5});
    const auto job = prepareJob(wanted);
    QVERIFY2(job, qPrintable(job.reason()));
    QCOMPARE(pagesOf(job.value().pdfPath), (QList<int>{2, 3, 5}));
    // The device must not do it again.
    QVERIFY(!job.value().ticket.contains(kPMPageRangesKey.toUtf8()));
    QVERIFY(!job.value().ticket.contains(kPMPagesPerSideKey.toUtf8()));
}

void TestPreparedJobs::goIntoAPrivateFolder()
{
    const auto job = prepareJob(request(reads));
    QVERIFY(job);
    const QString folder = m_folder->filePath("out");
    const auto delivered = deliverToFolder(job.value(), folder);
    QVERIFY2(delivered, qPrintable(delivered.reason()));
    QCOMPARE(QDir(folder).entryList(QDir::Files | QDir::Hidden),
             (QStringList{"document.pdf", "options", "ticket.plist"}));
    QCOMPARE(modeOf(folder), 0700U);
    for (const char *name : {"/document.pdf", "/options", "/ticket.plist"})
        QCOMPARE(modeOf(folder + name), 0600U);
    QCOMPARE(bytesOf(folder + "/document.pdf"), bytesOf(job.value().pdfPath));
    QCOMPARE(bytesOf(folder + "/ticket.plist"), job.value().ticket);
    QCOMPARE(bytesOf(folder + "/options"),
             "MediaType=Transparency\ncopies=1\nkelvo-ticket=1:" + job.value().ticketSha256.toHex()
                 + ":passcode\n");

    QCOMPARE(deliverToFolder(job.value(), m_folder->filePath("no/such")).error().code,
             Code::NotWritable);
}

void TestPreparedJobs::keepWhatStandsThereOnAFullDisk()
{
    const auto job = prepareJob(request(reads));
    QVERIFY(job);
    const QString folder = m_folder->filePath("out");
    QVERIFY(deliverToFolder(job.value(), folder));
    const auto other = prepareJob(request(reads, 200));
    QVERIFY(other);
    const auto onFullDisk = [&folder](rlim_t room, const PreparedJob &sent) {
        const FullDisk full(room);
        return deliverToFolder(sent, folder);
    };
    for (const rlim_t room : {0U, 500U, 4096U}) {
        const auto delivered = onFullDisk(room, other.value());
        QVERIFY(!delivered);
        QCOMPARE(delivered.error().code, Code::NotWritable);
        QVERIFY(delivered.error().where.startsWith(folder));
        QCOMPARE(bytesOf(folder + "/document.pdf"), bytesOf(job.value().pdfPath));
        QCOMPARE(bytesOf(folder + "/ticket.plist"), job.value().ticket);
        QCOMPARE(QDir(folder).entryList(QDir::Files | QDir::Hidden).size(), 3);
    }

    // Room for the document but not for what belongs to it.
    PreparedJob unbalanced = other.value();
    const auto room = rlim_t(QFileInfo(unbalanced.pdfPath).size()) + 1;
    unbalanced.ticket = QByteArray(qsizetype(room) * 2, 'x');
    const auto delivered = onFullDisk(room, unbalanced);
    QVERIFY(!delivered);
    QCOMPARE(bytesOf(folder + "/document.pdf"), bytesOf(job.value().pdfPath));
    QCOMPARE(QDir(folder).entryList(QDir::Files | QDir::Hidden).size(), 3);
}

void TestPreparedJobs::sayWhenTheDiskIsFullBefore()
{
    const JobRequest wanted = request(reads, 200);
    QVERIFY(prepareJob(wanted)); // a helper that runs already does not know of the limit
    {
        const FullDisk full(500);
        const auto job = prepareJob(wanted);
        QVERIFY(!job);
        QCOMPARE(job.error().code, Code::NotWritable);
    }
    QVERIFY(prepareJob(wanted));
}

QTEST_GUILESS_MAIN(TestPreparedJobs)
#include "test_prepared_jobs.moc"
