#include "audience.h"
#include "document_preview.h"
#include "page_ranges.h"
#include "preview_captions.h"
#include "sample_documents.h"
#include "table.h"

#include <QLabel>
#include <QScopeGuard>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>
#include <QVBoxLayout>
#include <QWheelEvent>

using namespace kelvo;
using namespace kelvo::test;

namespace {

const QSizeF a4(595, 842);

Document documentOf(const QList<QByteArray> &contents)
{
    const Result<Document> document = documentFromPdf(file("pdf", pdfWithPages(contents)), {});
    return document ? document.value() : Document();
}

PrintedPages pagesOf(const Document &document, const std::vector<PageRun> &runs,
                     const PageLayout &layout = {}, const Paper &paper = {})
{
    PagesToPrint pages;
    pages.chosen = pagesIn(runs);
    pages.sizeOf = [document](int page) { return document.pageSize(page); };
    pages.layout = layout;
    pages.paper = paper;
    return PrintedPages(pages);
}

QString caption(const DocumentPreview &preview)
{
    return preview.findChild<QLabel *>("previewPage")->text();
}

QToolButton *button(const DocumentPreview &preview, const char *name)
{
    return preview.findChild<QToolButton *>(QLatin1String(name));
}

// Of all sides, from the first one on; the last one is shown then.
QStringList captionsOf(const DocumentPreview &preview)
{
    while (button(preview, "previewPrevious")->isEnabled())
        button(preview, "previewPrevious")->click();
    QStringList captions;
    do {
        captions << caption(preview);
        button(preview, "previewNext")->click();
    } while (caption(preview) != captions.last());
    return captions;
}

// The colour in the middle of the sheet.
QColor middle(DocumentPreview &preview)
{
    QWidget *sheet = preview.findChild<QWidget *>("previewSheet");
    const QImage image = sheet->grab().toImage();
    return image.pixelColor(image.rect().center());
}

// Says how often it was painted.
class PaintCounter : public QWidget
{
public:
    int paints = 0;

protected:
    void paintEvent(QPaintEvent *) override { ++paints; }
};

} // namespace

class TestDocumentPreview : public QObject
{
    Q_OBJECT

private slots:
    void namesSheets_data();
    void namesSheets();
    void turnsPages();
    void staysOnThePageWhereItIsStillPrinted();
    void showsSpecialSheets();
    void namesSidesOfBooklets();
    void staysOnThePageInBooklets();
    void drawsSidesOfBooklets();
    void drawsWhatLiesOverPages();
    void beginsWithTheLeadingPage();
    void showsPaperAndMessages();
    void drawsWhatIsPrinted();
    void drawsSeveralPagesOnASide();
    void drawsForAScriptWhenItLooks();
    void showsWhatIsCutOff();
};

void TestDocumentPreview::namesSheets_data()
{
    // pages: of a document of 5
    const Table<std::vector<PageRun>, bool, QStringList> row{"pages", "twoSided", "captions"};
    using Runs = std::vector<PageRun>;

    row("one-sided", Runs{{1, 2}}, false, {"Sheet 1 · page 1 of 5", "Sheet 2 · page 2 of 5"});
    row("two-sided", Runs(), true,
        {"Sheet 1, front · page 1 of 5", "Sheet 1, back · page 2 of 5",
         "Sheet 2, front · page 3 of 5", "Sheet 2, back · page 4 of 5",
         "Sheet 3, front · page 5 of 5"});
    row("cut", Runs{{4, 5}, {2, 2}}, true,
        {"Sheet 1, front · page 4 of 5", "Sheet 1, back · page 5 of 5",
         "Sheet 2, front · page 2 of 5"});
}

void TestDocumentPreview::namesSheets()
{
    QFETCH(std::vector<PageRun>, pages);
    QFETCH(bool, twoSided);
    QFETCH(QStringList, captions);
    DocumentPreview preview;
    const Document document = documentOf({"", "", "", "", ""});
    preview.setDocument(document);

    preview.setLayout({pagesOf(document, pages), a4, Orientation::Portrait, twoSided});

    for (const QString &expected : captions) {
        QCOMPARE(caption(preview), expected);
        button(preview, "previewNext")->click();
    }
    QCOMPARE(caption(preview), captions.last()); // and no further
    QVERIFY(!button(preview, "previewNext")->isEnabled());
}

void TestDocumentPreview::turnsPages()
{
    DocumentPreview preview;
    preview.setDocument(documentOf({"", "", "", ""}));
    preview.show();
    QVERIFY(QTest::qWaitForWindowActive(&preview));
    preview.setFocus();
    QWidget *sheet = preview.findChild<QWidget *>("previewSheet");
    QVERIFY(sheet->hasFocus());
    const auto turnWheel = [sheet](int angle) {
        QWheelEvent event(QPointF(5, 5), sheet->mapToGlobal(QPointF(5, 5)), {}, {0, angle},
                          Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(sheet, &event);
    };

    QTest::keyClick(sheet, Qt::Key_PageDown);
    QCOMPARE(caption(preview), "Sheet 2 · page 2 of 4");
    QTest::keyClick(sheet, Qt::Key_End);
    QCOMPARE(caption(preview), "Sheet 4 · page 4 of 4");
    QTest::keyClick(sheet, Qt::Key_PageUp);
    QCOMPARE(caption(preview), "Sheet 3 · page 3 of 4");
    QTest::keyClick(sheet, Qt::Key_Home);
    QCOMPARE(caption(preview), "Sheet 1 · page 1 of 4");
    turnWheel(-120);
    QCOMPARE(caption(preview), "Sheet 2 · page 2 of 4");
    turnWheel(60); // half a notch
    QCOMPARE(caption(preview), "Sheet 2 · page 2 of 4");
    turnWheel(60);
    QCOMPARE(caption(preview), "Sheet 1 · page 1 of 4");
    QCOMPARE(sheet->accessibleDescription(), caption(preview));
}

void TestDocumentPreview::staysOnThePageWhereItIsStillPrinted()
{
    DocumentPreview preview;
    const Document document = documentOf({"", "", "", "", ""});
    preview.setDocument(document);
    for (int page = 1; page < 4; ++page)
        button(preview, "previewNext")->click();
    QCOMPARE(caption(preview), "Sheet 4 · page 4 of 5");

    preview.setLayout({pagesOf(document, {{3, 5}}), a4, Orientation::Portrait, false});
    QCOMPARE(caption(preview), "Sheet 2 · page 4 of 5");
    preview.setLayout({pagesOf(document, {{1, 2}}), a4, Orientation::Portrait, false});
    QCOMPARE(caption(preview), "Sheet 2 · page 2 of 5");
    preview.setDocument(documentOf({"", ""}));
    QCOMPARE(caption(preview), "Sheet 1 · page 1 of 2");
    preview.setDocument({});
    QCOMPARE(caption(preview), "");
}

void TestDocumentPreview::showsSpecialSheets()
{
    DocumentPreview preview;
    preview.resize(300, 400);
    preview.setDocument(documentOf({"", "", "", ""}));
    preview.show();
    const SpecialSheetWords words{
        .frontCover = "Cover", .insert = "Insert", .exception = "exception %1"};
    DocumentPreview::Layout layout{.paper = a4, .twoSided = true, .words = words};
    layout.special = {SpecialSheets::Cover::Sheet, {}, {{1, 3}}, {{2, 3, false}, {4, 9, false}}};
    preview.setLayout(layout);
    QCOMPARE(caption(preview), "Sheet 2, front · page 1 of 4"); // as before

    QCOMPARE(captionsOf(preview),
             (QStringList{
                 "Sheet 1 · Cover", "Sheet 2, front · page 1 of 4", "Sheet 2, back · blank",
                 "Sheets 3–5 · Insert", "Sheet 6 · page 2 of 4\nexception 2–3",
                 "Sheet 7 · page 3 of 4\nexception 2–3", "Sheet 8 · page 4 of 4\nexception 4"}));

    // The insert stays in sight when the cover goes.
    for (int back = 0; back < 3; ++back)
        button(preview, "previewPrevious")->click();
    QCOMPARE(caption(preview), "Sheets 3–5 · Insert");
    layout.special.frontCover = SpecialSheets::Cover::None;
    preview.setLayout(layout);
    QCOMPARE(caption(preview), "Sheets 2–4 · Insert");
    layout.special = {};
    preview.setLayout(layout);
    QCOMPARE(caption(preview), "Sheet 2, front · page 3 of 4");
}

void TestDocumentPreview::namesSidesOfBooklets()
{
    DocumentPreview preview;
    const Document document = documentOf({"", "", "", "", "", "", "", ""});
    preview.setDocument(document);
    const SpecialSheetWords words{
        .frontCover = "Cover", .insert = "Insert", .exception = "exception %1"};
    DocumentPreview::Layout layout{.paper = a4, .words = words, .imposition = Imposition()};
    layout.pages = pagesOf(document, {{3, 8}});
    layout.special = {SpecialSheets::Cover::Sheet, {}, {{2, 1}}, {{2, 2, {}}, {6, 6, {}}}};
    preview.setLayout(layout);

    const QString order = "shown left to right; the printer decides";
    const QStringList captions = captionsOf(preview);
    QCOMPARE(captions,
             (QStringList{"Sheet 1 · Cover", "Sheet 2, front · page 3 of 8, one blank\n" + order,
                          "Sheet 2, back · page 4 of 8, one blank\nexception 2 · " + order,
                          "Sheet 3, front · pages 8 and 5 of 8\nexception 6 · " + order,
                          "Sheet 3, back · pages 6–7 of 8\n" + order,
                          "Sheet 4 · Insert\nthe printer decides where it goes"}));

    layout = {
        .pages = pagesOf(document, {{1, 1}}), .paper = a4.transposed(), .imposition = Imposition()};
    preview.setLayout(layout);
    QCOMPARE(captionsOf(preview),
             (QStringList{"Sheet 1, front · page 1 of 8, one blank\n" + order,
                          "Sheet 1, back · blank\n" + order}));
}

void TestDocumentPreview::staysOnThePageInBooklets()
{
    DocumentPreview preview;
    preview.setDocument(documentOf({"", "", "", "", "", "", "", ""}));
    const DocumentPreview::Layout single{.paper = a4};
    const DocumentPreview::Layout booklet{.paper = a4, .imposition = Imposition()};
    preview.setLayout(single);
    for (int page = 1; page < 7; ++page)
        button(preview, "previewNext")->click();
    QCOMPARE(caption(preview), "Sheet 7 · page 7 of 8");

    preview.setLayout(booklet);
    QVERIFY(caption(preview).startsWith("Sheet 1, back · pages 2 and 7 of 8"));
    preview.setLayout(single);
    QCOMPARE(caption(preview), "Sheet 7 · page 7 of 8");
    preview.setLayout(booklet);
    button(preview, "previewNext")->click(); // whoever turns sheets follows their first page
    preview.setLayout(single);
    QCOMPARE(caption(preview), "Sheet 3 · page 3 of 8");
}

void TestDocumentPreview::drawsSidesOfBooklets()
{
    DocumentPreview preview;
    preview.resize(400, 400);
    const Document document = documentOf({filled("1 0 0"), filled("0 1 0"), filled("0 0 1")});
    preview.setDocument(document);
    preview.setLayout({.paper = {300, 400}, .imposition = Imposition{.gutter = 20}});
    preview.show();

    const auto colourAt = [&preview](double x) { // of the wide sheet
        const QImage image = preview.findChild<QWidget *>("previewSheet")->grab().toImage();
        const int rim = 10;
        return image.pixelColor(rim + static_cast<int>((image.width() - 2 * rim) * x),
                                image.height() / 2 + 20);
    };
    QTRY_COMPARE(colourAt(0.75), QColor(Qt::red));
    QCOMPARE(colourAt(0.25), QColor(Qt::white)); // a blank one
    button(preview, "previewNext")->click();
    QTRY_COMPARE(colourAt(0.25), QColor(Qt::green));
    QCOMPARE(colourAt(0.45), QColor(Qt::green));
    QCOMPARE(colourAt(0.485), QColor(Qt::white)); // the gutter, 20 of 400 points
    QCOMPARE(colourAt(0.515), QColor(Qt::white));
    QCOMPARE(colourAt(0.75), QColor(Qt::blue));

    preview.setLayout({.paper = {300, 400}, .imposition = Imposition{.drawsBorders = true}});
    QTRY_COMPARE(colourAt(0.485), QColor(Qt::green));

    // The side before a blank one comes too late for it.
    preview.setLayout(
        {.pages = pagesOf(document, {{1, 1}}), .paper = {300, 400}, .imposition = Imposition()});
    button(preview, "previewPrevious")->click();
    button(preview, "previewNext")->click();
    QTest::qWait(300);
    QCOMPARE(colourAt(0.65), QColor(Qt::white));
}

void TestDocumentPreview::drawsWhatLiesOverPages()
{
    DocumentPreview preview;
    preview.resize(300, 400);
    QColor colour = Qt::blue;
    QList<QSizeF> sizes;
    preview.setOverlayPainter([&](const Overlay &overlay, const QSizeF &page, const QSize &pixels,
                                  const std::atomic_bool &) {
        sizes << page;
        QImage image(pixels, QImage::Format_ARGB32_Premultiplied);
        image.fill(colour);
        return overlay.name == "Gone" ? QImage() : image;
    });
    preview.setDocument(documentOf({"", "", ""}));
    DocumentPreview::Layout layout{.paper = {210, 300},
                                   .overlays = {{"Mark", Overlay::Place::Behind, true}}};
    preview.setLayout(layout);
    preview.show();
    QTRY_COMPARE(middle(preview), QColor(Qt::blue));
    QCOMPARE(sizes, QList<QSizeF>{QSizeF(210, 300)}); // the paper's

    colour = Qt::red;
    layout.overlays[0].version = 1;
    preview.setLayout(layout);
    QTRY_COMPARE(middle(preview), QColor(Qt::red));
    button(preview, "previewNext")->click();
    QTRY_COMPARE(middle(preview), QColor(Qt::white)); // on the first page only

    layout.overlays = {{"Gone", Overlay::Place::Above}, {"Mark", Overlay::Place::Above}};
    preview.setLayout(layout);
    QTRY_COMPARE(middle(preview), QColor(Qt::red));
    QCOMPARE(caption(preview), "Sheet 2 · page 2 of 3\n“Gone” cannot be shown");
}

void TestDocumentPreview::beginsWithTheLeadingPage()
{
    DocumentPreview preview;
    preview.resize(300, 400);
    QList<QSize> sizes;
    preview.setLeadingPagePainter(
        [&](const LeadingPage &page, const QSize &pixels, const std::atomic_bool &) {
            sizes << pixels;
            QImage image(pixels, QImage::Format_ARGB32_Premultiplied);
            image.fill(page.version == 0 ? Qt::blue : Qt::green);
            return page.content.isEmpty() ? QImage() : image;
        });
    const Document document = documentOf({"", filled("1 0 0"), ""});
    preview.setDocument(document);
    DocumentPreview::Layout layout{
        .pages = pagesOf(document, {{2, 3}}), .paper = {300, 300}, .twoSided = true};
    LeadingPage cover{.name = "Cover sheet", .size = {600, 200}, .content = {{"text", "x"}}};
    layout.leadingPage = cover;
    preview.setLayout(layout);
    preview.show();

    // In sight from the beginning, on paper of its own, and no sheet is counted for it.
    QTRY_COMPARE(middle(preview), QColor(Qt::blue));
    QVERIFY(sizes.last().width() > 2.9 * sizes.last().height());
    QCOMPARE(caption(preview), "Cover sheet");
    QWidget *sheet = preview.findChild<QWidget *>("previewSheet");
    QCOMPARE(sheet->accessibleDescription(), "Cover sheet");
    QCOMPARE(captionsOf(preview),
             (QStringList{"Cover sheet", "Sheet 1, front · page 2 of 3",
                          "Sheet 1, back · page 3 of 3"}));

    // The page stays in sight when it goes and comes; at the beginning it comes into sight.
    layout.leadingPage.reset();
    preview.setLayout(layout);
    QCOMPARE(caption(preview), "Sheet 1, back · page 3 of 3");
    cover.version = 1;
    layout.leadingPage = cover;
    preview.setLayout(layout);
    QCOMPARE(caption(preview), "Sheet 1, back · page 3 of 3");
    QTest::keyClick(sheet, Qt::Key_Home);
    QTRY_COMPARE(middle(preview), QColor(Qt::green));
    layout.leadingPage.reset();
    preview.setLayout(layout);
    QTRY_COMPARE(middle(preview), QColor(Qt::red));
    QCOMPARE(caption(preview), "Sheet 1, front · page 2 of 3");
    cover.version = 0;
    layout.leadingPage = cover;
    layout.imposition = Imposition(); // nor is it a part of a booklet
    preview.setLayout(layout);
    QCOMPARE(caption(preview), "Cover sheet");
    QTRY_COMPARE(middle(preview), QColor(Qt::blue));

    layout.leadingPage->content.clear();
    preview.setLayout(layout);
    QTRY_VERIFY(!preview.isDrawing());
    QVERIFY(middle(preview) != QColor(Qt::blue));
    const QImage note = sheet->grab().toImage();
    int inked = 0;
    for (int x = 0; x < note.width(); ++x)
        inked += note.pixelColor(x, note.height() / 2).lightness() < 200;
    QVERIFY(inked > 5); // it says so
}

void TestDocumentPreview::showsPaperAndMessages()
{
    QPalette dark;
    dark.setColor(QPalette::Window, QColor(30, 30, 30));
    dark.setColor(QPalette::WindowText, Qt::white);
    DocumentPreview preview;
    preview.setPalette(dark);
    preview.resize(300, 400);
    preview.setMessage("Opening the document…");
    preview.show();
    QVERIFY(!button(preview, "previewNext")->isEnabled());

    preview.setDocument(documentOf({"", ""}));
    QCOMPARE(caption(preview), ""); // the message stands
    preview.setMessage({});

    QCOMPARE(caption(preview), "Sheet 1 · page 1 of 2");
    QVERIFY(button(preview, "previewNext")->isEnabled());
    QCOMPARE(middle(preview), QColor(Qt::white)); // at once, before the page is drawn
}

void TestDocumentPreview::drawsWhatIsPrinted()
{
    // The right half of the second page is blue.
    DocumentPreview preview;
    preview.resize(300, 400);
    const Document document = documentOf({filled("1 0 0"), "0 0 1 rg 101 0 101 300 re f"});
    preview.setDocument(document);
    preview.show();
    QTRY_COMPARE(middle(preview), QColor(Qt::red));

    button(preview, "previewNext")->click();
    QCOMPARE(middle(preview), QColor(Qt::red)); // the old page until the new one is there
    QWidget *sheet = preview.findChild<QWidget *>("previewSheet");
    const auto colourAt = [sheet](double x, double y) {
        const QImage image = sheet->grab().toImage();
        return image.pixelColor(static_cast<int>(image.width() * x),
                                static_cast<int>(image.height() * y));
    };
    QTRY_COMPARE(colourAt(0.6, 0.5), QColor(Qt::blue));
    QCOMPARE(colourAt(0.4, 0.5), QColor(Qt::white));

    // Turned counter-clockwise on wide paper: what was right is on top.
    preview.setLayout({{}, {202, 300}, Orientation::Landscape, false});
    QTRY_COMPARE(colourAt(0.45, 0.4), QColor(Qt::blue));
    QCOMPARE(colourAt(0.45, 0.6), QColor(Qt::white));

    preview.setLayout({pagesOf(document, {{1, 1}}), {202, 300}, Orientation::Portrait, false});
    QTRY_COMPARE(middle(preview), QColor(Qt::red));
}

void TestDocumentPreview::drawsSeveralPagesOnASide()
{
    DocumentPreview preview;
    preview.resize(420, 400);
    const Document document = documentOf({filled("1 0 0"), filled("0 1 0"), filled("0 0 1")});
    preview.setDocument(document);
    const QSizeF paper(300, 400); // pages of 200 by 300
    const auto show = [&](const PageLayout &layout, const Imposition *booklet = nullptr) {
        DocumentPreview::Layout shown{.pages = pagesOf(document, {{1, 3}}, layout, {paper}),
                                      .paper = paper};
        if (booklet)
            shown.imposition = *booklet;
        preview.setLayout(shown);
    };
    show({.pagesPerSide = 2});
    preview.show();
    const auto colourAt = [&preview](double x) { // of the wide sheet
        const QImage image = preview.findChild<QWidget *>("previewSheet")->grab().toImage();
        const int rim = 10;
        return image.pixelColor(rim + static_cast<int>((image.width() - 2 * rim) * x),
                                image.height() / 2 + 20);
    };

    QTRY_COMPARE(colourAt(0.25), QColor(Qt::red));
    QCOMPARE(colourAt(0.75), QColor(Qt::green));
    QCOMPARE(caption(preview), "Sheet 1 · pages 1–2 of 3");
    button(preview, "previewNext")->click();
    QTRY_COMPARE(colourAt(0.25), QColor(Qt::blue));
    QCOMPARE(colourAt(0.75), QColor(Qt::white));
    QCOMPARE(caption(preview), "Sheet 2 · page 3 of 3");

    // What is larger than its place goes no further; the page stays in sight.
    show({.scaling = PageScaling::Percent,
          .percent = 400,
          .pagesPerSide = 2,
          .flow = PageFlow::RlTb});
    QTRY_COMPARE(colourAt(0.52), QColor(Qt::blue));
    QCOMPARE(colourAt(0.48), QColor(Qt::white));

    // Sides with two pages each on the halves of a booklet: outside 3 and none, inside nothing
    // but 1 and 2.
    const Imposition booklet;
    show({.pagesPerSide = 2}, &booklet);
    QCOMPARE(captionsOf(preview).first(),
             "Sheet 1, front · pages 1–2 of 3, one blank"
             "\nshown top to bottom; the printer decides");
}

// Print at the edges of a page that is larger than the paper is lost: it is in sight
// all the same, and told from what comes out.
void TestDocumentPreview::drawsForAScriptWhenItLooks()
{
    setAudience(Audience::Script);
    const auto back = qScopeGuard([] { setAudience(Audience::People); });
    PaintCounter window;
    QVBoxLayout layout(&window);
    DocumentPreview preview;
    layout.addWidget(&preview);
    preview.setDocument(documentOf({filled("1 0 0"), filled("0 0 1")}));
    window.resize(300, 400);
    window.show();
    button(preview, "previewNext")->click();
    QTest::qWait(50);
    QVERIFY(preview.isDrawing());
    QCOMPARE(window.paints, 0);

    preview.drawPutOff();
    QTRY_VERIFY(!preview.isDrawing());
    QCOMPARE(middle(preview), QColor(Qt::blue));
    window.update();
    QCoreApplication::processEvents();
    QCOMPARE(window.paints, 0);
    QCOMPARE(window.grab().size(), window.size());
    QCOMPARE(window.paints, 1); // pictures are all that is painted

    button(preview, "previewPrevious")->click();
    QVERIFY(preview.isDrawing()); // another side is put off again
}

void TestDocumentPreview::showsWhatIsCutOff()
{
    DocumentPreview preview;
    preview.resize(300, 400);
    preview.setDocument(documentOf({filled("1 0 0")}));
    preview.show();
    QTRY_COMPARE(middle(preview), QColor(Qt::red));

    preview.setLayout({.paper = {101, 150}}); // half of each
    QVERIFY(caption(preview).endsWith("larger than the paper"));
    QTRY_VERIFY(!preview.isDrawing());
    const QImage image = preview.findChild<QWidget *>("previewSheet")->grab().toImage();
    QCOMPARE(image.pixelColor(image.rect().center()), QColor(Qt::red));
    const auto redness = [&image](double part) {
        const QColor colour = image.pixelColor(image.width() / 2, int(image.height() * part));
        return colour.red() - colour.blue();
    };
    QCOMPARE(redness(0.3), 255);
    QVERIFY(redness(0.15) > 20 && redness(0.15) < 200);
}

QTEST_MAIN(TestDocumentPreview)
#include "test_document_preview.moc"
