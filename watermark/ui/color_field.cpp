#include "color_field.h"

#include "input_limits.h"
#include "modal_dialog.h"

#include <QColorDialog>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QRegularExpression>

namespace kelvo {

namespace {

constexpr int longest = 7; // "#0000FF"
constexpr QSize wellSize(32, 16);

// Invalid where it is none.
QColor colorFrom(const QString &text)
{
    static const QRegularExpression hex(QStringLiteral("^#?([0-9A-Fa-f]{6})$"));
    const QRegularExpressionMatch match = hex.match(text);
    return match.hasMatch() ? QColor(u'#' + match.captured(1)) : QColor();
}

} // namespace

ColorField::ColorField(QPushButton *well, QLineEdit *field,
                       std::function<void(const QColor &)> chosen)
    : m_well(well)
    , m_field(field)
    , m_chosen(std::move(chosen))
{
    InputLimits limits{.maximumLength = longest};
    limits.allowed = InputLimits::setOf(QStringLiteral("#0123456789ABCDEF"));
    for (const QChar small : QStringLiteral("abcdef"))
        limits.substitutes.insert(small.unicode(), small.toUpper().unicode());
    setInputLimits(field, limits);
    // A letter wider than what it holds, in any font.
    const int width = field->fontMetrics().horizontalAdvance(QStringLiteral("#DDDDDDDD"));
    field->setMinimumWidth(width + field->fontMetrics().height());
}

void ColorField::show(const QColor &color)
{
    if (color == m_color)
        return;
    m_color = color;
    if (colorFrom(m_field->text()) != color)
        m_field->setText(color.name(QColor::HexRgb).toUpper());
    paintWell();
}

void ColorField::choose()
{
    QColorDialog dialog(m_color, m_well->window());
    dialog.setObjectName(QStringLiteral("colorDialog"));
    dialog.setWindowTitle(m_well->accessibleName());
    if (runChooser(dialog) != QDialog::Accepted)
        return;
    m_field->clear(); // of what was begun
    m_color = {};
    show(dialog.currentColor());
    m_chosen(m_color);
}

void ColorField::takeTyped()
{
    const QColor typed = colorFrom(m_field->text());
    if (!typed.isValid() || typed == m_color)
        return;
    m_color = typed;
    paintWell();
    m_chosen(typed);
}

bool ColorField::isColor() const
{
    return colorFrom(m_field->text()).isValid();
}

void ColorField::focus()
{
    m_field->setFocus();
    m_field->selectAll();
}

void ColorField::paintWell()
{
    const double ratio = m_well->devicePixelRatioF();
    QPixmap pixmap(wellSize * ratio);
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(m_color);
    QPainter painter(&pixmap);
    painter.setPen(QColor(0, 0, 0, 110)); // to be seen in the color of the button, too
    painter.drawRect(QRectF({0.5, 0.5}, QSizeF(wellSize) - QSizeF(1, 1)));
    painter.end();
    m_well->setIcon(pixmap);
    m_well->setIconSize(wellSize);
}

} // namespace kelvo
