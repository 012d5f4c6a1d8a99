#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>

namespace klarvik {

/// What the program asks of the model of a tool's pane, whatever the tool. Main thread only. Models
/// name it with its namespace, since qmllint finds a base by its whole name.
class ToolPane : public QObject {
  Q_OBJECT
  QML_ANONYMOUS
 public:
  using QObject::QObject;

  /// Called once, when the window is on the screen: starts what the pane does by itself.
  virtual void appear() {}
  /// For the end of the program: starts no further removal.
  virtual void stopRemovals() {}
  /// The same, and waits for those in progress. Nothing may be started afterwards.
  virtual void finishRemovals() {}
};

}  // namespace klarvik
