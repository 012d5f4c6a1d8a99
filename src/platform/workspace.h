#pragma once

#include <string>

#include "platform/path.h"

namespace klarvik {

/// The desktop around the program. Main thread only; nothing here waits for what it starts.
class Workspace {
 public:
  virtual ~Workspace() = default;
  /// False when the desktop has nothing to open the address with.
  virtual bool openUrl(const std::string& url) = 0;
  /// Opens a folder in the file manager.
  virtual bool openFolder(const Path& folder) = 0;
  /// Shows an item, selected, in the file manager.
  virtual void reveal(const Path& item) = 0;
  /// Starts a new instance of the program, then ends this one.
  virtual void relaunch() = 0;
};

}  // namespace klarvik
