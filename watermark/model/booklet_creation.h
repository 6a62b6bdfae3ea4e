#pragma once

#include "booklet_settings.h"
#include "bundle.h"
#include "device.h"
#include "menu.h"

#include <QSizeF>
#include <QString>

#include <cstdint>

// What the booklet dialog edits, and its rules.
namespace kelvo {

// Ticket values, as BookletSettings has them.
struct _BookletCreationParams // NOLINT(bugprone-reserved-identifier): the dialog's own name
{
    CFBundleRef bundle = nullptr;
    std::int32_t fold = 0; // "KVFold"; what is no booklet's fold is none
    std::int32_t booklet = 0;
    std::int32_t pageBorders = 0;
    std::int32_t newSize = 0;
    std::int32_t gutter = 0;
    std::int32_t creep = 0;
};

// Both ways but for the bundle.
_BookletCreationParams paramsOf(const BookletSettings &booklet, std::int32_t fold);
BookletSettings bookletOf(const _BookletCreationParams &params);

// Whether the device folds booklets, so that the dialog asks.
bool offersBookletFold(const Device &device);

// "Off", then the sizes of paper that the job can have.
Menu newSizeMenu(const Device &device);

// The size of that paper in points; empty for none and for one that the device does not have.
QSizeF sizeOfPaper(const Device &device, std::int32_t size);

// What becomes of the sheets.
QString bookletPicture(const _BookletCreationParams &params);

} // namespace kelvo
