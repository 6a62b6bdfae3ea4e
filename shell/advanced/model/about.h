#pragma once

#include "device.h"
#include "used_libraries.h"

#include <QString>

#include <vector>

// What the About box tells the user, and whoever helps the user.
namespace kelvo {

// A fact and how it is called; what is not known has no line.
struct AboutLine
{
    const char *key; // of its name in "Localizable", with a colon
    QString value;   // plain text on one line
};

inline constexpr char kAboutPanels[] = "About Panels:";
inline constexpr char kAboutProgram[] = "About Program:";
inline constexpr char kAboutDevice[] = "About Device:";
inline constexpr char kAboutPrinter[] = "About Printer:";
inline constexpr char kAboutPpd[] = "About PPD:";
inline constexpr char kAboutFitted[] = "About Fitted:";
inline constexpr char kAboutPaperTrays[] = "About Paper Trays:";
inline constexpr char kAboutOutputTrays[] = "About Output Trays:";

// The panels of the device's bundle, and the program that has loaded them: they can be of
// different versions. The program is what the application object is called.
std::vector<AboutLine> aboutVersions(const Device &device);

// The device and what is fitted to it, in the words of its PPD. `printer` is the queue, or
// the device's own name where there is none.
std::vector<AboutLine> aboutDevice(const Device &device, const QString &printer);

// What it runs on. `windowSystem` is Qt's name of it ("xcb").
std::vector<AboutLine> aboutSystem(const QString &windowSystem);

// "Device: Kelvo Corvane C90", a line each.
QString aboutText(const Device &device, const std::vector<AboutLine> &lines);

// "Qt 6.4.2 – LGPL-3.0-only – The Qt Company", a line each.
QString aboutLibraries(const Device &device, const LibraryVersions &versions);

} // namespace kelvo
