#pragma once
// The macOS layer's ports, built in the *_mac.mm files (no Objective-C types here).
#include <memory>

#include "app/menu_modeli.hpp"
#include "app/pencere_kurucu.hpp"
#include "temel/sistem.hpp"
#include "temel/ana_kuyruk.hpp"

namespace nevo::mac {

std::unique_ptr<AnaKuyruk> anaKuyruk();
std::unique_ptr<Sistem> sistem();
std::unique_ptr<PencereKurucu> pencereKurucu();
// Items without targets: every action travels the responder chain, as Part 1.6 says.
std::unique_ptr<MenuKurucu> menuKurucu();

}  // namespace nevo::mac
