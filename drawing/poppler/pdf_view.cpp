#include "library_entry.h"
#include "page_picture.h"
#include "texts.h"

#include <poppler-version.h>
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
        // poppler has settings and fonts that all documents of a process share.
        const QMutexLocker lock(&m_mutex);
        QImage image = PagePictures({{}, pdf}).draw(1, pixels, isOnWhite);
        if (image.isNull())
            return undrawable();
        image.convertTo(QImage::Format_ARGB32_Premultiplied);
        // Rows of four-byte pixels have no gaps.
        return Picture{
            image.size(),
            QByteArray(reinterpret_cast<const char *>(image.constBits()), image.sizeInBytes())};
    }

    LibraryVersions versions() const override
    {
        return {{QStringLiteral("poppler"), Poppler::Version::string()}};
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
