#pragma once

#include "event.h"

#include <QStringList>
#include <QWidget>

// Hears all events that reach a widget and writes each as one line,
// "KPDE 102 Command 'Edit' 7" (command and reference only where there are any).
class EventLog
{
public:
    explicit EventLog(QWidget *target)
        : m_handler(kelvo::installEventHandler(target, [this](const kelvo::Event &event) {
            m_lines.append(lineFor(event));
            return kelvo::eventNotHandledErr;
        }))
    {
    }

    // What came since the last call.
    QStringList take() { return std::exchange(m_lines, {}); }

private:
    static QString lineFor(const kelvo::Event &event)
    {
        static const char *const kinds[] = {"ControlHit",    "Command",      "Menu",
                                            "TextChanged",   "FocusChanged", "ListSelection",
                                            "ListActivated", "Custom"};
        QString line = QString::fromLatin1(kinds[static_cast<int>(event.kind)]);
        if (event.kind == kelvo::EventKind::ListSelection
            || event.kind == kelvo::EventKind::ListActivated)
            line += QStringLiteral(" row %1").arg(event.row);
        if (event.command != kelvo::kNoCommand)
            line += QStringLiteral(" '%1'").arg(kelvo::charactersOf(event.command));
        if (event.reference != 0)
            line += QStringLiteral(" %1").arg(event.reference);
        return line;
    }

    QStringList m_lines;
    kelvo::EventHandlerRef m_handler;
};
