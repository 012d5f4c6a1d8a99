#pragma once

#include "platform/desktop_services.h"
#include "platform/file_system.h"

namespace klarvik {

/// A desktop that follows the freedesktop conventions. Needs a `QGuiApplication`.
///
/// Addresses of macOS's own settings are answered with the place where this desktop says what a
/// program may read, on the desktops that have one.
class XdgWorkspace final : public Workspace {
 public:
  /// `files` tells where on the machine an item is, and must outlive this.
  explicit XdgWorkspace(const FileSystem& files) : _files(files) {}

  bool openUrl(const std::string& url) override;
  bool openFolder(const Path& folder) override;
  /// By the file manager's own service; where there is none, the item's folder is opened.
  void reveal(const Path& item) override;
  /// With the arguments that this instance was given.
  void relaunch() override;
  /// To be called last of all: starts the instance that `relaunch` has asked for, if it has.
  /// Earlier it would wait for this one in vain, as long as that finishes what it has in hand.
  void startSuccessor() const;

 private:
  const FileSystem& _files;
  bool _hasSuccessor = false;
};

/// The address of a file of the machine; its bytes need not be UTF-8.
[[nodiscard]] std::string fileAddress(const Path& disk);

}  // namespace klarvik
