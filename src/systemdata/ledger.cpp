#include "systemdata/ledger.h"

#include <algorithm>
#include <map>
#include <set>
#include <utility>

#include "base/bytes.h"
#include "base/message.h"
#include "base/paths.h"
#include "core/catalogue.h"
#include "core/disk_stats.h"
#include "engine/volume_census.h"
#include "places/disk_layout.h"
#include "places/words.h"
#include "platform/file_system.h"
#include "platform/running_programs.h"
#include "platform/volume.h"
#include "systemdata/system_data_item.h"
#include "systemdata/system_data_search.h"

namespace klarvik {
namespace {

using Items = std::vector<SystemDataItem>;
using Kind = SystemDataSubCategory;

/// The walk is all of the work but for a moment at its end.
constexpr double fractionOfWalk = 0.98;

std::string patternOf(const LedgerPlace& place, const Path& home, const Catalogue& catalogue) {
  if (place.base == Base::root) return std::string(place.pattern);
  return (home / catalogue.folder(place.base).value_or("") / place.pattern).native();
}

/// What stands where a name has its "*": for a pattern with one, the name that it first stands for.
std::string_view starOf(std::string_view pattern, std::string_view path, LedgerUnit unit) {
  const std::vector<std::string_view> names = splitPath(path);
  if (names.empty()) return path;
  if (unit != LedgerUnit::whole) return names.back();
  const std::vector<std::string_view> parts = splitPath(pattern);
  for (std::size_t at = 0; at < parts.size() && at < names.size(); ++at) {
    if (parts[at].find('*') != std::string_view::npos) return names[at];
  }
  return names.back();
}

/// Empty for an application, which is called after its folder.
Message nameOf(const LedgerPlace& place, std::string_view star) {
  return place.name.empty() ? Message() : Message(place.name, {std::string(star)});
}

class LedgerMaker {
 public:
  LedgerMaker(const Platform& platform, const SystemDataEngine::ProgressSink& progress,
              const std::stop_token& stop)
      : _platform(platform),
        _layout(layoutFor(platform.files.home())),
        _search(platform),
        _home(platform.files.home()),
        _realHome(platform.files.realHome()),
        _progress(progress),
        _stop(stop) {
    const Catalogue catalogue(_layout, platform.files.folders());
    for (const LedgerPlace& place : _layout.ledger) {
      _places.push_back({.pattern = patternOf(place, _realHome, catalogue),
                         .unit = place.unit,
                         .above = place.above});
    }
  }

  SystemDataResult make() {
    tell(Kind::yourFiles, 0);
    addMeasured();
    addDeletedOpen();
    std::ranges::stable_sort(_items, std::ranges::greater{}, &SystemDataItem::size);
    const std::int64_t sum = sumOfItems();
    const DiskStats disk = readDiskStats(_platform.volume, _layout);
    addVolumeRow(Kind::reserved, _platform.volume.keptForRootBytes().value_or(0));
    addVolumeRow(Kind::notReadable, disk.usedBytes - sum);
    _progress(QT_TRANSLATE_NOOP("Engine", "Analysis complete"), 1.0);
    SystemDataResult result(std::move(_items));
    result.ledger = LedgerSum{.usedBytes = disk.usedBytes,
                              .exceedsBy = std::max<std::int64_t>(sum - disk.usedBytes, 0)};
    return result;
  }

 private:
  void tell(Kind kind, double fraction) const {
    const auto place = static_cast<std::size_t>(kind);
    _progress(std::string(_layout.systemData[place].scanning), fraction);
  }

  void addMeasured() {
    const auto used = static_cast<double>(
        std::max<std::int64_t>(readDiskStats(_platform.volume, _layout).usedBytes, 1));
    const Census census =
        takeCensus(_platform.files, _places, _stop, [&](std::size_t place, std::int64_t bytes) {
          const double fraction = std::min(static_cast<double>(bytes) / used, 1.0);
          tell(_layout.ledger[place].kind, fraction * fractionOfWalk);
        });
    for (const CensusRow& row : census.rows) {
      if (row.bytes > 0) add(row);
    }
    foldTinyKinds();
    for (auto& [kind, rest] : _smaller) {
      const Words& words = _layout.words;
      Message name = rest.count > 1
                         ? Message::counted(words.countedSmallerItems, static_cast<int>(rest.count))
                         : Message(words.smallerItems);
      _items.push_back({.name = name.english(),
                        .size = rest.bytes,
                        .subCategory = kind,
                        .safetyOverride = ItemSafety::protected_,
                        .sentence = words.eachTakesLittle,
                        .nameText = std::move(name)});
    }
  }

  /// A kind of which hardly anything was found is not worth a row either.
  void foldTinyKinds() {
    constexpr std::int64_t tiny = 1'000'000;
    std::set<Kind> shown;
    for (const SystemDataItem& item : _items) shown.insert(item.subCategory);
    Smaller folded;
    std::erase_if(_smaller, [&](const auto& entry) {
      const auto& [kind, rest] = entry;
      if (rest.bytes >= tiny || shown.contains(kind)) return false;
      folded.add(rest);
      return true;
    });
    if (folded.count > 0) _smaller[Kind::elsewhere].add(folded);
  }

  void add(const CensusRow& row) {
    const LedgerPlace& place = _layout.ledger[row.place];
    if (row.path.empty() || row.bytes < place.above) {
      _smaller[place.kind].add({.bytes = row.bytes, .count = 1});
      return;
    }
    const std::string_view star = starOf(_places[row.place].pattern, row.path.native(), place.unit);
    Message nameText = nameOf(place, star);
    SystemDataItem item{.name = nameText.empty() ? friendlyName(star) : nameText.english(),
                        .path = asNamed(row.path),
                        .size = row.bytes,
                        .subCategory = place.kind,
                        .safetyOverride = ItemSafety::protected_,
                        .identity = row.identity,
                        .sentence = place.sentence,
                        .nameText = std::move(nameText)};
    // Of what counts in several rows only a part would be shown, and all of it would go.
    if (place.mayBeOffered && row.identity && !row.isPartly) {
      item.safetyOverride = _search.verdict(item.path).value_or(ItemSafety::protected_);
    }
    _items.push_back(std::move(item));
  }

  void addDeletedOpen() {
    std::map<std::string, std::int64_t> programs;
    for (const DeletedOpenFile& file :
         _platform.programs.deletedOpenFiles(_platform.files.diskPath(_home))) {
      std::int64_t& bytes = programs[file.program];
      bytes = addBytes(bytes, file.bytes);
    }
    for (const auto& [program, bytes] : programs) {
      if (bytes < 1) continue;
      _items.push_back({.name = program,
                        .size = bytes,
                        .subCategory = Kind::deletedOpen,
                        .safetyOverride = ItemSafety::protected_,
                        .sentence = _layout.words.hasDeletedFilesOpen});
    }
  }

  [[nodiscard]] std::int64_t sumOfItems() const {
    std::int64_t sum = 0;
    for (const SystemDataItem& item : _items) sum = addBytes(sum, item.size);
    return sum;
  }

  /// What is known of the volume as a whole, and of no place in it.
  void addVolumeRow(Kind kind, std::int64_t bytes) {
    if (bytes < 1) return;
    const SystemDataWords& words = _layout.systemData[static_cast<std::size_t>(kind)];
    _items.push_back({.name = std::string(words.label),
                      .size = bytes,
                      .subCategory = kind,
                      .safetyOverride = ItemSafety::protected_,
                      .sentence = words.description,
                      .nameText = words.label});
  }

  /// By the name of the home that the user knows.
  [[nodiscard]] Path asNamed(const Path& path) const {
    if (_home == _realHome) return path;
    if (path == _realHome) return _home;
    return isBelow(path.native(), _realHome.native()) ? _home / path.lexically_relative(_realHome)
                                                      : path;
  }

  struct Smaller {
    std::int64_t bytes = 0;
    std::size_t count = 0;

    void add(const Smaller& more) {
      bytes = addBytes(bytes, more.bytes);
      count += more.count;
    }
  };

  const Platform& _platform;
  const DiskLayout& _layout;
  const SystemDataSearch _search;
  const Path _home;
  const Path _realHome;
  const SystemDataEngine::ProgressSink& _progress;
  const std::stop_token& _stop;
  std::vector<CensusPlace> _places;
  Items _items;
  std::map<Kind, Smaller> _smaller;
};

}  // namespace

SystemDataResult makeLedger(const Platform& platform,
                            const SystemDataEngine::ProgressSink& progress,
                            const std::stop_token& stop) {
  return LedgerMaker(platform, progress, stop).make();
}

}  // namespace klarvik
