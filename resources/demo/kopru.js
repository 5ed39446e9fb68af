// The demo's bridge panel, written with the page-side kit (/nevo-masaustu.mjs): one button per
// message type, desktop requests as promises, and every call the shell makes into the page
// written to the log. Each log line also goes to the demo server as a beacon, so a run with
// `sunucu.py --olaylar FILE` keeps it.
import {dinle, gonder, isBildir, kabuktaMi, masaustu, mesaj, SAYFA_CAGRILARI}
  from "/nevo-masaustu.mjs";

const $ = (id) => document.getElementById(id);
const gunluk = (satir) => {
  const kutu = $("gunluk");
  kutu.textContent += new Date().toLocaleTimeString() + "  " + satir + "\n";
  kutu.scrollTop = kutu.scrollHeight;
  navigator.sendBeacon("/olay", JSON.stringify({tur: "demo", satir}));
};
const nevo = (govde) => {
  gunluk("→ " + JSON.stringify(govde));
  if (!gonder(govde)) gunluk("(köprü yok: kabuğun dışında)");
};
window.demoKopru = {gunluk, nevo};  // for the demo's other panels

for (const ad of SAYFA_CAGRILARI) {
  dinle(ad, (...argumanlar) => gunluk("← " + ad + "(" +
      argumanlar.map((a) => JSON.stringify(a)).join(", ") + ")"));
}
if (!kabuktaMi()) gunluk("(köprü yok: sayfa masaüstü kabuğunun dışında açıldı)");

for (const dugme of document.querySelectorAll("#kopru [data-eylem]")) {
  dugme.onclick = async () => {
    const eylem = dugme.dataset.eylem;
    gunluk("→ masaustu(" + JSON.stringify(eylem) + ", " + $("deger").checked + ")");
    // The recorder answers when the user closes it; the others answer at once.
    const secenekler = eylem === "kisayol-kaydet" ? {} : {zamanAsimi: 5000};
    try {
      const cevap = await masaustu(eylem, $("deger").checked, secenekler);
      gunluk(cevap.kabukta ? "✓ " + eylem + ": " + JSON.stringify(cevap.durum)
                           : "(" + cevap.neden + ")");
    } catch (hata) {
      gunluk("(" + hata.message + ")");
    }
  };
}
for (const dugme of document.querySelectorAll("#kopru [data-tur]")) {
  dugme.onclick = () => nevo({tur: dugme.dataset.tur});
}
$("isBasla").onclick = () => {
  gunluk("→ iş başladı: " + $("isKimligi").value);
  isBildir($("isKimligi").value, true);
};
$("isBitti").onclick = () => {
  gunluk("→ iş bitti: " + $("isKimligi").value);
  isBildir($("isKimligi").value, false);
};
$("bildirim").onclick = () => nevo(mesaj.bildirim($("baslik").value, $("govde").value));
$("kaydet").onclick = () => nevo(mesaj.dosyaKaydet($("ad").value, $("icerikMetni").value));
$("tarayici").onclick = () => nevo(mesaj.tarayicidaAc($("url").value));
$("eslestir").onclick = () => nevo(mesaj.ajanEslestir($("kod").value));
