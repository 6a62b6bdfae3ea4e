#include "stock_notices.h"

#include "notice.h"
#include "preferences.h"
#include "string_table.h"
#include "ticket_values.h"

#include <QLocale>

namespace kelvo {

namespace {

// The message's place holder, if it has one, is for `argument`.
void show(CFBundleRef bundle, const char *headerKey, const char *messageKey, QWidget *parent,
          const QString &argument = {})
{
    CFUserNotificationDisplayNotice(
        NoticeLevel::Stop, localizedText(bundle, QString::fromLatin1(headerKey)),
        formatted(localizedText(bundle, QString::fromLatin1(messageKey)), {argument}), {}, parent);
}

struct Question
{
    const char *headerKey, *messageKey, *buttonKey;
};

Question questionOf(LibraryChange change)
{
    switch (change) {
    case LibraryChange::Replace:
        return Question{"Library Replace Header", "Library Replace Message",
                        "Library Replace Button"};
    case LibraryChange::Remove:
        return Question{"Library Remove Header", "Library Remove Message", "Library Remove Button"};
    }
    return {};
}

} // namespace

void showStockProblem(CFBundleRef bundle, StockProblem problem, QWidget *parent)
{
    switch (problem) {
    case StockProblem::None:
        return;
    case StockProblem::TypeNameMissing:
        return show(bundle, "Stock Type Name Missing Header", "Stock Type Name Missing Message",
                    parent);
    case StockProblem::ColorNameMissing:
        return show(bundle, "Stock Color Name Missing Header", "Stock Color Name Missing Message",
                    parent);
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
        return show(bundle, "Library Name Missing Header", "Library Name Missing Message", parent);
    case LibraryProblem::NameTooLong:
        return show(bundle, "Library Name Too Long Header", "Library Name Too Long Message", parent,
                    locale.toString(kLongestStockName));
    case LibraryProblem::Full:
        return show(bundle, "Library Full Header", "Library Full Message", parent,
                    locale.toString(kMostLibraryStocks));
    case LibraryProblem::NotFound:
        return show(bundle, "Library Not Found Header", "Library Not Found Message", parent, name);
    case LibraryProblem::NotWritten: {
        const Result<QString> path = userPreferencePath(kStockLibraryFile);
        return show(bundle, "Library Not Written Header", "Library Not Written Message", parent,
                    path ? path.value() : kStockLibraryFile);
    }
    }
}

bool mayChangeLibrary(CFBundleRef bundle, LibraryChange change, const QString &name,
                      QWidget *parent)
{
    const auto text = [bundle](const char *key) {
        return localizedText(bundle, QString::fromLatin1(key));
    };
    const Question question = questionOf(change);
    return CFUserNotificationDisplayAlert(
               NoticeLevel::Caution, formatted(text(question.headerKey), {name}),
               text(question.messageKey), {text(question.buttonKey), text("Cancel Command")},
               parent)
        == 1;
}

} // namespace kelvo
