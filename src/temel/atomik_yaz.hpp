#pragma once
#include <string>
#include <string_view>

namespace nevo {

// Writes the bytes to a temporary file beside the file that `yol` names and renames it over
// that file; on failure nothing is left behind and false is returned. A symbolic link is
// written through (its target is replaced, the link stays), and a file that exists keeps
// its permission bits.
// What the new file must outlive: a crash of the shell (the kernel still writes the file
// back), or a power loss as well (the bytes reach the disk before the rename, which costs
// a wait for the disk).
enum class Dayaniklilik { Cokme, ElektrikKesintisi };
bool atomikYaz(const std::string& yol, std::string_view icerik,
               Dayaniklilik dayaniklilik = Dayaniklilik::ElektrikKesintisi);

// A fresh name for a temporary file beside the file `yol` names: hidden, never taken for
// that file, and telling which process wrote it (`yarimKalanlariTemizle` removes it once
// that process is gone).
std::string geciciYol(const std::string& yol);

// Removes the temporary files that a write to `yol` left behind when its process died
// before finishing (a process that still runs keeps its own).
void yarimKalanlariTemizle(const std::string& yol);

}  // namespace nevo
