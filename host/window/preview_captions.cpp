#include "preview_captions.h"

#include "texts.h"

namespace kelvo {

namespace {

QString pageCaption(const SheetSide &side, const QString &sheet, const QString &page,
                    const QString &count)
{
    if (!side.isTwoSided)
        return translate("Preview", "Sheet %1 · page %2 of %3").arg(sheet, page, count);
    return side.isBack
        ? translate("Preview", "Sheet %1, back · page %2 of %3").arg(sheet, page, count)
        : translate("Preview", "Sheet %1, front · page %2 of %3").arg(sheet, page, count);
}

QString bookletCaption(const SheetSide &side, const QString &sheet,
                       const std::vector<PageRun> &runs, const QString &count)
{
    QStringList pages;
    for (int page : side.bookletPages) {
        if (page > 0)
            pages << QString::number(documentPage(runs, page - 1));
    }
    if (pages.isEmpty())
        return translate("Preview", "Sheet %1, back · blank").arg(sheet);
    if (pages.size() == 1)
        return (side.isBack ? translate("Preview", "Sheet %1, back · page %2 of %3, one blank")
                            : translate("Preview", "Sheet %1, front · page %2 of %3, one blank"))
            .arg(sheet, pages[0], count);
    return (side.isBack ? translate("Preview", "Sheet %1, back · pages %2 and %3 of %4")
                        : translate("Preview", "Sheet %1, front · pages %2 and %3 of %4"))
        .arg(sheet, pages[0], pages[1], count);
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

QString sideCaption(const SheetSide &side, const std::vector<PageRun> &runs, int count,
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
        return translate("Preview", "Sheet %1, back · blank").arg(sheet);
    case SheetSide::Kind::Booklet:
        return bookletCaption(side, sheet, runs, QString::number(count));
    case SheetSide::Kind::Page:
        break;
    }
    return pageCaption(side, sheet, QString::number(documentPage(runs, side.page - 1)),
                       QString::number(count));
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
    if (placement.isCut())
        remarks << translate("Preview", "larger than the paper");
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
