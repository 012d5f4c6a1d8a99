#pragma once

#include <functional>
#include <stop_token>
#include <string_view>
#include <vector>

#include "base/paths.h"
#include "core/catalogue.h"
#include "places/place.h"

namespace klarvik {

class FileSystem;

/// What a build left in a project.
struct FoundArtifact {
  Path path;
  const ProjectArtifact* kind = nullptr;
};

/// The artifacts in the projects of the user, by one walk through the visible part of the home that
/// follows no link, stays on one volume and enters no artifact. Any thread.
[[nodiscard]] std::vector<FoundArtifact> findProjectArtifacts(const FileSystem& files,
                                                              const Catalogue& catalogue,
                                                              const DiskLayout& layout,
                                                              const std::stop_token& stop);

/// The kind of artifact that the folder at `path` is, by its marks beside and inside; nothing when
/// it may be anything else.
[[nodiscard]] const ProjectArtifact* artifactAt(const FileSystem& files, const DiskLayout& layout,
                                                const Path& path);

}  // namespace klarvik
