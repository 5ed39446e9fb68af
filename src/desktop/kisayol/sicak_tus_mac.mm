#import <Carbon/Carbon.h>

#include "desktop/kisayol/sicak_tus.hpp"

namespace nevo {
namespace {

// The four letters packed big-endian, as four-character codes are.
constexpr OSType NEVO_IMZASI =
    (OSType{'N'} << 24) | (OSType{'E'} << 16) | (OSType{'V'} << 8) | OSType{'O'};

// One hot key through the Carbon Event Manager on the application's event target.
class SicakTusMac final : public SicakTus {
 public:
  SicakTusMac() = default;
  SicakTusMac(const SicakTusMac&) = delete;
  SicakTusMac& operator=(const SicakTusMac&) = delete;
  ~SicakTusMac() override {
    kaldir();
    if (isleyici_ != nullptr) RemoveEventHandler(isleyici_);
  }

  bool destekli() const override { return true; }

  void isleyiciKur(std::function<void()> basildi) override {
    basildi_ = std::move(basildi);
    if (isleyici_ != nullptr) return;
    const EventTypeSpec tur{kEventClassKeyboard, kEventHotKeyPressed};
    InstallEventHandler(GetApplicationEventTarget(), &SicakTusMac::isle, 1, &tur, this, &isleyici_);
  }

  // Carbon answers at once.
  void kaydet(std::uint32_t kod, std::uint32_t mod, Sonuc sonuc) override {
    kaldir();
    const EventHotKeyID kimlik{NEVO_IMZASI, 1};
    EventHotKeyRef kayit = nullptr;
    const OSStatus durum =
        RegisterEventHotKey(kod, mod, kimlik, GetApplicationEventTarget(), 0, &kayit);
    if (durum == noErr && kayit != nullptr) kayit_ = kayit;
    sonuc(kayit_ != nullptr);
  }

  void kaldir() override {
    if (kayit_ != nullptr) UnregisterEventHotKey(kayit_);
    kayit_ = nullptr;
  }

 private:
  // Every hot-key press delivered to the application counts; the press is only handed on
  // (the hot key posts it to the main queue) and the handler returns at once.
  static OSStatus isle(EventHandlerCallRef, EventRef, void* veri) {
    auto* kendisi = static_cast<SicakTusMac*>(veri);
    if (kendisi->basildi_) kendisi->basildi_();
    return noErr;
  }

  std::function<void()> basildi_;
  EventHandlerRef isleyici_ = nullptr;
  EventHotKeyRef kayit_ = nullptr;
};

}  // namespace

std::unique_ptr<SicakTus> sicakTusOlustur() { return std::make_unique<SicakTusMac>(); }

}  // namespace nevo
