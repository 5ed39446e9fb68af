// The page-side kit of the Nevo desktop shell: message builders for the nine messages the
// page can post to the handler "nevo", desktop requests as promises, listeners for the
// page functions the shell calls, and whether the page runs inside the shell at all.
// docs/kopru.md describes every message and reply; nevo-masaustu.d.mts gives the types, and
// the annotations below have the type check hold this file to them.

/** @typedef {import("./nevo-masaustu.d.mts").Mesaj} Mesaj */
/** @typedef {import("./nevo-masaustu.d.mts").MasaustuEylemi} MasaustuEylemi */
/** @typedef {import("./nevo-masaustu.d.mts").MasaustuCevabi} MasaustuCevabi */
/** @typedef {import("./nevo-masaustu.d.mts").KabukDisinda} KabukDisinda */
/** @typedef {import("./nevo-masaustu.d.mts").MasaustuSecenekleri} MasaustuSecenekleri */
/** @typedef {import("./nevo-masaustu.d.mts").SayfaCagrilari} SayfaCagrilari */
/** @typedef {import("./nevo-masaustu.d.mts").SayfaCagrisi} SayfaCagrisi */
/** @typedef {(...argumanlar: any[]) => void} Islev */
/** @typedef {{islevler: Islev[], dagitici: Islev}} Dinleyiciler */

/** @type {typeof import("./nevo-masaustu.d.mts").MESAJ_TURLERI} */
export const MESAJ_TURLERI = Object.freeze([
  "tarayicida-ac",
  "bildirim-durum",
  "bildirim-izin-iste",
  "bildirim-ayarlari",
  "dosya-kaydet",
  "bildirim",
  "masaustu",
  "masaustu-is",
  "ajan-eslestir",
]);

/** @type {typeof import("./nevo-masaustu.d.mts").SAYFA_CAGRILARI} */
export const SAYFA_CAGRILARI = Object.freeze([
  "nevoMasaustuCevap",
  "nevoKomut",
  "nevoHizliMesaj",
  "nevoBildirimDurumu",
  "nevoEslestirmeSonucu",
  "nevoBaglantiDonusu",
  "nevoOturumKur",
]);

/** @type {KabukDisinda} */
export const KABUK_DISINDA = Object.freeze({
  kabukta: false,
  neden: "Masaüstü kabuğunda değil: bu sayfa Nevo masaüstü uygulamasının içinde açılmadı.",
});

/** A desktop request whose reply did not come within the time-out the caller chose. */
export class ZamanAsimi extends Error {
  /**
   * @param {string} eylem
   * @param {number} istek
   * @param {number} sure
   */
  constructor(eylem, istek, sure) {
    super(`Masaüstü isteği "${eylem}" (${istek}) ${sure} ms içinde cevaplanmadı.`);
    this.name = "ZamanAsimi";
    this.eylem = eylem;
    this.istek = istek;
    this.sure = sure;
  }
}

// The page's global object, as the shell's page calls see it.
const kuresel = /** @type {Record<string, any>} */ (globalThis);

function isleyici() {
  const isleyiciler = kuresel.webkit && kuresel.webkit.messageHandlers;
  const nevo = isleyiciler && isleyiciler.nevo;
  return nevo && typeof nevo.postMessage === "function" ? nevo : null;
}

/** True when the page runs in the shell's main view, where the handler "nevo" exists. */
export function kabuktaMi() {
  return isleyici() !== null;
}

/**
 * Posts one message body; false (and nothing posted) outside the shell.
 * @param {Mesaj} govde
 * @returns {boolean}
 */
export function gonder(govde) {
  const nevo = isleyici();
  if (!nevo) return false;
  nevo.postMessage(govde);
  return true;
}

/** @type {typeof import("./nevo-masaustu.d.mts").mesaj} */
const kurucular = {
  tarayicidaAc: (url) => ({ tur: "tarayicida-ac", url }),
  bildirimDurum: () => ({ tur: "bildirim-durum" }),
  bildirimIzniIste: () => ({ tur: "bildirim-izin-iste" }),
  bildirimAyarlari: () => ({ tur: "bildirim-ayarlari" }),
  dosyaKaydet: (ad, icerik) => ({ tur: "dosya-kaydet", ad, icerik }),
  bildirim: (baslik, govde) => ({ tur: "bildirim", baslik, govde }),
  masaustu: (istek, eylem, deger = false) => ({ tur: "masaustu", istek, eylem, deger }),
  masaustuIs: (is, acik) => ({ tur: "masaustu-is", is, acik }),
  ajanEslestir: (kod) => ({ tur: "ajan-eslestir", kod }),
};
/** Builders of the nine message bodies, with the fields each type reads. */
export const mesaj = Object.freeze(kurucular);

// Each page function the kit has taken over: its listeners. The function the page had
// defined before is the first listener, so it keeps receiving every call. A function the
// page assigns after the kit took the name over is called first from then on, and the kit's
// listeners stay.
/** @type {Map<string, Dinleyiciler>} */
const dinleyiciler = new Map();

/**
 * @param {SayfaCagrisi} ad
 * @returns {Dinleyiciler}
 */
function devral(ad) {
  let liste = dinleyiciler.get(ad);
  if (liste && kuresel[ad] === liste.dagitici) return liste;
  const onceki = typeof kuresel[ad] === "function" ? kuresel[ad] : null;
  if (!liste) {
    /** @type {Islev[]} */
    const islevler = [];
    liste = {
      islevler,
      dagitici: (...argumanlar) => {
        for (const islev of [...islevler]) {
          try {
            islev(...argumanlar);
          } catch (hata) {
            // One listener's error does not keep the others from the call.
            setTimeout(() => {
              throw hata;
            });
          }
        }
      },
    };
    dinleyiciler.set(ad, liste);
  }
  if (onceki) liste.islevler.unshift(onceki);
  kuresel[ad] = liste.dagitici;
  return liste;
}

/**
 * Calls `dinleyici` with the arguments of every call the shell makes to the page function
 * `ad` ("nevoKomut", …), after the function the page had defined itself, which keeps
 * working. Returns a function that stops listening.
 * @template {SayfaCagrisi} A
 * @param {A} ad
 * @param {SayfaCagrilari[A]} dinleyici
 * @returns {() => void}
 */
export function dinle(ad, dinleyici) {
  if (!SAYFA_CAGRILARI.includes(ad)) throw new TypeError(`Bilinmeyen sayfa çağrısı: ${ad}`);
  const liste = devral(ad);
  liste.islevler.push(dinleyici);
  return () => {
    const yer = liste.islevler.indexOf(dinleyici);
    if (yer >= 0) liste.islevler.splice(yer, 1);
  };
}

// Request numbers of the kit's desktop requests: high enough to stay clear of the small
// numbers a page counts from itself, and safe integers throughout.
let sonIstek = 1_000_000_000;
/** @type {Map<number, (cevap: MasaustuCevabi) => void>} */
const bekleyenler = new Map();

/**
 * @param {number} istek
 * @param {string} durum
 */
function cevapGeldi(istek, durum) {
  const bekleyen = bekleyenler.get(istek);
  if (!bekleyen) return;
  bekleyenler.delete(istek);
  let nesne;
  try {
    nesne = JSON.parse(durum);
  } catch {
    nesne = {};
  }
  bekleyen({ kabukta: true, istek, durum: nesne });
}

/**
 * Sends the desktop request `eylem` with the value `deger` and resolves with the shell's
 * reply, the whole desktop status: `{kabukta: true, istek, durum}`. Outside the shell it
 * resolves at once with KABUK_DISINDA. With `secenekler.zamanAsimi` (milliseconds) it
 * rejects with ZamanAsimi when no reply has come by then; without it, it waits as long as
 * the reply takes ("kisayol-kaydet" answers when the user closes the recorder).
 */
/**
 * @param {MasaustuEylemi} eylem
 * @param {boolean} [deger]
 * @param {MasaustuSecenekleri} [secenekler]
 * @returns {Promise<MasaustuCevabi | KabukDisinda>}
 */
export function masaustu(eylem, deger = false, secenekler = {}) {
  if (!kabuktaMi()) return Promise.resolve(KABUK_DISINDA);
  const cevaplar = devral("nevoMasaustuCevap");
  if (!cevaplar.islevler.includes(cevapGeldi)) cevaplar.islevler.push(cevapGeldi);
  const istek = ++sonIstek;
  return new Promise((coz, reddet) => {
    const sure = secenekler.zamanAsimi;
    let saat = null;
    if (typeof sure === "number" && Number.isFinite(sure) && sure >= 0) {
      saat = setTimeout(() => {
        bekleyenler.delete(istek);
        reddet(new ZamanAsimi(eylem, istek, sure));
      }, sure);
    }
    bekleyenler.set(istek, (cevap) => {
      if (saat !== null) clearTimeout(saat);
      coz(cevap);
    });
    gonder(mesaj.masaustu(istek, eylem, deger));
  });
}

/**
 * Reports a long job's start (`acik` true) or end; false outside the shell.
 * @param {string} kimlik
 * @param {boolean} acik
 */
export function isBildir(kimlik, acik) {
  return gonder(mesaj.masaustuIs(kimlik, acik));
}
