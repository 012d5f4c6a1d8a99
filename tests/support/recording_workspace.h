#pragma once

#include <vector>

#include "platform/workspace.h"

namespace klarvik {

/// Opens nothing; remembers what it was asked for. Main thread only, like the real one.
class RecordingWorkspace final : public Workspace {
 public:
  bool openUrl(const std::string& url) override;
  bool openFolder(const Path& folder) override;
  void reveal(const Path& item) override;
  void relaunch() override;

  bool canOpen = true;  ///< what `openUrl` and `openFolder` answer
  std::vector<std::string> openedUrls;
  std::vector<Path> openedFolders;
  std::vector<Path> revealedItems;
  int relaunches = 0;
};

}  // namespace klarvik
