#include "library_entry.h"
#include "page_picture.h"
#include "texts.h"

#include <QMutex>

#include <cstring>

namespace kelvo::drawing {

namespace {

Error undrawable()
{
    return Error{Error::Code::Damaged, translate("Drawing", "page"),
                 translate("Drawing", "it cannot be shown: what was drawn is no PDF of a page")};
}

class PopplerView final : public PdfView
{
public:
    Result<Picture> show(const QByteArray &pdf, const QSize &pixels, bool isOnWhite) const override
    {
        const QMutexLocker lock(&m_mutex);
        const Result<Picture> picture = PagePictures({{}, pdf}).draw(1, pixels, isOnWhite);
        return picture ? picture : undrawable();
    }

    LibraryVersions versions() const override
    {
        return {{QStringLiteral("poppler"), PagePictures::version()}};
    }

private:
    mutable QMutex m_mutex;
};

} // namespace

} // namespace kelvo::drawing

extern "C" Q_DECL_EXPORT const void *kelvoPdfView(const char *version)
{
    if (std::strcmp(version, KELVO_VERSION) != 0)
        return nullptr;
    // Never destroyed: a thread may outlive every static object.
    static const kelvo::drawing::PdfView &view = *new kelvo::drawing::PopplerView;
    return &view;
}
