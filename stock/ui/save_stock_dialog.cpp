#include "save_stock_dialog.h"

#include "control.h"
#include "dialog_window.h"
#include "hint_text.h"
#include "input_limits.h"
#include "stock_library.h"
#include "stock_notices.h"

#include <QLabel>
#include <QLineEdit>

#include <algorithm>

namespace kelvo {

namespace {

constexpr ControlID kNameField{kPanelSignature, 7081};
constexpr ControlID kNameHint{kPanelSignature, 7082};

bool isInLibrary(const QString &name)
{
    return std::ranges::any_of(readStockLibrary(), [&name](const Stock &stock) {
        return sameStockName(stock.customName(), name);
    });
}

} // namespace

std::optional<QString> RunModalSaveStock(CFBundleRef bundle, const Stock &stock,
                                         const QString &suggestion, QWidget *parent)
{
    const auto dialog = createModalDialog(bundle, QStringLiteral("AdvancedStockSelection"),
                                          QStringLiteral("SaveInLibrary"), parent, {kNameField});
    if (!dialog)
        return std::nullopt;
    auto *field = findControl<QLineEdit>(dialog.get(), kNameField);
    const InputLimits limits{.maximumLength = kLongestStockName};
    setInputLimits(field, limits);
    field->setText(withinLimits(suggestion, limits));
    field->selectAll();
    makeHintText(findControl<QLabel>(dialog.get(), kNameHint));

    dialog->setAcceptRule([bundle, &stock, field, window = dialog.get()] {
        const QString name = field->text().trimmed();
        if (isInLibrary(name) && !mayChangeLibrary(bundle, LibraryChange::Replace, name, window))
            return false;
        const LibraryProblem problem = saveInStockLibrary(name, stock);
        showLibraryProblem(bundle, problem, name, window);
        return problem == LibraryProblem::None;
    });
    if (dialog->runModal() != DialogResult::OK)
        return std::nullopt;
    return field->text().trimmed();
}

} // namespace kelvo
