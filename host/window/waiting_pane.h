#pragma once

#include "session_message.h"

#include <QWidget>

class QLabel;
class QPushButton;

namespace kelvo {

// Stands where the panels would: what is going on or why there are none, and
// what the user can do.
class WaitingPane : public QWidget
{
    Q_OBJECT

public:
    explicit WaitingPane(QWidget *parent = nullptr);

    void setMessage(const SessionMessage &message);

signals:
    void retryRequested();

protected:
    void changeEvent(QEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    void fitToFont();

    QLabel *m_header, *m_text;
    QPushButton *m_retry;
};

} // namespace kelvo
