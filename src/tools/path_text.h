#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <utility>

#include "base/paths.h"

namespace klarvik {

/// A path that is kept for long: the text of its folder, which many can share, and its name. A
/// `Path` also holds each of its parts, which take several times as much.
class PathText {
 public:
  /// Of a folder, with a slash at its end.
  using Folder = std::shared_ptr<const std::string>;

  PathText() = default;
  PathText(Folder folder, std::string name) : _folder(std::move(folder)), _name(std::move(name)) {}
  // Stands wherever a path does.
  // NOLINTBEGIN(google-explicit-constructor)
  PathText(const Path& path) : PathText(path.native()) {}
  PathText(const std::string& text) {
    const std::size_t nameStart = text.rfind('/') + 1;
    if (nameStart > 0) _folder = std::make_shared<const std::string>(text, 0, nameStart);
    _name = text.substr(nameStart);
  }
  PathText(const char* text) : PathText(std::string(text)) {}
  operator Path() const { return native(); }
  // NOLINTEND(google-explicit-constructor)

  [[nodiscard]] std::string native() const { return folder() + _name; }
  [[nodiscard]] Path filename() const { return _name; }
  /// How many parts a `Path` of this text has: the root, and each name.
  [[nodiscard]] std::size_t partCount() const {
    std::size_t count = folder().starts_with('/') ? 1 : 0;
    char before = '/';
    for (const char each : folder()) {
      if (each != '/' && before == '/') ++count;
      before = each;
    }
    // What ends with a slash has an empty name at its end, unless it is the root.
    return count + (!_name.empty() || count > 1 ? 1 : 0);
  }

  bool operator==(const PathText& other) const {
    return _name == other._name && (_folder == other._folder || folder() == other.folder());
  }
  bool operator==(const Path& path) const { return *this == PathText(path); }
  bool operator==(const char* text) const { return *this == PathText(text); }

 private:
  friend std::hash<PathText>;

  [[nodiscard]] const std::string& folder() const {
    static const std::string none;
    return _folder ? *_folder : none;
  }

  Folder _folder;  // null: the text has no slash
  std::string _name;
};

}  // namespace klarvik

template <>
struct std::hash<klarvik::PathText> {
  // Not noexcept: sets of the standard library then keep the hash of each of their paths.
  [[nodiscard]] std::size_t operator()(const klarvik::PathText& path) const {
    const std::hash<std::string> ofText;
    return ofText(path.folder()) * 31 + ofText(path._name);
  }
};
