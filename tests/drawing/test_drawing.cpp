#include "drawing.h"
#include "files.h"
#include "library_entry.h"
#include "part_library.h"
#include "table.h"

#include <QImage>
#include <QLibrary>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include <poppler-qt6.h>
#include <thread>

using namespace kelvo;
using namespace kelvo::drawing;
using namespace Qt::StringLiterals;

class TestDrawing : public QObject
{
    Q_OBJECT

private slots:
    void isOpenedWithTheFirstCall();
    void saysWhyItCannotBeOpened();
    void findsFontsByName();
    void measuresInPointsFromTheBaseline();
    void measuresWhatIsDrawn_data();
    void measuresWhatIsDrawn();
    void drawsTextThatCanBeRead();
    void breaksLines_data();
    void breaksLines();
    void writesLettersThatCanBeCopied_data();
    void writesLettersThatCanBeCopied();
    void tellsWhatNoFontHas();
    void measuresLines();
    void drawsOnAnyThread();
    void showsPages();
    void showsTheSameOnNothing();
};

namespace {

bool hasDrawingLibraries()
{
    const QByteArray maps = bytesOf(u"/proc/self/maps"_s);
    return maps.isEmpty() || maps.contains("/libcairo") || maps.contains("/libpango");
}

bool hasAddressBook()
{
    return bytesOf(u"/proc/self/maps"_s).contains("/libebook");
}

const Library &here()
{
    const Result<const Library *> opened = library();
    if (!opened)
        qFatal("%s", qPrintable(opened.reason()));
    return *opened.value();
}

QByteArray pdfOf(const QSizeF &size, const std::function<void(Page &)> &draw)
{
    QByteArray pdf;
    const auto write = [&pdf](const char *bytes, std::size_t count) {
        pdf.append(bytes, qsizetype(count));
        return true;
    };
    Result<std::unique_ptr<Page>> page = here().beginPage(size, write);
    if (!page)
        qFatal("%s", qPrintable(page.reason()));
    draw(*page.value());
    if (const Result<void> finished = page.value()->finish(); !finished)
        qFatal("%s", qPrintable(finished.reason()));
    return pdf;
}

std::unique_ptr<Poppler::Document> pageWith(const QString &text, const TextStyle &style,
                                            const QSizeF &size, const QPointF &origin)
{
    return Poppler::Document::loadFromData(
        pdfOf(size, [&](Page &page) { page.drawText(text, style, origin); }));
}

// The lines of a text, each as it is read out of the PDF.
struct Wrapped
{
    QStringList texts;
    std::vector<TextLine> lines;
};

Wrapped wrapped(const QString &text, const TextStyle &style, double width)
{
    Wrapped result;
    bool isDone = false;
    for (std::size_t number = 0; !isDone; ++number) {
        const QByteArray pdf = pdfOf({2000, 100}, [&](Page &page) {
            const std::unique_ptr<WrappedText> lines = page.wrapText(text, style, width);
            for (std::size_t skipped = 0; skipped < number; ++skipped)
                lines->nextLine();
            const std::optional<TextLine> line = lines->nextLine();
            isDone = !line;
            if (isDone)
                return;
            result.lines.push_back(*line);
            lines->drawLine({20, 50});
        });
        if (!isDone)
            result.texts += Poppler::Document::loadFromData(pdf)->page(0)->text({}).trimmed();
    }
    return result;
}

// Without what says in which direction the next letters run.
QString withoutDirections(QString text)
{
    static const QRegularExpression directions(u"[\u202a-\u202e\u200e\u200f]"_s);
    return text.remove(directions);
}

QImage shown(const QByteArray &pdf, const QSize &pixels, bool isOnWhite)
{
    const Result<Picture> picture = showPdf(pdf, pixels, isOnWhite);
    if (!picture)
        qFatal("%s", qPrintable(picture.reason()));
    const auto &[size, bytes] = picture.value();
    if (bytes.size() != qsizetype(4) * size.width() * size.height())
        qFatal("%d bytes", int(bytes.size()));
    return QImage(reinterpret_cast<const uchar *>(bytes.constData()), size.width(), size.height(),
                  QImage::Format_ARGB32_Premultiplied)
        .copy();
}

} // namespace

// The window and the extension do without: their first frame would wait for it.
void TestDrawing::isOpenedWithTheFirstCall()
{
    QLibrary module(u"" KELVO_BUILD_DIR "/lib/KelvoPDE.pde/KelvoPDE.so"_s);
    QVERIFY2(module.load(), qPrintable(module.errorString()));
    QVERIFY(!hasDrawingLibraries() && !hasAddressBook());

    const Result<const Library *> first = library();

    QVERIFY2(first, qPrintable(first.reason()));
    QVERIFY(hasDrawingLibraries());
    QCOMPARE(library().value(), first.value());
    QLibrary opened(libraryFolder() + u"/libkelvo_drawing.so"_s);
    auto *entry = reinterpret_cast<PartEntry *>(opened.resolve(drawingEntry));
    QVERIFY(entry && !entry("0.9")); // another version's
}

void TestDrawing::saysWhyItCannotBeOpened()
{
    const std::pair<QByteArray, Error::Code> rows[] = {
        {{}, Error::Code::NotFound}, // no file
        {"no library", Error::Code::NotReadable},
        {bytesOf(u"" KELVO_BUILD_DIR "/lib/libkelvo_platform.so"_s), Error::Code::Damaged},
    };
    for (const auto &[bytes, code] : rows) {
        const QTemporaryDir folder;
        for (const char *name : {"libkelvo_drawing.so", "libkelvo_pdf_view.so"}) {
            if (!bytes.isEmpty())
                putFile(folder.filePath(QLatin1String(name)), bytes);
        }
        const Result<const Library *> opened = library(folder.path());
        const Result<Picture> picture = showPdf("%PDF-", {9, 9}, true, folder.path());
        QVERIFY(!opened && !picture);
        QCOMPARE(opened.error().where, folder.filePath(u"libkelvo_drawing.so"_s));
        QCOMPARE(picture.error().where, folder.filePath(u"libkelvo_pdf_view.so"_s));
        for (const Error &error : {opened.error(), picture.error()}) {
            QCOMPARE(error.code, code);
            QVERIFY2(error.detail.contains(u"install kelvo-print anew"_s),
                     qPrintable(error.text()));
        }
    }
}

void TestDrawing::findsFontsByName()
{
    const std::pair<QString, QString> rows[] = {
        {u"DejaVuSans-Bold"_s, u"DejaVuSans-Bold"_s}, // exactly
        {u"ArialMT"_s, u"LiberationSans"_s},          // as wide
        {u"CourierNewPS-BoldMT"_s, u"LiberationMono-Bold"_s},
        {u"dejavusans-bold"_s, {}},
        {u"DejaVu Sans"_s, {}}, // a family
        {u"NoSuchFont"_s, {}},
        {{}, {}},
    };
    for (const auto &[name, found] : rows) {
        const std::optional<Font> font = here().findFont(name);
        QCOMPARE(font ? font->postScriptName : QString(), found);
        const QByteArray trueType("\0\1\0\0", 4);
        QVERIFY(!font || bytesOf(font->path).startsWith(trueType));
    }
}

void TestDrawing::measuresInPointsFromTheBaseline()
{
    // Of 2048 units of that font: an H begins at 168, ends at 1312 and is 1409 high.
    const TextStyle upright{u"LiberationSans"_s, 2048};
    const TextStyle toTheLeft{u"LiberationSans"_s, 2048, {}, 90};
    const auto rounded = [](const TextStyle &style) {
        return here().inkBounds(u"H"_s, style).toRect();
    };
    QCOMPARE(rounded(upright), QRect(168, -1409, 1144, 1409));
    QCOMPARE(rounded(toTheLeft), QRect(-1409, -1312, 1409, 1144));
}

void TestDrawing::measuresWhatIsDrawn_data()
{
    // font: its file's PostScript name
    const Table<QString, double, QString> row{"text", "angle", "font"};
    row("on the baseline", u"H"_s, 0.0, u"LiberationSans"_s);
    row("below it", u"jg"_s, 0.0, u"LiberationSans-BoldItalic"_s);
    row("two lines", u"H\nH"_s, 0.0, u"DejaVuSans"_s);
    row("a quarter to the left", u"Hg"_s, 90.0, u"DejaVuSans-Bold"_s);
    row("a quarter to the right", u"Hg"_s, -90.0, u"DejaVuSansMono"_s);
    row("an eighth", u"HgHg"_s, 45.0, u"LiberationSans"_s);
}

void TestDrawing::measuresWhatIsDrawn()
{
    QFETCH(QString, text);
    QFETCH(double, angle);
    QFETCH(QString, font);
    constexpr int scale = 4; // pixels of a point
    const QPointF origin(130, 140);
    const TextStyle style{font, 50, {1, 0, 0, 1}, angle};

    const QRectF ink = here().inkBounds(text, style);
    const auto pdf = pageWith(text, style, {300, 290}, origin);
    QVERIFY(pdf && pdf->fonts().size() == 1);
    QVERIFY2(pdf->fonts().first().name().endsWith(u'+' + font),
             qPrintable(pdf->fonts().first().name()));
    const QImage image = pdf->page(0)->renderToImage(72 * scale, 72 * scale);
    QRect inked;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (qGreen(image.pixel(x, y)) < 128) {
                QVERIFY(qRed(image.pixel(x, y)) > 250);
                inked |= QRect(x, y, 1, 1);
            }
        }
    }

    const QRectF drawn(QPointF(inked.topLeft()) / scale, QSizeF(inked.size()) / scale);
    const QRectF measured = ink.translated(origin.x(), 290 - origin.y());
    // The corners of a turned rectangle are white.
    const double white = angle == 45 ? 18 : 0.5;
    QVERIFY(measured.adjusted(-0.5, -0.5, 0.5, 0.5).contains(drawn));
    QVERIFY(drawn.adjusted(-white, -white, white, white).contains(measured));
}

void TestDrawing::drawsTextThatCanBeRead()
{
    const auto pdf = pageWith(u"Grüße, Ελλάς"_s, {}, {612, 792}, {72, 72});

    QVERIFY(pdf);
    QCOMPARE(pdf->numPages(), 1);
    QCOMPARE(pdf->page(0)->pageSizeF(), QSizeF(612, 792));
    QCOMPARE(pdf->page(0)->text({}).trimmed(), u"Grüße, Ελλάς"_s);
    QVERIFY(here().inkBounds(u" "_s, {}).isNull());
    for (const QSizeF size : {QSizeF(0, 792), QSizeF(612, qQNaN()), QSizeF(612, 14401)})
        QCOMPARE(here().beginPage(size, {}).error().code, Error::Code::OutOfRange);
}

void TestDrawing::breaksLines_data()
{
    const Table<QString, double, QStringList> row{"text", "width", "lines"};
    row("between words", u"one two three"_s, 50.0, {u"one two"_s, u"three"_s});
    row("within a word that is too wide", u"a mmmmm"_s, 25.0, {u"a"_s, u"mm"_s, u"mm"_s, u"m"_s});
    row("a character on each", u"abc"_s, 0.0, {u"a"_s, u"b"_s, u"c"_s});
    row("no number", u"ab"_s, qQNaN(), {u"a"_s, u"b"_s});
    row("at each kind of break", u"a\r\nb\rc\nd\fe\vf\u0085g\u2028h\u2029i"_s, 200.0,
        {u"a"_s, u"b"_s, u"c"_s, u"d"_s, u"e"_s, u"f"_s, u"g"_s, u"h"_s, u"i"_s});
    row("with empty ones between", u"\na\n\nb\n"_s, 200.0, {{}, u"a"_s, {}, u"b"_s});
    row("none of nothing", {}, 200.0, {});
    row("a tab", u"a\tb"_s, 200.0, {u"a b"_s});
    row("nothing of control characters", u"a\0b\033c"_s, 200.0, {u"abc"_s});
    row("two halves of no character", QString(QChar(0xd800)) + QChar(0xd800), 200.0, {u"??"_s});
    row("signs without blanks", u"日本語のテキスト。"_s, 50.0,
        {u"日本語の"_s, u"テキス"_s, u"ト。"_s});
    // Longer than what is laid out at once: 21 of these words fit.
    const QString word = u"mm "_s;
    row("in a long paragraph", word.repeated(1500), 500.0,
        QStringList(71, word.repeated(21).trimmed()) + QStringList(word.repeated(9).trimmed()));
}

void TestDrawing::breaksLines()
{
    QFETCH(QString, text);
    QFETCH(double, width);
    QFETCH(QStringList, lines);

    QCOMPARE(wrapped(text, {u"LiberationSans"_s, 12}, width).texts, lines);
}

// cairo alone makes one word of each mark, and turns the letters of ligatures around.
void TestDrawing::writesLettersThatCanBeCopied_data()
{
    const Table<QString> row{"text"};
    row("ligatures", u"office, flow \ufb01"_s);
    row("composed and decomposed", u"\u00e9 e\u0301 q\u0303 x\u030c a\u0301\u0328"_s);
    row("beyond 16 bits", u"an emoji \U0001f600 here"_s);
    row("Vietnamese", u"Tiếng Việt Nguyễn"_s);
    row("Devanagari", u"हिन्दी क्षत्रिय देवनागरी"_s);
    row("Thai", u"ภาษาไทย ก็ได้"_s);
    row("Japanese", u"吾輩は猫である。名前はまだ無い。"_s);
    row("Chinese", u"中文，汉字。"_s);
    row("Hebrew with points", u"שלום עולם עִבְרִית"_s);
    row("Arabic", u"السلام عليكم ورحمة الله لا إله إلا"_s);
    row("Arabic with marks", u"بِسْمِ ٱللّٰهِ ٱلرَّحْمٰنِ ٱلرَّحِيم"_s);
    row("Persian", u"می\u200cخواهم"_s);
}

void TestDrawing::writesLettersThatCanBeCopied()
{
    QFETCH(QString, text);
    const Wrapped lines = wrapped(text, {}, 1900);
    QCOMPARE(lines.texts.size(), 1);
    QCOMPARE(withoutDirections(lines.texts.first()), text);
    QCOMPARE(lines.lines.front().missingCharacters, QString());
}

void TestDrawing::tellsWhatNoFontHas()
{
    const Wrapped lines = wrapped(u"a\U000f1234b \ue000\U000f1234\nc\u0001d\ue001"_s, {}, 500);
    QCOMPARE(lines.texts, QStringList({u"ab"_s, u"cd"_s}));
    QCOMPARE(lines.lines[0].missingCharacters, u"\U000f1234\ue000"_s);
    QCOMPARE(lines.lines[1].missingCharacters, u"\ue001"_s);
    const Wrapped whole = wrapped(u"ab"_s, {}, 500);
    QCOMPARE(lines.lines[0].ascent, whole.lines[0].ascent); // of no box either
}

void TestDrawing::measuresLines()
{
    // Of 2048 units of that font, in all its lines.
    const TextLine expected{1854, 434};
    const TextStyle style{u"LiberationSans"_s, 2048};
    for (const TextLine &line : wrapped(u"x\n\nÅg\n \n\ue000"_s, style, 5000).lines)
        QCOMPARE(TextLine(line.ascent, line.descent), expected);
    const TextLine mixed = wrapped(u"x ก"_s, style, 9000).lines.front();
    QVERIFY(mixed.ascent > expected.ascent && mixed.descent > expected.descent);

    TextStyle bold{u"LiberationSans"_s, 40};
    bold.isBold = true;
    const auto pdf = Poppler::Document::loadFromData(pdfOf({300, 100}, [&](Page &page) {
        const auto text = page.wrapText(u"H"_s, bold, 200);
        text->nextLine();
        text->drawLine({72, 20});
    }));
    QCOMPARE(pdf->fonts().first().name().section(u'+', 1), u"LiberationSans-Bold"_s);
    const auto boxes = pdf->page(0)->textList();
    QCOMPARE(qRound(boxes.front()->boundingBox().left()), 72);
}

void TestDrawing::drawsOnAnyThread()
{
    const TextStyle style{u"ArialMT"_s, 72, {}, 30};
    const QRectF expected = here().inkBounds(u"Draft"_s, style);
    std::atomic_int same = 0;
    {
        std::vector<std::jthread> threads;
        threads.reserve(4);
        for (int count = 0; count < 4; ++count) {
            threads.emplace_back([&] {
                const auto pdf = pageWith(u"Draft"_s, style, {612, 792}, {100, 100});
                same += pdf && here().inkBounds(u"Draft"_s, style) == expected;
            });
        }
    }
    QCOMPARE(same, 4);
}

void TestDrawing::showsPages()
{
    // Left half red, upper half of what is right of it blue at a half.
    const Picture dot{{1, 1}, QByteArray("\0\0\xff\xff", 4)};
    const Picture blue{{1, 1}, QByteArray("\xff\0\0\xff", 4)};
    const QByteArray pdf = pdfOf({200, 100}, [&](Page &page) {
        page.drawPicture(dot, {0, 0, 100, 100});
        page.setOpacity(0.5);
        page.drawPicture(blue, {100, 50, 100, 50});
    });

    const QImage onWhite = shown(pdf, {400, 400}, true); // fits by its width
    QCOMPARE(onWhite.size(), QSize(400, 200));
    QCOMPARE(onWhite.pixel(100, 100), qRgba(255, 0, 0, 255));
    QVERIFY(qAbs(qRed(onWhite.pixel(300, 50)) - 128) < 3);
    QCOMPARE(onWhite.pixel(300, 150), qRgba(255, 255, 255, 255));
    const QImage onNothing = shown(pdf, {400, 400}, false);
    QCOMPARE(onNothing.pixel(300, 150), 0U);
    const QRgb half = onNothing.pixel(300, 50); // multiplied by its alpha
    QVERIFY(qAbs(qAlpha(half) - 128) < 3 && qAbs(qBlue(half) - 128) < 3 && qRed(half) < 3);

    // Of a row of four, one reaches beyond the page at either side, the upper half of all too.
    const Picture row{{4, 1}, QByteArray("\0\0\xff\xff\xff\0\0\xff\0\xff\0\xff\0\0\xff\xff", 16)};
    const QByteArray beyond = pdfOf({200, 100}, [&](Page &page) {
        page.drawPicture(row, {-100, 50, 400, 100});
    });
    const QImage middle = shown(beyond, {200, 100}, true);
    QVERIFY(qBlue(middle.pixel(2, 25)) > 200 && qGreen(middle.pixel(2, 25)) < 50);
    QVERIFY(qGreen(middle.pixel(197, 2)) > 200 && qBlue(middle.pixel(197, 2)) < 50);
    QCOMPARE(middle.pixel(100, 75), qRgba(255, 255, 255, 255));

    QCOMPARE(shown(pdf, {9000, 2}, true).size(), QSize(4, 2));
    QCOMPARE(shown(pdf, {9000, 9000}, true).width(), 8192);
    QVERIFY(showPdf(pdf, {0, 9}, true).value().isNull());
    for (const QByteArray &damaged : {QByteArray(), QByteArray("no PDF"), pdf.first(60)})
        QCOMPARE(showPdf(damaged, {9, 9}, true).error().code, Error::Code::Damaged);
}

// Nothing of the paper clings to edges: laid on white, it is as if it had been drawn there.
void TestDrawing::showsTheSameOnNothing()
{
    const QByteArray pdf = pdfOf({200, 100}, [](Page &page) {
        page.setOpacity(0.6);
        page.drawText(u"Draft"_s, {u"LiberationSans"_s, 60, {0, 0, 1, 1}, 15}, {20, 20});
    });
    const QImage expected = shown(pdf, {300, 150}, true);
    const QImage drawn = shown(pdf, {300, 150}, false);
    int edges = 0;
    for (int y = 0; y < drawn.height(); ++y) {
        for (int x = 0; x < drawn.width(); ++x) {
            const QRgb pixel = drawn.pixel(x, y);
            const int white = 255 - qAlpha(pixel);
            QVERIFY(qRed(pixel) <= qAlpha(pixel) && qBlue(pixel) <= qAlpha(pixel));
            QVERIFY(qAbs(qRed(pixel) + white - qRed(expected.pixel(x, y))) < 4);
            QVERIFY(qAbs(qBlue(pixel) + white - qBlue(expected.pixel(x, y))) < 4);
            edges += qAlpha(pixel) > 20 && qAlpha(pixel) < 130;
        }
    }
    QVERIFY(edges > 100);
}

QTEST_GUILESS_MAIN(TestDrawing)
#include "test_drawing.moc"
