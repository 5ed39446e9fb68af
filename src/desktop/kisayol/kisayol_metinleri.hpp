#pragma once
#include <string>

namespace nevo {

// The one table that says how the shortcut texts name keys and the system on each platform.
struct KisayolMetinleri {
  // Written before the key's name, in this order: Control, Option, Shift, Command.
  std::string control, option, shift, command;
  std::string yalnizCommand;                   // Command without Control or Option
  std::string denetimTusuYok;                  // neither Control nor Option
  std::string sistemKullaniyor;                // a system shortcut
  std::string baskaUygulamada;                 // the registration was refused
  std::string desteklenmiyor;                  // the desktop offers no global hot key
  std::string baslik, ustYazi, ipucu, vazgec;  // the recorder's window
};

const KisayolMetinleri& macKisayolMetinleri();
const KisayolMetinleri& linuxKisayolMetinleri();

// The description of `nevo --kisayol-basildi`, the option the desktop's own key binding runs.
inline constexpr const char* KISAYOL_SECENEGI_ACIKLAMASI =
    "Genel kısayola basıldığını çalışan Nevo'ye bildirir";

}  // namespace nevo
