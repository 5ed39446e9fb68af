#include <glib-unix.h>
#include <gtk/gtk.h>

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "agent/ajan_yerleri.hpp"
#include "app/giris.hpp"
#include "app/kabuk.hpp"
#include "app/komut_satiri.hpp"
#include "app/platform_metinleri.hpp"
#include "desktop/kisayol/gnome_kisayolu_gtk.hpp"
#include "desktop/renk_semasi_gtk.hpp"
#include "temel/acilis_izi.hpp"
#include "temel/glib_gtk.hpp"
#include "yapilandirma.hpp"

namespace nevo {
namespace {

// A dialog that runs a loop of its own (an error shown over the save dialog) would hold the
// quit back until someone closes it: every open dialog is answered as closed first.
gboolean sinyaldeCik(gpointer uygulama) {
  GList* pencereler = gtk_window_list_toplevels();
  for (GList* p = pencereler; p != nullptr; p = p->next) {
    if (GTK_IS_DIALOG(p->data)) gtk_dialog_response(GTK_DIALOG(p->data), GTK_RESPONSE_DELETE_EVENT);
  }
  g_list_free(pencereler);
  g_application_quit(G_APPLICATION(uygulama));
  return G_SOURCE_CONTINUE;
}

// The application object's lifecycle carried to the shell: startup is launching, a later
// activation (another `nevo` started) is reopening, shutdown (also SIGTERM and SIGINT) is
// quitting. The application is held, so closing the window does not quit. Links given on
// the command line (the desktop hands `nevo://…` links over as `nevo %u`) arrive through
// "open", in the running instance, or in a new one once its window exists.
class TemsilciGtk {
 public:
  explicit TemsilciGtk(std::string adres)
      : adres_(std::move(adres)),
        uygulama_(sahiplen(
            gtk_application_new(yapilandirma::UYGULAMA_KIMLIGI, G_APPLICATION_HANDLES_OPEN))) {
    baglantilar_.bagla<void(GApplication*)>(uygulama_.get(), "startup",
                                            [this](GApplication*) { basla(); });
    baglantilar_.bagla<void(GApplication*)>(uygulama_.get(), "activate",
                                            [this](GApplication*) { etkinlesti(); });
    baglantilar_.bagla<void(GApplication*, gpointer, gint, gchar*)>(
        uygulama_.get(), "open", [this](GApplication*, gpointer dosyalar, gint sayi, gchar*) {
          adreslerGeldi(static_cast<GFile**>(dosyalar), sayi);
        });
    baglantilar_.bagla<void(GApplication*)>(uygulama_.get(), "shutdown",
                                            [this](GApplication*) { kapan(); });
    kisayolSecenegiKur();
  }
  TemsilciGtk(const TemsilciGtk&) = delete;
  TemsilciGtk& operator=(const TemsilciGtk&) = delete;

  int calistir(int argc, char** argv) {
    return g_application_run(G_APPLICATION(uygulama_.get()), argc, argv);
  }

 private:
  // `nevo --kisayol-basildi`, run by the desktop's own key binding, hands the hot key's
  // press to the running instance as an application action and ends.
  void kisayolSecenegiKur() {
    static const GOptionEntry SECENEKLER[] = {
        {GNOME_KISAYOL_SECENEGI, 0, G_OPTION_FLAG_HIDDEN, G_OPTION_ARG_NONE, nullptr,
         KISAYOL_SECENEGI_ACIKLAMASI, nullptr},
        {}};
    g_application_add_main_option_entries(G_APPLICATION(uygulama_.get()), SECENEKLER);
    baglantilar_.bagla<gint(GApplication*, GVariantDict*)>(
        uygulama_.get(), "handle-local-options", [this](GApplication* u, GVariantDict* secenekler) {
          if (!g_variant_dict_contains(secenekler, GNOME_KISAYOL_SECENEGI)) return -1;
          yalnizIlet_ = true;
          if (g_application_register(u, nullptr, nullptr) && g_application_get_is_remote(u)) {
            g_action_group_activate_action(G_ACTION_GROUP(u), GNOME_KISAYOL_EYLEMI, nullptr);
            if (GDBusConnection* hat = g_application_get_dbus_connection(u))
              g_dbus_connection_flush_sync(hat, nullptr, nullptr);
          }
          return 0;
        });
  }

  void basla() {
    if (yalnizIlet_) return;  // no shell of its own: the press went to the running one
    acilisIsareti("kayit");
    g_application_hold(G_APPLICATION(uygulama_.get()));
    g_unix_signal_add(SIGTERM, sinyaldeCik, uygulama_.get());
    g_unix_signal_add(SIGINT, sinyaldeCik, uygulama_.get());
    renkSemasi_.emplace(g_application_get_dbus_connection(G_APPLICATION(uygulama_.get())));
    kabuk_.emplace(UygulamaAyari{adres_, yapilandirma::KIMLIK_SONEKI, linuxMetinleri(),
                                 ajanYerleriOlustur(yapilandirma::KOPRU_ADRESI)});
    kabuk_->uygulama().applicationDidFinishLaunching();
  }

  // The first activation is the launch itself; later ones come from another `nevo`.
  void etkinlesti() {
    if (std::exchange(ilkEtkinlesme_, false) || !kabuk_) return;
    kabuk_->sistem().etkinlestir();
    auto& uygulama = kabuk_->uygulama();
    uygulama.applicationShouldHandleReopen(uygulama.pencereGorunur());
  }

  // Each link's text as it was given (GIO keeps the text of a scheme it does not know).
  void adreslerGeldi(GFile** dosyalar, gint sayi) {
    ilkEtkinlesme_ = false;
    if (!kabuk_) return;
    for (gint i = 0; i < sayi; ++i) {
      GMetin adres(g_file_get_uri(dosyalar[i]));
      kabuk_->uygulama().adresGeldi(adres ? std::optional<std::string_view>(adres.get())
                                          : std::nullopt);
    }
  }

  void kapan() {
    if (kabuk_) kabuk_->uygulama().applicationWillTerminate();
  }

  std::string adres_;
  GNesne<GtkApplication> uygulama_;
  std::optional<Kabuk> kabuk_;
  // The macOS web view follows the system's appearance by itself.
  std::optional<RenkSemasiIzleyicisiGtk> renkSemasi_;
  bool ilkEtkinlesme_ = true;
  bool yalnizIlet_ = false;
  SinyalBaglantilari baglantilar_;
};

}  // namespace
}  // namespace nevo

// An argument that is not UTF-8 can be neither a link nor sent to the running instance:
// it is dropped.
static std::vector<char*> utf8Argumanlar(int argc, char** argv) {
  std::vector<char*> argumanlar;
  for (int i = 0; i < argc; ++i) {
    if (i == 0 || g_utf8_validate(argv[i], -1, nullptr)) argumanlar.push_back(argv[i]);
  }
  argumanlar.push_back(nullptr);
  return argumanlar;
}

int main(int argc, char** argv) {
  nevo::acilisIsareti("main");
  // The version and the help need no display, bus or running instance.
  std::vector<std::string_view> secenekler;
  for (int i = 1; i < argc; ++i) secenekler.emplace_back(argv[i]);
  if (auto bilgi = nevo::bilgiIstegi(secenekler, nevo::yapilandirma::SURUM,
                                     nevo::yapilandirma::VARSAYILAN_ADRES)) {
    std::fputs(bilgi->c_str(), stdout);
    return std::fflush(stdout) == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
  }
  g_set_application_name("Nevo");
  auto argumanlar = utf8Argumanlar(argc, argv);
  nevo::TemsilciGtk temsilci(
      nevo::adresSec(std::getenv("NEVO_ADRES"), nevo::yapilandirma::VARSAYILAN_ADRES));
  return temsilci.calistir(static_cast<int>(argumanlar.size() - 1), argumanlar.data());
}
