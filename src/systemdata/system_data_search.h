#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/catalogue.h"
#include "places/system_data_places.h"
#include "platform/platform.h"
#include "systemdata/system_data_item.h"

namespace klarvik {

/// Looks at the places of the passes. What cannot be read, or is not there, adds nothing. Has no
/// state; may be called from any thread, and takes as long as the trees are large.
class SystemDataSearch {
 public:
  using Items = std::vector<SystemDataItem>;

  explicit SystemDataSearch(const Platform& platform);

  [[nodiscard]] Items find(const Pass& pass) const;
  /// One item for each child of at least `minimumSize` bytes, links left out, largest first.
  [[nodiscard]] Items children(const Path& folder, SystemDataSubCategory kind,
                               std::int64_t minimumSize) const;

  [[nodiscard]] Items localSnapshots(SystemDataSubCategory kind) const;
  [[nodiscard]] Items swapFiles(SystemDataSubCategory kind) const;
  [[nodiscard]] Items firmware(SystemDataSubCategory kind) const;
  /// Everything in the home's Library that no other pass looks at.
  [[nodiscard]] Items libraryRemainder(SystemDataSubCategory kind) const;
  /// The verdict of the tables on one place; nothing where a disk's rules name what stays instead
  /// of what may go.
  [[nodiscard]] std::optional<ItemSafety> verdict(const Path& path) const;

 private:
  [[nodiscard]] Items wholePlaces(std::span<const WholePlace> places,
                                  SystemDataSubCategory kind) const;
  [[nodiscard]] Items childrenOf(const ChildFolder& folder, SystemDataSubCategory kind) const;
  [[nodiscard]] Items childrenExcept(std::span<const std::string_view> names, const Path& folder,
                                     SystemDataSubCategory kind, std::int64_t minimumSize,
                                     bool onlyHidden = false) const;
  [[nodiscard]] Items byMethod(AnalysisMethod method, SystemDataSubCategory kind) const;
  [[nodiscard]] Path inHome(std::string_view path) const;
  [[nodiscard]] std::vector<Path> list(const Path& folder) const;
  [[nodiscard]] bool isLink(const Path& path) const;
  /// What stands at `path`, measured: 0 bytes when nothing does. What comes to the name while it is
  /// being measured is not meant.
  [[nodiscard]] SystemDataItem item(std::string name, const Path& path,
                                    SystemDataSubCategory kind) const;

  const Platform& _platform;
  const DiskLayout& _layout;
  const Catalogue _catalogue;
};

}  // namespace klarvik
