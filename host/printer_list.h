#pragma once

namespace kelvo {

// --list-printers: a line for each queue, its columns between tabs. Waits for the print server,
// at most `timeoutMs`. The status that the program ends with.
int printQueues(int timeoutMs);

} // namespace kelvo
