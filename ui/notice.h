#pragma once

#include <QString>
#include <QStringList>

class QWidget;

// The only two ways of telling the user something that must be read.
namespace kelvo {

enum class NoticeLevel { Stop, Note, Caution };

// One button, "OK" when `button` is empty. Runs until it is pressed.
void CFUserNotificationDisplayNotice(NoticeLevel level, const QString &header,
                                     const QString &message, const QString &button = {},
                                     QWidget *parent = nullptr);

// Two or three buttons, the default one first; returns the button pressed, from
// 1. Escape, and the end of the program, press `escape`: one that changes nothing.
int CFUserNotificationDisplayAlert(NoticeLevel level, const QString &header, const QString &message,
                                   const QStringList &buttons, QWidget *parent = nullptr,
                                   int escape = 2);

// What stands in front, for scripts; empty header and no buttons when nothing does.
struct ShownNotice
{
    QString header, message;
    QStringList buttons;
    bool isShown() const { return !buttons.isEmpty(); }
};
ShownNotice frontNotice();
bool answerNotice(int button); // from 1; false when there is no such button

} // namespace kelvo
