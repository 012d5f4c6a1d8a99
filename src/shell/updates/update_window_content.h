#pragma once

#include <string>

#include "platform/updater.h"

namespace klarvik {

class Formatting;

/// What stands in the updater's window: its words, its bar and its buttons.
struct UpdateWindowContent {
  static constexpr double noBar = -2;
  static constexpr double barWithoutEnd = -1;

  std::string title;
  std::string detail;
  std::string notes = {};
  std::string notesLink = {};
  double progress = noBar;   ///< 0 to 1, or one of the above
  std::string primary = {};  ///< empty: no such button
  std::string secondary = {};
  bool operator==(const UpdateWindowContent&) const = default;
};

/// For every stage but `Hidden`, of which there is nothing to say. `running` is the version that
/// runs here.
[[nodiscard]] UpdateWindowContent updateWindowContent(const UpdateStage& stage,
                                                      const std::string& running,
                                                      const Formatting& formatting);

}  // namespace klarvik
