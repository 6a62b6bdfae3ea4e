#include "booklet_creation.h"

#include "ppd_choices.h"
#include "stock.h"
#include "stock_menus.h"

namespace kelvo {

_BookletCreationParams paramsOf(const BookletSettings &booklet, std::int32_t fold)
{
    return {nullptr,         fold,           booklet.layout, booklet.pageBorders,
            booklet.newSize, booklet.gutter, booklet.creep};
}

BookletSettings bookletOf(const _BookletCreationParams &params)
{
    return {params.booklet, params.pageBorders, params.gutter, params.creep, params.newSize};
}

bool offersBookletFold(const Device &device)
{
    return device.has("BookletFoldKey") || device.has("BiFoldMultiple")
        || device.has("BiFoldStapleMultiple");
}

Menu newSizeMenu(const Device &device)
{
    Menu menu;
    menu.items.push_back(
        {.text = device.text("Off"), .key = QStringLiteral("Off"), .reference = kUnset});
    PopulateStockSizeMenu(menu, device, kJobContextJob);
    // How large it is could not be said.
    std::erase_if(menu.items,
                  [](const MenuItem &item) { return item.reference == kStockSizeCustom; });
    return menu;
}

QSizeF sizeOfPaper(const Device &device, std::int32_t size)
{
    const auto name = PPDChoiceForTicketValue(QStringLiteral("PageSize"), size);
    const PpdPageSize *paper = name && device.ppd ? device.ppd->findPageSize(*name) : nullptr;
    return paper ? QSizeF(paper->width, paper->height) : QSizeF();
}

QString bookletPicture(const _BookletCreationParams &params)
{
    QStringList parts;
    const bool isOn = params.booklet == kBookletOn;
    if (isOn)
        parts << QStringLiteral("Booklet");
    if (params.fold == kFoldBi || params.fold == kFoldBiAndStaple)
        parts << QStringLiteral("Fold");
    if (params.fold == kFoldBiAndStaple)
        parts << QStringLiteral("Staple");
    if (isOn && params.pageBorders != kPageBordersNone)
        parts << QStringLiteral("Outlines");
    if (parts.isEmpty())
        parts << QStringLiteral("None");
    return QStringLiteral("BookletCreation_%1.gif").arg(parts.join(u'-'));
}

} // namespace kelvo
