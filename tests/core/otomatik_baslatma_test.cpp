// Launch at login on Linux: the autostart entry launches exactly the running executable.
#include "desktop/otomatik_baslatma.hpp"

#include <gtest/gtest.h>

namespace nevo {
namespace {

std::string execSatiri(const std::string& girdi) {
  const auto bas = girdi.find("\nExec=") + 6;
  return girdi.substr(bas, girdi.find('\n', bas) - bas);
}

TEST(OtomatikBaslatma, OtomatikBaslatmaGirdisiUygulamaGirdisidir) {
  const auto girdi = otomatikBaslatmaGirdisi("/usr/bin/nevo");
  EXPECT_EQ(girdi.rfind("[Desktop Entry]\n", 0), 0u);
  EXPECT_NE(girdi.find("\nType=Application\n"), std::string::npos);
  EXPECT_EQ(execSatiri(girdi), "\"/usr/bin/nevo\"");
}

TEST(OtomatikBaslatma, ExecYoluTirnaklanirVeKacirilir) {
  EXPECT_EQ(execSatiri(otomatikBaslatmaGirdisi("/opt/Nevo Uygulama/bin/nevo")),
            "\"/opt/Nevo Uygulama/bin/nevo\"");
  // Exec quoting first ($ ` " \ get a backslash, % doubles), then key-file escaping of \.
  EXPECT_EQ(execSatiri(otomatikBaslatmaGirdisi("/a$b`c\"d\\e%f")),
            "\"/a\\\\$b\\\\`c\\\\\"d\\\\\\\\e%%f\"");
  EXPECT_EQ(execSatiri(otomatikBaslatmaGirdisi("/ev/şğü/nevo")), "\"/ev/şğü/nevo\"");
}

}  // namespace
}  // namespace nevo
