#include "shell/disk_block.h"

#include "platform/volume.h"
#include "shell/disk_texts.h"

namespace klarvik {

DiskBlock::DiskBlock(const DiskMonitor& monitor, const Platform& platform, QObject* parent)
    : QObject(parent), _monitor(monitor), _platform(platform) {
  connect(&monitor, &DiskMonitor::statsChanged, this, &DiskBlock::changed);
}

QString DiskBlock::volumeName() const {
  const auto name = _platform.volume.name();
  return name ? QString::fromStdString(printable(*name)) : QStringLiteral("Macintosh HD");
}

QString DiskBlock::percentFull() const {
  return QString::fromStdString(sidebar::percentFull(_monitor.stats()));
}

double DiskBlock::usedFraction() const {
  return sidebar::usedFraction(_monitor.stats());
}

bool DiskBlock::isNearlyFull() const {
  return sidebar::isNearlyFull(_monitor.stats());
}

QString DiskBlock::freeLine() const {
  return QString::fromStdString(sidebar::freeLine(_monitor.stats(), _platform.formatting));
}

}  // namespace klarvik
