#include "tools/leftover_finder.h"

#include <algorithm>
#include <set>
#include <span>

#include "base/bytes.h"
#include "base/paths.h"
#include "base/text.h"
#include "core/catalogue.h"
#include "core/removal_check.h"
#include "engine/place_matches.h"
#include "engine/sizes.h"
#include "places/disk_layout.h"
#include "places/path_pattern.h"
#include "platform/file_system.h"
#include "tools/installed_applications.h"
#include "tools/system_packages.h"

namespace klarvik {
namespace {

/// What a leftover takes of the disk; nothing where it holds something that nobody may remove.
std::optional<std::int64_t> sizeOf(const FileSystem& files, const DiskLayout& layout,
                                   const Path& path) {
  bool holdsKeys = false;
  files.walk(path, wholeWalk(files), [&](WalkEntry& entry) {
    holdsKeys = nameMatchesAny(layout.guard.secretNames, lowercased(entry.name()));
    return holdsKeys ? WalkStep::stop : WalkStep::proceed;
  });
  if (holdsKeys) return std::nullopt;
  return wholeAllocatedSize(files, path);
}

class Search {
 public:
  Search(const Platform& platform, const AppInfo& app, const std::vector<AppInfo>& installed)
      : _files(platform.files),
        _layout(layoutFor(platform.files.home())),
        _catalogue(_layout, platform.files.folders()),
        _app(app),
        _identifiers(ownIdentifiers(platform, app, installed)) {}

  std::vector<ResidualFile> run() {
    if (_identifiers.empty()) return {};
    for (const LeftoverFolder& folder : _layout.applications.desktop->leftovers) {
      if (!mayHold(folder.category)) continue;
      for (const PlaceMatch& place :
           matchesBelow(_files, {{.path = start(folder.folder.base)}}, folder.folder.pattern)) {
        for (const Path& entry : _files.list(place.path).value_or(std::vector<Path>{})) {
          add(entry, folder.category);
        }
      }
    }
    for (const KnownLeftover& known : _layout.applications.desktop->knownLeftovers) {
      const bool isOwn = std::ranges::find(_identifiers, known.identifier) != _identifiers.end();
      if (!isOwn || !mayHold(known.category)) continue;
      for (const PlaceMatch& place :
           matchesBelow(_files, {{.path = start(known.place.base)}}, known.place.pattern)) {
        add(place.path, known.category);
      }
    }
    std::ranges::stable_sort(_found, std::ranges::greater{}, &ResidualFile::size);
    return std::move(_found);
  }

 private:
  /// What runs in a sandbox writes into folders of its own; what else bears its name is another's.
  [[nodiscard]] bool mayHold(ResidualCategory category) const {
    const bool isSandboxed = _app.kind == AppKind::flatpak || _app.kind == AppKind::snap;
    return !isSandboxed || category == ResidualCategory::containers ||
           category == ResidualCategory::other;
  }

  [[nodiscard]] Path start(Base base) const {
    const std::string_view below = _catalogue.folder(base).value_or("");
    return below.empty() ? _files.home() : _files.home() / below;
  }

  void add(const Path& path, ResidualCategory category) {
    if (!_seen.insert(path).second || isPartOfTheApp(path)) return;
    const auto scope = DeletionScope::residual(_identifiers);
    if (!mayRemove(_files, path, scope) || isElsewhere(_files, path)) return;
    const auto real = _files.realPath(path);
    if (!real || (*real != path && !mayRemoveReal(_files, *real, scope))) return;
    const auto attributes = _files.attributes(path);
    const bool isThing = attributes && (attributes->kind == FileKind::directory ||
                                        attributes->kind == FileKind::regular);
    if (!isThing) return;
    const auto size = sizeOf(_files, _layout, path);
    if (!size || *size < 1) return;
    const bool goesWithIt = _app.kind == AppKind::flatpak || _app.kind == AppKind::snap ||
                            _app.kind == AppKind::appImage;
    _found.push_back({.url = path,
                      .size = *size,
                      .category = category,
                      .identity = entryIdentity(*attributes),
                      .isPreselected = goesWithIt && _app.keptBecause.empty()});
  }

  [[nodiscard]] bool isPartOfTheApp(const Path& path) const {
    const auto touches = [&](const Path& part) {
      return part == path || isBelow(part.native(), path.native()) ||
             isBelow(path.native(), part.native());
    };
    return touches(_app.appURL) ||
           std::ranges::any_of(_app.parts, [&](const AppPart& part) { return touches(part.path); });
  }

  const FileSystem& _files;
  const DiskLayout& _layout;
  const Catalogue _catalogue;
  const AppInfo& _app;
  const std::vector<std::string> _identifiers;
  std::set<Path> _seen;
  std::vector<ResidualFile> _found;
};

}  // namespace

namespace {

/// Whether a place is known to be of both.
bool shareAPlace(std::span<const KnownLeftover> known, const std::string& one,
                 const std::string& other) {
  return std::ranges::any_of(known, [&](const KnownLeftover& each) {
    return each.identifier == one && std::ranges::any_of(known, [&](const KnownLeftover& second) {
             return second.identifier == other && second.place.base == each.place.base &&
                    second.place.pattern == each.place.pattern;
           });
  });
}

}  // namespace

std::vector<std::string> ownIdentifiers(const Platform& platform, const AppInfo& app,
                                        const std::vector<AppInfo>& installed) {
  const auto known = layoutFor(platform.files.home()).applications.desktop->knownLeftovers;
  std::vector<std::string> own = app.identifiers;
  for (const AppInfo& other : installed) {
    if (isSameApplication(other, app)) continue;
    std::erase_if(own, [&](const std::string& identifier) {
      return std::ranges::any_of(other.identifiers, [&](const std::string& each) {
        return each == identifier || shareAPlace(known, identifier, each);
      });
    });
  }
  // Programs of the terminal are packages too.
  const auto packages = installedPackageNames(platform);
  if (!packages) return {};
  std::erase_if(own, [&](const std::string& identifier) {
    const bool isOwn = app.kind == AppKind::systemPackage && app.package == identifier;
    return !isOwn && packages->contains(identifier);
  });
  return own;
}

std::vector<ResidualFile> findLeftovers(const Platform& platform, const AppInfo& app,
                                        const std::vector<AppInfo>& installed) {
  return Search(platform, app, installed).run();
}

}  // namespace klarvik
