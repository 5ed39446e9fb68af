#include "desktop/renk_semasi.hpp"

namespace nevo {

RenkSemasi renkSemasi(std::optional<std::uint32_t> deger) {
  if (deger == 1u) return RenkSemasi::Koyu;
  if (deger == 2u) return RenkSemasi::Acik;
  return RenkSemasi::Tercihsiz;
}

KoyuTemaAdimi koyuTemaAdimi(RenkSemasi secim, bool simdiKoyu, bool kabukAyarladi) {
  switch (secim) {
    case RenkSemasi::Koyu:
      return simdiKoyu ? KoyuTemaAdimi::Dokunma : KoyuTemaAdimi::KoyuYap;
    case RenkSemasi::Acik:
      return simdiKoyu ? KoyuTemaAdimi::AcikYap : KoyuTemaAdimi::Dokunma;
    case RenkSemasi::Tercihsiz:
      break;
  }
  return kabukAyarladi ? KoyuTemaAdimi::Sifirla : KoyuTemaAdimi::Dokunma;
}

}  // namespace nevo
