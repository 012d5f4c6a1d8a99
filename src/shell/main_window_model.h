#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>

#include "shell/app_commands_model.h"
#include "shell/app_shell_model.h"
#include "shell/onboarding/onboarding_model.h"
#include "shell/windows.h"

namespace klarvik {

/// What the main window shows: the first run, until there is a shell to show in its place. Main
/// thread only; everything handed in must outlive it.
class MainWindowModel : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("The program makes it.")
  Q_PROPERTY(klarvik::OnboardingModel* onboarding READ onboarding CONSTANT)
  Q_PROPERTY(klarvik::AppShellModel* shell READ shell NOTIFY shellChanged)
  Q_PROPERTY(klarvik::AppCommandsModel* commands READ commands CONSTANT)

 public:
  MainWindowModel(OnboardingModel& onboarding, AppCommandsModel& commands,
                  QObject* parent = nullptr);

  [[nodiscard]] OnboardingModel* onboarding() const { return &_onboarding; }
  [[nodiscard]] AppShellModel* shell() const { return _shell; }
  [[nodiscard]] AppCommandsModel* commands() const { return &_commands; }
  /// The frame of what is shown now.
  [[nodiscard]] WindowFrame frame() const;

  void setShell(AppShellModel& shell);

 signals:
  void shellChanged();

 private:
  OnboardingModel& _onboarding;
  AppCommandsModel& _commands;
  AppShellModel* _shell = nullptr;
};

}  // namespace klarvik
