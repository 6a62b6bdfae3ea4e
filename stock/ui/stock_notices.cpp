#include "stock_notices.h"

#include "notice.h"
#include "preferences.h"
#include "ticket_values.h"

#include <QLocale>

namespace kelvo {

namespace {

// The texts are `key` with " Header" and " Message"; what the user has named is
// put in as it stands.
void show(CFBundleRef bundle, const QString &key, const QString &argument, QWidget *parent)
{
    const auto text = [&](const QString &part) {
        const QString format = localizedText(bundle, key + part);
        return format.contains(QLatin1String("%1")) ? format.arg(argument) : format;
    };
    CFUserNotificationDisplayNotice(NoticeLevel::Stop, text(QStringLiteral(" Header")),
                                    text(QStringLiteral(" Message")), {}, parent);
}

} // namespace

void showStockProblem(CFBundleRef bundle, StockProblem problem, QWidget *parent)
{
    switch (problem) {
    case StockProblem::None:
        return;
    case StockProblem::TypeNameMissing:
        return show(bundle, QStringLiteral("Stock Type Name Missing"), {}, parent);
    case StockProblem::ColorNameMissing:
        return show(bundle, QStringLiteral("Stock Color Name Missing"), {}, parent);
    }
}

void showLibraryProblem(CFBundleRef bundle, LibraryProblem problem, const QString &name,
                        QWidget *parent)
{
    const QLocale locale;
    switch (problem) {
    case LibraryProblem::None:
        return;
    case LibraryProblem::NameMissing:
        return show(bundle, QStringLiteral("Library Name Missing"), {}, parent);
    case LibraryProblem::NameTooLong:
        return show(bundle, QStringLiteral("Library Name Too Long"),
                    locale.toString(kLongestStockName), parent);
    case LibraryProblem::Full:
        return show(bundle, QStringLiteral("Library Full"), locale.toString(kMostLibraryStocks),
                    parent);
    case LibraryProblem::NotFound:
        return show(bundle, QStringLiteral("Library Not Found"), name, parent);
    case LibraryProblem::NotWritten: {
        const Result<QString> path = userPreferencePath(kStockLibraryFile);
        return show(bundle, QStringLiteral("Library Not Written"),
                    path ? path.value() : kStockLibraryFile, parent);
    }
    }
}

bool mayChangeLibrary(CFBundleRef bundle, const QString &question, const QString &name,
                      QWidget *parent)
{
    const auto text = [&](const QString &part) {
        return localizedText(bundle, QStringLiteral("Library %1 %2").arg(question, part));
    };
    return CFUserNotificationDisplayAlert(NoticeLevel::Caution,
                                          text(QStringLiteral("Header")).arg(name),
                                          text(QStringLiteral("Message")),
                                          {text(QStringLiteral("Button")),
                                           localizedText(bundle, QStringLiteral("Cancel Command"))},
                                          parent)
        == 1;
}

} // namespace kelvo
