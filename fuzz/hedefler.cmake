# The fuzz targets: each name has fuzz/<name>.cpp and seeds in fuzz/tohumlar/<name>/.
# Adding a target is adding its name here.
set(NEVO_FUZZ_HEDEFLERI
  govde
  gezinme
  durum_cevabi
  tercih_okuyucu
  ajan_ortami
  gelen_adres
  eslestirme_kodu
)
