#include "document_preview.h"

#include "accessible_role.h"
#include "audience.h"
#include "booklet_imposition.h"
#include "caution_colours.h"
#include "page_placement.h"
#include "preview_captions.h"
#include "tool_tip.h"

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
#include <utility>

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

// One side as it is shown: before it is drawn, and then.
struct Look
{
    SidePlacement placement;
    bool drawsBorders = false; // around its pages
    QImage picture;            // all of the side; null: not drawn
    QStringList notes;         // one for each place; empty where a page is seen
};

// The sheet and what lies on it.
class SheetView : public QWidget
{
public:
    using QWidget::QWidget;

    std::function<void(int)> step; // one side back (-1) or forward (1), ends included
    std::function<void()> changed; // size, pixels or visibility
    Look wanted;                   // what the side is, or shall be
    std::optional<Look> drawn;     // and what was drawn last
    QString words;                 // what the sheet is, where no page is printed on it
    bool isMarked = false;         // a page is an exception
    QString message;               // in place of a sheet
    bool isEmpty = true;

    // Where the side lies, with all of a page that the sheet cuts: in the middle, in whole
    // pixels, because a hair of grey along an edge looks like a printed line.
    QRectF allRect(const SidePlacement &side) const
    {
        const QSizeF room = QSizeF(size()) - QSizeF(2 * rim, 2 * rim);
        const QSizeF all = side.all().size();
        if (all.isEmpty() || room.isEmpty())
            return {};
        QRectF rect(QPointF(), all.scaled(room, Qt::KeepAspectRatio));
        rect.moveCenter(QRectF(this->rect()).center());
        return QRectF(rect.toAlignedRect());
    }

    // Logical pixels of what is placed in points.
    QRectF onScreen(const SidePlacement &side, const QRectF &points) const
    {
        const QRectF all = side.all();
        const QRectF rect = allRect(side);
        const double across = rect.width() / all.width();
        const double down = rect.height() / all.height();
        return {rect.x() + (points.x() - all.x()) * across,
                rect.y() + (points.y() - all.y()) * down, points.width() * across,
                points.height() * down};
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
        // Until the new side is drawn, the old one stays, on its own sheet.
        const Look &shown = words.isEmpty() && drawn ? *drawn : wanted;
        const SidePlacement &side = shown.placement;
        const QRectF sheet = side.isCut() ? inWholePixels(sheetRect(side)) : allRect(side);
        paintShadow(painter, sheet);
        painter.fillRect(sheet, Qt::white);
        if (words.isEmpty() && !shown.picture.isNull())
            paintPicture(painter, shown);
        if (side.isCut() && !shown.picture.isNull())
            paintLoss(painter, side, sheet);
        if (!side.fold.isNull())
            paintFold(painter, side);
        if (!words.isEmpty())
            paintText(painter, sheet, words);
        else
            paintPlaces(painter, shown);
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

    static QRectF inWholePixels(const QRectF &rect) { return QRectF(rect.toAlignedRect()); }

    QRectF sheetRect(const SidePlacement &side) const
    {
        return onScreen(side, {QPointF(), side.sheet});
    }

    void paintPicture(QPainter &painter, const Look &shown) const
    {
        QRectF rect = allRect(shown.placement);
        // Drawn for this very size, up to rounding: pixel upon pixel, or small
        // print would blur.
        const double ratio = devicePixelRatioF();
        const QSizeF size = QSizeF(shown.picture.size()) / ratio;
        const QSizeF difference = rect.size() - size;
        if (std::abs(difference.width()) * ratio <= 1 && std::abs(difference.height()) * ratio <= 1)
            rect.setSize(size);
        painter.save();
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawImage(rect, shown.picture);
        painter.restore();
    }

    // All is seen of a page that is cut: the sheet as it comes out, and veiled around that
    // what is lost.
    void paintLoss(QPainter &painter, const SidePlacement &side, const QRectF &sheet) const
    {
        const QRectF page = inWholePixels(onScreen(side, side.pages.first().rect));
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

    // Thin and in a color that nobody takes for print.
    void paintFold(QPainter &painter, const SidePlacement &side) const
    {
        const QRectF line = onScreen(side, {side.fold.p1(), side.fold.p2()});
        painter.setPen(QPen(QColor(110, 150, 200), 1, Qt::DashLine));
        painter.drawLine(line.topLeft().toPoint(), line.bottomRight().toPoint());
    }

    // What stands in place of pages, and the lines that are printed around pages.
    void paintPlaces(QPainter &painter, const Look &shown) const
    {
        const SidePlacement &side = shown.placement;
        for (int place = 0; place < side.pages.size(); ++place) {
            const QRect rect = onScreen(side, side.pages[place].rect).toRect();
            if (shown.drawsBorders && !rect.isEmpty()) {
                painter.setPen(Qt::black);
                painter.drawRect(rect.adjusted(0, 0, -1, -1));
            }
            if (!shown.notes.value(place).isEmpty())
                paintText(painter, onScreen(side, placeOfPage(side, place)), shown.notes[place]);
        }
    }

    int m_wheel = 0; // turned, but less than a notch
};

} // namespace

struct DocumentPreview::Private
{
    Document document;
    Layout layout;
    std::vector<PageRun> runs; // of `layout`, or the whole document
    SheetSequence sequence;    // of their pages
    int index = 0;             // of the shown side
    int followed = 0;          // the page that is followed where a side has two, as printed
    QString message;

    PageRenderer renderer;
    SheetView *sheet;
    QToolButton *previous;
    QToolButton *next;
    QLabel *caption;

    SideToDraw asked; // what the renderer was asked for last
    Look askedLook;
    std::optional<DrawnSide> answer; // none: it is still being drawn
    bool isPutOff = false;           // the renderer has not been asked yet

    int count() const { return sequence.sides(); }
    SheetSide side() const { return index < count() ? sequence.side(index) : SheetSide{}; }
    // The page on the shown side, or the last one before it, as printed; 0 for none.
    int printedPageInSight() const
    {
        const SheetSide shown = side();
        const bool isThere = followed > 0 && std::ranges::count(shown.bookletPages, followed) > 0;
        return isThere ? followed : shown.page;
    }
    // The same as the document's.
    int page() const { return documentPage(runs, printedPageInSight() - 1); }
    int sidesBehindPage() const
    {
        return index - std::max(0, sequence.indexOfPage(printedPageInSight()));
    }

    void setUpSequence()
    {
        // The same page stays in sight where it is still printed, and what comes
        // after it stays as far behind it.
        const int pageBefore = page();
        const int behind = sidesBehindPage();
        const bool wasAtTheBeginning = index == 0 && !isLeading();
        const int last = document.pageCount();
        runs = layout.pages;
        if (runs.empty() && last > 0)
            runs = {{1, last}};
        // The layout of another document may still stand.
        std::erase_if(runs, [last](const PageRun &run) { return run.first > last; });
        for (PageRun &run : runs)
            run.last = std::min(run.last, last);
        sequence = SheetSequence(pageCount(runs), layout.twoSided, layout.special,
                                 layout.imposition, layout.leadingPage.has_value());
        // A page may be printed twice.
        const bool isThere = page() == pageBefore && sidesBehindPage() == behind;
        // Who looks at the beginning sees what comes before it now.
        const bool stays = isThere || (wasAtTheBeginning && isLeading());
        const int printed = stays ? 0 : kelvo::printedPage(runs, pageBefore);
        if (printed > 0) {
            followed = printed;
            index = sequence.indexOfPage(printed) + behind;
        }
        index = std::clamp(index, 0, std::max(0, count() - 1));
        followed = printedPageInSight();
    }

    void step(int by)
    {
        const int last = std::max(0, count() - 1);
        const int wanted = static_cast<int>(std::clamp<qint64>(qint64(index) + by, 0, last));
        if (wanted == index || !message.isEmpty())
            return;
        index = wanted;
        followed = side().page;
        sync();
    }

    bool isLeading() const { return side().kind == SheetSide::Kind::LeadingPage; }

    // The pages that are printed on a side, place by place; 0 for a blank one. The leading page
    // is none of them.
    static QList<int> printedPages(const SheetSide &shown)
    {
        if (shown.kind == SheetSide::Kind::LeadingPage)
            return {};
        if (shown.kind == SheetSide::Kind::Booklet)
            return {shown.bookletPages[0], shown.bookletPages[1]};
        return {shown.kind == SheetSide::Kind::Page ? shown.page : 0};
    }

    SidePlacement placementOf(const SheetSide &shown) const
    {
        if (shown.kind == SheetSide::Kind::LeadingPage)
            return placePage(layout.leadingPage->size, {}, Orientation::Portrait);
        if (layout.imposition) {
            // Covers and inserts are folded with the sheets that they lie around or in.
            BookletSide side;
            side.shape = document.pageSize(runs.front().first);
            side.sheet = shown.bookletSheet;
            for (std::size_t place = 0; place < side.pages.size(); ++place) {
                if (const int printed = shown.bookletPages[place]; printed > 0)
                    side.pages[place] = document.pageSize(documentPage(runs, printed - 1));
            }
            return placeBooklet(side, *layout.imposition, layout.paper, layout.orientation);
        }
        // Before the first page, sheets are like the one that it is on.
        return placePage(document.pageSize(page() > 0 ? page() : runs.front().first), layout.paper,
                         layout.orientation);
    }

    // From what is printed to what is shown.
    void sync()
    {
        const bool hasSide = message.isEmpty() && count() > 0;
        previous->setEnabled(hasSide && index > 0);
        next->setEnabled(hasSide && index + 1 < count());
        sheet->message = message;
        sheet->isEmpty = count() == 0;
        if (count() > 0)
            showSide(side());
        showCaption();
        sheet->update();
        request();
    }

    void showSide(const SheetSide &shown)
    {
        sheet->wanted = {
            placementOf(shown), layout.imposition && layout.imposition->drawsBorders, {}, {}};
        for (int page : printedPages(shown))
            sheet->wanted.notes << (page > 0 ? QString() : blankWords());
        if (isLeading())
            sheet->wanted.notes = {QString()};
        const bool hadWords = !sheet->words.isEmpty();
        sheet->words = sheetWords(shown, layout.words);
        sheet->isMarked = !shown.exceptions.isEmpty();
        // The page before an insert is no stand-in for the one after it.
        if (hadWords && sheet->words.isEmpty() && page() != askedPage())
            sheet->drawn.reset();
    }

    void showCaption()
    {
        // Room for a remark, so that sheets do not change their size as one turns them.
        const bool hasRemarks = layout.imposition || !layout.special.exceptions.isEmpty();
        caption->setMinimumHeight(hasRemarks ? 2 * caption->fontMetrics().lineSpacing() : 0);
        QString text;
        if (message.isEmpty() && count() > 0) {
            const SheetSide shown = side();
            text = sideCaption(shown, runs, document.pageCount(), layout.words,
                               layout.leadingPage ? layout.leadingPage->name : QString());
            const QStringList lacking = answer ? answer->lackingOverlays : QStringList();
            const QString remark =
                remarkCaption(shown, sheet->wanted.placement, lacking, layout.words);
            if (!remark.isEmpty())
                text += u'\n' + remark;
        }
        caption->setText(text);
        sheet->setAccessibleDescription(message.isEmpty() ? text : message);
    }

    int askedPage() const { return asked.pages.isEmpty() ? 0 : asked.pages.first().page; }

    // What is drawn on the shown side, in pixels of its picture.
    SideToDraw sideToDraw() const
    {
        const SidePlacement &placement = sheet->wanted.placement;
        const QRectF all = sheet->allRect(placement);
        const double ratio = sheet->devicePixelRatioF();
        const auto pixels = [&](const QRectF &points) {
            const QRectF rect = sheet->onScreen(placement, points).translated(-all.topLeft());
            return QRect((rect.topLeft() * ratio).toPoint(), (rect.size() * ratio).toSize());
        };
        SideToDraw drawing;
        drawing.pixels = (all.size() * ratio).toSize();
        if (isLeading())
            drawing.leadingPage = layout.leadingPage;
        const QList<int> printed = printedPages(side());
        for (int place = 0; place < printed.size(); ++place) {
            if (printed[place] == 0)
                continue;
            const PagePlacement &page = placement.pages[place];
            drawing.pages << SideToDraw::Page{documentPage(runs, printed[place] - 1),
                                              pixels(page.rect), page.rotation};
            const OverlayPlacement over = placeOverlay(placement, place);
            for (const Overlay &overlay : layout.overlays) {
                if (!overlay.firstPageOnly || printed[place] == 1)
                    drawing.overlays << SideToDraw::OverlayOnPage{
                        overlay, over.page, pixels(over.rect), placement.isUpsideDown ? 180 : 0};
            }
        }
        return drawing;
    }

    void request()
    {
        if (!sheet->isVisible() || sheet->isEmpty || !message.isEmpty() || !sheet->words.isEmpty())
            return;
        const SideToDraw drawing = sideToDraw();
        if (drawing.pixels.isEmpty())
            return;
        if (drawing.isBlank()) { // both sides of a fold are blank
            forgetAsked();
            return;
        }
        askedLook = sheet->wanted;
        if (drawing != asked) {
            asked = drawing;
            answer.reset();
            isPutOff = audience() != Audience::People;
            if (!isPutOff)
                renderer.render(drawing);
        } else if (answer) {
            showAnswer(); // the same picture; its lines may be others
        }
    }

    void forgetAsked()
    {
        asked = {};
        answer.reset();
        sheet->drawn.reset();
    }

    void take(const DrawnSide &side)
    {
        if (asked.isBlank() || isPutOff)
            return; // another side is shown by now
        answer = side;
        showAnswer();
    }

    void showAnswer()
    {
        Look look = askedLook;
        look.picture = answer->picture;
        auto problem = answer->problems.cbegin();
        for (QString &note : look.notes) {
            if (note.isEmpty() && problem != answer->problems.cend())
                note = noteOn(*problem++);
        }
        sheet->drawn = look;
        showCaption();
        sheet->update();
    }
};

DocumentPreview::DocumentPreview(QWidget *parent)
    : QWidget(parent)
    , d(std::make_unique<Private>())
{
    d->sheet = new SheetView(this);
    setAccessibleRole(d->sheet, QAccessible::Graphic);
    d->sheet->setObjectName(QStringLiteral("previewSheet"));
    d->sheet->setAccessibleName(tr("Preview"));
    d->sheet->setFocusPolicy(Qt::StrongFocus);
    d->sheet->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    d->sheet->step = [this](int by) { d->step(by); };
    d->sheet->changed = [this] { d->request(); };
    setFocusProxy(d->sheet);

    const auto button = [this](const char *name, const QString &text, int by) {
        auto *made = new QToolButton(this);
        made->setObjectName(QLatin1String(name));
        made->setArrowType((by > 0) != isRightToLeft() ? Qt::RightArrow : Qt::LeftArrow);
        made->setAutoRaise(true);
        made->setAccessibleName(text);
        setOwnToolTip(made, text);
        made->setAutoRepeat(true);
        connect(made, &QToolButton::clicked, this, [this, by] { d->step(by); });
        return made;
    };
    d->previous = button("previewPrevious", tr("Previous page"), -1);
    d->next = button("previewNext", tr("Next page"), 1);

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
            [this](const DrawnSide &side) { d->take(side); });
    d->sync();
}

DocumentPreview::~DocumentPreview() = default;

void DocumentPreview::setDocument(const Document &document)
{
    d->document = document;
    d->index = 0;
    d->runs.clear();
    d->setUpSequence();
    // Another document's page must not stand in for this one's.
    d->forgetAsked();
    d->renderer.setDocument(document);
    d->sync();
}

void DocumentPreview::setLayout(const Layout &layout)
{
    d->layout = layout;
    d->setUpSequence();
    d->sync();
}

void DocumentPreview::setOverlayPainter(OverlayPainter painter)
{
    d->renderer.setOverlayPainter(std::move(painter));
}

void DocumentPreview::setLeadingPagePainter(LeadingPagePainter painter)
{
    d->renderer.setLeadingPagePainter(std::move(painter));
}

void DocumentPreview::setMessage(const QString &message)
{
    d->message = message;
    d->sync();
}

void DocumentPreview::drawPutOff()
{
    if (std::exchange(d->isPutOff, false) && isDrawing())
        d->renderer.render(d->asked);
}

bool DocumentPreview::isDrawing() const
{
    return !d->asked.isBlank() && !d->answer;
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
