#include "driverless_printer.h"

#include "unreliable_server.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QThread>

#include <csignal>
#include <sys/prctl.h>

DriverlessPrinter::~DriverlessPrinter()
{
    m_process.terminate();
    if (!m_process.waitForFinished(3000))
        m_process.kill();
    m_process.waitForFinished(3000);
}

QString DriverlessPrinter::uri() const
{
    return QStringLiteral("ipp://127.0.0.1:%1/ipp/print").arg(m_port);
}

QString DriverlessPrinter::start()
{
    if (const QString problem = m_bus.start(); !problem.isEmpty())
        return problem;
    QDir(m_folder.path()).mkpath(QStringLiteral("spool"));
    QDir(m_folder.path()).mkpath(QStringLiteral("kept"));
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("KEPT_JOBS"), m_folder.filePath(QStringLiteral("kept")));
    m_process.setProcessEnvironment(environment);
    m_process.setChildProcessModifier([] { ::prctl(PR_SET_PDEATHSIG, SIGTERM); });
    m_process.setProcessChannelMode(QProcess::MergedChannels);
    // Somebody else may take the port between asking for it and using it.
    for (int attempt = 0; attempt < 5; ++attempt) {
        m_port = freePort();
        m_process.start(QStringLiteral(IPPEVEPRINTER),
                        {"-r", "off", "-n", "localhost", "-p", QString::number(m_port), "-d",
                         m_folder.filePath(QStringLiteral("spool")), "-a", OFFICE_PRINTER, "-c",
                         KEEP_JOB, "Test"});
        QElapsedTimer timer;
        timer.start();
        while (m_process.state() != QProcess::NotRunning && timer.elapsed() < 5000) {
            m_process.waitForFinished(20);
            QProcess look;
            look.start(QStringLiteral("ipptool"),
                       {"-T", "1", uri(), "get-printer-attributes.test"});
            if (look.waitForFinished(2000) && look.exitCode() == 0)
                return {};
        }
    }
    return QStringLiteral("ippeveprinter does not start: ")
        + QString::fromUtf8(m_process.readAll());
}

QMap<QString, QString> DriverlessPrinter::job(int number)
{
    QFile kept(m_folder.filePath(QStringLiteral("kept/%1").arg(number)));
    QElapsedTimer timer;
    timer.start();
    while (!kept.exists() && timer.elapsed() < 10000)
        QThread::msleep(10);
    QMap<QString, QString> attributes;
    if (!kept.open(QIODevice::ReadOnly))
        return attributes;
    for (const QString &line : QString::fromUtf8(kept.readAll()).split(u'\n')) {
        const QString name = line.section(u'=', 0, 0).mid(4).toLower().replace(u'_', u'-');
        attributes.insert(name, line.section(u'=', 1));
    }
    return attributes;
}

QString sampleDriver(const QString &name, const QString &folder)
{
    QProcess ppdc;
    ppdc.start(QStringLiteral(PPDC), {"-d", folder, QStringLiteral(SAMPLE_DRIVERS)});
    const QString path = QStringLiteral("%1/%2.ppd").arg(folder, name);
    return ppdc.waitForFinished(20000) && QFile::exists(path) ? path : QString();
}
