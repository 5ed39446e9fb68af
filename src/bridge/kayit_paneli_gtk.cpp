#include "bridge/kayit_paneli_gtk.hpp"

#include <gtk/gtk.h>

#include "temel/glib_gtk.hpp"

namespace nevo {

void KayitPaneliGtk::ac(const std::string& onerilenAd,
                        std::function<void(std::optional<std::string>)> bitti) {
  GtkFileChooserNative* pano = gtk_file_chooser_native_new(
      "Kaydet", nullptr, GTK_FILE_CHOOSER_ACTION_SAVE, nullptr, nullptr);
  auto* secici = GTK_FILE_CHOOSER(pano);
  gtk_file_chooser_set_current_name(secici, onerilenAd.c_str());
  gtk_file_chooser_set_create_folders(secici, TRUE);
  gtk_file_chooser_set_do_overwrite_confirmation(secici, TRUE);
  gtk_native_dialog_set_modal(GTK_NATIVE_DIALOG(pano), FALSE);
  Sinyal<void(GtkNativeDialog*, gint)>::bagla(
      pano, "response", [bitti = std::move(bitti)](GtkNativeDialog* p, gint cevap) {
        std::optional<std::string> yol;
        if (cevap == GTK_RESPONSE_ACCEPT) {
          GMetin secilen(gtk_file_chooser_get_filename(GTK_FILE_CHOOSER(p)));
          if (secilen) yol = secilen.get();
        }
        bitti(yol);
        // The reference taken at creation, dropped once the signal has returned.
        g_idle_add(
            +[](gpointer d) { return g_object_unref(d), G_SOURCE_REMOVE; }, p);
      });
  gtk_native_dialog_show(GTK_NATIVE_DIALOG(pano));
}

std::unique_ptr<KayitPaneli> kayitPaneliOlustur() { return std::make_unique<KayitPaneliGtk>(); }

}  // namespace nevo
