#pragma once

#include <QWidget>

class QLabel;
class QProgressBar;
class QPushButton;

namespace kelvo {

// The last two rows of the dialog: what will come out, in a line, and the buttons.
class DialogFoot : public QWidget
{
    Q_OBJECT

public:
    // `toggle` stands before the line; it becomes a child of this.
    explicit DialogFoot(QWidget *toggle, QWidget *parent = nullptr);

    QPushButton *cancelJob() const { return m_cancelJob; } // hidden until there is one
    QPushButton *timing() const { return m_timing; }
    QPushButton *details() const { return m_details; }
    QPushButton *help() const { return m_help; }
    QPushButton *savePdf() const { return m_savePdf; }
    QPushButton *cancel() const { return m_cancel; }
    QPushButton *print() const { return m_print; }

    void setText(const QString &text);
    void setBusy(bool busy); // a job is on its way
    // The job is out: what can still be done is to cancel it.
    void showSent(bool canCancel);
    void fitToFont();

private:
    QPushButton *button(const char *name, const QString &text);

    QLabel *m_text;
    QProgressBar *m_progress;
    QPushButton *m_cancelJob, *m_timing, *m_details, *m_help, *m_savePdf, *m_cancel, *m_print;
};

} // namespace kelvo
