#include "shell/main_window.h"

namespace klarvik {

namespace {

const WindowFrame onboardingFrame = WindowFrame::fixed({520, 560});
const WindowFrame shellFrame{{920, 640}, {1080, 720}, WindowFrame::unbounded};

}  // namespace

MainWindow::MainWindow(OnboardingView& onboarding, AppCommands& commands, QObject* parent)
    : QObject(parent), _onboarding(onboarding), _commands(commands) {}

WindowFrame MainWindow::frame() const {
  return _shell != nullptr ? shellFrame : onboardingFrame;
}

void MainWindow::setShell(AppShell& shell) {
  _shell = &shell;
  emit shellChanged();
}

}  // namespace klarvik
