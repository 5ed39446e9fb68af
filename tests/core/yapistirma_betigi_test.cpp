// The pasted image's script.
#include "app/pencere/yapistirma_betigi.hpp"

#include <gtest/gtest.h>

namespace nevo {
namespace {

TEST(YapistirmaBetigi, YalnizcaPngImzasiGorseldir) {
  EXPECT_TRUE(pngMi(std::string_view("\x89PNG\r\n\x1a\n\0\0", 10)));
  EXPECT_FALSE(pngMi("merhaba ığüş"));
  EXPECT_FALSE(pngMi(std::string_view("\x89PNG\r\n\x1a", 7)));
  EXPECT_FALSE(pngMi(""));
}

TEST(YapistirmaBetigi, GorselAdiVeBaytlariylaGelir) {
  const auto betik = gorselYapistir("iVBORw0K");
  EXPECT_NE(betik.find(R"js(("iVBORw0K", "gorsel.png");)js"), std::string::npos) << betik;
  EXPECT_NE(gorselYapistir("").find(R"js(("", "gorsel.png");)js"), std::string::npos);
}

}  // namespace
}  // namespace nevo
