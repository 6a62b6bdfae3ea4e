#include "menu_style.h"

#include <QApplication>
#include <QProxyStyle>

namespace kelvo {

namespace {

class MenuStyle : public QProxyStyle
{
public:
    using QProxyStyle::QProxyStyle;

    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                  QStyleHintReturn *result) const override
    {
        return hint == SH_Menu_Scrollable ? 1
                                          : QProxyStyle::styleHint(hint, option, widget, result);
    }
};

} // namespace

void keepMenusOnScreen()
{
    QApplication::setStyle(new MenuStyle(QApplication::style()));
}

} // namespace kelvo
