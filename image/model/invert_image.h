#pragma once

#include "status.h"
#include "ticket.h"
#include "values.h"

// Printing a page as its negative or its mirror image:
// com.kelvo.print.InvertImageOptions, a dictionary.
namespace kelvo {

// Dictionary form:
//   NegativeImage   integer  1 or 0; missing: 0
//   MirrorImage     integer  1 or 0; missing: 0
struct II_Options
{
    bool valid = false; // true once initialised or read
    bool negative = false;
    bool mirror = false;

    friend bool operator==(const II_Options &, const II_Options &) = default;
};

// Any number but 0 is true. Nothing happens for null options.
void InvertImageSetOptionsFromTicket(II_Options *options, const Dictionary &dictionary);
// Empty for null options.
Dictionary InvertImageCreateTicketFromOptions(const II_Options *options);

// The entry, and the flags in it. Where there is none, nothing is inverted.
QString invertImageKey();
void readInvertImage(II_Options &options, const Ticket &printSettings);
OSStatus writeInvertImage(const II_Options &options, Ticket &printSettings); // setValue's

} // namespace kelvo
