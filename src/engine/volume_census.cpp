#include "engine/volume_census.h"

#include <algorithm>
#include <unordered_map>
#include <unordered_set>
#include <utility>

#include "base/bytes.h"
#include "base/paths.h"
#include "places/path_pattern.h"
#include "platform/file_system.h"

namespace klarvik {
namespace {

constexpr std::size_t none = static_cast<std::size_t>(-1);

/// The patterns of all places as one tree of names, the root of the disk at its top.
class PatternTree {
 public:
  using Nodes = std::vector<std::size_t>;

  explicit PatternTree(std::span<const CensusPlace> places) : _places(places), _nodes(1) {
    for (std::size_t place = 0; place < places.size(); ++place) add(place);
  }

  /// Where the patterns that have led to `nodes` lead by one more name.
  [[nodiscard]] Nodes follow(const Nodes& nodes, std::string_view name) const {
    Nodes reached;
    for (const std::size_t at : nodes) {
      for (const auto& [pattern, next] : _nodes[at].next) {
        if (nameMatches(pattern, name)) reached.push_back(next);
      }
    }
    // Exact names come first.
    std::ranges::stable_sort(reached, {}, [&](std::size_t at) { return _nodes[at].isPattern; });
    return reached;
  }

  /// The place that something at `nodes` is itself.
  [[nodiscard]] std::size_t wholeAt(const Nodes& nodes) const {
    for (const std::size_t at : nodes) {
      if (_nodes[at].whole != none) return _nodes[at].whole;
    }
    return none;
  }

  /// The place whose child is called `name` in a folder at `nodes`.
  [[nodiscard]] std::size_t childAt(const Nodes& nodes, std::string_view name) const {
    const bool isHidden = name.starts_with('.');
    for (const std::size_t at : nodes) {
      for (const std::size_t place : _nodes[at].ofChildren) {
        const LedgerUnit unit = _places[place].unit;
        const LedgerUnit other =
            isHidden ? LedgerUnit::visibleChildren : LedgerUnit::hiddenChildren;
        if (unit != other) return place;
      }
    }
    return none;
  }

 private:
  struct Node {
    std::vector<std::pair<std::string, std::size_t>> next{};
    bool isPattern = false;
    std::size_t whole = none;
    std::vector<std::size_t> ofChildren{};
  };

  void add(std::size_t place) {
    std::size_t at = 0;
    for (const std::string_view name : splitPath(_places[place].pattern)) at = nodeFor(at, name);
    if (_places[place].unit != LedgerUnit::whole) {
      _nodes[at].ofChildren.push_back(place);
    } else if (_nodes[at].whole == none) {
      _nodes[at].whole = place;
    }
  }

  std::size_t nodeFor(std::size_t above, std::string_view name) {
    for (const auto& [pattern, next] : _nodes[above].next) {
      if (pattern == name) return next;
    }
    const std::size_t made = _nodes.size();
    _nodes.push_back({.isPattern = name.find('*') != std::string_view::npos});
    _nodes[above].next.emplace_back(name, made);
    return made;
  }

  std::span<const CensusPlace> _places;
  std::vector<Node> _nodes;
};

struct FileIdentityHash {
  std::size_t operator()(const FileIdentity& file) const noexcept {
    return std::hash<std::uint64_t>{}(file.inode ^ file.device << 48U);
  }
};

struct TextHash {
  using is_transparent = void;
  std::size_t operator()(std::string_view text) const noexcept {
    return std::hash<std::string_view>{}(text);
  }
};

std::string joined(std::string_view folder, std::string_view name) {
  std::string path(folder);
  if (!path.ends_with('/')) path += '/';
  return path.append(name);
}

class CensusTaker {
 public:
  CensusTaker(const FileSystem& files, std::span<const CensusPlace> places,
              const std::stop_token& stop, const CensusProgress& progress)
      : _files(files), _places(places), _tree(places), _stop(stop), _progress(progress) {}

  Census take() {
    const VolumeTops tops = _files.volumeTops();
    _seenElsewhere = tops.seenElsewhere;
    for (const Path& top : tops.folders) {
      if (!_stop.stop_requested()) walk(top);
    }
    return std::move(_census);
  }

 private:
  /// A folder from which on other patterns or another row hold.
  struct Region {
    PatternTree::Nodes nodes{};
    std::size_t row = none;
  };
  using Regions = std::unordered_map<std::string, Region, TextHash, std::equal_to<>>;

  void walk(const Path& top) {
    _folder = top.native();
    _region = regionOfTop(top);
    _regions.clear();
    _regions.emplace(_folder, _region);
    _known.clear();
    const auto topItself = _files.attributes(top);
    if (topItself) count(_region.row, topItself->folderBytes);
    (void)_files.walk(top, {.stayOnMount = true}, [&](WalkEntry& entry) {
      if (_stop.stop_requested()) return WalkStep::stop;
      if (entry.folder() != _known) comeTo(top, entry.folder());
      return visit(entry);
    });
  }

  /// What holds in `top`, which the names above it lead to.
  Region regionOfTop(const Path& top) {
    Region region{.nodes = {0}, .row = none};
    std::string path = "/";
    region.row = rowFor(_tree.wholeAt(region.nodes), path, std::nullopt, none);
    for (const std::string_view name : splitPath(top.native())) {
      path = joined(path, name);
      region = regionOf(region, name, path, std::nullopt);
    }
    return region;
  }

  Region regionOf(const Region& above, std::string_view name, const std::string& path,
                  const std::optional<EntryIdentity>& identity) {
    Region region{.nodes = _tree.follow(above.nodes, name), .row = above.row};
    std::size_t place = _tree.wholeAt(region.nodes);
    if (place == none) place = _tree.childAt(above.nodes, name);
    if (place != none) region.row = rowFor(place, path, identity, above.row);
    return region;
  }

  std::size_t rowFor(std::size_t place, const std::string& path,
                     const std::optional<EntryIdentity>& identity, std::size_t above) {
    if (place == none) return above;
    if (above != none) _census.rows[above].isPartly = true;
    _census.rows.push_back({.place = place, .path = path, .identity = identity});
    return _census.rows.size() - 1;
  }

  void comeTo(const Path& top, std::string_view below) {
    _known.assign(below);
    _folder = below.empty() ? top.native() : joined(top.native(), below);
    std::string_view nearest = _folder;
    auto found = _regions.find(nearest);
    const bool isRegion = found != _regions.end();
    while (found == _regions.end()) {
      nearest = nearest.substr(0, std::max<std::size_t>(nearest.rfind('/'), 1));
      found = _regions.find(nearest);
    }
    _region = isRegion ? found->second : Region{.nodes = {}, .row = found->second.row};
    tellProgress();
  }

  WalkStep visit(WalkEntry& entry) {
    const auto attributes = entry.attributes();
    if (!attributes || attributes->isMountPoint) return WalkStep::proceed;
    if (attributes->kind == FileKind::directory) return visitFolder(entry, *attributes);
    const std::int64_t bytes = isAnotherName(*attributes) ? 0 : attributes->allocatedBytes;
    count(rowOfFile(entry, *attributes, bytes), bytes);
    return WalkStep::proceed;
  }

  WalkStep visitFolder(WalkEntry& entry, const FileAttributes& attributes) {
    if (_region.nodes.empty()) {
      count(_region.row, attributes.folderBytes);
      return isSeenElsewhere(entry) ? WalkStep::skipDescendants : WalkStep::proceed;
    }
    std::string path = joined(_folder, entry.name());
    Region region = regionOf(_region, entry.name(), path, entryIdentity(attributes));
    count(region.row, attributes.folderBytes);
    if (isSeenElsewhere(entry)) return WalkStep::skipDescendants;
    if (region.row != _region.row || !region.nodes.empty()) {
      _regions.emplace(std::move(path), std::move(region));
    }
    return WalkStep::proceed;
  }

  [[nodiscard]] bool isSeenElsewhere(const WalkEntry& entry) const {
    return !_seenElsewhere.empty() &&
           std::ranges::find(_seenElsewhere, Path(joined(_folder, entry.name()))) !=
               _seenElsewhere.end();
  }

  std::size_t rowOfFile(WalkEntry& entry, const FileAttributes& attributes, std::int64_t bytes) {
    if (_region.nodes.empty()) return _region.row;
    // A link is a part of what it lies in, whatever it is called.
    const bool isLink = attributes.kind == FileKind::symbolicLink;
    const std::size_t whole =
        isLink ? none : _tree.wholeAt(_tree.follow(_region.nodes, entry.name()));
    const std::string path = joined(_folder, entry.name());
    if (whole != none) return rowFor(whole, path, entryIdentity(attributes), _region.row);
    const std::size_t place = _tree.childAt(_region.nodes, entry.name());
    if (place == none) return _region.row;
    if (!isLink && bytes > _places[place].above) {
      return rowFor(place, path, entryIdentity(attributes), _region.row);
    }
    const auto [small, isNew] = _smallFiles.emplace(place, _census.rows.size());
    if (isNew) _census.rows.push_back({.place = place});
    return small->second;
  }

  bool isAnotherName(const FileAttributes& file) {
    return file.names > 1 && file.identity && !_linked.insert(*file.identity).second;
  }

  void count(std::size_t row, std::int64_t bytes) {
    _census.bytes = addBytes(_census.bytes, bytes);
    if (row == none) return;
    CensusRow& counted = _census.rows[row];
    counted.bytes = addBytes(counted.bytes, bytes);
  }

  void tellProgress() {
    constexpr std::size_t foldersBetween = 256;
    if (!_progress || _region.row == none) return;
    const std::size_t place = _census.rows[_region.row].place;
    if (place == _toldPlace && ++_untold < foldersBetween) return;
    _toldPlace = place;
    _untold = 0;
    _progress(place, _census.bytes);
  }

  const FileSystem& _files;
  const std::span<const CensusPlace> _places;
  const PatternTree _tree;
  const std::stop_token& _stop;
  const CensusProgress& _progress;

  Census _census;
  std::vector<Path> _seenElsewhere;
  Regions _regions;
  std::unordered_map<std::size_t, std::size_t> _smallFiles;  // rows by their place
  std::unordered_set<FileIdentity, FileIdentityHash> _linked;
  std::string _known;   // the folder of the last entry, as the walk tells it
  std::string _folder;  // the same as a whole path
  Region _region;       // of that folder
  std::size_t _toldPlace = none;
  std::size_t _untold = 0;
};

}  // namespace

Census takeCensus(const FileSystem& files, std::span<const CensusPlace> places,
                  const std::stop_token& stop, const CensusProgress& progress) {
  return CensusTaker(files, places, stop, progress).take();
}

}  // namespace klarvik
