// Types of the page-side kit of the Nevo desktop shell (nevo-masaustu.mjs).

/** The nine message types the shell understands. */
export type MesajTuru =
  | "tarayicida-ac"
  | "bildirim-durum"
  | "bildirim-izin-iste"
  | "bildirim-ayarlari"
  | "dosya-kaydet"
  | "bildirim"
  | "masaustu"
  | "masaustu-is"
  | "ajan-eslestir";

export declare const MESAJ_TURLERI: readonly MesajTuru[];

/** The desktop requests the shell answers; any other action gets no reply. */
export type MasaustuEylemi =
  | "durum"
  | "baslangic"
  | "menu-cubugu"
  | "uyanik"
  | "kisayol-sil"
  | "kisayol-kaydet";

/** The desktop status every reply carries, whatever was asked. */
export interface MasaustuDurumu {
  /** Launch at login is on. */
  baslangic: boolean;
  /** Launch at login can be offered (an installed application). */
  baslangicDestekli: boolean;
  /** The text to show while the system waits for the user's approval, else null. */
  baslangicHata: string | null;
  /** The global shortcut's display name ("" allowed), null without a shortcut. */
  kisayol: string | null;
  /** The menu-bar item preference. */
  menuCubugu: boolean;
  /** Keep the machine awake while jobs run. */
  uyanikTut: boolean;
}

/** The four words of the notification permission. */
export type BildirimIzni = "verildi" | "sorulmadi" | "reddedildi" | "desteklenmiyor";

/** The words the menu-bar item's menu sends to the page. */
export type MenuKomutu = "yeni-sohbet" | "nevo-code" | "ayarlar";

export interface TarayicidaAc {
  tur: "tarayicida-ac";
  /** Opened in the default browser only when its scheme is exactly "https". */
  url: string;
}
export interface BildirimDurum {
  tur: "bildirim-durum";
}
export interface BildirimIzniIste {
  tur: "bildirim-izin-iste";
}
export interface BildirimAyarlari {
  tur: "bildirim-ayarlari";
}
export interface DosyaKaydet {
  tur: "dosya-kaydet";
  /** The suggested file name, "nevo.json" when missing. */
  ad?: string;
  /** The text written as UTF-8, "" when missing. */
  icerik?: string;
}
export interface Bildirim {
  tur: "bildirim";
  /** "Nevo" when missing. */
  baslik?: string;
  /** "" when missing. */
  govde?: string;
}
export interface MasaustuIstegi {
  tur: "masaustu";
  /** Echoed in the reply; 0 when missing. */
  istek?: number;
  eylem: MasaustuEylemi;
  /** The new value of a setting action; false when missing. */
  deger?: boolean;
}
export interface MasaustuIs {
  tur: "masaustu-is";
  /** The job's identifier, chosen by the page. */
  is: string;
  /** true: the job started or still runs; anything else: it ended. */
  acik: boolean;
}
export interface AjanEslestir {
  tur: "ajan-eslestir";
  /** The pairing code from the user's account; "" when missing. */
  kod?: string;
}

/** Every message body the page can post to the handler "nevo". */
export type Mesaj =
  | TarayicidaAc
  | BildirimDurum
  | BildirimIzniIste
  | BildirimAyarlari
  | DosyaKaydet
  | Bildirim
  | MasaustuIstegi
  | MasaustuIs
  | AjanEslestir;

/** Builders of the nine message bodies. */
export declare const mesaj: {
  readonly tarayicidaAc: (url: string) => TarayicidaAc;
  readonly bildirimDurum: () => BildirimDurum;
  readonly bildirimIzniIste: () => BildirimIzniIste;
  readonly bildirimAyarlari: () => BildirimAyarlari;
  readonly dosyaKaydet: (ad: string, icerik: string) => DosyaKaydet;
  readonly bildirim: (baslik: string, govde: string) => Bildirim;
  readonly masaustu: (istek: number, eylem: MasaustuEylemi, deger?: boolean) => MasaustuIstegi;
  readonly masaustuIs: (is: string, acik: boolean) => MasaustuIs;
  readonly ajanEslestir: (kod: string) => AjanEslestir;
};

/** The page functions the shell calls, with their arguments. */
export interface SayfaCagrilari {
  /** The reply to a desktop request: its number and the status as JSON text. */
  nevoMasaustuCevap(istek: number, durum: string): void;
  /** An entry chosen in the menu-bar item's menu. */
  nevoKomut(komut: MenuKomutu): void;
  /** The text typed into the quick-entry panel. */
  nevoHizliMesaj(metin: string): void;
  /** The notification permission. */
  nevoBildirimDurumu(kelime: BildirimIzni): void;
  /**
   * The outcome of a pairing. The result is evaluated as script text: a JSON value the
   * agent printed arrives as its value.
   */
  nevoEslestirmeSonucu(ok: boolean, sonuc: unknown): void;
  /** A connection result from a nevo:// link ("hata" when the link has no baglanti). */
  nevoBaglantiDonusu(kod: string, baglanti: string): void;
  /** A signed-in session from a nevo:// link. */
  nevoOturumKur(erisimAnahtari: string, yenilemeAnahtari: string): void;
}

export type SayfaCagrisi = keyof SayfaCagrilari;

export declare const SAYFA_CAGRILARI: readonly SayfaCagrisi[];

/** What a desktop request gives a page that does not run inside the shell. */
export interface KabukDisinda {
  readonly kabukta: false;
  readonly neden: string;
}
export declare const KABUK_DISINDA: KabukDisinda;

/** The shell's reply to a desktop request. */
export interface MasaustuCevabi {
  readonly kabukta: true;
  readonly istek: number;
  readonly durum: MasaustuDurumu;
}

export interface MasaustuSecenekleri {
  /** Milliseconds to wait for the reply before rejecting with ZamanAsimi. */
  zamanAsimi?: number;
}

/** A desktop request whose reply did not come within the time-out the caller chose. */
export declare class ZamanAsimi extends Error {
  constructor(eylem: string, istek: number, sure: number);
  readonly name: "ZamanAsimi";
  readonly eylem: string;
  readonly istek: number;
  readonly sure: number;
}

/** True when the page runs in the shell's main view, where the handler "nevo" exists. */
export declare function kabuktaMi(): boolean;

/** Posts one message body; false (and nothing posted) outside the shell. */
export declare function gonder(govde: Mesaj): boolean;

/**
 * Calls `dinleyici` on every call of the page function `ad`, after the function the page
 * had defined itself. Returns a function that stops listening.
 */
export declare function dinle<A extends SayfaCagrisi>(
  ad: A,
  dinleyici: SayfaCagrilari[A],
): () => void;

/**
 * A desktop request as a promise: the shell's reply, or KABUK_DISINDA outside the shell;
 * rejects with ZamanAsimi when `secenekler.zamanAsimi` passes without a reply.
 */
export declare function masaustu(
  eylem: MasaustuEylemi,
  deger?: boolean,
  secenekler?: MasaustuSecenekleri,
): Promise<MasaustuCevabi | KabukDisinda>;

/** Reports a long job's start (`acik` true) or end; false outside the shell. */
export declare function isBildir(kimlik: string, acik: boolean): boolean;
