#pragma once

#include "platform/path.h"
#include "platform/volume.h"

namespace klarvik {

/// The mounted file system that a folder of this machine lies on.
class MountedVolume final : public Volume {
 public:
  /// `folder` is a path on the machine.
  explicit MountedVolume(Path folder);

  [[nodiscard]] std::optional<std::int64_t> totalBytes() const override;
  [[nodiscard]] std::optional<std::int64_t> availableBytes() const override;
  [[nodiscard]] std::optional<std::int64_t> keptForRootBytes() const override;
  [[nodiscard]] std::optional<std::string> name() const override;

 private:
  Path _folder;
};

}  // namespace klarvik
