#include "installed_features.h"

#include "ticket_values.h"

#include <cstring>
#include <iterator>

namespace kelvo {

// A device without one of these options has none of its features. A unit that
// does several things has a row for each.
// clang-format off
constexpr InstalledFeature InstalledFeatures[] = {
    {"FaxKey",               "KVFax",            "True",             nullptr,               0},
    {"SingleStapleKey",      "KVFinisher",       "AClass",           "1 Staple",            0},
    {"SingleStapleKey",      "KVFinisher",       "BClass",           "1 Staple",            0},
    {"DualStapleKey",        "KVFinisher",       "BClass",           "2 Staples",           0},
    {"MultipleStapleKey",    "KVMultiStaple",    "True",             "Multiple Staples",    0},
    {"GenericPunchKey",      "KVPunchUnit",      "Generic",          "HolePunch",           0},
    {"DualPunchKey",         "KVPunchUnit",      "TwoHole",          "2 Hole Punch",        0},
    {"DualPunchKey",         "KVPunchUnit",      "TwoThreeHole",     "2 Hole Punch",        0},
    {"DualPunchKey",         "KVPunchUnit",      "TwoThreeFourHole", "2 Hole Punch",        0},
    {"TriplePunchKey",       "KVPunchUnit",      "ThreeHole",        "3 Hole Punch",        0},
    {"TriplePunchKey",       "KVPunchUnit",      "TwoThreeHole",     "3 Hole Punch",        0},
    {"TriplePunchKey",       "KVPunchUnit",      "TwoThreeFourHole", "3 Hole Punch",        0},
    {"QuadruplePunchKey",    "KVPunchUnit",      "FourHole",         "4 Hole Punch",        0},
    {"QuadruplePunchKey",    "KVPunchUnit",      "TwoThreeFourHole", "4 Hole Punch",        0},
    {"CFoldKey",             "KVFolder",         "CFold",            "FoldCFold",           0},
    {"CFoldKey",             "KVFolder",         "CZFold",           "FoldCFold",           0},
    {"CFoldKey",             "KVFolder",         "Full",             "FoldCFold",           0},
    {"ZFoldKey",             "KVFolder",         "CZFold",           "FoldZFold",           0},
    {"ZFoldKey",             "KVFolder",         "Full",             "FoldZFold",           0},
    {"ZFoldHalfSheetKey",    "KVFolder",         "Full",             "Z Fold Half Sheet",   0},
    {"BookletFoldKey",       "KVBookletMaker",   "True",             "BiFoldNoStaple",      0},
    {"TapeBindKey",          "KVBinder",         "True",             "Tape Binding",        0},
    {"PostPrintInserterKey", "KVInserter",       "True",             "Post-Print Inserter", 0},
    {"AutoSwitchTrayKey",    "KVAutoSwitchTray", "True",             "Auto Switch Tray",    0},
    {"StackerTray1Key",      "KVStackerTrays",   "One",              "Stacker Tray 1",      0},
    {"StackerTray1Key",      "KVStackerTrays",   "Two",              "Stacker Tray 1",      0},
    {"StackerTray2Key",      "KVStackerTrays",   "Two",              "Stacker Tray 2",      0},
    {"SimpleCatchTrayKey",   "KVCatchTray",      "True",             "Simple Catch Tray",   0},
    {nullptr,                nullptr,            nullptr,            nullptr,               0},
};
// clang-format on
static_assert(std::end(InstalledFeatures)[-1].feature == nullptr);

namespace {

struct LoadedOptions
{
    bool isLoaded = false;
    InstalledOptions options;
};
LoadedOptions loaded;

// The PPD's default as the PPD spells the choice: it is found in any case.
std::optional<QString> defaultChoiceOf(const PpdOption &option)
{
    for (const PpdChoice &choice : option.choices) {
        if (choice.keyword.compare(option.defaultChoice, Qt::CaseInsensitive) == 0)
            return choice.keyword;
    }
    return std::nullopt;
}

} // namespace

InstalledOptions::InstalledOptions(const PpdFile &ppd, const InstalledFeature *featureMap)
    : m_featureMap(featureMap)
{
    for (const PpdGroup &group : ppd.groups()) {
        if (group.name != QLatin1String("InstallableOptions"))
            continue;
        for (const PpdOption &option : group.options) {
            if (const auto choice = defaultChoiceOf(option))
                m_choices.insert(option.keyword, *choice);
        }
        break;
    }
}

std::optional<QString> InstalledOptions::choice(const QString &keyword) const
{
    const auto found = m_choices.constFind(keyword);
    return found == m_choices.constEnd() ? std::nullopt : std::optional(*found);
}

const InstalledFeature *InstalledOptions::find(const char *feature) const
{
    if (!feature || !m_featureMap)
        return nullptr;
    const auto matches = [this](const InstalledFeature &row) {
        return !row.ppdKeyword
            || (row.choice
                && choice(QString::fromUtf8(row.ppdKeyword)) == QString::fromUtf8(row.choice));
    };
    for (const InstalledFeature *row = m_featureMap; row->feature; ++row) {
        if (std::strcmp(row->feature, feature) == 0 && matches(*row))
            return row;
    }
    return nullptr;
}

bool LoadInstallableOptions(PpdFile *ppd, const InstalledFeature *featureMap)
{
    if (!ppd || loaded.isLoaded)
        return false;
    loaded = {true, InstalledOptions(*ppd, featureMap)};
    return !loaded.options.isEmpty();
}

void UnloadInstallableOptions()
{
    loaded = {};
}

const InstalledOptions &installedOptions()
{
    return loaded.options;
}

std::optional<QString> getInstallableOptionValue(const QString &keyword)
{
    return loaded.options.choice(keyword);
}

bool getInstalledFeature(const char *feature)
{
    return loaded.options.has(feature);
}

std::optional<std::int32_t> getInstallableOptionTicketValue(const QString &feature)
{
    const InstalledFeature *row = loaded.options.find(feature.toUtf8().constData());
    if (!row)
        return std::nullopt;
    return row->ticketValue;
}

std::optional<QString> CopyLocalizedStringForInstalledFeatureFromPlugin(const QString &feature,
                                                                        CFBundleRef bundle)
{
    const InstalledFeature *row = loaded.options.find(feature.toUtf8().constData());
    if (!row || !row->localizedKey)
        return std::nullopt;
    return localizedText(bundle, QString::fromUtf8(row->localizedKey));
}

} // namespace kelvo
