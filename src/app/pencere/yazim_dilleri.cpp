#include "app/pencere/yazim_dilleri.hpp"

namespace nevo {
namespace {

constexpr const char* INGILIZCE = "en_US";

// "tr_TR.UTF-8@euro" is "tr_TR"; the C and POSIX locales name no language.
std::string dil(std::string_view yerel) {
  const auto son = yerel.find_first_of(".@");
  std::string ad(yerel.substr(0, son));
  if (ad.empty() || ad == "C" || ad == "POSIX") return "";
  return ad;
}

}  // namespace

std::vector<std::string> yazimDilleri(std::string_view yerel) {
  std::vector<std::string> diller;
  if (auto ad = dil(yerel); !ad.empty() && ad != INGILIZCE) diller.push_back(std::move(ad));
  diller.emplace_back(INGILIZCE);
  return diller;
}

}  // namespace nevo
