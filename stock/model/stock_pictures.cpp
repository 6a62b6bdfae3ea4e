#include "stock_pictures.h"

namespace kelvo {

namespace {

const char *familyOf(std::int32_t type)
{
    switch (type) {
    case kStockTypeEnvelope:
        return "Paper_Envelope-";
    case 5: // full-cut tab
        return "Paper_FullCutTab-";
    case kStockTypePrecutTab:
    case kStockTypeTab:
    case kStockTypeHeavyTab:
        return "Paper_Pre-CutTab-";
    case 26: // second sides: CardStock2, ExtraHeavyweight2, LightGlossy2, HeavyGlossy2,
    case 28: // ExtraHeavyPlus2, ExtraHeavyGlossy2
    case 30:
    case 32:
    case 36:
    case 38:
        return "Paper_Reloaded-";
    default:
        return "Paper_Plain-";
    }
}

// What lies over the sheet for its type; empty where nothing does.
QString typeOverlay(const Stock &stock)
{
    switch (stock.type()) {
    case kStockTypeTransparency:
        return stock.color() == kStockColorClear ? QString() : QStringLiteral("LightweightGloss");
    case 3:
        return QStringLiteral("Pre-Printed");
    case kStockTypeOrdered:
        return QStringLiteral("OrderedStock");
    case 12:
    case 27:
    case 35:
        return QStringLiteral("Heavyweight");
    case 14:
        return QStringLiteral("Letterhead");
    case 15:
    case 16:
    case 17:
    case 18:
    case 19:
    case 20:
    case 21:
        return QStringLiteral("Custom%1").arg(stock.type() - 14);
    case 22:
        return QStringLiteral("Other");
    case kStockTypeHeavyLabels:
    case kStockTypeExtraHeavyLabels:
        return QStringLiteral("LablesHeavyweight"); // the file is spelled so
    case 26:
    case 28:
    case 36:
        return QStringLiteral("HeavyweightReloaded");
    case 29:
        return QStringLiteral("LightweightGloss");
    case 30:
        return QStringLiteral("LightweightGlossReloaded");
    case 31:
    case 37:
        return QStringLiteral("HeavyweightGloss");
    case 32:
    case 38:
        return QStringLiteral("HeavyweightGlossReloaded");
    case 40:
        return QStringLiteral("RoughSurface");
    default:
        return {};
    }
}

} // namespace

QString stockColorWord(std::int32_t color)
{
    switch (color) {
    case kStockColorBlue:
        return QStringLiteral("Blue");
    case kStockColorYellow:
        return QStringLiteral("Yellow");
    case kStockColorGreen:
        return QStringLiteral("Green");
    case kStockColorPink:
        return QStringLiteral("Pink");
    case kStockColorClear:
        return QStringLiteral("Clear");
    case kStockColorBuff:
        return QStringLiteral("Buff");
    case kStockColorGoldenrod:
        return QStringLiteral("Goldenrod");
    case kStockColorRed:
        return QStringLiteral("Red");
    case kStockColorIvory:
        return QStringLiteral("Ivory");
    case kStockColorGray:
        return QStringLiteral("Gray");
    case kStockColorOrange:
        return QStringLiteral("Orange");
    default:
        return QStringLiteral("White");
    }
}

QStringList stockPictures(const Stock &stock)
{
    QStringList overlays;
    if (stock.type() == 10)
        overlays << QStringLiteral("Recycled");
    else if (stock.type() == 25 || stock.type() == 9)
        overlays << QStringLiteral("Labels");
    if (stock.punched() == kStockPrePunched || stock.type() == kStockTypePunched)
        overlays << (stock.type() == kStockTypeEnvelope ? QStringLiteral("HolePunchedEnvelope")
                                                        : QStringLiteral("HolePunched"));
    const QString overlay = typeOverlay(stock);
    if (!overlay.isEmpty())
        overlays << overlay;

    QStringList pictures = {
        QStringLiteral("%1%2.gif")
            .arg(QString::fromLatin1(familyOf(stock.type())), stockColorWord(stock.color()))};
    for (const QString &name : std::as_const(overlays))
        pictures << QStringLiteral("Paper_Overlay-%1.gif").arg(name);
    return pictures;
}

} // namespace kelvo
