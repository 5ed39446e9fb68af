#import "temel/json_mac.hpp"

#include "temel/json_sayisi.hpp"
#include "temel/metin_mac.hpp"

namespace nevo::mac {
namespace {

nlohmann::json sayi(NSNumber* deger) {
  if (CFGetTypeID((__bridge CFTypeRef)deger) == CFBooleanGetTypeID()) {
    return deger.boolValue == YES;
  }
  const char tur = *deger.objCType;
  if (tur == 'Q' || tur == 'L') return deger.unsignedLongLongValue;
  if (tur != 'f' && tur != 'd') return deger.longLongValue;
  return betikSayisi(deger.doubleValue);
}

nlohmann::json dizi(NSArray* deger) {
  nlohmann::json sonuc = nlohmann::json::array();
  for (NSUInteger i = 0; i < deger.count; ++i) sonuc.push_back(jsonDegeri(deger[i]));
  return sonuc;
}

nlohmann::json sozluk(NSDictionary* deger) {
  nlohmann::json sonuc = nlohmann::json::object();
  NSArray* anahtarlar = deger.allKeys;
  for (NSUInteger i = 0; i < anahtarlar.count; ++i) {
    id anahtar = anahtarlar[i];
    if (![anahtar isKindOfClass:NSString.class]) continue;
    sonuc[stdMetin(anahtar)] = jsonDegeri(deger[anahtar]);
  }
  return sonuc;
}

}  // namespace

nlohmann::json jsonDegeri(id _Nullable deger) {
  if ([deger isKindOfClass:NSString.class]) return stdMetin(deger);
  if ([deger isKindOfClass:NSNumber.class]) return sayi(deger);
  if ([deger isKindOfClass:NSArray.class]) return dizi(deger);
  if ([deger isKindOfClass:NSDictionary.class]) return sozluk(deger);
  return nullptr;
}

}  // namespace nevo::mac
