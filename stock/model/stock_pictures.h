#pragma once

#include "stock.h"

#include <QString>
#include <QStringList>

namespace kelvo {

// The pictures that make up a stock's icon, the lowest first: the sheet in its
// colour, then what marks the type. Names as the bundle has them ("….gif").
QStringList stockPictures(const Stock &stock);

// "Blue" for a "MediaColor" value that has a picture of its own, else "White".
QString stockColorWord(std::int32_t color);

} // namespace kelvo
