#pragma once

#include <QString>

#include <utility>
#include <variant>

namespace kelvo {

// Why something failed, for the log, the command line and tests. Where a user
// reads it, the caller puts a sentence around it that says what the user was
// doing.
struct Error
{
    enum class Code {
        NotFound,    // no such file, entry, printer, choice
        NotReadable, // there, but it cannot be read
        NotWritable, // cannot be created, written, synced or renamed
        TooLarge,    // above a limit of size_limits.h
        Damaged,     // its bytes are not what they claim to be
        OtherKind,   // sound, but a file of another kind than its place asks for
        WrongType,   // a value of another type than its place asks for
        OutOfRange,  // a number outside its limits
        Unsupported, // well formed, but not a kind that we handle
        Unreachable, // a server that does not answer
        Locked,      // it asks for a password, and none that was given is right
        Refused,     // a rule of ours, or the server, said no
        TimedOut,
        Cancelled,
    };

    Code code;
    QString where;      // a path, "FILE:LINE", a key path or a printer name
    QString detail;     // the value found or the system's message; may be empty
    int number = 0;     // the system's errno; 0: the system did not fail
    QString place = {}; // the end of `where` that lies in the file: "line 7", a key path

    // "where: detail", for one line of a log.
    QString text() const;
};

// A value or the reason why there is none. Forgetting to look is a warning,
// and warnings stop the build.
template <typename T>
class [[nodiscard]] Result
{
public:
    Result(T value)
        : m_state(std::in_place_index<0>, std::move(value))
    {
    }
    Result(Error error)
        : m_state(std::in_place_index<1>, std::move(error))
    {
    }

    explicit operator bool() const { return m_state.index() == 0; }
    const T &value() const & { return std::get<0>(m_state); }
    T &value() & { return std::get<0>(m_state); }
    T &&value() && { return std::get<0>(std::move(m_state)); }
    const Error &error() const { return std::get<1>(m_state); } // only after a failure
    // The error's text; empty after success.
    QString reason() const { return *this ? QString() : error().text(); }

private:
    std::variant<T, Error> m_state;
};

// Success, or the reason of a failure.
template <>
class [[nodiscard]] Result<void>
{
public:
    Result() = default;
    Result(Error error)
        : m_error(std::move(error))
        , m_failed(true)
    {
    }

    explicit operator bool() const { return !m_failed; }
    const Error &error() const { return m_error; } // only after a failure
    // The error's text; empty after success.
    QString reason() const { return *this ? QString() : error().text(); }

private:
    Error m_error{Error::Code::Damaged, {}, {}};
    bool m_failed = false;
};

} // namespace kelvo
