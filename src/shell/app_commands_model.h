#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>
#include <QStringList>
#include <functional>
#include <vector>

namespace klarvik {

/// One entry of the application menu.
struct AppCommand {
  QString title;
  QString shortcut;  ///< as it is written, such as "Ctrl+Q"; empty for none
  std::function<void()> action;
};

/// The entry that opens the settings window.
[[nodiscard]] AppCommand settingsWindowButton(std::function<void()> openSettings);

/// The application menu: what can be done in every window. Main thread only.
class AppCommandsModel : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("The program makes it.")
  Q_PROPERTY(QList<QString> titles READ titles CONSTANT)
  Q_PROPERTY(QList<QString> shortcuts READ shortcuts CONSTANT)
  Q_PROPERTY(QList<QString> hints READ hints CONSTANT)

 public:
  explicit AppCommandsModel(std::vector<AppCommand> commands, QObject* parent = nullptr);

  [[nodiscard]] QStringList titles() const;
  /// In the order of `titles`.
  [[nodiscard]] QStringList shortcuts() const;
  /// The shortcuts as the keys are called in the language of the user.
  [[nodiscard]] QStringList hints() const;
  Q_INVOKABLE void run(int index) const;

 private:
  const std::vector<AppCommand> _commands;
};

}  // namespace klarvik
