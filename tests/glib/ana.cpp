// The test runner: a GLib warning or critical is a misuse of GLib, so it ends the test.
#include <glib.h>
#include <gtest/gtest.h>

int main(int argc, char** argv) {
  g_log_set_always_fatal(
      static_cast<GLogLevelFlags>(G_LOG_LEVEL_ERROR | G_LOG_LEVEL_CRITICAL | G_LOG_LEVEL_WARNING));
  ::testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
