#include <glib.h>

#include <string>

#include "agent/ajan_yerleri.hpp"
#include "temel/kaynaklar.hpp"

namespace nevo {
namespace {

std::string sonEgikCizgisiz(std::string yol) {
  while (yol.size() > 1 && yol.back() == '/') yol.pop_back();
  return yol;
}

}  // namespace

AjanYerleri ajanYerleriOlustur(std::string kopruAdresi) {
  return {kaynakDizini(), sonEgikCizgisiz(g_get_home_dir()),
          sonEgikCizgisiz(g_get_user_data_dir()) + "/Nevo", std::move(kopruAdresi)};
}

}  // namespace nevo
