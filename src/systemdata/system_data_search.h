#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/platform.h"
#include "systemdata/pass_table.h"
#include "systemdata/system_data_item.h"

namespace klarvik {

/// Looks at the places of the passes. What cannot be read, or is not there, adds nothing. Has no
/// state; may be called from any thread, and takes as long as the trees are large.
class SystemDataSearch {
 public:
  using Items = std::vector<SystemDataItem>;

  explicit SystemDataSearch(const Platform& platform) : _platform(platform) {}

  [[nodiscard]] Items find(const Pass& pass) const;
  /// One item for each child of at least `minimumSize` bytes, links left out, largest first.
  [[nodiscard]] Items children(const Path& folder, SystemDataSubCategory kind,
                               std::int64_t minimumSize) const;

  [[nodiscard]] Items snapshots(SystemDataSubCategory kind) const;
  [[nodiscard]] Items swapFiles(SystemDataSubCategory kind) const;
  [[nodiscard]] Items firmware(SystemDataSubCategory kind) const;
  /// Everything in the home's Library that no other pass looks at.
  [[nodiscard]] Items libraryRemainder(SystemDataSubCategory kind) const;

 private:
  [[nodiscard]] Items wholePlaces(std::span<const WholePlace> places,
                                  SystemDataSubCategory kind) const;
  [[nodiscard]] Items childrenExcept(std::span<const std::string_view> names, const Path& folder,
                                     SystemDataSubCategory kind, std::int64_t minimumSize) const;
  [[nodiscard]] Path inHome(std::string_view path) const;
  [[nodiscard]] std::vector<Path> list(const Path& folder) const;
  [[nodiscard]] bool isLink(const Path& path) const;
  /// What stands at `path`, measured: 0 bytes when nothing does. What comes to the name while it is
  /// being measured is not meant.
  [[nodiscard]] SystemDataItem item(std::string name, const Path& path,
                                    SystemDataSubCategory kind) const;

  const Platform& _platform;
};

}  // namespace klarvik
