#include "desktop/kisayol/kisayol_denetimi.hpp"

#include <array>
#include <nlohmann/json.hpp>
#include <utility>

#include "temel/karakterler.hpp"

namespace nevo {
namespace {

constexpr std::array<std::pair<std::int64_t, const char*>, 14> OZEL_TUSLAR{{
    {49, "Boşluk"},
    {36, "↩"},
    {48, "⇥"},
    {51, "⌫"},
    {53, "⎋"},
    {123, "←"},
    {124, "→"},
    {126, "↑"},
    {125, "↓"},
    {76, "⌤"},
    {115, "↖"},
    {119, "↘"},
    {116, "⇞"},
    {121, "⇟"},
}};

bool tamsayiMi(const nlohmann::json& deger) {
  return deger.is_number_integer() || deger.is_number_unsigned();
}

// One system shortcut blocks the combination when it is enabled, well formed, on the same
// key, and its modifier flags agree with the pressed ones in bits 16 to 31.
bool engeller(const nlohmann::json& girdi, std::int64_t kod, std::uint64_t bayraklar) {
  if (!girdi.is_object()) return false;
  const auto etkin = girdi.find("enabled");
  if (etkin != girdi.end() && etkin->is_boolean() && !etkin->get<bool>()) return false;
  const auto deger = girdi.find("value");
  if (deger == girdi.end() || !deger->is_object()) return false;
  const auto parametreler = deger->find("parameters");
  if (parametreler == deger->end() || !parametreler->is_array() || parametreler->size() < 3) {
    return false;
  }
  const auto& tus = (*parametreler)[1];
  const auto& bitler = (*parametreler)[2];
  if (!tamsayiMi(tus) || !tamsayiMi(bitler)) return false;
  if (tus.is_number_unsigned() ? tus.get<std::uint64_t>() != static_cast<std::uint64_t>(kod)
                               : tus.get<std::int64_t>() != kod) {
    return false;
  }
  // A negative mask is not one the system writes: it blocks nothing.
  if (bitler.is_number_integer() && !bitler.is_number_unsigned() && bitler.get<std::int64_t>() < 0)
    return false;
  const auto sistemBitleri = bitler.get<std::uint64_t>();
  return ((sistemBitleri ^ bayraklar) & 0xFFFF0000u) == 0;
}

bool sistemdeVar(const SistemKisayollari& sistem, std::int64_t kod, std::uint64_t bayraklar) {
  if (!sistem || !sistem->is_object()) return false;
  for (const auto& girdi : sistem->items()) {
    if (engeller(girdi.value(), kod, bayraklar)) return true;
  }
  return false;
}

std::string tusAdi(const TusBasimi& tus) {
  for (const auto& [kod, ad] : OZEL_TUSLAR) {
    if (kod == tus.kod) return ad;
  }
  auto ad = buyukHarfe(tus.karakterler.value_or(""));
  return ad.empty() ? "?" : ad;
}

}  // namespace

std::int64_t tusMaskesiHesapla(std::uint64_t bayraklar) {
  std::int64_t maske = 0;
  if (bayraklar & bayrak::CONTROL) maske += tusMaskesi::CONTROL;
  if (bayraklar & bayrak::OPTION) maske += tusMaskesi::OPTION;
  if (bayraklar & bayrak::SHIFT) maske += tusMaskesi::SHIFT;
  if (bayraklar & bayrak::COMMAND) maske += tusMaskesi::COMMAND;
  return maske;
}

KisayolKarari kisayolDenetle(const TusBasimi& tus, const SistemKisayollari& sistem,
                             const KisayolMetinleri& metinler) {
  const auto f = tus.bayraklar;
  const bool control = f & bayrak::CONTROL, option = f & bayrak::OPTION;
  const bool shift = f & bayrak::SHIFT, command = f & bayrak::COMMAND;
  if (!control && !option) {
    return KisayolKarari::red(command ? metinler.yalnizCommand : metinler.denetimTusuYok);
  }
  if (sistemdeVar(sistem, tus.kod, f)) return KisayolKarari::red(metinler.sistemKullaniyor);
  std::string ad;
  if (control) ad += metinler.control;
  if (option) ad += metinler.option;
  if (shift) ad += metinler.shift;
  if (command) ad += metinler.command;
  return KisayolKarari::kabul(tus.kod, tusMaskesiHesapla(f), ad + tusAdi(tus));
}

}  // namespace nevo
