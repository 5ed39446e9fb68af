#pragma once
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace nevo {

// What `nevo --version` and `nevo --help` print. Both are answered before any shell,
// display or bus is touched, so they work on a machine without a desktop and never reach a
// running instance.
inline constexpr std::string_view SURUM_SECENEGI = "--version";

// The text for standard output when the arguments (without the program's name) ask for the
// version or the help, the first such option deciding; no text when the shell is to run.
// Arguments after "--" are not options.
std::optional<std::string> bilgiIstegi(const std::vector<std::string_view>& argumanlar,
                                       std::string_view surum, std::string_view varsayilanAdres);

}  // namespace nevo
