#pragma once

#include "result.h"

#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>

#include <memory>

// The queues of the CUPS server. Every call that can block runs on a thread of
// its own, and one that never comes back keeps neither the window nor the end
// of the program waiting.
namespace kelvo {

struct Printer
{
    enum class State { Idle, Busy, Stopped };

    QString name; // "Hall-3"; instances as "Hall-3/draft"
    QString info, location, makeAndModel;
    State state = State::Idle;
    bool acceptsJobs = true;
    QString stateMessage; // why it is stopped; may be empty
    bool isDefault = false;
    QMap<QString, QString> defaults; // option → value set for the queue by lpoptions
};

class PrinterDirectory : public QObject
{
    Q_OBJECT

public:
    explicit PrinterDirectory(QObject *parent = nullptr);
    ~PrinterDirectory() override;

    // Both answer by a signal, at the latest after `timeoutMs` with TimedOut.
    void refresh(int timeoutMs = 30000);
    void fetchPpd(const QString &printer, int timeoutMs = 30000);

signals:
    void printersFound(const QList<kelvo::Printer> &printers); // the default one first
    void printersFailed(const kelvo::Error &error);
    // A local copy, 0600, which this object removes when it goes.
    void ppdFetched(const QString &printer, const QString &path);
    void ppdFailed(const QString &printer, const kelvo::Error &error); // NotFound: it has none

private:
    struct Private;
    std::shared_ptr<Private> d;
};

// Blocking; for the command line.
Result<QList<Printer>> listPrinters(int timeoutMs);

} // namespace kelvo
