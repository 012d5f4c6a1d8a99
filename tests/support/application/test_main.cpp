// The entry of every test program. GoogleTest tells by name which test has failed; this tells which
// one was running when the program crashed or hung.

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>

#ifdef TEST_APPLICATION
#include TEST_APPLICATION_HEADER
#endif
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
#include <sanitizer/common_interface_defs.h>
#endif

namespace klarvik {
namespace {

/// How long one test may take, in seconds, also on a slow machine and under a sanitizer.
constexpr unsigned timeLimit = 600;

char currentTest[256] = "";  // read by a signal handler
::pid_t testProgram = 0;

/// Children of the program are killed by tests on purpose.
void tellCurrentTest() {
  if (*currentTest == '\0' || ::getpid() != testProgram) return;
  constexpr char before[] = "[  FAILED  ] ended the program: ";
  static_cast<void>(::write(STDERR_FILENO, before, sizeof(before) - 1));
  static_cast<void>(::write(STDERR_FILENO, currentTest, std::strlen(currentTest)));
  static_cast<void>(::write(STDERR_FILENO, "\n", 1));
}

void tellAndDie(int signal) {
  tellCurrentTest();
  ::raise(signal);  // the default action: the handler is gone after its first call
}

void watchForCrashes() {
  testProgram = ::getpid();
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
  ::__sanitizer_set_death_callback(tellCurrentTest);
  const int deadly[] = {SIGABRT, SIGALRM, SIGTERM};
#else
  const int deadly[] = {SIGABRT, SIGALRM, SIGTERM, SIGSEGV, SIGBUS, SIGFPE, SIGILL};
#endif
  for (const int signal : deadly) {
    struct ::sigaction action {};
    action.sa_handler = tellAndDie;
    action.sa_flags = SA_RESETHAND | SA_NODEFER;
    ::sigaction(signal, &action, nullptr);
  }
}

class CurrentTestWatch final : public testing::EmptyTestEventListener {
  void OnTestStart(const testing::TestInfo& test) override {
    std::snprintf(currentTest, sizeof(currentTest), "%s.%s", test.test_suite_name(), test.name());
    ::alarm(timeLimit);
  }
  void OnTestEnd(const testing::TestInfo&) override {
    ::alarm(0);
    *currentTest = '\0';
  }
};

#ifdef TEST_APPLICATION
/// The application object that Qt's classes need, there while the tests run. It goes before the
/// program does: at exit, Qt's own statics go before those of a test.
class TestApplication final : public testing::Environment {
 public:
  void SetUp() override { _application = std::make_unique<TEST_APPLICATION>(_count, _arguments); }
  void TearDown() override { _application.reset(); }

 private:
  int _count = 1;
  char _name[8] = "klarvik";
  char* _arguments[2] = {_name, nullptr};
  std::unique_ptr<TEST_APPLICATION> _application;
};
#endif

}  // namespace
}  // namespace klarvik

int main(int argc, char** argv) {
  testing::InitGoogleMock(&argc, argv);
#ifdef TEST_APPLICATION
  ::setenv("QT_QPA_PLATFORM", "offscreen", 1);
  testing::AddGlobalTestEnvironment(new klarvik::TestApplication);
#endif
  klarvik::watchForCrashes();
  testing::UnitTest::GetInstance()->listeners().Append(new klarvik::CurrentTestWatch);
  return RUN_ALL_TESTS();
}
