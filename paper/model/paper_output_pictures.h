#pragma once

#include "paper_output_settings.h"

#include <QString>
#include <QStringList>

// The pictures of the panel's icons, as the bundle names them ("….gif"); empty
// where nothing is drawn.
namespace kelvo {

QString jobTypePicture(std::int32_t jobType);
QString duplexPicture(const PaperOutputSettings &settings);
QString staplePicture(const Finishing &finishing);
// That with the job's holes upon it; empty without staple.
QStringList staplePictures(const Finishing &finishing);
QString punchPicture(std::int32_t punch);
QString colorModePicture(std::int32_t colorMode);
// All finishing in one: a fold decides alone, then staples with holes, then holes.
// Two holes show three here; the icon beside the hole punch menu shows two.
QString finishingPicture(const PaperOutputSettings &settings);

} // namespace kelvo
