#include "flat_selector.h"

#include <QComboBox>
#include <QPainter>
#include <QProxyStyle>
#include <QStyleOption>

#include <algorithm>

namespace kelvo {

namespace {

constexpr int kGap = 6; // logical pixels beside the text

// The parts that every primitive reads, for an area of its own.
template <typename Option>
Option optionFor(const QStyleOption &of, const QRect &rect)
{
    Option option;
    option.state = of.state;
    option.direction = of.direction;
    option.fontMetrics = of.fontMetrics;
    option.palette = of.palette;
    option.styleObject = of.styleObject;
    option.rect = rect;
    return option;
}

// Text and arrow, side by side in the middle.
struct Parts
{
    QRect text;
    QRect arrow;
};

int arrowSideFor(const QStyleOption &option)
{
    return option.fontMetrics.height() * 2 / 3;
}

Parts partsOf(const QStyleOptionComboBox &popup)
{
    const int arrowSide = arrowSideFor(popup);
    const int room = popup.rect.width() - 3 * kGap - arrowSide;
    // The advance is rounded; a text in a box of just that width would be elided.
    const int textWidth =
        std::min(room, popup.fontMetrics.horizontalAdvance(popup.currentText) + 1);
    const int left = popup.rect.left() + (popup.rect.width() - textWidth - kGap - arrowSide) / 2;
    const QRect text(left, popup.rect.top(), textWidth, popup.rect.height());
    const QRect arrow(left + textWidth + kGap, popup.rect.center().y() - arrowSide / 2 + 1,
                      arrowSide, arrowSide);
    return {QStyle::visualRect(popup.direction, popup.rect, text),
            QStyle::visualRect(popup.direction, popup.rect, arrow)};
}

// Styles draw a pop-up's button whether or not it has a frame.
class FlatPopupStyle : public QProxyStyle
{
public:
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex *option,
                            QPainter *painter, const QWidget *widget) const override
    {
        const auto *popup = qstyleoption_cast<const QStyleOptionComboBox *>(option);
        if (control != CC_ComboBox || !popup) {
            QProxyStyle::drawComplexControl(control, option, painter, widget);
            return;
        }
        if ((popup->state & State_MouseOver) && (popup->state & State_Enabled)) {
            auto panel = optionFor<QStyleOption>(*popup, popup->rect);
            panel.state |= State_AutoRaise | State_Raised;
            drawPrimitive(PE_PanelButtonTool, &panel, painter, widget);
        }
        if (popup->state & State_HasFocus) {
            auto focus =
                optionFor<QStyleOptionFocusRect>(*popup, popup->rect.adjusted(1, 1, -1, -1));
            focus.backgroundColor = popup->palette.color(QPalette::Window);
            drawPrimitive(PE_FrameFocusRect, &focus, painter, widget);
        }
        const auto arrow = optionFor<QStyleOption>(*popup, partsOf(*popup).arrow);
        drawPrimitive(PE_IndicatorArrowDown, &arrow, painter, widget);
    }

    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget) const override
    {
        const auto *popup = qstyleoption_cast<const QStyleOptionComboBox *>(option);
        if (element != CE_ComboBoxLabel || !popup) {
            QProxyStyle::drawControl(element, option, painter, widget);
            return;
        }
        const QRect area = partsOf(*popup).text;
        const QString text =
            popup->fontMetrics.elidedText(popup->currentText, Qt::ElideRight, area.width());
        drawItemText(painter, area, Qt::AlignCenter, popup->palette, popup->state & State_Enabled,
                     text, QPalette::WindowText);
    }

    QSize sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &contents,
                           const QWidget *widget) const override
    {
        if (type != CT_ComboBox)
            return QProxyStyle::sizeFromContents(type, option, contents, widget);
        return {contents.width() + 3 * kGap + arrowSideFor(*option), contents.height() + kGap};
    }
};

} // namespace

void makeFlat(QComboBox *popup)
{
    auto *style = new FlatPopupStyle;
    style->setParent(popup); // a widget does not own its style
    popup->setStyle(style);
    QFont font = popup->font();
    font.setBold(true);
    popup->setFont(font);
    popup->setAttribute(Qt::WA_Hover);
}

} // namespace kelvo
