#include "last_used.h"

#include "file_store.h"
#include "folders.h"
#include "job_timing.h"
#include "presets.h"
#include "property_list.h"
#include "texts.h"
#include "ticket_layers.h"

#include <QFile>

#include <algorithm>
#include <iterator>

namespace kelvo {

namespace {

using Code = Error::Code;
using Beginning = LastUsed::Beginning;

// Stored in users' files.
const QString fileName = QStringLiteral("com.kelvo.print.lastused.plist");
const QString printerKey = QStringLiteral("Printer");
const QString settingsKey = QStringLiteral("Settings");
const QString beginsWithKey = QStringLiteral("BeginsWith");
const QString presetKey = QStringLiteral("Preset");

struct BeginningRow
{
    Beginning beginning;
    const char *word;
};
constexpr BeginningRow beginningRows[] = {
    {Beginning::LastUsed, "last-used"},
    {Beginning::Defaults, "defaults"},
    {Beginning::Preset, "preset"},
};

// And in files of administrators.
const QString siteFileName = QStringLiteral("preferences.plist");
const QString keepKey = QStringLiteral("KeepLastUsed");

QString path()
{
    const QString folder = userPreferencesFolder();
    return folder.isEmpty() ? QString() : folder + u'/' + fileName;
}

Dictionary dictionaryIn(const QString &file)
{
    if (file.isEmpty() || !QFile::exists(file))
        return {};
    const auto list = readPropertyList(file);
    return list ? dictionary(list.value()).value_or(Dictionary()) : Dictionary();
}

} // namespace

bool keepsLastUsed()
{
    const QStringList folders = siteFolders();
    for (const QString &folder : folders) {
        if (const auto keeps = boolean(dictionaryIn(folder + u'/' + siteFileName).value(keepKey)))
            return *keeps;
    }
    return true;
}

LastUsed readLastUsed()
{
    if (!keepsLastUsed())
        return {};
    const Dictionary stored = dictionaryIn(path());
    LastUsed used;
    used.printer = string(stored, printerKey).value_or(QString());
    if (stored.contains(settingsKey)) {
        if (auto settings = ticketFileFromPropertyList(stored.value(settingsKey), path()))
            used.settings = std::move(settings).value();
    }
    const QString word = string(stored, beginsWithKey).value_or(QString());
    const auto row = std::ranges::find_if(beginningRows, [&word](const BeginningRow &each) {
        return word == QLatin1String(each.word);
    });
    if (row != std::end(beginningRows))
        used.beginning = row->beginning;
    used.preset = string(stored, presetKey).value_or(QString());
    return used;
}

Result<void> keepLastUsed(const LastUsed &used)
{
    if (!keepsLastUsed())
        return {};
    if (path().isEmpty())
        return Error{Code::NotWritable, fileName,
                     translate("Job", "there is no home folder to keep settings in; set HOME")};
    return changeDictionaryFile(path(), DamagedStore::SetAside, [&used](QVariantMap &stored) {
        const QVariantMap before = stored;
        if (!used.printer.isEmpty())
            stored.insert(printerKey, used.printer);
        if (used.settings)
            stored.insert(settingsKey, propertyListFrom(*used.settings));
        if (used.beginning) {
            stored.insert(beginsWithKey,
                          QString::fromLatin1(std::ranges::find(beginningRows, *used.beginning,
                                                                &BeginningRow::beginning)
                                                  ->word));
            if (*used.beginning == Beginning::Preset)
                stored.insert(presetKey, used.preset);
            else
                stored.remove(presetKey);
        }
        return stored != before;
    });
}

std::optional<TicketFile> lastUsedFrom(const TicketFile &preset, const SecretKeys &keys)
{
    if (isFax(preset, keys))
        return std::nullopt;
    TicketFile kept = withoutOneJob(presetFrom(preset, keys, false), keys);
    TicketPlaces places = paperPlaces();
    places.insert({kPMPageFormatTicket, kPMOrientationKey});
    for (const QString &key : {kPMCopiesKey, kJobPriorityKey})
        places.insert({kPMPrintSettingsTicket, key});
    kept = without(std::move(kept), places);
    for (const TicketPlace &place : places)
        kept.removed.erase(place);
    return kept;
}

} // namespace kelvo
