#pragma once

#include "device.h"
#include "watermark_editor.h"

#include <QSizeF>
#include <QString>
#include <QStringList>

#include <optional>

class QWidget;

// What a menu of stored watermarks, or of cover images, does with its store.
namespace kelvo {

struct StoredWatermarks
{
    Device device;
    WatermarkEditing editing; // of which store, and how
    QSizeF paper;             // that the editor shows them on, in points
    QWidget *parent = nullptr;
    // Texts; %1 is what is deleted, and why nothing was saved.
    QString deleteHeader, deleteMessage, notSavedHeader, notSavedMessage;
};

// What the menu shows then.
struct ChosenWatermark
{
    QStringList names; // as they are stored
    QString name;      // the chosen one; empty: none
};

// Each runs until what was made is stored, or nobody wants it any more; none then. What cannot
// be stored is said, and edited again.
std::optional<ChosenWatermark> makeWatermark(const StoredWatermarks &stored);
// None also where the store lacks it.
std::optional<ChosenWatermark> editWatermark(const StoredWatermarks &stored, const QString &name);
// Asks before.
std::optional<ChosenWatermark> removeWatermark(const StoredWatermarks &stored, const QString &name);

} // namespace kelvo
