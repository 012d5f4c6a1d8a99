#include "support/recording_workspace.h"

namespace klarvik {

bool RecordingWorkspace::openUrl(const std::string& url) {
  openedUrls.push_back(url);
  return canOpen;
}

bool RecordingWorkspace::openFolder(const Path& folder) {
  openedFolders.push_back(folder);
  return canOpen;
}

void RecordingWorkspace::reveal(const Path& item) {
  revealedItems.push_back(item);
}

void RecordingWorkspace::relaunch() {
  ++relaunches;
}

}  // namespace klarvik
