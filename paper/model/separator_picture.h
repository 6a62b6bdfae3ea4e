#pragma once

#include <QString>

#include <cstdint>

namespace kelvo {

// The picture of the separators dialog. `separators` is
// a value of "KVSlipSheetPrint", the colour one of "MediaColor": a separator is a
// sheet of paper, so that clear and unknown colours show white.
QString separatorPicture(std::int32_t separators, std::int32_t color);

} // namespace kelvo
