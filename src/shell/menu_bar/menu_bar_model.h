#pragma once

#include <QtQml/qqmlregistration.h>
#include <QColor>
#include <QList>
#include <QObject>
#include <QString>

#include "state/app_state.h"
#include "state/trash_monitor.h"

namespace klarvik {

class Formatting;

struct MenuBarCategory {
  Q_GADGET
  QML_VALUE_TYPE(menuBarCategory)
  Q_PROPERTY(QString symbol MEMBER symbol)
  Q_PROPERTY(QColor color MEMBER color)
  Q_PROPERTY(QString name MEMBER name)
  Q_PROPERTY(QString size MEMBER size)

 public:
  QString symbol;
  QColor color;
  QString name;
  QString size;
};

struct MenuBarAction {
  Q_GADGET
  QML_VALUE_TYPE(menuBarAction)
  Q_PROPERTY(QString symbol MEMBER symbol)
  Q_PROPERTY(QString label MEMBER label)
  Q_PROPERTY(bool isEnabled MEMBER isEnabled)
  Q_PROPERTY(bool startsGroup MEMBER startsGroup)

 public:
  QString symbol;
  QString label;
  bool isEnabled = true;
  bool startsGroup = false;

  bool operator==(const MenuBarAction&) const = default;
};

/// The content of the status item's popover: what was found, and the actions that are used most.
/// Main thread only; what is handed in must outlive it.
class MenuBarModel : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("The controller makes it.")
  Q_PROPERTY(QList<klarvik::MenuBarCategory> categories READ categories NOTIFY resultsChanged)
  Q_PROPERTY(QString moreCategories READ moreCategories NOTIFY resultsChanged)
  Q_PROPERTY(QString totalFound READ totalFound NOTIFY resultsChanged)
  Q_PROPERTY(QList<klarvik::MenuBarAction> actions READ actions NOTIFY actionsChanged)

 public:
  MenuBarModel(AppState& appState, TrashMonitor& trash, const Formatting& formatting,
               QObject* parent = nullptr);

  /// The first few; none when nothing has been found.
  [[nodiscard]] QList<MenuBarCategory> categories() const;
  [[nodiscard]] QString moreCategories() const;
  [[nodiscard]] QString totalFound() const;
  /// Always the same ones, in the same order.
  [[nodiscard]] const QList<MenuBarAction>& actions() const { return _actions; }

  /// Does what an action is for, by its index. Nothing when it is not enabled.
  Q_INVOKABLE void perform(int action);

 signals:
  void resultsChanged();
  void actionsChanged();
  /// An action is about to take the user to a window, or to the end of the program.
  void leaving();

 private:
  enum Action { ScanNow, EmptyTrash, OpenKlarvik, Preferences, Quit };

  [[nodiscard]] QList<MenuBarAction> currentActions() const;
  void syncActions();

  AppState& _appState;
  TrashMonitor& _trash;
  const Formatting& _formatting;
  QList<MenuBarAction> _actions;
};

}  // namespace klarvik
