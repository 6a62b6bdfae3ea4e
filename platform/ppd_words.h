#pragma once

#include "ppd_file.h"

#include <QString>

// Options and choices as the PPD calls them for people: plain text on one line,
// the keyword where the PPD has no text.
namespace kelvo {

QString optionWords(const PpdOption &option);
QString choiceWords(const PpdOption &option, const QString &choice);

// "Stapling: Top Left".
QString settingWords(const PpdOption &option, const QString &choice);

// The same by keyword; only the keywords where the PPD, or it, is missing.
QString settingWords(const QString &keyword, const QString &choice, const PpdFile *ppd);

// The PPD says that its device reads tickets of our format; null does not.
bool readsTickets(const PpdFile *ppd);

// Equipment that the queue's administrator describes; jobs do not change it.
bool isEquipment(const PpdOption &option, const PpdFile &ppd);

} // namespace kelvo
