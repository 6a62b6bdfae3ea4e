#pragma once

#include "job_words.h"

namespace kelvo {

class DialogSession;
class SessionJob;
class SessionCautions;

// What will be sent and what is to be known of it, conflicts too, after all panels have
// written. Stage::Ready.
JobWords jobInWords(DialogSession &session, SessionCautions &cautions);

// Why the chosen pages cannot be printed, a sentence; empty when they can. Stage::Ready,
// and the document is there.
QString pagesProblem(DialogSession &session);
// What only the printer adds, so that a PDF of the pages does not have it, a sentence; empty where
// it adds nothing. Stage::Ready.
QString leftToThePrinter(SessionJob &job);
// "12 pages, 6 sheets". Where there is no such problem.
QString jobInShort(DialogSession &session);

} // namespace kelvo
