#include "presets.h"

#include "file_store.h"
#include "folders.h"
#include "job_settings.h"
#include "nearest_name.h"
#include "property_list.h"
#include "size_limits.h"
#include "terminal.h"
#include "texts.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSet>

#include <algorithm>
#include <cstdio>

namespace kelvo {

namespace {

using Code = Error::Code;

// Stored in users' files.
const QString nameKey = QStringLiteral("PresetName");
const QString suffix = QStringLiteral(".plist");

constexpr StoreLock presetsLock = StoreLock::OfFolder;

QString presetsFolder(const QString &folder)
{
    return folder.isEmpty() ? QString() : folder + QStringLiteral("/presets");
}

// The name where our own files have it: near their end, behind what may be 100 MB.
// Empty for a file that was written by another hand.
QString nameAtEndOf(const QString &path)
{
    constexpr qint64 end = 16 * limits::KiB;
    static const QByteArray before("\n\t<key>PresetName</key>\n\t<string>");
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly) || !file.seek(std::max<qint64>(0, file.size() - end)))
        return {};
    const QByteArray bytes = file.read(end);
    const qsizetype key = bytes.indexOf(before);
    if (key < 0)
        return {};
    const qsizetype text = key + before.size();
    const auto name = CFPropertyListCreateFromXMLData(
        "<plist><string>" + bytes.mid(text, bytes.indexOf("</string>", text) - text)
            + "</string></plist>",
        path);
    return name ? string(name.value()).value_or(QString()).simplified() : QString();
}

QString nameIn(const QString &path)
{
    if (const QString name = nameAtEndOf(path); !name.isEmpty())
        return name;
    const auto list = readPropertyList(path);
    const auto root = list ? dictionary(list.value()) : std::nullopt;
    const QString name = root ? string(*root, nameKey).value_or(QString()).simplified() : QString();
    return name.isEmpty() ? QFileInfo(path).completeBaseName() : name;
}

// In the order of the file names. A name that two files carry (one was copied by
// hand) is the first one's; the other is listed with its file name behind it.
std::vector<Preset> presetsIn(const QString &folder, bool isSite)
{
    std::vector<Preset> presets;
    if (folder.isEmpty())
        return presets;
    QSet<QString> names;
    // Those that cannot be read are listed too: choosing one says why.
    const auto files = QDir(folder).entryInfoList({u'*' + suffix}, QDir::Files, QDir::Name);
    for (const QFileInfo &file : files) {
        QString name = nameIn(file.filePath());
        if (names.contains(name))
            name = QStringLiteral("%1 (%2)").arg(name, file.fileName());
        names.insert(name);
        presets.push_back({name, file.filePath(), isSite});
    }
    return presets;
}

std::optional<Preset> findPreset(const std::vector<Preset> &presets, const QString &name)
{
    const auto found = std::find_if(presets.begin(), presets.end(),
                                    [&](const Preset &preset) { return preset.name == name; });
    return found == presets.end() ? std::nullopt : std::optional(*found);
}

std::vector<Preset> sitePresets()
{
    std::vector<Preset> all;
    const QStringList folders = siteFolders();
    for (const QString &folder : folders) {
        for (const Preset &preset : presetsIn(presetsFolder(folder), true)) {
            if (!findPreset(all, preset.name))
                all.push_back(preset);
        }
    }
    return all;
}

Error notFound(const std::vector<Preset> &presets, const QString &name)
{
    QStringList names;
    for (const Preset &preset : presets)
        names << preset.name;
    if (names.isEmpty())
        return {Code::NotFound, name,
                translate("Job", "there is no preset of this name, nor any other")};
    return {Code::NotFound, name,
            nearestOrAll(translate("Job", "there is no preset of this name"), name, names)};
}

// The ticket in the preset file at `path`, without what makes it a preset.
Result<TicketFile> readPreset(const QString &path)
{
    auto ticket = readTicketFile(path);
    if (ticket) {
        ticket.value().unknown.remove(nameKey);
        return ticket;
    }
    Error error = ticket.error();
    if (error.code == Code::OtherKind)
        error.detail = translate("Job", "%1: this is not a ticket file").arg(error.detail);
    return error;
}

// The preset `name` where it is the user's own.
Result<Preset> findOwn(const std::vector<Preset> &presets, const QString &name)
{
    const auto preset = findPreset(presets, name);
    if (!preset)
        return notFound(presets, name);
    if (preset->isSite)
        return Error{Code::Refused, name,
                     translate("Job",
                               "this preset is the administrator’s and cannot be changed here; "
                               "save one of your own under the same name instead")};
    return *preset;
}

std::optional<Error> problemOf(const QString &name)
{
    const bool hasControl = std::any_of(name.begin(), name.end(), [](QChar character) {
        return character.category() == QChar::Other_Control;
    });
    if (name.trimmed().isEmpty() || hasControl)
        return Error{Code::Refused, name,
                     translate("Job", "a preset needs a name of one line that is not empty")};
    return std::nullopt;
}

// Writes the preset to `path`, never over something that is not a preset.
Result<void> write(const QString &path, const QString &name, TicketFile ticket, bool mayReplace)
{
    ticket.unknown.insert(nameKey, name);
    const Dictionary root = propertyListFrom(ticket);
    std::optional<Error> refused;
    auto changed = changeDictionaryFile(
        path, DamagedStore::SetAside,
        [&](QVariantMap &stored) {
            if (!stored.isEmpty() && !mayReplace)
                refused =
                    Error{Code::Refused, path, translate("Job", "there is such a preset already")};
            else if (!stored.isEmpty() && !ticketFileFromPropertyList(stored, path))
                refused = Error{Code::Refused, path,
                                translate("Job",
                                          "the file that stands there is no preset of this program "
                                          "version; move it away or take another name")};
            else
                stored = root;
            return !refused;
        },
        presetsLock);
    return refused ? Result<void>(*refused) : changed;
}

Result<QString> newPath(const QString &name)
{
    const QString folder = PresetStore::ownFolder();
    if (folder.isEmpty())
        return Error{Code::NotWritable, name,
                     translate("Job", "there is no home folder to keep presets in; set HOME")};
    return folder + u'/' + safeFileName(name) + suffix;
}

} // namespace

TicketFile presetFrom(TicketFile ticket, const SecretKeys &keys, bool keepSecrets)
{
    if (!keepSecrets)
        ticket = withoutSecrets(std::move(ticket), keys);
    for (const QString &key : entriesOfOneJob())
        ticket.printSettings.entries.erase(key);
    return ticket;
}

QString PresetStore::ownFolder()
{
    return presetsFolder(userPreferencesFolder());
}

std::vector<Preset> PresetStore::presets() const
{
    std::vector<Preset> all = presetsIn(ownFolder(), false);
    for (const Preset &site : sitePresets()) {
        if (!findPreset(all, site.name))
            all.push_back(site);
    }
    std::sort(all.begin(), all.end(), [](const Preset &a, const Preset &b) {
        const int order = a.name.compare(b.name, Qt::CaseInsensitive);
        return order != 0 ? order < 0 : a.name < b.name;
    });
    return all;
}

Result<TicketFile> PresetStore::read(const QString &name) const
{
    const auto all = presets();
    const auto preset = findPreset(all, name);
    return preset ? readPreset(preset->path) : notFound(all, name);
}

Result<void> PresetStore::save(const QString &name, const TicketFile &ticket,
                               const SecretKeys &keys, bool keepSecrets)
{
    if (const auto problem = problemOf(name))
        return *problem;
    const QString saved = name.simplified();
    const auto existing = findPreset(presets(), saved);
    const bool isOwn = existing && !existing->isSite;
    const auto path = isOwn ? Result<QString>(existing->path) : newPath(saved);
    if (!path)
        return path.error();
    return write(path.value(), saved, presetFrom(ticket, keys, keepSecrets), true);
}

Result<void> PresetStore::remove(const QString &name)
{
    const auto preset = findOwn(presets(), name);
    return preset ? removeFile(preset.value().path, presetsLock) : Result<void>(preset.error());
}

Result<void> PresetStore::rename(const QString &from, const QString &to)
{
    if (const auto problem = problemOf(to))
        return *problem;
    const auto all = presets();
    const auto preset = findOwn(all, from);
    if (!preset)
        return preset.error();
    const QString renamed = to.simplified();
    if (renamed == from)
        return {};
    if (findPreset(all, renamed))
        return Error{Code::Refused, renamed, translate("Job", "there is such a preset already")};
    auto ticket = readPreset(preset.value().path);
    if (!ticket)
        return ticket.error();
    const auto path = newPath(renamed);
    if (!path)
        return path.error();
    // A file that was named by hand may already lie where the new name leads.
    const bool inPlace = path.value() == preset.value().path;
    if (auto written = write(path.value(), renamed, std::move(ticket).value(), inPlace); !written)
        return written;
    return inPlace ? Result<void>() : removeFile(preset.value().path, presetsLock);
}

std::optional<TicketFile> PresetStore::siteDefaults() const
{
    const auto preset = findPreset(sitePresets(), QStringLiteral("default"));
    if (!preset)
        return std::nullopt;
    auto ticket = readPreset(preset->path);
    if (!ticket) {
        printLine(
            stderr,
            translate("Job", "%1; the site’s defaults are not used").arg(ticket.error().text()));
        return std::nullopt;
    }
    return std::move(ticket).value();
}

} // namespace kelvo
