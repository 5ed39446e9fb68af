#include "desktop/kisayol/tus_cevirisi_gtk.hpp"

#include <gdk/gdkkeysyms.h>

#include <array>
#include <utility>

namespace nevo {
namespace {

// The shared key codes name places on the keyboard, not letters: each is paired with the
// Linux input code of the key in the same place. A Turkish "ş" and an American ";" are one
// key, so a shortcut keeps its key whatever layout either platform uses.
constexpr std::array<std::pair<std::int64_t, guint16>, 118> KONUMLAR{{
    {0, 30},    {1, 31},    {2, 32},    {3, 33},    {4, 35},    {5, 34},    {6, 44},    {7, 45},
    {8, 46},    {9, 47},    {10, 86},   {11, 48},   {12, 16},   {13, 17},   {14, 18},   {15, 19},
    {16, 21},   {17, 20},   {18, 2},    {19, 3},    {20, 4},    {21, 5},    {22, 7},    {23, 6},
    {24, 13},   {25, 10},   {26, 8},    {27, 12},   {28, 9},    {29, 11},   {30, 27},   {31, 24},
    {32, 22},   {33, 26},   {34, 23},   {35, 25},   {36, 28},   {37, 38},   {38, 36},   {39, 40},
    {40, 37},   {41, 39},   {42, 43},   {43, 51},   {44, 53},   {45, 49},   {46, 50},   {47, 52},
    {48, 15},   {49, 57},   {50, 41},   {51, 14},   {53, 1},    {54, 126},  {55, 125},  {56, 42},
    {57, 58},   {58, 56},   {59, 29},   {60, 54},   {61, 100},  {62, 97},   {64, 187},  {65, 83},
    {67, 55},   {69, 78},   {71, 69},   {72, 115},  {73, 114},  {74, 113},  {75, 98},   {76, 96},
    {78, 74},   {79, 188},  {80, 189},  {81, 117},  {82, 82},   {83, 79},   {84, 80},   {85, 81},
    {86, 75},   {87, 76},   {88, 77},   {89, 71},   {90, 190},  {91, 72},   {92, 73},   {93, 124},
    {94, 89},   {95, 121},  {96, 63},   {97, 64},   {98, 65},   {99, 61},   {100, 66},  {101, 67},
    {102, 123}, {103, 87},  {104, 122}, {105, 183}, {106, 186}, {107, 184}, {109, 68},  {111, 88},
    {113, 185}, {114, 110}, {115, 102}, {116, 104}, {117, 111}, {118, 62},  {119, 107}, {120, 60},
    {121, 109}, {122, 59},  {123, 105}, {124, 106}, {125, 108}, {126, 103},
}};

// X and Wayland number a key as its Linux input code plus 8.
constexpr guint16 X_FARKI = 8;

GdkKeymap* tuslar() { return gdk_keymap_get_for_display(gdk_display_get_default()); }

// The key value a key gives without modifiers (Num Lock on, so the keypad gives its
// digits) in layout group `grup`.
guint yalinDeger(GdkKeymap* harita, guint16 donanim, gint grup) {
  guint deger = 0;
  if (!gdk_keymap_translate_keyboard_state(harita, donanim, GDK_MOD2_MASK, grup, &deger, nullptr,
                                           nullptr, nullptr)) {
    return 0;
  }
  return deger;
}

}  // namespace

std::optional<guint16> donanimKodu(std::int64_t kod) {
  for (const auto& [k, girdi] : KONUMLAR) {
    if (k == kod) return static_cast<guint16>(girdi + X_FARKI);
  }
  return std::nullopt;
}

std::optional<std::int64_t> konumKodu(guint16 donanim) {
  for (const auto& [kod, girdi] : KONUMLAR) {
    if (girdi + X_FARKI == donanim) return kod;
  }
  return std::nullopt;
}

// The first key of the keyboard map that gives the value, in any layout group.
std::optional<std::int64_t> tusKodu(guint deger) {
  GdkKeymapKey* anahtarlar = nullptr;
  gint sayi = 0;
  std::optional<std::int64_t> sonuc;
  if (gdk_keymap_get_entries_for_keyval(tuslar(), deger, &anahtarlar, &sayi)) {
    for (gint i = 0; i < sayi && !sonuc; ++i) {
      sonuc = konumKodu(static_cast<guint16>(anahtarlar[i].keycode));
    }
  }
  g_free(anahtarlar);
  return sonuc;
}

std::optional<guint> tusDegeri(std::int64_t kod) {
  const auto donanim = donanimKodu(kod);
  if (!donanim) return std::nullopt;
  const guint deger = yalinDeger(tuslar(), *donanim, 0);
  if (deger == 0 || deger == GDK_KEY_VoidSymbol) return std::nullopt;
  return deger;
}

std::uint64_t tusBayraklari(GdkModifierType durum) {
  std::uint64_t bayraklar = 0;
  if (durum & GDK_CONTROL_MASK) bayraklar |= bayrak::CONTROL;
  if (durum & GDK_MOD1_MASK) bayraklar |= bayrak::OPTION;
  if (durum & GDK_SHIFT_MASK) bayraklar |= bayrak::SHIFT;
  if (durum & (GDK_SUPER_MASK | GDK_MOD4_MASK)) bayraklar |= bayrak::COMMAND;
  if (durum & GDK_LOCK_MASK) bayraklar |= bayrak::BUYUK_HARF_KILIDI;
  return bayraklar;
}

GdkModifierType gdkDurumu(std::int64_t maske) {
  int durum = 0;
  if (maske & tusMaskesi::CONTROL) durum |= GDK_CONTROL_MASK;
  if (maske & tusMaskesi::OPTION) durum |= GDK_MOD1_MASK;
  if (maske & tusMaskesi::SHIFT) durum |= GDK_SHIFT_MASK;
  if (maske & tusMaskesi::COMMAND) durum |= GDK_SUPER_MASK;
  return static_cast<GdkModifierType>(durum);
}

// The key is known by its place; its characters are what the user's layout gives there.
std::optional<TusBasimi> tusBasimiCevir(const GdkEventKey& olay) {
  const auto kod = konumKodu(olay.hardware_keycode);
  if (!kod) return std::nullopt;
  const guint yalin = yalinDeger(gdk_keymap_get_for_display(gdk_window_get_display(olay.window)),
                                 olay.hardware_keycode, olay.group);
  std::optional<std::string> karakterler;
  if (const gunichar harf = gdk_keyval_to_unicode(yalin)) {
    char utf8[8] = {};
    karakterler = std::string(utf8, static_cast<std::size_t>(g_unichar_to_utf8(harf, utf8)));
  } else if (const char* ad = yalin != 0 ? gdk_keyval_name(yalin) : nullptr) {
    karakterler = ad;  // a key that types nothing is known by its name: "F5"
  }
  return TusBasimi{*kod, tusBayraklari(static_cast<GdkModifierType>(olay.state)), karakterler};
}

}  // namespace nevo
