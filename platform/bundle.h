#pragma once

#include "result.h"
#include "values.h"

#include <QString>
#include <QStringList>
#include <QUuid>

#include <memory>
#include <optional>

// A bundle is a folder:
//
//   NAME.pde/Info.plist             identifier, factory, further panels (below)
//   NAME.pde/NAME.so                the module, loaded when a function is first asked for
//   NAME.pde/Resources/             dialogs/ pictures/ help/ strings/ and property lists
//
// Info.plist keys:
//   CFBundleIdentifier         string
//   CFBundleExecutable         string: file name of the module
//   CFPlugInTypes              dictionary: plug-in type UUID → array of factory UUIDs
//   CFPlugInFactories          dictionary: factory UUID → function name
// and where they are needed:
//   KelvoDeviceMaker           string: the manufacturer of its devices, as PPDs name it
//   KelvoFaxTicketKeys         array of keys whose presence makes a job a fax
//   KelvoFaxTicketValues       dictionary, key path → integer: one of which it must have, too
//   KelvoFurtherPanelGetters   array of strings: panels beside the shell, in order
//   KelvoSecretTicketKeys      array of key paths: "com.kelvo.print.JobType/Password"
namespace kelvo {

class Bundle
{
public:
    // Opens the bundle at `path` and registers it under its identifier until the
    // process ends; the same path gives the same bundle again. Nothing is loaded yet.
    static Result<Bundle *> open(const QString &path);

    ~Bundle();
    Bundle(const Bundle &) = delete;
    Bundle &operator=(const Bundle &) = delete;

    const QString &path() const;
    const QString &identifier() const;
    const Dictionary &info() const;
    QString resourcesPath() const;

    // The factory function's name for `typeUUID` and the factory's own UUID;
    // none when the bundle makes no such plug-in.
    struct Factory
    {
        QUuid identifier;
        QString functionName;
    };
    std::optional<Factory> findFactory(const QUuid &typeUUID) const;

    // The exported function, the module being loaded with the first call; null
    // when there is none. The module is never unloaded: its strings outlive it.
    void *findFunction(const char *name);
    // Why the module could not be loaded; empty when it could, or was not asked yet.
    QString loadError() const;

    // The resource NAME.TYPE, in `subfolder` when given; empty when there is none.
    QString findResource(const QString &name, const QString &type,
                         const QString &subfolder = {}) const;

    std::optional<QString> findString(const QString &key, const QString &table) const;

private:
    explicit Bundle(QString path);
    struct Private;
    std::unique_ptr<Private> d;
};

using CFBundleRef = Bundle *;

// The registered bundle with that identifier, or null.
CFBundleRef CFBundleGetBundleWithIdentifier(const QString &identifier);

void *CFBundleGetFunctionPointerForName(CFBundleRef bundle, const char *name);

// The text of `key`, else `fallback`.
QString CFBundleCopyLocalizedString(CFBundleRef bundle, const QString &key, const QString &fallback,
                                    const QString &table);

// Which factories have living instances; a bundle's module may not go while
// they do.
void CFPlugInAddInstanceForFactory(const QUuid &factory);
void CFPlugInRemoveInstanceForFactory(const QUuid &factory);
int plugInInstanceCount(const QUuid &factory);

} // namespace kelvo
