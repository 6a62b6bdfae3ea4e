#pragma once

#include <QFileDialog>

#include <memory>

namespace kelvo {

// The window that asks for documents, one or several: where none was named, and to add some. It
// shows the kinds that are printed, or all files. It begins in `folder`; empty: the user's
// documents.
std::unique_ptr<QFileDialog> documentChooser(const QString &folder, QWidget *parent = nullptr);

} // namespace kelvo
