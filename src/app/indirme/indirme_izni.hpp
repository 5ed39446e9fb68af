#pragma once
#include <optional>
#include <string>
#include <string_view>

namespace nevo {

// Whether a download may go on: only while the view shows the application's own page, and
// only of the application's own content: an address of its origin (scheme, host and
// port), or a `blob:` address one of its documents made. An embedded page of another
// origin (another port of the same host included) gets nothing saved on the user's disk.
// A `data:` address does not say who made it, so it is refused. Hosts are compared in
// lower case, as the engine reports them.
bool indirmeIzinli(const std::optional<std::string>& sayfaAdresi, std::string_view indirmeAdresi,
                   std::string_view uygulamaAdresi);

// Whether the view shows the application's own page: a download the user asked for (an
// image they chose to save) needs only this, its address may be of any origin.
bool uygulamaSayfasinda(const std::optional<std::string>& sayfaAdresi,
                        std::string_view uygulamaAdresi);

// Whether a response whose Content-Disposition header says `icerikDuzeni` is to be saved
// rather than shown ("attachment", in any case, with or without parameters).
bool ekOlarakMi(std::string_view icerikDuzeni);

}  // namespace nevo
