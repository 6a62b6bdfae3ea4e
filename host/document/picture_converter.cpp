#include "child_process.h"
#include "document.h"
#include "document_functions.h"
#include "terminal.h"

#include <QCoreApplication>
#include <QGuiApplication>

#include <algorithm>

namespace kelvo {

namespace {

// The helper's exit statuses, beside 0. Others are the runtime's or a crash's.
struct ExitStatus
{
    int status;
    Error::Code code;
};
constexpr ExitStatus exitStatuses[] = {
    {11, Error::Code::Damaged},
    {12, Error::Code::TooLarge},
    {13, Error::Code::Unsupported},
    {14, Error::Code::NotWritable},
};

QString &helperProgram()
{
    static QString path;
    return path;
}

} // namespace

void setPictureHelperProgram(const QString &path)
{
    helperProgram() = path;
}

Result<void> convertPicture(const ConverterFiles &files, const std::atomic_bool &cancelled)
{
    const QString program =
        helperProgram().isEmpty() ? QCoreApplication::applicationFilePath() : helperProgram();
    const Result<ChildEnd> end = runChild(
        {program, {QStringLiteral("--picture-helper"), files.source, files.pdf}, files.folder},
        files.where, cancelled);
    if (!end)
        return end.error();
    if (end.value().status == 0)
        return {};
    const auto row = std::ranges::find(exitStatuses, end.value().status, &ExitStatus::status);
    // The libraries may have chatted before; the reason comes last.
    const QString reason = end.value().message.section(u'\n', -1);
    return converterError(row == std::end(exitStatuses) ? Error::Code::Damaged : row->code, files,
                          reason.isEmpty() ? QStringLiteral("the picture cannot be read") : reason);
}

int runPictureHelper(const QString &picturePath, const QString &pdfPath)
{
    // Readers chat about every oddity; the parent shows what comes out here.
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    // Texts in drawings need fonts, and those an application; no window is ever
    // shown, so no display is asked for.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QCoreApplication::setAttribute(Qt::AA_Use96Dpi);
    int argc = 1;
    char name[] = "kelvo-print";
    char *argv[] = {name, nullptr};
    std::unique_ptr<QGuiApplication> application;
    if (!QCoreApplication::instance())
        application = std::make_unique<QGuiApplication>(argc, argv);

    const auto functions = documentFunctions();
    const Result<void> made = functions ? functions.value()->makePicturePdf(picturePath, pdfPath)
                                        : Result<void>(functions.error());
    if (made)
        return 0;
    printLine(stderr, made.error().detail);
    const auto row = std::ranges::find(exitStatuses, made.error().code, &ExitStatus::code);
    return row == std::end(exitStatuses) ? 1 : row->status;
}

} // namespace kelvo
