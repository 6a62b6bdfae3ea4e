#include "text_direction.h"

#include "texts.h"

#include <QApplication>
#include <QLocale>
#include <QPainter>
#include <QProxyStyle>
#include <QStyleOption>
#include <QTextLayout>

#include <algorithm>
#include <cmath>
#include <limits>

namespace kelvo {

namespace {

constexpr int alignmentBits = Qt::AlignHorizontal_Mask | Qt::AlignVertical_Mask;
constexpr int mnemonicBits = Qt::TextShowMnemonic | Qt::TextHideMnemonic;

struct MarkedText
{
    QString text;        // as it is shown
    qsizetype mark = -1; // of the mnemonic in it
};

MarkedText withoutMark(const QString &text)
{
    MarkedText marked;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i] == u'&' && i + 1 < text.size()) {
            ++i; // "&&" shows one
            if (text[i] != u'&' && marked.mark < 0)
                marked.mark = marked.text.size();
        }
        marked.text += text[i];
    }
    return marked;
}

bool runsToTheLeft(QChar character)
{
    return character.direction() == QChar::DirR || character.direction() == QChar::DirAL;
}

// A text of the device or the user that has none of the window's letters, in its own order:
// "2 Staples" and "+1 (555) 0199" would begin at their other end.
QString inItsOrder(const QString &text)
{
    if (text.isEmpty() || std::any_of(text.cbegin(), text.cend(), runsToTheLeft))
        return text;
    constexpr QChar leftToRightIsolate(0x2066), popIsolate(0x2069);
    return leftToRightIsolate + text + popIsolate;
}

// With a line break where a line of that width ends.
QString inLines(QString text, const QFont &font, int width)
{
    QTextOption option;
    option.setWrapMode(QTextOption::WordWrap);
    QTextLayout layout(text.replace(u'\n', QChar::LineSeparator), font);
    layout.setTextOption(option);
    QStringList lines;
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        QString words = text.mid(line.textStart(), line.textLength());
        while (!words.isEmpty() && words.back().isSpace())
            words.chop(1);
        lines << words;
    }
    layout.endLayout();
    return lines.join(u'\n');
}

// Where the line under the mnemonic goes of a text that is drawn in one line.
QRectF underlineOf(const MarkedText &marked, const QFont &font, Qt::Alignment alignment,
                   const QRect &area, Qt::LayoutDirection direction)
{
    QTextOption option(Qt::AlignLeft | Qt::AlignAbsolute);
    option.setWrapMode(QTextOption::NoWrap);
    option.setTextDirection(direction);
    QTextLayout layout(marked.text, font);
    layout.setTextOption(option);
    layout.beginLayout();
    QTextLine line = layout.createLine();
    line.setLineWidth(std::numeric_limits<short>::max());
    layout.endLayout();

    const QRectF letters = QStyle::alignedRect(
        direction, alignment, {int(line.naturalTextWidth()), int(line.height())}, area);
    const double from = line.cursorToX(int(marked.mark));
    const double to = line.cursorToX(int(marked.mark) + 1);
    const QFontMetricsF metrics(font);
    return {letters.left() + std::min(from, to),
            letters.top() + line.ascent() + metrics.underlinePos(), std::abs(to - from),
            std::max(1.0, metrics.lineWidth())};
}

// The desktop's style, for windows that run to the left.
class RightToLeftStyle : public QProxyStyle
{
public:
    // Qt shapes the letter that it underlines for itself: in Arabic the letters beside it then
    // stand apart from it, and the word is longer than the room that was measured for it. And
    // where it breaks a line it leaves room for the blank that ends it, before its first word.
    void drawItemText(QPainter *painter, const QRect &area, int flags, const QPalette &palette,
                      bool isEnabled, const QString &text, QPalette::ColorRole role) const override
    {
        MarkedText marked = flags & mnemonicBits ? withoutMark(text) : MarkedText{text};
        if (marked.mark >= 0 && !runsToTheLeft(marked.text[marked.mark])) {
            QProxyStyle::drawItemText(painter, area, flags, palette, isEnabled, inItsOrder(text),
                                      role);
            return;
        }
        marked.text = inItsOrder(marked.text);
        if (flags & Qt::TextWordWrap)
            marked.text = inLines(marked.text, painter->font(), area.width());
        QProxyStyle::drawItemText(painter, area, flags & ~(mnemonicBits | Qt::TextWordWrap),
                                  palette, isEnabled, marked.text, role);
        if (marked.mark < 0 || !(flags & Qt::TextShowMnemonic) || marked.text.contains(u'\n'))
            return;
        painter->fillRect(underlineOf(marked, painter->font(), Qt::Alignment(flags & alignmentBits),
                                      area, painter->layoutDirection()),
                          role == QPalette::NoRole ? painter->pen().brush() : palette.brush(role));
    }

    // What draws its text by itself.
    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget) const override
    {
        if (const auto *cell = qstyleoption_cast<const QStyleOptionViewItem *>(option);
            cell && element == CE_ItemViewItem) {
            QStyleOptionViewItem ordered(*cell);
            ordered.text = inItsOrder(cell->text);
            QProxyStyle::drawControl(element, &ordered, painter, widget);
        } else if (const auto *item = qstyleoption_cast<const QStyleOptionMenuItem *>(option);
                   item && element == CE_MenuItem) {
            QStyleOptionMenuItem ordered(*item);
            const qsizetype end = item->text.indexOf(u'\t'); // its keys come behind
            ordered.text = end < 0 ? inItsOrder(item->text)
                                   : inItsOrder(item->text.left(end)) + item->text.mid(end);
            QProxyStyle::drawControl(element, &ordered, painter, widget);
        } else {
            QProxyStyle::drawControl(element, option, painter, widget);
        }
    }
};

} // namespace

void followTextDirection()
{
    QApplication::setLayoutDirection(QLocale(textLanguage()).textDirection());
    if (QApplication::isRightToLeft())
        QApplication::setStyle(new RightToLeftStyle);
}

} // namespace kelvo
