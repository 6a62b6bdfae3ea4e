#include "delivery.h"
#include "pdf_samples.h"
#include "property_list.h"
#include "ticket_attachment.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>

using namespace kelvo;
using Code = Error::Code;

// What goes out of the house, before it does.
class TestPreparedJobs : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void carryTheTicketWhoseHashTheyName();
    void neverRepeatATicket();
    void replaceOlderTickets_data();
    void replaceOlderTickets();
    void refuseSecretsWhereTicketsAreNotRead_data();
    void refuseSecretsWhereTicketsAreNotRead();
    void cutPages_data();
    void cutPages();
    void takeTheirFilesWithThem();
    void goIntoAPrivateFolder();
    void keepWhatStandsThereOnAFullDisk();
    void sayWhenTheDiskIsFullBefore();

private:
    JobRequest request(const QString &ppd, int pages = 3,
                       const QMap<QString, QByteArray> &attachments = {});

    std::unique_ptr<QTemporaryDir> m_folder;
    std::shared_ptr<PpdFile> m_ppd;
};

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
    request.document = documentFromPdf(path, QStringLiteral("sample")).value();
    request.ppd = m_ppd.get();
    request.secretKeys = {{"Job/Password"}, {"Recipients"}};
    request.ticket.printSettings.ppdChoices["MediaType"] = "Transparency";
    request.ticket.printSettings.entries["Job"] = {Dictionary{{"Password", "1234"}}, "test"};
    return request;
}

static const QString reads =
    QStringLiteral(KELVO_SOURCE_DIR "/resources/ppds/kelvo-corvane-full.ppd");
static const QString readsNot = QStringLiteral(KELVO_TEST_DATA "/ppds/no-ticket.ppd");

static QString optionOf(const PreparedJob &job, const QString &name)
{
    for (const JobOption &option : job.options) {
        if (option.name == name)
            return option.value;
    }
    return {};
}

static QByteArray bytesOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
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
    for (const JobOption &option : job.value().options)
        QVERIFY(option.value == optionOf(job.value(), "kelvo-ticket")
                || !option.value.contains("1234"));

    const auto list = CFPropertyListCreateFromXMLData(attached, "ticket");
    QVERIFY2(list, qPrintable(list.reason()));
    auto ticket = ticketFileFromPropertyList(list.value(), "ticket");
    QVERIFY2(ticket, qPrintable(ticket.reason()));
    QCOMPARE(ticket.value().unknown.take(kTicketNonceKey).toByteArray().size(), 16);
    QCOMPARE(ticket.value(), wanted.ticket);
}

void TestPreparedJobs::neverRepeatATicket()
{
    const JobRequest wanted = request(reads);
    const auto one = prepareJob(wanted);
    const auto other = prepareJob(wanted);
    QVERIFY(one && other);
    QVERIFY(one.value().ticketSha256 != other.value().ticketSha256);
}

void TestPreparedJobs::replaceOlderTickets_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("same name") << "kelvo-ticket.plist";
    QTest::newRow("under another key") << "zzz (kelvo-ticket.plist)";
    QTest::newRow("of another file name") << "kelvo-ticket.plist (zzz)";
    QTest::newRow("in another case") << "Kelvo-Ticket.PLIST";
}

void TestPreparedJobs::replaceOlderTickets()
{
    QFETCH(QString, name);
    const QMap<QString, QByteArray> older{{name, "older"}, {"notes.txt", "mine"}};
    const auto job = prepareJob(request(reads, 3, older));
    QVERIFY2(job, qPrintable(job.reason()));
    QCOMPARE(attachmentsOf(job.value().pdfPath),
             (QMap<QString, QByteArray>{{"kelvo-ticket.plist", job.value().ticket},
                                        {"notes.txt", "mine"}}));
    QVERIFY(!bytesOf(job.value().pdfPath).contains("older"));

    // A queue that reads none gets none, also not the older one.
    JobRequest open = request(readsNot, 3, older);
    open.ticket.printSettings.entries.clear();
    const auto plain = prepareJob(open);
    QVERIFY2(plain, qPrintable(plain.reason()));
    QCOMPARE(attachmentsOf(plain.value().pdfPath).keys(), QStringList{"notes.txt"});
}

void TestPreparedJobs::refuseSecretsWhereTicketsAreNotRead_data()
{
    QTest::addColumn<QString>("ppd");
    QTest::addColumn<QString>("secret");
    QTest::addColumn<bool>("isFax");
    QTest::addColumn<bool>("isRefused");
    QTest::newRow("passcode, read") << reads << "1" << false << false;
    QTest::newRow("fax, read") << reads << "" << true << false;
    QTest::newRow("nothing, not read") << readsNot << "" << false << false;
    QTest::newRow("passcode, not read") << readsNot << "1" << false << true;
    QTest::newRow("fax, not read") << readsNot << "" << true << true;
    QTest::newRow("nothing, no PPD") << QString() << "" << false << false;
    QTest::newRow("passcode, no PPD") << QString() << "1" << false << true;
    QTest::newRow("fax, no PPD") << QString() << "" << true << true;
}

void TestPreparedJobs::refuseSecretsWhereTicketsAreNotRead()
{
    QFETCH(QString, ppd);
    QFETCH(QString, secret);
    QFETCH(bool, isFax);
    QFETCH(bool, isRefused);
    JobRequest wanted = request(ppd);
    wanted.ticket.printSettings.entries["Job"].value = Dictionary{{"Password", secret}};
    if (isFax)
        wanted.ticket.printSettings.entries["Recipients"] = {Array{"030"}, "test"};
    const auto job = prepareJob(wanted);
    QCOMPARE(!job, isRefused);
    if (!job) {
        QCOMPARE(job.error().code, Code::Unsupported);
        QVERIFY(job.error().detail.contains("KelvoTicket"));
    } else if (ppd != reads) {
        QVERIFY(optionOf(job.value(), "kelvo-ticket").isEmpty());
        QVERIFY(attachmentsOf(job.value().pdfPath).isEmpty());
        QCOMPARE(bytesOf(job.value().pdfPath), bytesOf(wanted.document.pdfPath()));
    }
}

void TestPreparedJobs::cutPages_data()
{
    QTest::addColumn<QString>("ranges");
    QTest::addColumn<QList<int>>("pages"); // empty: refused
    QTest::newRow("all") << "" << QList<int>{1, 2, 3, 4, 5};
    QTest::newRow("blanks") << "  " << QList<int>{1, 2, 3, 4, 5};
    QTest::newRow("some") << "2-3,5" << QList<int>{2, 3, 5};
    QTest::newRow("one too many") << "5-6" << QList<int>{5};
    QTest::newRow("not there") << "6" << QList<int>();
    QTest::newRow("page 0") << "0" << QList<int>();
}

void TestPreparedJobs::cutPages()
{
    QFETCH(QString, ranges);
    QFETCH(QList<int>, pages);
    JobRequest wanted = request(reads, 5);
    wanted.settings.pageRanges = ranges;
    wanted.ticket.printSettings.entries[kPMPageRangesKey] = {ranges, "test"};
    const auto job = prepareJob(wanted);
    QCOMPARE(!job, pages.isEmpty());
    if (!job) {
        QCOMPARE(job.error().code, Code::OutOfRange);
        return;
    }
    QCOMPARE(pagesOf(job.value().pdfPath), pages);
    // The device must not cut them again.
    QVERIFY(!job.value().ticket.contains(kPMPageRangesKey.toUtf8()));
}

void TestPreparedJobs::takeTheirFilesWithThem()
{
    QString path;
    {
        const auto job = prepareJob(request(reads));
        QVERIFY(job);
        path = job.value().pdfPath;
        QVERIFY(QFile::exists(path));
    }
    QVERIFY(!QFile::exists(path));
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

// A limit on file sizes fails like a full disk.
static bool limitFileSize(rlim_t bytes)
{
    std::signal(SIGXFSZ, SIG_IGN);
    rlimit limit = {};
    if (::getrlimit(RLIMIT_FSIZE, &limit) != 0)
        return false;
    limit.rlim_cur = bytes;
    return ::setrlimit(RLIMIT_FSIZE, &limit) == 0;
}

void TestPreparedJobs::keepWhatStandsThereOnAFullDisk()
{
    const auto job = prepareJob(request(reads));
    QVERIFY(job);
    const QString folder = m_folder->filePath("out");
    QVERIFY(deliverToFolder(job.value(), folder));
    const auto other = prepareJob(request(reads, 200));
    QVERIFY(other);
    for (const rlim_t room : {0U, 500U, 4096U}) {
        QVERIFY(limitFileSize(room));
        const auto delivered = deliverToFolder(other.value(), folder);
        QVERIFY(limitFileSize(RLIM_INFINITY));
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
    QVERIFY(limitFileSize(room));
    const auto delivered = deliverToFolder(unbalanced, folder);
    QVERIFY(limitFileSize(RLIM_INFINITY));
    QVERIFY(!delivered);
    QCOMPARE(bytesOf(folder + "/document.pdf"), bytesOf(job.value().pdfPath));
    QCOMPARE(QDir(folder).entryList(QDir::Files | QDir::Hidden).size(), 3);
}

void TestPreparedJobs::sayWhenTheDiskIsFullBefore()
{
    const JobRequest wanted = request(reads, 200);
    QVERIFY(limitFileSize(500));
    const auto job = prepareJob(wanted);
    QVERIFY(limitFileSize(RLIM_INFINITY));
    QVERIFY(!job);
    QCOMPARE(job.error().code, Code::NotWritable);
    QVERIFY(prepareJob(wanted));
}

QTEST_GUILESS_MAIN(TestPreparedJobs)
#include "test_prepared_jobs.moc"
