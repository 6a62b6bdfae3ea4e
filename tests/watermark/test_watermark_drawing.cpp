#include "sanitizers.h"
#include "table.h"
#include "watermark_drawing.h"

#include <QImage>
#include <QTest>

#include <array>
#include <limits>
#include <sys/resource.h>

using namespace kelvo;
using namespace Qt::StringLiterals;

Q_DECLARE_METATYPE(kelvo::_WatermarkData)

namespace {

constexpr QSizeF letter(612, 792);
constexpr int scale = 2; // pixels of a point

using Change = std::function<void(_WatermarkData &)>;

// Letters that are the same upside down, so that the middle of their ink stays where it is
// however they are turned.
_WatermarkData text(const Change &change = {})
{
    _WatermarkData watermark = newWatermark();
    setText(watermark.textString, u"HOH"_s);
    watermark.angle = 0;
    watermark.density = 100;
    if (change)
        change(watermark);
    return watermark;
}

_WatermarkData picture(const Change &change = {})
{
    _WatermarkData watermark = newWatermark();
    setText(watermark.filename, u"a.png"_s);
    setText(watermark.filePath, u"/somewhere/a.png"_s);
    if (change)
        change(watermark);
    return watermark;
}

// 200 by 100 points in two pixels, green.
ImportedPicture pictureAt(const QString &path)
{
    if (path != u"/somewhere/a.png"_s)
        return {};
    return {{200, 100}, {2, 1}, QByteArray("\0\xff\0\xff\0\xff\0\xff", 8)};
}

QImage drawn(_WatermarkData *watermark, WatermarkGround ground = WatermarkGround::None,
             const QSizeF &size = letter)
{
    _MemoryConsumer consumer;
    if (const Result<void> made = drawWatermarkPage(watermark, size, ground, pictureAt, consumer);
        !made)
        qFatal("%s", qPrintable(made.reason()));
    const Result<drawing::Picture> shown =
        drawing::showPdf(writtenBytes(consumer), (size * scale).toSize(), false);
    if (!shown)
        qFatal("%s", qPrintable(shown.reason()));
    return QImage(reinterpret_cast<const uchar *>(shown.value().bytes.constData()),
                  shown.value().size.width(), shown.value().size.height(),
                  QImage::Format_ARGB32_Premultiplied)
        .copy();
}

// What is covered by half or more, in points from the lower left corner.
QRectF inked(const QImage &image)
{
    QRect pixels;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (qAlpha(image.pixel(x, y)) >= 128)
                pixels |= QRect(x, y, 1, 1);
        }
    }
    return QRectF(double(pixels.x()) / scale,
                  double(image.height() - pixels.y() - pixels.height()) / scale,
                  double(pixels.width()) / scale, double(pixels.height()) / scale);
}

bool isNear(const QPointF &a, const QPointF &b)
{
    return (a - b).manhattanLength() <= 1.0;
}

} // namespace

class TestWatermarkDrawing : public QObject
{
    Q_OBJECT

private slots:
    void growsByDoubling_data();
    void growsByDoubling();
    void keepsWhatItHasWhenItCannotGrow();
    void readsWhatWasWritten();
    void centersTheInk_data();
    void centersTheInk();
    void drawsInTheWellsColor();
    void placesPictures_data();
    void placesPictures();
    void leavesThePageUntouched();
    void survivesAnyRecord_data();
    void survivesAnyRecord();
    void saysWhetherToDrawAgain();
    void saysWhatWasLost();
};

void TestWatermarkDrawing::growsByDoubling_data()
{
    const Table<quint32, quint64, quint64> row{"capacity", "count", "grown"};
    row("up to the free byte", 32768, 32767, 32768);
    row("the free byte stays free", 32768, 32768, 65536);
    row("once", 32768, 40000, 65536);
    row("twice", 32768, 65536, 131072);
    row("from nothing", 0, 5, 8);
}

void TestWatermarkDrawing::growsByDoubling()
{
    QFETCH(quint32, capacity);
    QFETCH(quint64, count);
    QFETCH(quint64, grown);
    _MemoryConsumer consumer;
    QCOMPARE(CreateMemoryConsumer(capacity, &consumer), noErr);
    QCOMPARE(consumer.buffer.size(), capacity);
    const QByteArray bytes(qsizetype(count), 'x');

    // In two calls: what counts is the place that is left.
    QCOMPARE(MemoryConsumerPutBytes(&consumer, "first", 2), 2U);
    QCOMPARE(MemoryConsumerPutBytes(&consumer, bytes.constData(), count - 2), count - 2);

    QCOMPARE(consumer.buffer.size(), grown);
    QCOMPARE(consumer.position, quint32(count));
    QCOMPARE(writtenBytes(consumer), "fi" + bytes.first(qsizetype(count) - 2));
}

void TestWatermarkDrawing::keepsWhatItHasWhenItCannotGrow()
{
    _MemoryConsumer consumer;
    QCOMPARE(CreateMemoryConsumer(16, nullptr), paramErr);
    QCOMPARE(CreateMemoryConsumer(16, &consumer), noErr);
    QCOMPARE(MemoryConsumerPutBytes(&consumer, "0123456789", 10), 10U);

    // 4 GB with what is there, and more than any number has; none of it is read.
    for (const std::size_t count : {std::size_t(0xffff'fff5), std::size_t(0x1'0000'0001), SIZE_MAX})
        QCOMPARE(MemoryConsumerPutBytes(&consumer, "", count), 0U);
    if constexpr (!kHasSanitizer) { // which end the process
        rlimit before = {};
        ::getrlimit(RLIMIT_AS, &before);
        const rlimit small{1UL << 30, before.rlim_max};
        ::setrlimit(RLIMIT_AS, &small);
        const std::size_t put = MemoryConsumerPutBytes(&consumer, "", 0x4000'0000);
        _MemoryConsumer other;
        const OSStatus created = CreateMemoryConsumer(0x8000'0000, &other);
        ::setrlimit(RLIMIT_AS, &before);
        QCOMPARE(put, 0U);
        QCOMPARE(created, memFullErr);
    }

    QCOMPARE(consumer.buffer.size(), 16U);
    QCOMPARE(writtenBytes(consumer), "0123456789"_ba);
}

void TestWatermarkDrawing::readsWhatWasWritten()
{
    _MemoryConsumer consumer;
    QCOMPARE(CreateMemoryConsumer(16, &consumer), noErr);
    QCOMPARE(MemoryConsumerPutBytes(&consumer, "0123456789", 10), 10U);
    std::array<char, 32> read = {};

    QCOMPARE(MemoryProviderGetBytes(&consumer, read.data(), 32), 5U); // after what was written
    MemoryProviderRewind(&consumer);
    QCOMPARE(MemoryProviderSkipBytes(&consumer, 3), 3U);
    QCOMPARE(MemoryProviderGetBytes(&consumer, read.data(), 4), 4U);
    QCOMPARE(QByteArray(read.data(), 4), "3456"_ba);
    QCOMPARE(MemoryProviderGetBytes(&consumer, read.data(), 32), 8U); // all but the free byte
    QCOMPARE(QByteArray(read.data(), 3), "789"_ba);
    QCOMPARE(MemoryProviderGetBytes(&consumer, read.data(), 32), 0U);
    QCOMPARE(MemoryProviderSkipBytes(&consumer, SIZE_MAX), SIZE_MAX);
    QCOMPARE(MemoryProviderGetBytes(&consumer, read.data(), 32), 0U);
    MemoryProviderReleaseInfo(&consumer);
    QVERIFY(consumer.buffer.empty() && consumer.position == 0);
}

void TestWatermarkDrawing::centersTheInk_data()
{
    const Table<_WatermarkData, QSizeF, QPointF> row{"watermark", "page", "center"};
    const auto at = [](float x, float y, int angle = 0) {
        return text([=](_WatermarkData &watermark) {
            watermark.xOffset = x;
            watermark.yOffset = y;
            watermark.angle = angle;
        });
    };
    row("in the middle", at(0, 0), letter, {306, 396});
    row("an inch to the right", at(1, 0), letter, {378, 396});
    row("to the left and up", at(-1.5, 2.25), letter, {198, 558});
    row("turned to the left", at(0, -2, 45), letter, {306, 252});
    row("turned to the right", at(0.5, 0, -30), letter, {342, 396});
    row("more than once around", at(1, 1, 360 + 90), letter, {378, 468});
    row("on a wide page", at(0, 1, 10), {842, 595}, {421, 297.5 + 72});
    row("no number", at(std::numeric_limits<float>::quiet_NaN(), 1, 45), letter, {306, 468});
    row("no such font", text([](auto &watermark) { setText(watermark.fontName, u"None"_s); }),
        letter, {306, 396});
}

void TestWatermarkDrawing::centersTheInk()
{
    QFETCH(_WatermarkData, watermark);
    QFETCH(QSizeF, page);
    QFETCH(QPointF, center);

    const QRectF ink = inked(drawn(&watermark, WatermarkGround::None, page));

    QVERIFY2(isNear(ink.center(), center),
             qPrintable(u"%1, %2"_s.arg(ink.center().x()).arg(ink.center().y())));
    // Where the origin is said to be, to one 65,536th of a point.
    const QRectF bounds = drawing::library().value()->inkBounds(
        u"HOH"_s, {textOf(watermark.fontName), 72, {}, double(watermark.angle)});
    QVERIFY(qAbs(watermark.xPos + bounds.center().x() - center.x()) < 2.0 / 65536);
    QVERIFY(qAbs(watermark.yPos - bounds.center().y() - center.y()) < 2.0 / 65536);
    QCOMPARE(watermark.xPos * 65536, std::round(watermark.xPos * 65536));
}

void TestWatermarkDrawing::drawsInTheWellsColor()
{
    _WatermarkData watermark = text([](_WatermarkData &record) {
        setText(record.textString, u"\u2588"_s); // a block
        record.fontColorRed = 1;
        record.wellColorRed = 0;
        record.wellColorGreen = 1;
        record.wellColorBlue = 0;
        record.wellColorAlpha = 0.5;
        record.density = 50;
    });
    QCOMPARE(drawn(&watermark).pixel(612, 792) & 0xff'00ff, 0U);
    QVERIFY(qAbs(qAlpha(drawn(&watermark).pixel(612, 792)) - 64) < 3);
    const QRgb onWhite = drawn(&watermark, WatermarkGround::White).pixel(612, 792);
    QVERIFY(qAbs(qRed(onWhite) - 191) < 3 && qGreen(onWhite) == 255);

    QCOMPARE(watermarkOpacity(watermark), 0.5);
    watermark.density = 250;
    QCOMPARE(watermarkOpacity(watermark), 1.0);
    watermark.density = -1;
    QCOMPARE(watermarkOpacity(watermark), 0.0);
    QCOMPARE(watermarkOpacity(picture()), 1.0); // newWatermark() has less
}

void TestWatermarkDrawing::placesPictures_data()
{
    const Table<_WatermarkData, QRectF> row{"watermark", "placed"};
    const auto scaled = [](int percent) {
        return picture([=](_WatermarkData &watermark) { watermark.scale = percent; });
    };
    row("half as large", scaled(50), {256, 371, 100, 50});
    row("larger than the page", scaled(1000), {0, 0, 612, 792});
    row("as large as numbers are", scaled(std::numeric_limits<int>::max()), {0, 0, 612, 792});
    row("without size", scaled(0), {});
    row("upside down", scaled(-100), {});
    row("turned and moved", picture([](_WatermarkData &watermark) {
            watermark.angle = 45;
            watermark.xOffset = 1;
            watermark.density = 10;
        }),
        {206, 346, 200, 100});
    row("not there", picture([](auto &watermark) { setText(watermark.filePath, u"/other"_s); }),
        {});
    row("named, but a text",
        picture([](auto &watermark) { setText(watermark.textString, u" "_s); }), {});
}

void TestWatermarkDrawing::placesPictures()
{
    QFETCH(_WatermarkData, watermark);
    QFETCH(QRectF, placed);

    const QImage image = drawn(&watermark);

    const QRectF ink = inked(image);
    QCOMPARE(ink.isEmpty(), placed.isEmpty());
    if (placed.isEmpty())
        return;
    QVERIFY2(isNear(ink.topLeft(), placed.topLeft())
                 && isNear(ink.bottomRight(), placed.bottomRight()),
             qPrintable(
                 u"%1, %2, %3, %4"_s.arg(ink.x()).arg(ink.y()).arg(ink.width()).arg(ink.height())));
    QCOMPARE(image.pixel(612, 792), qRgba(0, 255, 0, 255));
}

void TestWatermarkDrawing::leavesThePageUntouched()
{
    _WatermarkData empty;
    empty.density = 100;
    for (_WatermarkData *watermark : {&empty, static_cast<_WatermarkData *>(nullptr)}) {
        QImage untouched(1224, 1584, QImage::Format_ARGB32_Premultiplied);
        untouched.fill(Qt::transparent);
        QCOMPARE(drawn(watermark), untouched);
        untouched.fill(Qt::white);
        QCOMPARE(drawn(watermark, WatermarkGround::White), untouched);
    }
}

void TestWatermarkDrawing::survivesAnyRecord_data()
{
    const Table<_WatermarkData> row{"watermark"};
    constexpr int most = std::numeric_limits<int>::max();
    constexpr int least = std::numeric_limits<int>::min();
    constexpr float none = std::numeric_limits<float>::quiet_NaN();
    constexpr float endless = std::numeric_limits<float>::infinity();
    row("the smallest", text([](_WatermarkData &watermark) {
            watermark.angle = watermark.density = watermark.scale = watermark.fontSize = least;
            watermark.xOffset = -endless;
            watermark.wellColorRed = -1e30F;
        }));
    row("the largest", text([](_WatermarkData &watermark) {
            watermark.angle = watermark.density = watermark.scale = watermark.fontSize = most;
            watermark.yOffset = endless;
            watermark.wellColorRed = 1e30F;
        }));
    row("no numbers", text([](_WatermarkData &watermark) {
            watermark.xOffset = watermark.yOffset = watermark.wellColorRed = none;
            watermark.wellColorAlpha = none;
        }));
    row("no end", text([](_WatermarkData &watermark) {
            std::ranges::fill(watermark.textString, 'W');
            std::ranges::fill(watermark.fontName, 'W');
            watermark.fontSize = 10'000;
        }));
    row("no text",
        text([](_WatermarkData &watermark) { std::ranges::fill(watermark.textString, '\xff'); }));
    row("no such scale", picture([](_WatermarkData &watermark) { watermark.scale = least; }));
}

void TestWatermarkDrawing::survivesAnyRecord()
{
    QFETCH(_WatermarkData, watermark);
    QCOMPARE(drawn(&watermark).size(), QSize(1224, 1584));
    QVERIFY(std::isfinite(watermark.xPos) && std::isfinite(watermark.yPos));
}

void TestWatermarkDrawing::saysWhetherToDrawAgain()
{
    const _WatermarkData last = text();
    const std::pair<bool, Change> rows[] = {
        {false, [](auto &) {}},
        {true, [](auto &now) { now.angle += 360; }},
        {true, [](auto &now) { now.scale = 99; }},
        {true, [](auto &now) { now.density = 99; }},
        {true, [](auto &now) { now.xOffset = 0.1F; }},
        {true, [](auto &now) { now.yOffset = 0.1F; }},
        {true, [](auto &now) { setText(now.textString, u"hoh"_s); }},
        {true, [](auto &now) { setText(now.textString, {}); }},
        {true, [](auto &now) { setText(now.fontName, u"Arial-BoldMT"_s); }},
        {false, [](auto &now) { now.wellColorRed = 0.5; }},
        {false, [](auto &now) { now.fontSize = 10; }},
        {false, [](auto &now) { now.paperWidth = 10; }},
    };
    for (const auto &[isNeeded, change] : rows) {
        _WatermarkData now = last;
        change(now);
        QCOMPARE(needsRedraw(last, now), isNeeded);
    }
    _WatermarkData other = picture();
    setText(other.fontName, u"Arial-BoldMT"_s);
    QVERIFY(!needsRedraw(picture(), other));
}

void TestWatermarkDrawing::saysWhatWasLost()
{
    _WatermarkData watermark = text();
    _MemoryConsumer consumer;
    QVERIFY(drawWatermarkPage(&watermark, letter, WatermarkGround::White, pictureAt, consumer));
    QVERIFY(consumer.position > 0);
    const Result<void> made =
        drawWatermarkPage(&watermark, {0, 792}, WatermarkGround::White, pictureAt, consumer);
    QCOMPARE(made.error().code, Error::Code::OutOfRange);
    QCOMPARE(consumer.position, 0U);
}

QTEST_GUILESS_MAIN(TestWatermarkDrawing)
#include "test_watermark_drawing.moc"
