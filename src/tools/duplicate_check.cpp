#include "tools/duplicate_check.h"

#include <algorithm>
#include <memory>
#include <optional>

#include "platform/file_attributes.h"
#include "platform/file_system.h"
#include "tools/content_digest.h"

namespace klarvik {

namespace {

constexpr std::size_t pieceBytes = std::size_t{256} * 1024;

/// One file, as it was when the check began.
class Candidate {
 public:
  Candidate(const FileSystem& files, const Path& path)
      : _files(files),
        _path(path),
        _attributes(files.attributes(path)),
        _reader(files.openForReading(path)) {}

  [[nodiscard]] bool canBeRead() const {
    return _reader && _attributes && _attributes->kind == FileKind::regular;
  }
  [[nodiscard]] const FileAttributes& attributes() const { return *_attributes; }

  /// The next bytes, none at the end; nothing when reading failed.
  [[nodiscard]] std::optional<std::span<const std::byte>> read() {
    const std::span piece(_piece.get(), pieceBytes);
    const auto count = _reader->read(piece);
    if (!count) return std::nullopt;
    return piece.first(*count);
  }

  [[nodiscard]] bool isUnchanged() const {
    const auto now = _files.attributes(_path);
    return now && now->kind == _attributes->kind && now->identity == _attributes->identity &&
           now->logicalBytes == _attributes->logicalBytes && now->modified == _attributes->modified;
  }

 private:
  const FileSystem& _files;
  const Path& _path;
  const std::optional<FileAttributes> _attributes;
  const std::unique_ptr<FileReader> _reader;
  const std::unique_ptr<std::byte[]> _piece =
      std::make_unique_for_overwrite<std::byte[]>(pieceBytes);
};

/// Two paths lead to one file that has no second name: removing either removes both.
bool areOneFile(const FileAttributes& left, const FileAttributes& right) {
  return left.identity && left.identity == right.identity && left.names < 2;
}

/// Of what both hold; nothing when they differ in a byte or in length, or were not read whole.
std::optional<Digest> commonDigest(Candidate& keeper, Candidate& copy,
                                   const std::stop_token& stop) {
  Sha256 sha256;
  sha256.begin();
  for (std::int64_t total = 0; !stop.stop_requested();) {
    const auto kept = keeper.read();
    const auto other = copy.read();
    if (!kept || !other || !std::ranges::equal(*kept, *other)) return std::nullopt;
    if (kept->empty()) {
      const bool isWhole = total == keeper.attributes().logicalBytes;
      return isWhole ? sha256.finish() : std::nullopt;
    }
    sha256.add(*kept);
    total += static_cast<std::int64_t>(kept->size());
  }
  return std::nullopt;
}

}  // namespace

bool DuplicateCheck::mayRemove(const FileSystem& files, const Path& keeper, const Path& copy,
                               std::string_view hash, const std::stop_token& stop) {
  Candidate staying(files, keeper);
  Candidate going(files, copy);
  if (keeper == copy || !staying.canBeRead() || !going.canBeRead()) return false;
  if (areOneFile(staying.attributes(), going.attributes())) return false;
  if (staying.attributes().logicalBytes != going.attributes().logicalBytes) return false;
  const auto digest = commonDigest(staying, going, stop);
  return digest && hexadecimal(*digest) == hash && staying.isUnchanged() && going.isUnchanged();
}

}  // namespace klarvik
