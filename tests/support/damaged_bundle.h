#pragma once

#include "bundle.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

// A bundle with the texts of the real one, and of its windows only the one whose
// description is given.
struct DamagedBundle
{
    // `window` is "folder/name"; `description` null: there is none.
    DamagedBundle(const QString &window, const QByteArray &description)
    {
        const QString resources = folder.filePath(QStringLiteral("Test.pde/Resources"));
        write(folder.filePath(QStringLiteral("Test.pde/Info.plist")),
              "<plist version=\"1.0\"><dict><key>CFBundleIdentifier</key><string>"
                  + folder.path().toUtf8() + "</string></dict></plist>");
        QDir().mkpath(resources);
        QFile::link(QStringLiteral(KELVO_BUILD_DIR "/lib/KelvoPDE.pde/Resources/strings"),
                    resources + QStringLiteral("/strings"));
        if (!description.isNull())
            write(resources + QStringLiteral("/dialogs/") + window + QStringLiteral(".ui"),
                  description);
        const auto opened = kelvo::Bundle::open(folder.filePath(QStringLiteral("Test.pde")));
        bundle = opened ? opened.value() : nullptr;
    }

    static void write(const QString &path, const QByteArray &bytes)
    {
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            qFatal("%s: %s", qPrintable(path), qPrintable(file.errorString()));
    }

    QTemporaryDir folder;
    kelvo::CFBundleRef bundle = nullptr;
};
