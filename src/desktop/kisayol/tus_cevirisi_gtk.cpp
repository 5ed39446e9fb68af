#include "desktop/kisayol/tus_cevirisi_gtk.hpp"

#include <gdk/gdkkeysyms.h>

#include <array>
#include <utility>

namespace nevo {
namespace {

// The shared key codes of the keys a shortcut may use, and the GDK key value each gives.
constexpr std::array<std::pair<std::int64_t, guint>, 74> TUSLAR{{
    {0, GDK_KEY_a},         {1, GDK_KEY_s},          {2, GDK_KEY_d},
    {3, GDK_KEY_f},         {4, GDK_KEY_h},          {5, GDK_KEY_g},
    {6, GDK_KEY_z},         {7, GDK_KEY_x},          {8, GDK_KEY_c},
    {9, GDK_KEY_v},         {11, GDK_KEY_b},         {12, GDK_KEY_q},
    {13, GDK_KEY_w},        {14, GDK_KEY_e},         {15, GDK_KEY_r},
    {16, GDK_KEY_y},        {17, GDK_KEY_t},         {18, GDK_KEY_1},
    {19, GDK_KEY_2},        {20, GDK_KEY_3},         {21, GDK_KEY_4},
    {22, GDK_KEY_6},        {23, GDK_KEY_5},         {24, GDK_KEY_equal},
    {25, GDK_KEY_9},        {26, GDK_KEY_7},         {27, GDK_KEY_minus},
    {28, GDK_KEY_8},        {29, GDK_KEY_0},         {30, GDK_KEY_bracketright},
    {31, GDK_KEY_o},        {32, GDK_KEY_u},         {33, GDK_KEY_bracketleft},
    {34, GDK_KEY_i},        {35, GDK_KEY_p},         {36, GDK_KEY_Return},
    {37, GDK_KEY_l},        {38, GDK_KEY_j},         {39, GDK_KEY_apostrophe},
    {40, GDK_KEY_k},        {41, GDK_KEY_semicolon}, {42, GDK_KEY_backslash},
    {43, GDK_KEY_comma},    {44, GDK_KEY_slash},     {45, GDK_KEY_n},
    {46, GDK_KEY_m},        {47, GDK_KEY_period},    {48, GDK_KEY_Tab},
    {49, GDK_KEY_space},    {50, GDK_KEY_grave},     {51, GDK_KEY_BackSpace},
    {53, GDK_KEY_Escape},   {76, GDK_KEY_KP_Enter},  {96, GDK_KEY_F5},
    {97, GDK_KEY_F6},       {98, GDK_KEY_F7},        {99, GDK_KEY_F3},
    {100, GDK_KEY_F8},      {101, GDK_KEY_F9},       {103, GDK_KEY_F11},
    {109, GDK_KEY_F10},     {111, GDK_KEY_F12},      {115, GDK_KEY_Home},
    {116, GDK_KEY_Page_Up}, {117, GDK_KEY_Delete},   {118, GDK_KEY_F4},
    {119, GDK_KEY_End},     {120, GDK_KEY_F2},       {121, GDK_KEY_Page_Down},
    {122, GDK_KEY_F1},      {123, GDK_KEY_Left},     {124, GDK_KEY_Right},
    {125, GDK_KEY_Down},    {126, GDK_KEY_Up},
}};

}  // namespace

std::optional<std::int64_t> tusKodu(guint deger) {
  const guint kucuk = gdk_keyval_to_lower(deger);
  for (const auto& [kod, d] : TUSLAR) {
    if (d == kucuk) return kod;
  }
  return std::nullopt;
}

std::optional<guint> tusDegeri(std::int64_t kod) {
  for (const auto& [k, deger] : TUSLAR) {
    if (k == kod) return deger;
  }
  return std::nullopt;
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

std::optional<TusBasimi> tusBasimiCevir(const GdkEventKey& olay) {
  guint yalin = olay.keyval;
  gdk_keymap_translate_keyboard_state(
      gdk_keymap_get_for_display(gdk_window_get_display(olay.window)), olay.hardware_keycode,
      GdkModifierType{}, olay.group, &yalin, nullptr, nullptr, nullptr);
  const auto kod = tusKodu(yalin);
  if (!kod) return std::nullopt;
  std::optional<std::string> karakterler;
  if (const gunichar harf = gdk_keyval_to_unicode(yalin)) {
    char utf8[8] = {};
    karakterler = std::string(utf8, static_cast<std::size_t>(g_unichar_to_utf8(harf, utf8)));
  } else if (const char* ad = gdk_keyval_name(yalin)) {
    karakterler = ad;  // a key that types nothing is known by its name: "F5"
  }
  return TusBasimi{*kod, tusBayraklari(static_cast<GdkModifierType>(olay.state)), karakterler};
}

}  // namespace nevo
