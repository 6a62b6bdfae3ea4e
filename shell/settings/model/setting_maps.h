#pragma once

#include "setting_map.h"

// The maps of all panels and dialogs, each ended by kEndOfMap, rows in menu
// order. They are defined in setting_maps.cpp. The spellings
// OPISubsitutionMap and "WatermarmPrintOnPage1Only" are those of tickets and
// string tables in use.
namespace kelvo {

extern const SettingMap OnOffMap[];
extern const SettingMap OPIPrescanMap[];
extern const SettingMap OPISubsitutionMap[];
extern const SettingMap PrinterEmulationMap[];
extern const SettingMap OutputOptionsMap[];
extern const SettingMap RotateImageMap[];
extern const SettingMap BookletLayoutOrderMap[];
extern const SettingMap CoverOptionMap[];
extern const SettingMap InsertOptionMap[];
extern const SettingMap BookletWatermarkBackgroundFormsMap[];
extern const SettingMap PageBordersMap[];
extern const SettingMap EnabledDisabledMap[];
extern const SettingMap WatermarkOptionsMap[];
extern const SettingMap WatermarkMap[];
extern const SettingMap FaxResolutionMap[];
extern const SettingMap FaxSendSpeedMap[];
extern const SettingMap ConfirmationSheetMap[];
extern const SettingMap CoverSheetMap[];
extern const SettingMap CoverSheetRecipientMap[];
extern const SettingMap CoverSheetSenderMap[];
extern const SettingMap CoverSheetImageMap[];
extern const SettingMap TabStockSetupMap[];
extern const SettingMap TabStockRadioMap[];
extern const SettingMap SavedJobSaveOptionRadioMap[];
extern const SettingMap FolderNameMap[];
extern const SettingMap JobNameMap[];
extern const SettingMap SavedJobNameMap[]; // the saved-job dialog's own copy of JobNameMap
extern const SettingMap LoginNameMap[];
extern const SettingMap FaxCoverSizeMap[];
extern const SettingMap SeparatorOptionMap[];
extern const SettingMap JobTypeMap[];
extern const SettingMap ResolutionMap[];
extern const SettingMap PlexMap[];
inline constexpr std::int32_t kPlexSimplex = 1, kPlexDuplex = 2, kPlexDuplexShort = 3;
extern const SettingMap CoverSidesImagedMap[];

} // namespace kelvo
