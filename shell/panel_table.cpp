#include "panel_table.h"

#include "panel_interface.h"
#include "terminal.h"

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

// The panel behind one getter, without its tab index; or why there is none. A module that was
// built without the panel has no getter, and that is nothing to tell at every job.
std::variant<PanelRecord, QString> loadPanel(Bundle &bundle, const QString &getter)
{
    const auto operations = findPanelOperations(bundle, getter);
    if (!operations)
        return operations.error().code == Error::Code::NotFound ? QString()
                                                                : operations.error().detail;
    PanelRecord record;
    record.operations = operations.value();

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
    record.name = panelNameOf(getter);
    record.title = title ? *title : getter;
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
        std::variant<PanelRecord, QString> loaded =
            loadPanel(*bundle, QString::fromLatin1(getters[place]));
        if (const QString *reason = std::get_if<QString>(&loaded)) {
            if (!reason->isEmpty())
                printLine(stderr,
                          QStringLiteral("LoadBuiltInPanels() skipped %1: %2.")
                              .arg(QLatin1String(getters[place]), *reason));
            continue;
        }
        panels.push_back(std::get<PanelRecord>(std::move(loaded)));
        panels.back().tabIndex = place + 1;
    }
}

} // namespace kelvo
