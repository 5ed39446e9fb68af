#include "app/pencere/ust_cerceve_betigi_gtk.hpp"

namespace nevo {

void ustCerceveBetigi(WebKitUserContentManager* yonetici, const char* kaynak, const char* dunya) {
  WebKitUserScript* betik =
      dunya == nullptr
          ? webkit_user_script_new(kaynak, WEBKIT_USER_CONTENT_INJECT_TOP_FRAME,
                                   WEBKIT_USER_SCRIPT_INJECT_AT_DOCUMENT_START, nullptr, nullptr)
          : webkit_user_script_new_for_world(kaynak, WEBKIT_USER_CONTENT_INJECT_TOP_FRAME,
                                             WEBKIT_USER_SCRIPT_INJECT_AT_DOCUMENT_START, dunya,
                                             nullptr, nullptr);
  webkit_user_content_manager_add_script(yonetici, betik);
  webkit_user_script_unref(betik);
}

}  // namespace nevo
