#pragma once

#include <cstddef>
#include <span>
#include <string_view>

namespace klarvik {

/// Whether `signature` (64 bytes) is an Ed25519 signature over all of `archive` by the holder of
/// the key that belongs to `publicKey` (32 bytes). Takes as long as hashing the archive twice: not
/// for the main thread.
[[nodiscard]] bool isSignedBy(std::string_view publicKey, std::span<const std::byte> archive,
                              std::string_view signature);

}  // namespace klarvik
