#pragma once

#include "cautions.h"
#include "left_out_covers.h"

namespace kelvo {

class DialogSession;

// What is to be said of the session's job before it goes out: the printer, then what
// becomes of the pages and covers, then what is only kept.
class SessionCautions
{
public:
    // Borrowed. `goesToQueue`: else no printer can be stopped.
    SessionCautions(DialogSession &session, bool goesToQueue);

    // As things stand; all panels have written. `place` is where the user is among them,
    // for LeftOutCovers. Stage::Ready.
    void look(const QString &place);
    void forget(); // the job, not the printer, is another one

    const std::vector<Caution> &all() const { return m_cautions; }
    const Caution *find(Caution::Weight weight) const; // the first; null for none
    QStringList inWords() const;

    // On standard error, each once: of a driven run when it prints, and as it goes on.
    void sayAll() { say(false); }
    void sayWhatHappened() { say(true); }

private:
    void say(bool happenedOnly);
    std::optional<Caution> printer() const;
    std::optional<Caution> cutPages() const;

    DialogSession &m_session;
    const bool m_goesToQueue;
    LeftOutCovers m_covers;
    std::vector<Caution> m_cautions;
    QStringList m_said;
};

} // namespace kelvo
