#include "accessible_text.h"

#include <QLineEdit>

namespace kelvo {

// ---- AccessibleShownText

int AccessibleShownText::selectionCount() const
{
    return m_widget->hasFocus() ? 1 : 0;
}

void AccessibleShownText::selection(int index, int *start, int *end) const
{
    *start = 0;
    *end = index == 0 && selectionCount() > 0 ? characterCount() : 0;
}

QString AccessibleShownText::attributes(int, int *start, int *end) const
{
    *start = 0;
    *end = characterCount();
    return {};
}

// ---- AccessibleTypedText

int AccessibleTypedText::selectionCount() const
{
    return m_line->hasSelectedText() ? 1 : 0;
}

void AccessibleTypedText::selection(int index, int *start, int *end) const
{
    const bool isThere = index == 0 && m_line->hasSelectedText();
    *start = isThere ? m_line->selectionStart() : 0;
    *end = isThere ? m_line->selectionEnd() : 0;
}

void AccessibleTypedText::removeSelection(int index)
{
    if (index == 0)
        m_line->deselect();
}

void AccessibleTypedText::setSelection(int index, int start, int end)
{
    if (index == 0)
        m_line->setSelection(start, end - start);
}

int AccessibleTypedText::cursorPosition() const
{
    return m_line->cursorPosition();
}

void AccessibleTypedText::setCursorPosition(int position)
{
    m_line->setCursorPosition(position);
}

QString AccessibleTypedText::text(int start, int end) const
{
    return m_line->displayText().mid(start, end - start);
}

int AccessibleTypedText::characterCount() const
{
    return int(m_line->displayText().size());
}

QRect AccessibleTypedText::characterRect(int offset) const
{
    const QFontMetrics metrics = m_line->fontMetrics();
    const QString shown = m_line->displayText();
    const QRect cursor = m_line->inputMethodQuery(Qt::ImCursorRectangle).toRect();
    const int ahead = metrics.horizontalAdvance(shown.left(offset))
        - metrics.horizontalAdvance(shown.left(m_line->cursorPosition()));
    return {m_line->mapToGlobal(cursor.topLeft() + QPoint(ahead, 0)),
            QSize(metrics.horizontalAdvance(shown.mid(offset, 1)), cursor.height())};
}

int AccessibleTypedText::offsetAtPoint(const QPoint &point) const
{
    return m_line->cursorPositionAt(m_line->mapFromGlobal(point));
}

QString AccessibleTypedText::attributes(int, int *start, int *end) const
{
    *start = 0;
    *end = characterCount();
    return {};
}

void AccessibleTypedText::replaceText(int start, int end, const QString &text)
{
    if (m_line->isReadOnly() || !m_line->isEnabled())
        return;
    m_line->setSelection(start, end - start);
    m_line->insert(text);
}

} // namespace kelvo
