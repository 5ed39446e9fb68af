// How the web application uses the kit, checked against its declarations. Each misuse below
// carries an expect-error mark: the check fails when the declarations accept one.
import {
  dinle,
  gonder,
  isBildir,
  kabuktaMi,
  masaustu,
  mesaj,
  KABUK_DISINDA,
  MESAJ_TURLERI,
  SAYFA_CAGRILARI,
  ZamanAsimi,
  type MasaustuDurumu,
  type Mesaj,
} from "../../web/nevo-masaustu.mjs";

export async function ayarlar(): Promise<boolean | string> {
  if (!kabuktaMi()) return KABUK_DISINDA.neden;
  try {
    const cevap = await masaustu("uyanik", true, { zamanAsimi: 2000 });
    if (!cevap.kabukta) return cevap.neden;
    const durum: MasaustuDurumu = cevap.durum;
    const ad: string | null = durum.kisayol;
    return durum.uyanikTut && ad !== "" && cevap.istek > 0;
  } catch (hata) {
    if (hata instanceof ZamanAsimi) return `${hata.eylem} ${hata.istek} ${hata.sure}`;
    throw hata;
  }
}

export function dinleyiciler(): Array<() => void> {
  return [
    dinle("nevoKomut", (komut) => {
      const tamam: "yeni-sohbet" | "nevo-code" | "ayarlar" = komut;
      void tamam;
    }),
    dinle("nevoBildirimDurumu", (kelime) => void kelime.toUpperCase()),
    dinle("nevoBaglantiDonusu", (kod, baglanti) => void (kod + baglanti)),
    dinle("nevoOturumKur", (erisim, yenileme) => void (erisim + yenileme)),
    dinle("nevoEslestirmeSonucu", (ok, sonuc) => void (ok ? sonuc : null)),
    dinle("nevoHizliMesaj", (metin) => void metin.trim()),
    dinle("nevoMasaustuCevap", (istek, durum) => void (istek + JSON.parse(durum))),
  ];
}

export function mesajlar(): Mesaj[] {
  const hepsi: Mesaj[] = [
    mesaj.tarayicidaAc("https://nevo.example/"),
    mesaj.bildirimDurum(),
    mesaj.bildirimIzniIste(),
    mesaj.bildirimAyarlari(),
    mesaj.dosyaKaydet("rapor.json", "{}"),
    mesaj.bildirim("Bitti", "Rapor hazır"),
    mesaj.masaustu(7, "durum"),
    mesaj.masaustuIs("rapor-42", true),
    mesaj.ajanEslestir("AB12CD"),
    { tur: "bildirim" },
    { tur: "dosya-kaydet" },
  ];
  gonder({ tur: "masaustu-is", is: "rapor-42", acik: false });
  isBildir("rapor-42", true);
  return hepsi.filter((m) => MESAJ_TURLERI.includes(m.tur) && SAYFA_CAGRILARI.length === 7);
}

export function yanlislar(): void {
  // @ts-expect-error an action the shell does not answer
  void masaustu("Durum");
  // @ts-expect-error a setting's value is a boolean, not a string
  void masaustu("uyanik", "true");
  // @ts-expect-error the time-out is a number of milliseconds
  void masaustu("durum", false, { zamanAsimi: "2s" });
  // @ts-expect-error there is no such page function
  dinle("nevoKomutlar", () => {});
  // @ts-expect-error the connection callback receives strings
  dinle("nevoBaglantiDonusu", (kod: number) => void kod);
  // @ts-expect-error a message type's name is case-sensitive
  gonder({ tur: "Masaustu", eylem: "durum" });
  // @ts-expect-error a job message needs its identifier
  gonder({ tur: "masaustu-is", acik: true });
  // @ts-expect-error the builder needs the address
  mesaj.tarayicidaAc();
}

export async function disarida(): Promise<void> {
  const cevap = await masaustu("durum");
  // @ts-expect-error outside the shell there is no status: narrow on `kabukta` first
  void cevap.durum.uyanikTut;
}
