// The shortcut recorder's GTK window on a private X server: it is attached to the window it
// is given, whichever window of the application was used last.
#include "desktop/kisayol/kisayol_levhasi.hpp"

#include <gtest/gtest.h>
#include <gtk/gtk.h>

#include <cstring>

#include "app/pencere/pencere_gtk.hpp"
#include "temel/glib_gtk.hpp"

namespace nevo {
namespace {

const bool EKRAN = gtk_init_check(nullptr, nullptr);

GtkWindow* kaydediciPenceresi() {
  GtkWindow* bulunan = nullptr;
  GList* pencereler = gtk_window_list_toplevels();
  for (GList* l = pencereler; l != nullptr; l = l->next) {
    const char* baslik = gtk_window_get_title(GTK_WINDOW(l->data));
    if (baslik != nullptr && std::strcmp(baslik, "Kısayol") == 0) bulunan = GTK_WINDOW(l->data);
  }
  g_list_free(pencereler);
  return bulunan;
}

TEST(KisayolLevhasi, VerilenPencereninUstundeAcilir) {
  ASSERT_TRUE(EKRAN);
  auto uygulama = sahiplen(gtk_application_new("app.nevo.LevhaDenemesi", G_APPLICATION_NON_UNIQUE));
  ASSERT_TRUE(g_application_register(G_APPLICATION(uygulama.get()), nullptr, nullptr));
  PencereTasarimi tasarim;
  tasarim.olcu = {880, 820};
  tasarim.baslik = "Nevo";
  PencereGtk ana(uygulama.get(), tasarim);
  // Another window of the application, used after the main one.
  GtkWidget* baska = gtk_window_new(GTK_WINDOW_TOPLEVEL);
  gtk_window_set_application(GTK_WINDOW(baska), uygulama.get());
  ASSERT_EQ(gtk_application_get_windows(uygulama.get())->data, baska);

  const auto levha = kisayolLevhasiOlustur();
  levha->ac(ana, linuxKisayolMetinleri(), {});
  GtkWindow* kaydedici = kaydediciPenceresi();
  ASSERT_NE(kaydedici, nullptr);
  EXPECT_EQ(gtk_window_get_transient_for(kaydedici), ana.pencere());
  EXPECT_TRUE(gtk_window_get_modal(kaydedici));
  levha->kapat();
  EXPECT_EQ(kaydediciPenceresi(), nullptr);
  gtk_widget_destroy(baska);
}

}  // namespace
}  // namespace nevo
