#pragma once
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace nevo {

// One entry of the item's menu; an entry without an identifier is a separator.
struct MenuCubuguGirdisi {
  std::string baslik;
  std::string kimlik;
  bool operator==(const MenuCubuguGirdisi&) const = default;
};

// What the item shows: the icon when it loads, else the initial as its title.
struct DurumOgesiTasarimi {
  std::string ipucu;
  std::string basHarf;
  std::vector<MenuCubuguGirdisi> girdiler;
};

// The status item as the platform shows it.
class DurumOgesi {
 public:
  virtual ~DurumOgesi() = default;
  // Shows a new item with a new menu; a chosen entry calls `secildi` with its identifier.
  virtual void goster(const DurumOgesiTasarimi& tasarim,
                      std::function<void(const std::string&)> secildi) = 0;
  virtual void kaldir() = 0;
};

// The platform's status item.
std::unique_ptr<DurumOgesi> durumOgesiOlustur();

}  // namespace nevo
