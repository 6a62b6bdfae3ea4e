#include "text_layout.h"

#include "text_context.h"

#include <cmath>
#include <numbers>

namespace kelvo::drawing {

namespace {

// cairo turns from right to down, we from right to up.
double cairoAngle(double degrees)
{
    return -degrees * std::numbers::pi / 180;
}

} // namespace

TextLayout::TextLayout(const QString &text, const TextStyle &style)
    : m_style(style)
    , m_layout(pango_layout_new(unhintedContext().get()))
{
    pango_layout_set_font_description(m_layout.get(), fontFor(style).get());
    const QByteArray bytes = text.toUtf8();
    pango_layout_set_text(m_layout.get(), bytes.constData(), static_cast<int>(bytes.size()));
    m_baseline = points(pango_layout_get_baseline(m_layout.get()));
}

QRectF TextLayout::inkBounds() const
{
    PangoRectangle ink;
    pango_layout_get_extents(m_layout.get(), &ink, nullptr);
    if (ink.width == 0 || ink.height == 0)
        return {};
    const QRectF upright(points(ink.x), points(ink.y) - m_baseline, points(ink.width),
                         points(ink.height));
    const double cosine = std::cos(cairoAngle(m_style.angle));
    const double sine = std::sin(cairoAngle(m_style.angle));
    const QSizeF size = upright.size();
    const QPointF middle = upright.center();
    QRectF turned(0, 0, size.width() * std::abs(cosine) + size.height() * std::abs(sine),
                  size.width() * std::abs(sine) + size.height() * std::abs(cosine));
    turned.moveCenter(
        {middle.x() * cosine - middle.y() * sine, middle.x() * sine + middle.y() * cosine});
    return turned;
}

void TextLayout::draw(cairo_t *context, double x, double y) const
{
    const Color &color = m_style.color;
    cairo_save(context);
    cairo_translate(context, x, y);
    cairo_rotate(context, cairoAngle(m_style.angle));
    cairo_move_to(context, 0, -m_baseline);
    cairo_set_source_rgba(context, color.red, color.green, color.blue, color.alpha);
    pango_cairo_show_layout(context, m_layout.get());
    cairo_restore(context);
}

} // namespace kelvo::drawing
