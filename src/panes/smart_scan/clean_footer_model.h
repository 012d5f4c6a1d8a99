#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>
#include <QString>

#include "panes/kit/tool_rules.h"
#include "platform/platform.h"
#include "state/app_state.h"

namespace klarvik {

class Formatting;

/// What is selected, what will become of it, and how far a running clean is. Main thread only.
class CleanFooterModel : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("The pane makes it.")
  Q_PROPERTY(QString selectionSummary READ selectionSummary NOTIFY changed)
  Q_PROPERTY(QString hint READ hint NOTIFY changed)
  Q_PROPERTY(klarvik::ToolFooterState shown READ shown NOTIFY changed)

 public:
  CleanFooterModel(AppState& appState, const Desktop& desktop, QObject* parent = nullptr);

  [[nodiscard]] QString selectionSummary() const { return _selectionSummary; }
  [[nodiscard]] QString hint() const { return _hint; }
  [[nodiscard]] bool isEnabled() const;
  /// What the kit's footer draws. A clean tells how many items are done, and not, as other tools
  /// do, which one is under way.
  [[nodiscard]] ToolFooterState shown() const;

  Q_INVOKABLE void clean();
  Q_INVOKABLE void stop();

 signals:
  void changed();

 private:
  void readSelection();
  /// What becomes of what is selected, in one sentence.
  [[nodiscard]] std::string fate(const ItemSum& selected) const;
  [[nodiscard]] bool isBusy() const;

  AppState& _appState;
  const Desktop& _desktop;
  const Formatting& _formatting;
  QString _selectionSummary;
  QString _hint;
  QString _cleanTitle;
  bool _hasSelection = false;
};

}  // namespace klarvik
