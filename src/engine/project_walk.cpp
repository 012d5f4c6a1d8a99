#include "engine/project_walk.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string>

#include "engine/sizes.h"
#include "places/path_pattern.h"
#include "platform/file_system.h"

namespace klarvik {
namespace {

/// Whoever has one of these in a folder of build results has put work of their own there.
constexpr std::array<std::string_view, 8> documents{"*.tex", "*.docx", "*.odt", "*.xlsx",
                                                    "*.ods", "*.pptx", "*.odp", "*.pages"};

using Names = std::vector<Path>;

bool holdsOne(const Names& entries, std::span<const std::string_view> patterns) {
  return std::ranges::any_of(entries, [&](const Path& entry) {
    return nameMatchesAny(patterns, entry.filename().native());
  });
}

std::optional<Date> newest(const FileSystem& files, const Names& entries,
                           std::span<const std::string_view> patterns) {
  std::optional<Date> latest;
  for (const Path& entry : entries) {
    if (!nameMatchesAny(patterns, entry.filename().native())) continue;
    const auto attributes = files.attributes(entry);
    if (attributes && attributes->modified) {
      latest = std::max(latest.value_or(*attributes->modified), *attributes->modified);
    }
  }
  return latest;
}

/// A folder that people see is a project of its own where a project's marker lies in it.
bool holdsProject(const DiskLayout& layout, const Path& folder, const Names& inside) {
  if (folder.filename().native().starts_with('.')) return false;
  return std::ranges::any_of(layout.artifacts, [&](const ProjectArtifact& artifact) {
    return std::ranges::any_of(artifact.beside, [&](std::string_view marker) {
      return marker.find('*') == std::string_view::npos && holdsOne(inside, std::array{marker});
    });
  });
}

bool bearsMarks(const FileSystem& files, const ProjectArtifact& artifact, const Names& beside,
                const Names& inside) {
  const ProjectMarks& marks = artifact.marks;
  const bool isBuilt = holdsOne(beside, artifact.beside) &&
                       (marks.inside.empty() || holdsOne(inside, marks.inside)) &&
                       !holdsOne(beside, marks.notBeside) && !holdsOne(inside, marks.notInside);
  if (!isBuilt) return false;
  const auto written = newest(files, inside, documents);
  const auto marked = newest(files, beside, artifact.beside);
  return !written || (marked && *written <= *marked);
}

/// Judges folder after folder; those of one parent have it listed once.
class ArtifactJudge {
 public:
  ArtifactJudge(const FileSystem& files, const DiskLayout& layout)
      : _files(files), _layout(layout) {}

  const ProjectArtifact* kindOf(const Path& folder) {
    const std::string name = folder.filename().native();
    const auto isCalled = [&](const ProjectArtifact& artifact) {
      return nameMatchesAny(artifact.names, name);
    };
    if (std::ranges::none_of(_layout.artifacts, isCalled)) return nullptr;
    const auto inside = _files.list(folder);
    if (!inside) return nullptr;
    listParent(folder.parent_path());
    constexpr std::array<std::string_view, 1> repository{".git"};
    if (holdsOne(*inside, repository) || holdsProject(_layout, folder, *inside)) return nullptr;
    const auto found =
        std::ranges::find_if(_layout.artifacts, [&](const ProjectArtifact& artifact) {
          return isCalled(artifact) && bearsMarks(_files, artifact, _beside, *inside);
        });
    return found != _layout.artifacts.end() ? &*found : nullptr;
  }

 private:
  void listParent(const Path& parent) {
    if (parent == _parent) return;
    _parent = parent;
    _beside = _files.list(parent).value_or(Names{});
  }

  const FileSystem& _files;
  const DiskLayout& _layout;
  Path _parent;
  Names _beside;
};

}  // namespace

std::vector<FoundArtifact> findProjectArtifacts(const FileSystem& files, const Catalogue& catalogue,
                                                const DiskLayout& layout,
                                                const std::stop_token& stop) {
  const Path home = files.home();
  const UserFolders folders = files.folders();
  const std::array media{folders.music, folders.pictures, folders.videos};
  const auto isSearched = [&](const WalkEntry& entry) {
    const std::string_view name = entry.name();
    if (name.starts_with('.')) return false;
    if (entry.depth() > 1) return true;
    const std::array pieces{name};
    return std::ranges::find(layout.notSearchedForProjects, name) ==
               layout.notSearchedForProjects.end() &&
           !catalogue.ownPlaceOf(pieces) &&
           std::ranges::find(media, home / Path(name)) == media.end();
  };

  std::vector<FoundArtifact> found;
  ArtifactJudge judge(files, layout);
  files.walk(home, wholeWalk(files), [&](WalkEntry& entry) {
    if (stop.stop_requested()) return WalkStep::stop;
    if (entry.kind() != FileKind::directory) return WalkStep::proceed;
    const bool mayBeArtifact =
        entry.depth() > 1 &&
        std::ranges::any_of(layout.artifacts, [&](const ProjectArtifact& artifact) {
          return nameMatchesAny(artifact.names, entry.name());
        });
    if (mayBeArtifact) {
      Path path = entry.path();
      if (files.isMountPoint(path)) return WalkStep::skipDescendants;
      if (const ProjectArtifact* kind = judge.kindOf(path)) {
        found.push_back({std::move(path), kind});
        return WalkStep::skipDescendants;
      }
    }
    return isSearched(entry) ? WalkStep::proceed : WalkStep::skipDescendants;
  });
  return found;
}

const ProjectArtifact* artifactAt(const FileSystem& files, const DiskLayout& layout,
                                  const Path& path) {
  return ArtifactJudge(files, layout).kindOf(path);
}

}  // namespace klarvik
