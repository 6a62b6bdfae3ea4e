#include "job_notice.h"

#include "desktop_notification.h"
#include "folders.h"
#include "texts.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>

namespace kelvo {

namespace {

const QString variable = QStringLiteral("KELVO_JOB_NOTICE");
const QString program = QStringLiteral("kelvo-job-notice");

// The parts of it, as the environment has them.
const QString summaryKey = QStringLiteral("summary");
const QString bodyKey = QStringLiteral("body");
const QString queueKey = QStringLiteral("queue");
const QString jobKey = QStringLiteral("job");
const QString timeoutKey = QStringLiteral("timeout");
const QString textsKey = QStringLiteral("texts");
const QString languagesKey = QStringLiteral("languages");

} // namespace

bool showsNotifications()
{
    return DesktopNotification::open() != nullptr;
}

bool startJobNotice(const JobNotice &notice)
{
    const TextSource &texts = textSource();
    const QJsonObject parts{{summaryKey, notice.summary},
                            {bodyKey, notice.body},
                            {queueKey, notice.queue},
                            {jobKey, notice.jobId},
                            {timeoutKey, notice.timeoutMs},
                            {textsKey, texts.folder},
                            {languagesKey, QJsonArray::fromStringList(texts.languages)}};
    QProcess process;
    process.setProgram(libraryFolder() + u'/' + program);
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(variable,
                       QString::fromUtf8(QJsonDocument(parts).toJson(QJsonDocument::Compact)));
    process.setProcessEnvironment(environment);
    // Whoever reads our output waits for its end.
    process.setStandardInputFile(QProcess::nullDevice());
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    process.setWorkingDirectory(QStringLiteral("/")); // no volume is kept busy
    return process.startDetached();
}

std::optional<StartedNotice> startedNotice()
{
    const QJsonObject parts =
        QJsonDocument::fromJson(qEnvironmentVariable(qPrintable(variable)).toUtf8()).object();
    if (parts.isEmpty())
        return std::nullopt;
    StartedNotice started;
    started.notice = {parts.value(summaryKey).toString(), parts.value(bodyKey).toString(),
                      parts.value(queueKey).toString(), parts.value(jobKey).toInt(),
                      parts.value(timeoutKey).toInt()};
    started.textFolder = parts.value(textsKey).toString();
    for (const auto &language : parts.value(languagesKey).toArray())
        started.languages << language.toString();
    return started;
}

} // namespace kelvo
