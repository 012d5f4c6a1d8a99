#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "base/text.h"
#include "platform/clock.h"

namespace klarvik {

/// The language of a `Formatting`. What stands here is English.
struct FormattingLanguage {
  /// Identifier of a locale ("en_US", "de_DE"); the user's own when absent.
  std::optional<std::string> locale = std::nullopt;
  std::string noBytes = "Zero KB";
  std::string oneByte = "1 byte";
  std::string bytes = "%1 bytes";           ///< below 1,000
  std::string units = "KB MB GB TB PB EB";  ///< six of them
};

/// Turns numbers and dates into the text of one locale. Immutable; may be used from any thread.
class Formatting {
 public:
  /// A locale by its identifier ("en_US", "de_DE"); the user's own when absent. The time zone is
  /// the machine's.
  explicit Formatting(std::optional<std::string> locale = std::nullopt);
  explicit Formatting(FormattingLanguage language);
  ~Formatting();

  /// The one way a size becomes text: "Zero KB", "1 byte", "999 bytes", "12 KB", "1.5 MB",
  /// "2.25 GB". 1,000 bytes to the kilobyte.
  [[nodiscard]] std::string byteText(std::int64_t bytes) const;
  /// Medium date and short time: "Mar 4, 2026, 5:06 PM".
  [[nodiscard]] std::string dateAndTime(Date date) const;
  /// "Mar 4".
  [[nodiscard]] std::string dayAndMonth(Date date) const;
  /// "3 minutes ago": full units.
  [[nodiscard]] std::string relative(Date date, Date now) const;
  /// "3 min. ago".
  [[nodiscard]] std::string relativeAbbreviated(Date date, Date now) const;
  /// Reads `text` by an ICU date pattern, strictly: what the pattern would not write for that very
  /// date in the machine's time zone is not one.
  [[nodiscard]] static std::optional<Date> parseDate(const std::string& text,
                                                     const std::string& pattern);
  /// Order of names as a user of the locale expects it, without regard to case: below, at or above
  /// 0.
  [[nodiscard]] int compareNames(std::string_view left, std::string_view right) const;

 private:
  struct Locale;
  std::unique_ptr<const Locale> _locale;
};

}  // namespace klarvik
