// beklenen: 'to_chars' is unavailable
#include <charconv>

char* ondalik(char* bas, char* son, double sayi) {
  return std::to_chars(bas, son, sayi, std::chars_format::fixed, 1).ptr;
}
