#include "panel_interface.h"

#include "texts.h"

namespace kelvo {

namespace {

PanelOperations withoutFirstThree(PanelOperations operations)
{
    operations.Retain = nullptr;
    operations.Release = nullptr;
    operations.GetAPIVersion = nullptr;
    return operations;
}

// Built-in panels have no Release: whoever loads them frees object and table.
void release(PanelInterface *interface)
{
    if (interface->table && interface->table->Release) {
        interface->table->Release(&interface);
        return;
    }
    delete interface->table;
    delete interface;
}

} // namespace

PanelInterface *makePanelInterface(const PanelOperations &operations)
{
    return new PanelInterface{new PanelOperations(withoutFirstThree(operations)), 1};
}

OSStatus givePanelInterface(const PanelOperations &operations, PanelInterface **interface)
{
    if (!interface)
        return paramErr;
    *interface = makePanelInterface(operations);
    return noErr;
}

bool isComplete(const PanelOperations &operations)
{
    return operations.Prologue && operations.Initialize && operations.Sync
        && operations.GetSummaryText && operations.Open && operations.Close && operations.Terminate;
}

Result<PanelOperations> findPanelOperations(Bundle &bundle, const QString &getter)
{
    const auto get =
        reinterpret_cast<PanelInterfaceGetter>(bundle.findFunction(getter.toLatin1().constData()));
    if (!get) {
        const QString reason = bundle.loadError();
        if (!reason.isEmpty())
            return Error{Error::Code::Refused, getter, reason};
        return Error{Error::Code::NotFound, getter,
                     translate("Panels", "the module has no such function")};
    }
    PanelInterface *interface = nullptr;
    const OSStatus status = get(&interface);
    if (!interface)
        return Error{Error::Code::Refused, getter,
                     translate("Panels", "it gave no interface (%1)").arg(status)};
    const PanelOperations operations = interface->table ? *interface->table : PanelOperations{};
    release(interface);
    if (status != noErr)
        return Error{Error::Code::Refused, getter,
                     translate("Panels", "it failed (%1)").arg(status)};
    if (!isComplete(operations))
        return Error{Error::Code::Damaged, getter,
                     translate("Panels", "its interface lacks an operation")};
    return withoutFirstThree(operations);
}

QString panelNameOf(const QString &getter)
{
    constexpr QLatin1String head("Get"), tail("PanelInterface");
    if (!getter.startsWith(head) || !getter.endsWith(tail)
        || getter.size() <= head.size() + tail.size())
        return getter;
    return getter.mid(head.size(), getter.size() - head.size() - tail.size());
}

} // namespace kelvo
