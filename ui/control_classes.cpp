#include "control_classes.h"

#include "angle_dial.h"
#include "control_interface.h"
#include "drawing_view.h"
#include "history_field.h"
#include "list_view.h"
#include "menu_button.h"
#include "paper_view.h"
#include "picture_view.h"
#include "popup_button.h"
#include "qt_controls.h"
#include "radio_group.h"
#include "spin_field.h"
#include "summary_view.h"
#include "tab_control.h"
#include "time_field.h"

#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QTextEdit>

#include <algorithm>
#include <cstring>
#include <iterator>

namespace kelvo {

namespace {

struct ControlClass
{
    const QMetaObject *metaObject;
    std::unique_ptr<ControlInterface> (*makeInterface)(QWidget *control);
    QWidget *(*make)(QWidget *parent); // null: a class of Qt's
};

template <typename Widget>
constexpr ControlClass qts = {
    &Widget::staticMetaObject,
    [](QWidget *control) { return interfaceOf(static_cast<Widget *>(control)); }, nullptr};

template <typename Widget>
constexpr ControlClass ours = {&Widget::staticMetaObject, qts<Widget>.makeInterface,
                               [](QWidget *parent) -> QWidget * { return new Widget(parent); }};

// In any order: the nearest class that a widget comes from counts.
constexpr ControlClass classes[] = {
    ours<PopupButton>,    ours<MenuButton>,     ours<RadioGroup>,   ours<TabControl>,
    ours<SpinField>,      ours<TimeField>,      ours<HistoryField>, ours<ListView>,
    ours<PictureView>,    ours<PaperView>,      ours<DrawingView>,  ours<AngleDial>,
    ours<SummaryView>,    qts<QAbstractButton>, qts<QRadioButton>,  qts<QComboBox>,
    qts<QLineEdit>,       qts<QPlainTextEdit>,  qts<QTextEdit>,     qts<QAbstractSpinBox>,
    qts<QAbstractSlider>, qts<QLabel>,          qts<QGroupBox>,
};

// Without the namespace.
QLatin1String nameOf(const ControlClass &each)
{
    const char *name = each.metaObject->className();
    const char *colon = std::strrchr(name, ':');
    return QLatin1String(colon ? colon + 1 : name);
}

} // namespace

std::unique_ptr<ControlInterface> controlInterface(QWidget *control)
{
    for (const QMetaObject *kind = control->metaObject(); kind; kind = kind->superClass()) {
        const auto row = std::ranges::find(classes, kind, &ControlClass::metaObject);
        if (row != std::end(classes))
            return row->makeInterface(control);
    }
    return std::make_unique<ControlInterface>(control);
}

QWidget *makeControl(const QString &className, QWidget *parent)
{
    for (const ControlClass &each : classes) {
        if (each.make && nameOf(each) == className)
            return each.make(parent);
    }
    return nullptr;
}

QStringList controlClassNames()
{
    QStringList names;
    for (const ControlClass &each : classes) {
        if (each.make)
            names.append(nameOf(each));
    }
    return names;
}

} // namespace kelvo
