#pragma once

#include <QObject>
#include <QUrl>
#include <functional>

#include "state/section.h"

namespace klarvik {

/// A section whose pane exists: the QML file that draws it, and the model it is handed as `model`.
struct LandedPane {
  Section section = Section::smartScan;
  QUrl view;
  QObject* model = nullptr;  ///< lives as long as the window
  /// Once, when the window is on the screen: where a pane starts what it does by itself.
  std::function<void()> appear = {};
  /// For the end of the program: starts no further removal.
  std::function<void()> stopRemovals = {};
  /// The same, and waits for those in hand.
  std::function<void()> finishRemovals = {};
};

}  // namespace klarvik
