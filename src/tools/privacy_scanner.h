#pragma once

#include <cstdint>
#include <functional>
#include <mutex>
#include <string_view>
#include <vector>

#include "core/removal_outcome.h"
#include "platform/platform.h"
#include "tools/privacy_item.h"

namespace klarvik {

class Pasteboard;

/// A trail of which something is still there after a clearing, as far as that is known.
struct StayedTrail {
  Uuid id;
  std::string inUseBy{};  ///< a program that runs, as the user calls it; empty for another reason

  bool operator==(const StayedTrail&) const = default;
};

/// What a clearing did, as it is told to the user.
struct PrivacyClearance {
  std::int64_t cleaned = 0;  ///< trails
  std::int64_t freed = 0;    ///< bytes
  std::vector<StayedTrail> stayed{};

  bool operator==(const PrivacyClearance&) const = default;
};

/// Looks for the trails that a machine keeps of what its user did, and clears those selected. It
/// looks into a file only to count its entries.
///
/// Operations are synchronous and are meant to be called off the main thread; of one scanner they
/// run one after the other. Nothing throws: what is missing or cannot be read adds nothing.
/// Whatever is handed in must outlive the scanner.
class PrivacyScanner {
 public:
  /// Called on the scanning thread, with a share of 1 and a line that says what comes next.
  using ProgressSink = std::function<void(double fraction, std::string_view line)>;

  /// `leftAlone`, where there is one, counts what is left although it was selected.
  PrivacyScanner(const Platform& platform, Pasteboard& pasteboard, LeftAlone* leftAlone = nullptr)
      : _platform(platform),
        _files(platform.files),
        _pasteboard(pasteboard),
        _leftAlone(leftAlone) {}

  /// One item for each kind of trail there is. Short, and so not to be stopped.
  [[nodiscard]] std::vector<PrivacyItem> scan(const ProgressSink& progress);

  /// Clears what it can. The recent documents and the clipboard are emptied; a thing with a path is
  /// removed for good, when `DeletionGuard` lets it. Every other item is told as cleared, its bytes
  /// as freed, and stays as it is: there is no one thing to remove. A trail of several parts is
  /// cleared part by part, unless its program runs; what is freed of it is what has gone.
  PrivacyClearance clear(const std::vector<PrivacyItem>& items);

 private:
  enum class PartEnd { gone, stayed, isOpen };

  [[nodiscard]] std::vector<PrivacyItem> scanTable(const ProgressSink& progress);
  [[nodiscard]] PrivacyClearance clearItem(const PrivacyItem& item);
  [[nodiscard]] PrivacyClearance clearParts(const PrivacyItem& item);
  [[nodiscard]] PartEnd clearPart(const TrailPart& part);
  [[nodiscard]] PartEnd clearHistory(const TrailPart& part);
  [[nodiscard]] std::string programThatUses(const PrivacyItem& item) const;

  const Platform& _platform;
  FileSystem& _files;
  Pasteboard& _pasteboard;
  LeftAlone* const _leftAlone;
  std::mutex _working;
};

}  // namespace klarvik
