// What first_frame.so asks of Qt, in a library that it opens when there is a frame.
#include <QApplication>
#include <QBackingStore>
#include <QWidget>
#include <QWindow>

// Whether the frame that was painted of a window, or else of the store's own, shows a widget
// whose object name begins like that.
extern "C" __attribute__((visibility("default"))) bool
kelvoFrameShows(const QBackingStore *store, const QWindow *painted, const char *begin)
{
    const QWindow *window = painted ? painted : store->window();
    const QWidgetList widgets = QApplication::allWidgets();
    for (const QWidget *widget : widgets) {
        if (widget->isVisible() && widget->objectName().startsWith(QLatin1String(begin))
            && widget->window()->windowHandle() == window)
            return true;
    }
    return false;
}
