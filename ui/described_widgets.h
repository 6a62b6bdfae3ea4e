#pragma once

#include <QStringList>
#include <QWidgetList>

namespace kelvo {

// The widgets of one description, while a window is made of it. A description may hold the controls
// of this library (control_classes.h), ButtonRow, and of Qt's own what window_loader.h names.
class DescribedWidgets
{
public:
    // A widget of that class; null, and a problem, for one that no description may hold.
    QWidget *make(const QString &className, QWidget *parent, const QString &name);

    // What make() made, in that order: without the parts of those.
    const QWidgetList &made() const { return m_made; }
    // Sentences for whoever wrote the description.
    QStringList &problems() { return m_problems; }

private:
    QWidgetList m_made;
    QStringList m_problems;
};

} // namespace kelvo
