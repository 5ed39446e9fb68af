#include <JavaScriptCore/JavaScriptCore.h>

#include <memory>
#include <string>
#include <type_traits>

#include "core/js_motoru.hpp"
#include "temel/utf8.hpp"

namespace nevo::test {
namespace {

struct BaglamBirak {
  void operator()(JSGlobalContextRef baglam) const { JSGlobalContextRelease(baglam); }
};
struct MetinBirak {
  void operator()(JSStringRef metin) const { JSStringRelease(metin); }
};
using Baglam = std::unique_ptr<std::remove_pointer_t<JSGlobalContextRef>, BaglamBirak>;
using Metin = std::unique_ptr<std::remove_pointer_t<JSStringRef>, MetinBirak>;

// The script with its length, so a NUL inside it does not end it.
Metin jsMetni(const std::string& metin) {
  const std::string gecerli = gecerliUtf8(metin);
  CFStringRef cf =
      CFStringCreateWithBytes(kCFAllocatorDefault, reinterpret_cast<const UInt8*>(gecerli.data()),
                              static_cast<CFIndex>(gecerli.size()), kCFStringEncodingUTF8, false);
  if (cf == nullptr) return Metin();
  Metin sonuc(JSStringCreateWithCFString(cf));
  CFRelease(cf);
  return sonuc;
}

std::string utf8(JSStringRef metin) {
  std::string tampon(JSStringGetMaximumUTF8CStringSize(metin), '\0');
  const std::size_t yazilan = JSStringGetUTF8CString(metin, tampon.data(), tampon.size());
  tampon.resize(yazilan > 0 ? yazilan - 1 : 0);  // without the closing NUL
  return tampon;
}

}  // namespace

std::string jsDegerlendir(const std::string& betik) {
  Baglam baglam(JSGlobalContextCreate(nullptr));
  const Metin kaynak = jsMetni(betik);
  if (!kaynak) return "exception: the script could not be read";
  JSValueRef hata = nullptr;
  JSValueRef sonuc = JSEvaluateScript(baglam.get(), kaynak.get(), nullptr, nullptr, 1, &hata);
  if (hata != nullptr) {
    const Metin ileti(JSValueToStringCopy(baglam.get(), hata, nullptr));
    return "exception: " + (ileti ? utf8(ileti.get()) : std::string());
  }
  if (sonuc == nullptr || JSValueIsUndefined(baglam.get(), sonuc)) return "undefined";
  const Metin json(JSValueCreateJSONString(baglam.get(), sonuc, 0, nullptr));
  return json ? utf8(json.get()) : "undefined";
}

}  // namespace nevo::test
