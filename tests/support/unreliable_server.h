#pragma once

#include <QString>

#include <atomic>
#include <thread>

// A server on a free loopback port that accepts every connection and then lets
// its client down. What it does not swallow goes to and from a real server.
class UnreliableServer
{
public:
    enum class Trouble {
        NeverAnswers, // reads, and that is all
        Stalls,       // passes `after` bytes of a client on, and then reads no more
        LosesAnswers, // passes on a document sent in chunks, but not what is answered to it
        CutsPpds,     // passes on `after` bytes of each PPD's answer, head and all, and hangs up
    };

    // `port` is the real server's; 0 where there is none.
    explicit UnreliableServer(Trouble trouble, int port = 0, qint64 after = 0);
    ~UnreliableServer();
    UnreliableServer(const UnreliableServer &) = delete;
    UnreliableServer &operator=(const UnreliableServer &) = delete;

    int port() const { return m_port; } // 0 when there is none to be had
    QString address() const { return QStringLiteral("127.0.0.1:%1").arg(m_port); }

    // From now on everything is passed on, for new connections.
    void recover() { m_hasRecovered = true; }

private:
    void serve();

    const Trouble m_trouble;
    const int m_targetPort;
    const qint64 m_after;
    int m_port = 0;
    const int m_socket; // made last: it sets the port
    std::atomic_bool m_hasRecovered = false;
    std::atomic_bool m_isOver = false;
    std::thread m_thread;
};

// A free port of the loopback interface, just now; 0 when there is none.
int freePort();
