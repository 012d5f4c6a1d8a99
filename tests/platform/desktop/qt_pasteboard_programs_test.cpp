// The clipboard between programs, on a display of its own.

#include <gtest/gtest.h>

#include <QProcess>

namespace klarvik {
namespace {

// A program that is ended with the object.
class Running {
 public:
  Running(const QString& program, const QStringList& arguments, const QString& display = {}) {
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert("QT_QPA_PLATFORM", "xcb");
    environment.insert("DISPLAY", display);
    _process.setProcessEnvironment(environment);
    _process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    _process.start(program, arguments);
  }
  ~Running() {
    _process.kill();
    _process.waitForFinished();
  }
  Running(const Running&) = delete;
  Running& operator=(const Running&) = delete;

  std::string line() {
    while (!_process.canReadLine() && _process.waitForReadyRead()) {
    }
    return QString::fromUtf8(_process.readLine()).trimmed().toStdString();
  }

 private:
  QProcess _process;
};

class PasteboardBetweenPrograms : public testing::Test {
 protected:
  Running server{"Xvfb", {"-displayfd", "1", "-screen", "0", "320x200x24", "-nolisten", "tcp"}};
  const QString display = QString::fromStdString(":" + server.line());

  std::string answer(const QString& command) const {
    return Running(PASTEBOARD_PROGRAM, {command}, display).line();
  }
};

TEST_F(PasteboardBetweenPrograms, IsEmptyUntilSomethingIsCopied) {
  EXPECT_EQ(answer("look"), "empty");
}

TEST_F(PasteboardBetweenPrograms, ATextThatAnotherProgramCopiedIsFoundAndCleared) {
  Running other(PASTEBOARD_PROGRAM, {"copy", "text"}, display);
  ASSERT_EQ(other.line(), "copied");
  EXPECT_EQ(answer("look"), "filled");
  EXPECT_EQ(answer("clear"), "empty");
  EXPECT_EQ(answer("look"), "empty");
}

TEST_F(PasteboardBetweenPrograms, AnImageThatAnotherProgramCopiedIsFoundAndCleared) {
  Running other(PASTEBOARD_PROGRAM, {"copy", "image"}, display);
  ASSERT_EQ(other.line(), "copied");
  EXPECT_EQ(answer("look"), "filled");
  EXPECT_EQ(answer("clear"), "empty");
  EXPECT_EQ(answer("look"), "empty");
}

TEST_F(PasteboardBetweenPrograms, AMereReferenceToAFileIsNotFound) {
  Running other(PASTEBOARD_PROGRAM, {"copy", "file"}, display);
  ASSERT_EQ(other.line(), "copied");
  EXPECT_EQ(answer("look"), "empty");
}

}  // namespace
}  // namespace klarvik
