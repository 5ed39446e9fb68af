#pragma once
#include <optional>
#include <string>
#include <string_view>

namespace nevo {

// True when a navigation to `istek` stays in the view; false when the address
// goes to the default browser and the navigation is cancelled.
bool gorunumdeKalir(const std::optional<std::string>& istek, std::string_view uygulamaAdresi,
                    std::string_view kimlikSoneki);

}  // namespace nevo
