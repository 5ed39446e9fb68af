// The demo's global-shortcut row: the recorded shortcut's name and the menu-bar item's state
// from every status reply, a button for each request, and the last text or command the
// quick-entry panel or the menu-bar item sent.
import {dinle, masaustu} from "/nevo-masaustu.mjs";

const $ = (id) => document.getElementById(id);

dinle("nevoMasaustuCevap", (_, metin) => {
  const durum = JSON.parse(metin);
  $("kisayolAdi").textContent = durum.kisayol === null ? "yok" : (durum.kisayol || "(adsız)");
  $("menuCubugu").checked = durum.menuCubugu === true;
});
dinle("nevoHizliMesaj", (metin) => { $("sonGelen").textContent = "Hızlı giriş: " + metin; });
dinle("nevoKomut", (komut) => { $("sonGelen").textContent = "Menü komutu: " + komut; });

$("kisayolKaydet").onclick = () => masaustu("kisayol-kaydet", false);
$("kisayolSil").onclick = () => masaustu("kisayol-sil", false);
$("menuCubugu").onchange = () => masaustu("menu-cubugu", $("menuCubugu").checked);
masaustu("durum", false);
