#pragma once

#include "bundle.h"
#include "needed_controls.h"
#include "special_page_list.h"
#include "stock_menu_button.h"

#include <vector>

class QLabel;
class QLineEdit;

// What the dialogs of special pages have in common.
namespace kelvo {

// The icon, button and summary of `data.stock`, which stand at KPDE `first` and the
// two numbers after it.
void findStockControls(_StockMenuCommandEventHandlerData &data, NeededControls &needed,
                       std::int32_t first);

// What "use job setting" means for paper; hidden where the job has none.
void showJobPaper(const Device &device, QLabel *label, const Stock *jobStock);

// Nothing but page numbers and ranges can be typed into the field. `hint` stands
// below it.
void initializePagesField(QLineEdit *field, QLabel *hint);
// Says what is wrong with the pages, which stay as they are typed, all selected.
void refusePages(OSStatus problem, CFBundleRef bundle, QLineEdit *field);

// Adds copies of the pages to the list, or puts them in the place of `edited` when
// that is not null. The panel, where there is one, can undo it and shows it.
OSStatus putIntoList(SpecialPageList &list, const SpecialPage *edited,
                     SpecialPageList::Pages pages);

template <typename Page>
OSStatus putIntoList(SpecialPageList &list, const SpecialPage *edited,
                     const std::vector<Page> &pages)
{
    std::vector<const SpecialPage *> pointers;
    pointers.reserve(pages.size());
    for (const Page &page : pages)
        pointers.push_back(&page);
    return putIntoList(list, edited, SpecialPageList::Pages(pointers));
}

} // namespace kelvo
