// kelvo_window_compiler OUTPUT FOLDER FILE...: makes C++ of a bundle's window descriptions, for its
// module. FILE is DESCRIPTION/WINDOW.ui in FOLDER.
#include "description_reader.h"

#include <QFile>

#include <cstdio>

namespace {

int fail(const QFile &file, const QString &problem)
{
    std::fprintf(stderr, "%s:%s\n", file.fileName().toUtf8().constData(),
                 problem.toUtf8().constData());
    return 1;
}

} // namespace

int main(int argc, char **argv)
{
    if (argc < 3) {
        std::fputs("usage: kelvo_window_compiler OUTPUT FOLDER DESCRIPTION/WINDOW.ui...\n", stderr);
        return 2;
    }
    const QString folder = QFile::decodeName(argv[2]);
    kelvo::WindowCode code;
    for (int i = 3; i < argc; ++i) {
        const QString name = QFile::decodeName(argv[i]);
        QFile file(folder + u'/' + name);
        if (!file.open(QIODevice::ReadOnly))
            return fail(file, u' ' + file.errorString());
        const QByteArray bytes = file.readAll();
        code.begin(name.chopped(QLatin1String(".ui").size()), bytes);
        const QString problem = kelvo::DescriptionReader(bytes, code).read();
        if (!problem.isNull())
            return fail(file, problem);
    }
    QFile output(QFile::decodeName(argv[1]));
    const QByteArray source = code.source();
    if (!output.open(QIODevice::WriteOnly) || output.write(source) != source.size()
        || !output.flush())
        return fail(output, u' ' + output.errorString());
    return 0;
}
