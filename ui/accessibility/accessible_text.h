#pragma once

#include <QAccessible>

class QLineEdit;
class QWidget;

namespace kelvo {

// What screen readers read as text, for interfaces of widgets that show one line.

// A line that nobody edits; all of it is selected while `widget` has the focus.
class AccessibleShownText : public QAccessibleTextInterface
{
public:
    explicit AccessibleShownText(const QWidget *widget)
        : m_widget(widget)
    {
    }

    void selection(int index, int *start, int *end) const override;
    int selectionCount() const override;
    void addSelection(int, int) override { }
    void removeSelection(int) override { }
    void setSelection(int, int, int) override { }
    int cursorPosition() const override { return 0; }
    void setCursorPosition(int) override { }
    QString text(int start, int end) const override { return shownText().mid(start, end - start); }
    int characterCount() const override { return int(shownText().size()); }
    QRect characterRect(int) const override { return {}; }
    int offsetAtPoint(const QPoint &) const override { return -1; }
    void scrollToSubstring(int, int) override { }
    QString attributes(int offset, int *start, int *end) const override;

protected:
    virtual QString shownText() const = 0;

private:
    const QWidget *m_widget;
};

// The line in a widget; what is changed in it is changed as by typing.
class AccessibleTypedText : public QAccessibleTextInterface, public QAccessibleEditableTextInterface
{
public:
    explicit AccessibleTypedText(QLineEdit *line)
        : m_line(line)
    {
    }

    void selection(int index, int *start, int *end) const override;
    int selectionCount() const override;
    void addSelection(int start, int end) override { setSelection(0, start, end); }
    void removeSelection(int index) override;
    void setSelection(int index, int start, int end) override;
    int cursorPosition() const override;
    void setCursorPosition(int position) override;
    QString text(int start, int end) const override;
    int characterCount() const override;
    QRect characterRect(int offset) const override;
    int offsetAtPoint(const QPoint &point) const override;
    void scrollToSubstring(int start, int end) override { setSelection(0, start, end); }
    QString attributes(int offset, int *start, int *end) const override;

    void deleteText(int start, int end) override { replaceText(start, end, {}); }
    void insertText(int offset, const QString &text) override { replaceText(offset, offset, text); }
    void replaceText(int start, int end, const QString &text) override;

private:
    QLineEdit *m_line;
};

} // namespace kelvo
