#pragma once

// GLib's headers use names that Qt would make macros of: QT_NO_KEYWORDS is set where this
// is included.
#include <pango/pangocairo.h>

#include <memory>

namespace kelvo {

struct PangoRelease
{
    void operator()(void *object) const { g_object_unref(object); }
    void operator()(PangoFontDescription *font) const { pango_font_description_free(font); }
    void operator()(PangoTabArray *tabs) const { pango_tab_array_free(tabs); }
    void operator()(PangoLayoutIter *iterator) const { pango_layout_iter_free(iterator); }
};

// One of Pango's objects, whose last or only reference this may be.
template <typename Type>
using PangoOwner = std::unique_ptr<Type, PangoRelease>;

} // namespace kelvo
