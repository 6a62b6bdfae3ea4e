#pragma once

#include "private_bus.h"

#include <QMap>
#include <QProcess>
#include <QString>
#include <QTemporaryDir>

// A printer of the test's own that describes itself over IPP (ippeveprinter), on a free loopback
// port: two-sided, in color, with four trays, two kinds of finishings and papers of any size, as
// tests/data/ipp/office-printer.conf has it. It ends with this object, and with the test program
// however that ends.
class DriverlessPrinter
{
public:
    ~DriverlessPrinter();

    QString start();     // empty, or what went wrong
    QString uri() const; // "ipp://127.0.0.1:PORT/ipp/print"

    // What its job `number`, from 1, was told: "sides" → "two-sided-long-edge"; enumerations as
    // keywords. Waits at most ten seconds; empty then.
    QMap<QString, QString> job(int number);

private:
    PrivateBus m_bus{
        PrivateBus::Kind::System}; // it wants to announce itself, and takes no for an answer
    QTemporaryDir m_folder;
    QProcess m_process;
    int m_port = 0;
};

// Makes `name` ("generic") of the print server's sample drivers a PPD in `folder`; its path, or
// empty.
QString sampleDriver(const QString &name, const QString &folder);
