#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "base/paths.h"

namespace klarvik {

class FileSystem;

/// A thing that a pattern stands for.
struct PlaceMatch {
  Path path;
  std::vector<std::string> stars{};  ///< the names that its "*" stand for
  Path
      inside{};  ///< the end of the path, where only parts of what the pattern stands for are meant
};

enum class PlaceKinds { all, folders };

/// What `pattern` stands for below each of `starts`, in the order of the disk. A component without
/// a "*" is not looked for. A component with one stands for no link; none stands for the top of
/// another volume. Any thread; folders of a million files take as long as they take to be listed.
[[nodiscard]] std::vector<PlaceMatch> matchesBelow(const FileSystem& files,
                                                   std::vector<PlaceMatch> starts,
                                                   std::string_view pattern,
                                                   PlaceKinds kinds = PlaceKinds::all);

/// Whether `path` is a link, or the top of another volume. Waits for no server.
[[nodiscard]] bool isElsewhere(const FileSystem& files, const Path& path);

}  // namespace klarvik
