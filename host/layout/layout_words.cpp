#include "layout_words.h"

#include "texts.h"

namespace kelvo {

QString wordsOf(PageSet set)
{
    switch (set) {
    case PageSet::All:
        return translate("Layout", "Odd and even");
    case PageSet::Odd:
        return translate("Layout", "Odd pages");
    case PageSet::Even:
        return translate("Layout", "Even pages");
    }
    return {};
}

QString wordsOf(PageScaling scaling)
{
    switch (scaling) {
    case PageScaling::Shrink:
        return translate("Layout", "Shrink larger pages");
    case PageScaling::Fit:
        return translate("Layout", "Fit to paper");
    case PageScaling::Fill:
        return translate("Layout", "Fill the paper");
    case PageScaling::Percent:
        return translate("Layout", "Percentage");
    case PageScaling::None:
        return translate("Layout", "None");
    }
    return {};
}

QString wordsOf(PageFlow flow)
{
    switch (flow) {
    case PageFlow::LrTb:
        return translate("Layout", "Right, then down");
    case PageFlow::LrBt:
        return translate("Layout", "Right, then up");
    case PageFlow::RlTb:
        return translate("Layout", "Left, then down");
    case PageFlow::RlBt:
        return translate("Layout", "Left, then up");
    case PageFlow::TbLr:
        return translate("Layout", "Down, then right");
    case PageFlow::TbRl:
        return translate("Layout", "Down, then left");
    case PageFlow::BtLr:
        return translate("Layout", "Up, then right");
    case PageFlow::BtRl:
        return translate("Layout", "Up, then left");
    }
    return {};
}

QString percentInWords(long percent)
{
    return translate("Layout", "%1 %", "a percentage").arg(percent);
}

QString pageListInWords(const QList<int> &pages)
{
    constexpr qsizetype mostListed = 8;
    QStringList runs;
    qsizetype told = 0;
    for (qsizetype first = 0; first < pages.size() && runs.size() < mostListed; first = told) {
        told = first + 1;
        while (told < pages.size() && pages[told] == pages[told - 1] + 1)
            ++told;
        const QString begin = QString::number(pages[first]);
        runs << (told == first + 1 ? begin : begin + u'–' + QString::number(pages[told - 1]));
    }
    const qsizetype untold = pages.size() - told;
    return untold > 0 ? translate("Layout", "%1 and %n more", nullptr, untold)
                            .arg(runs.join(QStringLiteral(", ")))
                      : listed(runs);
}

} // namespace kelvo
