#pragma once

#include <QFileDialog>

#include <memory>

namespace kelvo {

// The window that asks for the document where none was named: it shows the kinds that are printed,
// or all files. It begins in `folder`; empty: the user's documents.
std::unique_ptr<QFileDialog> documentChooser(const QString &folder);

} // namespace kelvo
