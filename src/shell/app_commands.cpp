#include "shell/app_commands.h"

#include <utility>

namespace klarvik {

AppCommand settingsWindowButton(std::function<void()> openSettings) {
  return {"Settings…", "Ctrl+,", std::move(openSettings)};
}

AppCommands::AppCommands(std::vector<AppCommand> commands, QObject* parent)
    : QObject(parent), _commands(std::move(commands)) {}

QStringList AppCommands::titles() const {
  QStringList titles;
  for (const AppCommand& command : _commands) titles << command.title;
  return titles;
}

QStringList AppCommands::shortcuts() const {
  QStringList shortcuts;
  for (const AppCommand& command : _commands) shortcuts << command.shortcut;
  return shortcuts;
}

void AppCommands::run(int index) const {
  _commands.at(static_cast<std::size_t>(index)).action();
}

}  // namespace klarvik
