// Launches a program and watches the X screen for it, timing from the launch:
//   harita  its window (by title) is mapped;
//   gorunur the page's text shows in any form (the text point stands out from the
//           background point by a fiftieth of their full contrast: the first frame of a
//           fade, or the painted text; under a curtain both points have one colour);
//   tam     the text is fully seen (the full contrast, within rounding).
// Both points are read every millisecond or so, in the window's own coordinates, wherever
// the window is. The launch's moment is written first, on both clocks ("baslangic" since
// 1970, "monoton" on CLOCK_MONOTONIC), then lines go to standard output as they happen; the program
// then runs until standard input closes, is sent SIGTERM, and its exit is reported ("son STATUS").
//
// Usage: nevo_acilis_olcer TITLE TX TY ZX ZY TEXT_RGB BACKGROUND_RGB -- COMMAND [ARGS…]
#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <fcntl.h>
#include <signal.h>
#include <sys/wait.h>
#include <time.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <map>
#include <optional>
#include <string>

namespace {

using Renk = std::array<int, 3>;

double simdiMs(clockid_t saat) {
  timespec t{};
  clock_gettime(saat, &t);
  return static_cast<double>(t.tv_sec) * 1e3 + static_cast<double>(t.tv_nsec) / 1e6;
}

Renk onaltilik(const char* metin) {
  const unsigned long deger = std::strtoul(metin, nullptr, 16);
  return {static_cast<int>((deger >> 16) & 0xff), static_cast<int>((deger >> 8) & 0xff),
          static_cast<int>(deger & 0xff)};
}

int fark(const Renk& a, const Renk& b) {
  int en = 0;
  for (int i = 0; i < 3; ++i) en = std::max(en, std::abs(a[i] - b[i]));
  return en;
}

std::optional<Renk> nokta(Display* ekran, int x, int y) {
  XImage* resim = XGetImage(ekran, DefaultRootWindow(ekran), x, y, 1, 1, AllPlanes, ZPixmap);
  if (resim == nullptr) return std::nullopt;
  const unsigned long piksel = XGetPixel(resim, 0, 0);
  XDestroyImage(resim);
  return Renk{static_cast<int>((piksel >> 16) & 0xff), static_cast<int>((piksel >> 8) & 0xff),
              static_cast<int>(piksel & 0xff)};
}

bool adiMi(Display* ekran, Window pencere, const char* baslik) {
  char* ad = nullptr;
  if (XFetchName(ekran, pencere, &ad) == 0 || ad == nullptr) return false;
  const bool ayni = std::strcmp(ad, baslik) == 0;
  XFree(ad);
  return ayni;
}

// The window titled `baslik` at `pencere` or below it (a window manager's frame holds it).
Window bul(Display* ekran, Window pencere, const char* baslik, int derinlik = 0) {
  if (adiMi(ekran, pencere, baslik)) return pencere;
  if (derinlik == 3) return 0;
  Window kok = 0, ust = 0, *cocuklar = nullptr;
  unsigned int sayi = 0;
  if (XQueryTree(ekran, pencere, &kok, &ust, &cocuklar, &sayi) == 0) return 0;
  Window bulunan = 0;
  for (unsigned int i = 0; i < sayi && bulunan == 0; ++i)
    bulunan = bul(ekran, cocuklar[i], baslik, derinlik + 1);
  if (cocuklar != nullptr) XFree(cocuklar);
  return bulunan;
}

pid_t baslat(char** komut) {
  const pid_t cocuk = fork();
  if (cocuk == 0) {
    // Standard input is the measurement's own: the program gets nothing there.
    const int bos = open("/dev/null", O_RDONLY);
    dup2(bos, STDIN_FILENO);
    execvp(komut[0], komut);
    _exit(127);
  }
  return cocuk;
}

struct Olcum {
  const char* baslik;
  int tx, ty, zx, zy;
  int tamFark;
};

void yaz(const char* ad, double deger) {
  std::printf("%s %.3f\n", ad, deger);
  std::fflush(stdout);
}

int xHatasi(Display*, XErrorEvent*) { return 0; }  // a window gone between two requests

// Watches until the text is fully seen (or 60 s pass: "yok" and the last two colours).
// A window manager may map its frame before the window is inside it: each map's moment is
// kept, and the window is looked for from the top until found, under a mapped frame.
void izle(Display* ekran, const Olcum& o, double t0) {
  Renk sonMetin{}, sonZemin{};
  std::map<Window, double> haritalar;
  Window pencere = 0;
  bool gorunur = false;
  while (simdiMs(CLOCK_MONOTONIC) - t0 < 60000) {
    while (XPending(ekran) > 0) {
      XEvent olay;
      XNextEvent(ekran, &olay);
      if (olay.type == MapNotify) haritalar.emplace(olay.xmap.window, simdiMs(CLOCK_MONOTONIC));
    }
    for (auto it = haritalar.begin(); pencere == 0 && it != haritalar.end(); ++it) {
      pencere = bul(ekran, it->first, o.baslik);
      if (pencere != 0) yaz("harita", it->second - t0);
    }
    if (pencere != 0) {
      int x = 0, y = 0;
      Window cocuk = 0;
      XTranslateCoordinates(ekran, pencere, DefaultRootWindow(ekran), 0, 0, &x, &y, &cocuk);
      const auto metin = nokta(ekran, x + o.tx, y + o.ty);
      const auto zemin = nokta(ekran, x + o.zx, y + o.zy);
      if (metin && zemin) {
        sonMetin = *metin;
        sonZemin = *zemin;
        const int f = fark(*metin, *zemin);
        if (!gorunur && f * 50 >= o.tamFark) {
          gorunur = true;
          yaz("gorunur", simdiMs(CLOCK_MONOTONIC) - t0);
        }
        if (f >= o.tamFark - 4) {
          yaz("tam", simdiMs(CLOCK_MONOTONIC) - t0);
          return;
        }
      }
    }
    usleep(1000);
  }
  std::printf("yok %d %02x%02x%02x %02x%02x%02x\n", pencere != 0, sonMetin[0], sonMetin[1],
              sonMetin[2], sonZemin[0], sonZemin[1], sonZemin[2]);
  std::fflush(stdout);
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 10 || std::strcmp(argv[8], "--") != 0) {
    std::fputs("usage: nevo_acilis_olcer TITLE TX TY ZX ZY TEXT_RGB BG_RGB -- COMMAND…\n", stderr);
    return 2;
  }
  const Olcum o{argv[1],
                std::atoi(argv[2]),
                std::atoi(argv[3]),
                std::atoi(argv[4]),
                std::atoi(argv[5]),
                fark(onaltilik(argv[6]), onaltilik(argv[7]))};
  Display* ekran = XOpenDisplay(nullptr);
  if (ekran == nullptr) return 2;
  XSetErrorHandler(xHatasi);
  XSelectInput(ekran, DefaultRootWindow(ekran), SubstructureNotifyMask);
  XSync(ekran, False);
  yaz("baslangic", simdiMs(CLOCK_REALTIME));
  const double t0 = simdiMs(CLOCK_MONOTONIC);
  yaz("monoton", t0);
  const pid_t cocuk = baslat(argv + 9);
  std::printf("surec %d\n", static_cast<int>(cocuk));
  std::fflush(stdout);
  izle(ekran, o, t0);
  char tampon[64];
  while (read(STDIN_FILENO, tampon, sizeof tampon) > 0) {
  }
  kill(cocuk, SIGTERM);
  int durum = 0;
  waitpid(cocuk, &durum, 0);
  std::printf("son %d\n", WIFEXITED(durum) ? WEXITSTATUS(durum) : 128 + WTERMSIG(durum));
  XCloseDisplay(ekran);
  return 0;
}
