#include "platform/desktop/xdg_motion_preference.h"

#include <gtest/gtest.h>

#include <QFile>

#include "support/temporary_folder.h"

namespace klarvik {
namespace {

/// No bus, and settings of the toolkit in a folder of its own.
class XdgMotionPreferenceTest : public testing::Test {
 protected:
  XdgMotionPreferenceTest() {
    qunsetenv("KLARVIK_REDUCE_MOTION");
    qunsetenv("DBUS_SESSION_BUS_ADDRESS");
    qputenv("XDG_RUNTIME_DIR", folder.path().c_str());
    qputenv("XDG_CONFIG_HOME", folder.path().c_str());
  }
  ~XdgMotionPreferenceTest() override {
    restore("KLARVIK_REDUCE_MOTION", motion);
    restore("DBUS_SESSION_BUS_ADDRESS", bus);
    restore("XDG_RUNTIME_DIR", runtime);
    restore("XDG_CONFIG_HOME", configuration);
  }

  static void restore(const char* name, const QByteArray& value) {
    value.isNull() ? qunsetenv(name) : qputenv(name, value);
  }

  const QByteArray motion = qgetenv("KLARVIK_REDUCE_MOTION");
  const QByteArray bus = qgetenv("DBUS_SESSION_BUS_ADDRESS");
  const QByteArray runtime = qgetenv("XDG_RUNTIME_DIR");
  const QByteArray configuration = qgetenv("XDG_CONFIG_HOME");
  TemporaryFolder folder;
};

TEST_F(XdgMotionPreferenceTest, IsToldByTheSettingsOfTheToolkit) {
  folder.makeFile("gtk-3.0/settings.ini", "[Settings]\ngtk-enable-animations=0\n");
  EXPECT_TRUE(XdgMotionPreference().isReduced());
  folder.makeFile("gtk-4.0/settings.ini", "[Settings]\ngtk-enable-animations=1\n");
  EXPECT_FALSE(XdgMotionPreference().isReduced());
}

TEST_F(XdgMotionPreferenceTest, IsToldByTheEnvironmentAboveAll) {
  folder.makeFile("gtk-4.0/settings.ini", "[Settings]\ngtk-enable-animations=0\n");
  qputenv("KLARVIK_REDUCE_MOTION", "0");
  EXPECT_FALSE(XdgMotionPreference().isReduced());
  qputenv("KLARVIK_REDUCE_MOTION", "1");
  EXPECT_TRUE(XdgMotionPreference().isReduced());
}

}  // namespace
}  // namespace klarvik
