#pragma once

#include "cautions.h"
#include "left_out_covers.h"

#include <QStringList>

#include <functional>
#include <optional>
#include <vector>

namespace kelvo {

class DialogSession;

// What is to be said of the session's job before it goes out: the printer, then what
// becomes of the pages and covers, then what is only kept.
class SessionCautions
{
public:
    // Borrowed. `goesToPrinter`: else no printer can be stopped. `place` says where the user
    // is among the panels, for LeftOutCovers; null: nowhere.
    SessionCautions(DialogSession &session, bool goesToPrinter,
                    std::function<QString()> place = {});

    // As things stand; all panels have written. Stage::Ready.
    void look();
    void forget(); // the job, not the printer, is another one

    const std::vector<Caution> &all() const { return m_cautions; }
    const Caution *find(Caution::Weight weight) const; // the first; null for none
    QStringList inWords() const;                       // a line for each

    // On standard error, each once: of a driven run when it prints, and as it goes on.
    void sayAll() { say(false); }
    void sayWhatHappened() { say(true); }

private:
    void say(bool happenedOnly);
    void lookAtCovers();
    std::optional<Caution> printer() const;
    void lookAtPages();

    DialogSession &m_session;
    const bool m_goesToPrinter;
    const std::function<QString()> m_place;
    LeftOutCovers m_covers;
    std::vector<Caution> m_cautions;
    QStringList m_said;
};

} // namespace kelvo
