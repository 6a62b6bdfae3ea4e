#include "helper_main.h"
#include "kept_pdf.h"
#include "tasks.h"

using namespace kelvo;
using namespace kelvo::documents;

// What a request has left for the next one.
static KeptPdf &kept()
{
    static KeptPdf pdf;
    return pdf;
}

static void answer(Task task, QDataStream &in, QDataStream &out)
{
    // Arguments of a call are evaluated in any order: all but the last are taken before.
    switch (task) {
    case Task::TidyPdf: {
        const auto source = take<QString>(in);
        const auto target = take<QString>(in);
        out << documents::tidyPdf(source, target, take<QStringList>(in));
        break;
    }
    case Task::TidyPdfToWrite: {
        const auto source = take<QString>(in);
        const auto target = take<QString>(in);
        const auto passwords = take<QStringList>(in);
        const auto written = take<QString>(in);
        out << kept().tidy(source, target, passwords, written, take<QString>(in));
        break;
    }
    case Task::WritePdf: {
        const auto layout = take<PdfLayout>(in);
        out << kept().write(layout, take<EmbeddedFile>(in));
        break;
    }
    case Task::MakePdf: {
        const auto source = take<QString>(in);
        const auto layout = take<PdfLayout>(in);
        const auto file = take<EmbeddedFile>(in);
        out << documents::makePdf(source, layout, file, take<QString>(in));
        break;
    }
    case Task::JoinPdfs: {
        const auto sources = take<QStringList>(in);
        out << documents::joinPdfs(sources, take<QString>(in));
        break;
    }
    case Task::CheckEmbeddedFile: {
        const auto path = take<QString>(in);
        const auto name = take<QString>(in);
        out << checkEmbeddedFile(path, name, take<QByteArray>(in));
        break;
    }
    case Task::ConvertText:
    case Task::ConvertPicture:
    case Task::ImportPicture:
        break; // another helper's
    }
}

int main(int argc, char **argv)
{
    if (!isOwnCaller(argc, argv))
        return kOtherVersionStatus;
    endWithoutMemory();
    answerRequests(answer, [] { kept().prepare(); });
}
