#include "language.h"

#include "application_files.h"
#include "string_table.h"
#include "texts.h"

#include <QLocale>

namespace kelvo {

namespace {

// Dates, numbers and paper sizes are those of the language where the user lives, as far as
// anybody speaks it there.
QLocale localeOf(const QString &language)
{
    const QLocale locale(language);
    const QLocale atHome(locale.language(), QLocale::system().territory());
    const bool namesPlace = language.contains(u'_') || language.contains(u'-');
    return namesPlace || atHome.language() != locale.language() ? locale : atHome;
}

// Whoever asks for the C locale wants what programs say in English: LANGUAGE does not count
// there, as for every program.
bool isLocaleC()
{
    for (const char *name : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
        const QByteArray value = qgetenv(name);
        if (!value.isEmpty())
            return value == "C" || value == "POSIX" || value.startsWith("C.");
    }
    return true;
}

} // namespace

Result<void> chooseLanguage(const std::optional<QString> &asked)
{
    const QString folder = findSharedFile(QStringLiteral("strings"));
    if (asked)
        QLocale::setDefault(localeOf(*asked));
    else if (isLocaleC())
        QLocale::setDefault(QLocale::c());
    const QLocale locale;
    loadTexts(folder, locale.uiLanguages());
    QLocale::setDefault(withDigitsOfTexts(locale));
    if (!asked
        || (locale.language() != QLocale::C
            && QLocale(textLanguage()).language() == locale.language()))
        return {};
    QLocale::setDefault(QLocale::system());
    loadTexts(folder, QLocale().uiLanguages());
    QStringList languages = languagesIn(folder) << QStringLiteral("en");
    languages.sort();
    return Error{Error::Code::Refused, QStringLiteral("--language"),
                 translate("Main", "there are no texts in the language “%1”; name one of these: %2")
                     .arg(*asked, languages.join(QStringLiteral(", ")))};
}

} // namespace kelvo
