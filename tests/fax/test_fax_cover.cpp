#include "fax_cover.h"
#include "table.h"
#include "watermark_store.h"

#include <QImage>
#include <QRegularExpression>
#include <QTest>

#include <poppler-qt6.h>

using namespace kelvo;
using namespace Qt::StringLiterals;

namespace {

const QSizeF letter(612, 792), a4(595, 842);
constexpr int scale = 4; // pixels of a point

struct Texts
{
    QString sender, recipients, notes;
};

struct Cover
{
    CoverSheetDrawn drawn;
    QByteArray pdf;

    QString text() const
    {
        static const QRegularExpression directions(u"[\u202a-\u202e\f]"_s);
        return Poppler::Document::loadFromData(pdf)->page(0)->text({}).remove(directions);
    }
    // On white, as poppler shows it.
    QImage image() const
    {
        return Poppler::Document::loadFromData(pdf)
            ->page(0)
            ->renderToImage(72 * scale, 72 * scale)
            .convertToFormat(QImage::Format_RGB32);
    }
};

// An H stands on its baseline, and is its own label.
Cover cover(const QSizeF &size, const Texts &texts, _WatermarkData *image = nullptr,
            const PictureReader &pictures = {})
{
    _MemoryConsumer consumer;
    const Result<CoverSheetDrawn> drawn =
        DrawFaxCover(consumer, QRectF(QPointF(), size), u"H"_s, texts.sender, u"H"_s,
                     texts.recipients, u"H"_s, texts.notes, image, pictures);
    if (!drawn)
        qFatal("%s", qPrintable(drawn.reason()));
    return {drawn.value(), writtenBytes(consumer)};
}

// A line of the page's own font.
drawing::TextLine line(bool isBold)
{
    std::optional<drawing::TextLine> line;
    drawing::TextStyle style;
    style.isBold = isBold;
    const auto page = drawing::library().value()->beginPage({9, 9}, [](auto...) { return true; });
    line = page.value()->wrapText(u"H"_s, style, 9)->nextLine();
    return *line;
}

double heightOf(const drawing::TextLine &line)
{
    return line.ascent + line.descent;
}

// Where lines of ink end, in points from the page's lower edge, from the top down.
QList<double> baselines(const QImage &image)
{
    QList<double> rows;
    bool wasInked = false;
    for (int y = 0; y < image.height(); ++y) {
        bool isInked = false;
        for (int x = 0; x < image.width() && !isInked; ++x)
            isInked = qRed(image.pixel(x, y)) < 128;
        if (wasInked && !isInked)
            rows << double(image.height() - y) / scale;
        wasInked = isInked;
    }
    return rows;
}

// 100 by 100 points, red.
ImportedPicture redPicture(const QString & /*path*/)
{
    return {{100, 100}, {1, 1}, QByteArray("\0\0\xff\xff", 4)};
}

} // namespace

class TestFaxCover : public QObject
{
    Q_OBJECT

private slots:
    void laysBlocksFromTheTop_data();
    void laysBlocksFromTheTop();
    void cutsWhatDoesNotFit();
    void endsABlockWhereALineIsCut();
    void keepsWhatWasTyped_data();
    void keepsWhatWasTyped();
    void tellsWhatNoFontHas();
    void laysTheImageOverTheText();
    void takesTheImageFromItsStore();
    void survivesAnything_data();
    void survivesAnything();
};

void TestFaxCover::laysBlocksFromTheTop_data()
{
    // gaps: after how many lines there are 12 points more
    const Table<QSizeF, Texts, int, QList<int>> row{"size", "texts", "lines", "gaps"};
    row("Letter, all", letter, {u"H\nH\n"_s, u"H"_s, u"H"_s}, 7, {3, 5});
    row("A4, all", a4, {u"H\n"_s, u"H"_s, u"H\nH"_s}, 7, {2, 4});
    row("notes alone", letter, {{}, {}, u"H"_s}, 2, {});
    row("no recipients", letter, {u"H"_s, {}, u"H"_s}, 4, {2});
    row("no sender", a4, {{}, u"H"_s, u"H"_s}, 4, {2});
}

void TestFaxCover::laysBlocksFromTheTop()
{
    QFETCH(QSizeF, size);
    QFETCH(Texts, texts);
    QFETCH(int, lines);
    QFETCH(QList<int>, gaps);

    const Cover drawn = cover(size, texts);

    QCOMPARE(drawn.drawn, CoverSheetDrawn());
    const QImage image = drawn.image();
    QCOMPARE(image.size(), (size * scale).toSize());
    const QList<double> found = baselines(image);
    QCOMPARE(found.size(), lines);
    double y = size.height() - 103;
    for (int index = 0; index < lines; ++index) {
        if (gaps.contains(index))
            y -= 12;
        const bool isLabel = index == 0 || gaps.contains(index);
        const double baseline = y - line(isLabel).ascent;
        QVERIFY2(qAbs(found[index] - baseline) < 0.5,
                 qPrintable(u"%1: %2, not %3"_s.arg(index).arg(found[index]).arg(baseline)));
        y -= heightOf(line(isLabel));
    }
    // Nothing left of the margin, and an H's stem right of it; a label's is broader.
    const auto stemIn = [&](double baseline) {
        const int above = image.height() - qRound(baseline * scale) - 2 * scale;
        const auto isInked = [&](int x) { return qRed(image.pixel(x, above)) < 128; };
        int first = 0;
        while (!isInked(first))
            ++first;
        int last = first;
        while (isInked(last))
            ++last;
        return std::pair(first, last - first);
    };
    const auto [left, width] = stemIn(found[1]);
    QVERIFY(left >= 31 * scale && left < 33 * scale);
    QVERIFY(stemIn(found[0]).second > width);
}

void TestFaxCover::cutsWhatDoesNotFit()
{
    // Exactly three lines below the label, and by the least number that positions know too few.
    const double height = 134 + heightOf(line(true)) + 3 * heightOf(line(false));
    const Texts texts{{}, {}, u"H\nH\nH"_s};
    const Cover whole = cover({612, height}, texts);
    QCOMPARE(whole.drawn.isCut, false);
    QCOMPARE(baselines(whole.image()).size(), 4);
    const Cover cut = cover({612, height - 1.0 / 1024}, texts);
    QCOMPARE(cut.drawn.isCut, true);
    QCOMPARE(baselines(cut.image()).size(), 3);
    const Cover noRoom = cover({60, 792}, texts);
    QCOMPARE(noRoom.drawn.isCut, true);
}

void TestFaxCover::endsABlockWhereALineIsCut()
{
    // A tall line does not fit; the lower one after it would.
    const double height = 134 + heightOf(line(true)) + 1.5 * heightOf(line(false));
    const Texts texts{{}, u"H\n\u0e01\u0f56\nx"_s, {}};
    const Cover cut = cover({612, height}, texts);
    QCOMPARE(cut.drawn.isCut, true);
    QCOMPARE(cut.text().simplified(), u"H H"_s);
}

void TestFaxCover::keepsWhatWasTyped_data()
{
    const Table<QSizeF, QString, bool> row{"size", "typed", "isCut"};
    const QString latin = u"The office's finest flow: naïve Grüße, 12,000 «quoted». "_s;
    const QString arabic = u"السلام عليكم ورحمة الله وبركاته لا إله إلا أنت سبحانك "_s;
    const QString japanese = u"吾輩は猫である。名前はまだ無い。どこで生れたか「見当」がつかぬ。"_s;
    const QString combining = u"e\u0301 q\u0303 x\u030c Vie\u0323\u0302t a\u0301\u0328 "_s;
    QStringList names;
    for (int number = 1; number <= 200; ++number)
        names << u"Ann-Marie %1"_s.arg(number);
    row("long notes, Letter", letter, latin.repeated(200), true);
    row("long notes, A4", a4, latin.repeated(200), true);
    row("200 names, Letter", letter, names.join(u", "), false);
    row("200 names, A4", a4, names.join(u", "), false);
    row("Arabic", a4, arabic.repeated(30), false);
    row("much Arabic", letter, arabic.repeated(300), true);
    row("Japanese", a4, japanese.repeated(20), false);
    row("much Japanese", letter, japanese.repeated(200), true);
    row("combining characters", letter, combining.repeated(50), false);
    row("much of them", a4, combining.repeated(1000), true);
}

void TestFaxCover::keepsWhatWasTyped()
{
    QFETCH(QSizeF, size);
    QFETCH(QString, typed);
    QFETCH(bool, isCut);

    const Cover drawn = cover(size, {{}, {}, typed});

    QCOMPARE(drawn.drawn, CoverSheetDrawn({isCut, {}}));
    QStringList lines = drawn.text().split(u'\n', Qt::SkipEmptyParts);
    QCOMPARE(lines.takeFirst().trimmed(), u"H"_s);
    qsizetype at = 0;
    for (const QString &shown : lines) {
        while (typed[at].isSpace())
            ++at;
        const QString read = shown.trimmed();
        QCOMPARE(read, typed.sliced(at, std::min(read.size(), typed.size() - at)));
        at += read.size();
    }
    QVERIFY(isCut || typed.sliced(at).trimmed().isEmpty());
    const double room = size.height() - 134 - heightOf(line(true));
    QVERIFY(!isCut || double(lines.size()) > room / heightOf(line(false)) / 2);
}

void TestFaxCover::tellsWhatNoFontHas()
{
    const Cover drawn = cover(letter, {u"A\ue001"_s, u"B\ue001\U000f1234"_s, u"C"_s});
    QCOMPARE(drawn.drawn, CoverSheetDrawn({false, u"\ue001\U000f1234"_s}));
    QCOMPARE(drawn.text().simplified(), u"H A H B H C"_s);
}

void TestFaxCover::laysTheImageOverTheText()
{
    // Blocks of ink at the left of the page, and a large one over its middle.
    const Texts texts{{}, {}, (QString(20, QChar(0x2588)) + u'\n').repeated(40)};
    const QPoint onText(140 * scale, 396 * scale), beside(400 * scale, 396 * scale);
    _WatermarkData text = newWatermark();
    setText(text.textString, u"\u2588"_s);
    text.wellColorRed = 1;
    text.wellColorGreen = text.wellColorBlue = 0;
    text.angle = 0;
    text.fontSize = 600;
    text.density = 50;
    _WatermarkData picture;
    setText(picture.filename, u"a.png"_s);
    picture.scale = 2000;
    picture.density = 50;
    for (_WatermarkData *image : {&text, &picture}) {
        const QImage shown = cover(letter, texts, image, redPicture).image();
        QVERIFY(qAbs(qRed(shown.pixel(onText)) - 128) < 4); // black below, half red above
        QVERIFY(qAbs(qGreen(shown.pixel(beside)) - 128) < 4);
        image->density = 0;
        QCOMPARE(cover(letter, texts, image, redPicture).image(), cover(letter, texts).image());
        image->density = 500;
        QCOMPARE(cover(letter, texts, image, redPicture).image().pixel(onText) & 0xff'ff'ff,
                 0xff'00'00U);
    }
}

void TestFaxCover::takesTheImageFromItsStore()
{
    _WatermarkData image = newWatermark();
    setText(image.textString, u"Here"_s);
    image.angle = 0;
    image.isText = 1;
    saveWatermarkData(kFaxImagesFile, image);
    setText(image.textString, u"Elsewhere"_s);
    saveWatermarkData(kWatermarksFile, image);

    const auto textWith = [](const QString &name) {
        _MemoryConsumer consumer;
        const CoverSheetContent content{letter, {}, {}, u"To:"_s, u"Ann"_s, {}, {}, name};
        const Result<CoverSheetDrawn> drawn = drawCoverSheet(content, {}, consumer);
        return drawn ? Cover{drawn.value(), writtenBytes(consumer)}.text().simplified()
                     : drawn.reason();
    };
    QCOMPARE(textWith(u"Here"_s), u"To: Ann Here"_s);
    for (const QString &name : {u"Elsewhere"_s, u"none"_s, QString()})
        QCOMPARE(textWith(name), u"To: Ann"_s);
}

void TestFaxCover::survivesAnything_data()
{
    const Table<QSizeF, QString> row{"size", "text"};
    const QString much(1'000'000, u'x');
    row("one word without end", letter, much);
    row("one line after the other", letter, QString(1'000'000, u'\n'));
    row("one letter with marks without end", letter, u'e' + QString(1'000'000, u'\u0301'));
    row("nothing that takes room", letter, QString(1'000'000, u'\u200b'));
    row("from the right and from the left", letter, u"\u202eab\u0627"_s.repeated(200'000));
    row("characters of no font", letter, u"\ue001\U000f1234 "_s.repeated(200'000));
    row("no characters", letter, QString(1000, QChar(0)) + QString(1000, QChar(0xdc00)));
    row("no size", {}, much);
    row("a size that is none", QSizeF(qQNaN(), 792), much);
    row("a small page", QSizeF(1, 1), much);
    row("the largest page", QSizeF(14'400, 14'400), u"wide and large "_s.repeated(1000));
    row("a page too large", QSizeF(14'401, 792), much);
}

void TestFaxCover::survivesAnything()
{
    QFETCH(QSizeF, size);
    QFETCH(QString, text);
    _MemoryConsumer consumer;
    _WatermarkData image;
    image.density = std::numeric_limits<int>::min();
    const Result<CoverSheetDrawn> drawn = DrawFaxCover(consumer, QRectF(QPointF(), size), text,
                                                       text, text, text, text, text, &image, {});
    QCOMPARE(consumer.position > 0, bool(drawn));
    if (!drawn) {
        QCOMPARE(drawn.error().code, Error::Code::OutOfRange);
        return;
    }
    const auto pdf = Poppler::Document::loadFromData(writtenBytes(consumer));
    QVERIFY(pdf && pdf->numPages() == 1 && pdf->page(0)->pageSizeF() == size);
}

QTEST_GUILESS_MAIN(TestFaxCover)
#include "test_fax_cover.moc"
