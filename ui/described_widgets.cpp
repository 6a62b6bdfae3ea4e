#include "described_widgets.h"

#include "button_row.h"
#include "control_classes.h"
#include "texts.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QSlider>
#include <QSplitter>
#include <QStackedWidget>
#include <QToolButton>

namespace kelvo {

namespace {

struct WidgetClass
{
    QLatin1String name;
    QWidget *(*make)(QWidget *parent);
};

template <typename Widget>
QWidget *makeWidget(QWidget *parent)
{
    return new Widget(parent);
}

// Which way it lies is a property of the description.
QWidget *makeLine(QWidget *parent)
{
    auto *line = new QFrame(parent);
    line->setFrameStyle(QFrame::HLine | QFrame::Sunken);
    return line;
}

// What is no control of ours. Qt's combo box, spin boxes and item views are not among
// them: their changes cannot be told from the user's.
constexpr WidgetClass classes[] = {
    {QLatin1String("ButtonRow"), makeWidget<ButtonRow>},
    {QLatin1String("QWidget"), makeWidget<QWidget>},
    {QLatin1String("QFrame"), makeWidget<QFrame>},
    {QLatin1String("Line"), makeLine},
    {QLatin1String("QLabel"), makeWidget<QLabel>},
    {QLatin1String("QPushButton"), makeWidget<QPushButton>},
    {QLatin1String("QToolButton"), makeWidget<QToolButton>},
    {QLatin1String("QCheckBox"), makeWidget<QCheckBox>},
    {QLatin1String("QRadioButton"), makeWidget<QRadioButton>},
    {QLatin1String("QLineEdit"), makeWidget<QLineEdit>},
    {QLatin1String("QPlainTextEdit"), makeWidget<QPlainTextEdit>},
    {QLatin1String("QSlider"), makeWidget<QSlider>},
    {QLatin1String("QGroupBox"), makeWidget<QGroupBox>},
    {QLatin1String("QScrollArea"), makeWidget<QScrollArea>},
    {QLatin1String("QStackedWidget"), makeWidget<QStackedWidget>},
    {QLatin1String("QProgressBar"), makeWidget<QProgressBar>},
    {QLatin1String("QSplitter"), makeWidget<QSplitter>},
};

QStringList knownClasses()
{
    QStringList names = controlClassNames();
    for (const WidgetClass &each : classes)
        names.append(each.name);
    return names;
}

QWidget *newWidget(const QString &className, QWidget *parent)
{
    for (const WidgetClass &each : classes) {
        if (each.name == className)
            return each.make(parent);
    }
    return makeControl(className, parent);
}

} // namespace

QWidget *DescribedWidgets::make(const QString &className, QWidget *parent, const QString &name)
{
    QWidget *widget = newWidget(className, parent);
    if (!widget) {
        m_problems.append(translate("Window", "“%1” is of the class “%2”; use one of %3")
                              .arg(name, className, knownClasses().join(QStringLiteral(", "))));
        return nullptr;
    }
    widget->setObjectName(name);
    m_made.append(widget);
    return widget;
}

} // namespace kelvo
