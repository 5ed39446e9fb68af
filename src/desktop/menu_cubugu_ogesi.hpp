#pragma once
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace nevo {

// The menu-bar item: shown or hidden with its preference; its entries call `eylem`.
class MenuCubuguOgesi {
 public:
  virtual ~MenuCubuguOgesi() = default;
  virtual void uygula(bool goster) = 0;
  virtual void eylemAyarla(std::function<void(const std::string&)> eylem) = 0;
};

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

const DurumOgesiTasarimi& menuCubuguTasarimi();

// The item's rules: shown at most once, rebuilt each time it is shown again, and an entry
// chosen while nobody listens does nothing.
class MenuCubugu final : public MenuCubuguOgesi {
 public:
  explicit MenuCubugu(DurumOgesi& oge) : oge_(oge) {}
  MenuCubugu(const MenuCubugu&) = delete;
  MenuCubugu& operator=(const MenuCubugu&) = delete;

  void uygula(bool goster) override;
  void eylemAyarla(std::function<void(const std::string&)> eylem) override {
    eylem_ = std::move(eylem);
  }
  bool gosteriliyor() const { return gosteriliyor_; }

 private:
  DurumOgesi& oge_;
  std::function<void(const std::string&)> eylem_;
  bool gosteriliyor_ = false;
};

}  // namespace nevo

namespace nevo {

// The platform's status item.
std::unique_ptr<DurumOgesi> durumOgesiOlustur();

}  // namespace nevo
