#include "preview_captions.h"

#include <QCoreApplication>
#include <QStringList>

namespace kelvo {

namespace {

QString tr(const char *text)
{
    return QCoreApplication::translate("DocumentPreview", text);
}

} // namespace

QString sideCaption(const SheetSide &side, int page, int count, const SpecialSheetWords &words)
{
    const QString sheet = QString::number(side.sheet);
    switch (side.kind) {
    case SheetSide::Kind::FrontCover:
        return tr("Sheet %1 · %2").arg(sheet, words.frontCover);
    case SheetSide::Kind::BackCover:
        return tr("Sheet %1 · %2").arg(sheet, words.backCover);
    case SheetSide::Kind::Insert:
        if (side.sheets == 1)
            return tr("Sheet %1 · %2").arg(sheet, words.insert);
        return tr("Sheets %1–%2 · %3")
            .arg(sheet, QString::number(side.sheet + side.sheets - 1), words.insert);
    case SheetSide::Kind::BlankBack:
        return tr("Sheet %1, back · blank").arg(sheet);
    case SheetSide::Kind::Page:
        break;
    }
    const QString text = !side.isTwoSided ? tr("Sheet %1 · page %2 of %3")
        : side.isBack                     ? tr("Sheet %1, back · page %2 of %3")
                                          : tr("Sheet %1, front · page %2 of %3");
    return text.arg(sheet).arg(page).arg(count);
}

QString remarkCaption(const SheetSide &side, bool isCut, const SpecialSheetWords &words)
{
    if (side.kind != SheetSide::Kind::Page)
        return {};
    QStringList remarks;
    if (side.exceptionFirst > 0) {
        const QString pages = side.exceptionFirst == side.exceptionLast
            ? QString::number(side.exceptionFirst)
            : tr("%1–%2").arg(side.exceptionFirst).arg(side.exceptionLast);
        remarks << QString(words.exception).replace(QStringLiteral("%1"), pages);
    }
    if (isCut)
        remarks << tr("larger than the paper");
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
        return side.sheets == 1 ? words.insert
                                : tr("%1, %2 sheets").arg(words.insert).arg(side.sheets);
    case SheetSide::Kind::BlankBack:
        return tr("Blank");
    case SheetSide::Kind::Page:
        break;
    }
    return {};
}

} // namespace kelvo
