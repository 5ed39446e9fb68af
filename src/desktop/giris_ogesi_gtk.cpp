#include "desktop/giris_ogesi_gtk.hpp"

#include <gio/gio.h>
#include <glib/gstdio.h>

#include <cerrno>

#include "desktop/otomatik_baslatma.hpp"
#include "temel/glib_gtk.hpp"
#include "yapilandirma.hpp"

namespace nevo {
namespace {

std::optional<std::string> hataMetni(GError* hata) {
  std::string metin = hata->message;
  g_error_free(hata);
  return metin;
}

}  // namespace

GirisOgesiGtk::GirisOgesiGtk(const std::string& uygulamaKimligi)
    : dosya_(std::string(g_get_user_config_dir()) + "/autostart/" + uygulamaKimligi + ".desktop") {}

// An entry that the desktop would skip (Hidden=true, or switched off in GNOME) is off.
GirisOgesiDurumu GirisOgesiGtk::durum() const {
  AnahtarDosyasi girdi(g_key_file_new());
  if (!g_key_file_load_from_file(girdi.get(), dosya_.c_str(), G_KEY_FILE_NONE, nullptr)) {
    return GirisOgesiDurumu::kayitsiz;
  }
  const char* grup = G_KEY_FILE_DESKTOP_GROUP;
  const bool gizli = g_key_file_get_boolean(girdi.get(), grup, "Hidden", nullptr);
  GError* hata = nullptr;
  const bool etkin = g_key_file_get_boolean(girdi.get(), grup, "X-GNOME-Autostart-enabled", &hata);
  const bool kapali = hata == nullptr && !etkin;
  g_clear_error(&hata);
  return gizli || kapali ? GirisOgesiDurumu::kayitsiz : GirisOgesiDurumu::acik;
}

std::optional<std::string> GirisOgesiGtk::kaydet() {
  GMetin calisan(g_file_read_link("/proc/self/exe", nullptr));
  if (!calisan) return std::string(CALISAN_YOL_YOK);
  GMetin dizin(g_path_get_dirname(dosya_.c_str()));
  if (g_mkdir_with_parents(dizin.get(), 0755) != 0) return std::string(g_strerror(errno));
  const auto girdi = otomatikBaslatmaGirdisi(calisan.get());
  GError* hata = nullptr;
  if (!g_file_set_contents(dosya_.c_str(), girdi.data(), static_cast<gssize>(girdi.size()),
                           &hata)) {
    return hataMetni(hata);
  }
  return std::nullopt;
}

std::optional<std::string> GirisOgesiGtk::kaydiSil() {
  if (g_unlink(dosya_.c_str()) != 0 && errno != ENOENT) return std::string(g_strerror(errno));
  return std::nullopt;
}

std::unique_ptr<GirisOgesi> girisOgesiOlustur() {
  return std::make_unique<GirisOgesiGtk>(yapilandirma::UYGULAMA_KIMLIGI);
}

}  // namespace nevo
