#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>

#include "shell/app_commands.h"
#include "shell/app_shell.h"
#include "shell/onboarding/onboarding_view.h"
#include "shell/windows.h"

namespace klarvik {

/// What the main window shows: the first run, until there is a shell to show in its place. Main
/// thread only; everything handed in must outlive it.
class MainWindow : public QObject {
  Q_OBJECT
  QML_NAMED_ELEMENT(MainWindowModel)
  QML_UNCREATABLE("The program makes it.")
  Q_PROPERTY(klarvik::OnboardingView* onboarding READ onboarding CONSTANT)
  Q_PROPERTY(klarvik::AppShell* shell READ shell NOTIFY shellChanged)
  Q_PROPERTY(klarvik::AppCommands* commands READ commands CONSTANT)

 public:
  MainWindow(OnboardingView& onboarding, AppCommands& commands, QObject* parent = nullptr);

  [[nodiscard]] OnboardingView* onboarding() const { return &_onboarding; }
  [[nodiscard]] AppShell* shell() const { return _shell; }
  [[nodiscard]] AppCommands* commands() const { return &_commands; }
  /// The frame of what is shown now.
  [[nodiscard]] WindowFrame frame() const;

  void setShell(AppShell& shell);

 signals:
  void shellChanged();

 private:
  OnboardingView& _onboarding;
  AppCommands& _commands;
  AppShell* _shell = nullptr;
};

}  // namespace klarvik
