#include "files.h"
#include "outgoing_pdf.h"
#include "page_drawing.h"
#include "sample_documents.h"
#include "table.h"

#include <QImage>
#include <QPainter>
#include <QTest>
#include <QTransform>

#include <poppler-form.h>
#include <poppler-qt6.h>
#include <qpdf/QPDF.hh>

#include <cmath>

using namespace kelvo;
using namespace kelvo::test;

namespace {

PdfLayout pagesAsTheyAre(std::initializer_list<int> pages)
{
    PdfLayout layout;
    for (const int page : pages)
        layout.push_back({.pages = {{.page = page}}, .isAsItIs = true});
    return layout;
}

constexpr QSizeF a4(596, 842);
constexpr int mostDifferent = 50; // of 255

Result<void> layOut(const QString &source, const PdfLayout &layout, const QString &target)
{
    QFile::remove(target);
    return makeOutgoingPdf(source, layout, {"ticket", {}, {}}, target);
}

// The whole of a page, at a place of its own.
LaidOutPage placed(int page, const QRectF &rect, int rotation = 0, const QSizeF &size = a4)
{
    return {size, {{page, rect, rotation, rect}}};
}

QImage drawn(const QString &path, int page, const QSize &pixels)
{
    return PageDrawing(path).draw(page, pixels, [] { return false; }).image;
}

// What tells two pictures of one page apart, 0 to 255: the most of any square of some pixels, since
// letters and edges are drawn by the grid of pixels.
int difference(const QImage &one, const QImage &other)
{
    if (one.size() != other.size())
        return 255;
    constexpr int side = 8;
    int most = 0;
    for (int top = 0; top + side <= one.height(); top += side) {
        for (int left = 0; left + side <= one.width(); left += side) {
            int sums[3] = {};
            for (int y = top; y < top + side; ++y) {
                for (int x = left; x < left + side; ++x) {
                    const QColor a = one.pixelColor(x, y);
                    const QColor b = other.pixelColor(x, y);
                    sums[0] += a.red() - b.red();
                    sums[1] += a.green() - b.green();
                    sums[2] += a.blue() - b.blue();
                }
            }
            for (const int sum : sums)
                most = std::max(most, std::abs(sum) / (side * side));
        }
    }
    return most;
}

QByteArrayList streamsOf(QPDF &pdf)
{
    QByteArrayList streams;
    for (QPDFObjectHandle &object : pdf.getAllObjects()) {
        if (!object.isStream())
            continue;
        const auto data = object.getStreamData();
        streams << QByteArray(reinterpret_cast<const char *>(data->getBuffer()),
                              static_cast<qsizetype>(data->getSize()));
    }
    return streams;
}

} // namespace

// What becomes of a document's pages on the way out.
class TestPdfLayout : public QObject
{
    Q_OBJECT

private slots:
    void looksAsInTheDocument_data();
    void looksAsInTheDocument();
    void leavesNothingOfOtherPages_data();
    void leavesNothingOfOtherPages();
    void drawsWhatIsPrintedTwiceFromOneForm();
    void readsInTheOrderOfThePlaces();
    void sendsPagesAsTheyAre();
    void refusesWhatIsNoPage_data();
    void refusesWhatIsNoPage();
    void saysThatTheDiskIsFull();
};

// The page is 200 by 300 points, with a drawing that has no symmetry; object 4 is its contents.
void TestPdfLayout::looksAsInTheDocument_data()
{
    const Table<QByteArray, int, QList<QByteArray>> row{"page", "rotation", "objects"};
    const QByteArray plain = "/MediaBox [0 0 200 300]";
    const QByteArray cropped = "/MediaBox [-30 -20 400 400] /CropBox [50 40 250 340]";
    row("plain", plain, 0, {});
    row("upside down", plain, 180, {});
    for (const char *rotate : {"90", "180", "270", "-90", "450"}) {
        const QByteArray entry = QByteArray(" /Rotate ") + rotate;
        row(("turned" + entry).constData(), plain + entry, 0, {});
        row(("turned twice, cropped" + entry).constData(), cropped + entry, 90, {});
    }
    row("cropped", cropped, 0, {});
    row("a unit of its own, turned", cropped + " /Rotate 90 /UserUnit 0.5", 270, {});
    row("no box of sense", "/MediaBox [0 0 1 1e400]", 0, {});
    row("no contents", plain + " /Contents 9 0 R", 0, {});
    row("several contents, one of them damaged", plain + " /Contents [4 0 R 5 0 R 6 0 R 7 0 R]", 0,
        {"<< /Length 4 /Filter /FlateDecode >>\nstream\nxxxx\nendstream",
         "<< /Length 4 /Filter /Unknown >>\nstream\nxxxx\nendstream",
         stream("Q Q Q Q 1 0 1 rg 5 5 30 30 re f")});
    row("blended in a group",
        plain
            + " /Group << /S /Transparency /CS /DeviceRGB >> /Contents [4 0 R 5 0 R] "
              "/Resources << /ExtGState << /G << /BM /Multiply >> >> >>",
        0, {stream("/G gs 1 1 0 rg 0 0 200 300 re f")});

    const QByteArray looks = "<< /Subtype /Form /BBox [0 0 20 10] /Matrix [2 0 0 2 5 5] /Length 54 "
                             ">>\nstream\n1 0 1 rg 0 0 20 10 re f 0 g 0 0 5 5 re f 15 5 5 5 re f\n"
                             "endstream";
    const std::pair<const char *, QByteArray> annotations[] = {
        {"link", "/Subtype /Link /Rect [20 20 90 60] /C [1 0 0]"},
        {"square",
         "/Subtype /Square /Rect [20 20 90 60] /C [1 0 0] /RD [5 10 20 0] /BS << /W 5 >>"},
        {"line",
         "/Subtype /Line /Rect [40 20 160 160] /L [50 30 150 150] /C [1 0 0] /Border [0 0 6]"},
        {"ink",
         "/Subtype /Ink /Rect [40 20 160 160] /InkList [[50 30 150 150 50 150] [60 40 70 80]] "
         "/C [1 0 0] /BS << /W 3 >>"},
        {"underline",
         "/Subtype /Underline /Rect [20 150 160 250] /C [1 0 0] "
         "/QuadPoints [30 230 120 230 30 200 120 200]"},
        {"stamp", "/Subtype /Stamp /Rect [20 20 90 60] /AP << /N 5 0 R >>"},
        {"stamp that stays upright",
         "/F 20 /Subtype /Stamp /Rect [40 40 110 80] /AP << /N 5 0 R >>"},
        {"stamp beyond the page", "/Subtype /Stamp /Rect [150 -20 250 350] /AP << /N 5 0 R >>"},
        {"check box",
         "/Subtype /Widget /FT /Btn /T (b) /AS /On /Rect [20 20 90 60] "
         "/AP << /N << /On 5 0 R /Off 4 0 R >> >>"},
        {"field", "/Subtype /Widget /FT /Tx /T (t) /V (Value) /DA (/F 14 Tf) /Rect [20 20 90 60]"},
    };
    for (const auto &[what, entries] : annotations) {
        for (const int rotation : {0, 180}) {
            row((what + QByteArray(rotation == 0 ? "" : ", turned")).constData(),
                plain + (rotation == 0 ? "" : " /Rotate 90") + " /Annots [6 0 R]", rotation,
                {looks, "<< /Type /Annot /F 4 " + entries + " >>"});
        }
    }
}

void TestPdfLayout::looksAsInTheDocument()
{
    QFETCH(QByteArray, page);
    QFETCH(int, rotation);
    QFETCH(QList<QByteArray>, objects);
    const QByteArray contents =
        "0.9 g -500 -500 2000 2000 re f 1 0 0 rg 60 50 100 30 re f 0 0 1 rg "
        "60 80 30 100 re f 0 0.6 0 RG 3 w 10 10 m 190 290 l S q q "
        "BT /F 30 Tf 40 200 Td (Text) Tj ET";
    const QByteArray fonts =
        "/Font << /F << /Type /Font /Subtype /Type1 /BaseFont /Helvetica >> >>";
    const QString source =
        file("page.pdf",
             pdfOf(QList<QByteArray>{
                       "<< /Type /Catalog /Pages 2 0 R /AcroForm << /Fields [6 0 R] /DR << " + fonts
                           + " >> >> >>",
                       "<< /Type /Pages /Kids [3 0 R] /Count 1 /Resources << " + fonts + " >> >>",
                       "<< /Type /Page /Parent 2 0 R "
                           + QByteArray(page.contains("/Contents") ? "" : "/Contents 4 0 R ") + page
                           + " >>",
                       stream(contents)}
                   + objects));
    const QSizeF size = Poppler::Document::load(source)->page(0)->pageSizeF();
    const double scale = 0.8;
    const QRectF rect(QPointF(40, 60), (rotation % 180 == 0 ? size : size.transposed()) * scale);
    const QRectF place = rect.adjusted(0, 8, -12, 0);

    const auto done = layOut(source, {{{700, 800}, {{1, rect, rotation, place}}}}, "sheet.pdf");

    QVERIFY2(done, qPrintable(done.reason()));
    constexpr int density = 2; // pixels of a point
    const QImage page1 = drawn(source, 1, (size * scale * density).toSize())
                             .transformed(QTransform().rotate(rotation));
    QImage expected(QSize(700, 800) * density, QImage::Format_RGB32);
    expected.fill(Qt::white);
    QPainter painter(&expected);
    painter.setClipRect(QRectF(place.topLeft() * density, place.size() * density));
    painter.drawImage(rect.topLeft() * density, page1);
    painter.end();
    const QImage sheet = drawn("sheet.pdf", 1, expected.size());
    const int different = difference(sheet, expected);
    QVERIFY2(different < mostDifferent, qPrintable(QString::number(different)));
}

// A bookmark, a link and a form field lead to the second page, which is not printed.
void TestPdfLayout::leavesNothingOfOtherPages_data()
{
    const Table<bool> row{"isAsItIs"};
    row("as they are", true);
    row("placed", false);
}

void TestPdfLayout::leavesNothingOfOtherPages()
{
    QFETCH(bool, isAsItIs);
    const QString source = file(
        "pdf",
        pdfOf({"<< /Type /Catalog /Pages 2 0 R /Outlines 7 0 R /AcroForm << /Fields [9 0 R] >> "
               "/StructTreeRoot << /K [<< /S /P /Pg 5 0 R /Alt (SECRET) >>] >> >>",
               "<< /Type /Pages /Kids [3 0 R 5 0 R] /Count 2 /Rotate 90 >>",
               "<< /Type /Page /Parent 2 0 R /MediaBox [0 0 200 300] /Contents 4 0 R /Annots [<< "
               "/Type "
               "/Annot /Subtype /Link /Rect [0 0 9 9] /Dest [5 0 R /Fit] >>] >>",
               stream("% KEPT"),
               "<< /Type /Page /Parent 2 0 R /MediaBox [0 0 200 300] /Contents 6 0 R /Annots [9 0 "
               "R] >>",
               stream("% SECRET"), "<< /Type /Outlines /First 8 0 R /Last 8 0 R >>",
               "<< /Title (b) /Parent 7 0 R /Dest [5 0 R /Fit] >>",
               "<< /Type /Annot /Subtype /Widget /FT /Tx /T (t) /V (SECRET) /Rect [0 0 9 9] /P 5 0 "
               "R >>"}));

    const auto done = layOut(
        source, isAsItIs ? pagesAsTheyAre({1}) : PdfLayout{placed(1, QRectF(0, 0, 200, 300))},
        "cut.pdf");

    QVERIFY2(done, qPrintable(done.reason()));
    QPDF result;
    result.processFile("cut.pdf");
    QVERIFY(streamsOf(result).join().contains("KEPT"));
    QVERIFY(!streamsOf(result).join().contains("SECRET"));
    QVERIFY(!bytesOf("cut.pdf").contains("SECRET"));
    QVERIFY(result.getRoot().getKey("/AcroForm").getKey("/Fields").getArrayNItems() == 0);
    QVERIFY(!result.anyWarnings());
    QCOMPARE(Poppler::Document::load("cut.pdf")->page(0)->pageSize(),
             isAsItIs ? QSize(300, 200) : a4.toSize());
}

void TestPdfLayout::drawsWhatIsPrintedTwiceFromOneForm()
{
    const QString source =
        file("pdf",
             pdfOf({"<< /Type /Catalog /Pages 2 0 R /AcroForm << /Fields [5 0 R] >> >>",
                    "<< /Type /Pages /Kids [3 0 R 3 0 R] /Count 2 >>", // named twice
                    "<< /Type /Page /Parent 2 0 R /MediaBox [0 0 200 300] /Contents 4 0 R /Annots "
                    "[5 0 R] >>",
                    stream("% KEPT"),
                    "<< /Type /Annot /Subtype /Widget /FT /Tx /T (t) /V (x) /Rect [0 0 100 100] /P "
                    "3 0 R >>"}));
    const auto place = [](int page, double left) {
        return PlacedPage{page, {left, 0, 200, 300}, 0, {left, 0, 200, 300}};
    };
    const PdfLayout layout = {{a4, {place(1, 0), place(1, 200)}}, {a4, {place(1, 0)}}};

    const auto done = layOut(source, layout, "twice.pdf");

    QVERIFY2(done, qPrintable(done.reason()));
    QPDF result;
    result.processFile("twice.pdf");
    QCOMPARE(streamsOf(result).count("% KEPT"), 1);
    QVERIFY(!result.anyWarnings());
    // One field, with a widget at each place.
    auto fields = result.getRoot().getKey("/AcroForm").getKey("/Fields");
    QCOMPARE(fields.getArrayNItems(), 1);
    QCOMPARE(fields.getArrayItem(0).getKey("/Kids").getArrayNItems(), 3);
    const auto form = Poppler::Document::load("twice.pdf");
    for (const auto &[page, lefts] : {std::pair(0, QList<int>{0, 200}), {1, {0}}}) {
        QList<int> found;
        for (const auto &field : form->page(page)->formFields()) {
            QCOMPARE(field->fullyQualifiedName(), "t");
            found << qRound(field->rect().left() * a4.width());
        }
        QCOMPARE(found, lefts);
    }
}

void TestPdfLayout::readsInTheOrderOfThePlaces()
{
    const QByteArray font =
        "/Resources << /Font << /F << /Type /Font /Subtype /Type1 /BaseFont /Helvetica >> >> >>";
    QList<QByteArray> contents;
    for (const char *word : {"one", "two", "three", "four"})
        contents << QByteArray("BT /F 30 Tf 40 200 Td (") + word + ") Tj ET";
    const QString source = file("pdf", pdfWithPages(contents, font));
    LaidOutPage sheet{a4, {}};
    for (const int page : {2, 1, 4, 3}) {
        const QRectF rect(page % 2 * 300, page / 3 * 400, 200, 300);
        sheet.pages.push_back({page, rect, 0, rect});
    }

    QVERIFY(layOut(source, {sheet}, "words.pdf"));

    const auto pdf = Poppler::Document::load("words.pdf");
    QCOMPARE(pdf->page(0)->text({}).simplified(), "two one four three");
}

void TestPdfLayout::sendsPagesAsTheyAre()
{
    const QString source = file("pdf", pdfWithPages({"", "", "", "", ""}));
    PdfLayout layout = pagesAsTheyAre({4, 5, 2, 4});
    layout.push_back({{300, 400}, {}}); // blank
    layout.push_back(placed(2, {0, 0, 100, 150}, 0, {250, 300}));

    QVERIFY(layOut(source, layout, "cut.pdf"));

    const auto pdf = Poppler::Document::load("cut.pdf");
    QList<int> widths;
    for (int page = 0; page < pdf->numPages(); ++page)
        widths << pdf->page(page)->pageSize().width();
    QCOMPARE(widths, QList<int>({204, 205, 202, 204, 300, 250}));
}

void TestPdfLayout::refusesWhatIsNoPage_data()
{
    const Table<LaidOutPage, bool> row{"page", "isTaken"};
    const QRectF rect(0, 0, 10, 10);
    const double nan = std::nan("");
    row("page 0", placed(0, rect), false);
    row("first page", placed(1, rect), true);
    row("last page", placed(2, rect), true);
    row("page after the last", placed(3, rect), false);
    row("as it is, and missing", {{}, {{.page = 3}}, true}, false);
    row("as it is, of nothing", {{}, {}, true}, false);
    row("blank", {a4, {}}, true);
    row("too small", {{2.9, 100}, {}}, false);
    row("too large", {{14401, 100}, {}}, false);
    row("no size", {{nan, 100}, {}}, false);
    row("nowhere", placed(1, {nan, 0, 10, 10}), false);
    row("of no width", placed(1, {0, 0, 0, 10}), false);
    row("turned a little", placed(1, rect, 45), false);
}

void TestPdfLayout::refusesWhatIsNoPage()
{
    QFETCH(LaidOutPage, page);
    const auto checked = checkLayout({page}, 2, "document");
    QTEST(bool(checked), "isTaken");
    QVERIFY(checked || checked.error().code == Error::Code::OutOfRange);
}

void TestPdfLayout::saysThatTheDiskIsFull()
{
    QByteArray noise = "% ";
    for (quint32 seed = 1; noise.size() < 30'000; seed = seed * 1'664'525 + 1'013'904'223)
        noise += QByteArray::number(seed >> 8);
    const QString source = file("pdf", pdfWithPages({noise, noise}));

    const FullDisk full(5000);
    const auto done = layOut(source, {placed(1, {0, 0, 200, 300})}, "full.pdf");

    QVERIFY(!done);
    QCOMPARE(done.error().code, Error::Code::NotWritable);
}

QTEST_GUILESS_MAIN(TestPdfLayout)
#include "test_pdf_layout.moc"
