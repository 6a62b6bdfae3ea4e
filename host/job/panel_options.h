#pragma once

#include "menu.h"
#include "ticket.h"

#include <QString>
#include <QStringList>

#include <vector>

// What the host's own panel offers of a printer that no bundle has panels for: the options of its
// PPD, in sections, without equipment and what the left column has.
namespace kelvo {

class PpdFile;

struct PanelOption
{
    QString keyword;
    QString label; // as the PPD calls it
    // The choices that the fitted equipment allows, in the PPD's order; keys are their keywords,
    // references their places.
    Menu menu;
    QString defaultChoice;
    bool isFixed = false; // by the equipment: one choice is left, or none
};

struct PanelSection
{
    QString title; // plain text
    std::vector<PanelOption> options;
};

// First what most printers have and most jobs set, in an order that is the same for all, then the
// groups as the PPD has them. Options with one choice are left out, and so are empty groups.
std::vector<PanelSection> panelSections(const PpdFile &ppd);

// The menu's line, from 1, for what `choices` say of the option: 0 for a choice that is not
// offered.
int chosenLine(const PanelOption &option, const PPDDictionary &choices);

} // namespace kelvo
