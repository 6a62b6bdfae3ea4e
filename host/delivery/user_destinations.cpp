#include "user_destinations.h"

#include "system_information.h"

#include <QFile>

#include <cups/cups.h>
#include <cups/file.h>

#include <cctype>
#include <memory>

namespace kelvo {

namespace {

struct CloseFile
{
    void operator()(cups_file_t *file) const { cupsFileClose(file); }
};

// Destinations as libcups keeps them: sorted, and found in any case.
class DestinationList
{
public:
    DestinationList() = default;
    ~DestinationList() { cupsFreeDests(count, destinations); }
    DestinationList(const DestinationList &) = delete;
    DestinationList &operator=(const DestinationList &) = delete;

    int count = 0;
    cups_dest_t *destinations = nullptr;
};

// The end of the word at `text`, which begins with no blank; `stop` ends it, too.
char *wordEnd(char *text, char stop = '\0')
{
    while (*text && *text != stop && !std::isspace(static_cast<unsigned char>(*text)))
        ++text;
    return text;
}

// "Dest NAME[/INSTANCE] OPTIONS", or "Default" in its place; anything else is passed over.
void readFile(const QString &path, DestinationList &list)
{
    const std::unique_ptr<cups_file_t, CloseFile> file(
        cupsFileOpen(QFile::encodeName(path).constData(), "r"));
    char line[8192]; // what libcups reads of one
    char *value = nullptr;
    int number = 0;
    while (file && cupsFileGetConf(file.get(), line, sizeof line, &value, &number)) {
        const bool isDefault = qstricmp(line, "Default") == 0;
        if (!value || (!isDefault && qstricmp(line, "Dest") != 0))
            continue;
        char *end = wordEnd(value, '/');
        const char *instance = nullptr;
        if (*end == '/') {
            *end = '\0';
            instance = end + 1;
            end = wordEnd(end + 1);
        }
        if (*end)
            *end++ = '\0';
        list.count = cupsAddDest(value, instance, list.count, &list.destinations);
        cups_dest_t *destination = cupsGetDest(value, instance, list.count, list.destinations);
        if (!destination)
            continue;
        destination->num_options =
            cupsParseOptions(end, destination->num_options, &destination->options);
        if (isDefault)
            cupsSetDefaultDest(value, instance, list.count, list.destinations);
    }
}

QString nameOf(const cups_dest_t &destination)
{
    const QString name = QString::fromUtf8(destination.name);
    return destination.instance ? name + u'/' + QString::fromUtf8(destination.instance) : name;
}

} // namespace

UserDestinations readUserDestinations()
{
    const QString site = qEnvironmentVariable("CUPS_SERVERROOT", QStringLiteral("/etc/cups"));
    DestinationList list;
    readFile(site + QStringLiteral("/lpoptions"), list);
    // Services and cron jobs may run without HOME.
    const QString home = qEnvironmentVariable("HOME");
    readFile((home.isEmpty() ? ownersHome().value_or(QString()) : home)
                 + QStringLiteral("/.cups/lpoptions"),
             list);

    UserDestinations user;
    for (int i = 0; i < list.count; ++i) {
        const cups_dest_t &destination = list.destinations[i];
        UserDestination &read = user.destinations.emplace_back();
        read.name = nameOf(destination);
        for (int at = 0; at < destination.num_options; ++at)
            read.options.insert(QString::fromUtf8(destination.options[at].name),
                                QString::fromUtf8(destination.options[at].value));
        if (destination.is_default)
            user.defaultName = read.name;
    }
    // "lp" is what PRINTER is on systems that have printed without CUPS: it names none.
    if (qEnvironmentVariableIsSet("LPDEST")
        || (qEnvironmentVariableIsSet("PRINTER") && qgetenv("PRINTER") != "lp")) {
        user.isDefaultForced = true;
        user.defaultName =
            qEnvironmentVariable(qEnvironmentVariableIsSet("LPDEST") ? "LPDEST" : "PRINTER");
    }
    return user;
}

bool isSamePrinter(const QString &name, const QString &other)
{
    return name.compare(other, Qt::CaseInsensitive) == 0;
}

} // namespace kelvo
