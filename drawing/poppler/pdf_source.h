#pragma once

#include <QByteArray>
#include <QString>

namespace kelvo {

// Where a PDF is: in a file, or in memory where there is no path.
struct PdfSource
{
    QString path;
    QByteArray bytes;
};

} // namespace kelvo
