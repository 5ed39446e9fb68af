// The demo's bridge panel: one button per message type of the handler "nevo", and every
// call the shell makes into the page written to the log.
(() => {
  const $ = (id) => document.getElementById(id);
  const gunluk = (satir) => {
    const kutu = $("gunluk");
    kutu.textContent += new Date().toLocaleTimeString() + "  " + satir + "\n";
    kutu.scrollTop = kutu.scrollHeight;
  };
  const nevo = (govde) => {
    gunluk("→ " + JSON.stringify(govde));
    const isleyici = window.webkit && window.webkit.messageHandlers &&
                     window.webkit.messageHandlers.nevo;
    if (isleyici) isleyici.postMessage(govde); else gunluk("(köprü yok: kabuğun dışında)");
  };
  window.demoKopru = {gunluk, nevo};  // for the demo's other panels

  for (const ad of ["nevoMasaustuCevap", "nevoBildirimDurumu", "nevoKomut", "nevoHizliMesaj",
                    "nevoEslestirmeSonucu", "nevoBaglantiDonusu", "nevoOturumKur"]) {
    window[ad] = (...argumanlar) => gunluk("← " + ad + "(" +
        argumanlar.map((a) => JSON.stringify(a)).join(", ") + ")");
  }

  let istek = 0;
  for (const dugme of document.querySelectorAll("#kopru [data-eylem]")) {
    dugme.onclick = () => nevo({tur: "masaustu", istek: ++istek, eylem: dugme.dataset.eylem,
                                deger: $("deger").checked});
  }
  for (const dugme of document.querySelectorAll("#kopru [data-tur]")) {
    dugme.onclick = () => nevo({tur: dugme.dataset.tur});
  }
  $("isBasla").onclick = () => nevo({tur: "masaustu-is", is: $("isKimligi").value, acik: true});
  $("isBitti").onclick = () => nevo({tur: "masaustu-is", is: $("isKimligi").value, acik: false});
  $("bildirim").onclick = () => nevo({tur: "bildirim", baslik: $("baslik").value,
                                      govde: $("govde").value});
  $("kaydet").onclick = () => nevo({tur: "dosya-kaydet", ad: $("ad").value,
                                    icerik: $("icerikMetni").value});
  $("tarayici").onclick = () => nevo({tur: "tarayicida-ac", url: $("url").value});
  $("eslestir").onclick = () => nevo({tur: "ajan-eslestir", kod: $("kod").value});
})();
