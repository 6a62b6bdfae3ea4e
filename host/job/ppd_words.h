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

// The option has the choice, or it is a custom page size within the PPD's limits.
// Of equipment a job can only ask for what the printer has.
bool offers(const PpdFile &ppd, const QString &keyword, const QString &choice);
// The choice asks for something that this device cannot do. "None" and "False" of
// an option that it does not have at all ask for nothing. Without a PPD a queue is
// told the paper, and no other choice.
bool lacks(const PpdFile *ppd, const QString &keyword, const QString &choice);

// Why a choice of the ticket is not sent: what this device lacks, or all of it where the
// queue has no PPD.
QString whyNotSent(const PpdFile *ppd);

// The PPD says that its device reads tickets of our format; null does not.
bool readsTickets(const PpdFile *ppd);

// Equipment that the queue's administrator describes; jobs do not change it.
bool isEquipment(const PpdOption &option, const PpdFile &ppd);

} // namespace kelvo
