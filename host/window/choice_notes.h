#pragma once

#include "event.h"
#include "ticket_file.h"

class QWidget;

namespace kelvo {

class SessionJob;

// Tells a job what the user has chosen by hand or by a script, also where that is what
// was shown already. What is set in a dialog above the window counts once that is closed
// with OK.
class ChoiceNotes
{
public:
    ChoiceNotes(QWidget *window, SessionJob &job); // both borrowed

    void note(const Event &event);

private:
    QWidget *m_window;
    SessionJob &m_job;
    TicketPlaces m_inDialogs; // until they close
};

} // namespace kelvo
