#pragma once

#include <QList>
#include <QWidget>

class QPushButton;

namespace kelvo {

// The buttons at the foot of a window, in the order that every window has: Help, Revert and what
// is the window's own at its leading edge; Cancel and, outermost, what Return presses at its
// trailing one. All but the window's own are of one width. Tab follows.
class ButtonRow : public QWidget
{
    Q_OBJECT

public:
    explicit ButtonRow(QWidget *parent = nullptr);

    // Orders the buttons that are its children by their commands (modal_dialog.h): 'Khlp', 'rvrt',
    // the window's own as they were made; 'not!', 'ok  '. None but the last is an auto default.
    // Call it when all are there; the window loader does for descriptions.
    void arrange();

    // For buttons without commands: these and no others, each list from the leading edge on.
    void setButtons(const QList<QPushButton *> &leading, const QList<QPushButton *> &trailing);

protected:
    bool event(QEvent *event) override;

private:
    void alignWidths();

    QList<QPushButton *> m_leading, m_trailing;
};

} // namespace kelvo
