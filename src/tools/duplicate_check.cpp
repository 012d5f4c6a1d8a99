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
        _reader(files.openForReading(path)),
        _attributes(_reader ? _reader->attributes() : std::nullopt) {}

  [[nodiscard]] bool canBeRead() const {
    return _attributes && _attributes->kind == FileKind::regular;
  }
  /// Of the very file that is being read.
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
  const std::unique_ptr<FileReader> _reader;
  const std::optional<FileAttributes> _attributes;
  const std::unique_ptr<std::byte[]> _piece =
      std::make_unique_for_overwrite<std::byte[]>(pieceBytes);
};

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

bool DuplicateCheck::mayRemove(const FileSystem& files, const Path& keeper, const Copy& copy,
                               std::string_view hash, const std::stop_token& stop) {
  Candidate staying(files, keeper);
  Candidate going(files, copy.path);
  if (keeper == copy.path || !staying.canBeRead() || !going.canBeRead()) return false;
  const auto goingIdentity = entryIdentity(going.attributes());
  if (goingIdentity != copy.identity) return false;
  if (goingIdentity && goingIdentity == entryIdentity(staying.attributes())) return false;
  if (staying.attributes().logicalBytes != going.attributes().logicalBytes) return false;
  const auto digest = commonDigest(staying, going, stop);
  return digest && hexadecimal(*digest) == hash && staying.isUnchanged() && going.isUnchanged();
}

}  // namespace klarvik
