#include "choice_notes.h"

#include "session_job.h"
#include "ticket_places.h"

#include <QDialog>

#include <utility>

namespace kelvo {

ChoiceNotes::ChoiceNotes(QWidget *window, SessionJob &job)
    : m_window(window)
    , m_job(job)
{
}

void ChoiceNotes::note(const Event &event)
{
    if (event.kind == EventKind::FocusChanged)
        return;
    const TicketPlaces places = ticketPlacesOf(event.source, event.command);
    const QWidget *window = event.source->window();
    if (window == m_window) {
        m_inDialogs.clear();
        m_job.choose(places);
        return;
    }
    m_inDialogs.insert(places.begin(), places.end());
    const auto *dialog = qobject_cast<const QDialog *>(window);
    if (dialog && !dialog->isVisible() && dialog->result() == QDialog::Accepted)
        m_job.choose(std::exchange(m_inDialogs, {}));
}

} // namespace kelvo
