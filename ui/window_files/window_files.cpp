#include "window_files.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QDir>
#include <QUiLoader>

#include <cstring>
#include <optional>

namespace kelvo {

namespace {

class DescriptionLoader : public QUiLoader
{
public:
    explicit DescriptionLoader(const WidgetMaker &make)
        : m_make(make)
    {
        // The bundle's own tables are asked, later.
        setLanguageChangeEnabled(false);
        setTranslationEnabled(false);
    }

    QWidget *createWidget(const QString &className, QWidget *parent, const QString &name) override
    {
        return m_make(className, parent, name);
    }

private:
    const WidgetMaker &m_make;
};

// QUiLoader begins with loading every widget plug-in of Qt Designer on the system;
// one brings all of Qt Quick with it. Our classes are our own, so it finds none.
class WithoutDesignerPlugins
{
public:
    WithoutDesignerPlugins() { QCoreApplication::setLibraryPaths({}); }
    ~WithoutDesignerPlugins() { QCoreApplication::setLibraryPaths(m_paths); }
    WithoutDesignerPlugins(const WithoutDesignerPlugins &) = delete;
    WithoutDesignerPlugins &operator=(const WithoutDesignerPlugins &) = delete;

private:
    const QStringList m_paths = QCoreApplication::libraryPaths();
};

class UiFiles final : public WindowFiles
{
public:
    Result<QWidget *> load(const QByteArray &description, const QString &folder,
                           const WidgetMaker &make, QWidget *parent) const override
    {
        std::optional<DescriptionLoader> loader;
        {
            const WithoutDesignerPlugins guard;
            loader.emplace(make);
        }
        loader->setWorkingDirectory(QDir(folder));
        QBuffer bytes;
        bytes.setData(description);
        bytes.open(QIODevice::ReadOnly);
        QWidget *window = loader->load(&bytes, parent);
        if (!window)
            return Error{Error::Code::Damaged, {}, loader->errorString()};
        return window;
    }
};

} // namespace

} // namespace kelvo

extern "C" Q_DECL_EXPORT const void *kelvoWindowFiles(const char *version)
{
    if (std::strcmp(version, KELVO_VERSION) != 0)
        return nullptr;
    static const kelvo::UiFiles files;
    return static_cast<const kelvo::WindowFiles *>(&files);
}
