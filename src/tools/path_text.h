#pragma once

#include <string>
#include <utility>

#include "platform/path.h"

namespace klarvik {

/// A path that is kept for long: its text alone, where a `Path` also holds each of its parts, which
/// take several times as much.
class PathText {
 public:
  PathText() = default;
  // Stands wherever a path does.
  // NOLINTBEGIN(google-explicit-constructor)
  PathText(const Path& path) : _text(path.native()) {}
  PathText(std::string text) : _text(std::move(text)) {}
  PathText(const char* text) : _text(text) {}
  operator Path() const { return {_text}; }
  // NOLINTEND(google-explicit-constructor)

  [[nodiscard]] const std::string& native() const { return _text; }
  [[nodiscard]] Path filename() const { return Path(_text).filename(); }

  bool operator==(const PathText&) const = default;
  bool operator==(const Path& path) const { return _text == path.native(); }
  bool operator==(const char* text) const { return _text == text; }

 private:
  std::string _text;
};

}  // namespace klarvik
