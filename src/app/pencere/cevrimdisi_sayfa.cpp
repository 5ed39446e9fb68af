#include "app/pencere/cevrimdisi_sayfa.hpp"

namespace nevo {

std::string cevrimdisiSayfa(const PlatformMetinleri& metinler) {
  return "<!DOCTYPE html><html><head><meta charset=\"utf-8\"></head>"
         "<body style=\"margin:0;height:100vh;display:grid;place-items:center;"
         "background:#050507;color:#8a8f9a;font:15px -apple-system,system-ui\">"
         "<div style=\"text-align:center\">"
         "<div style=\"color:#e7e2d6;font-size:19px;margin-bottom:8px\">Bağlanamadım</div>"
         "<div>İnternet bağlantını kontrol edip tekrar dene.</div>"
         "<div style=\"margin-top:18px;font-size:13px\">" +
         metinler.menuKomutu +
         "R ile yeniden dene</div>"
         "</div></body></html>";
}

}  // namespace nevo
