#include "outline_style.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QEvent>
#include <QPainter>
#include <QProxyStyle>
#include <QPushButton>
#include <QStyleOption>
#include <QTabBar>
#include <QToolButton>

#include <algorithm>
#include <cmath>
#include <optional>

namespace kelvo {

namespace {

constexpr int styleDarkens = 140;      // percent: the style's outlines from the window's color
constexpr double seenContrast = 1.5;   // the style's own, on a light window, have 2
constexpr double outlineStrength = .5; // between the window (0) and its text (1)
constexpr int shownTabLine = 3;        // pixels
constexpr int tabGap = 3;              // pixels, between a tab's outline and its ring
constexpr int textGap = 1;             // pixels, between a text and its ring
constexpr double ringContrast = 3;     // what the guidelines ask of it
constexpr double ringWidth = 2, ringRadius = 3; // logical pixels

// As the sum of the guidelines has them, 0 to 1.
double luminanceOf(const QColor &color)
{
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF())
        + 0.0722 * linear(color.blueF());
}

// The color of a window that the style makes visible outlines of.
QColor windowForOutlines(const QColor &window, const QColor &text)
{
    if (contrastOf(window, window.darker(styleDarkens)) >= seenContrast)
        return window;
    const auto between = [](float from, float to) {
        return from + (to - from) * float(outlineStrength);
    };
    return QColor::fromRgbF(between(window.redF(), text.redF()),
                            between(window.greenF(), text.greenF()),
                            between(window.blueF(), text.blueF()))
        .lighter(styleDarkens);
}

// Asked for each outline of a frame, nearly always for the same window.
QColor windowForOutlines(const QPalette &palette)
{
    static QColor window, text, result;
    if (window != palette.color(QPalette::Window) || text != palette.color(QPalette::WindowText)) {
        window = palette.color(QPalette::Window);
        text = palette.color(QPalette::WindowText);
        result = windowForOutlines(window, text);
    }
    return result;
}

// While it lives, the option has that color. A copy would have to be of the option's own type,
// which an element does not tell.
class OutlinedOption
{
public:
    explicit OutlinedOption(const QStyleOption *option)
    {
        const QColor window = windowForOutlines(option->palette);
        if (window == option->palette.color(QPalette::Window))
            return; // and no palette is copied
        m_option = const_cast<QStyleOption *>(option);
        m_palette = option->palette;
        m_option->palette.setColor(QPalette::Window, window);
    }
    ~OutlinedOption()
    {
        if (m_option)
            m_option->palette = m_palette;
    }
    Q_DISABLE_COPY_MOVE(OutlinedOption)

private:
    QStyleOption *m_option = nullptr;
    QPalette m_palette;
};

bool isOutlined(QStyle::PrimitiveElement element)
{
    switch (element) {
    case QStyle::PE_Frame:
    case QStyle::PE_FrameGroupBox:
    case QStyle::PE_FrameLineEdit:
    case QStyle::PE_FrameTabWidget:
    case QStyle::PE_IndicatorCheckBox:
    case QStyle::PE_IndicatorRadioButton:
    case QStyle::PE_PanelButtonCommand:
        return true;
    default:
        return false;
    }
}

// A tab is filled with the window's color, too, and the shown one is no other than the rest
// where that is black.
void outlineTab(const QStyleOption &option, QPainter *painter)
{
    const QColor window = windowForOutlines(option.palette);
    if (window == option.palette.color(QPalette::Window))
        return;
    painter->save();
    painter->setBrush(Qt::NoBrush);
    painter->setPen(window.darker(styleDarkens));
    painter->drawRect(option.rect.adjusted(0, 0, -1, -1));
    if (option.state & QStyle::State_Selected)
        painter->fillRect(QRect(option.rect.topLeft(), QSize(option.rect.width(), shownTabLine)),
                          option.palette.brush(QPalette::Highlight));
    painter->restore();
}

// That is seen on all of these.
QColor ringColor(const QPalette &palette, std::initializer_list<QColor> behind)
{
    for (const auto role : {QPalette::Highlight, QPalette::HighlightedText}) {
        const QColor color = palette.color(role);
        if (std::ranges::all_of(behind, [&color](const QColor &background) {
                return contrastOf(color, background) >= ringContrast;
            }))
            return color;
    }
    return palette.color(QPalette::WindowText);
}

// One color for all that a window has.
QColor ringColor(const QPalette &palette)
{
    return ringColor(palette,
                     {palette.color(QPalette::Window), palette.color(QPalette::Button),
                      palette.color(QPalette::Base)});
}

// Along the inside of `rect`.
void drawRing(const QRect &rect, const QColor &color, QPainter *painter)
{
    constexpr double half = ringWidth / 2;
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setBrush(Qt::NoBrush);
    painter->setPen(QPen(color, ringWidth));
    painter->drawRoundedRect(QRectF(rect).adjusted(half, half, -half, -half), ringRadius,
                             ringRadius);
    painter->restore();
}

// Nothing without the focus.
void drawFocus(const QStyleOption &option, const QRect &rect, QPainter *painter)
{
    if (option.state & QStyle::State_HasFocus)
        drawRing(rect, ringColor(option.palette), painter);
}

// Of a part of `widget`: the text of a check box, which has a gap before it, or a row.
void drawAround(const QStyleOptionFocusRect &focus, const QWidget *widget, QPainter *painter)
{
    if (qobject_cast<const QAbstractButton *>(widget))
        drawRing(focus.rect.adjusted(-textGap, 0, textGap, 0) & widget->rect(),
                 ringColor(focus.palette), painter);
    else
        drawRing(focus.rect, ringColor(focus.palette, {focus.backgroundColor}), painter);
}

// Its whole outline is the ring, not a part of it.
bool hasRingOfItsOwn(const QWidget *widget)
{
    return qobject_cast<const QPushButton *>(widget) || qobject_cast<const QToolButton *>(widget)
        || qobject_cast<const QTabBar *>(widget);
}

// Of Qt's own style, on whatever lies between.
class OutlineStyle : public QProxyStyle
{
public:
    using QProxyStyle::QProxyStyle;

    // A frame is not painted again by itself when the focus comes or goes.
    void polish(QWidget *widget) override
    {
        QProxyStyle::polish(widget);
        if (qobject_cast<QAbstractScrollArea *>(widget))
            widget->installEventFilter(this);
    }
    using QProxyStyle::polish;

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut)
            static_cast<QWidget *>(watched)->update();
        return QProxyStyle::eventFilter(watched, event);
    }

    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget) const override
    {
        if (element == PE_FrameFocusRect) {
            if (const auto *focus = qstyleoption_cast<const QStyleOptionFocusRect *>(option);
                focus && !hasRingOfItsOwn(widget))
                drawAround(*focus, widget, painter);
            return;
        }
        std::optional<OutlinedOption> outlined;
        if (isOutlined(element))
            outlined.emplace(option);
        QProxyStyle::drawPrimitive(element, option, painter, widget);
        outlined.reset();
        if (element == PE_Frame && qobject_cast<const QAbstractScrollArea *>(widget))
            drawFocus(*option, option->rect, painter);
    }

    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget) const override
    {
        std::optional<OutlinedOption> outlined;
        if (element == CE_ProgressBarGroove)
            outlined.emplace(option);
        QProxyStyle::drawControl(element, option, painter, widget);
        if (element == CE_TabBarTabShape)
            outlineTab(*option, painter);
        if (element == CE_TabBarTabLabel)
            drawFocus(*option, option->rect.adjusted(tabGap, tabGap, -tabGap, -tabGap), painter);
        else if (element == CE_PushButton)
            drawFocus(*option, option->rect, painter);
    }

    void drawComplexControl(ComplexControl control, const QStyleOptionComplex *option,
                            QPainter *painter, const QWidget *widget) const override
    {
        std::optional<OutlinedOption> outlined;
        if (control == CC_ComboBox || control == CC_SpinBox || control == CC_Slider)
            outlined.emplace(option);
        QProxyStyle::drawComplexControl(control, option, painter, widget);
        outlined.reset();
        if (control == CC_ComboBox || control == CC_ToolButton)
            drawFocus(*option, option->rect, painter);
        else if (control == CC_Slider)
            drawFocus(*option, subControlRect(control, option, SC_SliderHandle, widget), painter);
    }
};

} // namespace

void showFocusAndOutlines()
{
    const QStyle *style = QApplication::style();
    while (const auto *proxy = qobject_cast<const QProxyStyle *>(style))
        style = proxy->baseStyle();
    if (style->name() == QLatin1String("fusion"))
        QApplication::setStyle(new OutlineStyle(QApplication::style()));
}

double contrastOf(const QColor &one, const QColor &other)
{
    const auto [darker, lighter] = std::minmax({luminanceOf(one), luminanceOf(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

} // namespace kelvo
