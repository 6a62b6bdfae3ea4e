#include "preview_captions.h"

#include "layout_words.h"
#include "texts.h"

#include <algorithm>
#include <cmath>

namespace kelvo {

namespace {

// What a sheet is called, and which of its sides one looks at.
QString sideWords(const SheetSide &side)
{
    const QString sheet = QString::number(side.sheet);
    if (!side.isTwoSided)
        return translate("Preview", "Sheet %1").arg(sheet);
    return (side.isBack ? translate("Preview", "Sheet %1, back")
                        : translate("Preview", "Sheet %1, front"))
        .arg(sheet);
}

QString blankBackCaption(const SheetSide &side)
{
    return translate("Preview", "Sheet %1, back · blank").arg(side.sheet);
}

QString pagesCaption(const SheetSide &side, const PrintedPages &printed, const QString &count)
{
    const bool isBooklet = side.kind == SheetSide::Kind::Booklet;
    QList<int> pages;
    for (const int page :
         isBooklet ? QList<int>{side.bookletPages[0], side.bookletPages[1]} : QList<int>{side.page})
        pages << printed.onPage(page);
    const bool isBlankHalf = isBooklet && std::ranges::count(side.bookletPages, 0) == 1;
    pages.removeAll(0);
    if (pages.isEmpty())
        return blankBackCaption(side);
    const QString words = translate("Preview", "%1 · page(s) %2 of %3", nullptr, pages.size())
                              .arg(sideWords(side), pageListInWords(pages), count);
    return isBlankHalf ? translate("Preview", "%1, one blank").arg(words) : words;
}

// "2–3, 5"
QString rangesInWords(const QList<SpecialSheets::Exception> &exceptions)
{
    QStringList ranges;
    for (const auto &range : exceptions)
        ranges << (range.firstPage == range.lastPage
                       ? QString::number(range.firstPage)
                       : QStringLiteral("%1–%2").arg(range.firstPage).arg(range.lastPage));
    return ranges.join(QStringLiteral(", "));
}

} // namespace

QString sideCaption(const SheetSide &side, const PrintedPages &pages, int count,
                    const SpecialSheetWords &words, const QString &leadingPage)
{
    const QString sheet = QString::number(side.sheet);
    switch (side.kind) {
    case SheetSide::Kind::LeadingPage:
        return leadingPage;
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
        return blankBackCaption(side);
    case SheetSide::Kind::Booklet:
    case SheetSide::Kind::Page:
        break;
    }
    return pagesCaption(side, pages, QString::number(count));
}

QString remarkCaption(const SheetSide &side, const SidePlacement &placement,
                      const QStringList &lackingOverlays, const SpecialSheetWords &words)
{
    QStringList remarks;
    if (side.isAnywhere)
        remarks << translate("Preview", "the printer decides where it goes");
    if (side.kind != SheetSide::Kind::Page && side.kind != SheetSide::Kind::Booklet)
        return remarks.join(QStringLiteral(" · "));
    if (!side.exceptions.isEmpty())
        remarks << QString(words.exception)
                       .replace(QStringLiteral("%1"), rangesInWords(side.exceptions));
    const bool isAlone = placement.pages.size() == 1;
    if (placement.isCut())
        remarks << (isAlone ? translate("Preview", "larger than the paper")
                            : translate("Preview", "larger than the places on the sheet"));
    if (isAlone && std::lround(placement.pages.first().scale * 100) != 100)
        remarks << translate("Preview", "at %1", "a percentage of its size")
                       .arg(percentInWords(std::lround(placement.pages.first().scale * 100)));
    if (side.kind == SheetSide::Kind::Booklet)
        remarks << (placement.fold.dx() > 0
                        ? translate("Preview", "shown top to bottom; the printer decides")
                        : translate("Preview", "shown left to right; the printer decides"));
    for (const QString &name : lackingOverlays)
        remarks << translate("Preview", "“%1” cannot be shown").arg(name);
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
        return blankWords();
    case SheetSide::Kind::LeadingPage:
    case SheetSide::Kind::Page:
    case SheetSide::Kind::Booklet:
        break;
    }
    return {};
}

QString blankWords()
{
    return translate("Preview", "Blank");
}

} // namespace kelvo
