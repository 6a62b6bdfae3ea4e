#include "fonts.h"
#include "library_entry.h"
#include "pdf_canvas.h"
#include "text_layout.h"

#include <QFile>

#include <cstring>

namespace kelvo::drawing {

namespace {

class PdfPage final : public Page
{
public:
    explicit PdfPage(const QSizeF &size)
        : m_canvas([this](const char *bytes, std::size_t count) {
            m_pdf.append(bytes, static_cast<qsizetype>(count));
            return true;
        })
        , m_height(size.height())
        , m_context(m_canvas.beginPage(size))
    {
    }

    void drawText(const QString &text, const TextStyle &style, const QPointF &origin) override
    {
        TextLayout(text, style).draw(m_context, origin.x(), m_height - origin.y());
    }

    Result<QByteArray> finish() override
    {
        m_canvas.endPage(); // close() tells whether it went well
        if (Result<void> closed = m_canvas.close(); !closed)
            return closed.error();
        return m_pdf;
    }

private:
    QByteArray m_pdf; // before the canvas, which writes into it as long as it lives
    PdfCanvas m_canvas;
    double m_height;
    cairo_t *m_context; // the canvas's
};

class CairoLibrary final : public Library
{
public:
    std::optional<Font> findFont(const QString &postScriptName) const override
    {
        const FontPattern pattern = findFontPattern(postScriptName);
        FcChar8 *name = nullptr;
        FcChar8 *path = nullptr;
        int index = 0;
        if (!pattern
            || FcPatternGetString(pattern.get(), FC_POSTSCRIPT_NAME, 0, &name) != FcResultMatch
            || FcPatternGetString(pattern.get(), FC_FILE, 0, &path) != FcResultMatch
            || FcPatternGetInteger(pattern.get(), FC_INDEX, 0, &index) != FcResultMatch) {
            return std::nullopt;
        }
        return Font{QString::fromUtf8(reinterpret_cast<const char *>(name)),
                    QFile::decodeName(reinterpret_cast<const char *>(path)), index};
    }

    QRectF inkBounds(const QString &text, const TextStyle &style) const override
    {
        return TextLayout(text, style).inkBounds();
    }

private:
    std::unique_ptr<Page> makePage(const QSizeF &size) const override
    {
        return std::make_unique<PdfPage>(size);
    }
};

} // namespace

} // namespace kelvo::drawing

extern "C" Q_DECL_EXPORT const kelvo::drawing::Library *kelvoDrawing(const char *version)
{
    static const kelvo::drawing::CairoLibrary library;
    return std::strcmp(version, KELVO_VERSION) == 0 ? &library : nullptr;
}
