#include "document.h"
#include "document_functions.h"
#include "page_renderer.h"
#include "sample_documents.h"
#include "ticket_attachment.h"

#include <QFile>
#include <QLibrary>
#include <QSignalSpy>
#include <QTest>

using namespace kelvo;
using namespace kelvo::test;

// In this order: once the module is loaded it stays.
class TestDocumentModule : public QObject
{
    Q_OBJECT

private slots:
    void isNotLinked();
    void isAnErrorWhenItCannotBeLoaded_data();
    void isAnErrorWhenItCannotBeLoaded();
    void drawsNothingWithoutIt();
    void isForItsOwnVersionOnly();
    void isLoadedOnFirstUse();
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
    for (const char *name : {"libqpdf", "libpoppler", "libcairo", "libpango", "KelvoDocuments"}) {
        if (text.contains(QLatin1String(name)))
            found << QLatin1String(name);
    }
    return found;
}

QString sample()
{
    return file("pdf", pdfWithPages({filled("1 0 0")}));
}

} // namespace

void TestDocumentModule::isNotLinked()
{
    QCOMPARE(readersHere(), QStringList());
}

void TestDocumentModule::isAnErrorWhenItCannotBeLoaded_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<Error::Code>("code");
    QTest::newRow("not there") << QStringLiteral("/nowhere/KelvoDocuments.so")
                               << Error::Code::NotFound;
    QTest::newRow("no library") << file("so", "this is no library") << Error::Code::Damaged;
    QTest::newRow("another library")
        << QStringLiteral(KELVO_BUILD_DIR "/lib/libkelvo_platform.so") << Error::Code::Damaged;
}

void TestDocumentModule::isAnErrorWhenItCannotBeLoaded()
{
    QFETCH(QString, path);
    QFETCH(Error::Code, code);
    setDocumentModule(path);

    const Result<const DocumentFunctions *> functions = documentFunctions();
    QVERIFY(!functions);
    QCOMPARE(functions.error().code, code);
    QCOMPARE(functions.error().where, path);
    QVERIFY2(functions.error().detail.contains("part that reads documents"),
             qPrintable(functions.error().detail));

    const std::atomic_bool notCancelled = false;
    QVERIFY(!openDocument({sample(), {}}, notCancelled));
    QVERIFY(!openDocument({file("txt", "a text"), {}}, notCancelled));
    QVERIFY(!holdsTicket(sample()));
    QVERIFY(!replaceTicket(sample(), {}, sample() + QStringLiteral(".out")));
}

void TestDocumentModule::drawsNothingWithoutIt()
{
    PageRenderer renderer;
    QSignalSpy spy(&renderer, &PageRenderer::rendered);
    renderer.render(1, {100, 100});
    QVERIFY(spy.wait());
    QVERIFY(spy.last().at(1).value<QImage>().isNull());
}

void TestDocumentModule::isForItsOwnVersionOnly()
{
    setDocumentModule({});
    const auto functions = documentFunctions();
    QVERIFY2(functions, functions ? "" : qPrintable(functions.error().text()));
    const auto entry = reinterpret_cast<DocumentModuleEntry>(QLibrary::resolve(
        QStringLiteral(KELVO_BUILD_DIR "/lib/KelvoDocuments.so"), kDocumentModuleEntry));
    QVERIFY(entry);
    QVERIFY(!entry("0.9"));
}

void TestDocumentModule::isLoadedOnFirstUse()
{
    const Result<Document> document = documentFromPdf(sample(), {});
    QVERIFY(document);
    QCOMPARE(document.value().pageCount(), 1);
    QCOMPARE(readersHere().size(), 5);
}

QTEST_GUILESS_MAIN(TestDocumentModule)
#include "test_document_module.moc"
