#include "panel_table.h"

#include <cstdio>
#include <memory>
#include <variant>

namespace kelvo {

const char *const PanelInterfaces[] = {
    "GetPaperOutputPanelInterface",
    "GetImageOptionsPanelInterface",
    "GetBookletWatermarkPanelInterface",
    "GetAdvancedPanelInterface",
    nullptr,
};

namespace {

bool isComplete(const PanelOperations &operations)
{
    return operations.Prologue && operations.Initialize && operations.Sync
        && operations.GetSummaryText && operations.Open && operations.Close && operations.Terminate;
}

// "GetAdvancedPanelInterface" → "Advanced"; any other name as it is.
QString panelNameOf(const QString &getter)
{
    constexpr QLatin1String head("Get"), tail("PanelInterface");
    if (!getter.startsWith(head) || !getter.endsWith(tail)
        || getter.size() <= head.size() + tail.size())
        return getter;
    return getter.mid(head.size(), getter.size() - head.size() - tail.size());
}

// A getter's interface has no Release of its own: whoever loads the panel copies
// the slots and frees the object and its table.
PanelOperations takeOperations(PanelInterface *interface)
{
    const std::unique_ptr<PanelInterface> object(interface);
    const std::unique_ptr<PanelOperations> table(interface->table);
    PanelOperations operations = table ? *table : PanelOperations{};
    operations.Retain = nullptr;
    operations.Release = nullptr;
    operations.GetAPIVersion = nullptr;
    return operations;
}

// The panel behind one getter, without its tab index; or why there is none.
std::variant<PanelRecord, QString> loadPanel(CFBundleRef bundle, const char *getterName)
{
    const auto getter = reinterpret_cast<PanelInterfaceGetter>(
        CFBundleGetFunctionPointerForName(bundle, getterName));
    if (!getter) {
        const QString reason = bundle->loadError();
        return reason.isEmpty() ? QStringLiteral("the module has no such function") : reason;
    }

    PanelInterface *interface = nullptr;
    const OSStatus got = getter(&interface);
    if (!interface)
        return QStringLiteral("it gave no interface (%1)").arg(got);
    PanelRecord record;
    record.operations = takeOperations(interface);
    if (got != noErr)
        return QStringLiteral("it failed (%1)").arg(got);
    if (!isComplete(record.operations))
        return QStringLiteral("its interface lacks an operation");

    // The shell speaks to the dialog for all panels: their creators and sizes
    // are asked for and not used.
    OSType creator = 0;
    CFStringRef kind = nullptr;
    CFStringRef title = nullptr;
    std::uint32_t maxH = 0;
    std::uint32_t maxV = 0;
    const OSStatus status =
        record.operations.Prologue(&record.context, &creator, &kind, &title, &maxH, &maxV);
    if (status != noErr)
        return QStringLiteral("its panel's Prologue failed (%1)").arg(status);
    record.name = panelNameOf(QString::fromUtf8(getterName));
    record.title = title ? *title : QString::fromUtf8(getterName);
    record.kind = kind ? *kind : QString();
    return record;
}

} // namespace

void LoadBuiltInPanels(CFBundleRef bundle, std::vector<PanelRecord> &panels,
                       const char *const *getters)
{
    if (!bundle)
        return;
    for (std::int32_t place = 0; getters[place]; ++place) {
        std::variant<PanelRecord, QString> loaded = loadPanel(bundle, getters[place]);
        if (const QString *reason = std::get_if<QString>(&loaded)) {
            std::fprintf(stderr, "LoadBuiltInPanels() skipped %s: %s.\n", getters[place],
                         qPrintable(*reason));
            continue;
        }
        panels.push_back(std::get<PanelRecord>(std::move(loaded)));
        panels.back().tabIndex = place + 1;
    }
}

} // namespace kelvo
