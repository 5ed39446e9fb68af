#include "desktop/kisayol/kisayol_metinleri.hpp"

namespace nevo {

const KisayolMetinleri& macKisayolMetinleri() {
  static const KisayolMetinleri metinler{
      "⌃",
      "⌥",
      "⇧",
      "⌘",
      "Yalnız ⌘ ile kurulan bir kısayol, bütün uygulamalarda o tuşu çalar. ⌥ ya da ⌃ ekle.",
      "Kısayolda ⌘, ⌥ ya da ⌃ tuşlarından en az biri olmalı.",
      "Bu kısayolu macOS kullanıyor. Başka bir kombinasyon dene.",
      "Bu kısayol başka bir uygulamada kayıtlı. Başka bir kombinasyon dene.",
      "Bu masaüstü genel kısayolları desteklemiyor.",
      "Kısayol",
      "Kısayolu şnevo tuşla",
      "⌥, ⌃ ya da ⌘ ile birlikte bir tuşa bas. ⎋ vazgeçer.",
      "Vazgeç",
  };
  return metinler;
}

// Linux users know the keys as Ctrl, Alt, Shift and Super, and the system is not macOS.
const KisayolMetinleri& linuxKisayolMetinleri() {
  static const KisayolMetinleri metinler{
      "Ctrl+",
      "Alt+",
      "Shift+",
      "Super+",
      "Yalnız Super ile kurulan bir kısayol, bütün uygulamalarda o tuşu çalar. Alt ya da Ctrl "
      "ekle.",
      "Kısayolda Super, Alt ya da Ctrl tuşlarından en az biri olmalı.",
      "Bu kısayolu sistem kullanıyor. Başka bir kombinasyon dene.",
      "Bu kısayol başka bir uygulamada kayıtlı. Başka bir kombinasyon dene.",
      "Bu masaüstü genel kısayolları desteklemiyor.",
      "Kısayol",
      "Kısayolu şnevo tuşla",
      "Alt, Ctrl ya da Super ile birlikte bir tuşa bas. Esc vazgeçer.",
      "Vazgeç",
  };
  return metinler;
}

}  // namespace nevo
