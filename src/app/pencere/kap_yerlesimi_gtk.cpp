#include "app/pencere/kap_yerlesimi_gtk.hpp"

#include <cmath>

#include "app/pencere/yerlesim.hpp"
#include "temel/glib_gtk.hpp"

namespace nevo {
namespace {
int tam(double deger) { return static_cast<int>(std::lround(deger)); }
}  // namespace

void cocuklariYerlestir(GtkOverlay* ust, CocukYeri yer) {
  Sinyal<gboolean(GtkOverlay*, GtkWidget*, GdkRectangle*)>::bagla(
      ust, "get-child-position",
      [yer = std::move(yer)](GtkOverlay* kap, GtkWidget* cocuk, GdkRectangle* alan) -> gboolean {
        const Olcu olcu{double(gtk_widget_get_allocated_width(GTK_WIDGET(kap))),
                        double(gtk_widget_get_allocated_height(GTK_WIDGET(kap)))};
        const auto cerceve = yer(cocuk, olcu);
        if (!cerceve) return FALSE;
        const Cerceve c = ustSoldan(*cerceve, olcu.boy);
        *alan = {tam(c.x), tam(c.y), tam(c.en), tam(c.boy)};
        return TRUE;
      });
}

}  // namespace nevo
