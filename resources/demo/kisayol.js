// The demo's global-shortcut row: the recorded shortcut's name and the menu-bar item's state
// from every status reply, a button for each request, and the last text or command the
// quick-entry panel or the menu-bar item sent.
(() => {
  const $ = (id) => document.getElementById(id);
  let istek = 1000;
  const masaustu = (eylem, deger) => window.webkit && window.webkit.messageHandlers.nevo &&
      window.webkit.messageHandlers.nevo.postMessage({tur: "masaustu", istek: ++istek, eylem,
                                                      deger});
  const sar = (ad, yeni) => {
    const onceki = window[ad];
    window[ad] = (...argumanlar) => {
      if (onceki) onceki(...argumanlar);
      yeni(...argumanlar);
    };
  };

  sar("nevoMasaustuCevap", (_, metin) => {
    const durum = JSON.parse(metin);
    $("kisayolAdi").textContent = durum.kisayol === null ? "yok" : (durum.kisayol || "(adsız)");
    $("menuCubugu").checked = durum.menuCubugu === true;
  });
  sar("nevoHizliMesaj", (metin) => { $("sonGelen").textContent = "Hızlı giriş: " + metin; });
  sar("nevoKomut", (komut) => { $("sonGelen").textContent = "Menü komutu: " + komut; });

  $("kisayolKaydet").onclick = () => masaustu("kisayol-kaydet", false);
  $("kisayolSil").onclick = () => masaustu("kisayol-sil", false);
  $("menuCubugu").onchange = () => masaustu("menu-cubugu", $("menuCubugu").checked);
  masaustu("durum", false);
})();
