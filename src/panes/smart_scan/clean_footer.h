#pragma once

#include <QObject>
#include <QString>

#include "platform/formatting.h"
#include "state/app_state.h"

namespace klarvik {

/// What is selected, what will become of it, and how far a running clean is. Main thread only.
class CleanFooter : public QObject {
  Q_OBJECT
  Q_PROPERTY(QString selectionSummary READ selectionSummary NOTIFY changed)
  Q_PROPERTY(QString hint READ hint NOTIFY changed)
  Q_PROPERTY(QString buttonTitle READ buttonTitle NOTIFY changed)
  Q_PROPERTY(bool isEnabled READ isEnabled NOTIFY changed)
  Q_PROPERTY(bool isBusy READ isBusy NOTIFY changed)
  Q_PROPERTY(bool hasProgress READ hasProgress NOTIFY progressChanged)
  Q_PROPERTY(QString progressLine READ progressLine NOTIFY progressChanged)
  Q_PROPERTY(QString progressName READ progressName NOTIFY progressChanged)
  Q_PROPERTY(double progressFraction READ progressFraction NOTIFY progressChanged)

 public:
  CleanFooter(AppState& appState, const Formatting& formatting, QObject* parent = nullptr);

  [[nodiscard]] QString selectionSummary() const { return _selectionSummary; }
  [[nodiscard]] QString hint() const { return _hint; }
  [[nodiscard]] QString buttonTitle() const;
  [[nodiscard]] bool isEnabled() const;
  [[nodiscard]] bool isBusy() const;
  [[nodiscard]] bool hasProgress() const;
  [[nodiscard]] QString progressLine() const;
  [[nodiscard]] QString progressName() const;
  [[nodiscard]] double progressFraction() const;

  Q_INVOKABLE void clean();
  Q_INVOKABLE void stop();

 signals:
  void changed();
  void progressChanged();

 private:
  void readSelection();
  void readState();
  [[nodiscard]] DeletionProgress progress() const;

  AppState& _appState;
  const Formatting& _formatting;
  QString _selectionSummary;
  QString _hint;
  QString _cleanTitle;
  bool _hasSelection = false;
  bool _isBusy = false;
};

}  // namespace klarvik
