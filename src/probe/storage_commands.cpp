// Commands that explain where the space went.

#include <array>

#include "probe/command.h"
#include "probe/report.h"
#include "systemdata/system_data_engine.h"
#include "tools/disk_composition.h"
#include "tools/folder_sizes.h"

namespace klarvik::probe {

namespace {

constexpr double smallestShare = 0.015;

std::string_view safetyName(ItemSafety safety) {
  constexpr std::array<std::string_view, 3> names{"safe", "review", "protected"};
  return names[static_cast<std::size_t>(safety)];
}

void printStep(const std::string& label, double fraction) {
  print({{"event", "progress"}, {"label", label}, {"fraction", fraction}});
}

Report itemReport(const SystemDataItem& item) {
  return {{"name", textReport(item.name)},
          {"path", pathReport(item.path)},
          {"size", item.size},
          {"kind", rawValue(item.subCategory)},
          {"safety", safetyName(item.safety())}};
}

Report bucketReport(const DiskComposition::Bucket& bucket) {
  return {{"id", bucket.id},
          {"label", bucket.label},
          {"bytes", bucket.bytes},
          {"path", pathReport(bucket.url)}};
}

Report bucketReports(const std::vector<DiskComposition::Bucket>& buckets) {
  Report reports = Report::array();
  for (const auto& bucket : buckets) reports.push_back(bucketReport(bucket));
  return reports;
}

}  // namespace

int systemData(const Invocation& call) {
  SystemDataEngine engine(call.platform);
  SystemDataResult result = engine.analyse(printStep);
  result.freeBytesAtMeasurement = engine.freeBytes();
  Report items = Report::array();
  for (const SystemDataItem& item : result.items()) items.push_back(itemReport(item));
  Report report{{"event", "result"},
                {"items", std::move(items)},
                {"freeBytes", result.freeBytesAtMeasurement}};
  if (result.ledger) {
    report["usedBytes"] = result.ledger->usedBytes;
    report["exceedsBy"] = result.ledger->exceedsBy;
  }
  print(report);
  return 0;
}

int composition(const Invocation& call) {
  const DiskComposition disk =
      DiskCompositionEngine(call.platform).measureDisk(call.stop, printStep);
  print({{"event", "result"},
         {"buckets", bucketReports(disk.buckets)},
         {"displayBuckets", bucketReports(disk.displayBuckets(smallestShare))},
         {"usedBytes", disk.usedBytes},
         {"freeBytes", disk.freeBytes}});
  return 0;
}

int folders(const Invocation& call) {
  const std::vector<Path> starts{call.arguments.front()};
  const FolderSizes sizes = FolderSizes::measure(call.platform.files, starts, {}, call.stop);
  FolderSizes::Id start = FolderSizes::top;
  for (const FolderSizes::Row& row : sizes.rows(FolderSizes::top)) {
    if (row.folder) start = *row.folder;
  }
  Report reports = Report::array();
  for (const FolderSizes::Row& row : sizes.rows(start)) {
    reports.push_back({{"path", pathReport(row.path)},
                       {"bytes", row.bytes},
                       {"isFolder", row.folder.has_value()},
                       {"things", row.things}});
  }
  print({{"event", "result"},
         {"bytes", sizes.bytes(FolderSizes::top)},
         {"folders", sizes.folderCount()},
         {"rows", std::move(reports)}});
  return 0;
}

}  // namespace klarvik::probe
