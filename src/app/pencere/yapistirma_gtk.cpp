#include "app/pencere/yapistirma_gtk.hpp"

#include <string>

#include "app/pencere/ust_cerceve_betigi_gtk.hpp"
#include "app/pencere/yapistirma_betigi.hpp"
#include "temel/glib_gtk.hpp"

namespace nevo {
namespace {

// The view is held until the clipboard's owner has answered.
void gorselGeldi(GtkClipboard*, GtkSelectionData* secim, gpointer veri) {
  GNesne<WebKitWebView> web(static_cast<WebKitWebView*>(veri));
  const gint uzunluk = gtk_selection_data_get_length(secim);
  const auto* baytlar = gtk_selection_data_get_data(secim);
  std::string base64;
  const std::string_view bayt(reinterpret_cast<const char*>(baytlar),
                              uzunluk > 0 ? static_cast<std::size_t>(uzunluk) : 0);
  if (pngMi(bayt)) {
    GMetin kodlu(g_base64_encode(baytlar, static_cast<gsize>(uzunluk)));
    base64 = kodlu.get();
  }
  const auto betik = gorselYapistir(base64);
  webkit_web_view_evaluate_javascript(web.get(), betik.data(), static_cast<gssize>(betik.size()),
                                      YAPISTIRMA_DUNYASI, nullptr, nullptr, nullptr, nullptr);
}

}  // namespace

void yapistirmayiBagla(WebKitWebView* web, WebKitUserContentManager* yonetici) {
  Sinyal<void(WebKitUserContentManager*, WebKitJavascriptResult*)>::bagla(
      yonetici, (std::string("script-message-received::") + YAPISTIRMA_ISLEYICISI).c_str(),
      [web](WebKitUserContentManager*, WebKitJavascriptResult*) {
        gtk_clipboard_request_contents(gtk_clipboard_get(GDK_SELECTION_CLIPBOARD),
                                       gdk_atom_intern_static_string("image/png"), gorselGeldi,
                                       g_object_ref(web));
      });
  webkit_user_content_manager_register_script_message_handler_in_world(
      yonetici, YAPISTIRMA_ISLEYICISI, YAPISTIRMA_DUNYASI);
  ustCerceveBetigi(yonetici, yapistirmaGozcusu(), YAPISTIRMA_DUNYASI);
}

}  // namespace nevo
