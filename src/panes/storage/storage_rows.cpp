#include "panes/storage/storage_rows.h"

#include <algorithm>
#include <limits>

#include "base/bytes.h"
#include "panes/kit/palette.h"
#include "panes/kit/row_text.h"
#include "panes/storage/storage_texts.h"
#include "translation/translation.h"

namespace klarvik {
namespace {

constexpr std::size_t mostRows = 5;

/// The history is a file that anybody can write to: a difference that 64 bits do not hold must not
/// end the program.
std::int64_t difference(std::int64_t current, std::int64_t earlier) {
  using Limits = std::numeric_limits<std::int64_t>;
  std::int64_t delta = 0;
  if (!__builtin_sub_overflow(current, earlier, &delta)) return delta;
  return current > earlier ? Limits::max() : Limits::min();
}

std::int64_t bytesOf(const ScanHistoryEntry& entry, const std::string& category) {
  const auto found = entry.categories.find(category);
  return found != entry.categories.end() ? found->second : 0;
}

}  // namespace

std::vector<Growth> fastestGrowing(const std::vector<ScanHistoryEntry>& scans) {
  if (scans.size() < 2) return {};
  const ScanHistoryEntry& latest = scans.front();
  const ScanHistoryEntry& earliest = scans.back();
  if (latest.id == earliest.id) return {};

  std::vector<Growth> grown;
  for (const auto& [name, current] : latest.categories) {
    const std::int64_t delta = difference(current, bytesOf(earliest, name));
    if (delta >= 1) grown.push_back({.name = name, .delta = delta, .current = current});
  }
  std::ranges::stable_sort(grown, std::ranges::greater{}, &Growth::delta);
  if (grown.size() > mostRows) grown.resize(mostRows);
  return grown;
}

namespace {

constexpr std::size_t mostBars = 30;

}  // namespace

QList<StorageLegendRow> legendRows(const std::vector<DiskComposition::Bucket>& buckets,
                                   const Formatting& formatting) {
  std::int64_t sum = 0;
  for (const DiskComposition::Bucket& bucket : buckets) sum = addBytes(sum, bucket.bytes);

  QList<StorageLegendRow> rows;
  for (const DiskComposition::Bucket& bucket : buckets) {
    rows.append({.slice = {.id = QString::fromStdString(bucket.id),
                           .label = translated(bucket.label),
                           .value = bucket.bytes,
                           .color = Palette::color(bucket.color)},
                 .share = static_cast<double>(bucket.bytes) / static_cast<double>(sum),
                 .size = byteText(bucket.bytes, formatting),
                 .canOpen = !bucket.places.empty()});
  }
  return rows;
}

QList<GrowthRow> growthRows(const std::vector<Growth>& grown, const Formatting& formatting) {
  QList<GrowthRow> rows;
  for (const Growth& growth : grown) {
    rows.append(
        {.name = printableText(translated(growth.name).toStdString()),
         .figure = QString::fromStdString(storage::growthFigure(growth.delta, formatting))});
  }
  return rows;
}

QList<CleanBar> cleanBars(const std::vector<ScanHistoryEntry>& cleans,
                          const Formatting& formatting) {
  if (cleans.size() < 2) return {};
  const std::size_t count = std::min(cleans.size(), mostBars);
  std::int64_t highest = 1;
  for (std::size_t at = 0; at < count; ++at) highest = std::max(highest, cleans[at].totalJunk);

  QList<CleanBar> bars;
  for (std::size_t at = count; at-- > 0;) {
    const std::int64_t reclaimed = std::max<std::int64_t>(cleans[at].totalJunk, 0);
    bars.append({.height = static_cast<double>(reclaimed) / static_cast<double>(highest),
                 .size = byteText(reclaimed, formatting),
                 .date = QString::fromStdString(formatting.dayAndMonth(cleans[at].date)),
                 .description = byteText(reclaimed, formatting) + QStringLiteral(" · ") +
                                QString::fromStdString(formatting.dateAndTime(cleans[at].date))});
  }
  return bars;
}

}  // namespace klarvik
