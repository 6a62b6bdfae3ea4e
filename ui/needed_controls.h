#pragma once

#include "control.h"

#include <QStringList>

namespace kelvo {

// Finds the controls that code cannot do without in a window that was made of a
// description, and remembers which of them it lacks: a description may be damaged,
// or of another version.
class NeededControls
{
public:
    explicit NeededControls(const QWidget *window)
        : m_window(window)
    {
    }

    // As findControl() does; one of another class is missing as well.
    template <typename T = QWidget>
    T *find(ControlID id)
    {
        T *control = findControl<T>(m_window, id);
        if (!control && !m_missing.contains(textOf(id)))
            m_missing.append(textOf(id));
        return control;
    }

    // "KPDE 102", in the order in which they were looked for; empty when all were found.
    const QStringList &missing() const { return m_missing; }

private:
    const QWidget *m_window;
    QStringList m_missing;
};

} // namespace kelvo
