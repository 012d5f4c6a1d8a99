#pragma once

#include <compare>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace klarvik {

/// A version: numbers between dots, of which missing ones count as 0 ("1.10" is after "1.9" and
/// equals "1.10.0"), and perhaps a mark of what comes before the release ("2.0-beta.2", "2.0rc1").
/// What follows a "+" says how it was built, and does not count. A number may be of any size, such
/// as the date and time of a build: QVersionNumber takes none beyond 32 bits, and would call two of
/// them equal.
class Version {
 public:
  /// Nothing for text that is not a version, or longer than one ever is.
  [[nodiscard]] static std::optional<Version> parse(std::string_view text);

  [[nodiscard]] std::weak_ordering operator<=>(const Version& other) const;
  [[nodiscard]] bool operator==(const Version& other) const { return std::is_eq(*this <=> other); }

 private:
  Version() = default;

  std::vector<std::string> _numbers;     ///< digits without zeros in front: of any size
  std::vector<std::string> _preRelease;  ///< runs of digits or of small letters; none: a release
};

}  // namespace klarvik
