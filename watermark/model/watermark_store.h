#pragma once

#include "bundle.h"
#include "file_store.h"
#include "status.h"
#include "watermark_data.h"

#include <QStringList>

#include <functional>
#include <optional>

// The user's watermarks and cover images, each in a property list of the maker's folder
// (preferences.h), changed under its lock. A store has three kinds of entries:
//
//   "WatermarkListEntries"    array of strings: the names, in menu order
//   a watermark's name        dictionary: the record
//   a font's PostScript name  data: the font as a Type 42 program
//
// What was read is kept until the file is another one, without the fonts. Any thread.
//
// What cannot be written is said on standard error, with what to do.
namespace kelvo {

inline const QString kWatermarksFile = QStringLiteral("com.kelvo.printing.watermarks.plist");
inline const QString kFaxImagesFile = QStringLiteral("com.kelvo.printing.faximage.plist");
inline const QString kWatermarkListKey = QStringLiteral("WatermarkListEntries");

// The record under its name. Where there is no store it is begun with it; a damaged one is
// set aside first. Nothing is written that has no name, or that of the list.
void saveWatermarkData(const QString &fileName, const _WatermarkData &watermark);
// Copies what is stored under `name` into the record; false, and a record of zeros, where
// there is nothing. isText and the paper are left to the caller.
bool loadWatermarkData(const QString &fileName, const QString &name, _WatermarkData *watermark);
void removeWatermarkData(const QString &fileName, const QString &name);

// Replaces the list; null arguments do nothing.
void saveWatermarkList(const QString &fileName, const QStringList *names);
// Whether there is a list. Without a file `names` stays as it is, without a list it becomes
// empty; null arguments answer false. `addItem`, if any, is told each name.
bool loadWatermarkList(const QString &fileName, QStringList *names,
                       const std::function<void(const QString &)> &addItem = {});

// Only into a store that is there, and never in place of a watermark.
void storeFontData(const QString &fileName, const QString &fontName, const QByteArray &data);
// Appends the font's program, if there is one.
void loadFontData(const QString &fileName, const QString &fontName, QByteArray *data);
// Its size in bytes; none where the store does not have it.
std::optional<qint64> storedFontSize(const QString &fileName, const QString &fontName);

// The watermarks that a new user is given, where there is no list yet; 0.
OSStatus CreateDefaultWatermarks(CFBundleRef bundle);

// The stored names; the defaults are made where there is no list. As withoutEmptyFirst().
QStringList loadOrCreateWatermarks(CFBundleRef bundle);
// A first name whose record has neither text nor file is left out; it stays in the file.
QStringList withoutEmptyFirst(QStringList names);

// Record and list in one change, so that several dialogs lose nothing of one another's. The
// answer is the list as it is stored then; the error has been said. A ticket finds a watermark
// by its name, capital letters or small: another one that it could find goes.
Result<QStringList> addWatermark(const QString &fileName, const _WatermarkData &watermark);
// Also where the old one has gone meanwhile: it is added then.
Result<QStringList> replaceWatermark(const QString &fileName, const QString &oldName,
                                     const _WatermarkData &watermark);
Result<QStringList> deleteWatermark(const QString &fileName, const QString &name);

// Why the store can have no watermark of that name.
enum class NameProblem {
    None,
    Empty,
    Reserved, // the list's own
    IsFont,   // a font's program stands under it
};
NameProblem problemOfName(const QString &fileName, const QString &name);

// The file; with the same stamp it holds the same.
StampedFile watermarkStore(const QString &fileName);

} // namespace kelvo
