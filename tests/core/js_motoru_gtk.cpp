#include <jsc/jsc.h>

#include <memory>

#include "core/js_motoru.hpp"

namespace nevo::test {

std::string jsDegerlendir(const std::string& betik) {
  std::unique_ptr<JSCContext, decltype(&g_object_unref)> baglam(jsc_context_new(), &g_object_unref);
  std::unique_ptr<JSCValue, decltype(&g_object_unref)> sonuc(
      jsc_context_evaluate(baglam.get(), betik.data(), static_cast<gssize>(betik.size())),
      &g_object_unref);
  if (JSCException* hata = jsc_context_get_exception(baglam.get())) {
    return std::string("exception: ") + jsc_exception_get_message(hata);
  }
  if (jsc_value_is_undefined(sonuc.get())) return "undefined";
  std::unique_ptr<char, decltype(&g_free)> json(jsc_value_to_json(sonuc.get(), 0), &g_free);
  return json ? json.get() : "undefined";
}

}  // namespace nevo::test
