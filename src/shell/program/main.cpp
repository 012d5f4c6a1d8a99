#include <QApplication>
#include <cstdio>
#include <cstdlib>

#include "platform/desktop/desktop_platform.h"
#include "shell/klarvik_app.h"
#include "state/shared_state.h"

namespace {

int refuse(const char* sentence) {
  std::fprintf(stderr, "%s\n", sentence);
  return 1;
}

/// Qt ends a program whose display it cannot reach with an abort: this says it in a sentence first.
void endWithoutDisplay(QtMsgType type, const QMessageLogContext&, const QString&) {
  if (type == QtFatalMsg) {
    std::_Exit(refuse("Klarvik needs a display to show its window on, and can reach none."));
  }
}

}  // namespace

int main(int argumentCount, char** arguments) {
  const QtMessageHandler usual = qInstallMessageHandler(endWithoutDisplay);
  QApplication application(argumentCount, arguments);
  qInstallMessageHandler(usual);
  QApplication::setApplicationName("Klarvik");
  QApplication::setApplicationDisplayName("Klarvik");
  QApplication::setDesktopFileName("klarvik");

  const auto platform = klarvik::DesktopPlatform::ofThisUser();
  if (!platform) {
    return refuse(
        "Klarvik needs a home folder of your own, and found none: it cleans nothing else.");
  }
  const klarvik::Desktop desktop = platform->desktop();
  klarvik::SharedState shared(desktop);
  klarvik::KlarvikApp app(desktop, shared);
  if (!app.openMainWindow()) {
    return refuse("Klarvik could not draw its window.");
  }
  const int status = QApplication::exec();
  app.finishRemovals();
  // A scan may be in the middle of a long walk, or wait for a tool that never answers. It changes
  // nothing, so nobody has to wait for it.
  std::_Exit(status);
}
