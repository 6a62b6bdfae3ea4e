#pragma once

#include "page_layout.h"

#include <QList>
#include <QString>

// What pages and their layout are called: in menus, in the summary, below the preview.
namespace kelvo {

QString wordsOf(PageSet set);
QString wordsOf(PageScaling scaling);
QString wordsOf(PageFlow flow);
QString percentInWords(long percent);

// "2 and 4–6"; of many the first few.
QString pageListInWords(const QList<int> &pages);

} // namespace kelvo
