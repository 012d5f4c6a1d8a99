#include <gtest/gtest.h>

#include <memory>
#include TEST_APPLICATION_HEADER

namespace klarvik {
namespace {

/// The application object of a test program, there while its tests run. It goes before the program
/// does: at exit, Qt's own statics go before those of a test.
class TestApplication final : public ::testing::Environment {
 public:
  void SetUp() override { _application = std::make_unique<TEST_APPLICATION>(_count, _arguments); }
  void TearDown() override { _application.reset(); }

 private:
  int _count = 1;
  char _name[8] = "klarvik";
  char* _arguments[2] = {_name, nullptr};
  std::unique_ptr<TEST_APPLICATION> _application;
};

::testing::Environment* const testApplication =
    ::testing::AddGlobalTestEnvironment(new TestApplication);

}  // namespace
}  // namespace klarvik
