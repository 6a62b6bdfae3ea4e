#include "unreliable_server.h"

#include <QByteArray>

#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <list>

namespace {

sockaddr_in loopback(int port)
{
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(static_cast<in_port_t>(port));
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    return address;
}

// A listening socket and its port.
int listenOnFreePort(int &port)
{
    const int fd = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_in address = loopback(0);
    socklen_t size = sizeof address;
    auto *anyAddress = reinterpret_cast<sockaddr *>(&address);
    if (::bind(fd, anyAddress, size) == 0 && ::listen(fd, 16) == 0
        && ::getsockname(fd, anyAddress, &size) == 0)
        port = ntohs(address.sin_port);
    return fd;
}

struct Link
{
    int client = -1;
    int server = -1; // -1: nobody behind
    bool isReliable = false;
    bool isMute = false; // what the server says is dropped
    qint64 passedOn = 0; // bytes of the client
    QByteArray tail;     // the client's last bytes
    qint64 ppdLeft = -1; // bytes of a PPD's answer before the end; -1: none was asked for
};

// What is there to read from `from`, at most `limit` bytes, to `to` (-1: nowhere).
// Empty at the end.
QByteArray pass(int from, int to, std::size_t limit)
{
    std::array<char, 65536> bytes;
    const ssize_t count = ::read(from, bytes.data(), std::min(limit, bytes.size()));
    if (count > 0 && to >= 0)
        ::send(to, bytes.data(), static_cast<std::size_t>(count), MSG_NOSIGNAL);
    return count > 0 ? QByteArray(bytes.data(), count) : QByteArray();
}

} // namespace

int freePort()
{
    int port = 0;
    ::close(listenOnFreePort(port));
    return port;
}

UnreliableServer::UnreliableServer(Trouble trouble, int port, qint64 after)
    : m_trouble(trouble)
    , m_targetPort(port)
    , m_after(after)
    , m_socket(listenOnFreePort(m_port))
    , m_thread([this] { serve(); })
{
}

UnreliableServer::~UnreliableServer()
{
    m_isOver = true;
    m_thread.join();
    ::close(m_socket);
}

void UnreliableServer::serve()
{
    std::list<Link> links;
    const auto accept = [&] {
        Link link;
        link.client = ::accept4(m_socket, nullptr, nullptr, SOCK_CLOEXEC);
        link.isReliable = m_hasRecovered;
        if (m_targetPort != 0 && (link.isReliable || m_trouble != Trouble::NeverAnswers)) {
            link.server = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
            const sockaddr_in address = loopback(m_targetPort);
            (void)::connect(link.server, reinterpret_cast<const sockaddr *>(&address),
                            sizeof address);
        }
        links.push_back(link);
    };
    const auto isStalled = [this](const Link &link) {
        return !link.isReliable && m_trouble == Trouble::Stalls && link.passedOn >= m_after;
    };
    const auto hear = [&](Link &link) { // false when the client has gone
        const std::size_t limit = m_trouble == Trouble::Stalls && !link.isReliable
            ? static_cast<std::size_t>(m_after - link.passedOn)
            : std::string::npos;
        const QByteArray bytes = pass(link.client, link.server, limit);
        link.passedOn += bytes.size();
        if (m_trouble == Trouble::CutsPpds && !link.isReliable && bytes.startsWith("GET ")
            && bytes.left(bytes.indexOf('\r')).contains(".ppd "))
            link.ppdLeft = m_after;
        link.tail = (link.tail + bytes).right(7);
        if (m_trouble == Trouble::LosesAnswers && link.tail == "\r\n0\r\n\r\n")
            link.isMute = !link.isReliable;
        return !bytes.isEmpty();
    };
    const auto answer = [](Link &link) { // false when the server has gone, or is cut off
        const bool isCut = link.ppdLeft >= 0;
        const QByteArray bytes =
            pass(link.server, link.isMute ? -1 : link.client,
                 isCut ? static_cast<std::size_t>(link.ppdLeft) : std::string::npos);
        link.ppdLeft -= isCut ? bytes.size() : 0;
        return !bytes.isEmpty() && link.ppdLeft != 0;
    };
    while (!m_isOver) {
        std::vector<pollfd> sockets{{m_socket, POLLIN, 0}};
        for (const Link &link : links) {
            sockets.push_back({isStalled(link) ? -1 : link.client, POLLIN, 0});
            sockets.push_back({link.server, POLLIN, 0});
        }
        ::poll(sockets.data(), sockets.size(), 10);
        std::size_t at = 1;
        for (auto link = links.begin(); link != links.end(); at += 2) {
            bool isUp = true;
            if (sockets[at].revents != 0)
                isUp = hear(*link);
            if (isUp && sockets[at + 1].revents != 0)
                isUp = answer(*link);
            if (isUp) {
                ++link;
                continue;
            }
            ::close(link->client);
            if (link->server >= 0)
                ::close(link->server);
            link = links.erase(link);
        }
        if (sockets[0].revents & POLLIN)
            accept();
    }
    for (const Link &link : links) {
        ::close(link.client);
        if (link.server >= 0)
            ::close(link.server);
    }
}
