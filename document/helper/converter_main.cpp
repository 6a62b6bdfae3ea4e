#include "helper_main.h"
#include "tasks.h"

#include <QCoreApplication>

#include <clocale>

using namespace kelvo;
using namespace kelvo::documents;

static void answer(Task task, QDataStream &in, QDataStream &out)
{
    if (task == Task::ImportPicture) {
        out << documents::importPicture(take<qint32>(in));
        return;
    }
    const auto files = take<ConverterFiles>(in);
    if (task == Task::ConvertText)
        out << documents::convertText(files, take<QSizeF>(in));
    else if (task == Task::ConvertPicture)
        out << documents::convertPicture(files);
}

int main(int argc, char **argv)
{
    if (!isOwnCaller(argc, argv))
        return kOtherVersionStatus;
    endWithoutMemory();
    // Readers chat about every oddity; the program shows what comes out here.
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    std::setlocale(LC_CTYPE, ""); // text layout follows the user's language
    answerRequests(answer);
}
