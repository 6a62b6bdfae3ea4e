#pragma once

#include "values.h"

// Printing a page as its negative or its mirror image.
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

} // namespace kelvo
