#pragma once
// The macOS layer's ports for the page bridge (no Objective-C types here).
#include <memory>

#include "bridge/bildirim.hpp"
#include "bridge/dosya_kaydet.hpp"
#include "temel/ana_kuyruk.hpp"

namespace nevo::mac {

// Completions of the notification service come back through `kuyruk` (the main queue).
std::unique_ptr<BildirimMerkezi> bildirimMerkezi(AnaKuyruk& kuyruk);
std::unique_ptr<KayitPaneli> kayitPaneli();

}  // namespace nevo::mac
