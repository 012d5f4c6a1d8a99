#include "shell/app_commands_model.h"

#include <QKeySequence>
#include <utility>

#include "translation/translation.h"

namespace klarvik {

AppCommand settingsWindowButton(std::function<void()> openSettings) {
  return {translate("Shell", "Settings…"), "Ctrl+,", std::move(openSettings)};
}

AppCommandsModel::AppCommandsModel(std::vector<AppCommand> commands, QObject* parent)
    : QObject(parent), _commands(std::move(commands)) {}

QStringList AppCommandsModel::titles() const {
  QStringList titles;
  for (const AppCommand& command : _commands) titles << command.title;
  return titles;
}

QStringList AppCommandsModel::shortcuts() const {
  QStringList shortcuts;
  for (const AppCommand& command : _commands) shortcuts << command.shortcut;
  return shortcuts;
}

QStringList AppCommandsModel::hints() const {
  QStringList hints;
  for (const AppCommand& command : _commands) {
    hints << QKeySequence(command.shortcut).toString(QKeySequence::NativeText);
  }
  return hints;
}

void AppCommandsModel::run(int index) const {
  _commands.at(static_cast<std::size_t>(index)).action();
}

}  // namespace klarvik
