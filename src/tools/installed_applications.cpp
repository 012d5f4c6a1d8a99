#include "tools/installed_applications.h"

#include <algorithm>
#include <array>
#include <functional>
#include <map>
#include <optional>
#include <set>
#include <span>
#include <utility>

#include "base/bytes.h"
#include "base/paths.h"
#include "base/text.h"
#include "core/catalogue.h"
#include "engine/sizes.h"
#include "places/disk_layout.h"
#include "places/path_pattern.h"
#include "places/words.h"
#include "platform/desktop_entry.h"
#include "platform/file_system.h"
#include "tools/system_packages.h"

namespace klarvik {
namespace {

// Real entries take up to some 100 KB, and a machine has some hundreds of them.
constexpr std::size_t longestEntry = 1024UL * 1024;
constexpr std::size_t mostEntries = 20'000;
constexpr std::size_t deepestEntry = 4;
constexpr int mostLinks = 8;
constexpr std::size_t longestName = 200;  // characters
constexpr std::string_view entryExtension = ".desktop";

/// One desktop entry as it was found.
struct FoundEntry {
  std::string id;  ///< without its extension
  Path path;
  Path real;  ///< where the file is that a link leads to
  DesktopEntry entry;
  bool isOwn = false;  ///< lies in the user's own folder
  Path flatpak{};      ///< the folder of the Flatpak that has it
};

bool isAppImageName(const Path& path) {
  return lowercased(path.extension().native()) == ".appimage";
}

/// An ELF file with the mark of an AppImage where the ELF header leaves room.
bool isAppImage(const FileSystem& files, const Path& path) {
  const auto file = files.openForReading(path);
  std::array<std::byte, 11> start{};
  const auto got = file ? file->read(start) : std::nullopt;
  const std::string_view text(reinterpret_cast<const char*>(start.data()), start.size());
  return got == start.size() &&
         text.starts_with(
             "\x7f"
             "ELF") &&
         text.substr(8, 2) == "AI" && (text[10] == 1 || text[10] == 2);
}

/// A home that is a link has two names; the rules know the one that the user goes by.
std::optional<Path> inNamedHome(const FileSystem& files, const std::optional<Path>& real) {
  const Path home = files.realHome();
  if (!real || home == files.home() || !isBelow(real->native(), home.native())) return real;
  return files.home() / real->lexically_relative(home);
}

/// What a link at the end of `path` leads to, link after link; links that go in circles lead
/// nowhere.
std::optional<Path> followed(const FileSystem& files, Path path) {
  for (int link = 0; link <= mostLinks; ++link) {
    const auto attributes = files.attributes(path);
    if (!attributes) return std::nullopt;
    if (attributes->kind != FileKind::symbolicLink) {
      return inNamedHome(files, files.realPath(path));
    }
    const auto target = files.linkTarget(path);
    const auto real = files.realPath(path);
    if (!target || !real) return std::nullopt;
    path = standardizedPath(real->parent_path() / *target);
  }
  return std::nullopt;
}

bool isVersionMark(std::string_view word) {
  return word.starts_with("x86_64") || word.starts_with("amd64") || word.starts_with("arm64") ||
         word.starts_with("aarch64") || word.starts_with("linux");
}

class Search {
 public:
  explicit Search(const Platform& platform)
      : _platform(platform),
        _files(platform.files),
        _layout(layoutFor(platform.files.home())),
        _places(*_layout.applications.desktop),
        _catalogue(_layout, platform.files.folders()) {}

  /// What is installed; of each, whether a menu of `desktops` shows it.
  std::vector<std::pair<AppInfo, bool>> run(const std::vector<std::string>& desktops) {
    findEntries();
    findOwners();
    for (const auto& [id, entries] : _byId) add(entries, desktops);
    addLooseAppImages();
    removeForeignIcons();
    return std::move(_found);
  }

  void measure(AppInfo& app) const {
    switch (app.kind) {
      case AppKind::flatpak:
      case AppKind::appImage:
      case AppKind::byHand:
        app.appSize = wholeAllocatedSize(_files, app.appURL);
        break;
      case AppKind::snap:
        for (const Path& file : snapFiles(app.package)) {
          app.appSize = addBytes(app.appSize, wholeAllocatedSize(_files, file));
        }
        break;
      case AppKind::foreign:
        if (const auto program = followed(_files, app.appURL)) {
          app.appSize = wholeAllocatedSize(_files, *program);
        }
        break;
      case AppKind::systemPackage:
      case AppKind::bundle:
        break;
    }
  }

 private:
  using Entries = std::vector<const FoundEntry*>;  // of one identifier, the one that counts first

  [[nodiscard]] Path folder(const PlacePattern& place) const {
    if (place.base == Base::root) return Path("/") / place.pattern;
    return _files.home() / _catalogue.folder(place.base).value_or("") / place.pattern;
  }

  void findEntries() {
    for (const PlacePattern& place : _places.entryFolders) {
      addEntriesBelow(folder(place), place.base != Base::root, {});
    }
    for (const PlacePattern& place : _places.flatpaks) {
      for (const Path& app : listed(folder(place) / "app")) {
        addEntriesBelow(app / "current/active/export/share/applications", false, app);
      }
    }
    // Only now do the entries stay where they are.
    for (const FoundEntry& each : _entries) _byId[each.id].push_back(&each);
  }

  [[nodiscard]] std::vector<Path> listed(const Path& place) const {
    auto children = _files.list(place).value_or(std::vector<Path>{});
    std::ranges::sort(children);
    return children;
  }

  void addEntriesBelow(const Path& start, bool isOwn, const Path& flatpak) {
    std::vector<Path> found;
    const auto visit = [&](WalkEntry& entry) {
      if (found.size() + _entries.size() >= mostEntries) return WalkStep::stop;
      const bool isFile =
          entry.kind() == FileKind::regular || entry.kind() == FileKind::symbolicLink;
      if (isFile && entry.name().ends_with(entryExtension)) found.push_back(entry.path());
      return entry.depth() < deepestEntry ? WalkStep::proceed : WalkStep::skipDescendants;
    };
    // A walk enters no link, and the folder of a Flatpak's entries lies behind two.
    if (const auto real = inNamedHome(_files, _files.realPath(start / "x"))) {
      _files.walk(real->parent_path(), {.skipHidden = true, .stayOnMount = true}, visit);
      std::ranges::sort(found);
      for (const Path& path : found) {
        std::string id = path.lexically_relative(real->parent_path()).native();
        std::ranges::replace(id, '/', '-');
        id.resize(id.size() - entryExtension.size());
        addEntry(std::move(id), path, isOwn, flatpak);
      }
    }
  }

  void addEntry(std::string id, const Path& path, bool isOwn, const Path& flatpak) {
    const auto real = followed(_files, path);
    const auto text = real ? textOfFile(_files, *real, longestEntry) : std::nullopt;
    if (!text) return;
    _entries.push_back({.id = std::move(id),
                        .path = path,
                        .real = *real,
                        .entry = readDesktopEntry(*text),
                        .isOwn = isOwn,
                        .flatpak = flatpak});
  }

  void findOwners() {
    std::set<Path> wanted;
    for (const FoundEntry& each : _entries) {
      if (each.isOwn || !each.flatpak.empty()) continue;
      wanted.insert(each.path);
      wanted.insert(each.real);
    }
    for (const FoundEntry& each : _entries) {
      if (const auto program = programOf(each.entry)) wanted.insert(*program);
    }
    _owners = packageOwners(_platform, wanted);
  }

  /// The package that `path` belongs to; null where it is of none.
  [[nodiscard]] const SystemPackage* ownerOf(const Path& path) const {
    const auto owner = _owners.find(path);
    return owner != _owners.end() ? &owner->second : nullptr;
  }

  /// The program that an entry starts, where it really lies.
  [[nodiscard]] std::optional<Path> programOf(const DesktopEntry& entry) const {
    const auto named = namedProgramOf(entry);
    return named ? followed(_files, *named) : std::nullopt;
  }

  [[nodiscard]] std::optional<Path> namedProgramOf(const DesktopEntry& entry) const {
    const std::string name = programOfCommand(wordsOfCommand(entry.command));
    if (name.empty() || name.find('\0') != std::string::npos) return std::nullopt;
    if (name.starts_with('/')) return standardizedPath(name);
    // A path that is neither whole nor a mere name counts from nowhere.
    if (name.find('/') != std::string::npos) return std::nullopt;
    for (const PlacePattern& place : _places.programs) {
      const Path path = folder(place) / name;
      if (_files.exists(path)) return path;
    }
    return std::nullopt;
  }

  /// Those of all applications but pages of the settings and what is no application at all.
  void add(const Entries& entries, const std::vector<std::string>& desktops) {
    const DesktopEntry& face = entries.front()->entry;
    if (!face.isApplication || face.isSettingsPanel) return;
    // What a user has changed in the menu is still installed by whoever installed it.
    const auto isOthers = [](const FoundEntry* each) { return !each->isOwn; };
    const auto installed = std::ranges::find_if(entries, isOthers);
    const FoundEntry& source = installed != entries.end() ? **installed : *entries.front();

    std::optional<AppInfo> app = appOf(source);
    if (!app) return;
    const bool isShown = !face.isHidden && !face.isNotDisplayed && face.isShownIn(desktops);
    for (const FoundEntry* other : entries) {
      // Of the same identifier and hidden behind this one, but there.
      auto hidden = other != &source && !other->isOwn ? appOf(*other) : std::nullopt;
      if (hidden && !isSameApplication(*hidden, *app)) keep(*std::move(hidden), false);
    }
    app->name = nameOf(face.name, source.id);
    app->icon = face.icon;
    keep(*std::move(app), isShown);
  }

  static std::string nameOf(const std::string& name, const std::string& id) {
    return std::string(firstCharacters(printable(name.empty() ? id : name), longestName));
  }

  [[nodiscard]] std::optional<AppInfo> appOf(const FoundEntry& source) const {
    std::optional<AppInfo> app = flatpakOf(source);
    if (!app) app = snapOf(source);
    if (!app && source.entry.flatpak.empty() && source.entry.snap.empty()) app = programAt(source);
    if (!app) return std::nullopt;
    app->name = nameOf(source.entry.name, source.id);
    app->bundleID = source.id;
    app->icon = source.entry.icon;
    identify(*app, source);
    return app;
  }

  [[nodiscard]] std::optional<AppInfo> flatpakOf(const FoundEntry& source) const {
    std::vector<Path> candidates;
    if (!source.flatpak.empty()) {
      candidates.push_back(source.flatpak);
    } else if (!source.entry.flatpak.empty() &&
               source.entry.flatpak.find('/') == std::string::npos) {
      for (const PlacePattern& place : _places.flatpaks) {
        candidates.push_back(folder(place) / "app" / source.entry.flatpak);
      }
    }
    for (const Path& app : candidates) {
      // "…/app/ID/ARCHITECTURE/BRANCH/COMMIT"
      const auto inside = _files.realPath(app / "current/active/x");
      if (!inside) continue;
      const Path commit = inside->parent_path();
      const std::string reference = "app/" + app.filename().native() + '/' +
                                    commit.parent_path().parent_path().filename().native() + '/' +
                                    commit.parent_path().filename().native();
      const bool isOwn = isBelow(app.native(), _files.home().native());
      return AppInfo{.appURL = app,
                     .identity = entryIdentity(_files, app),
                     .kind = AppKind::flatpak,
                     .package = reference,
                     .isForAllUsers = !isOwn};
    }
    return std::nullopt;
  }

  [[nodiscard]] std::vector<Path> snapFiles(const std::string& name) const {
    auto snaps = listed(Path(_places.snapFiles));
    std::erase_if(snaps, [&](const Path& file) {
      const std::string text = file.filename().native();
      if (!text.starts_with(name + '_') || !text.ends_with(".snap")) return true;
      std::string_view revision = text;
      revision.remove_prefix(name.size() + 1);
      revision.remove_suffix(std::string_view(".snap").size());
      if (revision.starts_with('x')) revision.remove_prefix(1);
      return revision.empty() || revision.find_first_not_of("0123456789") != std::string_view::npos;
    });
    return snaps;
  }

  [[nodiscard]] std::optional<AppInfo> snapOf(const FoundEntry& source) const {
    const std::string& name = source.entry.snap;
    if (name.empty() || name.find('/') != std::string::npos) return std::nullopt;
    const auto snaps = snapFiles(name);
    if (snaps.empty()) return std::nullopt;
    return AppInfo{.appURL = snaps.back(),
                   .identity = entryIdentity(_files, snaps.back()),
                   .kind = AppKind::snap,
                   .package = name,
                   .isForAllUsers = true};
  }

  /// What is neither a Flatpak nor a snap.
  [[nodiscard]] std::optional<AppInfo> programAt(const FoundEntry& source) const {
    const auto program = programOf(source.entry);
    if (!source.isOwn) {
      for (const Path& path : {source.path, source.real, program.value_or(source.path)}) {
        const SystemPackage* package = ownerOf(path);
        if (package != nullptr) return packagedApp(source, *package, program);
      }
    }
    if (!program) return std::nullopt;
    const bool isInHome = isBelow(program->native(), _files.home().native());
    if (isInHome && (isAppImageName(*program) || isAppImage(_files, *program))) {
      return appImageAt(*program, &source);
    }
    if (isInHome && source.isOwn) return byHandAt(*program, source);
    // An entry of the user's own for a program of others is a start of it, and no application.
    const bool isElsewhere =
        isBelow(program->native(), _places.addOns) && ownerOf(*program) == nullptr;
    if (source.isOwn && !isElsewhere) return std::nullopt;
    AppInfo app = appAt(AppKind::foreign, *program, *program);
    app.keptBecause = _layout.words.appOfNoAskedManager;
    return app;
  }

  [[nodiscard]] AppInfo appAt(AppKind kind, const Path& place, const Path& program) const {
    AppInfo app{.appURL = place, .identity = entryIdentity(_files, place), .kind = kind};
    app.program = program.filename().native();
    return app;
  }

  [[nodiscard]] AppInfo packagedApp(const FoundEntry& source, const SystemPackage& package,
                                    const std::optional<Path>& program) const {
    AppInfo app = appAt(AppKind::systemPackage, source.path, program.value_or(""));
    app.package = package.name;
    app.manager = package.manager;
    app.removedWith = removalCommand(_platform, *package.manager, package.name);
    app.appSize = package.bytes;
    app.isForAllUsers = true;
    if (package.isNeeded) {
      app.keptBecause = {_layout.words.packageIsOfSystem, {package.name}};
    }
    return app;
  }

  [[nodiscard]] AppInfo appImageAt(const Path& file, const FoundEntry* source) const {
    AppInfo app = appAt(AppKind::appImage, file, file);
    if (source != nullptr) addParts(app, *source);
    return app;
  }

  [[nodiscard]] AppInfo byHandAt(const Path& program, const FoundEntry& source) const {
    AppInfo app = appAt(AppKind::byHand, program, program);
    app.bundleID = source.id;
    const auto target = ownPlaceOf(program, source);
    if (!target) {
      app.keptBecause = {_layout.words.appHasNoFolderOfItsOwn, {printable(program.native())}};
      return app;
    }
    app.appURL = *target;
    app.identity = entryIdentity(_files, *target);
    if (_files.attributes(*target / ".git")) {
      app.keptBecause = _layout.words.appIsWorkedOn;
      return app;
    }
    addParts(app, source);
    const auto named = namedProgramOf(source.entry);
    if (named && *named != program && *named != *target) addPart(app, *named);
    return app;
  }

  /// The folder that holds the program and nothing else, or its one file, by where it lies and what
  /// it is called.
  [[nodiscard]] std::optional<Path> ownPlaceOf(const Path& program,
                                               const FoundEntry& source) const {
    const std::string below = program.lexically_relative(_files.home()).native();
    const auto pieces = splitPath(below);
    for (const PlacePattern& place : _places.byHand) {
      const PatternMatch match = _catalogue.match(pieces, place);
      if (match.relation == Relation::at) return program;
      if (match.relation != Relation::below) continue;
      const std::string name = nameWithoutVersion(pieces[match.length - 1]);
      const bool isItsOwn = name == nameWithoutVersion(program.filename().native()) ||
                            name == comparableName(source.id) ||
                            name == comparableName(source.entry.windowClass);
      if (!isItsOwn) return std::nullopt;
      Path whole = _files.home();
      for (const std::string_view piece : std::span(pieces).first(match.length)) whole /= piece;
      return whole;
    }
    return std::nullopt;
  }

  void addPart(AppInfo& app, const Path& path) const {
    const auto isSame = [&](const AppPart& part) { return part.path == path; };
    if (!_files.attributes(path) || std::ranges::any_of(app.parts, isSame)) return;
    app.parts.push_back({.path = path, .identity = entryIdentity(_files, path)});
  }

  /// Its entry and its icons, where they are the user's own.
  void addParts(AppInfo& app, const FoundEntry& source) const {
    if (!source.isOwn) return;
    addPart(app, source.path);
    const std::string& icon = source.entry.icon;
    if (icon.empty() || icon.find('/') != std::string::npos) return;
    for (const Path& size : listed(folder({Base::data, "icons/hicolor"}))) {
      for (const std::string_view extension : {".png", ".svg", ".xpm"}) {
        addPart(app, size / "apps" / (icon + std::string(extension)));
      }
    }
  }

  void identify(AppInfo& app, const FoundEntry& source) const {
    const auto add = [&](std::string_view text) {
      std::string lower = comparableName(text);
      const bool isKnown =
          std::ranges::find(_places.knownLeftovers, lower, &KnownLeftover::identifier) !=
          _places.knownLeftovers.end();
      const bool isCommon =
          std::ranges::find(_places.commonWords, lower) != _places.commonWords.end();
      if (lower.empty() || (isCommon && !isKnown)) return;
      if (std::ranges::find(app.identifiers, lower) == app.identifiers.end()) {
        app.identifiers.push_back(std::move(lower));
      }
    };
    if (app.kind == AppKind::flatpak) {
      add(app.appURL.filename().native());
      return;
    }
    add(app.package);
    if (app.kind == AppKind::snap) return;
    constexpr std::size_t shortestLastPart = 6;
    add(source.id);
    const auto dot = source.id.rfind('.');
    if (dot != std::string::npos && characterCount(source.id.substr(dot + 1)) >= shortestLastPart) {
      add(std::string_view(source.id).substr(dot + 1));
    }
    add(source.entry.windowClass);
    if (app.kind == AppKind::appImage) {
      add(nameWithoutVersion(app.program));
    } else {
      add(app.program);
    }
  }

  /// Several entries of one application are one; the first that a menu shows is its face.
  void keep(AppInfo app, bool isShown) {
    const auto same = std::ranges::find_if(
        _found, [&](const auto& each) { return isSameApplication(each.first, app); });
    if (same == _found.end()) {
      _found.emplace_back(std::move(app), isShown);
      return;
    }
    const bool isBetterFace =
        isShown && (!same->second || comparableName(app.bundleID) == comparableName(app.package));
    if (isBetterFace) std::swap(same->first, app);
    same->second = same->second || isShown;
    for (std::string& each : app.identifiers) {
      auto& identifiers = same->first.identifiers;
      if (std::ranges::find(identifiers, each) == identifiers.end()) {
        identifiers.push_back(std::move(each));
      }
    }
    for (const AppPart& part : app.parts) addPart(same->first, part.path);
  }

  void addLooseAppImages() {
    for (const PlacePattern& place : _places.appImages) {
      for (const Path& path : listed(folder(place))) {
        const auto attributes = _files.attributes(path);
        const bool isFile = attributes && attributes->kind == FileKind::regular;
        if (!isFile || path.filename().native().starts_with('.')) continue;
        const bool isKnown = std::ranges::any_of(
            _found, [&](const auto& each) { return each.first.appURL == path; });
        if (isKnown || !isAppImage(_files, path)) continue;
        AppInfo app = appImageAt(path, nullptr);
        app.name = std::string(firstCharacters(
            printable((isAppImageName(path) ? path.stem() : path.filename()).native()),
            longestName));
        app.bundleID = app.name;
        FoundEntry source;
        source.id = nameWithoutVersion(path.filename().native());
        identify(app, source);
        keep(std::move(app), /*isShown=*/true);
      }
    }
  }

  /// An icon that another application shows as well stays.
  void removeForeignIcons() {
    for (auto& found : _found) {
      std::erase_if(found.first.parts, [&](const AppPart& part) {
        return part.path.extension() != entryExtension &&
               std::ranges::any_of(_found, [&](const auto& other) {
                 return &other != &found && other.first.icon == part.path.stem();
               });
      });
    }
  }

  const Platform& _platform;
  const FileSystem& _files;
  const DiskLayout& _layout;
  const DesktopApplications& _places;
  const Catalogue _catalogue;
  std::vector<FoundEntry> _entries;
  std::map<std::string, Entries> _byId;
  PackageOwners _owners;
  std::vector<std::pair<AppInfo, bool>> _found;
};

}  // namespace

std::vector<AppInfo> InstalledApplications::listed(const std::vector<std::string>& desktops) const {
  Search search(_platform);
  std::vector<AppInfo> apps;
  for (auto& [app, isShown] : search.run(desktops)) {
    if (!isShown) continue;
    search.measure(app);
    apps.push_back(std::move(app));
  }
  std::ranges::stable_sort(apps, {}, &AppInfo::name);
  return apps;
}

std::vector<AppInfo> InstalledApplications::all() const {
  std::vector<AppInfo> apps;
  for (auto& [app, isShown] : Search(_platform).run({})) apps.push_back(std::move(app));
  return apps;
}

bool isSameApplication(const AppInfo& one, const AppInfo& other) {
  if (one.kind != other.kind) return false;
  switch (one.kind) {
    case AppKind::snap:
      return one.package == other.package;
    case AppKind::systemPackage:
      return one.package == other.package && one.manager == other.manager;
    case AppKind::bundle:
    case AppKind::appImage:
    case AppKind::byHand:
    case AppKind::flatpak:
    case AppKind::foreign:
      return one.appURL == other.appURL;
  }
  return false;
}

std::string nameWithoutVersion(std::string_view name) {
  std::string lower = comparableName(name);
  constexpr std::string_view extension = ".appimage";
  if (lower.ends_with(extension)) lower.resize(lower.size() - extension.size());
  for (std::size_t at = 1; at + 1 < lower.size(); ++at) {
    const bool isSeparator = lower[at] == '-' || lower[at] == '_' || lower[at] == ' ';
    if (!isSeparator) continue;
    std::string_view word = std::string_view(lower).substr(at + 1);
    if (isVersionMark(word)) return lower.substr(0, at);
    if (word.size() > 1 && word.front() == 'v') word.remove_prefix(1);
    if (word.front() >= '0' && word.front() <= '9') return lower.substr(0, at);
  }
  return lower;
}

}  // namespace klarvik
