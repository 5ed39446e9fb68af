#pragma once
#include <string>
#include <string_view>
#include <vector>

namespace nevo {

// The languages spelling is checked in for a user whose locale is `yerel` ("tr_TR.UTF-8"):
// the locale's language and American English, each once, as dictionary names ("tr_TR",
// "en_US"). A language without an installed dictionary is passed over by the checker.
std::vector<std::string> yazimDilleri(std::string_view yerel);

}  // namespace nevo
