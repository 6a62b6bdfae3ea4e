#include "printer_row_delegate.h"

#include "caution_colours.h"
#include "printer_list_model.h"
#include "printer_words.h"
#include "texts.h"

#include <QApplication>
#include <QFontMetrics>
#include <QPainter>
#include <QPainterPath>
#include <QStyle>

#include <algorithm>

namespace kelvo {

namespace {

constexpr int padding = 5;               // logical pixels, around a row's lines
constexpr int gap = 8;                   // between what stands on one line
constexpr double smaller = 0.9;          // of the list's font
constexpr float standsBack = 0.75F;      // opacity; 7:1 of black on white
constexpr double leastShareOfName = 0.5; // of its line, where the state is long

QFont smallFont(QFont font)
{
    if (font.pointSizeF() > 0)
        font.setPointSizeF(font.pointSizeF() * smaller);
    else
        font.setPixelSize(std::max(1, int(font.pixelSize() * smaller)));
    return font;
}

QColor standingBack(QColor color)
{
    color.setAlphaF(standsBack);
    return color;
}

// Paints a row from its leading edge to its trailing one, whichever those are.
class RowPainter
{
public:
    RowPainter(QPainter *painter, const QStyleOptionViewItem &option, const Printer &printer)
        : m_painter(painter)
        , m_option(option)
        , m_printer(printer)
        , m_small(smallFont(option.font))
        , m_bigMetrics(option.font)
        , m_smallMetrics(m_small)
        , m_isSelected(option.state & QStyle::State_Selected)
        , m_text(option.palette.color(m_isSelected ? QPalette::HighlightedText : QPalette::Text))
        , m_room(option.rect.adjusted(padding, padding, -padding, -padding))
    {
    }

    void paint(bool isChosen)
    {
        const int height = m_bigMetrics.height();
        const QRect mark(m_room.left(), m_room.top(), height, height);
        if (isChosen)
            paintCheckMark(mark);
        m_room.setLeft(mark.right() + 1);
        paintFirstLine(QRect(m_room.topLeft(), QSize(m_room.width(), height)));
        const QRect second(m_room.left(), m_room.top() + height, m_room.width(),
                           m_smallMetrics.height());
        write(second, placeAndModel(m_printer), m_small, standingBack(m_text), Qt::AlignLeft,
              Qt::ElideRight);
    }

private:
    void paintFirstLine(QRect line)
    {
        const QString state = printerConditionText(m_printer);
        const QString word = m_printer.isDefault ? translate("Printers", "default") : QString();
        const int nameWidth = m_bigMetrics.horizontalAdvance(m_printer.name) + 1;
        const int wordWidth =
            word.isEmpty() ? 0 : m_smallMetrics.horizontalAdvance(word) + gap + 2 * gap / 2;
        const int leastOfName = std::min(nameWidth, int(line.width() * leastShareOfName));
        const int stateWidth = std::min(m_smallMetrics.horizontalAdvance(state) + 1,
                                        line.width() - leastOfName - wordWidth - gap);
        const bool isInTrouble =
            !m_printer.acceptsJobs || m_printer.state == Printer::State::Stopped;
        const QColor stateColor = m_isSelected ? m_text
            : isInTrouble                      ? cautionText(m_option.palette)
                                               : standingBack(m_text);
        write(QRect(line.right() + 1 - stateWidth, line.top(), stateWidth, line.height()), state,
              m_small, stateColor, Qt::AlignRight, Qt::ElideRight);

        line.setWidth(std::min(nameWidth, line.width() - stateWidth - gap - wordWidth));
        write(line, m_printer.name, m_option.font, m_text, Qt::AlignLeft, Qt::ElideMiddle);
        if (!word.isEmpty())
            paintLabel(QRect(line.right() + 1 + gap, line.top(), wordWidth - gap, line.height()),
                       word);
    }

    QRect shown(const QRect &logical) const
    {
        return QStyle::visualRect(m_option.direction, m_option.rect, logical);
    }

    void write(const QRect &room, const QString &text, const QFont &font, const QColor &color,
               Qt::Alignment alignment, Qt::TextElideMode elide)
    {
        // A letter that another font has may be higher than the line.
        const QString fitting = QFontMetrics(font).elidedText(text, elide, room.width());
        m_painter->setFont(font);
        m_painter->setPen(color);
        m_painter->drawText(shown(room),
                            int(QStyle::visualAlignment(m_option.direction, alignment)
                                | Qt::AlignAbsolute | Qt::AlignVCenter)
                                | Qt::TextSingleLine | Qt::TextDontClip,
                            fitting);
    }

    // A word in a frame.
    void paintLabel(const QRect &room, const QString &word)
    {
        const QColor color = standingBack(m_text);
        const int height = m_smallMetrics.height();
        const QRectF frame(
            shown(QRect(room.left(), room.center().y() - height / 2, room.width(), height)));
        m_painter->setRenderHint(QPainter::Antialiasing);
        m_painter->setPen(QPen(color, 1));
        m_painter->setBrush(Qt::NoBrush);
        m_painter->drawRoundedRect(frame.adjusted(0.5, 0.5, -0.5, -0.5), 3, 3);
        write(room, word, m_small, color, Qt::AlignHCenter, Qt::ElideRight);
    }

    void paintCheckMark(const QRect &room)
    {
        const QRectF square(shown(room.adjusted(0, 0, -padding, 0)));
        const auto at = [&square](double x, double y) {
            return square.topLeft() + QPointF(x * square.width(), y * square.height());
        };
        QPainterPath path(at(0.15, 0.55));
        path.lineTo(at(0.4, 0.78));
        path.lineTo(at(0.85, 0.25));
        m_painter->setRenderHint(QPainter::Antialiasing);
        m_painter->setBrush(Qt::NoBrush);
        m_painter->setPen(QPen(m_text, 1.6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        m_painter->drawPath(path);
    }

    QPainter *m_painter;
    const QStyleOptionViewItem &m_option;
    const Printer &m_printer;
    QFont m_small;
    QFontMetrics m_bigMetrics, m_smallMetrics;
    bool m_isSelected;
    QColor m_text;
    QRect m_room;
};

} // namespace

void PrinterRowDelegate::paint(QPainter *painter, const QStyleOptionViewItem &given,
                               const QModelIndex &index) const
{
    QStyleOptionViewItem option = given;
    initStyleOption(&option, index);
    option.text.clear();
    const QStyle *style = option.widget ? option.widget->style() : QApplication::style();
    style->drawControl(QStyle::CE_ItemViewItem, &option, painter, option.widget);
    const auto *model = static_cast<const PrinterListModel *>(index.model());
    painter->save();
    RowPainter(painter, option, model->printerAt(index.row())).paint(model->isChosen(index.row()));
    painter->restore();
}

QSize PrinterRowDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &) const
{
    return {0, rowHeight(option.font)};
}

int PrinterRowDelegate::rowHeight(const QFont &font)
{
    return QFontMetrics(font).height() + QFontMetrics(smallFont(font)).height() + 2 * padding;
}

} // namespace kelvo
