#include "child_process.h"
#include "document_files.h"
#include "texts.h"

#include <QFileInfo>
#include <QStandardPaths>

#include <cmath>

namespace kelvo {

namespace {

// The line of Ghostscript's report that says what went wrong.
QString problemIn(const QString &report)
{
    for (const QString &line : report.split(u'\n')) {
        if (line.startsWith(QLatin1String("Error:")))
            return line.trimmed();
    }
    return report.section(u'\n', 0, 0);
}

} // namespace

Result<void> convertPostScript(const ConverterFiles &files, const QSizeF &paper,
                               const std::atomic_bool &cancelled)
{
    const QString ghostscript = QStandardPaths::findExecutable(QStringLiteral("gs"));
    if (ghostscript.isEmpty()) {
        return Error{Error::Code::Unsupported, files.where,
                     translate("Document",
                               "printing PostScript needs Ghostscript; install the package "
                               "“ghostscript”")};
    }

    const ChildProgram child{
        .program = ghostscript,
        .arguments =
            {
                QStringLiteral("-dSAFER"),
                QStringLiteral("-dBATCH"),
                QStringLiteral("-dNOPAUSE"),
                QStringLiteral("-q"),
                QStringLiteral("-sstdout=%stderr"),
                QStringLiteral("-sDEVICE=pdfwrite"),
                QStringLiteral("-dAutoRotatePages=/None"), // pages stay as they were drawn
                // For a document that does not say its size.
                QStringLiteral("-dDEVICEWIDTHPOINTS=%1").arg(std::lround(paper.width())),
                QStringLiteral("-dDEVICEHEIGHTPOINTS=%1").arg(std::lround(paper.height())),
                // A bare name: "%" in a folder's name would be a page number.
                QStringLiteral("-sOutputFile=") + QFileInfo(files.pdf).fileName(),
                QFileInfo(files.source).fileName(),
            },
        .folder = files.folder,
    };
    const Result<ChildEnd> end = runChild(child, files.where, cancelled);
    if (!end)
        return end.error();
    if (end.value().status != 0) {
        return converterError(Error::Code::Damaged, files,
                              translate("Document", "Ghostscript cannot read the PostScript: %1")
                                  .arg(problemIn(end.value().message)));
    }
    return {};
}

} // namespace kelvo
