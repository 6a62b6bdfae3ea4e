#include "system_information.h"

#include "file_store.h"
#include "size_limits.h"

#include <QFile>
#include <QList>

#include <systemd/sd-login.h>

#include <arpa/inet.h>
#include <ifaddrs.h>
#include <linux/rtnetlink.h>
#include <net/if.h>
#include <netinet/in.h>
#include <pwd.h>
#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <memory>
#include <mutex>
#include <vector>

namespace kelvo {

namespace {

// `text` of the user's entry in the system's list; none where there is no such entry, or nothing
// in it.
std::optional<QByteArray> entryOf(uid_t user, char *passwd::*text)
{
    // getpwuid_r does not say how much it needs; 1 MiB is beyond any real entry.
    for (std::size_t size = 1024; size <= 1024 * 1024; size *= 4) {
        std::vector<char> buffer(size);
        passwd entry{};
        passwd *found = nullptr;
        const int status = getpwuid_r(user, &entry, buffer.data(), buffer.size(), &found);
        if (status == ERANGE)
            continue;
        if (status != 0 || !found || !(entry.*text) || !*(entry.*text))
            return std::nullopt;
        return QByteArray(entry.*text);
    }
    return std::nullopt;
}

std::optional<QString> nameOf(uid_t user)
{
    const auto name = entryOf(user, &passwd::pw_name);
    return name ? std::optional(QString::fromUtf8(*name)) : std::nullopt;
}

std::optional<QString> findConsoleUser()
{
    // The owner of the session or user service that started this process: it
    // stays the person at the desk where the program runs under sudo.
    uid_t owner = 0;
    if (sd_pid_get_owner_uid(0, &owner) >= 0) {
        if (auto name = nameOf(owner))
            return name;
    }
    return nameOf(geteuid());
}

// What the kernel tells of changed links, addresses and routes.
class NetworkNews
{
public:
    NetworkNews()
        : m_socket(::socket(AF_NETLINK, SOCK_RAW | SOCK_CLOEXEC | SOCK_NONBLOCK, NETLINK_ROUTE))
    {
        sockaddr_nl groups{};
        groups.nl_family = AF_NETLINK;
        groups.nl_groups = RTMGRP_LINK | RTMGRP_IPV4_IFADDR | RTMGRP_IPV4_ROUTE;
        m_isTold = m_socket >= 0
            && ::bind(m_socket, reinterpret_cast<const sockaddr *>(&groups), sizeof groups) == 0;
    }
    ~NetworkNews()
    {
        if (m_socket >= 0)
            ::close(m_socket);
    }
    NetworkNews(const NetworkNews &) = delete;
    NetworkNews &operator=(const NetworkNews &) = delete;

    // Whether there is any since the last call; true also where the kernel tells none.
    bool take()
    {
        bool isAny = !m_isTold;
        char rest = 0; // that something came is all there is to know
        while (m_isTold) {
            if (::recv(m_socket, &rest, sizeof rest, MSG_TRUNC) >= 0 || errno == ENOBUFS) {
                isAny = true;
            } else if (errno != EINTR) {
                m_isTold = errno == EAGAIN || errno == EWOULDBLOCK;
                return isAny || !m_isTold;
            }
        }
        return isAny;
    }

private:
    int m_socket;
    bool m_isTold = false;
};

std::optional<QString> findPrimaryIPv4Address()
{
    const auto table = readFile(QStringLiteral("/proc/net/route"), limits::MiB);
    if (!table)
        return std::nullopt;
    const auto interface = defaultRouteInterface(table.value());
    if (!interface)
        return std::nullopt;

    ifaddrs *first = nullptr;
    if (getifaddrs(&first) != 0)
        return std::nullopt;
    const std::unique_ptr<ifaddrs, decltype(&freeifaddrs)> addresses(first, &freeifaddrs);
    for (const ifaddrs *address = first; address; address = address->ifa_next) {
        if (!address->ifa_addr || address->ifa_addr->sa_family != AF_INET
            || *interface != address->ifa_name)
            continue;
        std::array<char, INET_ADDRSTRLEN> text{};
        const auto *ip = reinterpret_cast<const sockaddr_in *>(address->ifa_addr);
        if (inet_ntop(AF_INET, &ip->sin_addr, text.data(), text.size()))
            return QString::fromLatin1(text.data());
    }
    return std::nullopt;
}

} // namespace

std::optional<QString> consoleUser()
{
    static std::mutex mutex;
    static std::optional<QString> user;
    const std::lock_guard lock(mutex);
    if (!user)
        user = findConsoleUser();
    return user;
}

std::optional<QString> ownersHome()
{
    const auto folder = entryOf(geteuid(), &passwd::pw_dir);
    return folder ? std::optional(QFile::decodeName(*folder)) : std::nullopt;
}

std::optional<QString> computerName()
{
    std::array<char, 257> name{}; // a Linux host name has at most 64 bytes
    if (gethostname(name.data(), name.size() - 1) != 0 || name[0] == '\0')
        return std::nullopt;
    return QString::fromUtf8(name.data());
}

std::optional<QByteArray> defaultRouteInterface(const QByteArray &routeTable)
{
    // Iface Destination Gateway Flags RefCnt Use Metric Mask MTU Window IRTT;
    // addresses and flags in hexadecimal, the metric in decimal.
    constexpr qsizetype destinationColumn = 1, flagsColumn = 3, metricColumn = 6, maskColumn = 7;
    constexpr uint up = 0x1, reject = 0x200; // a point-to-point link has no gateway

    std::optional<QByteArray> best;
    uint bestMetric = 0;
    for (const QByteArray &line : routeTable.split('\n')) {
        const QList<QByteArray> columns = line.simplified().split(' ');
        if (columns.size() <= maskColumn)
            continue;
        bool isNumber[4] = {};
        const uint destination = columns[destinationColumn].toUInt(&isNumber[0], 16);
        const uint flags = columns[flagsColumn].toUInt(&isNumber[1], 16);
        const uint metric = columns[metricColumn].toUInt(&isNumber[2]);
        const uint mask = columns[maskColumn].toUInt(&isNumber[3], 16);
        if (!(isNumber[0] && isNumber[1] && isNumber[2] && isNumber[3]) || destination != 0
            || mask != 0 || (flags & (up | reject)) != up)
            continue;
        if (!best || metric < bestMetric) {
            best = columns[0];
            bestMetric = metric;
        }
    }
    return best;
}

QLocale::MeasurementSystem measurementSystem()
{
    const QLocale::MeasurementSystem system = QLocale().measurementSystem();
    return system == QLocale::ImperialUKSystem ? QLocale::MetricSystem : system;
}

std::optional<QString> primaryIPv4Address()
{
    static std::mutex mutex;
    static NetworkNews news;
    static bool isKnown = false;
    static std::optional<QString> address;
    const std::lock_guard lock(mutex);
    // The news first: what changes while the address is looked up is looked at the next time.
    if (news.take() || !isKnown) {
        address = findPrimaryIPv4Address();
        isKnown = true;
    }
    return address;
}

} // namespace kelvo
