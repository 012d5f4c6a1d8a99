#include "systemdata/system_data_engine.h"

#include <iterator>
#include <utility>

#include "base/message.h"
#include "engine/sizes.h"
#include "places/disk_layout.h"
#include "platform/file_system.h"
#include "platform/volume.h"
#include "systemdata/ledger.h"
#include "systemdata/system_data_item.h"
#include "systemdata/system_data_search.h"

namespace klarvik {
namespace {

std::string_view labelOf(const Pass& pass, std::span<const SystemDataWords> words) {
  return words.empty() ? pass.label : words[static_cast<std::size_t>(pass.kind)].scanning;
}

}  // namespace

SystemDataResult SystemDataEngine::analyse(const ProgressSink& progress,
                                           const std::stop_token& stop) {
  const std::scoped_lock serial(_analysing);
  if (!layoutFor(_platform.files.home()).ledger.empty())
    return makeLedger(_platform, progress, stop);
  const SystemDataSearch search(_platform);
  const DiskLayout& layout = layoutFor(_platform.files.home());
  std::vector<SystemDataItem> items;
  for (const Pass& pass : layout.analysisPasses) {
    progress(std::string(labelOf(pass, layout.systemData)), pass.fraction);
    auto found = search.find(pass);
    items.insert(items.end(), std::make_move_iterator(found.begin()),
                 std::make_move_iterator(found.end()));
  }
  progress(QT_TRANSLATE_NOOP("Engine", "Analysis complete"), 1.0);
  return SystemDataResult(withoutOverlaps(std::move(items)));
}

std::int64_t SystemDataEngine::measure(const Path& url) const {
  return wholeAllocatedSize(_platform.files, url);
}

std::int64_t SystemDataEngine::freeBytes() const {
  return _platform.volume.availableBytes().value_or(0);
}

}  // namespace klarvik
