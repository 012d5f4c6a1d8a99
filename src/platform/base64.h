#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace klarvik {

/// Base64 with padding and without line breaks. `bytes` may be up to 1 GB long.
[[nodiscard]] std::string base64(std::string_view bytes);

/// The bytes that `text` stands for; nothing when it is not what `base64` would write for them.
[[nodiscard]] std::optional<std::string> bytesOfBase64(std::string_view text);

}  // namespace klarvik
