#pragma once

#include "base/paths.h"
#include "platform/desktop_services.h"

namespace klarvik {

/// The list that the freedesktop desktops share: one XBEL document, `recently-used.xbel` in the
/// user's data folder.
class RecentlyUsedList final : public RecentDocuments {
 public:
  /// `file` is a path on the machine.
  explicit RecentlyUsedList(Path file) : _file(std::move(file)) {}

  /// Whoever reads the list meanwhile, also after a crash, finds the old or the empty one. A list
  /// that is missing is empty. One that is a link, a folder or anything else but a file, or that
  /// the user may not write, was made so on purpose: it stays, and the answer is false.
  bool clear() override;

 private:
  Path _file;
};

}  // namespace klarvik
