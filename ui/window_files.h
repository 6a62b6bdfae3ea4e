#pragma once

#include "result.h"

#include <QByteArray>
#include <QString>

#include <functional>

class QWidget;

namespace kelvo {

// Makes a widget of a class with a name, or tells why not and gives null.
using WidgetMaker =
    std::function<QWidget *(const QString &className, QWidget *parent, const QString &name)>;

// What libkelvo_window_files.so has: it reads .ui files, with a library of Qt's that brings OpenGL.
// Descriptions that the build has compiled do not need it.
class WindowFiles
{
public:
    // The window of `description`, a .ui file's bytes, with its widgets from `make`; texts as they
    // stand there, files that it names looked up from `folder`. Damaged, with the place, where it
    // is no description, and where `make` does not make the outermost widget.
    virtual Result<QWidget *> load(const QByteArray &description, const QString &folder,
                                   const WidgetMaker &make, QWidget *parent) const = 0;

protected:
    ~WindowFiles() = default; // lives in its library
};

// The library's entry, a PartEntry (part_library.h).
inline constexpr char windowFilesEntry[] = "kelvoWindowFiles";

} // namespace kelvo
