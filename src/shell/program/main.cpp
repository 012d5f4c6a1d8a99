#include <QApplication>
#include <QIcon>
#include <QLocale>
#include <cstdio>
#include <cstdlib>

#include "platform/desktop/desktop_platform.h"
#include "platform/desktop/single_instance.h"
#include "platform/own_process.h"
#include "shell/klarvik_app.h"
#include "shell/menu_bar/window_activation.h"
#include "state/shared_state.h"
#include "translation/translation.h"

namespace {

int refuse(const char* sentence) {
  std::fprintf(stderr, "%s\n", sentence);
  return 1;
}

int refuse(const QString& sentence) {
  return refuse(qUtf8Printable(sentence));
}

/// Qt ends a program whose display it cannot reach with an abort: this says it in a sentence first.
void endWithoutDisplay(QtMsgType type, const QMessageLogContext&, const QString&) {
  if (type == QtFatalMsg) {
    std::_Exit(refuse("Klarvik needs a display to show its window on, and can reach none."));
  }
}

/// How a start ends that finds its home in the hands of another.
int endAfter(klarvik::SingleInstance::Claim claim) {
  using Claim = klarvik::SingleInstance::Claim;
  if (claim == Claim::fronted) return 0;
  return refuse(
      claim == Claim::elsewhere
          ? klarvik::translate("Program",
                               "Klarvik is running already, on another display of yours.")
          : klarvik::translate(
                "Program", "Klarvik is running already and does not answer. End that one first."));
}

}  // namespace

int main(int argumentCount, char** arguments) {
  klarvik::disableFastBins();
  // The drivers keep what they have compiled; a cache of Qt's beside it would outlive the program.
  QApplication::setAttribute(Qt::AA_DisableShaderDiskCache);
  const QtMessageHandler usual = qInstallMessageHandler(endWithoutDisplay);
  QApplication application(argumentCount, arguments);
  qInstallMessageHandler(usual);
  QApplication::setApplicationName("Klarvik");
  QApplication::setApplicationDisplayName("Klarvik");
  QApplication::setDesktopFileName("klarvik");
  QApplication::setWindowIcon(QIcon::fromTheme("klarvik"));

  klarvik::speak(klarvik::languageFor(QLocale::system().uiLanguages()));
  const auto platform = klarvik::DesktopPlatform::ofThisUser(klarvik::formattingLanguage());
  if (!platform) {
    return refuse(klarvik::translate(
        "Program",
        "Klarvik needs a home folder of your own, and found none: it cleans nothing else."));
  }
  klarvik::SingleInstance instance(
      klarvik::SingleInstance::Start::ofThisProcess(*klarvik::UserFolders::ofThisUser()));
  const auto claim = instance.claim();
  if (claim != klarvik::SingleInstance::Claim::granted) return endAfter(claim);
  instance.whenStartedAgain([] { klarvik::activateWindow("main"); });

  const klarvik::Desktop desktop = platform->desktop();
  klarvik::SharedState shared(desktop);
  klarvik::KlarvikApp app(desktop, shared, platform->loginItem());
  if (!app.openWindow(klarvik::mainWindowId)) {
    return refuse(klarvik::translate("Program", "Klarvik could not draw its window."));
  }
  const int status = QApplication::exec();
  app.finishRemovals();
  // A download that is not whole may lie in the user's folder.
  desktop.updater.stop();
  platform->startSuccessor();
  // A scan may be in the middle of a long walk, or wait for a tool that never answers. It changes
  // nothing, so nobody has to wait for it.
  std::_Exit(status);
}
