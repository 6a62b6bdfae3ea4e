#pragma once

// GLib's headers use names that Qt would make macros of: QT_NO_KEYWORDS is set where this
// is included.
#include <libebook/libebook.h>

#include <QString>

#include <memory>

namespace kelvo {

struct GLibRelease
{
    void operator()(GError *error) const { g_error_free(error); }
    void operator()(GVariant *variant) const { g_variant_unref(variant); }
    void operator()(GMainContext *context) const { g_main_context_unref(context); }
    void operator()(GSettingsSchema *schema) const { g_settings_schema_unref(schema); }
    void operator()(char *text) const { g_free(text); }
    template <typename Object>
    void operator()(Object *object) const
    {
        g_object_unref(object);
    }
};

// What GLib hands out, whose last or only reference this may be.
template <typename Type>
using GLibOwner = std::unique_ptr<Type, GLibRelease>;

// Takes a GError that a call fills: `call(..., error)`.
class GLibError
{
public:
    operator GError **() { return &m_error; }
    ~GLibError() { g_clear_error(&m_error); }
    GLibError() = default;
    GLibError(const GLibError &) = delete;
    GLibError &operator=(const GLibError &) = delete;

    bool is(GQuark domain, int code) const { return g_error_matches(m_error, domain, code); }
    bool isCancelled() const
    {
        return is(G_IO_ERROR, G_IO_ERROR_CANCELLED) || is(E_CLIENT_ERROR, E_CLIENT_ERROR_CANCELLED);
    }
    // In its own words, which are the desktop's language.
    QString text() const
    {
        if (!m_error)
            return {};
        g_dbus_error_strip_remote_error(m_error);
        return QString::fromUtf8(m_error->message);
    }

private:
    GError *m_error = nullptr;
};

} // namespace kelvo
