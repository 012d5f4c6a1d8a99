#pragma once

#include <QObject>
#include <QUrl>

#include "state/section.h"

namespace klarvik {

/// A section whose pane exists: the QML file that draws it, and the model it is handed as `model`.
struct LandedPane {
  Section section = Section::smartScan;
  QUrl view;
  QObject* model = nullptr;  ///< lives as long as the window
};

}  // namespace klarvik
