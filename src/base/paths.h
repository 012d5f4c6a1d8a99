#pragma once

#include <filesystem>
#include <string_view>
#include <vector>

namespace klarvik {

/// A path holds the bytes of the names as the disk has them; they need not be UTF-8.
using Path = std::filesystem::path;

// The text of paths. No file is touched, and no link is followed.

/// Takes the first component off `text`; an empty one when there is none.
[[nodiscard]] std::string_view takePiece(std::string_view& text);
/// The components between the slashes of `text`; empty ones are left out.
[[nodiscard]] std::vector<std::string_view> splitPath(std::string_view text);
/// Whether `path` lies below `folder`, at any depth. Neither ends in a slash, except "/" itself.
[[nodiscard]] bool isBelow(std::string_view path, std::string_view folder);
/// `path` made absolute in form only: "." and ".." resolved, doubled and trailing slashes dropped.
/// A relative path stays relative.
[[nodiscard]] Path standardizedPath(const Path& path);

}  // namespace klarvik
