#pragma once

#include "device.h"

#include <QStringList>

namespace kelvo {

// The pictures that make up a device with what is fitted to it, the lowest first, as the
// bundle names them: the parts that one sees from across the room.
QStringList devicePictures(const Device &device);

} // namespace kelvo
