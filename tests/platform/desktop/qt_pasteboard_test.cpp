#include "platform/desktop/qt_pasteboard.h"

#include <gtest/gtest.h>

#include <QClipboard>
#include <QGuiApplication>
#include <QImage>
#include <QMimeData>
#include <QUrl>
#include <atomic>
#include <thread>

#include "support/application/main_loop.h"

namespace klarvik {
namespace {

class QtPasteboardTest : public testing::Test {
 protected:
  QtPasteboardTest() { QGuiApplication::clipboard()->clear(); }

  static void offer(const QString& format, const QByteArray& content) {
    auto* data = new QMimeData;
    data->setData(format, content);
    QGuiApplication::clipboard()->setMimeData(data);
  }

  /// What `ask` answers on a thread of its own, while the main loop runs.
  static bool elsewhere(const std::function<bool()>& ask) {
    std::atomic<bool> done = false;
    bool answer = false;
    std::thread thread([&] {
      answer = ask();
      done = true;
    });
    EXPECT_TRUE(turnMainLoopUntil([&] { return done.load(); }));
    thread.join();
    return answer;
  }

  QtPasteboard pasteboard;
};

TEST_F(QtPasteboardTest, HoldsNothingWhenNothingWasCopied) {
  EXPECT_FALSE(pasteboard.holdsTextOrImage());
}

TEST_F(QtPasteboardTest, HoldsAText) {
  QGuiApplication::clipboard()->setText("copied");
  EXPECT_TRUE(pasteboard.holdsTextOrImage());
}

TEST_F(QtPasteboardTest, HoldsAnImage) {
  QImage image(2, 2, QImage::Format_RGB32);
  image.fill(Qt::red);
  QGuiApplication::clipboard()->setImage(image);
  EXPECT_TRUE(pasteboard.holdsTextOrImage());
  offer("image/tiff", "II*");
  EXPECT_TRUE(pasteboard.holdsTextOrImage());
}

TEST_F(QtPasteboardTest, AMereReferenceToAFileIsNeitherTextNorImage) {
  auto* data = new QMimeData;
  data->setUrls({QUrl("file:///Users/ann/letter.txt")});
  QGuiApplication::clipboard()->setMimeData(data);
  ASSERT_TRUE(QGuiApplication::clipboard()->mimeData()->hasUrls());
  EXPECT_FALSE(pasteboard.holdsTextOrImage());
  offer("application/x-something", "data");
  EXPECT_FALSE(pasteboard.holdsTextOrImage());
}

TEST_F(QtPasteboardTest, ClearingLeavesNothing) {
  QGuiApplication::clipboard()->setText("copied");
  pasteboard.clear();
  EXPECT_FALSE(pasteboard.holdsTextOrImage());
  EXPECT_EQ(QGuiApplication::clipboard()->text(), QString());
}

TEST_F(QtPasteboardTest, AnswersAnotherThreadWhileTheMainLoopRuns) {
  EXPECT_FALSE(elsewhere([&] { return pasteboard.holdsTextOrImage(); }));
  QGuiApplication::clipboard()->setText("copied");
  EXPECT_TRUE(elsewhere([&] { return pasteboard.holdsTextOrImage(); }));
  elsewhere([&] {
    pasteboard.clear();
    return true;
  });
  EXPECT_EQ(QGuiApplication::clipboard()->text(), QString());
}

TEST_F(QtPasteboardTest, AThreadDoesNotWaitForEverWhenTheMainThreadWaitsForIt) {
  QGuiApplication::clipboard()->setText("copied");
  std::thread thread([&] { pasteboard.clear(); });
  thread.join();  // and meanwhile no main loop
  // What nobody waits for any more is not done later either.
  QCoreApplication::processEvents();
  EXPECT_EQ(QGuiApplication::clipboard()->text(), QString("copied"));
}

TEST_F(QtPasteboardTest, AThreadThatAsksWhenTheProgramHasQuitIsNotKeptWaiting) {
  QGuiApplication::clipboard()->setText("copied");
  QMetaObject::invokeMethod(QCoreApplication::instance(), &QCoreApplication::quit,
                            Qt::QueuedConnection);
  QCoreApplication::exec();
  bool answer = true;
  std::thread thread([&] { answer = pasteboard.holdsTextOrImage(); });
  thread.join();
  EXPECT_FALSE(answer);
  QCoreApplication::processEvents();
  EXPECT_TRUE(pasteboard.holdsTextOrImage()) << "the main thread itself can still ask";
}

}  // namespace
}  // namespace klarvik
