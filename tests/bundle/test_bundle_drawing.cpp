#include "cover_sheet.h"
#include "files.h"
#include "job_description.h"
#include "watermark_drawing.h"
#include "watermark_store.h"

#include <QImage>
#include <QLibrary>
#include <QTest>

#include <poppler-qt6.h>
#include <thread>

using namespace kelvo;
using namespace Qt::StringLiterals;

namespace {

constexpr QSizeF letter(612, 792);

DrawOverlayFunction drawOverlay = nullptr;
DrawLeadingPageFunction drawLeadingPage = nullptr;

void save(const Dictionary &entries, const QString &fileName = kWatermarksFile)
{
    _WatermarkData watermark = newWatermark();
    takeDictionary(watermark, entries);
    watermark.isText = watermark.filename[0] == '\0';
    saveWatermarkData(fileName, watermark);
}

QByteArray drawn(const QString &name)
{
    const OverlayToDraw overlay{name, letter};
    QByteArray pdf("before");
    const OSStatus status = drawOverlay(&overlay, &pdf);
    if (status == noErr ? pdf.isEmpty() : status != fnfErr || !pdf.isEmpty())
        qFatal("%d with %d bytes", int(status), int(pdf.size()));
    return pdf;
}

QImage shown(const QByteArray &pdf)
{
    const Result<drawing::Picture> picture = drawing::showPdf(pdf, letter.toSize(), false);
    if (!picture)
        qFatal("%s", qPrintable(picture.reason()));
    return QImage(reinterpret_cast<const uchar *>(picture.value().bytes.constData()),
                  picture.value().size.width(), picture.value().size.height(),
                  QImage::Format_ARGB32_Premultiplied)
        .copy();
}

QString pictureFile(const QSize &size, Qt::GlobalColor color)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(color);
    image.save(u"logo.png"_s);
    return QDir::current().absoluteFilePath(u"logo.png"_s);
}

} // namespace

class TestBundleDrawing : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void drawsTextOnNothing();
    void drawsPicturesAsTheyAreNow();
    void drawsOnAnyThread();
    void drawsNothingElse();
    void drawsTheCoverSheet();
};

void TestBundleDrawing::initTestCase()
{
    QLibrary module(u"" KELVO_BUILD_DIR "/lib/KelvoPDE.pde/KelvoPDE.so"_s);
    drawOverlay = reinterpret_cast<DrawOverlayFunction>(module.resolve(kDrawOverlayName));
    drawLeadingPage =
        reinterpret_cast<DrawLeadingPageFunction>(module.resolve(kDrawLeadingPageName));
    QVERIFY2(drawOverlay && drawLeadingPage, qPrintable(module.errorString()));
}

void TestBundleDrawing::drawsTextOnNothing()
{
    save({{u"textString"_s, u"\u2588"_s}, {u"density"_s, 25}, {u"angle"_s, 0}});

    const QImage image = shown(drawn(u"\u2588"_s));

    QVERIFY(qAbs(qAlpha(image.pixel(306, 396)) - 64) < 3);
    QCOMPARE(image.pixel(5, 5), 0U);
}

void TestBundleDrawing::drawsPicturesAsTheyAreNow()
{
    save({{u"filename"_s, u"logo.png"_s},
          {u"filePath"_s, pictureFile({100, 100}, Qt::red)},
          {u"scale"_s, 200},
          {u"density"_s, 10}});
    const QImage first = shown(drawn(u"logo.png"_s));
    QCOMPARE(first.pixel(306, 396), qRgba(255, 0, 0, 255));
    QCOMPARE(first.pixel(306 + 90, 396 - 90), qRgba(255, 0, 0, 255));
    QCOMPARE(first.pixel(306 + 110, 396), 0U);

    pictureFile({10, 100}, Qt::blue);
    const QImage second = shown(drawn(u"logo.png"_s));
    QCOMPARE(second.pixel(306, 396), qRgba(0, 0, 255, 255));
    QCOMPARE(second.pixel(306 + 90, 396), 0U);

    QFile::remove(u"logo.png"_s);
    QVERIFY(drawn(u"logo.png"_s).isEmpty());
    putFile(u"logo.png"_s, "no picture");
    QVERIFY(drawn(u"logo.png"_s).isEmpty());

    pictureFile({10, 10}, Qt::red);
    const std::atomic_bool cancelled = true;
    const OverlayToDraw unwanted{u"logo.png"_s, letter, &cancelled};
    QByteArray pdf;
    QCOMPARE(drawOverlay(&unwanted, &pdf), fnfErr);
    QVERIFY(!drawn(u"logo.png"_s).isEmpty()); // who wants it gets it all the same
}

void TestBundleDrawing::drawsOnAnyThread()
{
    save({{u"textString"_s, u"Draft"_s}});
    pictureFile({10, 10}, Qt::red);
    std::atomic_int drawnOnes = 0;
    {
        constexpr int many = 4;
        std::vector<std::jthread> threads;
        threads.reserve(many);
        for (int count = 0; count < many; ++count) {
            threads.emplace_back([&drawnOnes, count] {
                drawnOnes += !drawn(count % 2 ? u"Draft"_s : u"logo.png"_s).isEmpty();
            });
        }
    }
    QCOMPARE(drawnOnes, 4);
}

void TestBundleDrawing::drawsNothingElse()
{
    QVERIFY(drawn(u"none of that name"_s).isEmpty());
    const OverlayToDraw overlay{u"Draft"_s, letter};
    const OverlayToDraw nameless{{}, letter};
    const OverlayToDraw sizeless{u"Draft"_s, {}};
    QByteArray pdf;
    QCOMPARE(drawOverlay(nullptr, &pdf), paramErr);
    QCOMPARE(drawOverlay(&overlay, nullptr), paramErr);
    QCOMPARE(drawOverlay(&nameless, &pdf), paramErr);
    QCOMPARE(drawOverlay(&sizeless, &pdf), fnfErr);
}

void TestBundleDrawing::drawsTheCoverSheet()
{
    save({{u"filename"_s, u"logo.png"_s},
          {u"filePath"_s, pictureFile({100, 100}, Qt::red)},
          {u"scale"_s, 200},
          {u"density"_s, 50}},
         kFaxImagesFile);
    CoverSheetContent content{.notesLabel = u"Notes:"_s, .notesText = u"Call"_s};
    content.image = u"logo.png"_s;
    std::atomic_bool cancelled = false;
    const LeadingPageToDraw page{letter, content.toDictionary(), &cancelled};
    QByteArray pdf;

    QCOMPARE(drawLeadingPage(&page, &pdf), noErr);
    QCOMPARE(shown(pdf).pixel(306, 396), qRgb(255, 127, 127));
    const auto read = Poppler::Document::loadFromData(pdf);
    QCOMPARE(read->page(0)->text({}).simplified(), u"Notes: Call"_s);

    // Without the picture it is the cover sheet all the same.
    QFile::remove(u"logo.png"_s);
    QCOMPARE(drawLeadingPage(&page, &pdf), noErr);
    QCOMPARE(shown(pdf).pixel(306, 396), qRgb(255, 255, 255));

    cancelled = true;
    QCOMPARE(drawLeadingPage(&page, &pdf), fnfErr);
    QVERIFY(pdf.isEmpty());
    const LeadingPageToDraw sizeless{{}, content.toDictionary()};
    QCOMPARE(drawLeadingPage(&sizeless, &pdf), fnfErr);
    QCOMPARE(drawLeadingPage(nullptr, &pdf), paramErr);
    QCOMPARE(drawLeadingPage(&page, nullptr), paramErr);
}

QTEST_GUILESS_MAIN(TestBundleDrawing)
#include "test_bundle_drawing.moc"
