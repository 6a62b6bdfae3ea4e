#include "page_renderer.h"
#include "sample_documents.h"
#include "sanitizers.h"
#include "size_limits.h"
#include "table.h"

#include <QElapsedTimer>
#include <QSignalSpy>
#include <QTest>

#include <sys/resource.h>

using namespace kelvo;
using namespace kelvo::test;

Q_DECLARE_METATYPE(kelvo::PageProblem)

class TestPageRenderer : public QObject
{
    Q_OBJECT

private slots:
    void drawsPagesThatFit();
    void answersForTheNewestRequestOnly();
    void saysWhenAPageCannotBeDrawn();
    void doesNotWaitForASlowPage();
    void saysWhatIsTooMuch_data();
    void saysWhatIsTooMuch();
};

namespace {

Document documentOf(const QByteArray &pdf)
{
    const Result<Document> document = documentFromPdf(file("pdf", pdf), {});
    return document ? document.value() : Document();
}

qint64 peakMemory() // bytes
{
    rusage usage = {};
    ::getrusage(RUSAGE_SELF, &usage);
    return qint64(usage.ru_maxrss) * 1024;
}

PageProblem problemOf(const QSignalSpy &spy)
{
    return spy.last().at(2).value<PageProblem>();
}

QImage imageOf(const QSignalSpy &spy)
{
    return spy.last().at(1).value<QImage>();
}

} // namespace

void TestPageRenderer::drawsPagesThatFit()
{
    PageRenderer renderer;
    QSignalSpy spy(&renderer, &PageRenderer::rendered);
    renderer.setDocument(documentOf(pdfWithPages({filled("1 0 0"), "", filled("0 0 1")})));

    renderer.render(1, {400, 400});
    QVERIFY(spy.wait());
    QCOMPARE(imageOf(spy).size(), QSize(268, 400)); // 201 by 300 points
    QCOMPARE(imageOf(spy).pixelColor(100, 100), QColor(Qt::red));

    renderer.render(2, {100, 400});
    QVERIFY(spy.wait());
    QCOMPARE(imageOf(spy).width(), 100);
    QCOMPARE(imageOf(spy).pixelColor(50, 50), QColor(Qt::white)); // paper

    renderer.setDocument(documentOf(pdfWithPages({filled("0 1 0")})));
    renderer.render(1, {100, 100});
    QVERIFY(spy.wait());
    QCOMPARE(imageOf(spy).pixelColor(20, 20), QColor(Qt::green));
}

void TestPageRenderer::answersForTheNewestRequestOnly()
{
    PageRenderer renderer;
    QSignalSpy spy(&renderer, &PageRenderer::rendered);
    renderer.setDocument(documentOf(pdfWithPages(QList<QByteArray>(20, filled("1 0 0")))));

    for (int page = 1; page <= 20; ++page)
        renderer.render(page, {400, 400});

    QVERIFY(spy.wait());
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.last().at(0).toInt(), 20);
    QVERIFY(!spy.wait(100));

    // Nor for a document that is no longer shown.
    renderer.render(1, {400, 400});
    renderer.setDocument({});
    QVERIFY(!spy.wait(200));
}

void TestPageRenderer::saysWhenAPageCannotBeDrawn()
{
    PageRenderer renderer;
    QSignalSpy spy(&renderer, &PageRenderer::rendered);
    renderer.render(1, {400, 400}); // no document yet
    QVERIFY(spy.wait());
    QVERIFY(imageOf(spy).isNull());

    const Document document = documentOf(pdfWithPages({""}));
    renderer.setDocument(document);
    renderer.render(2, {400, 400});
    QVERIFY(spy.wait());
    QVERIFY(imageOf(spy).isNull());
}

void TestPageRenderer::doesNotWaitForASlowPage()
{
    // Minutes of work: large transparent shapes, again and again.
    const QByteArray slow =
        QByteArray("0 0 2000 2000 re 5 5 m 900 20 70 800 30 40 c f*\n").repeated(200'000);
    const Document document = documentOf(pdfWithPages({slow, filled("1 0 0")}));
    QVERIFY(!document.isNull());

    QElapsedTimer timer;
    {
        PageRenderer renderer;
        QSignalSpy spy(&renderer, &PageRenderer::rendered);
        renderer.setDocument(document);
        renderer.render(1, {2000, 2000});
        QVERIFY(!spy.wait(500)); // it has begun
        timer.start();
        renderer.render(2, {50, 50}); // and makes room for the page that is wanted now
        QVERIFY(spy.wait());
        QCOMPARE(spy.last().at(0).toInt(), 2);
        renderer.render(1, {2000, 2000});
        QVERIFY(!spy.wait(300));
    }
    QVERIFY2(timer.elapsed() < 5000, qPrintable(QString::number(timer.elapsed())));
}

void TestPageRenderer::saysWhatIsTooMuch_data()
{
    const Table<QByteArray, PageProblem> row{"contents", "problem"};
    // A few kilobytes when they are compressed; each "q" keeps 4 kB of state.
    if (!kHasSanitizer)
        row("memory", QByteArray("q ").repeated(2'000'000), PageProblem::TooLarge);
    row("time", QByteArray("0 0 2000 2000 re 5 5 m 900 20 70 800 30 40 c f*\n").repeated(3'000'000),
        PageProblem::TooSlow);
}

void TestPageRenderer::saysWhatIsTooMuch()
{
    QFETCH(QByteArray, contents);
    QFETCH(PageProblem, problem);
    const Document document = documentOf(pdfWithPages({filled("1 0 0"), contents}));
    contents.clear();
    PageRenderer renderer;
    QSignalSpy spy(&renderer, &PageRenderer::rendered);
    renderer.setDocument(document);
    const qint64 before = peakMemory();

    renderer.render(2, {2000, 2000});
    QVERIFY(spy.wait((limits::drawingSeconds + 30) * 1000));
    QVERIFY(imageOf(spy).isNull());
    QCOMPARE(problemOf(spy), problem);
    QVERIFY2(peakMemory() - before < 50 * limits::MiB, qPrintable(QString::number(peakMemory())));

    // It is not tried again, and the others can be looked at.
    QElapsedTimer timer;
    timer.start();
    renderer.render(2, {100, 100});
    QVERIFY(spy.wait());
    QCOMPARE(problemOf(spy), problem);
    renderer.render(1, {100, 100});
    QVERIFY(spy.wait());
    QVERIFY(!imageOf(spy).isNull());
    QVERIFY(timer.elapsed() < 5000);
}

QTEST_GUILESS_MAIN(TestPageRenderer)
#include "test_page_renderer.moc"
