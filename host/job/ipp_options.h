#pragma once

#include <QString>
#include <QStringList>

// How the settings of a job are called over IPP, and in PPDs. A printer that describes itself
// gets a PPD with these options (host/delivery/ipp_ppd.h), so that whoever knows PPDs knows it.
namespace kelvo {

class PpdFile;

// The PPD was made by us of what a printer says over IPP. The code of each choice is what the
// printer is told, and ippAttributeOf() says by which attribute. Null is not.
bool isMadeOfIpp(const PpdFile *ppd);
// That printer stands behind a queue without a PPD, and was asked itself. The print server knows
// nothing of its settings and hands on what it is told, but for collections, of which it hands on
// only those that come as texts.
bool isBehindQueue(const PpdFile &ppd);

// The PPD option that says the same as an IPP attribute of a job ("sides": "Duplex"); empty
// where there is none, and for "finishings", which several options share.
QString optionOfIpp(const QString &attribute);
// "Duplex": "sides", "StapleLocation": "finishings"; empty for an option that IPP does not have.
QString ippAttributeOf(const QString &option);
// All that optionOfIpp() and "finishings" stand for, in the order in which a panel shows them.
QStringList ippAttributes();
// The options of "finishings"; each has "None".
QStringList finishingOptions();

// A value of that attribute as a choice of the option for it: "two-sided-long-edge" of "sides" is
// "DuplexNoTumble", "tray-1" of "media-source" is "Tray1". Enumerations stand as their keywords.
QString choiceOfIpp(const QString &attribute, const QString &value);
// The option that has the finishing "staple-top-left".
QString optionOfFinishing(const QString &keyword);

} // namespace kelvo
