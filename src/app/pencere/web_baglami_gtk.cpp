#include "app/pencere/web_baglami_gtk.hpp"

#include <string>

#include "app/web_verisi.hpp"

namespace nevo {
namespace {

// Where the engine kept a program's data when given no place of its own: the data folder
// under the program's name.
constexpr const char* MOTORUN_ESKI_YERI = "/nevo";

GNesne<WebKitWebsiteDataManager> kaliciVeri(const std::string& veri, const std::string& onbellek) {
  auto yonetici = sahiplen(webkit_website_data_manager_new(
      "base-data-directory", veri.c_str(), "base-cache-directory", onbellek.c_str(), nullptr));
  webkit_cookie_manager_set_persistent_storage(
      webkit_website_data_manager_get_cookie_manager(yonetici.get()),
      (veri + CEREZ_DOSYASI).c_str(), WEBKIT_COOKIE_PERSISTENT_STORAGE_SQLITE);
  return yonetici;
}

}  // namespace

GNesne<WebKitWebContext> webBaglamiKur() {
  const std::string veriKoku = g_get_user_data_dir();
  const std::string veri = veriKoku + "/Nevo" + WEB_VERISI_DIZINI;
  eskiVeriyiTasi(veriKoku + MOTORUN_ESKI_YERI, veri);
  auto yonetici = yazilabilirDizin(veri)
                      ? kaliciVeri(veri, std::string(g_get_user_cache_dir()) + "/Nevo")
                      : sahiplen(webkit_website_data_manager_new_ephemeral());
  return sahiplen(webkit_web_context_new_with_website_data_manager(yonetici.get()));
}

}  // namespace nevo
