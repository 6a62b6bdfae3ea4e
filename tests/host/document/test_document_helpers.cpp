#include "confinement.h"
#include "document.h"
#include "document_helper.h"
#include "page_drawing.h"
#include "pdf_ahead.h"
#include "sample_documents.h"
#include "table.h"
#include "texts.h"
#include "ticket_attachment.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTest>

#include <csignal>
#include <fcntl.h>
#include <linux/landlock.h>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace kelvo;
using namespace kelvo::test;

Q_DECLARE_METATYPE(kelvo::Error::Code)
Q_DECLARE_METATYPE(kelvo::PageProblem)

class TestDocumentHelpers : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { setDocumentHelperFolder({}); }
    void areMissedWithAMessage();
    void areForTheirOwnVersionOnly();
    void speakTheProgramsLanguage();
    void areAskedForEverything();
    void openNothingElse_data();
    void openNothingElse();
    void areDoneWithoutWhereTheyEndBefore();
    void saySoWhenTheyFail_data();
    void saySoWhenTheyFail();
};

namespace {

// The libraries of this process that read or draw documents.
QStringList readersHere()
{
    QFile maps(QStringLiteral("/proc/self/maps"));
    if (!maps.open(QIODevice::ReadOnly))
        return {QStringLiteral("?")};
    const QString text = QString::fromUtf8(maps.readAll());
    QStringList found;
    for (const char *name : {"libqpdf", "libpoppler", "libcairo", "libpango"}) {
        if (text.contains(QLatin1String(name)))
            found << QLatin1String(name);
    }
    return found;
}

QString sample()
{
    return file("pdf", pdfWithPages({filled("1 0 0")}));
}

QString helperFolder()
{
    return QStringLiteral(KELVO_BUILD_DIR "/lib");
}

// A folder in which each helper is the shell script `script`.
QString scriptedHelpers(const QByteArray &script)
{
    QDir().mkpath(QStringLiteral("helpers"));
    for (const char *name : {"kelvo-pdf-pages", "kelvo-converter", "kelvo-page-drawing"}) {
        const QString path = file(QStringLiteral("helpers/") + QLatin1String(name), script);
        QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }
    return QFileInfo(QStringLiteral("helpers")).absoluteFilePath();
}

Result<Document> open(const QString &path)
{
    const std::atomic_bool notCancelled = false;
    return openDocument({path, {}}, notCancelled);
}

} // namespace

void TestDocumentHelpers::areMissedWithAMessage()
{
    for (const auto &[folder, code, words] :
         {std::tuple(QStringLiteral("/nowhere"), Error::Code::NotFound, "install kelvo-print anew"),
          {scriptedHelpers("this is no program"), Error::Code::NotReadable, "does not start"}}) {
        setDocumentHelperFolder(folder);
        for (const QString &path : {sample(), file("txt", "a text")}) {
            const Result<Document> document = open(path);
            QVERIFY(!document);
            QCOMPARE(document.error().code, code);
            QVERIFY2(document.error().detail.contains(words), qPrintable(document.error().text()));
        }
        QVERIFY(!makeOutgoingPdf(sample(), {}, ticketAttachment({}),
                                 QFileInfo("out").absoluteFilePath()));
        PageDrawing drawing(sample());
        QCOMPARE(drawing.draw(1, {100, 100}, [] { return false; }).problem,
                 PageProblem::NotDrawable);
    }
}

void TestDocumentHelpers::areForTheirOwnVersionOnly()
{
    setDocumentHelperFolder(scriptedHelpers("#!/bin/sh\nexec \"" + helperFolder().toUtf8()
                                            + "/${0##*/}\" 0.9 \"$2\"\n"));

    const Result<Document> document = open(sample());

    QVERIFY(!document);
    QVERIFY2(document.error().detail.contains("install kelvo-print anew"),
             qPrintable(document.error().text()));
}

void TestDocumentHelpers::speakTheProgramsLanguage()
{
    loadTexts(QStringLiteral(TEXTS), {"xx"});
    const auto backToEnglish = qScopeGuard([] { loadTexts({}, {}); });
    const auto document = open(file("pdf", pdfWithPages({})));
    QVERIFY(!document);
    QCOMPARE(document.error().detail, "nu pago");
}

// The process with the user's window and secrets reads no document itself.
void TestDocumentHelpers::areAskedForEverything()
{
    const Result<Document> document = open(sample());
    QVERIFY2(document, qPrintable(document.reason()));
    QVERIFY(open(file("txt", "a text")));
    QVERIFY(
        makeOutgoingPdf(sample(), {}, ticketAttachment({}), QFileInfo("out").absoluteFilePath()));
    PageDrawing drawing(document.value().pdfPath());
    QVERIFY(!drawing.draw(1, {100, 100}, [] { return false; }).image.isNull());

    QCOMPARE(readersHere(), QStringList());
}

void TestDocumentHelpers::openNothingElse_data()
{
    // mayRead: what is in a folder that is allowed
    const Table<bool> row{"mayRead"};
    row("but open files", false);
    row("but what is allowed", true);
}

void TestDocumentHelpers::openNothingElse()
{
    QFETCH(bool, mayRead);
    QVERIFY(QDir().mkpath("allowed") && QDir().mkpath("folder"));
    const QByteArray allowed = file("allowed/file", "x").toLocal8Bit();
    const QByteArray other = file("other", "x").toLocal8Bit();
    const QByteArray made = QFileInfo("folder/made").absoluteFilePath().toLocal8Bit();
    const bool hasLandlock =
        ::syscall(SYS_landlock_create_ruleset, nullptr, 0, LANDLOCK_CREATE_RULESET_VERSION) > 0;

    // A bit for each that works in a process that is confined.
    enum { OpenFile = 1, Allowed = 2, Other = 4, Made = 8, Removed = 16 };
    const pid_t child = ::fork();
    QVERIFY(child >= 0);
    if (child == 0) {
        const int fd = ::open(other.constData(), O_RDONLY | O_CLOEXEC);
        ::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0);
        if (mayRead)
            documents::confineTo({"allowed"}, "folder");
        else
            documents::confineToOpenFiles();
        char byte = 0;
        int result = ::read(fd, &byte, 1) == 1 ? OpenFile : 0;
        result |= ::open(allowed.constData(), O_RDONLY | O_CLOEXEC) >= 0 ? Allowed : 0;
        result |= ::open(other.constData(), O_RDONLY | O_CLOEXEC) >= 0 ? Other : 0;
        result |= ::open(made.constData(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600) >= 0 ? Made : 0;
        result |= ::unlink(other.constData()) == 0 ? Removed : 0;
        if (hasLandlock)
            ::execl("/bin/true", "true", nullptr);
        ::_exit(result);
    }
    int status = 0;
    QCOMPARE(::waitpid(child, &status, 0), child);
    QVERIFY(WIFEXITED(status));
    if (hasLandlock)
        QCOMPARE(WEXITSTATUS(status), mayRead ? OpenFile | Allowed | Made : OpenFile);
    else if (!mayRead)
        QCOMPARE(WEXITSTATUS(status) & ~Removed, OpenFile);
}

// The system may end one that waits with a document, for its memory.
void TestDocumentHelpers::areDoneWithoutWhereTheyEndBefore()
{
    const QByteArray list = QFileInfo("started").absoluteFilePath().toLocal8Bit();
    setDocumentHelperFolder(scriptedHelpers("#!/bin/sh\necho $$ >> " + list + "\nexec \""
                                            + helperFolder().toUtf8() + "/${0##*/}\" \"$@\"\n"));
    const std::atomic_bool notCancelled = false;
    const auto document = openDocument(
        {sample(), {}}, notCancelled,
        std::make_shared<PdfAhead>(PdfHelpers::start().value(), kTicketAttachmentName));
    QVERIFY2(document, qPrintable(document.reason()));
    QFile started("started");
    QVERIFY(started.open(QIODevice::ReadOnly));
    const QList<QByteArray> numbers = started.readAll().simplified().split(' ');
    QCOMPARE(numbers.size(), 2);
    for (const QByteArray &number : numbers)
        QCOMPARE(::kill(number.toInt(), SIGKILL), 0);

    QVERIFY(!document.value().writtenAhead({}, ticketAttachment("ticket")));

    const QString out = QFileInfo("out").absoluteFilePath();
    QFile::remove(out);
    QVERIFY(makeOutgoingPdf(document.value().pdfPath(), {}, ticketAttachment("ticket"), out));
}

void TestDocumentHelpers::saySoWhenTheyFail_data()
{
    const Table<QByteArray, Error::Code, PageProblem> row{"script", "code", "problem"};
    using Code = Error::Code;
    using enum PageProblem;

    row("crash", "kill -SEGV $$", Code::Damaged, NotDrawable);
    row("out of memory", "exit 21", Code::TooLarge, TooLarge);
    row("silence", "exit 0", Code::Damaged, NotDrawable);
    row("nonsense", "yes nonsense | head; cat >&2", Code::Damaged, NotDrawable);
}

void TestDocumentHelpers::saySoWhenTheyFail()
{
    QFETCH(QByteArray, script);
    QFETCH(Error::Code, code);
    QFETCH(PageProblem, problem);
    setDocumentHelperFolder(scriptedHelpers("#!/bin/sh\n" + script + "\n"));

    const Result<Document> document = open(sample());
    QVERIFY(!document);
    QCOMPARE(document.error().code, code);
    PageDrawing drawing(sample());
    const DrawnPage page = drawing.draw(1, {100, 100}, [] { return false; });
    QVERIFY(page.image.isNull());
    QCOMPARE(page.problem, problem);
}

QTEST_GUILESS_MAIN(TestDocumentHelpers)
#include "test_document_helpers.moc"
