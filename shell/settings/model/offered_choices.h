#pragma once

#include "menu.h"

#include <QString>
#include <QStringList>

#include <cstdint>

// What the panels offer of a PPD option: what the device can do. A choice that only
// clashes with another setting is offered, because the job may have another setting
// than the PPD's default; which of the two gives way is asked when they are chosen.
namespace kelvo {

class PpdFile;

// The PPD has the choice, and the equipment that is fitted does not rule it out. A
// ticket value stands for the first choice that MainKeywordMap has for it.
bool isOffered(const PpdFile *ppd, const QString &option, const QString &choice);
bool isOffered(const PpdFile *ppd, const QString &option, std::int32_t ticketValue);

// PPDPopulateMenuWithChoices with what is offered, whatever the other settings are.
int PopulateMenuWithOfferedChoices(Menu &menu, const PpdFile *ppd, const QString &option,
                                   OSType command, const QStringList &readByName = {});

// Takes out of a menu that was filled from a map what is not offered of `option`.
void removeWhatIsNotOffered(Menu &menu, const PpdFile *ppd, const QString &option);

} // namespace kelvo
