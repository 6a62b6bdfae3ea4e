#include "device_profile.h"

#include "pde_session.h"
#include "property_list.h"

#include <QUrl>

namespace kelvo {

namespace {

std::optional<Dictionary> profile;

Dictionary dictionaryAt(const Dictionary &in, const char *name)
{
    return dictionary(in, QLatin1String(name)).value_or(Dictionary());
}

std::optional<QVariant> entryAt(const Dictionary &in, const QString &key)
{
    const auto entry = in.constFind(key);
    if (entry == in.constEnd())
        return std::nullopt;
    return *entry;
}

Dictionary features()
{
    return dictionaryAt(profile.value_or(Dictionary()), "Features");
}

// The dictionaries in `from` whose property passes, in the order of their names.
template <typename Test>
Array withProperty(const Dictionary &from, const QString &property, Test passes)
{
    Array found;
    for (const QVariant &entry : from) {
        const std::optional<Dictionary> candidate = dictionary(entry);
        if (!candidate)
            continue;
        const auto value = entryAt(dictionaryAt(*candidate, "Properties"), property);
        if (value && passes(*value))
            found.append(*candidate);
    }
    return found;
}

// QVariant's own comparison converts: "1" is no 1 here.
bool isSameValue(const QVariant &a, const QVariant &b)
{
    if (const auto number = integer64(a))
        return integer64(b) == number;
    if (const auto number = real(a))
        return real(b) == number;
    return a.metaType() == b.metaType() && a == b;
}

} // namespace

void KDPInitialize()
{
    if (profile)
        return;
    const CFBundleRef bundle = GetPDEBundle();
    const QString path = bundle
        ? bundle->findResource(QStringLiteral("Device Profile"), QStringLiteral("plist"))
        : QString();
    if (path.isEmpty())
        return;
    if (const auto list = CreatePropertiesFromXMLFile(path))
        profile = dictionary(*list);
}

void KDPFinalize()
{
    profile.reset();
}

std::optional<Dictionary> KDPGetFeature(const QString &name)
{
    return dictionary(features(), name);
}

Array KDPGetFeaturesWithProperty(const QString &property)
{
    return withProperty(features(), property, [](const QVariant &) { return true; });
}

Array KDPGetFeaturesWithPropertyAndValue(const QString &property, const QVariant &value)
{
    return withProperty(features(), property,
                        [&value](const QVariant &found) { return isSameValue(found, value); });
}

std::optional<QVariant> KDPGetFeatureSyntax(const Dictionary &feature, const QString &key)
{
    return entryAt(dictionaryAt(feature, "Syntax"), key);
}

std::optional<QVariant> KDPGetFeatureProperty(const Dictionary &feature, const QString &property)
{
    return entryAt(dictionaryAt(feature, "Properties"), property);
}

Array KDPGetKeywordsWithPropertyAndValue(const Dictionary &feature, const QString &property,
                                         const QVariant &value)
{
    return withProperty(dictionaryAt(dictionaryAt(feature, "Syntax"), "Keyword"), property,
                        [&value](const QVariant &found) { return isSameValue(found, value); });
}

bool KDPGetFeatureDefaultValue(const Dictionary &feature, QString *outKind, QVariant *outValue)
{
    const QString defaultName = QStringLiteral("Default");
    const auto answer = [&](const char *kind, const QVariant &value) {
        *outKind = QLatin1String(kind);
        *outValue = value;
        return true;
    };

    const Dictionary syntax = dictionaryAt(feature, "Syntax");
    const Dictionary keywords = dictionaryAt(syntax, "Keyword");
    for (auto keyword = keywords.constBegin(); keyword != keywords.constEnd(); ++keyword) {
        if (dictionary(*keyword).value_or(Dictionary()).contains(defaultName))
            return answer("Keyword", keyword.key());
    }
    for (const char *kind : {"Name", "Number"}) {
        if (const auto value = entryAt(dictionaryAt(syntax, kind), defaultName))
            return answer(kind, *value);
    }
    return false;
}

std::optional<QVariant> CreatePropertiesFromXMLFile(const QString &url)
{
    const QString path = url.startsWith(QLatin1String("file:")) ? QUrl(url).toLocalFile() : url;
    Result<QVariant> list = readPropertyList(path);
    if (!list)
        return std::nullopt;
    return list.value();
}

} // namespace kelvo
