#include "shell/main_window_model.h"

namespace klarvik {

namespace {

const WindowFrame onboardingFrame = WindowFrame::fixed({520, 560});
const WindowFrame shellFrame{{920, 640}, {1080, 720}, WindowFrame::unbounded};

}  // namespace

MainWindowModel::MainWindowModel(OnboardingModel& onboarding, AppCommandsModel& commands,
                                 QObject* parent)
    : QObject(parent), _onboarding(onboarding), _commands(commands) {}

WindowFrame MainWindowModel::frame() const {
  return _shell != nullptr ? shellFrame : onboardingFrame;
}

void MainWindowModel::setShell(AppShellModel& shell) {
  _shell = &shell;
  emit shellChanged();
}

}  // namespace klarvik
