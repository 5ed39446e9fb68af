#pragma once

namespace nevo {

// When spelling's dictionaries load: once both have happened, in either order — the shell
// allows spelling (the curtain has gone) and a field that takes text has had the focus —
// and only once.
class YazimBaslangici {
 public:
  bool izinVerildi();  // true: load now
  bool odaklandi();    // true: load now

 private:
  bool simdiMi();
  bool izin_ = false;
  bool odak_ = false;
  bool basladi_ = false;
};

}  // namespace nevo
