// The page-side kit without a shell: a stand-in for the handler "nevo" answers as the shell
// does, in a later turn and in any order the test chooses.
import assert from "node:assert/strict";
import test from "node:test";

const takim = await import("../../web/nevo-masaustu.mjs");
const { dinle, gonder, isBildir, kabuktaMi, masaustu, mesaj, KABUK_DISINDA, ZamanAsimi } =
  takim;

const kuresel = globalThis;
const DURUM = { baslangic: false, baslangicDestekli: false, baslangicHata: null,
                kisayol: null, menuCubugu: false, uyanikTut: false };

// The handler: records each body; `cevapla` has the "shell" answer a recorded request.
function isleyiciKur() {
  const gelenler = [];
  kuresel.webkit = { messageHandlers: { nevo: { postMessage: (g) => gelenler.push(g) } } };
  const cevapla = (govde, durum = DURUM) =>
    setTimeout(() => kuresel.nevoMasaustuCevap &&
                     kuresel.nevoMasaustuCevap(govde.istek, JSON.stringify(durum)));
  return { gelenler, cevapla };
}

test("kabuğun dışında istek açık bir sonuçla biter, hiçbir şey gönderilmez", async () => {
  delete kuresel.webkit;
  assert.equal(kabuktaMi(), false);
  assert.equal(await masaustu("durum", false, { zamanAsimi: 10 }), KABUK_DISINDA);
  assert.equal(KABUK_DISINDA.kabukta, false);
  assert.match(KABUK_DISINDA.neden, /Masaüstü kabuğunda değil/);
  assert.equal(gonder(mesaj.bildirimDurum()), false);
  assert.equal(isBildir("is", true), false);
});

test("dokuz mesajın kurucuları gövdeleri alanlarıyla yazar", () => {
  assert.deepEqual(
    [mesaj.tarayicidaAc("https://x/"), mesaj.bildirimDurum(), mesaj.bildirimIzniIste(),
     mesaj.bildirimAyarlari(), mesaj.dosyaKaydet("a.json", "{}"), mesaj.bildirim("B", "G"),
     mesaj.masaustu(3, "uyanik", true), mesaj.masaustuIs("r", false), mesaj.ajanEslestir("K")],
    [{ tur: "tarayicida-ac", url: "https://x/" }, { tur: "bildirim-durum" },
     { tur: "bildirim-izin-iste" }, { tur: "bildirim-ayarlari" },
     { tur: "dosya-kaydet", ad: "a.json", icerik: "{}" },
     { tur: "bildirim", baslik: "B", govde: "G" },
     { tur: "masaustu", istek: 3, eylem: "uyanik", deger: true },
     { tur: "masaustu-is", is: "r", acik: false }, { tur: "ajan-eslestir", kod: "K" }]);
  assert.deepEqual([...takim.MESAJ_TURLERI].sort(),
                   ["ajan-eslestir", "bildirim", "bildirim-ayarlari", "bildirim-durum",
                    "bildirim-izin-iste", "dosya-kaydet", "masaustu", "masaustu-is",
                    "tarayicida-ac"]);
});

test("ters sırayla gelen cevaplar her isteğin kendi sözüne gider", async () => {
  const { gelenler, cevapla } = isleyiciKur();
  const sozler = [masaustu("durum"), masaustu("uyanik", true), masaustu("menu-cubugu", true)];
  assert.equal(gelenler.length, 3);
  const numaralar = gelenler.map((g) => g.istek);
  assert.equal(new Set(numaralar).size, 3);
  cevapla(gelenler[2], { ...DURUM, menuCubugu: true, uyanikTut: true });
  cevapla(gelenler[0]);
  cevapla(gelenler[1], { ...DURUM, uyanikTut: true });
  const cevaplar = await Promise.all(sozler);
  assert.deepEqual(cevaplar.map((c) => c.istek), numaralar);
  assert.deepEqual(cevaplar.map((c) => [c.durum.uyanikTut, c.durum.menuCubugu]),
                   [[false, false], [true, false], [true, true]]);
  assert.deepEqual(gelenler[1], { tur: "masaustu", istek: numaralar[1], eylem: "uyanik",
                                  deger: true });
});

test("gelmeyen cevap seçilen süreden sonra ZamanAsimi ile reddedilir", async () => {
  const { gelenler, cevapla } = isleyiciKur();
  const bas = performance.now();
  await assert.rejects(masaustu("cevapsiz", false, { zamanAsimi: 50 }), (hata) => {
    assert.ok(hata instanceof ZamanAsimi);
    assert.equal(hata.name, "ZamanAsimi");
    assert.equal(hata.sure, 50);
    assert.equal(hata.istek, gelenler[0].istek);
    return true;
  });
  assert.ok(performance.now() - bas >= 49);
  cevapla(gelenler[0]);  // a late reply is ignored
  await new Promise((bitti) => setTimeout(bitti, 5));
});

test("sayfanın önceki işlevi çağrılmaya devam eder, dinleyici bırakılabilir", () => {
  isleyiciKur();
  const kayit = [];
  kuresel.nevoKomut = (k) => kayit.push("sayfa " + k);
  const birak = dinle("nevoKomut", (k) => kayit.push("takım " + k));
  const hatali = dinle("nevoKomut", () => {
    throw new Error("bir dinleyicinin hatası");
  });
  const son = dinle("nevoKomut", (k) => kayit.push("son " + k));
  // A listener's error is thrown again in a later turn, where the page's error reporting
  // sees it.
  const ertelenenler = [];
  const setTimeoutOnceki = kuresel.setTimeout;
  kuresel.setTimeout = (islev) => ertelenenler.push(islev);
  try {
    kuresel.nevoKomut("yeni-sohbet");
  } finally {
    kuresel.setTimeout = setTimeoutOnceki;
  }
  assert.equal(ertelenenler.length, 1);
  assert.throws(ertelenenler[0], /bir dinleyicinin hatası/);
  birak();
  hatali();
  kuresel.nevoKomut("ayarlar");
  son();
  assert.deepEqual(kayit, ["sayfa yeni-sohbet", "takım yeni-sohbet", "son yeni-sohbet",
                           "sayfa ayarlar", "son ayarlar"]);
  assert.throws(() => dinle("nevoYok", () => {}), TypeError);
});
