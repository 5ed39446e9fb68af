#pragma once
#include <memory>
#include <nlohmann/json_fwd.hpp>
#include <string>
#include <string_view>
#include <vector>

#include "agent/eslestirme.hpp"
#include "bridge/bildirim.hpp"
#include "bridge/dosya_kaydet.hpp"
#include "bridge/masaustu.hpp"
#include "bridge/sayfa.hpp"
#include "bridge/sayfa_yolu.hpp"
#include "temel/ana_kuyruk.hpp"
#include "temel/sistem.hpp"

namespace nevo {

struct KopruPortlari {
  AnaKuyruk& kuyruk;
  Sistem& sistem;
  BildirimMerkezi& bildirim;
  KayitPaneli& kayitPaneli;          // one dialog at a time (`TekKayitPaneli`)
  Masaustu& masaustu;                // lives for the whole process
  Eslestirme* eslestirme = nullptr;  // a platform without the local agent has none
};

// The page bridge: hears the page's messages, answers them, and is the one road back to
// the page. Only the application's own pages may talk to the shell.
class Kopru final : public SayfaYolu, public std::enable_shared_from_this<Kopru> {
 public:
  // `adres` is the application's address; `sayfa` outlives the bridge.
  static std::shared_ptr<Kopru> olustur(KopruPortlari portlar, std::string adres, Sayfa& sayfa);
  Kopru(const Kopru&) = delete;
  Kopru& operator=(const Kopru&) = delete;

  // A message posted to the handler "nevo", its body as JSON text. Only the main frame,
  // on the application's own host, is heard.
  void mesaj(std::string_view govde, const MesajKaynagi& kaynak = {});
  bool kendiSayfasinda(const MesajKaynagi& kaynak) const;  // whether such a message is heard

  void masaustuKur();  // wires the panel, the menu-bar item and the hot key to the page
  void bildirimTemsilcisiOl(const std::vector<std::string>& dugmeler);
  void sayfaDegisti();  // a new page was committed in the main view
  void kapanirken();

  // Notifications.
  void bildirimGonder(const std::string& baslik, const std::string& govde);
  void bildirimIzniIste();
  void bildirimDurumu();
  void bildirimTiklandi();

  void dosyaKaydet(const std::string& ad, const std::string& icerik);
  void ajanEslestir(const std::string& kod);
  void eslestirmeCevapla(bool ok, const std::string& mesaj);

  // An incoming link's text, valid UTF-8: a connection result or a session for the page.
  void adresiAktar(std::string_view adres);

  // SayfaYolu
  void sayfayaGonder(const std::string& betik) override;
  Pencere* anaPencere() override { return sayfa_.anaPencere(); }

 private:
  Kopru(KopruPortlari portlar, std::string adres, Sayfa& sayfa);
  void sayfaMesaji(const nlohmann::json& govde);
  void tarayicidaAc(const nlohmann::json& govde);
  void bildirimCevapla(const std::string& kelime);
  void baglantiyiAktar(std::string_view adres);
  void oturumuAktar(std::string_view adres);

  AnaKuyruk& kuyruk_;
  Sistem& sistem_;
  BildirimMerkezi& bildirim_;
  KayitPaneli& kayitPaneli_;
  Eslestirme* const eslestirme_;
  std::string adres_;
  Sayfa& sayfa_;
  Masaustu& masaustu_;
};

}  // namespace nevo
