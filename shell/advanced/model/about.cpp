#include "about.h"

#include "offered_choices.h"
#include "ppd_words.h"
#include "string_table.h"
#include "texts.h"
#include "values.h"

#include <QCoreApplication>
#include <QLocale>
#include <QSysInfo>

#include <algorithm>

namespace kelvo {

namespace {

// Parts of one fact, in any language; they have commas of their own.
QString together(QStringList parts)
{
    parts.removeAll(QString());
    return parts.join(QStringLiteral(" · "));
}

QString attribute(const PpdFile &ppd, const char *keyword)
{
    return ppd.attribute(keyword).value_or(QString()).simplified();
}

QString modelOf(const PpdFile &ppd)
{
    const QString model = attribute(ppd, "ModelName");
    return model.isEmpty() ? ppd.modelName().simplified() : model;
}

// "KVFULL.PPD · version 1.0", and before it what the PPD calls itself, where that is not the
// model's name.
QString ppdWords(const Device &device, const QString &model)
{
    const QString nickname = device.ppd->modelName().simplified();
    const QString version = attribute(*device.ppd, "FileVersion");
    return together(
        {nickname == model ? QString() : nickname, attribute(*device.ppd, "PCFileName"),
         version.isEmpty() ? version : formatted(device.text("About PPD Version"), {version})});
}

bool meansNothing(const QString &choice)
{
    return choice == QLatin1String("False") || choice == QLatin1String("None")
        || choice == QLatin1String("NotInstalled");
}

// "Booklet maker" of one that is there or not, "A-class finisher" of a choice that says all,
// else "Hole punch unit: 2-hole punch".
QString partWords(const PpdOption &option, const QString &choice)
{
    const QString part = optionWords(option), which = choiceWords(option, choice);
    if (choice == QLatin1String("True"))
        return part;
    return which.contains(part, Qt::CaseInsensitive) ? which : settingWords(option, choice);
}

// None where the PPD does not say.
std::optional<QString> fittedWords(const Device &device)
{
    const auto &groups = device.ppd->groups();
    const auto group = std::ranges::find_if(groups, isInstallable);
    if (group == groups.end())
        return std::nullopt;
    QStringList parts;
    for (const PpdOption &option : group->options) {
        const auto choice = device.installed.choice(option.keyword);
        if (choice && !meansNothing(*choice))
            parts << partWords(option, *choice);
    }
    return parts.isEmpty() ? device.text("About Nothing Fitted") : together(parts);
}

// The trays among the choices of an option.
QString trayWords(const PpdFile &ppd, const char *keyword)
{
    const PpdOption *option = ppd.findOption(QString::fromLatin1(keyword));
    if (!option)
        return {};
    QStringList trays;
    for (const PpdChoice &choice : option->choices) {
        if (choice.keyword != QLatin1String("Auto")
            && choice.keyword != QLatin1String("PrinterDefault")
            && isOffered(&ppd, option->keyword, choice.keyword))
            trays << choiceWords(*option, choice.keyword);
    }
    return together(trays);
}

QString libraryWords(const UsedLibrary &library, const LibraryVersions &versions)
{
    const QString name = QString::fromUtf8(library.name);
    return versions.contains(name) ? name + u' ' + versions[name] : name;
}

std::vector<AboutLine> knownOnes(std::vector<AboutLine> lines)
{
    std::erase_if(lines, [](const AboutLine &line) { return line.value.isEmpty(); });
    return lines;
}

} // namespace

std::vector<AboutLine> aboutVersions(const Device &device)
{
    const Dictionary info = device.bundle ? device.bundle->info() : Dictionary();
    return knownOnes({
        {kAboutPanels,
         string(info, QStringLiteral("CFBundleShortVersionString")).value_or(QString())},
        {kAboutProgram,
         QStringLiteral("%1 %2")
             .arg(QCoreApplication::applicationName(), QCoreApplication::applicationVersion())
             .trimmed()},
    });
}

std::vector<AboutLine> aboutDevice(const Device &device, const QString &printer)
{
    if (!device.ppd)
        return knownOnes({{kAboutDevice, device.text("About Device Not Known")},
                          {kAboutPrinter, printer.simplified()}});
    const QString model = modelOf(*device.ppd);
    return knownOnes({
        {kAboutDevice, model},
        {kAboutPrinter, printer == model ? QString() : printer.simplified()},
        {kAboutPpd, ppdWords(device, model)},
        {kAboutFitted, fittedWords(device).value_or(QString())},
        {kAboutPaperTrays, trayWords(*device.ppd, "InputSlot")},
        {kAboutOutputTrays, trayWords(*device.ppd, "OutputBin")},
    });
}

std::vector<AboutLine> aboutSystem(const QString &windowSystem)
{
    return knownOnes({
        {"About System:",
         together({QSysInfo::prettyProductName(),
                   QSysInfo::kernelType() + u' ' + QSysInfo::kernelVersion(),
                   QSysInfo::currentCpuArchitecture()})},
        {"About Language:", textLanguage()},
        {"About Locale:", QLocale().name()},
        {"About Window System:", windowSystem},
    });
}

QString aboutText(const Device &device, const std::vector<AboutLine> &lines)
{
    QString text;
    for (const AboutLine &line : lines)
        text += device.text(line.key) + u' ' + line.value + u'\n';
    return text;
}

QString aboutLibraries(const Device &device, const LibraryVersions &versions)
{
    QStringList lines;
    for (const UsedLibrary &library : usedLibraries()) {
        lines << formatted(device.text("About Library"),
                           {libraryWords(library, versions), QString::fromUtf8(library.license),
                            QString::fromUtf8(library.authors)});
    }
    return lines.join(u'\n');
}

} // namespace kelvo
