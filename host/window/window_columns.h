#pragma once

#include <QWidget>

class QToolButton;

namespace kelvo {

class PaneScroll;

// By what lengths grow that are meant for the usual font; at least 1.
double fontScale(const QWidget *widget);

// The two columns of the window: printer, pages and preview on the left, the
// device's panels on the right. The left one can be folded away, and where only
// one of both has room they take turns.
class WindowColumns : public QWidget
{
    Q_OBJECT

public:
    explicit WindowColumns(QWidget *parent = nullptr);

    // Parents for what stands in them.
    QWidget *left() const { return m_left; }
    QWidget *right() const { return m_right; }
    // `fields` keep their height and `preview` takes what they leave, or goes
    // where that is too little. Right, `panels` stand below `above`.
    void setParts(QWidget *fields, QWidget *preview, QWidget *above, PaneScroll *panels);

    // Between them, at its own height; may come later, and only when it is shown it counts.
    void addBelowFields(QWidget *part);

    QToolButton *toggle() const { return m_toggle; } // placed by the window
    // No narrower, or the panels would be cut: they do not scroll sideways.
    int smallestWidth() const;
    void arrange();   // when the panels have changed; follows the size by itself
    void showRight(); // where it stands behind the left column

protected:
    bool event(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    QWidget *m_left, *m_right;
    QToolButton *m_toggle;
    QWidget *m_fields = nullptr, *m_belowFields = nullptr, *m_preview = nullptr;
    PaneScroll *m_panels = nullptr;
    bool m_hasSize = false;     // from the window's layout
    bool m_isLeftWanted = true; // by the user
    bool m_isNarrow = false;    // both do not fit side by side
};

} // namespace kelvo
