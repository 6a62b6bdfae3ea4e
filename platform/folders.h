#pragma once

#include <QString>

// Where files live. Every path ends without a slash; nothing is created here.
namespace kelvo {

// $XDG_CONFIG_HOME/kelvo, else ~/.config/kelvo; empty when there is neither.
QString userPreferencesFolder();

// $KELVO_SUPPORT_DIR, else /var/lib when /var/lib/Kelvo is there and writable,
// else $XDG_DATA_HOME, else ~/.local/share; empty when there is none. The
// maker folder "Kelvo" lies inside.
QString localApplicationSupportFolder();

// $KELVO_SITE_DIR, else /etc/xdg/kelvo: what administrators deploy, read-only.
QString siteFolder();

} // namespace kelvo
