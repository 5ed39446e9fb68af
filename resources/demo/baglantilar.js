// The demo's link buttons: the page cannot open a nevo:// link itself, so it asks the demo
// server to have the system open it (as a browser hands a link to the desktop); the shell's
// calls back into the page show in the log through kopru.js. A second pairing field sends a
// code the development agent refuses.
// kopru.js, a module before this one, has set window.demoKopru.
{
  const $ = (id) => document.getElementById(id);
  const {gunluk, nevo} = window.demoKopru;

  for (const dugme of document.querySelectorAll("#baglantilar [data-adres]")) {
    dugme.onclick = async () => {
      const adres = dugme.dataset.adres;
      gunluk("⇢ sistem açıyor: " + adres);
      try {
        const cevap = await fetch("/ac", {method: "POST", body: JSON.stringify({adres})});
        const sonuc = await cevap.json();
        if (!sonuc.tamam) gunluk("(açılamadı: " + sonuc.hata + ")");
      } catch (e) {
        gunluk("(sunucuya ulaşılamadı)");
      }
    };
  }

  $("eslestirHata").onclick = () => nevo({tur: "ajan-eslestir", kod: $("eslestirmeKodu").value});
}
