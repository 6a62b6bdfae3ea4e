#include "finished_set_drawing.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>
#include <span>

namespace kelvo {

namespace {

// The colors of the bundle's pictures.
constexpr QColor lineColor(0x78, 0x81, 0x8a);
constexpr QColor textColor(0x8c, 0x95, 0x9d);
constexpr QColor headingColor(0x2f, 0x7f, 0xc4);
constexpr QColor stapleColor(0x1b, 0x5a, 0x92);
constexpr QColor holeColor(0x3f, 0x47, 0x4f);
constexpr QColor tapeColor(0x2f, 0x7f, 0xc4);

// "MediaColor"; every other is white.
QColor colorOfPaper(std::int32_t mediaColor)
{
    switch (mediaColor) {
    case kStockColorBlue:
        return {0xa9, 0xd0, 0xf2};
    case kStockColorYellow:
        return {0xff, 0xf2, 0x7a};
    case kStockColorGreen:
        return {0xb2, 0xe2, 0xad};
    case kStockColorPink:
        return {0xfc, 0xc4, 0xda};
    case kStockColorClear:
        return {0xcf, 0xe8, 0xfb};
    case kStockColorBuff:
        return {0xec, 0xd0, 0xa0};
    case kStockColorGoldenrod:
        return {0xe3, 0xa8, 0x23};
    case kStockColorRed:
        return {0xe8, 0x63, 0x5b};
    case kStockColorIvory:
        return {0xfd, 0xf8, 0xe1};
    case kStockColorGray:
        return {0xc0, 0xc5, 0xca};
    case kStockColorOrange:
        return {0xff, 0x9d, 0x4d};
    default:
        return Qt::white;
    }
}

// Where a folded sheet has an edge or a fold: at a share of its length, and how near to who
// looks at it, from 0 to 1.
struct Crease
{
    double at, nearness;
};
constexpr Crease flat[] = {{0, 0}, {1, 0}};
constexpr Crease middleFold[] = {{0, 1}, {1 / 2., 0}, {1, 1}};
constexpr Crease cFold[] = {{0, 1}, {1 / 3., 0}, {2 / 3., 0}, {1, 1}};
constexpr Crease zFold[] = {{0, 1}, {1 / 3., 0}, {2 / 3., 1}, {1, 0}};
constexpr Crease halfZFold[] = {{0, 0}, {1 / 2., 0}, {3 / 4., 1}, {1, 0}};

std::span<const Crease> creasesOf(FinishedSet::Fold fold)
{
    switch (fold) {
    case FinishedSet::Fold::None:
        break;
    case FinishedSet::Fold::Middle:
        return middleFold;
    case FinishedSet::Fold::C:
        return cFold;
    case FinishedSet::Fold::Z:
        return zFold;
    case FinishedSet::Fold::HalfZ:
        return halfZFold;
    }
    return flat;
}

// Room around a sheet, in shares of its shorter side: for what lies behind it, for a tab and
// for the nearer edges of a folded one. It is there whether needed or not, so that nothing
// changes its size when a choice changes.
constexpr double roomLeft = 0.06, roomTop = 0.1, roomRight = 0.12, roomBottom = 0.06;

// Paints on a sheet that lies at 0, 0, flat or folded. Places are shares of the sheet, from its
// upper left corner; lengths are shares of its shorter side.
class SheetPainter
{
public:
    SheetPainter(QPainter &painter, const QSizeF &sheet, FinishedSet::Fold fold)
        : m_painter(painter)
        , m_sheet(sheet)
        , m_unit(std::min(sheet.width(), sheet.height()))
        , m_isTall(sheet.height() >= sheet.width())
        , m_creases(creasesOf(fold))
    {
        // What slopes looks shorter; the sheet stays in its middle.
        double length = 0;
        for (std::size_t i = 1; i < m_creases.size(); ++i)
            length += seenLength(i);
        m_start = (1 - length) / 2;
    }

    double length(double share) const { return share * m_unit; }
    // The same lengths as shares of the sheet.
    double across(double share) const { return length(share) / m_sheet.width(); }
    double down(double share) const { return length(share) / m_sheet.height(); }
    double thinLine() const { return std::clamp(m_unit * 0.014, 1.0, 2.0); }
    bool isTall() const { return m_isTall; }
    std::span<const Crease> creases() const { return m_creases; }

    QPointF at(double across, double down) const
    {
        const double along = m_isTall ? down : across;
        const double side = m_isTall ? across : down;
        double seen = m_start;
        std::size_t i = 1;
        for (; i + 1 < m_creases.size() && along > m_creases[i].at; ++i)
            seen += seenLength(i);
        const Crease &from = m_creases[i - 1], &to = m_creases[i];
        const double share = (along - from.at) / (to.at - from.at);
        seen += seenLength(i) * share;
        const double nearness = from.nearness + (to.nearness - from.nearness) * share;
        const double seenSide = 0.5 + (side - 0.5) * (1 + nearness * 0.1);
        return m_isTall ? QPointF(seenSide * m_sheet.width(), seen * m_sheet.height())
                        : QPointF(seen * m_sheet.width(), seenSide * m_sheet.height());
    }

    // The part of the sheet between crease `i` - 1 and crease `i`.
    QPolygonF panel(std::size_t i) const
    {
        const double a = m_creases[i - 1].at, b = m_creases[i].at;
        return m_isTall ? QPolygonF({at(0, a), at(1, a), at(1, b), at(0, b)})
                        : QPolygonF({at(a, 0), at(b, 0), at(b, 1), at(a, 1)});
    }

    // A line of text, which follows the folds.
    void line(double left, double right, double down, const QColor &color, double width = 0.022)
    {
        QPolygonF points;
        constexpr int steps = 24;
        for (int i = 0; i <= steps; ++i)
            points << at(left + (right - left) * i / steps, down);
        stroke(points, color, width);
    }
    void stroke(const QPolygonF &points, const QColor &color, double width)
    {
        m_painter.setPen(
            QPen(color, std::max(length(width), 1.0), Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        m_painter.setBrush(Qt::NoBrush);
        m_painter.drawPolyline(points);
    }
    void fill(const QPolygonF &shape, const QColor &color, const QColor &outline = lineColor)
    {
        m_painter.setPen(QPen(outline, thinLine(), Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        m_painter.setBrush(color);
        m_painter.drawPolygon(shape);
    }

    QPainter &painter() { return m_painter; }

private:
    double seenLength(std::size_t i) const
    {
        const Crease &from = m_creases[i - 1], &to = m_creases[i];
        return (to.at - from.at) * (from.nearness == to.nearness ? 1.0 : 0.8);
    }

    QPainter &m_painter;
    QSizeF m_sheet;
    double m_unit;
    bool m_isTall;
    std::span<const Crease> m_creases;
    double m_start = 0;
};

// The corner that one takes hold of to turn the sheet: shares of its sides. More of the edge
// that is lifted.
struct Corner
{
    double across = 0, down = 0;
};

Corner cornerOf(const FinishedSet &set, const SheetPainter &sheet)
{
    const bool isOverLeft = set.turn == FinishedSet::Turn::OverLeft;
    const bool isTurned = isOverLeft || set.turn == FinishedSet::Turn::OverTop;
    if (!isTurned || set.fold != FinishedSet::Fold::None)
        return {};
    constexpr double lifted = 0.4, other = 0.2; // of the shorter side
    return {sheet.across(isOverLeft ? other : lifted), sheet.down(isOverLeft ? lifted : other)};
}

// ---- What is printed

void drawText(SheetPainter &sheet, const FinishedSet &set, const QRectF &page)
{
    const auto line = [&](double left, double right, double down, const QColor &color,
                          double width) {
        const auto turned = [&](double share) { return set.isUpsideDown ? 1 - share : share; };
        const double middle = page.top() + page.height() * turned(down);
        sheet.line(page.left() + page.width() * turned(left),
                   page.left() + page.width() * turned(right), middle, color, width);
    };
    line(0, 0.55, 0.04, set.isColored ? headingColor : textColor, 0.045);
    const bool isWide = page.width() * sheet.at(1, 0).x() > page.height() * sheet.at(0, 1).y();
    const int lines = isWide ? 5 : 8;
    for (int i = 1; i <= lines; ++i) {
        const bool isLast = i == lines || i == lines / 2;
        line(0, isLast ? 0.6 : 1, 0.04 + 0.92 * i / lines, textColor, 0.022);
    }
}

void drawLabels(SheetPainter &sheet)
{
    constexpr int columns = 2, rows = 5;
    for (int row = 0; row < rows; ++row) {
        for (int column = 0; column < columns; ++column) {
            const double left = 0.08 + 0.44 * column, top = 0.05 + 0.185 * row;
            sheet.fill({sheet.at(left, top), sheet.at(left + 0.4, top),
                        sheet.at(left + 0.4, top + 0.15), sheet.at(left, top + 0.15)},
                       Qt::white);
            sheet.line(left + 0.05, left + 0.28, top + 0.075, textColor);
        }
    }
}

void drawAddress(SheetPainter &sheet)
{
    sheet.line(0.06, 0.3, 0.12, textColor);
    for (int i = 0; i < 3; ++i)
        sheet.line(0.45, i == 2 ? 0.7 : 0.85, 0.5 + 0.1 * i, textColor, 0.03);
}

void drawPages(SheetPainter &sheet, const FinishedSet &set)
{
    if (set.kind == FinishedSet::Kind::Labels) {
        drawLabels(sheet);
    } else if (set.kind == FinishedSet::Kind::Envelope) {
        drawAddress(sheet);
    } else if (!set.isBooklet) {
        // Away from what holds the sheets together.
        const double left = set.staples > 1 || set.holes > 0 ? 0.2 : 0.12;
        drawText(sheet, set, QRectF(left, 0.12, 0.88 - left, 0.76));
    } else if (sheet.isTall()) {
        drawText(sheet, set, QRectF(0.14, 0.07, 0.72, 0.35));
        drawText(sheet, set, QRectF(0.14, 0.58, 0.72, 0.35));
    } else {
        drawText(sheet, set, QRectF(0.06, 0.14, 0.37, 0.72));
        drawText(sheet, set, QRectF(0.57, 0.14, 0.37, 0.72));
    }
}

// ---- What is done to it

// Shares of the left edge, as finishers place them.
std::span<const double> placesOfHoles(int holes)
{
    static constexpr double two[] = {0.365, 0.635};
    static constexpr double three[] = {0.114, 0.5, 0.886};
    static constexpr double four[] = {0.096, 0.365, 0.635, 0.904};
    switch (holes) {
    case 2:
        return two;
    case 3:
        return three;
    case 4:
        return four;
    default:
        return {};
    }
}

void drawHoles(SheetPainter &sheet, const FinishedSet &set)
{
    const double radius = std::max(sheet.length(0.028), 1.6);
    const double across = sheet.across(set.staples > 1 ? 0.125 : 0.085);
    QPainter &painter = sheet.painter();
    painter.setPen(QPen(holeColor, sheet.thinLine()));
    painter.setBrush(Qt::white);
    // Below a staple, which takes the corner.
    const double top = set.staples == 1 ? 0.1 : 0;
    for (const double place : placesOfHoles(set.holes))
        painter.drawEllipse(sheet.at(across, top + (1 - top) * place), radius, radius);
}

void drawStaples(SheetPainter &sheet, int staples)
{
    constexpr double width = 0.034;
    const QPointF corner = sheet.at(0, 0);
    if (staples == 1) {
        sheet.stroke({corner + QPointF(sheet.length(0.035), sheet.length(0.125)),
                      corner + QPointF(sheet.length(0.125), sheet.length(0.035))},
                     stapleColor, width);
        return;
    }
    const QPointF half(0, sheet.length(staples == 2 ? 0.065 : 0.05));
    const double across = sheet.across(0.045);
    for (int i = 0; i < staples; ++i) {
        const double down = staples == 2 ? 0.25 + 0.5 * i : 0.1 + 0.8 * i / (staples - 1);
        const QPointF middle = sheet.at(across, down);
        sheet.stroke({middle - half, middle + half}, stapleColor, width);
    }
}

void drawStaplesInFold(SheetPainter &sheet)
{
    for (const double side : {0.3, 0.7}) {
        const QPointF middle = sheet.isTall() ? sheet.at(side, 0.5) : sheet.at(0.5, side);
        const double half = sheet.length(0.065);
        const QPointF along = sheet.isTall() ? QPointF(half, 0) : QPointF(0, half);
        sheet.stroke({middle - along, middle + along}, Qt::white, 0.075);
        sheet.stroke({middle - along, middle + along}, stapleColor, 0.034);
    }
}

void drawTape(SheetPainter &sheet, FinishedSet::Edge edge)
{
    const double across = sheet.across(0.09), down = sheet.down(0.09);
    switch (edge) {
    case FinishedSet::Edge::None:
        return;
    case FinishedSet::Edge::Left:
        return sheet.fill(
            {sheet.at(0, 0), sheet.at(across, 0), sheet.at(across, 1), sheet.at(0, 1)}, tapeColor,
            stapleColor);
    case FinishedSet::Edge::Right:
        return sheet.fill(
            {sheet.at(1 - across, 0), sheet.at(1, 0), sheet.at(1, 1), sheet.at(1 - across, 1)},
            tapeColor, stapleColor);
    case FinishedSet::Edge::Top:
        return sheet.fill({sheet.at(0, 0), sheet.at(1, 0), sheet.at(1, down), sheet.at(0, down)},
                          tapeColor, stapleColor);
    }
}

// ---- The sheets

QPolygonF outlineOf(const SheetPainter &sheet, const Corner &corner)
{
    return {sheet.at(0, 0), sheet.at(1, 0), sheet.at(1, 1 - corner.down),
            sheet.at(1 - corner.across, 1), sheet.at(0, 1)};
}

// What lies behind the set that one sees, the hindmost first.
void drawBehind(SheetPainter &sheet, const FinishedSet &set, const QColor &paper)
{
    const auto drawAt = [&](double across, double up, const QColor &color) {
        sheet.fill(outlineOf(sheet, {}).translated(sheet.length(across), sheet.length(-up)), color);
    };
    const QColor shaded = paper.darker(106);
    if (set.offset != FinishedSet::Offset::None) { // sets below, every other one aside
        const double size = set.fold == FinishedSet::Fold::None ? 1 : 0.5;
        drawAt(0.005 * size, 0.08 * size, shaded);
        drawAt(0.1 * size, 0.04 * size, shaded);
    }
    if (set.hasSeparators)
        drawAt(0.03, 0.03, colorOfPaper(set.separatorColor));
    if (set.isBound() && set.fold == FinishedSet::Fold::None) {
        drawAt(0.04, 0.03, shaded);
        drawAt(0.02, 0.015, shaded);
    }
}

void drawTab(SheetPainter &sheet, const QColor &paper)
{
    const double out = sheet.across(0.05);
    sheet.fill({sheet.at(0.98, 0.1), sheet.at(1 + out, 0.12), sheet.at(1 + out, 0.24),
                sheet.at(0.98, 0.26)},
               paper);
}

void drawSheet(SheetPainter &sheet, const FinishedSet &set, const QColor &paper,
               const Corner &corner)
{
    if (set.fold == FinishedSet::Fold::None) {
        sheet.fill(outlineOf(sheet, corner), paper);
        return;
    }
    // The light comes from the upper left: what slopes towards it stays as it is.
    const auto creases = sheet.creases();
    for (std::size_t i = 1; i < creases.size(); ++i) {
        const double slope = creases[i].nearness - creases[i - 1].nearness;
        sheet.fill(sheet.panel(i),
                   slope > 0       ? paper.darker(115)
                       : slope < 0 ? paper.darker(104)
                                   : paper);
    }
}

// The corner lifted: below it the next side, on it the back, which is printed.
void drawLiftedCorner(SheetPainter &sheet, const FinishedSet &set, const QColor &paper,
                      const Corner &corner)
{
    const QPointF right = sheet.at(1, 1 - corner.down), bottom = sheet.at(1 - corner.across, 1);
    // The corner's mirror image at the crease.
    const QPointF along = bottom - right, lost = sheet.at(1, 1) - right;
    const double share = QPointF::dotProduct(lost, along) / QPointF::dotProduct(along, along);
    const QPointF tip = right + 2 * share * along - lost;
    sheet.fill({right, bottom, tip}, paper.darker(110));
    constexpr double smallest = 110; // logical pixels of the sheet, below which lines are a blot
    if (sheet.length(1) < smallest)
        return;
    // They run along the edge that was lifted sideways, and from the edge that was lifted up.
    const bool isOverLeft = set.turn == FinishedSet::Turn::OverLeft;
    const QPointF edgeEnd = isOverLeft ? bottom : right, other = isOverLeft ? right : bottom;
    for (const double row : {0.3, 0.55}) {
        const QPointF begin = tip + (other - tip) * row;
        const QPointF end = edgeEnd + (other - edgeEnd) * row;
        sheet.stroke({begin + (end - begin) * 0.2, begin + (end - begin) * 0.7}, textColor, 0.02);
    }
}

} // namespace

void drawFinishedSet(QPainter &painter, const QSizeF &size, const FinishedSet &set)
{
    if (set.sheet.isEmpty())
        return;
    const double shorter = std::min(set.sheet.width(), set.sheet.height());
    const QSizeF all = set.sheet + QSizeF(roomLeft + roomRight, roomTop + roomBottom) * shorter;
    constexpr double pen = 1; // logical pixels, which half a line and round ends may need
    const double scale =
        std::min((size.width() - 2 * pen) / all.width(), (size.height() - 2 * pen) / all.height());
    if (scale <= 0)
        return;
    const QSizeF paperSize = set.sheet * scale;
    const double unit = shorter * scale;
    painter.save();
    painter.translate((size.width() - all.width() * scale) / 2 + roomLeft * unit,
                      (size.height() - all.height() * scale) / 2 + roomTop * unit);

    SheetPainter sheet(painter, paperSize, set.fold);
    QColor paper = colorOfPaper(set.paperColor);
    if (set.kind == FinishedSet::Kind::Transparency) {
        paper = colorOfPaper(kStockColorClear);
        paper.setAlpha(190);
    }
    const Corner corner = cornerOf(set, sheet);
    drawBehind(sheet, set, paper);
    if (set.kind == FinishedSet::Kind::Tab)
        drawTab(sheet, paper);
    drawSheet(sheet, set, paper, corner);
    drawPages(sheet, set);
    if (corner.across > 0)
        drawLiftedCorner(sheet, set, paper, corner);
    drawTape(sheet, set.tape);
    drawHoles(sheet, set);
    drawStaples(sheet, set.staples);
    if (set.isStapledInFold)
        drawStaplesInFold(sheet);
    painter.restore();
}

} // namespace kelvo
