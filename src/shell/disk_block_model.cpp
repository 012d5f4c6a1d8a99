#include "shell/disk_block_model.h"

#include "panes/kit/row_text.h"
#include "places/disk_layout.h"
#include "platform/file_system.h"
#include "platform/volume.h"
#include "shell/sidebar_texts.h"

namespace klarvik {
namespace {

/// Whether another volume begins on the way from the root to the home.
bool homeHasItsOwnVolume(const FileSystem& files) {
  for (Path folder = files.home(); folder.has_relative_path(); folder = folder.parent_path()) {
    if (files.isMountPoint(folder)) return true;
  }
  return false;
}

}  // namespace

DiskBlockModel::DiskBlockModel(const DiskMonitor& monitor, const Platform& platform,
                               QObject* parent)
    : QObject(parent), _monitor(monitor), _platform(platform) {
  connect(&monitor, &DiskMonitor::statsChanged, this, &DiskBlockModel::changed);
}

QString DiskBlockModel::volumeName() const {
  const auto name = _platform.volume.name();
  if (name) return printableText(*name);
  const Words& words = layoutFor(_platform.files.home()).words;
  return programText(homeHasItsOwnVolume(_platform.files) ? words.unnamedHomeVolume
                                                          : words.unnamedVolume);
}

QString DiskBlockModel::percentFull() const {
  return QString::fromStdString(sidebar::percentFull(_monitor.stats()));
}

double DiskBlockModel::usedFraction() const {
  return sidebar::usedFraction(_monitor.stats());
}

bool DiskBlockModel::isNearlyFull() const {
  return sidebar::isNearlyFull(_monitor.stats());
}

QString DiskBlockModel::freeLine() const {
  return QString::fromStdString(sidebar::freeLine(_monitor.stats(), _platform.formatting));
}

}  // namespace klarvik
