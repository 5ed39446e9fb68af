#include "temel/sistem_gtk.hpp"

#include <gio/gdesktopappinfo.h>

#include <cstdio>
#include <cstdlib>
#include <memory>

#include "temel/glib_gtk.hpp"
#include "temel/kaynaklar.hpp"
#include "yapilandirma.hpp"

namespace nevo {
namespace {

template <class F>
void pencereler(GtkApplication* uygulama, F islev) {
  for (GList* l = gtk_application_get_windows(uygulama); l != nullptr; l = l->next) {
    islev(GTK_WINDOW(l->data));
  }
}

// The folder opens in the desktop's default handler for folders.
void klasoruAc(const std::string& yol) {
  GMetin klasor(g_path_get_dirname(yol.c_str()));
  GMetin adres(g_filename_to_uri(klasor.get(), nullptr, nullptr));
  if (adres)
    g_app_info_launch_default_for_uri_async(adres.get(), nullptr, nullptr, nullptr, nullptr);
}

void ogelerGosterildi(GObject* hat, GAsyncResult* sonuc, gpointer veri) {
  std::unique_ptr<std::string> yol(static_cast<std::string*>(veri));
  Degisken cevap(g_dbus_connection_call_finish(G_DBUS_CONNECTION(hat), sonuc, nullptr));
  if (!cevap) klasoruAc(*yol);
}

}  // namespace

// Activating an application brings its visible windows forward; hidden ones stay hidden.
void SistemGtk::etkinlestir() {
  pencereler(uygulama_, [](GtkWindow* p) {
    if (gtk_widget_get_visible(GTK_WIDGET(p))) gtk_window_present(p);
  });
}

void SistemGtk::disaridaAc(const std::string& adres) {
  g_app_info_launch_default_for_uri_async(adres.c_str(), nullptr, nullptr, nullptr, nullptr);
}

// The desktop's file manager, through its common interface on the session bus; a desktop
// without one opens the folder instead.
void SistemGtk::klasordeGoster(const std::string& yol) {
  GDBusConnection* hat = g_application_get_dbus_connection(G_APPLICATION(uygulama_));
  GMetin adres(g_filename_to_uri(yol.c_str(), nullptr, nullptr));
  if (hat == nullptr || !adres) {
    klasoruAc(yol);
    return;
  }
  const char* ogeler[] = {adres.get(), nullptr};
  g_dbus_connection_call(hat, "org.freedesktop.FileManager1", "/org/freedesktop/FileManager1",
                         "org.freedesktop.FileManager1", "ShowItems",
                         g_variant_new("(^ass)", ogeler, ""), nullptr, G_DBUS_CALL_FLAGS_NONE, -1,
                         nullptr, ogelerGosterildi, new std::string(yol));
}

void SistemGtk::sonlandir() { g_application_quit(G_APPLICATION(uygulama_)); }

// The bundle identifier is present when the application's desktop file is
// installed where the desktop finds it.
std::optional<std::string> SistemGtk::paketKimligi() const {
  const std::string kimlik = yapilandirma::UYGULAMA_KIMLIGI;
  auto bilgi = sahiplen(g_desktop_app_info_new((kimlik + ".desktop").c_str()));
  if (!bilgi) return std::nullopt;
  return kimlik;
}

void SistemGtk::hakkindaGoster() {
  GtkWindow* ana = gtk_application_get_active_window(uygulama_);
  GtkWidget* pano = gtk_about_dialog_new();
  auto* hakkinda = GTK_ABOUT_DIALOG(pano);
  gtk_about_dialog_set_program_name(hakkinda, "Nevo");
  gtk_about_dialog_set_version(hakkinda, yapilandirma::SURUM);
  if (auto simge = kaynakYolu(PENCERE_SIMGESI)) {
    auto resim = sahiplen(gdk_pixbuf_new_from_file_at_size(simge->c_str(), 96, 96, nullptr));
    if (resim) gtk_about_dialog_set_logo(hakkinda, resim.get());
  }
  gtk_window_set_transient_for(GTK_WINDOW(pano), ana);
  g_signal_connect(pano, "response", G_CALLBACK(gtk_widget_destroy), nullptr);
  gtk_window_present(GTK_WINDOW(pano));
}

void SistemGtk::gizle() { pencereler(uygulama_, gtk_window_iconify); }

// A Linux desktop gives applications no way to hide other applications' windows; the menu
// entry is disabled on Linux, so this is never reached from it.
void SistemGtk::digerleriniGizle() {}

std::optional<std::string> SistemGtk::ciftTiklamaTercihi() const {
  gchar* deger = nullptr;
  g_object_get(gtk_settings_get_default(), "gtk-titlebar-double-click", &deger, nullptr);
  GMetin sahip(deger);
  if (!sahip) return std::nullopt;
  return std::string(sahip.get());
}

void SistemGtk::olumcul(const std::string& neden) {
  std::fprintf(stderr, "nevo: %s\n", neden.c_str());
  std::exit(EXIT_FAILURE);
}

std::unique_ptr<Sistem> sistemOlustur() {
  return std::make_unique<SistemGtk>(GTK_APPLICATION(g_application_get_default()));
}

}  // namespace nevo
