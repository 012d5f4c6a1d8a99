#include "base/paths.h"

#include <algorithm>
#include <string>

namespace klarvik {

std::string_view takePiece(std::string_view& text) {
  text.remove_prefix(std::min(text.find_first_not_of('/'), text.size()));
  const std::string_view piece = text.substr(0, text.find('/'));
  text.remove_prefix(piece.size());
  return piece;
}

std::vector<std::string_view> splitPath(std::string_view text) {
  std::vector<std::string_view> found;
  for (auto piece = takePiece(text); !piece.empty(); piece = takePiece(text)) {
    found.push_back(piece);
  }
  return found;
}

bool isBelow(std::string_view path, std::string_view folder) {
  const std::string_view above = folder == "/" ? "" : folder;
  return path.size() > above.size() + 1 && path.starts_with(above) && path[above.size()] == '/';
}

Path standardizedPath(const Path& path) {
  const bool absolute = path.native().starts_with('/');
  std::vector<std::string_view> kept;
  for (const std::string_view piece : splitPath(path.native())) {
    if (piece == ".") continue;
    if (piece != "..") {
      kept.push_back(piece);
    } else if (!kept.empty() && kept.back() != "..") {
      kept.pop_back();
    } else if (!absolute) {
      kept.push_back(piece);
    }
  }
  std::string text = absolute ? "/" : "";
  for (const std::string_view piece : kept) {
    if (piece.data() != kept.front().data()) text += '/';
    text += piece;
  }
  return text;
}

}  // namespace klarvik
