#pragma once

#include <mutex>

#include "platform/volume.h"

namespace klarvik {

/// A volume with the figures a test gives it: 500 GB with 200 GB free and nothing kept for root,
/// called "Macintosh HD", until told otherwise. May be used from any thread.
class FakeVolume final : public Volume {
 public:
  void setTotalBytes(std::optional<std::int64_t> bytes);
  void setAvailableBytes(std::optional<std::int64_t> bytes);
  void setKeptForRootBytes(std::optional<std::int64_t> bytes);
  void setName(std::optional<std::string> name);

  [[nodiscard]] std::optional<std::int64_t> totalBytes() const override;
  [[nodiscard]] std::optional<std::int64_t> availableBytes() const override;
  [[nodiscard]] std::optional<std::int64_t> keptForRootBytes() const override;
  [[nodiscard]] std::optional<std::string> name() const override;

 private:
  mutable std::mutex _mutex;
  std::optional<std::int64_t> _totalBytes = 500'000'000'000;
  std::optional<std::int64_t> _availableBytes = 200'000'000'000;
  std::optional<std::int64_t> _keptForRootBytes = 0;
  std::optional<std::string> _name = "Macintosh HD";
};

}  // namespace klarvik
