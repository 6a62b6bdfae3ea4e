#include "bundle.h"

#include "property_list.h"
#include "string_table.h"
#include "texts.h"

#include <QFileInfo>
#include <QHash>
#include <QLibrary>
#include <QLocale>

#include <vector>

namespace kelvo {

namespace {

using Code = Error::Code;

const QString identifierKey = QStringLiteral("CFBundleIdentifier");
const QString executableKey = QStringLiteral("CFBundleExecutable");
const QString typesKey = QStringLiteral("CFPlugInTypes");
const QString factoriesKey = QStringLiteral("CFPlugInFactories");

// Every bundle that was opened; they live until the process ends, as their
// modules do.
std::vector<std::unique_ptr<Bundle>> &openBundles()
{
    static std::vector<std::unique_ptr<Bundle>> bundles;
    return bundles;
}

QHash<QUuid, int> &instanceCounts()
{
    static QHash<QUuid, int> counts;
    return counts;
}

// Whether `name` may stand behind a folder and stays inside it.
bool staysInside(const QString &name)
{
    return !name.split(u'/').contains(QStringLiteral("..")) && !name.contains(QChar(0));
}

} // namespace

struct Bundle::Private
{
    QString path;
    QString identifier;
    Dictionary info;
    QLibrary module;
    QString loadError;
    std::optional<StringTables> strings; // loaded with the first look-up
};

Bundle::Bundle(QString path)
    : d(std::make_unique<Private>())
{
    d->path = std::move(path);
}

Bundle::~Bundle() = default;

Result<Bundle *> Bundle::open(const QString &path)
{
    const QString canonical = QFileInfo(path).canonicalFilePath();
    if (canonical.isEmpty())
        return Error{Code::NotFound, path, translate("Panels", "there is no such bundle")};
    for (const auto &bundle : openBundles()) {
        if (bundle->path() == canonical)
            return bundle.get();
    }

    const QString infoPath = canonical + QStringLiteral("/Info.plist");
    const auto list = readPropertyList(infoPath);
    if (!list)
        return list.error();
    const auto info = dictionary(list.value());
    if (!info)
        return Error{Code::WrongType, infoPath, translate("Panels", "holds no dictionary")};
    const QString identifier = string(*info, identifierKey).value_or(QString());
    if (identifier.isEmpty())
        return Error{Code::Damaged, infoPath + QStringLiteral(": ") + identifierKey,
                     translate("Panels", "missing or not a string")};
    if (const Bundle *other = CFBundleGetBundleWithIdentifier(identifier))
        return Error{
            Code::Refused, infoPath + QStringLiteral(": ") + identifierKey,
            translate("Panels", "%1 is already the bundle %2").arg(identifier, other->path())};

    std::unique_ptr<Bundle> bundle(new Bundle(canonical));
    bundle->d->identifier = identifier;
    bundle->d->info = *info;
    openBundles().push_back(std::move(bundle));
    return openBundles().back().get();
}

const QString &Bundle::path() const
{
    return d->path;
}

const QString &Bundle::identifier() const
{
    return d->identifier;
}

const Dictionary &Bundle::info() const
{
    return d->info;
}

QString Bundle::resourcesPath() const
{
    return d->path + QStringLiteral("/Resources");
}

std::optional<Bundle::Factory> Bundle::findFactory(const QUuid &typeUUID) const
{
    const Dictionary types = dictionary(d->info, typesKey).value_or(Dictionary());
    const Dictionary functions = dictionary(d->info, factoriesKey).value_or(Dictionary());
    for (auto type = types.cbegin(); type != types.cend(); ++type) {
        if (QUuid::fromString(type.key()) != typeUUID)
            continue;
        for (const QVariant &factory : array(type.value()).value_or(Array())) {
            const QString text = string(factory).value_or(QString());
            const QString function = string(functions, text).value_or(QString());
            const QUuid identifier = QUuid::fromString(text);
            if (!identifier.isNull() && !function.isEmpty())
                return Factory{identifier, function};
        }
    }
    return std::nullopt;
}

void *Bundle::findFunction(const char *name)
{
    if (!d->module.isLoaded()) {
        const QString file = string(d->info, executableKey).value_or(QString());
        if (file.isEmpty() || file.contains(u'/')) {
            d->loadError =
                Error{Code::Damaged, d->path + QStringLiteral("/Info.plist: ") + executableKey,
                      translate("Panels", "not the name of a file")}
                    .text();
            return nullptr;
        }
        d->module.setFileName(d->path + u'/' + file);
        // A symbol that is missing shows here and not in the middle of a dialog.
        d->module.setLoadHints(QLibrary::PreventUnloadHint | QLibrary::ResolveAllSymbolsHint);
        if (!d->module.load()) {
            d->loadError = d->module.errorString();
            return nullptr;
        }
        d->loadError.clear();
    }
    return reinterpret_cast<void *>(d->module.resolve(name));
}

QString Bundle::loadError() const
{
    return d->loadError;
}

QString Bundle::findResource(const QString &name, const QString &type,
                             const QString &subfolder) const
{
    QString path = resourcesPath() + u'/';
    if (!subfolder.isEmpty())
        path += subfolder + u'/';
    path += type.isEmpty() ? name : name + u'.' + type;
    return !name.isEmpty() && staysInside(path) && QFileInfo(path).isFile() ? path : QString();
}

std::optional<QString> Bundle::findString(const QString &key, const QString &table) const
{
    if (!d->strings) {
        d->strings.emplace();
        d->strings->load(resourcesPath() + QStringLiteral("/strings"), QLocale().uiLanguages());
    }
    return d->strings->find(table, key);
}

CFBundleRef CFBundleGetBundleWithIdentifier(const QString &identifier)
{
    for (const auto &bundle : openBundles()) {
        if (bundle->identifier() == identifier)
            return bundle.get();
    }
    return nullptr;
}

void *CFBundleGetFunctionPointerForName(CFBundleRef bundle, const char *name)
{
    return bundle && name ? bundle->findFunction(name) : nullptr;
}

QString CFBundleCopyLocalizedString(CFBundleRef bundle, const QString &key, const QString &fallback,
                                    const QString &table)
{
    return bundle ? bundle->findString(key, table).value_or(fallback) : fallback;
}

void CFPlugInAddInstanceForFactory(const QUuid &factory)
{
    ++instanceCounts()[factory];
}

void CFPlugInRemoveInstanceForFactory(const QUuid &factory)
{
    const auto count = instanceCounts().find(factory);
    if (count != instanceCounts().end() && --*count == 0)
        instanceCounts().erase(count);
}

int plugInInstanceCount(const QUuid &factory)
{
    return instanceCounts().value(factory);
}

} // namespace kelvo
