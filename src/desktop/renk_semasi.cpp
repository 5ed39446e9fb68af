#include "desktop/renk_semasi.hpp"

namespace nevo {

RenkSemasi renkSemasi(std::optional<std::uint32_t> deger) {
  if (deger == 1u) return RenkSemasi::Koyu;
  if (deger == 2u) return RenkSemasi::Acik;
  return RenkSemasi::Tercihsiz;
}

}  // namespace nevo
