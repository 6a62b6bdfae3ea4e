#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>
#include <QStringList>

// PDFs for tests, and what is in them.

// `pages` pages, page N being 100 + N points wide; `filler` bytes that do not
// compress make it large. `attachments` are embedded under their names.
void writePdf(const QString &path, int pages, const QMap<QString, QByteArray> &attachments = {},
              qsizetype filler = 0);

// Name → bytes; the key in the document's tree and the file's own name as
// "key (name)" where they differ.
QMap<QString, QByteArray> attachmentsOf(const QString &path);

// Every text of the PDF that is no page's content, as a reader understands it, and all
// its streams.
QStringList namesInside(const QString &path);
QByteArrayList streamsInside(const QString &path);

// The widths of the pages, less 100: which pages of writePdf() they are.
QList<int> pagesOf(const QString &path);
