// The report of the first field that takes text getting the focus.
#include <gtest/gtest.h>

#include <string>

#include "app/pencere/duzenleme_odagi_betigi.hpp"
#include "core/js_motoru.hpp"

namespace nevo {
namespace {

// A page whose listeners the test calls with focus events of its own, and whose handler
// counts its posts.
std::string sayfadaCalistir(const std::string& odaklar) {
  const std::string sayfa =
      std::string(
          "var dinleyiciler=[],gelen=0;"
          "function addEventListener(t,f,y){if(t==='focusin'&&y===true)dinleyiciler.push(f);}"
          "function removeEventListener(t,f,y){if(t==='focusin'&&y===true)"
          "dinleyiciler=dinleyiciler.filter(function(g){return g!==f;});}"
          "var window={webkit:{messageHandlers:{'") +
      DUZENLEME_ODAGI_ISLEYICISI +
      "':{postMessage:function(){gelen++;}}}}};"
      "function alan(ad,tur,ek){var e={localName:ad,getAttribute:function(a){"
      "return a==='type'?tur:null;}};for(var k in ek)e[k]=ek[k];return e;}"
      "function odak(e){dinleyiciler.slice().forEach(function(f){f({target:e});});}";
  return test::jsDegerlendir(sayfa + duzenlemeOdagiBetigi() + odaklar + "gelen");
}

TEST(DuzenlemeOdagi, YaziAlanOdaklanincaBirKezBildirilir) {
  for (const char* odaklar :
       {"odak(alan('input',null));", "odak(alan('input','Search'));odak(alan('textarea',null));",
        "odak(alan('textarea',null));", "odak(alan('div',null,{isContentEditable:true}));",
        "odak(alan('input','email'));"}) {
    EXPECT_EQ(sayfadaCalistir(odaklar), "1") << odaklar;
  }
}

TEST(DuzenlemeOdagi, YaziAlmayanOdakBildirilmez) {
  EXPECT_EQ(sayfadaCalistir("odak(alan('button',null));odak(alan('input','checkbox'));"
                            "odak(alan('input','password'));odak(alan('div',null));"
                            "odak(alan('input','number'));odak(null);odak('x');"),
            "0");
  EXPECT_EQ(sayfadaCalistir("odak(alan('input','text',{readOnly:true}));"
                            "odak(alan('textarea',null,{disabled:true}));"),
            "0");
}

TEST(DuzenlemeOdagi, YaziAlmayanOdaktanSonrakiYaziAlaniBildirilir) {
  EXPECT_EQ(sayfadaCalistir("odak(alan('button',null));odak(alan('input','text'));"), "1");
}

}  // namespace
}  // namespace nevo
