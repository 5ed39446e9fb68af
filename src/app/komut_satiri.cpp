#include "app/komut_satiri.hpp"

namespace nevo {

namespace {

std::string yardim(std::string_view varsayilanAdres) {
  std::string metin =
      "Kullanım: nevo [SEÇENEK…] [nevo://…]\n"
      "\n"
      "Nevo web uygulamasını kendi penceresinde açar. Nevo zaten çalışıyorsa penceresini\n"
      "öne getirir; verilen nevo:// bağlantısını çalışan Nevo'ya iletir.\n"
      "\n"
      "Seçenekler:\n"
      "  -h, --help     bu yardımı gösterir ve çıkar\n"
      "  --version      sürümü gösterir ve çıkar\n"
      "\n"
      "Ortam:\n"
      "  NEVO_ADRES     açılacak web uygulamasının adresi (http ya da https);\n"
      "                 verilmezse ";
  metin += varsayilanAdres;
  metin +=
      "\n"
      "\n"
      "Dosyalar:\n"
      "  ~/.config/nevo/tercihler.ini     tercihler\n"
      "  ~/.local/share/Nevo/ajan.log     yerel ajanın günlüğü\n"
      "\n"
      "Ayrıntılar: man nevo\n";
  return metin;
}

}  // namespace

std::optional<std::string> bilgiIstegi(const std::vector<std::string_view>& argumanlar,
                                       std::string_view surum, std::string_view varsayilanAdres) {
  for (std::string_view arguman : argumanlar) {
    if (arguman == "--") break;
    if (arguman == SURUM_SECENEGI) return "nevo " + std::string(surum) + "\n";
    if (arguman == "--help" || arguman == "-h" || arguman == "-?") return yardim(varsayilanAdres);
  }
  return std::nullopt;
}

}  // namespace nevo
