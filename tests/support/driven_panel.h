#pragma once

#include "control.h"
#include "device_session.h"
#include "panel_interface.h"

#include <QTest>
#include <QWidget>

// A panel, by its getter, on a sample device, driven as a print dialog does.
class DrivenPanel
{
public:
    DrivenPanel(kelvo::PanelInterfaceGetter getter, const QString &device)
        : session(device)
    {
        kelvo::PanelInterface *interface = nullptr;
        getter(&interface);
        operations = *interface->table;
        delete interface->table;
        delete interface;
        kelvo::CFStringRef itsKind = nullptr, itsTitle = nullptr;
        std::uint32_t width = 0, height = 0;
        operations.Prologue(&context, &creator, &itsKind, &itsTitle, &width, &height);
        kind = *itsKind;
        title = *itsTitle;
    }
    ~DrivenPanel() { end(); }
    DrivenPanel(const DrivenPanel &) = delete;
    DrivenPanel &operator=(const DrivenPanel &) = delete;

    kelvo::OSStatus initialize()
    {
        return operations.Initialize(context, nullptr, nullptr, &pane, &session.session);
    }
    void begin()
    {
        QCOMPARE(initialize(), kelvo::noErr);
        QCOMPARE(operations.Open(context), kelvo::noErr);
        pane.show();
    }
    void end()
    {
        if (context)
            operations.Terminate(context, kelvo::noErr);
        context = nullptr;
    }
    kelvo::OSStatus sync(std::int32_t direction)
    {
        return operations.Sync(context, &session.session, direction);
    }

    template <typename T = QWidget>
    T *find(std::int32_t number)
    {
        return kelvo::findControl<T>(&pane, {kelvo::kPanelSignature, number});
    }

    DeviceSession session;
    QWidget pane;
    kelvo::PanelOperations operations{};
    kelvo::PMPDEContext context = nullptr;
    kelvo::OSType creator = 0;
    QString kind, title;
};
