#pragma once

#include <QtQml/qqmlregistration.h>
#include <QList>
#include <QString>
#include <cstdint>
#include <string>
#include <vector>

#include "core/uuid.h"
#include "panes/kit/donut.h"
#include "state/scan_history.h"
#include "tools/disk_composition.h"

namespace klarvik {

class Formatting;

/// How much more one category of junk takes than in the first scan on record. Sizes in bytes.
struct Growth {
  Uuid id = Uuid::random();
  std::string name;  ///< the category's key in the history
  std::int64_t delta = 0;
  std::int64_t current = 0;
};

/// What has grown from the oldest of `scans`, which is its last, to the newest, which is its first:
/// at most five rows, the largest growth first. What has shrunk or gone is not among them.
[[nodiscard]] std::vector<Growth> fastestGrowing(const std::vector<ScanHistoryEntry>& scans);

/// One share of the disk: a slice of the chart, and the row that explains it.
struct StorageLegendRow {
  Q_GADGET
  QML_VALUE_TYPE(storageLegendRow)
  Q_PROPERTY(klarvik::DonutSlice slice MEMBER slice)
  Q_PROPERTY(double share MEMBER share)
  Q_PROPERTY(QString size MEMBER size)
  Q_PROPERTY(bool canOpen MEMBER canOpen)

 public:
  DonutSlice slice;
  double share = 0;  ///< of what the chart shows, 0 to 1
  QString size;
  bool canOpen = false;  ///< whether the folders in it can be looked into

  bool operator==(const StorageLegendRow&) const = default;
};

struct GrowthRow {
  Q_GADGET
  QML_VALUE_TYPE(growthRow)
  Q_PROPERTY(QString name MEMBER name)
  Q_PROPERTY(QString figure MEMBER figure)

 public:
  QString name;
  QString figure;

  bool operator==(const GrowthRow&) const = default;
};

/// What one clean reclaimed.
struct CleanBar {
  Q_GADGET
  QML_VALUE_TYPE(cleanBar)
  Q_PROPERTY(double height MEMBER height)
  Q_PROPERTY(QString size MEMBER size)
  Q_PROPERTY(QString date MEMBER date)
  Q_PROPERTY(QString description MEMBER description)

 public:
  double height = 0;  ///< 0 to 1, of the highest
  QString size;
  QString date;  ///< without the year
  QString description;

  bool operator==(const CleanBar&) const = default;
};

/// In the order of `buckets`.
[[nodiscard]] QList<StorageLegendRow> legendRows(
    const std::vector<DiskComposition::Bucket>& buckets, const Formatting& formatting);
[[nodiscard]] QList<GrowthRow> growthRows(const std::vector<Growth>& grown,
                                          const Formatting& formatting);
/// At most thirty, from the oldest to the newest; none of fewer than two cleans.
[[nodiscard]] QList<CleanBar> cleanBars(const std::vector<ScanHistoryEntry>& cleans,
                                        const Formatting& formatting);

}  // namespace klarvik
