#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace klarvik {

/// What is signed of a release. The number and the content are signed together, so that nobody can
/// announce an older archive, however genuine, under a newer number.
struct Release {
  std::string_view version;         ///< what is compared
  std::string_view displayVersion;  ///< what people call it; may be empty
  std::int64_t length = 0;          ///< of the archive, in bytes
  std::string_view digest;          ///< SHA-256 of the archive, 32 bytes
};

/// The text that is signed. Nothing when a version holds a control character, since a line of its
/// own could be meant.
[[nodiscard]] std::optional<std::string> releaseStatement(const Release& release);

/// Whether `signature` (64 bytes) is an Ed25519 signature over `statement` by the holder of the key
/// that belongs to `publicKey` (32 bytes).
[[nodiscard]] bool isSignedBy(std::string_view publicKey, std::string_view statement,
                              std::string_view signature);

/// SHA-256, 32 bytes; empty when the library fails. Not for the main thread where there is much.
[[nodiscard]] std::string digestOf(std::span<const std::byte> archive);

}  // namespace klarvik
