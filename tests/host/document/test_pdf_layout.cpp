#include "files.h"
#include "outgoing_pdf.h"
#include "page_drawing.h"
#include "sample_documents.h"
#include "table.h"

#include <QImage>
#include <QTest>
#include <QTransform>

#include <poppler-qt6.h>
#include <qpdf/QPDF.hh>

#include <cmath>

using namespace kelvo;
using namespace kelvo::test;

namespace {

constexpr QSizeF a4(596, 842);

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
    constexpr int side = 4;
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

[[maybe_unused]] QByteArray allContents(QPDF &pdf)
{
    QByteArray contents;
    for (QPDFObjectHandle &object : pdf.getAllObjects()) {
        contents += QByteArray::fromStdString(object.unparseResolved());
        if (object.isStream()) {
            const auto data = object.getStreamData();
            contents.append(reinterpret_cast<const char *>(data->getBuffer()),
                            static_cast<qsizetype>(data->getSize()));
        }
    }
    return contents;
}

} // namespace

// What becomes of a document's pages on the way out.
class TestPdfLayout : public QObject
{
    Q_OBJECT

private slots:
    void looksAsInTheDocument_data();
    void looksAsInTheDocument();
};

// A page of 200 by 300 points, with a corner of its own and one that is nobody's.
void TestPdfLayout::looksAsInTheDocument_data()
{
    const Table<QByteArray, QByteArray, int, QList<QByteArray>> row{"page", "catalog", "rotation",
                                                                    "objects"};
    const QByteArray plain = "/MediaBox [0 0 200 300]";
    const QByteArray cropped = "/MediaBox [-30 -20 400 400] /CropBox [50 40 250 340]";
    row("plain", plain, {}, 0, {});
    row("turned", plain, {}, 90, {});
    row("upside down", plain, {}, 180, {});
    row("turned back", plain, {}, 270, {});
    for (const char *rotate : {"90", "180", "270", "-90", "450"}) {
        const QByteArray entry = QByteArray(" /Rotate ") + rotate;
        row((QByteArray("of a turned page") + entry).constData(), plain + entry, {}, 0, {});
        row((QByteArray("of a turned page, cropped") + entry).constData(), cropped + entry, {}, 90,
            {});
    }
    row("cropped", cropped, {}, 0, {});
    row("a unit of its own", plain + " /UserUnit 1.5", {}, 0, {});
    row("a unit of its own, turned", cropped + " /Rotate 90 /UserUnit 0.5", {}, 270, {});
    row("no box of sense", "/MediaBox [0 0 1 1e400]", {}, 0, {});
}

void TestPdfLayout::looksAsInTheDocument()
{
    QFETCH(QByteArray, page);
    QFETCH(QByteArray, catalog);
    QFETCH(int, rotation);
    QFETCH(QList<QByteArray>, objects);
    const QByteArray contents =
        "0.9 g -500 -500 2000 2000 re f 1 0 0 rg 60 50 100 30 re f 0 0 1 rg "
        "60 80 30 100 re f 0 0.6 0 RG 3 w 10 10 m 190 290 l S q q "
        "/P gs BT /F 30 Tf 40 200 Td (Text) Tj ET";
    const QString source = file(
        "page.pdf",
        pdfOf(QList<QByteArray>{"<< /Type /Catalog /Pages 2 0 R " + catalog + " >>",
                                "<< /Type /Pages /Kids [3 0 R] /Count 1 /Resources << /Font << /F "
                                "<< /Type /Font /Subtype /Type1 /BaseFont /Helvetica >> >> >> >>",
                                "<< /Type /Page /Parent 2 0 R /Contents 4 0 R " + page + " >>",
                                stream(contents)}
              + objects));
    const auto original = Poppler::Document::load(source);
    const QSizeF size = original->page(0)->pageSizeF();
    const QSizeF turned = rotation % 180 == 0 ? size : size.transposed();
    const double scale = 0.8;
    const QRectF rect(QPointF(40, 60), turned * scale);

    const auto done = layOut(source, {placed(1, rect, rotation, {700, 800})}, "sheet.pdf");

    QVERIFY2(done, qPrintable(done.reason()));
    constexpr int density = 2; // pixels of a point
    const QImage before = drawn(source, 1, (size * scale * density).toSize())
                              .transformed(QTransform().rotate(rotation));
    const QImage after = drawn("sheet.pdf", 1, QSize(700, 800) * density);
    const QImage part = after.copy(QRect(QPoint(40, 60) * density, before.size()));
    QVERIFY(difference(before, part) < 60);
}

QTEST_GUILESS_MAIN(TestPdfLayout)
#include "test_pdf_layout.moc"
