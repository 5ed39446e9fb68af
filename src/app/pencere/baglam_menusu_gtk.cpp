#include "app/pencere/baglam_menusu_gtk.hpp"

#include <fstream>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "temel/glib_gtk.hpp"

namespace nevo {
namespace {

// The one switch for tests: each menu that opens, its entries as the user sees them, and
// each download it starts are written to this file, a line each.
constexpr const char* KAYIT = "NEVO_TEST_BAGLAM_KAYDI";

void kaydet(const std::string& satir) {
  if (const char* yol = g_getenv(KAYIT)) std::ofstream(yol, std::ios::app) << satir << '\n';
}

// The engine's own commands for what is under the pointer, which need its hit test.
WebKitContextMenuAction hazirEylem(BaglamEylemi eylem) {
  switch (eylem) {
    case BaglamEylemi::AdresiKopyala:
      return WEBKIT_CONTEXT_MENU_ACTION_COPY_LINK_TO_CLIPBOARD;
    case BaglamEylemi::ResmiKopyala:
      return WEBKIT_CONTEXT_MENU_ACTION_COPY_IMAGE_TO_CLIPBOARD;
    default:
      return WEBKIT_CONTEXT_MENU_ACTION_NO_ACTION;
  }
}

class BaglamMenusu : public std::enable_shared_from_this<BaglamMenusu> {
 public:
  BaglamMenusu(WebKitWebView* web, PencereOlaylari& olaylar) : web_(web), olaylar_(olaylar) {}
  BaglamMenusu(const BaglamMenusu&) = delete;
  BaglamMenusu& operator=(const BaglamMenusu&) = delete;

  void kur() {
    for (const char* komut : {"Undo", "Redo", "Cut", "Copy", "Paste", "SelectAll"}) {
      komutlar_[komut] =
          eylem(komut, [this, komut] { webkit_web_view_execute_editing_command(web_, komut); });
    }
    tarayicidaAc_ = eylem("tarayicida-ac", [this] { olaylar_.yeniPencereIstendi(baglanti_); });
    resmiKaydet_ = eylem("resmi-kaydet", [this] { resmiKaydet(); });
  }

  // The engine's menu is emptied and filled with the core's entries; true when nothing
  // is left to show.
  gboolean acilacak(WebKitContextMenu* menu, WebKitHitTestResult* sonuc) {
    std::vector<GNesne<WebKitContextMenuItem>> oneriler;
    for (GList* o = webkit_context_menu_get_items(menu); o != nullptr; o = o->next) {
      auto* oge = WEBKIT_CONTEXT_MENU_ITEM(o->data);
      if (webkit_context_menu_item_get_stock_action(oge) ==
          WEBKIT_CONTEXT_MENU_ACTION_SPELLING_GUESS) {
        oneriler.push_back(paylas(oge));
      }
    }
    // The engine still asks when the page has cancelled its contextmenu event, with no
    // entries at all (and the last place's hit test).
    Isabet isabet = isabetOku(sonuc, !oneriler.empty());
    isabet.sayfaIstemedi = webkit_context_menu_get_n_items(menu) == 0;
    baglanti_ = isabet.baglanti;
    resim_ = isabet.resim;
    ogeler_ = olaylar_.baglamMenusu(isabet);
    webkit_context_menu_remove_all(menu);
    for (const auto& oge : ogeler_) ekle(menu, oge, oneriler);
    if (ogeler_.empty()) return TRUE;
    duzenlemeDurumunuSor();
    g_idle_add_full(
        G_PRIORITY_HIGH_IDLE, tuslariGoster, new std::weak_ptr(weak_from_this()),
        +[](gpointer veri) { delete static_cast<std::weak_ptr<BaglamMenusu>*>(veri); });
    return FALSE;
  }

  static void indirmeBasladi(WebKitDownload* indirme) {
    kaydet(std::string("indirme\t") +
           webkit_uri_request_get_uri(webkit_download_get_request(indirme)));
  }

 private:
  template <class F>
  GNesne<GSimpleAction> eylem(const char* ad, F islev) {
    auto e = sahiplen(g_simple_action_new(ad, nullptr));
    baglantilar_.bagla<void(GSimpleAction*, GVariant*)>(
        e.get(), "activate", [islev](GSimpleAction*, GVariant*) { islev(); });
    return e;
  }

  // The user's own choice: the download of the image is let through whatever its origin.
  void resmiKaydet() {
    if (!resim_) return;
    if (auto indirmeler = olaylar_.indirmeler().lock()) indirmeler->kullaniciIstedi(*resim_);
    // The downloads keep their own reference to the download the view hands back.
    g_object_unref(webkit_web_view_download_uri(web_, resim_->c_str()));
  }

  static Isabet isabetOku(WebKitHitTestResult* sonuc, bool oneriVar) {
    Isabet isabet;
    isabet.duzenlenebilir = webkit_hit_test_result_context_is_editable(sonuc) != FALSE;
    isabet.secim = webkit_hit_test_result_context_is_selection(sonuc) != FALSE;
    isabet.oneriVar = oneriVar;
    if (webkit_hit_test_result_context_is_link(sonuc)) {
      isabet.baglanti = webkit_hit_test_result_get_link_uri(sonuc);
    }
    if (webkit_hit_test_result_context_is_image(sonuc)) {
      isabet.resim = webkit_hit_test_result_get_image_uri(sonuc);
    }
    return isabet;
  }

  GSimpleAction* kendiEylemi(const BaglamOgesi& oge) const {
    if (auto komut = komutlar_.find(oge.duzenlemeKomutu); komut != komutlar_.end()) {
      return komut->second.get();
    }
    switch (oge.eylem) {
      case BaglamEylemi::TarayicidaAc:
        return tarayicidaAc_.get();
      case BaglamEylemi::ResmiKaydet:
        return resmiKaydet_.get();
      default:
        return nullptr;
    }
  }

  void ekle(WebKitContextMenu* menu, const BaglamOgesi& oge,
            const std::vector<GNesne<WebKitContextMenuItem>>& oneriler) {
    if (oge.eylem == BaglamEylemi::Ayrac) {
      webkit_context_menu_append(menu, webkit_context_menu_item_new_separator());
    } else if (oge.eylem == BaglamEylemi::YazimOnerileri) {
      for (const auto& oneri : oneriler) webkit_context_menu_append(menu, oneri.get());
    } else if (GSimpleAction* kendi = kendiEylemi(oge)) {
      webkit_context_menu_append(menu, webkit_context_menu_item_new_from_gaction(
                                           G_ACTION(kendi), oge.baslik.c_str(), nullptr));
    } else {
      webkit_context_menu_append(menu, webkit_context_menu_item_new_from_stock_action_with_label(
                                           hazirEylem(oge.eylem), oge.baslik.c_str()));
    }
  }

  // The editing commands are offered as the page's editing state allows; the engine
  // answers before anyone can choose.
  void duzenlemeDurumunuSor() {
    for (const auto& [komut, e] : komutlar_) {
      g_simple_action_set_enabled(e.get(), FALSE);
      webkit_web_view_can_execute_editing_command(
          web_, komut.c_str(), nullptr,
          +[](GObject* kaynak, GAsyncResult* sonuc, gpointer veri) {
            auto eylem = sahiplen(static_cast<GSimpleAction*>(veri));
            const gboolean olur = webkit_web_view_can_execute_editing_command_finish(
                WEBKIT_WEB_VIEW(kaynak), sonuc, nullptr);
            g_simple_action_set_enabled(eylem.get(), olur);
          },
          g_object_ref(e.get()));
    }
  }

  // The menu the engine opened: each entry with a key shows it, and the test's record
  // gets its titles.
  static gboolean tuslariGoster(gpointer veri) {
    auto menu = static_cast<std::weak_ptr<BaglamMenusu>*>(veri)->lock();
    if (menu) menu->acilanMenu();
    return G_SOURCE_REMOVE;
  }

  void acilanMenu() {
    GtkMenu* acik = nullptr;
    for (GList* m = gtk_menu_get_for_attach_widget(GTK_WIDGET(web_)); m; m = m->next) {
      if (gtk_widget_get_visible(GTK_WIDGET(m->data))) acik = GTK_MENU(m->data);
    }
    if (acik == nullptr) return;
    std::string satir = "menu";
    GList* cocuklar = gtk_container_get_children(GTK_CONTAINER(acik));
    for (GList* c = cocuklar; c != nullptr; c = c->next) {
      satir += "\t" + ogeyiIsle(GTK_WIDGET(c->data));
    }
    g_list_free(cocuklar);
    // The menu was sized without the keys: once it has measured them again, it takes its
    // new size where it stands.
    GtkWidget* kap = gtk_widget_get_toplevel(GTK_WIDGET(acik));
    GtkRequisition olcu;
    gtk_widget_get_preferred_size(kap, nullptr, &olcu);
    gtk_window_resize(GTK_WINDOW(kap), olcu.width, olcu.height);
    if (GdkWindow* pencere = gtk_widget_get_window(kap)) {
      gdk_window_resize(pencere, olcu.width, olcu.height);
    }
    kaydet(satir);
  }

  // The entry's title; one of the core's entries with a key gets the key shown beside it.
  std::string ogeyiIsle(GtkWidget* oge) {
    if (GTK_IS_SEPARATOR_MENU_ITEM(oge)) return "---";
    const char* etiket = gtk_menu_item_get_label(GTK_MENU_ITEM(oge));
    const std::string baslik = etiket ? etiket : "";
    GtkWidget* yazi = gtk_bin_get_child(GTK_BIN(oge));
    for (const auto& o : ogeler_) {
      if (o.baslik != baslik || o.tus.empty() || !GTK_IS_ACCEL_LABEL(yazi)) continue;
      const guint tus = gdk_unicode_to_keyval(g_ascii_tolower(o.tus[0]));
      const auto kipler = GDK_CONTROL_MASK | (shiftEkler(o.tus) ? GDK_SHIFT_MASK : 0);
      gtk_accel_label_set_accel(GTK_ACCEL_LABEL(yazi), tus, GdkModifierType(kipler));
    }
    return baslik;
  }

  WebKitWebView* web_;
  PencereOlaylari& olaylar_;
  SinyalBaglantilari baglantilar_;
  std::map<std::string, GNesne<GSimpleAction>> komutlar_;  // by editing command
  GNesne<GSimpleAction> tarayicidaAc_, resmiKaydet_;
  std::optional<std::string> baglanti_, resim_;
  std::vector<BaglamOgesi> ogeler_;
};

}  // namespace

void baglamMenusunuBagla(WebKitWebView* web, PencereOlaylari& olaylar) {
  auto menu = std::make_shared<BaglamMenusu>(web, olaylar);
  menu->kur();
  Sinyal<gboolean(WebKitWebView*, WebKitContextMenu*, GdkEvent*, WebKitHitTestResult*)>::bagla(
      web, "context-menu",
      [menu](WebKitWebView*, WebKitContextMenu* m, GdkEvent*, WebKitHitTestResult* sonuc) {
        return menu->acilacak(m, sonuc);
      });
  if (g_getenv(KAYIT) != nullptr) {
    Sinyal<void(WebKitWebContext*, WebKitDownload*)>::bagla(
        webkit_web_view_get_context(web), "download-started",
        [](WebKitWebContext*, WebKitDownload* indirme) { BaglamMenusu::indirmeBasladi(indirme); });
  }
}

}  // namespace nevo
