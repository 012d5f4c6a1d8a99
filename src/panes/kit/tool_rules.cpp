#include "panes/kit/tool_rules.h"

#include <QtCore/qnamespace.h>
#include <algorithm>

#include "panes/kit/row_text.h"
#include "platform/formatting.h"
#include "translation/translation.h"

namespace klarvik {
namespace {

std::optional<int> stepOf(int key, const ListPlace& place) {
  // One row stays in sight, so that the eye finds its way.
  const int page = std::max(1, place.rowsInSight - 1);
  switch (key) {
    case Qt::Key_PageUp:
      return -page;
    case Qt::Key_PageDown:
      return page;
    case Qt::Key_Home:
      return -place.rowCount;
    case Qt::Key_End:
      return place.rowCount;
    default:
      return std::nullopt;
  }
}

}  // namespace

std::optional<int> rowReachedBy(int key, const ListPlace& place) {
  const std::optional<int> step = stepOf(key, place);
  if (!step || place.rowCount == 0) return std::nullopt;
  return std::clamp(place.row + *step, 0, place.rowCount - 1);
}

namespace {

QString removalLine(const DeletionProgress& progress, const Formatting& formatting) {
  const std::int64_t current = std::min(progress.total, progress.completed + 1);
  return translate("Kit", "Removing %1 of %2 · %3 so far")
      .arg(QString::number(current), QString::number(progress.total),
           QString::fromStdString(formatting.byteText(progress.freed)));
}

}  // namespace

double removalFraction(const DeletionProgress& progress) {
  if (progress.total <= 0) return 0;
  return std::min(1.0,
                  static_cast<double>(progress.completed) / static_cast<double>(progress.total));
}

QString removalName(const DeletionProgress& progress) {
  if (progress.currentName.empty()) return translate("Kit", "Starting…");
  return printableText(progress.currentName);
}

ToolPaneState toolPaneState(const QString& actionTitle, bool hasAction, bool isBusy,
                            bool rowsShowLoader) {
  return {.showsButton = hasAction && !actionTitle.isEmpty(),
          .buttonLabel = isBusy ? translate("Kit", "Stop") : actionTitle,
          .showsBar = isBusy && !rowsShowLoader};
}

ToolFooterState toolFooterState(const ToolFooterInput& input, const Formatting& formatting) {
  ToolFooterState state;
  if (input.isBusy && input.progress) {
    state.showsProgress = true;
    state.firstLine = removalLine(*input.progress, formatting);
    state.fraction = removalFraction(*input.progress);
    state.lastLine = removalName(*input.progress);
  } else {
    state.firstLine = input.selectionSummary;
    state.lastLine = input.explanation;
  }
  state.showsStop = input.isBusy && input.canStop;
  state.buttonLabel = input.isBusy ? translate("Kit", "Working…") : input.buttonTitle;
  state.buttonEnabled = input.isEnabled && !input.isBusy;
  return state;
}

PlaceholderTop::Value placeholderTop(double progress, bool isBusy) {
  if (progress >= 0) return PlaceholderTop::Progress;
  return isBusy ? PlaceholderTop::Loader : PlaceholderTop::Icon;
}

}  // namespace klarvik
