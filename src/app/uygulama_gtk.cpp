#include "app/uygulama_gtk.hpp"

#include <glib-unix.h>

#include <csignal>

#include "yapilandirma.hpp"

namespace nevo {
namespace {

gboolean sinyaldeCik(gpointer uygulama) {
  g_application_quit(G_APPLICATION(uygulama));
  return G_SOURCE_CONTINUE;
}

}  // namespace

GtkKabuk::GtkKabuk(std::string adres)
    : adres_(std::move(adres)),
      uygulama_(sahiplen(
          gtk_application_new(yapilandirma::UYGULAMA_KIMLIGI, G_APPLICATION_DEFAULT_FLAGS))) {
  Sinyal<void(GApplication*)>::bagla(uygulama_.get(), "startup", [this](GApplication*) { basla(); });
  Sinyal<void(GApplication*)>::bagla(uygulama_.get(), "activate",
                                     [this](GApplication*) { etkinlesti(); });
  Sinyal<void(GApplication*)>::bagla(uygulama_.get(), "shutdown", [this](GApplication*) { kapan(); });
}

int GtkKabuk::calistir(int argc, char** argv) {
  return g_application_run(G_APPLICATION(uygulama_.get()), argc, argv);
}

void GtkKabuk::basla() {
  g_application_hold(G_APPLICATION(uygulama_.get()));  // closing the window does not quit
  g_unix_signal_add(SIGTERM, sinyaldeCik, uygulama_.get());
  g_unix_signal_add(SIGINT, sinyaldeCik, uygulama_.get());
  kuyruk_ = std::make_unique<AnaKuyrukGtk>();
  sistem_ = std::make_unique<SistemGtk>(uygulama_.get());
  kurucu_ = std::make_unique<PencereKurucuGtk>(uygulama_.get());
  menu_ = std::make_unique<MenuKurucuGtk>(uygulama_.get(), [this](const std::string& eylem) {
    if (temsilci_) temsilci_->menuEylemi(eylem);
  });
  masaustu_ = std::make_unique<MasaustuGtk>(G_APPLICATION(uygulama_.get()), *sistem_);
  auto& m = *masaustu_;
  temsilci_ = Uygulama::olustur(
      {*kuyruk_, *sistem_, *kurucu_, *menu_, *m.masaustu, m.bildirim, m.kayitPaneli},
      {adres_, yapilandirma::KIMLIK_SONEKI, linuxMetinleri()});
  temsilci_->applicationDidFinishLaunching();
}

// The first activation is the launch itself; later ones come from another `nevo`.
void GtkKabuk::etkinlesti() {
  if (std::exchange(ilkEtkinlesme_, false)) return;
  sistem_->etkinlestir();
  temsilci_->applicationShouldHandleReopen(temsilci_->pencere && temsilci_->pencere->gorunur());
}

void GtkKabuk::kapan() {
  if (temsilci_) temsilci_->applicationWillTerminate();
}

}  // namespace nevo
