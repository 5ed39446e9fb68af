#include "desktop/masaustu_portali_gtk.hpp"

#include <algorithm>

namespace nevo {

// The caller's unique name without its colon, dots turned into underscores.
std::string portalIstekYolu(GDBusConnection* baglanti, const std::string& jeton) {
  std::string ad = g_dbus_connection_get_unique_name(baglanti);
  if (!ad.empty() && ad.front() == ':') ad.erase(0, 1);
  std::replace(ad.begin(), ad.end(), '.', '_');
  return std::string(MASAUSTU_YOLU) + "/request/" + ad + "/" + jeton;
}

}  // namespace nevo
