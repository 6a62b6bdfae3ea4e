#pragma once

#include <QString>
#include <QStringList>

// Where files live. Every path ends without a slash; nothing is created here. ~ is what HOME says,
// else the home of the system's list of users.
namespace kelvo {

// $XDG_CONFIG_HOME/kelvo, else ~/.config/kelvo; empty when there is neither.
QString userPreferencesFolder();

// $KELVO_SUPPORT_DIR, else /var/lib when /var/lib/Kelvo is there and writable,
// else $XDG_DATA_HOME, else ~/.local/share; empty when there is none. The
// maker folder "Kelvo" lies inside.
QString localApplicationSupportFolder();

// $KELVO_SITE_DIR alone, else "kelvo" in each of $XDG_CONFIG_DIRS, else /etc/xdg/kelvo: what
// administrators deploy, read-only. An earlier folder's file beats a later one's.
QStringList siteFolders();

// Where this library lies, and beside it what is not linked but opened or started: all
// that is installed in lib/kelvo.
QString libraryFolder();

} // namespace kelvo
