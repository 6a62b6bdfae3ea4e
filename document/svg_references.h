#pragma once

#include <QByteArray>

#include <optional>

namespace kelvo {

// A drawing that names nothing outside itself.
struct ClosedSvg
{
    QByteArray bytes;
    int leftOut = 0; // files that it would have shown or been styled by
};

// `svg` without its references to anything but its own parts ("#name") and pictures that
// it holds ("data:"); a drawing that it holds is treated alike. Nothing where it is no
// XML, or drawings hold drawings too deep to be meant.
std::optional<ClosedSvg> withoutReferences(const QByteArray &svg);

} // namespace kelvo
