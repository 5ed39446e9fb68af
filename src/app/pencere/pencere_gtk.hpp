#pragma once
#include <gtk/gtk.h>

#include <memory>

#include "app/pencere/pencere_tasarimi.hpp"
#include "app/pencere/serit_gtk.hpp"
#include "temel/canlandirma_gtk.hpp"
#include "temel/glib_gtk.hpp"
#include "temel/pencere.hpp"
#include "temel/pencere_gtk.hpp"

namespace nevo {

// The main window: undecorated, RGBA, its content an overlay of backdrop, web view, strip,
// curtain and window buttons.
class PencereGtk final : public Pencere, public GtkPenceresi {
 public:
  PencereGtk(GtkApplication* uygulama, const PencereTasarimi& tasarim);
  PencereGtk(const PencereGtk&) = delete;
  PencereGtk& operator=(const PencereGtk&) = delete;

  GtkWindow* pencere() const { return GTK_WINDOW(pencere_.get()); }
  GtkWindow* gtkPenceresi() const override { return pencere(); }
  GtkOverlay* kap() const { return kap_; }
  void seridiTut(std::unique_ptr<SeritGtk> serit) { serit_ = std::move(serit); }

  void boyutlanabilir(bool evet) override;
  void tamEkranIzni(bool evet) override;
  void icerikBoyutu(Olcu olcu) override;
  void ortala() override;
  void oneGetir() override;
  bool gorunur() const override;
  void kucult() override;
  Cerceve cerceve() const override;
  std::optional<Cerceve> ekranAlani() const override;
  void cerceveyiCanlandir(Cerceve hedef, double sure) override;
  void kapat() override;
  void tamEkranDegistir() override;

 private:
  void boyutUygula(Olcu olcu);
  GdkRectangle calismaAlani() const;

  GNesne<GtkWidget> pencere_;
  GtkOverlay* kap_ = nullptr;
  std::unique_ptr<SeritGtk> serit_;
  Olcu enKucuk_;
  Olcu hedef_;
  GdkWindowState durum_{};
  Canlandirma canlandirma_;
  SinyalBaglantilari baglantilar_;
};

}  // namespace nevo
