#include "document_preview.h"

#include "caution_colours.h"
#include "page_placement.h"
#include "page_renderer.h"
#include "preview_captions.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QPainterPath>
#include <QPolygonF>
#include <QToolButton>
#include <QVBoxLayout>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace kelvo {

namespace {

constexpr int rim = 10; // logical pixels around the sheet: its shadow and the focus ring
constexpr int shadowSteps = 6;
constexpr int wheelNotch = 120; // as Qt counts a wheel's turn

// In place of a page that cannot be drawn; empty for one that can.
QString noteOn(PageProblem problem)
{
    switch (problem) {
    case PageProblem::None:
        return {};
    case PageProblem::NotDrawable:
        return DocumentPreview::tr("This page cannot be shown.");
    case PageProblem::TooSlow:
        return DocumentPreview::tr(
            "This page takes too long to be shown. The printer may still print it.");
    case PageProblem::TooLarge:
        return DocumentPreview::tr(
            "This page needs too much memory to be shown. The printer may still print it.");
    }
    return {};
}

// The sheet and what lies on it.
class SheetView : public QWidget
{
public:
    using QWidget::QWidget;

    std::function<void(int)> step; // one side back (-1) or forward (1), ends included
    std::function<void()> changed; // size, pixels or visibility
    SidePlacement placement;       // what the sheet is, or shall be
    QImage image;                  // the page as last drawn
    SidePlacement imagePlacement;  // what `image` was drawn for
    QString note;                  // on the sheet, in place of a page that cannot be drawn
    QString words;                 // what the sheet is, where no page is printed on it
    bool isMarked = false;         // the page is an exception
    QString message;               // in place of a sheet
    bool isEmpty = true;

    // The sheet is drawn at `scale` in the middle, where pages lie on it centred.
    QRectF sheetRect(const QSizeF &sheet, double scale) const
    {
        QRectF rect(QPointF(), sheet * scale);
        rect.moveCenter(QRectF(this->rect()).center());
        // Whole pixels: a hair of grey along an edge looks like a printed line.
        return QRectF(rect.toAlignedRect());
    }

    // There is room for the sheet, and for all of a page that the sheet cuts.
    double scaleFor(const SidePlacement &shown) const
    {
        const QSizeF room = QSizeF(size()) - QSizeF(2 * rim, 2 * rim);
        const QSizeF all = shown.all().size();
        if (all.isEmpty())
            return 0;
        return std::max(0.0, std::min(room.width() / all.width(), room.height() / all.height()));
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        if (!message.isEmpty() || isEmpty) {
            painter.setPen(palette().color(QPalette::WindowText));
            painter.drawText(rect().adjusted(rim, rim, -rim, -rim),
                             Qt::AlignCenter | Qt::TextWordWrap, message);
            if (hasFocus())
                paintFocus(painter, QRectF(rect()).adjusted(2, 2, -2, -2));
            return;
        }
        // Until the new page is drawn, the old one stays, on its own sheet.
        const bool hasPage = words.isEmpty() && !image.isNull();
        const SidePlacement &shown = hasPage ? imagePlacement : placement;
        const QRectF sheet = sheetRect(shown.sheet, scaleFor(shown));
        paintShadow(painter, sheet);
        painter.fillRect(sheet, Qt::white);
        if (hasPage && shown.isCut())
            paintCutPage(painter, sheet, shown);
        else if (hasPage)
            paintPage(painter, sheet, shown);
        else
            paintText(painter, sheet, words.isEmpty() ? note : words);
        if (isMarked)
            paintMark(painter, sheet);
        painter.setPen(QColor(0, 0, 0, 45));
        painter.drawRect(sheet.adjusted(-0.5, -0.5, 0.5, 0.5));
        if (hasFocus())
            paintFocus(painter, sheet.adjusted(-4, -4, 4, 4));
    }

    void keyPressEvent(QKeyEvent *event) override
    {
        switch (event->key()) {
        case Qt::Key_PageUp:
            return step(-1);
        case Qt::Key_PageDown:
            return step(1);
        case Qt::Key_Home:
            return step(-toEnd);
        case Qt::Key_End:
            return step(toEnd);
        default:
            QWidget::keyPressEvent(event);
        }
    }

    void wheelEvent(QWheelEvent *event) override
    {
        m_wheel += event->angleDelta().y();
        if (const int steps = m_wheel / wheelNotch; steps != 0) {
            m_wheel -= steps * wheelNotch;
            step(-steps);
        }
        event->accept();
    }

    void resizeEvent(QResizeEvent *) override { changed(); }
    void showEvent(QShowEvent *) override { changed(); }
    bool event(QEvent *event) override
    {
        const bool isTaken = QWidget::event(event);
        // Another screen, other pixels.
        if (event->type() == QEvent::ScreenChangeInternal)
            changed();
        return isTaken;
    }

private:
    static constexpr int toEnd = 1'000'000'000;

    static void paintShadow(QPainter &painter, const QRectF &sheet)
    {
        painter.save();
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor(0, 0, 0, 11));
        for (int grow = 1; grow <= shadowSteps; ++grow) {
            const QRectF layer = sheet.adjusted(-grow, -grow, grow, grow).translated(0, 1.5);
            painter.drawRoundedRect(layer, grow, grow);
        }
        painter.restore();
    }

    void paintFocus(QPainter &painter, const QRectF &around) const
    {
        painter.save();
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(around, 3, 3);
        painter.restore();
    }

    static void paintText(QPainter &painter, const QRectF &sheet, const QString &text)
    {
        painter.setPen(QColor(90, 90, 90)); // on paper, which is white in any theme
        painter.drawText(sheet.adjusted(rim, rim, -rim, -rim), Qt::AlignCenter | Qt::TextWordWrap,
                         text);
    }

    // The top right corner, where few pages have print.
    void paintMark(QPainter &painter, const QRectF &sheet) const
    {
        const double side = std::min(fontMetrics().height() * 1.4, sheet.width() / 4);
        painter.save();
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(palette().color(QPalette::Highlight));
        painter.drawPolygon(QPolygonF({sheet.topRight() - QPointF(side, 0), sheet.topRight(),
                                       sheet.topRight() + QPointF(0, side)}));
        painter.restore();
    }

    // All of it: the sheet as it comes out, and veiled around that what is lost.
    void paintCutPage(QPainter &painter, const QRectF &sheet, const SidePlacement &shown) const
    {
        const QRectF page = pageRect(sheet, shown);
        painter.fillRect(page, Qt::white);
        paintPage(painter, sheet, shown);
        QPainterPath lost;
        lost.addRect(page);
        QPainterPath kept;
        kept.addRect(sheet);
        QColor veil = palette().color(QPalette::Window);
        veil.setAlphaF(0.72F);
        painter.fillPath(lost - kept, veil);
        painter.setPen(QPen(QColor(110, 110, 110), 1, Qt::DotLine));
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(page.adjusted(0, 0, -1, -1));
        painter.setPen(QPen(cautionText(palette()), 2));
        painter.drawRect(sheet.adjusted(-1, -1, 1, 1));
    }

    QRectF pageRect(const QRectF &sheet, const SidePlacement &shown) const
    {
        // The sheet has come to whole pixels; where it is small, that would be much of
        // a page around it.
        const double scale = shown.isCut() ? scaleFor(shown) : sheet.width() / shown.sheet.width();
        QRectF page(QPointF(), shown.pages.first().rect.size() * scale);
        page.moveCenter(sheet.center());
        return shown.isCut() ? QRectF(page.toAlignedRect()) : page;
    }

    void paintPage(QPainter &painter, const QRectF &sheet, const SidePlacement &shown) const
    {
        QRectF page = pageRect(sheet, shown);
        // Quarter turns move pixels and blur none.
        const QImage turned = image.transformed(QTransform().rotate(shown.pages.first().rotation));
        // Drawn for this very size, up to rounding: pixel upon pixel, or small
        // print would blur.
        const double ratio = devicePixelRatioF();
        const QSizeF size = QSizeF(turned.size()) / ratio;
        const QSizeF difference = page.size() - size;
        if (std::abs(difference.width()) * ratio <= 2
            && std::abs(difference.height()) * ratio <= 2) {
            page = QRectF(
                QPointF(std::round(page.x() * ratio), std::round(page.y() * ratio)) / ratio, size);
        }
        painter.save();
        painter.setClipRect(shown.isCut() ? page : sheet);
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawImage(page, turned);
        painter.restore();
    }

    int m_wheel = 0; // turned, but less than a notch
};

} // namespace

struct DocumentPreview::Private
{
    DocumentPreview *preview;
    Document document;
    Layout layout;
    std::vector<PageRun> runs; // of `layout`, or the whole document
    SheetSequence sequence;    // of their pages
    int index = 0;             // of the shown side
    QString message;

    PageRenderer renderer;
    SheetView *sheet;
    QToolButton *previous;
    QToolButton *next;
    QLabel *caption;

    int askedPage = 0; // what the renderer was asked for last
    QSize askedPixels;
    SidePlacement askedPlacement;

    explicit Private(DocumentPreview *owner)
        : preview(owner)
    {
    }

    int count() const { return sequence.sides(); }
    SheetSide side() const { return index < count() ? sequence.side(index) : SheetSide{}; }
    // The document's page on the shown side, or the last one before it; 0 for none.
    int page() const { return documentPage(runs, side().page - 1); }

    void setUpSequence()
    {
        // The same page stays in sight where it is still printed, and what comes
        // after it stays as far behind it.
        const int pageBefore = page();
        const int behind = index - std::max(0, sequence.indexOfPage(side().page));
        const int last = document.pageCount();
        runs = layout.pages;
        if (runs.empty() && last > 0)
            runs = {{1, last}};
        // The layout of another document may still stand.
        std::erase_if(runs, [last](const PageRun &run) { return run.first > last; });
        for (PageRun &run : runs)
            run.last = std::min(run.last, last);
        sequence = SheetSequence(pageCount(runs), layout.twoSided, layout.special);
        // A page may be printed twice.
        const bool isThere = page() == pageBefore
            && index - std::max(0, sequence.indexOfPage(side().page)) == behind;
        const int printed = isThere ? 0 : printedPage(runs, pageBefore);
        if (printed > 0)
            index = sequence.indexOfPage(printed) + behind;
        index = std::clamp(index, 0, std::max(0, count() - 1));
    }

    void step(int by)
    {
        const int last = std::max(0, count() - 1);
        const int wanted = static_cast<int>(std::clamp<qint64>(qint64(index) + by, 0, last));
        if (wanted == index || !message.isEmpty())
            return;
        index = wanted;
        sync();
    }

    // From what is printed to what is shown.
    void sync()
    {
        const bool hasSide = message.isEmpty() && count() > 0;
        previous->setEnabled(hasSide && index > 0);
        next->setEnabled(hasSide && index + 1 < count());
        sheet->message = message;
        sheet->isEmpty = count() == 0;
        QString text;
        if (count() > 0) {
            const SheetSide shown = side();
            // Before the first page, sheets are like the one that it is on.
            sheet->placement =
                placePage(document.pageSize(page() > 0 ? page() : runs.front().first), layout.paper,
                          layout.orientation);
            const bool hadWords = !sheet->words.isEmpty();
            sheet->words = sheetWords(shown, layout.words);
            sheet->isMarked = shown.kind == SheetSide::Kind::Page && shown.exceptionFirst > 0;
            // The page before an insert is no stand-in for the one after it.
            if (hadWords && sheet->words.isEmpty() && page() != askedPage)
                sheet->image = {};
            text = sideCaption(shown, page(), document.pageCount(), layout.words);
            if (const QString remark = remarkCaption(shown, sheet->placement.isCut(), layout.words);
                !remark.isEmpty())
                text += u'\n' + remark;
        }
        // Room for a remark, so that sheets do not change their size as one turns them.
        caption->setMinimumHeight(
            layout.special.exceptions.isEmpty() ? 0 : 2 * caption->fontMetrics().lineSpacing());
        caption->setText(hasSide ? text : QString());
        sheet->setAccessibleDescription(hasSide ? text : message);
        sheet->update();
        request();
    }

    void request()
    {
        if (!sheet->isVisible() || sheet->isEmpty || !message.isEmpty() || !sheet->words.isEmpty())
            return;
        const SidePlacement &placement = sheet->placement;
        const double scale = sheet->scaleFor(placement) * sheet->devicePixelRatioF();
        QSizeF pixels = placement.pages.first().rect.size() * scale;
        if (placement.pages.first().rotation % 180 != 0)
            pixels.transpose();
        const QSize whole = pixels.toSize();
        if (whole.isEmpty()
            || (page() == askedPage && whole == askedPixels && placement == askedPlacement)) {
            return;
        }
        // The same page in the same pixels need not be drawn again to lie elsewhere.
        const bool isDrawn = page() == askedPage && whole == askedPixels && hasAnswer;
        askedPage = page();
        askedPixels = whole;
        askedPlacement = placement;
        if (isDrawn) {
            sheet->imagePlacement = placement;
            return;
        }
        hasAnswer = false;
        renderer.render(page(), whole);
    }

    void show(const QImage &image, PageProblem problem)
    {
        hasAnswer = true;
        sheet->image = image;
        sheet->imagePlacement = askedPlacement;
        sheet->note = noteOn(problem);
        sheet->update();
    }

    bool hasAnswer = false; // what was asked for is in sight
};

DocumentPreview::DocumentPreview(QWidget *parent)
    : QWidget(parent)
    , d(std::make_unique<Private>(this))
{
    d->sheet = new SheetView(this);
    d->sheet->setObjectName(QStringLiteral("previewSheet"));
    d->sheet->setAccessibleName(tr("Preview"));
    d->sheet->setFocusPolicy(Qt::StrongFocus);
    d->sheet->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    d->sheet->step = [this](int by) { d->step(by); };
    d->sheet->changed = [this] { d->request(); };
    setFocusProxy(d->sheet);

    const auto button = [this](const char *name, Qt::ArrowType arrow, const QString &text, int by) {
        auto *made = new QToolButton(this);
        made->setObjectName(QLatin1String(name));
        made->setArrowType(arrow);
        made->setAutoRaise(true);
        made->setAccessibleName(text);
        made->setToolTip(text);
        made->setAutoRepeat(true);
        connect(made, &QToolButton::clicked, this, [this, by] { d->step(by); });
        return made;
    };
    d->previous = button("previewPrevious", Qt::LeftArrow, tr("Previous page"), -1);
    d->next = button("previewNext", Qt::RightArrow, tr("Next page"), 1);

    d->caption = new QLabel(this);
    d->caption->setObjectName(QStringLiteral("previewPage"));
    d->caption->setTextFormat(Qt::PlainText);
    d->caption->setAlignment(Qt::AlignCenter);
    d->caption->setWordWrap(true);

    auto *row = new QHBoxLayout;
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(d->previous);
    row->addWidget(d->caption, 1);
    row->addWidget(d->next);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(2);
    column->addWidget(d->sheet, 1);
    column->addLayout(row);

    connect(&d->renderer, &PageRenderer::rendered, this,
            [this](int, const QImage &image, PageProblem problem) { d->show(image, problem); });
    d->sync();
}

DocumentPreview::~DocumentPreview() = default;

void DocumentPreview::setDocument(const Document &document)
{
    d->document = document;
    d->index = 0;
    d->runs.clear();
    d->setUpSequence();
    d->askedPage = 0;
    d->hasAnswer = false;
    // Another document's page must not stand in for this one's.
    d->sheet->image = {};
    d->sheet->note.clear();
    d->renderer.setDocument(document);
    d->sync();
}

void DocumentPreview::setLayout(const Layout &layout)
{
    d->layout = layout;
    d->setUpSequence();
    d->sync();
}

void DocumentPreview::setMessage(const QString &message)
{
    d->message = message;
    d->sync();
}

bool DocumentPreview::isDrawing() const
{
    return d->askedPage > 0 && !d->hasAnswer;
}

QSize DocumentPreview::sizeHint() const
{
    const int em = fontMetrics().height();
    return {em * 16, em * 20};
}

QSize DocumentPreview::minimumSizeHint() const
{
    const int em = fontMetrics().height();
    return {em * 8, em * 8};
}

} // namespace kelvo
