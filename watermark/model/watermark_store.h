#pragma once

#include "file_store.h"
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
// What is read is kept until the file is another one. GUI thread or any other; a store is
// read once at a time.
namespace kelvo {

inline const QString kWatermarksFile = QStringLiteral("com.kelvo.printing.watermarks.plist");
inline const QString kFaxImagesFile = QStringLiteral("com.kelvo.printing.faximage.plist");
inline const QString kWatermarkListKey = QStringLiteral("WatermarkListEntries");

// The record under its name. With a damaged file, which is set aside, or none, the store
// begins anew with it. Whether it is written; a failure is a line on standard error.
bool saveWatermarkData(const QString &fileName, const _WatermarkData &watermark);
// Copies what is stored under `name` into the record; false, and a record of zeros, where
// there is nothing. isText and the paper are left to the caller.
bool loadWatermarkData(const QString &fileName, const QString &name, _WatermarkData *watermark);
void removeWatermarkData(const QString &fileName, const QString &name);
// Replaces the list; a null name or list does nothing.
void saveWatermarkList(const QString &fileName, const QStringList *names);
// Whether there is a list. Without a file `names` stays as it is; without the list it is
// emptied. `addItem`, if any, is told each name.
bool loadWatermarkList(const QString &fileName, QStringList *names,
                       const std::function<void(const QString &)> &addItem = {});
// Only into a store that is there.
void storeFontData(const QString &fileName, const QString &fontName, const QByteArray &data);
// Appends the font's program, if there is one.
void loadFontData(const QString &fileName, const QString &fontName, QByteArray *data);

// The watermarks that a new user is given; 0.
OSStatus CreateDefaultWatermarks(CFBundleRef bundle);

// ---- what the panels do with it

// What one of several dialogs adds, renames and removes, without losing what the others did:
// record and list in one change under the lock. `names` is the list as it is stored then.
// False when nothing could be written, with a line on standard error and `names` unchanged.
bool addWatermark(const QString &fileName, const _WatermarkData &watermark, QStringList &names);
bool replaceWatermark(const QString &fileName, const QString &oldName,
                      const _WatermarkData &watermark, QStringList &names);
bool deleteWatermark(const QString &fileName, const QString &name, QStringList &names);

// The stored names; the defaults are made where there is no list. A first one whose record
// has neither text nor file is dropped here, and stays in the file.
QStringList watermarkNames(CFBundleRef bundle);

// Why there can be no watermark of this name, for the user; empty where there can. `names` are
// those that the store has, without the one that is edited.
enum class NameProblem { None, Empty, Reserved, IsFont };
NameProblem problemOfName(const QString &fileName, const QString &name);

// Of the file; the same stamp, the same content.
StampedFile watermarkStore(const QString &fileName);

// What tells a stored font from another one; none where it is not stored. Nothing is read
// that is known.
std::optional<QByteArray> storedFontDigest(const QString &fileName, const QString &fontName);

} // namespace kelvo
