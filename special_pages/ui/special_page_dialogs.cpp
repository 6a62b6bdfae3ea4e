#include "special_page_dialogs.h"

#include "control.h"
#include "hint_text.h"
#include "input_limits.h"
#include "localized_controls.h"
#include "special_pages_context.h"
#include "special_pages_notices.h"
#include "special_pages_view.h"
#include "stock_summary.h"

#include <QLabel>
#include <QLineEdit>

namespace kelvo {

void findStockControls(_StockMenuCommandEventHandlerData &data, NeededControls &needed,
                       std::int32_t first)
{
    data.icon = needed.find<PictureView>({kPanelSignature, first});
    data.button = needed.find<MenuButton>({kPanelSignature, first + 1});
    data.summary = needed.find<SummaryView>({kPanelSignature, first + 2});
}

void showJobPaper(const Device &device, QLabel *label, const Stock *jobStock)
{
    if (!label)
        return;
    const QString paper = jobPaperText(device, jobStock);
    SetLocalizedStaticText(device.bundle, QStringLiteral("Job Paper"), label, {paper});
    makeHintText(label);
    label->setVisible(!paper.isEmpty());
}

void initializePagesField(QLineEdit *field, QLabel *hint)
{
    InputLimits limits{.allowed = InputLimits::setOf(QStringLiteral("0123456789, -"))};
    // As page numbers are written elsewhere. Left out, they would make one number of two.
    for (const char32_t dash : {U'\u2010', U'\u2011', U'\u2012', U'\u2013', U'\u2014', U'\u2212'})
        limits.substitutes.insert(dash, U'-');
    for (const char32_t comma : {U';', U':', U'.', U'/', U'+', U'&', U'\u3001', U'\uFF0C'})
        limits.substitutes.insert(comma, U',');
    for (const char32_t blank : {U'\t', U'\n', U'\u00A0', U'\u202F', U'\u2009'})
        limits.substitutes.insert(blank, U' ');
    setInputLimits(field, limits);
    makeHintText(hint);
    field->setAccessibleDescription(hint->text());
    field->setFocus();
}

void refusePages(OSStatus problem, CFBundleRef bundle, QLineEdit *field)
{
    SpecialPagesUserNotification(problem, bundle, field);
    field->setFocus();
    field->selectAll();
}

OSStatus putIntoList(SpecialPageList &list, const SpecialPage *edited, SpecialPageList::Pages pages)
{
    SaveUndoState(_specialPagesContext);
    const OSStatus status = edited ? list.update(*edited, pages) : list.add(pages);
    UpdateSpecialPagesSummary(_specialPagesContext);
    return status;
}

} // namespace kelvo
