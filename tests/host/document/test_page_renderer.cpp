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
Q_DECLARE_METATYPE(kelvo::Overlay::Place)

class TestPageRenderer : public QObject
{
    Q_OBJECT

private slots:
    void drawsPagesThatFit();
    void putsLayersTogether_data();
    void putsLayersTogether();
    void drawsTwoPagesWithWhatLiesOverThem();
    void leavesNoRimAroundPrintWithoutPaper();
    void drawsHeavyPages_data();
    void drawsHeavyPages();
    void keepsWhatIsDrawnAlready();
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

SideToDraw pageIn(int page, const QSize &pixels)
{
    return {pixels, {{page, QRect(QPoint(), pixels)}}, {}};
}

DrawnSide lastOf(const QSignalSpy &spy)
{
    return spy.last().at(0).value<DrawnSide>();
}

PageProblem problemOf(const QSignalSpy &spy)
{
    return lastOf(spy).problems.value(0);
}

QImage imageOf(const QSignalSpy &spy)
{
    return lastOf(spy).picture;
}

} // namespace

void TestPageRenderer::drawsPagesThatFit()
{
    PageRenderer renderer;
    QSignalSpy spy(&renderer, &PageRenderer::rendered);
    renderer.setDocument(documentOf(pdfWithPages({filled("1 0 0"), "", filled("0 0 1")})));

    renderer.render(pageIn(1, {400, 400}));
    QVERIFY(spy.wait());
    // 201 by 300 points are 268 by 400 pixels, in the middle.
    QCOMPARE(imageOf(spy).pixelColor(65, 200), QColor(Qt::white));
    QCOMPARE(imageOf(spy).pixelColor(66, 1), QColor(Qt::red));
    QCOMPARE(imageOf(spy).pixelColor(333, 398), QColor(Qt::red));
    QCOMPARE(imageOf(spy).pixelColor(334, 200), QColor(Qt::white));

    renderer.render(pageIn(2, {100, 400}));
    QVERIFY(spy.wait());
    QCOMPARE(imageOf(spy).width(), 100);
    QCOMPARE(imageOf(spy).pixelColor(50, 50), QColor(Qt::white)); // paper

    renderer.setDocument(documentOf(pdfWithPages({filled("0 1 0")})));
    renderer.render(pageIn(1, {100, 100}));
    QVERIFY(spy.wait());
    QCOMPARE(imageOf(spy).pixelColor(20, 20), QColor(Qt::green));
}

// An overlay of half transparent red and three pixels of a page.
void TestPageRenderer::putsLayersTogether_data()
{
    // Over or under white paper, gray print and black print.
    const Table<Overlay::Place, QList<QRgb>> row{"place", "pixels"};

    row("behind", Overlay::Place::Behind, {0xffff7f7f, 0xff808080, 0xff000000});
    row("blended", Overlay::Place::Blended, {0xffff7f7f, 0xff804040, 0xff000000});
    row("above", Overlay::Place::Above, {0xffff7f7f, 0xffc04040, 0xff800000});
}

void TestPageRenderer::putsLayersTogether()
{
    QFETCH(Overlay::Place, place);
    QFETCH(QList<QRgb>, pixels);
    QImage print(3, 1, QImage::Format_ARGB32_Premultiplied);
    print.fill(Qt::transparent);
    print.setPixelColor(1, 0, QColor(0x80, 0x80, 0x80));
    print.setPixelColor(2, 0, Qt::black);
    QImage overlay(1, 3, QImage::Format_ARGB32_Premultiplied); // turned a quarter
    overlay.fill(QColor(255, 0, 0, 128));

    const QRect whole(1, 1, 3, 1); // of a picture with a rim
    const QImage picture = composedSide({5, 3}, {{print, whole}}, {{{overlay, whole, 90}, place}});

    for (int x = 0; x < 3; ++x) {
        const QColor found = picture.pixelColor(x + 1, 1);
        const QColor wanted(pixels[x]);
        QVERIFY2(std::abs(found.red() - wanted.red()) <= 1
                     && std::abs(found.green() - wanted.green()) <= 1
                     && std::abs(found.blue() - wanted.blue()) <= 1,
                 qPrintable(QString("%1: %2").arg(x).arg(found.name())));
    }
    QCOMPARE(picture.pixelColor(0, 1), QColor(Qt::white));
    QCOMPARE(picture.pixelColor(4, 1), QColor(Qt::white));
    QCOMPARE(picture.pixelColor(1, 0), QColor(Qt::white));
}

namespace {

// Green all over; none for "lacking". Notes what it is asked for.
OverlayPainter greenOverlays(QStringList &asked)
{
    return [&asked](const Overlay &overlay, const QSizeF &page, const QSize &pixels,
                    const std::atomic_bool &) {
        asked << QString("%1 %2 %3").arg(overlay.name).arg(page.width()).arg(pixels.width());
        QImage image(pixels, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::green);
        return overlay.name == "lacking" ? QImage() : image;
    };
}

} // namespace

void TestPageRenderer::drawsTwoPagesWithWhatLiesOverThem()
{
    PageRenderer renderer;
    QStringList asked;
    renderer.setOverlayPainter(greenOverlays(asked));
    QSignalSpy spy(&renderer, &PageRenderer::rendered);
    renderer.setDocument(documentOf(pdfWithPages({"1 0 0 rg 0 0 100 300 re f", filled("0 0 1")})));

    // The left page is turned upside down, so that its print is on the right.
    SideToDraw side{{410, 300}, {{1, {0, 0, 201, 300}, 180}, {2, {206, 0, 202, 300}}}, {}};
    const Overlay behind{"green", Overlay::Place::Behind};
    side.overlays = {{behind, {402, 600}, {0, 0, 201, 300}},
                     {{"lacking", Overlay::Place::Above}, {402, 600}, {0, 0, 201, 300}}};
    renderer.render(side);
    QVERIFY(spy.wait());

    const QImage picture = imageOf(spy);
    QCOMPARE(picture.size(), QSize(410, 300));
    QCOMPARE(picture.pixelColor(50, 150), QColor(Qt::green)); // through the paper
    QCOMPARE(picture.pixelColor(150, 150), QColor(Qt::red));
    QCOMPARE(picture.pixelColor(203, 150), QColor(Qt::white));
    QCOMPARE(picture.pixelColor(300, 150), QColor(Qt::blue));
    QCOMPARE(lastOf(spy).lackingOverlays, QStringList{"lacking"});
    QCOMPARE(asked, (QStringList{"green 402 201", "lacking 402 201"}));

    // A page that cannot be drawn leaves the other one.
    side.pages[0].page = 3;
    renderer.render(side);
    QVERIFY(spy.wait());
    QCOMPARE(lastOf(spy).problems,
             (QList<PageProblem>{PageProblem::NotDrawable, PageProblem::None}));
    QCOMPARE(imageOf(spy).pixelColor(300, 150), QColor(Qt::blue));
}

// Slanted edges are half transparent; on white paper they are what they are with paper.
void TestPageRenderer::leavesNoRimAroundPrintWithoutPaper()
{
    PageRenderer renderer;
    renderer.setOverlayPainter(
        [](const Overlay &, const QSizeF &, const QSize &pixels, const std::atomic_bool &) {
            QImage nothing(pixels, QImage::Format_ARGB32_Premultiplied);
            nothing.fill(Qt::transparent);
            return nothing;
        });
    QSignalSpy spy(&renderer, &PageRenderer::rendered);
    renderer.setDocument(documentOf(
        pdfWithPages({"0 0 1 rg 10 10 m 190 290 l 150 10 l f 1 g 50 200 m 80 290 l f"})));
    SideToDraw side = pageIn(1, {201, 300});
    renderer.render(side);
    QVERIFY(spy.wait());
    const QImage onPaper = imageOf(spy);
    side.overlays = {{{"nothing", Overlay::Place::Behind}, {201, 300}, side.pages[0].rect}};
    renderer.render(side);
    QVERIFY(spy.wait());
    const QImage onNothing = imageOf(spy);

    int most = 0;
    int slanted = 0;
    for (int y = 0; y < onPaper.height(); ++y) {
        for (int x = 0; x < onPaper.width(); ++x) {
            const QColor with = onPaper.pixelColor(x, y);
            most = std::max(most, std::abs(with.red() - onNothing.pixelColor(x, y).red()));
            slanted += with.red() > 0 && with.red() < 255;
        }
    }
    QVERIFY(slanted > 100);
    QVERIFY2(most <= 2, qPrintable(QString::number(most)));
}

// The left half of a page, red, after so much that the page is one for cairo.
void TestPageRenderer::drawsHeavyPages_data()
{
    const Table<QByteArray, QByteArray> row{"contents", "resources"};
    row("a shape", "1 0 0 rg 0 0 100 300 re f", "");
    // From there on cairo draws nothing any more.
    row("after dashes of no length", "[0 0] 0 d 0 0 m 9 9 l S 1 0 0 rg 0 0 100 300 re f", "");
    row("colored letters of a drawn font", "BT /T 300 Tf (a) Tj ET", "/Font << /T 5 0 R >>");
    // With the paper, of which nothing is known, there would be white.
    row("blended with nothing", "/S gs 1 0 0 rg 0 0 100 300 re f",
        "/ExtGState << /S << /BM /Screen >> >>");
}

void TestPageRenderer::drawsHeavyPages()
{
    QFETCH(QByteArray, contents);
    QFETCH(QByteArray, resources);
    PageRenderer renderer;
    QStringList asked;
    renderer.setOverlayPainter(greenOverlays(asked));
    QSignalSpy spy(&renderer, &PageRenderer::rendered);
    const QByteArray font =
        "<< /Type /Font /Subtype /Type3 /FontBBox [0 0 1 1] /FontMatrix [1 0 0 1 0 0] "
        "/CharProcs << /a 6 0 R >> /Encoding << /Differences [97 /a] >> /FirstChar 97 "
        "/LastChar 97 /Widths [1] /Resources << >> >>";
    renderer.setDocument(documentOf(
        pdfOf({"<< /Type /Catalog /Pages 2 0 R >>", "<< /Type /Pages /Kids [3 0 R] /Count 1 >>",
               "<< /Type /Page /Parent 2 0 R /MediaBox [0 0 201 300] /Contents 4 0 R /Resources << "
                   + resources + " >> >>",
               stream(QByteArray("9 9 0 0 re f\n").repeated(2000) + contents), font,
               stream("1 0 d0 1 0 0 rg 0 0 0.33333 1 re f")})));

    SideToDraw side = pageIn(1, {201, 300});
    renderer.render(side);
    QVERIFY(spy.wait());
    QCOMPARE(imageOf(spy).pixelColor(50, 150), QColor(Qt::red));
    QCOMPARE(imageOf(spy).pixelColor(150, 150), QColor(Qt::white));

    side.overlays = {{{"green", Overlay::Place::Behind}, {201, 300}, side.pages[0].rect}};
    renderer.render(side);
    QVERIFY(spy.wait());
    QCOMPARE(imageOf(spy).pixelColor(50, 150), QColor(Qt::red));
    QCOMPARE(imageOf(spy).pixelColor(150, 150), QColor(Qt::green)); // through the paper
}

void TestPageRenderer::keepsWhatIsDrawnAlready()
{
    PageRenderer renderer;
    QStringList asked;
    renderer.setOverlayPainter(greenOverlays(asked));
    QSignalSpy spy(&renderer, &PageRenderer::rendered);
    renderer.setDocument(documentOf(pdfWithPages({"", ""})));
    Overlay overlay{"a", Overlay::Place::Above};
    const auto draw = [&](int page, const QSize &pixels) {
        SideToDraw side = pageIn(page, pixels);
        side.overlays = {{overlay, {200, 300}, side.pages[0].rect}};
        renderer.render(side);
        return spy.wait();
    };

    QVERIFY(draw(1, {200, 300}));
    QVERIFY(draw(2, {200, 300}));
    overlay.place = Overlay::Place::Blended;
    QVERIFY(draw(2, {200, 300}));
    QCOMPARE(asked.size(), 1);
    overlay.version = 1;
    QVERIFY(draw(2, {200, 300}));
    QCOMPARE(asked.size(), 2);
    QVERIFY(draw(2, {100, 150}));
    QCOMPARE(asked.size(), 3);
}

void TestPageRenderer::answersForTheNewestRequestOnly()
{
    PageRenderer renderer;
    QSignalSpy spy(&renderer, &PageRenderer::rendered);
    renderer.setDocument(documentOf(pdfWithPages(QList<QByteArray>(20, filled("1 0 0")))));

    for (int page = 1; page <= 20; ++page)
        renderer.render(pageIn(page, {400 + page, 400}));

    QVERIFY(spy.wait());
    QCOMPARE(spy.count(), 1);
    QCOMPARE(imageOf(spy).width(), 420);
    QVERIFY(!spy.wait(100));

    // Nor for a document that is no longer shown.
    renderer.render(pageIn(1, {400, 400}));
    renderer.setDocument({});
    QVERIFY(!spy.wait(200));
}

void TestPageRenderer::saysWhenAPageCannotBeDrawn()
{
    PageRenderer renderer;
    QSignalSpy spy(&renderer, &PageRenderer::rendered);
    renderer.render(pageIn(1, {400, 400})); // no document yet
    QVERIFY(spy.wait());
    QVERIFY(imageOf(spy).isNull());

    const Document document = documentOf(pdfWithPages({""}));
    renderer.setDocument(document);
    renderer.render(pageIn(2, {400, 400}));
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
        renderer.render(pageIn(1, {2000, 2000}));
        QVERIFY(!spy.wait(500)); // it has begun
        timer.start();
        renderer.render(pageIn(2, {50, 50})); // and makes room for the page that is wanted now
        QVERIFY(spy.wait());
        QCOMPARE(imageOf(spy).width(), 50);
        renderer.render(pageIn(1, {2000, 2000}));
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

    renderer.render(pageIn(2, {2000, 2000}));
    QVERIFY(spy.wait((limits::drawingSeconds + 30) * 1000));
    QVERIFY(imageOf(spy).isNull());
    QCOMPARE(problemOf(spy), problem);
    QVERIFY2(peakMemory() - before < 50 * limits::MiB, qPrintable(QString::number(peakMemory())));

    // It is not tried again, and the others can be looked at.
    QElapsedTimer timer;
    timer.start();
    renderer.render(pageIn(2, {100, 100}));
    QVERIFY(spy.wait());
    QCOMPARE(problemOf(spy), problem);
    renderer.render(pageIn(1, {100, 100}));
    QVERIFY(spy.wait());
    QVERIFY(!imageOf(spy).isNull());
    QVERIFY(timer.elapsed() < 5000);
}

QTEST_GUILESS_MAIN(TestPageRenderer)
#include "test_page_renderer.moc"
