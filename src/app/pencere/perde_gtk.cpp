#include "app/pencere/perde_gtk.hpp"

#include <string>

#include "app/pencere/donen_gtk.hpp"
#include "app/pencere/kap_yerlesimi_gtk.hpp"
#include "app/pencere/yerlesim.hpp"
#include "temel/kaynaklar.hpp"

namespace nevo {
namespace {

constexpr int SIMGE = static_cast<int>(Perde::SIMGE);

std::string zeminStili() { return "box{background-color:" + cssRengi(Perde::RENK) + ";}"; }

// A window-less box painted by CSS: a windowed child would lose its place in the stack
// once the web view paints.
GtkWidget* zemin() {
  GtkWidget* kutu = gtk_box_new(GTK_ORIENTATION_VERTICAL, 0);
  auto stil = sahiplen(gtk_css_provider_new());
  gtk_css_provider_load_from_data(stil.get(), zeminStili().c_str(), -1, nullptr);
  gtk_style_context_add_provider(gtk_widget_get_style_context(kutu), GTK_STYLE_PROVIDER(stil.get()),
                                 GTK_STYLE_PROVIDER_PRIORITY_APPLICATION);
  return kutu;
}

GtkWidget* simge() {
  const auto yol = kaynakYolu(PERDE_SIMGESI);
  if (!yol) return nullptr;
  auto resim =
      sahiplen(gdk_pixbuf_new_from_file_at_scale(yol->c_str(), SIMGE, SIMGE, TRUE, nullptr));
  if (!resim) return nullptr;
  return gtk_image_new_from_pixbuf(resim.get());
}

void yerlestirOlcusu(GtkOverlay* kutu, GtkWidget* simgeParca, GtkWidget* donen) {
  cocuklariYerlestir(kutu, [simgeParca, donen](GtkWidget* cocuk, Olcu olcu) {
    const auto y = perdeYerlesimi(olcu);
    if (cocuk == simgeParca) return std::optional(y.simge);
    if (cocuk == donen) return std::optional(y.donen);
    return std::optional<Cerceve>();
  });
}

}  // namespace

PerdeGtk::PerdeGtk() : kutu_(paylas(GTK_OVERLAY(gtk_overlay_new()))) {
  gtk_widget_set_name(parca(), "perde");
  gtk_container_add(GTK_CONTAINER(kutu_.get()), zemin());
  GtkWidget* simgeParca = simge();
  if (simgeParca != nullptr) gtk_overlay_add_overlay(kutu_.get(), simgeParca);
  GtkWidget* donen = donenOlustur();
  gtk_overlay_add_overlay(kutu_.get(), donen);
  yerlestirOlcusu(kutu_.get(), simgeParca, donen);
}

bool PerdeGtk::bagli() const { return gtk_widget_get_parent(parca()) != nullptr; }

void PerdeGtk::sondur(double sure, std::function<void()> bitince) {
  solma_.baslat(sure, [this, bitince = std::move(bitince)](double oran) {
    gtk_widget_set_opacity(parca(), 1.0 - oran);
    if (oran >= 1.0 && bitince) bitince();
  });
}

void PerdeGtk::kaldir() {
  GtkWidget* ust = gtk_widget_get_parent(parca());
  if (ust == nullptr) return;
  gtk_container_child_get(GTK_CONTAINER(ust), parca(), "index", &sira_, nullptr);
  ust_ = paylas(GTK_OVERLAY(ust));
  gtk_container_remove(GTK_CONTAINER(ust), parca());
}

void PerdeGtk::ort() {
  solma_.durdur();
  gtk_widget_set_opacity(parca(), 1.0);
  if (!ust_) return;
  auto ust = std::move(ust_);
  gtk_overlay_add_overlay(ust.get(), parca());
  gtk_overlay_reorder_overlay(ust.get(), parca(), sira_);
  gtk_widget_show_all(parca());
}

}  // namespace nevo
