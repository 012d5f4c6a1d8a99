#include "tools/duplicate_removal_guard.h"

#include <optional>
#include <string_view>
#include <unordered_set>
#include <utility>

#include "platform/file_system.h"
#include "platform/trash.h"
#include "tools/duplicate_check.h"

namespace klarvik {
namespace {

bool areOneFile(const FileSystem& files, const Path& left, const Path& right) {
  const auto identity = entryIdentity(files, left);
  return identity && identity == entryIdentity(files, right);
}

/// All copies that are on their way out in one removal, and those that stay for them.
class DuplicateRemovalGuard {
 public:
  DuplicateRemovalGuard(KeptCopies keptCopies, LeftAlone* leftAlone)
      : _keptCopies(std::move(keptCopies)), _leftAlone(leftAlone) {
    for (const auto& [copy, kept] : _keptCopies) _staying.insert(kept->url.native());
  }

  [[nodiscard]] bool mayRemove(const FileSystem& files, const Trash& trash, const PickedFile& copy,
                               const std::stop_token& stop) const {
    const auto found = _keptCopies.find(copy.url.native());
    if (found == _keptCopies.end() || _staying.contains(copy.url.native())) return false;
    const KeptCopy& kept = *found->second;
    if (trash.contains(kept.url)) return false;
    if (DuplicateCheck::mayRemove(files, kept.url, {copy.url, copy.identity}, kept.hash, stop)) {
      return true;
    }
    if (_leftAlone && areOneFile(files, kept.url, copy.url)) ++_leftAlone->keptCopies;
    return false;
  }

 private:
  const KeptCopies _keptCopies;
  LeftAlone* const _leftAlone;
  std::unordered_set<std::string_view> _staying;
};

}  // namespace

ScannerEngine::PickedFileCheck duplicateRemovalGuard(const FileSystem& files, const Trash& trash,
                                                     KeptCopies keptCopies, std::stop_token stop,
                                                     LeftAlone* leftAlone) {
  const auto guard =
      std::make_shared<const DuplicateRemovalGuard>(std::move(keptCopies), leftAlone);
  return [&files, &trash, guard, stop = std::move(stop)](const PickedFile& copy) {
    return guard->mayRemove(files, trash, copy, stop);
  };
}

}  // namespace klarvik
