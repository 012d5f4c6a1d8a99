#pragma once

#include <QtQml/qqmlregistration.h>
#include <QMetaType>
#include <QString>
#include <optional>

#include "engine/scanner_engine.h"
#include "panes/kit/kit_enums.h"

namespace klarvik {

class Formatting;

/// What a pane that has nothing to list shows in place of its rows.
struct Placeholder {
  Q_GADGET
  QML_VALUE_TYPE(placeholder)
  Q_PROPERTY(bool isShown MEMBER isShown)
  Q_PROPERTY(bool isBusy MEMBER isBusy)
  Q_PROPERTY(QString icon MEMBER icon)
  Q_PROPERTY(QString title MEMBER title)
  Q_PROPERTY(QString detail MEMBER detail)
  Q_PROPERTY(QString actionTitle MEMBER actionTitle)

 public:
  /// With a loader on top.
  [[nodiscard]] static Placeholder busy(const QString& title, const QString& detail) {
    return {true, true, {}, title, detail, {}};
  }
  [[nodiscard]] static Placeholder idle(const QString& icon, const QString& title,
                                        const QString& detail, const QString& actionTitle = {}) {
    return {true, false, icon, title, detail, actionTitle};
  }

  bool isShown = false;
  bool isBusy = false;
  QString icon;
  QString title;
  QString detail;
  QString actionTitle;  ///< empty where there is no button

  bool operator==(const Placeholder&) const = default;
};

/// A list as its keys know it.
struct ListPlace {
  int row = -1;  ///< the current one; -1: none
  int rowCount = 0;
  int rowsInSight = 0;
};

/// The row that `key` (a `Qt::Key`) leads to, for those that move by more than one row. Absent for
/// other keys, and in a list without rows. Any thread.
[[nodiscard]] std::optional<int> rowReachedBy(int key, const ListPlace& place);

/// A removal's progress on its way through QML, and whether there is one at all.
struct RemovalProgress {
  Q_GADGET
  QML_VALUE_TYPE(removalProgress)
  Q_PROPERTY(bool present READ present)

 public:
  RemovalProgress() = default;
  // NOLINTNEXTLINE(google-explicit-constructor): a model hands its optional over as it is
  RemovalProgress(std::optional<DeletionProgress> value) : progress(std::move(value)) {}

  [[nodiscard]] bool present() const { return progress.has_value(); }
  bool operator==(const RemovalProgress&) const = default;

  std::optional<DeletionProgress> progress;
};

/// What the head of a pane shows.
struct ToolPaneState {
  Q_GADGET
  QML_VALUE_TYPE(toolPaneState)
  Q_PROPERTY(bool showsButton MEMBER showsButton)
  Q_PROPERTY(QString buttonLabel MEMBER buttonLabel)
  Q_PROPERTY(bool showsBar MEMBER showsBar)

 public:
  bool showsButton = false;
  QString buttonLabel;
  bool showsBar = false;

  bool operator==(const ToolPaneState&) const = default;
};

[[nodiscard]] ToolPaneState toolPaneState(const QString& actionTitle, bool hasAction, bool isBusy,
                                          bool rowsShowLoader);

/// How much of a removal is done, 0 to 1.
[[nodiscard]] double removalFraction(const DeletionProgress& progress);
/// What a removal dealt with last.
[[nodiscard]] QString removalName(const DeletionProgress& progress);

struct ToolFooterInput {
  QString selectionSummary;
  QString explanation;
  QString buttonTitle;
  bool isEnabled = false;
  bool isBusy = false;
  std::optional<DeletionProgress> progress;
  bool canStop = false;
};

/// What the foot of a pane shows.
struct ToolFooterState {
  Q_GADGET
  QML_VALUE_TYPE(toolFooterState)
  Q_PROPERTY(bool showsProgress MEMBER showsProgress)
  Q_PROPERTY(QString firstLine MEMBER firstLine)
  Q_PROPERTY(double fraction MEMBER fraction)
  Q_PROPERTY(QString lastLine MEMBER lastLine)
  Q_PROPERTY(bool showsStop MEMBER showsStop)
  Q_PROPERTY(QString buttonLabel MEMBER buttonLabel)
  Q_PROPERTY(bool buttonEnabled MEMBER buttonEnabled)

 public:
  bool showsProgress = false;
  QString firstLine;
  double fraction = 0;  ///< 0 to 1
  QString lastLine;
  bool showsStop = false;
  QString buttonLabel;
  bool buttonEnabled = false;

  bool operator==(const ToolFooterState&) const = default;
};

[[nodiscard]] ToolFooterState toolFooterState(const ToolFooterInput& input,
                                              const Formatting& formatting);

/// `progress` below 0 is absent.
[[nodiscard]] PlaceholderTop::Value placeholderTop(double progress, bool isBusy);

}  // namespace klarvik
