#include "setting_map.h"

#include "device.h"

#include <algorithm>

namespace kelvo {

namespace {

bool isOffered(const SettingMap &row, const InstalledOptions &installed)
{
    return !row.requiredFeature || installed.has(row.requiredFeature) == row.requiredState;
}

// The row that answers for `value`; null when that is the terminator.
const SettingMap *findRow(const InstalledOptions &installed, const SettingMap *map,
                          std::int32_t value)
{
    if (!map)
        return nullptr;
    const SettingMap *row = map;
    while (row->ticketValue != 0) {
        if (row->ticketValue == value && isOffered(*row, installed))
            return row;
        ++row;
    }
    return row->localizedKey ? row : nullptr;
}

QString labelOf(const SettingMap &row, const Device &device, JobContext jobContext)
{
    return device.text(row.ticketValue == kUnset ? notSetKey(jobContext) : row.localizedKey);
}

} // namespace

int CountMaps(const SettingMap *map)
{
    int count = 0;
    while (map && map[count].localizedKey)
        ++count;
    return count;
}

std::int32_t UIToTicket(const SettingMap *map, int index)
{
    return map[index - 1].ticketValue;
}

int TicketToUI(const SettingMap *map, std::int32_t value)
{
    const SettingMap *row = findRow(installedOptions(), map, value);
    return row ? static_cast<int>(row - map) + 1 : -1;
}

const char *LocalizedKeyForTicketValue(const SettingMap *map, std::int32_t value)
{
    const SettingMap *row = findRow(installedOptions(), map, value);
    return row ? row->localizedKey : nullptr;
}

QString textOfValue(const Device &device, const SettingMap *map, std::int32_t value)
{
    const SettingMap *row = findRow(device.installed, map, value);
    return row ? device.text(row->localizedKey) : QString();
}

const char *keyOfValue(const SettingMap *map, std::int32_t value)
{
    for (const SettingMap *row = map; row && row->localizedKey; ++row) {
        if (row->ticketValue == value)
            return row->localizedKey;
    }
    return nullptr;
}

std::int16_t PopulateMenuFromMap(const Device &device, Menu &menu, const SettingMap *map,
                                 JobContext jobContext, OSType commandOverride)
{
    const int count = CountMaps(map);
    for (int i = 0; i < count; ++i) {
        const SettingMap &row = map[i];
        if (!isOffered(row, device.installed))
            continue;
        MenuItem item;
        item.text = labelOf(row, device, jobContext);
        item.key = QString::fromUtf8(row.localizedKey);
        item.command = commandOverride != kNoCommand ? commandOverride : row.commandID;
        item.reference = row.ticketValue;
        item.divider = item.key == QLatin1String("-");
        menu.items.push_back(std::move(item));
    }
    menu.reference = map;
    return static_cast<std::int16_t>(
        std::min<int>(count, std::numeric_limits<std::int16_t>::max()));
}

std::int16_t PopulateMenuFromMap(CFBundleRef bundle, Menu &menu, const SettingMap *map,
                                 JobContext jobContext, OSType commandOverride)
{
    return PopulateMenuFromMap(currentDevice(bundle), menu, map, jobContext, commandOverride);
}

} // namespace kelvo
