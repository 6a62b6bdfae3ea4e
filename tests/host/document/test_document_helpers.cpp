#include "document.h"
#include "document_helper.h"
#include "page_drawing.h"
#include "sample_documents.h"
#include "ticket_attachment.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTest>

using namespace kelvo;
using namespace kelvo::test;

Q_DECLARE_METATYPE(kelvo::Error::Code)
Q_DECLARE_METATYPE(kelvo::PageProblem)

class TestDocumentHelpers : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { setDocumentHelperFolder({}); }
    void areMissedWithAMessage_data();
    void areMissedWithAMessage();
    void areForTheirOwnVersionOnly();
    void areAskedForEverything();
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

void TestDocumentHelpers::areMissedWithAMessage_data()
{
    QTest::addColumn<QString>("folder");
    QTest::addColumn<Error::Code>("code");
    QTest::addColumn<QString>("words");
    QTest::newRow("not there") << QStringLiteral("/nowhere") << Error::Code::NotFound
                               << "install kelvo-print anew";
    QTest::newRow("no program") << scriptedHelpers("this is no program") << Error::Code::NotReadable
                                << "does not start";
}

void TestDocumentHelpers::areMissedWithAMessage()
{
    QFETCH(QString, folder);
    QFETCH(Error::Code, code);
    QFETCH(QString, words);
    setDocumentHelperFolder(folder);

    for (const QString &path : {sample(), file("txt", "a text")}) {
        const Result<Document> document = open(path);
        QVERIFY(!document);
        QCOMPARE(document.error().code, code);
        QVERIFY2(document.error().detail.contains(words), qPrintable(document.error().text()));
    }
    QVERIFY(!holdsTicket(sample()));
    QVERIFY(!replaceTicket(sample(), {}, QFileInfo("out").absoluteFilePath()));
    PageDrawing drawing(sample());
    QCOMPARE(drawing.draw(1, {100, 100}, [] { return false; }).problem, PageProblem::NotDrawable);
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

// The process with the user's window and secrets reads no document itself.
void TestDocumentHelpers::areAskedForEverything()
{
    const Result<Document> document = open(sample());
    QVERIFY2(document, qPrintable(document.reason()));
    QVERIFY(open(file("txt", "a text")));
    QVERIFY(holdsTicket(sample()));
    PageDrawing drawing(document.value().pdfPath());
    QVERIFY(!drawing.draw(1, {100, 100}, [] { return false; }).image.isNull());

    QCOMPARE(readersHere(), QStringList());
}

void TestDocumentHelpers::saySoWhenTheyFail_data()
{
    QTest::addColumn<QByteArray>("script");
    QTest::addColumn<Error::Code>("code");
    QTest::addColumn<PageProblem>("problem");
    using Code = Error::Code;
    using enum PageProblem;

    QTest::newRow("crash") << QByteArray("kill -SEGV $$") << Code::Damaged << NotDrawable;
    QTest::newRow("out of memory") << QByteArray("exit 21") << Code::TooLarge << TooLarge;
    QTest::newRow("silence") << QByteArray("exit 0") << Code::Damaged << NotDrawable;
    QTest::newRow("nonsense") << QByteArray("yes nonsense | head; cat >&2") << Code::Damaged
                              << NotDrawable;
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
