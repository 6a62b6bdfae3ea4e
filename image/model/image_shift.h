#pragma once

#include "setting_map.h"
#include "values.h"

#include <cstdint>
#include <optional>

class QWidget;

// Moving the printed image on the sheet, as exception pages and tab stock do.
namespace kelvo {

// Shifts are inches or, when `inches` is false, millimetres.
//
// Dictionary form:
//   Option           integer  missing: not set
//   Inches           integer  1 or 0; missing: 1
//   X1, X2, Y1, Y2   integer  shift times 25.4 (inches, rounded) or times 10; missing: 0
//   FullPrecision    boolean  true; without it the shifts stand as they are
struct _IS_Options // NOLINT(bugprone-reserved-identifier): the name of the format
{
    std::int32_t valid = 0; // 1 once initialised or read
    std::int32_t second = 0;
    std::int32_t reserved = 0;
    std::int32_t option = kUnset; // no shift
    std::int32_t unnamed = 0;
    bool inches = true;
    std::int32_t x1 = 0, x2 = 0; // front side, back side, along the width
    std::int32_t y1 = 0, y2 = 0; // the same along the length

    friend bool operator==(const _IS_Options &, const _IS_Options &) = default;
};

// What a window that edits image shift works with.
struct ImageShiftContext
{
    CFBundleRef bundle = nullptr;
    _IS_Options *options = nullptr;
    QWidget *controls[3] = {};
};

// No shift, in inches. `context`, where there is one, takes bundle and options
// and begins without controls.
void ImageShiftInitialize(CFBundleRef bundle, ImageShiftContext *context, _IS_Options *options);

// Nothing happens for null options; shifts beyond 32 bits count as missing.
void ImageShiftSetOptionsFromTicket(_IS_Options *options, const Dictionary &dictionary);
// None for options that are not valid or have no shift. The context changes
// nothing: every one has the same form.
std::optional<Dictionary> ImageShiftCreateTicketFromOptions(const _IS_Options *options,
                                                            JobContext jobContext);

} // namespace kelvo
