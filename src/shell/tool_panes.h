#pragma once

#include <QUrl>
#include <memory>
#include <vector>

#include "panes/tool_pane.h"
#include "platform/platform.h"
#include "state/app_state.h"
#include "state/section.h"
#include "state/shared_state.h"

namespace klarvik {

/// A section whose pane exists: the QML file that draws it, and the model it is handed as `model`.
struct PaneEntry {
  Section section = Section::smartScan;
  QUrl view;
  std::shared_ptr<ToolPane> model;
};

/// The pane of every tool, in the order of the sidebar. Main thread only; everything handed in must
/// outlive them.
[[nodiscard]] std::vector<PaneEntry> makePanes(AppState& appState, SharedState& shared,
                                               const Desktop& desktop);

}  // namespace klarvik
