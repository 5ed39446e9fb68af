#include "app/perde_gtk.hpp"

#include <algorithm>

#include "app/yerlesim.hpp"
#include "temel/kaynaklar.hpp"

namespace nevo {
namespace {

constexpr int SIMGE = 84;

// A window-less box painted by CSS: a windowed child would lose its place in the stack
// once the web view paints.
GtkWidget* zemin() {
  GtkWidget* kutu = gtk_box_new(GTK_ORIENTATION_VERTICAL, 0);
  auto stil = sahiplen(gtk_css_provider_new());
  gtk_css_provider_load_from_data(stil.get(), "box{background-color:rgb(5,5,8);}", -1, nullptr);
  gtk_style_context_add_provider(gtk_widget_get_style_context(kutu), GTK_STYLE_PROVIDER(stil.get()),
                                 GTK_STYLE_PROVIDER_PRIORITY_APPLICATION);
  return kutu;
}

GtkWidget* simge() {
  const auto yol = kaynakYolu("AppIcon.svg");
  if (!yol) return nullptr;
  auto resim =
      sahiplen(gdk_pixbuf_new_from_file_at_scale(yol->c_str(), SIMGE, SIMGE, TRUE, nullptr));
  if (!resim) return nullptr;
  return gtk_image_new_from_pixbuf(resim.get());
}

void yerlestirOlcusu(GtkOverlay* kutu, GtkWidget* simgeParca, GtkWidget* donen) {
  Sinyal<gboolean(GtkOverlay*, GtkWidget*, GdkRectangle*)>::bagla(
      kutu, "get-child-position",
      [simgeParca, donen](GtkOverlay* ust, GtkWidget* cocuk, GdkRectangle* yer) -> gboolean {
        const double en = gtk_widget_get_allocated_width(GTK_WIDGET(ust));
        const double boy = gtk_widget_get_allocated_height(GTK_WIDGET(ust));
        const auto y = perdeYerlesimi({en, boy});
        const Cerceve c = ustSoldan(cocuk == simgeParca ? y.simge : y.donen, boy);
        if (cocuk != simgeParca && cocuk != donen) return FALSE;
        *yer = {static_cast<int>(c.x), static_cast<int>(c.y), static_cast<int>(c.en),
                static_cast<int>(c.boy)};
        return TRUE;
      });
}

}  // namespace

PerdeGtk::PerdeGtk() : kutu_(paylas(GTK_OVERLAY(gtk_overlay_new()))) {
  gtk_widget_set_name(parca(), "perde");
  gtk_container_add(GTK_CONTAINER(kutu_.get()), zemin());
  GtkWidget* simgeParca = simge();
  if (simgeParca != nullptr) gtk_overlay_add_overlay(kutu_.get(), simgeParca);
  GtkWidget* donen = gtk_spinner_new();
  gtk_overlay_add_overlay(kutu_.get(), donen);
  gtk_spinner_start(GTK_SPINNER(donen));
  yerlestirOlcusu(kutu_.get(), simgeParca, donen);
}

PerdeGtk::~PerdeGtk() {
  if (zamanlayici_ != 0) g_source_remove(zamanlayici_);
}

bool PerdeGtk::bagli() const { return gtk_widget_get_parent(parca()) != nullptr; }

void PerdeGtk::sondur(double sure, std::function<void()> bitince) {
  bitince_ = std::move(bitince);
  sure_ = sure;
  baslangic_ = g_get_monotonic_time();
  if (zamanlayici_ == 0) zamanlayici_ = g_timeout_add(16, &PerdeGtk::adim, this);
}

gboolean PerdeGtk::adim(gpointer veri) {
  auto* perde = static_cast<PerdeGtk*>(veri);
  const double gecen = static_cast<double>(g_get_monotonic_time() - perde->baslangic_) / 1e6;
  const double oran = std::clamp(gecen / perde->sure_, 0.0, 1.0);
  gtk_widget_set_opacity(perde->parca(), 1.0 - oran);
  if (oran < 1.0) return G_SOURCE_CONTINUE;
  perde->zamanlayici_ = 0;
  if (auto bitince = std::exchange(perde->bitince_, nullptr)) bitince();
  return G_SOURCE_REMOVE;
}

void PerdeGtk::kaldir() {
  GtkWidget* ust = gtk_widget_get_parent(parca());
  if (ust != nullptr) gtk_container_remove(GTK_CONTAINER(ust), parca());
}

}  // namespace nevo
