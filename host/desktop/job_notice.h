#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace kelvo {

// What the desktop is to show of a job, and go on showing when the window is gone. It is handed
// to a program of its own (kelvo-job-notice), since kelvo-print ends with its window: whoever has
// started it waits for its status.
struct JobNotice
{
    QString summary; // "Hall-3-17 sent"
    QString body;    // the document's title
    QString queue;   // and number of the job; empty: it went elsewhere, nothing becomes of it
    int jobId = 0;
    int timeoutMs = 30000; // for each question to the print server
};

// Whether the desktop shows any. It blocks for as long as the bus does, so it is called on a
// thread that may be left behind.
bool showsNotifications();
// Starts the program, on its own and in the language of this one. False where it cannot be.
bool startJobNotice(const JobNotice &notice);

// What it was started with, of the environment, where only the user can read it; with the texts
// that it is to speak by. None: it was not started so.
struct StartedNotice
{
    JobNotice notice;
    QString textFolder;
    QStringList languages;
};
std::optional<StartedNotice> startedNotice();

} // namespace kelvo
