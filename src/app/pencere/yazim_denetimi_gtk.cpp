#include "app/pencere/yazim_denetimi_gtk.hpp"

#include <sys/resource.h>
#include <unistd.h>

#include <string>
#include <utility>
#include <vector>

#include "app/pencere/yazim_dilleri.hpp"
#include "temel/acilis_izi.hpp"

namespace nevo {
namespace {

// Below the page's processes and the shell's own work, which want the processor at launch.
constexpr int YUKLEME_ONCELIGI = 10;

}  // namespace

YazimDenetimiGtk::~YazimDenetimiGtk() {
  if (yukleyici_.joinable()) yukleyici_.join();
}

void YazimDenetimiGtk::izinVer(WebKitWebContext* baglam) {
  baglam_ = paylas(baglam);
  if (baslangic_.izinVerildi()) baslat();
}

void YazimDenetimiGtk::odaklandi() {
  if (baslangic_.odaklandi()) baslat();
}

// The engine's checker holds the dictionaries: setting its languages loads them and touches
// nothing else, and nothing asks the checker anything while it is off.
void YazimDenetimiGtk::baslat() {
  durum_ = std::make_shared<Durum>();
  durum_->baglam = paylas(baglam_.get());
  yukleyici_ = std::thread([durum = durum_, diller = yazimDilleri(g_get_language_names()[0])] {
    setpriority(PRIO_PROCESS, static_cast<id_t>(gettid()), YUKLEME_ONCELIGI);
    webkit_web_context_set_spell_checking_languages(durum->baglam.get(),
                                                    metinDizisi(diller).data());
    {
      std::lock_guard kilit(durum->kilit);
      durum->bitti = true;
    }
    durum->yuklendi.notify_all();
    g_idle_add_full(
        G_PRIORITY_DEFAULT_IDLE,
        +[](gpointer veri) -> gboolean {
          ac(**static_cast<std::shared_ptr<Durum>*>(veri));
          return G_SOURCE_REMOVE;
        },
        new std::shared_ptr<Durum>(durum),
        +[](gpointer veri) { delete static_cast<std::shared_ptr<Durum>*>(veri); });
  });
}

void YazimDenetimiGtk::hazirOlsun() {
  if (!durum_) return;
  {
    std::unique_lock kilit(durum_->kilit);
    durum_->yuklendi.wait(kilit, [this] { return durum_->bitti; });
  }
  ac(*durum_);
}

void YazimDenetimiGtk::ac(Durum& durum) {
  if (std::exchange(durum.acildi, true)) return;
  webkit_web_context_set_spell_checking_enabled(durum.baglam.get(), TRUE);
  acilisIsareti("yazim");
}

}  // namespace nevo
