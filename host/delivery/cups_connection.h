#pragma once

#include "background_work.h"
#include "result.h"

#include <QString>

#include <cups/cups.h>

#include <atomic>
#include <condition_variable>
#include <functional>
#include <initializer_list>
#include <memory>
#include <mutex>
#include <optional>

// Talking to a print server that may never answer. Every call of libcups can
// block; it runs on a thread that can be left to itself, and the thread ends by
// itself as soon as libcups gives it back.
namespace kelvo {

// How long a conversation may go without progress. Shared by the thread that
// talks and the one that waits for it.
class Patience
{
public:
    explicit Patience(int timeoutMs);

    void progress(); // something came or went: the time begins anew
    void stop() { m_isStopped = true; }

    bool isStopped() const { return m_isStopped; }
    bool isTimedOut(int graceMs = 0) const;
    bool isOver() const { return isStopped() || isTimedOut(); }
    int timeoutMs() const { return m_timeoutMs; }

private:
    const int m_timeoutMs;
    std::atomic<qint64> m_lastProgress; // milliseconds of the steady clock
    std::atomic_bool m_isStopped = false;
};

struct CloseConnection
{
    void operator()(http_t *http) const { httpClose(http); }
};
using Connection = std::unique_ptr<http_t, CloseConnection>;

struct FreeMessage
{
    void operator()(ipp_t *message) const { ippDelete(message); }
};
using Message = std::unique_ptr<ipp_t, FreeMessage>;

// A request for the user of this process, to the server or about `queue`. cupsDoRequest()
// frees what it sends; cupsSendRequest() does not.
ipp_t *newRequest(ipp_op_t operation);
ipp_t *newRequest(ipp_op_t operation, const QString &queue);
// The answer is to have these attributes. Without, it has all that there are: libcups reads
// each name and each value with a call of the system of its own.
void askFor(ipp_t *request, std::initializer_list<const char *> attributes);

// As cupsDoRequest() to the server, for answers that may be long: libcups takes those from the
// connection name by name and value by value, for a queue of our devices in 164 pieces, each with
// calls of the system; here they come in large blocks. Frees `request`.
Message askAtOnce(http_t *http, ipp_t *request, Patience &patience);

// Connects to the server of the environment (CUPS_SERVER, client.conf). What is
// called on the connection fails within a quarter of a second once `patience`
// is over; it is borrowed. This thread is never asked for a password then.
Result<Connection> connectToServer(Patience &patience);

// What is called on `http` fails within a quarter of a second once `patience`, which is borrowed,
// is over.
void endWith(http_t *http, Patience &patience);

// The server for messages: "localhost:631", or a socket's path.
QString serverName();

// Whether what libcups did last on this thread went well.
bool lastCallSucceeded();
// Why it did not; `where` as in Error.
Error serverError(const Patience &patience, const QString &where);

// The queue of "Hall-3/draft" is "Hall-3"; NotFound for what cannot be a name.
Result<QString> queueName(const QString &printer);

Error timedOut(const Patience &patience, const QString &where);

// What became of a call because the system has no thread for it.
Error noThread(const QString &where);

// `work` on a thread of its own. While it runs, `isGivenUp` is asked every 20 ms;
// once it says yes the thread is left to itself and nothing comes back. noThread()
// of `where` when there is none: asked only then, because libcups keeps the server
// that a thread first asks for.
template <typename T>
std::optional<Result<T>> runAside(std::function<Result<T>()> work,
                                  const std::function<QString()> &where,
                                  const std::function<bool()> &isGivenUp)
{
    struct State
    {
        std::mutex mutex;
        std::condition_variable changed;
        std::optional<Result<T>> result;
    };
    auto state = std::make_shared<State>();
    const bool isStarted = startBackgroundWork([state, work = std::move(work)] {
        Result<T> result = work();
        const std::lock_guard lock(state->mutex);
        state->result = std::move(result);
        state->changed.notify_all();
    });
    if (!isStarted)
        return noThread(where());
    std::unique_lock lock(state->mutex);
    while (!state->changed.wait_for(lock, std::chrono::milliseconds(20),
                                    [&] { return state->result.has_value(); })) {
        if (isGivenUp())
            return std::nullopt;
    }
    return std::move(state->result);
}

} // namespace kelvo
