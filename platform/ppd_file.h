#pragma once

#include "result.h"

#include <QByteArray>
#include <QMap>
#include <QString>
#include <QStringList>

#include <memory>
#include <optional>
#include <vector>

// A printer's PPD. ppd_file.cpp is the one file that includes <cups/ppd.h>;
// what comes out of here is Qt types. A PPD is hostile until checked: its texts
// are shown as plain text and are never a path, a format or markup. They are in the
// program's language where the PPD has that, and else as the PPD was written; where it has none, as
// in one that a print server has made of what a printer says over IPP, those of standard_words.h.
namespace kelvo {

struct PpdChoice
{
    QString keyword;
    QString text; // for people
};

struct PpdOption
{
    QString keyword;
    QString text;          // for people
    QString defaultChoice; // empty when the PPD names none
    bool pickMany = false;
    std::vector<PpdChoice> choices; // in the PPD's order

    const PpdChoice *findChoice(const QString &keyword) const;
};

struct PpdGroup
{
    QString name; // "InstallableOptions"
    QString text;
    std::vector<PpdOption> options; // subgroups included
};
// The group of what is fitted to the printer, not of what a job sets.
bool isInstallable(const PpdGroup &group);

// Lengths in points.
struct PpdPageSize
{
    QString name;
    double width = 0, height = 0;
    double left = 0, bottom = 0, right = 0, top = 0; // the printable area's edges
};

struct CustomPageLimits
{
    double minWidth, minHeight, maxWidth, maxHeight; // points
};

using PpdSelection = QMap<QString, QString>; // option keyword → choice keyword

struct PpdConflict
{
    QStringList options; // keywords of the options that cannot stay as they are together
};

// For any thread: panels share it with the thread that makes a job ready.
class PpdFile
{
public:
    // Reads a regular file of at most limits::ppdBytes. NotFound, TooLarge,
    // Unsupported for a compressed one, or Damaged with libcups' reason and line.
    static Result<std::shared_ptr<PpdFile>> open(const QString &path);
    // The same from bytes that are already here; `name` is theirs in errors.
    static Result<std::shared_ptr<PpdFile>> fromBytes(const QByteArray &bytes, const QString &name);
    ~PpdFile();
    PpdFile(const PpdFile &) = delete;
    PpdFile &operator=(const PpdFile &) = delete;

    // Where others open it: the file that it was read from, or one in the memory of this process
    // that is there as long as this object. Empty where there is no room for that.
    QString path() const;
    QString manufacturer() const;     // empty when missing
    QString modelName() const;        // the nickname where there is one
    QString languageEncoding() const; // lang_encoding as libcups gives it; empty when missing
    // The value of a main keyword such as "KelvoTicket" (without the quotes); none when missing.
    // With `part`, of "*keyword part: value".
    std::optional<QString> attribute(const char *keyword, const QString &part = {}) const;
    QStringList attributes(const char *keyword) const; // every value, e.g. of cupsFilter

    // What the PPD has the device told for this choice, as it stands; empty when there is nothing.
    QString code(const QString &option, const QString &choice) const;

    const std::vector<PpdGroup> &groups() const;
    const PpdOption *findOption(const QString &keyword) const; // ppdFindOption; null when missing
    // Whether a rule of the PPD forbids this choice with what is fitted to the
    // printer (the defaults of its installable options) and nothing else.
    bool isRuledOutByEquipment(const QString &option, const QString &choice) const;

    const std::vector<PpdPageSize> &pageSizes() const;
    const PpdPageSize *findPageSize(const QString &name) const;
    std::optional<CustomPageLimits> customPageLimits() const; // none: no custom sizes

    // Marks: one choice of each option, kept by libcups, shared by all users of
    // this object.
    void markDefaults();
    // Returns true when the marks are in conflict afterwards. An option or choice
    // that the PPD lacks changes nothing and is no conflict.
    bool mark(const QString &option, const QString &choice);
    std::optional<QString> markedChoice(const QString &option) const; // the first one

    // Constraints, on marks of their own: the defaults with `selection` on top.
    // Does not disturb the marks above.
    std::vector<PpdConflict> conflicts(const PpdSelection &selection);
    // The changes that would end every conflict, option → choice; `keep` names
    // options that the user has just set and wants kept where possible. None
    // when libcups finds no way.
    std::optional<PpdSelection> resolve(const PpdSelection &selection, const QString &keep = {});

private:
    PpdFile();
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace kelvo
