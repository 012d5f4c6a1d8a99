#pragma once

#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "base/message.h"
#include "core/junk_model.h"
#include "platform/platform.h"

namespace klarvik {

/// The scanners behind the rows of a Smart Scan of a Mac's disk: each looks at its own fixed
/// places, and answers what it found there. They show what there is; whether it may go is asked
/// when it is removed.
///
/// Lives for one scan, on its thread.
class CategoryScanners {
 public:
  using Items = std::vector<JunkItem>;
  using ItemReport = std::function<void(const JunkItem&)>;

  /// Scanners that find their items one by one tell each to `report` at once.
  CategoryScanners(const Platform& platform, ItemReport report);

  [[nodiscard]] Items find(CategoryType type) const;
  [[nodiscard]] Items trash() const;

 private:
  [[nodiscard]] Items xcodeCache() const;
  [[nodiscard]] Items simulators() const;
  [[nodiscard]] Items xcodeArchives() const;
  [[nodiscard]] Items appCaches() const;
  [[nodiscard]] Items systemLogs() const;
  [[nodiscard]] Items deviceBackups() const;
  [[nodiscard]] Items browserCaches() const;
  [[nodiscard]] Items docker() const;
  [[nodiscard]] Items timeMachine() const;
  [[nodiscard]] Items leftovers() const;

  /// Absolute paths stay as they are.
  [[nodiscard]] Path inHome(std::string_view path) const;
  [[nodiscard]] std::vector<Path> children(std::string_view folderInHome) const;
  [[nodiscard]] bool isLink(const Path& path) const;
  /// What stands at `path`, measured: 0 bytes when nothing does. What comes to the name while it is
  /// being measured is not meant.
  [[nodiscard]] JunkItem item(std::string name, const Path& path) const;
  [[nodiscard]] JunkItem item(const Message& name, const Path& path) const;
  /// The same, with the date of its last change.
  [[nodiscard]] JunkItem datedItem(std::string name, const Path& path) const;
  [[nodiscard]] JunkItem datedItem(const Message& name, const Path& path) const;
  [[nodiscard]] Items scanPaths(std::span<const std::string_view> paths) const;
  [[nodiscard]] Message backupName(const JunkItem& folder) const;
  [[nodiscard]] Message snapshotName(const std::string& text) const;
  [[nodiscard]] std::int64_t snapshotSize(const std::string& text) const;
  [[nodiscard]] Items firmware() const;

  const Platform& _platform;
  ItemReport _report;
};

}  // namespace klarvik
