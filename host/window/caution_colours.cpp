#include "caution_colours.h"

namespace kelvo {

namespace {

QColor mixed(const QColor &one, const QColor &other, double share)
{
    return QColor(int(one.red() * (1 - share) + other.red() * share),
                  int(one.green() * (1 - share) + other.green() * share),
                  int(one.blue() * (1 - share) + other.blue() * share));
}

const QColor amber(230, 160, 0);
const QColor rust(200, 60, 0);

} // namespace

QColor cautionGround(const QPalette &palette)
{
    return mixed(palette.color(QPalette::Window), amber, 0.18);
}

QColor cautionText(const QPalette &palette)
{
    return mixed(palette.color(QPalette::WindowText), rust, 0.65);
}

} // namespace kelvo
