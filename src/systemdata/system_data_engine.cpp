#include "systemdata/system_data_engine.h"

#include <iterator>
#include <utility>

#include "engine/allocated_size.h"
#include "platform/volume.h"
#include "systemdata/overlaps.h"
#include "systemdata/pass_table.h"
#include "systemdata/system_data_search.h"

namespace klarvik {

SystemDataResult SystemDataEngine::analyse(const ProgressSink& progress) {
  const std::scoped_lock serial(_analysing);
  const SystemDataSearch search(_platform);
  std::vector<SystemDataItem> items;
  for (const Pass& pass : passTable()) {
    progress(std::string(pass.label), pass.fraction);
    auto found = search.find(pass);
    items.insert(items.end(), std::make_move_iterator(found.begin()),
                 std::make_move_iterator(found.end()));
  }
  progress("Analysis complete", 1.0);
  return SystemDataResult(withoutOverlaps(std::move(items)));
}

std::int64_t SystemDataEngine::measure(const Path& url) const {
  return wholeAllocatedSize(_platform.files, url);
}

std::int64_t SystemDataEngine::freeBytes() const {
  return _platform.volume.availableBytes().value_or(0);
}

std::vector<SystemDataItem> SystemDataEngine::listChildren(const Path& url,
                                                           SystemDataSubCategory kind,
                                                           std::int64_t minimumSize) const {
  return SystemDataSearch(_platform).children(url, kind, minimumSize);
}

}  // namespace klarvik
