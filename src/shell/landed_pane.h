#pragma once

#include <QUrl>

#include "panes/tool_pane.h"
#include "state/section.h"

namespace klarvik {

/// A section whose pane exists: the QML file that draws it, and the model it is handed as `model`.
struct LandedPane {
  Section section = Section::smartScan;
  QUrl view;
  ToolPane* model = nullptr;  ///< lives as long as the window
};

}  // namespace klarvik
