#include "panes/duplicates/keeper_check.h"

#include <optional>
#include <string_view>
#include <unordered_set>
#include <utility>

#include "platform/file_system.h"
#include "platform/trash.h"
#include "tools/duplicate_check.h"

namespace klarvik {
namespace {

std::optional<FileIdentity> identity(const FileSystem& files, const Path& path) {
  const auto attributes = files.attributes(path);
  return attributes ? attributes->identity : std::nullopt;
}

bool isReachedThroughALink(const FileSystem& files, const Path& path) {
  for (Path folder = path.parent_path(); folder.has_relative_path();
       folder = folder.parent_path()) {
    const auto attributes = files.attributes(folder);
    if (!attributes || attributes->kind == FileKind::symbolicLink) return true;
  }
  return false;
}

/// A file with two names can also be one of its names, reached in two ways: by a folder that is a
/// link, or that is mounted twice. Then it would go with its copy.
bool mayBeOneName(const FileSystem& files, const Path& left, const Path& right) {
  const auto file = identity(files, left);
  if (!file || file != identity(files, right)) return false;
  if (isReachedThroughALink(files, left) || isReachedThroughALink(files, right)) return true;
  return left.filename() == right.filename() &&
         identity(files, left.parent_path()) == identity(files, right.parent_path());
}

/// All copies that are on their way out in one removal, and those that stay for them.
class Promise {
 public:
  explicit Promise(KeptCopies keptCopies) : _keptCopies(std::move(keptCopies)) {
    for (const auto& [copy, kept] : _keptCopies) _staying.insert(kept->url.native());
  }

  [[nodiscard]] bool lets(const FileSystem& files, const Trash& trash, const Path& copy,
                          const std::stop_token& stop) const {
    const auto found = _keptCopies.find(copy.native());
    if (found == _keptCopies.end() || _staying.contains(copy.native())) return false;
    const KeptCopy& kept = *found->second;
    return !trash.contains(kept.url) && !mayBeOneName(files, kept.url, copy) &&
           DuplicateCheck::mayRemove(files, kept.url, copy, kept.hash, stop);
  }

 private:
  const KeptCopies _keptCopies;
  std::unordered_set<std::string_view> _staying;
};

}  // namespace

ScannerEngine::PickedFileCheck keeperCheck(const FileSystem& files, const Trash& trash,
                                           KeptCopies keptCopies, std::stop_token stop) {
  const auto promise = std::make_shared<const Promise>(std::move(keptCopies));
  return [&files, &trash, promise, stop = std::move(stop)](const PickedFile& copy) {
    return promise->lets(files, trash, copy.url, stop);
  };
}

}  // namespace klarvik
