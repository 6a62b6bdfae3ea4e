#pragma once

#include <QtGlobal>

// Every limit on what comes from outside, in one place. Each has a test at
// the limit and one above.
namespace kelvo::limits {

inline constexpr qint64 KiB = 1024;
inline constexpr qint64 MiB = 1024 * KiB;

// Property lists. A job with 99,999 special pages is about 100 MB of XML.
inline constexpr int plistDepth = 64;
inline constexpr qint64 plistNodes = 8'000'000;
inline constexpr qint64 plistBytes = 128 * MiB;

inline constexpr qint64 ppdBytes = 8 * MiB; // the largest in the field are below 2 MiB
// libcups looks names up one by one: far beyond any device it would take minutes.
inline constexpr int ppdOptions = 4096; // and groups
inline constexpr int ppdPageSizes = 4096;
inline constexpr int ppdConstraints = 24'576; // the largest in the field have 20,000

inline constexpr qint64 scriptBytes = 16 * MiB;
inline constexpr qint64 secretBytes = 4 * KiB; // a file given by --secret
inline constexpr qint64 documentBytes = 2048 * MiB;
inline constexpr qint64 pictureBytes = 256 * MiB; // a picture file before decoding
inline constexpr qint64 picturePixels = 200'000'000;
inline constexpr qint64 fontBytes = 64 * MiB;     // the largest in the field have 40
inline constexpr qint64 textBytes = 64 * MiB;     // plain text; some 15,000 pages
inline constexpr qint64 cardFileBytes = 64 * MiB; // vCards, with a picture each
inline constexpr int cards = 50'000;
inline constexpr int cardProperties = 1000;   // of one card
inline constexpr int documentPages = 100'000; // made of a text, or named by page ranges

// The child processes that make PDFs of what users choose, and read and write PDFs.
// A picture at its pixel limit takes 800 MB, and as much again where it is turned.
inline constexpr qint64 converterMemory = 3072 * MiB;
inline constexpr int converterSeconds = 120;

// Pictures for watermarks and cover sheets: what comes back of one crosses a pipe and stays
// in memory. A page of A4 at 300 dots per inch has 8.7 million.
inline constexpr qint64 importedPixels = 8'000'000;
inline constexpr int importSeconds = 20; // somebody waits for it before a window

// The child process that draws pages for the preview. The largest picture of a page
// takes 256 MB twice; what the libraries map is another 300 MB of addresses.
inline constexpr qint64 drawingMemory = 1536 * MiB;
inline constexpr int drawingSeconds = 15; // for one page
inline constexpr int drawnSide = 8192;    // pixels of a page's picture; 4 times a large screen

inline constexpr int fileLockWaitMs = 2000;   // how long a store's lock is waited for
inline constexpr int optionValueBytes = 4000; // longest option value that always reached a filter

} // namespace kelvo::limits
