#pragma once

#include "ppd_file.h"
#include "printer_condition.h"
#include "result.h"

#include <QList>
#include <QMap>
#include <QObject>
#include <QString>

#include <memory>

// The queues of the CUPS server. Every call that can block runs on a thread of
// its own, and one that never comes back keeps neither the window nor the end
// of the program waiting.
namespace kelvo {

struct Printer : PrinterCondition
{
    QString name; // "Hall-3"; instances as "Hall-3/draft"
    QString info, location, makeAndModel;
    bool isDefault = false;
    // Option → value: what lpoptions set for the queue or instance, and what the
    // server's administrator did. Descriptions of the queue are not among them.
    QMap<QString, QString> defaults;

    friend bool operator==(const Printer &, const Printer &) = default;
};

class PrinterDirectory : public QObject
{
    Q_OBJECT

public:
    explicit PrinterDirectory(QObject *parent = nullptr);
    ~PrinterDirectory() override; // waits for nothing

    // Each call answers once, by one of its signals, never from within the
    // call itself, and at the latest after `timeoutMs` with TimedOut. They can be asked
    // before there is an application, and answer then when its event loop runs.
    //
    // PpdOfFirst: whoever takes the first printer, and asks for its PPD then, gets what the
    // thread has begun to fetch as soon as it had the list.
    enum class Ahead { Nothing, PpdOfFirst };
    // `preferred` comes first, unless the user has a default printer.
    void refresh(int timeoutMs = 30000, Ahead ahead = Ahead::Nothing,
                 const QString &preferred = {});
    void fetchPpd(const QString &printer, int timeoutMs = 30000);
    // What it is doing now.
    void fetchCondition(const QString &printer, int timeoutMs = 30000);

signals:
    void
    printersFound(const QList<kelvo::Printer> &printers); // the default one first, see refresh()
    void printersFailed(const kelvo::Error &error);
    // Opened already. For a class of printers, that of its first member; for a queue without one, a
    // PPD made of what its printer says over IPP.
    void ppdFetched(const QString &printer, const std::shared_ptr<kelvo::PpdFile> &ppd);
    void ppdUnreadable(const QString &printer, const kelvo::Error &error); // why PpdFile refused it
    void ppdFailed(const QString &printer, const kelvo::Error &error);     // NotFound: it has none
    void conditionFound(const QString &printer, const kelvo::PrinterCondition &condition);
    void conditionFailed(const QString &printer, const kelvo::Error &error);

private:
    struct Private;
    std::shared_ptr<Private> d;
};

// Both block, at most `timeoutMs`; for the command line and for worker threads. The
// default one first. A server without printers gives an empty list.
Result<QList<Printer>> listPrinters(int timeoutMs);
Result<PrinterCondition> printerCondition(const QString &printer, int timeoutMs);

} // namespace kelvo
