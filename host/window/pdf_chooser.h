#pragma once

#include <QFileDialog>

#include <memory>

namespace kelvo {

// Asks for the file that a PDF of the pages is written to. It proposes the name of the document
// called `title`, beside the file at `document` (empty: in the user's documents), but never that
// file itself.
std::unique_ptr<QFileDialog> pdfChooser(const QString &title, const QString &document,
                                        QWidget *parent);

} // namespace kelvo
