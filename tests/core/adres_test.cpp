// URL parsing shared by the entry mode and the navigation policy (uriparser, no
// normalisation).
#include "temel/adres.hpp"

#include <gtest/gtest.h>

namespace nevo {
namespace {

TEST(Adres, SemaVeHostHarfleriKorunur) {
  auto a = adresCoz("HTTPS://App.Nevo.ai:8080/Yol?q#f");
  ASSERT_TRUE(a);
  EXPECT_EQ(a->sema, "HTTPS");
  EXPECT_EQ(a->host, "App.Nevo.ai");
  EXPECT_EQ(a->yol, "/Yol");
}

TEST(Adres, HostsuzAdres) {
  auto a = adresCoz("mailto:a@b.c");
  ASSERT_TRUE(a);
  EXPECT_FALSE(a->host);
  EXPECT_EQ(a->sema, "mailto");
  auto b = adresCoz("about:blank");
  ASSERT_TRUE(b);
  EXPECT_EQ(b->sema, "about");
  EXPECT_FALSE(b->host);
  EXPECT_FALSE(adresCoz("file:///yerel/index.html")->host);  // an empty host is none
}

TEST(Adres, YolYuzdeCozulur) {
  EXPECT_EQ(adresCoz("https://h/a%20b/%C3%A7")->yol, "/a b/ç");
  EXPECT_EQ(adresCoz("https://h")->yol, "");
  EXPECT_EQ(adresCoz("https://h/")->yol, "/");
  EXPECT_EQ(adresCoz("https://[::1]:8/x")->yol, "/x");
  EXPECT_EQ(yuzdeCoz("%zz%4"), "%zz%4");
}

TEST(Adres, CozulemeyenMetinler) {
  EXPECT_FALSE(adresCoz(""));
  EXPECT_FALSE(adresCoz("ht tp://x"));
  EXPECT_FALSE(adresCoz("https://a b/"));
  EXPECT_FALSE(adresCoz("https://h/%zz"));
}

}  // namespace
}  // namespace nevo
