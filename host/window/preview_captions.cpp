#include "preview_captions.h"

#include "texts.h"

#include <QStringList>

namespace kelvo {

QString sideCaption(const SheetSide &side, int page, int count, const SpecialSheetWords &words)
{
    const QString sheet = QString::number(side.sheet);
    switch (side.kind) {
    case SheetSide::Kind::FrontCover:
        return translate("Preview", "Sheet %1 · %2").arg(sheet, words.frontCover);
    case SheetSide::Kind::BackCover:
        return translate("Preview", "Sheet %1 · %2").arg(sheet, words.backCover);
    case SheetSide::Kind::Insert:
        if (side.sheets == 1)
            return translate("Preview", "Sheet %1 · %2").arg(sheet, words.insert);
        return translate("Preview", "Sheets %1–%2 · %3")
            .arg(sheet, QString::number(side.sheet + side.sheets - 1), words.insert);
    case SheetSide::Kind::BlankBack:
        return translate("Preview", "Sheet %1, back · blank").arg(sheet);
    case SheetSide::Kind::Page:
        break;
    }
    if (!side.isTwoSided)
        return translate("Preview", "Sheet %1 · page %2 of %3")
            .arg(sheet, QString::number(page), QString::number(count));
    return side.isBack ? translate("Preview", "Sheet %1, back · page %2 of %3")
                             .arg(sheet, QString::number(page), QString::number(count))
                       : translate("Preview", "Sheet %1, front · page %2 of %3")
                             .arg(sheet, QString::number(page), QString::number(count));
}

QString remarkCaption(const SheetSide &side, bool isCut, const SpecialSheetWords &words)
{
    if (side.kind != SheetSide::Kind::Page)
        return {};
    QStringList remarks;
    if (side.exceptionFirst > 0) {
        const QString pages = side.exceptionFirst == side.exceptionLast
            ? QString::number(side.exceptionFirst)
            : QStringLiteral("%1–%2").arg(side.exceptionFirst).arg(side.exceptionLast);
        remarks << QString(words.exception).replace(QStringLiteral("%1"), pages);
    }
    if (isCut)
        remarks << translate("Preview", "larger than the paper");
    return remarks.join(QStringLiteral(" · "));
}

QString sheetWords(const SheetSide &side, const SpecialSheetWords &words)
{
    switch (side.kind) {
    case SheetSide::Kind::FrontCover:
        return words.frontCover;
    case SheetSide::Kind::BackCover:
        return words.backCover;
    case SheetSide::Kind::Insert:
        return side.sheets == 1
            ? words.insert
            : translate("Preview", "%1, %n sheet(s)", nullptr, side.sheets).arg(words.insert);
    case SheetSide::Kind::BlankBack:
        return translate("Preview", "Blank");
    case SheetSide::Kind::Page:
        break;
    }
    return {};
}

} // namespace kelvo
