#pragma once

#include <QFile>
#include <QTemporaryFile>

#include <cstdio>
#include <unistd.h>

// What is written to standard error while this lives, kept in a file.
class StandardError
{
public:
    StandardError()
        : m_before(::dup(STDERR_FILENO))
    {
        m_file.open();
        ::dup2(m_file.handle(), STDERR_FILENO);
    }
    ~StandardError()
    {
        std::fflush(stderr);
        ::dup2(m_before, STDERR_FILENO);
        ::close(m_before);
    }
    StandardError(const StandardError &) = delete;
    StandardError &operator=(const StandardError &) = delete;

    QByteArray text() const
    {
        std::fflush(stderr);
        QFile written(m_file.fileName());
        return written.open(QIODevice::ReadOnly) ? written.readAll() : QByteArray("not readable");
    }

private:
    int m_before;
    QTemporaryFile m_file;
};
