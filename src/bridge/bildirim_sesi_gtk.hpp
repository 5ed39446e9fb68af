#pragma once
#include <gio/gio.h>

#include <string>

namespace nevo {

// The desktop's sound for a new message ("message-new-instant" of its sound theme),
// unless the desktop is not to be disturbed: GNOME's banners are off, or the notification
// server says it is inhibited. The bus is never waited on, and the sound is played away
// from the main thread, one after another.
void bildirimSesiCal(GDBusConnection* hat, const std::string& baslik);

}  // namespace nevo
