#pragma once
#include <optional>
#include <string>
#include <string_view>

namespace nevo {

// True on the sign-in pages: plain, case-sensitive prefix tests on the path alone.
bool girisKipiMi(std::string_view yol);

// The path of the web view's current address; "" when there is none or it does not parse.
std::string adresinYolu(const std::optional<std::string>& adres);

}  // namespace nevo
