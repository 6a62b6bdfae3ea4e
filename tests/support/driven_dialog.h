#pragma once

#include "control.h"
#include "event.h"
#include "plugin_abi.h"
#include "print_session.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QPushButton>
#include <QUuid>
#include <QVBoxLayout>
#include <QWidget>

#include <algorithm>
#include <memory>

// A window that drives a shell as a print dialog does, by the plug-in's factory.
class DrivenDialog
{
public:
    DrivenDialog(kelvo::PlugInFactoryFunction factory, const QString &ppd)
    {
        auto *layout = new QVBoxLayout(&window);
        layout->addWidget(pane);
        layout->addWidget(print);
        layout->addWidget(cancel);
        kelvo::setWindowButtons(&window, print, cancel);
        kelvo::sendControlEvents(print);
        kelvo::sendControlEvents(cancel);
        session.setPrinter({QStringLiteral("Hall-3"), ppd});

        kelvo::PlugInInstance *plugIn =
            factory(nullptr, QUuid::fromString(QLatin1String(kelvo::kPDEPlugInTypeUUID)));
        void *found = nullptr;
        plugIn->table->QueryInterface(
            plugIn, QUuid::fromString(QLatin1String(kelvo::kPDEInterfaceUUID)), &found);
        interface = static_cast<kelvo::PanelInterface *>(found);
        plugIn->table->Release(plugIn);
    }

    ~DrivenDialog()
    {
        terminate();
        interface->table->Release(&interface);
    }

    DrivenDialog(const DrivenDialog &) = delete;
    DrivenDialog &operator=(const DrivenDialog &) = delete;

    kelvo::OSStatus prologue()
    {
        kelvo::OSType creator = 0;
        kelvo::CFStringRef kind = nullptr;
        return interface->table->Prologue(&context, &creator, &kind, &title, &maxH, &maxV);
    }
    kelvo::OSStatus initialize()
    {
        std::uint32_t flags = 0;
        return interface->table->Initialize(context, &flags, nullptr, pane, &session);
    }
    kelvo::OSStatus open() { return interface->table->Open(context); }
    kelvo::OSStatus close() { return interface->table->Close(context); }
    kelvo::OSStatus sync(kelvo::SyncDirection direction)
    {
        return interface->table->Sync(context, &session, direction);
    }
    void terminate()
    {
        if (context)
            interface->table->Terminate(context, kelvo::noErr);
        context = nullptr;
    }
    // Up and in front, with the panels of all tabs built; false when a step failed.
    bool begin()
    {
        const bool up =
            prologue() == kelvo::noErr && initialize() == kelvo::noErr && open() == kelvo::noErr;
        window.show();
        // Those of hidden tabs come after the first frame.
        const auto panes = pane->findChildren<QWidget *>();
        const auto areBuilt = [&panes] {
            return std::all_of(panes.cbegin(), panes.cend(), [](const QWidget *each) {
                const auto id = kelvo::controlIDOf(each);
                return !id || id->signature != kelvo::kUserPaneSignature || each->layout();
            });
        };
        constexpr qint64 longestWaitMs = 5000;
        QElapsedTimer waited;
        waited.start();
        while (up && !areBuilt() && waited.elapsed() < longestWaitMs)
            QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
        return up && areBuilt();
    }

    template <typename T>
    T *find(kelvo::OSType signature, std::int32_t number)
    {
        return kelvo::findControl<T>(&window, {signature, number});
    }

    QWidget window;
    QWidget *pane = new QWidget;
    QPushButton *print = new QPushButton(QStringLiteral("Print"));
    QPushButton *cancel = new QPushButton(QStringLiteral("Cancel"));
    kelvo::PrintSession session;
    kelvo::PanelInterface *interface = nullptr;
    kelvo::PMPDEContext context = nullptr;
    kelvo::CFStringRef title = nullptr;
    std::uint32_t maxH = 0, maxV = 0;
};
