#pragma once

#include <string_view>

namespace klarvik {

/// What the user copied last. May be called from any thread.
class Pasteboard {
 public:
  virtual ~Pasteboard() = default;
  /// Whether there is a text or a picture to paste. A mere reference to files is neither; where the
  /// program that copied it offers a text beside it, there is a text.
  [[nodiscard]] virtual bool holdsTextOrImage() = 0;
  virtual void clear() = 0;
  /// Puts a UTF-8 text there, for the user to paste.
  virtual void copy(std::string_view text) = 0;
};

}  // namespace klarvik
