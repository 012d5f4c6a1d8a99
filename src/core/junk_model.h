#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/message.h"
#include "base/paths.h"
#include "core/uuid.h"
#include "places/category_type.h"
#include "platform/clock.h"
#include "platform/file_attributes.h"

namespace klarvik {

class Formatting;
struct CleaningTool;

/// One thing that can be removed.
struct JunkItem {
  Uuid id = Uuid::random();
  std::string name;  ///< what the row shows; bytes of the disk, made printable only at the screen
  Path path;
  std::int64_t size = 0;   ///< bytes that the removal should reclaim
  std::int64_t taken = 0;  ///< bytes on the disk, where that is more; else 0
  std::optional<Date> modifiedDate = std::nullopt;
  /// As it was found. Another thing that comes to its name later is not removed in its place.
  /// Nothing for what is no file.
  std::optional<EntryIdentity> identity = std::nullopt;
  std::string reason{};      ///< one sentence on what becomes of it; empty where none is needed
  bool goesForGood = false;  ///< never to the Trash
  std::string closeFirst{};  ///< the running program that uses it; empty when none does
  bool wasJustUsed = false;  ///< comes after the others of its category
  /// The tool that removes it; Klarvik itself never does then. A row of the layout's table.
  const CleaningTool* tool = nullptr;
  std::vector<std::string> toolNames{};  ///< what of the tool's own names it is, if it is one
  /// What the name was made of; empty where it is one of the disk.
  Message nameText{};

  /// Of all that is shown.
  bool operator==(const JunkItem& other) const;
};

/// Something that takes space and that Klarvik does not remove. It is told, and cannot be selected.
struct Hint {
  std::string name;
  Path path;
  std::int64_t size = 0;  ///< bytes
  Message reason;         ///< one sentence
  std::string command;    ///< what the user may run; empty when there is nothing to run
  /// The row whose `asRoot` can be run here; nothing where the command is only told.
  const CleaningTool* runAsRoot = nullptr;
  Message nameText{};  ///< as of an item
};

/// What one category of a scan found.
struct CleanCategory {
  Uuid id = Uuid::random();
  CategoryType type = CategoryType::xcodeCache;
  std::vector<JunkItem> items;  ///< in the order the scanner gave them
  std::vector<Hint> hints{};    ///< largest first

  /// What Klarvik can remove of it may be nothing: then it only has hints.
  [[nodiscard]] bool hasItems() const { return !items.empty(); }
  [[nodiscard]] std::int64_t totalSize() const;
  [[nodiscard]] std::string formattedSize(const Formatting& formatting) const;
};

}  // namespace klarvik
