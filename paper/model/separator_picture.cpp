#include "separator_picture.h"

#include "separators.h"
#include "stock_pictures.h"

namespace kelvo {

QString separatorPicture(std::int32_t separators, std::int32_t color)
{
    const QString colorWord = stockColorWord(color == kStockColorClear ? kStockColorWhite : color);
    switch (separators) {
    case kSeparatorsBlank:
        return QStringLiteral("Paper_TransparencySeparators_BlnkSeps-%1.gif").arg(colorWord);
    case kSeparatorsPrinted:
        return QStringLiteral("Paper_TransparencySeparators_PrntSeps-%1.gif").arg(colorWord);
    default:
        return QStringLiteral("Paper_TransparencySeparators_None.gif");
    }
}

} // namespace kelvo
