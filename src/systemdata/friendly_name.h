#pragma once

#include <string>
#include <string_view>

namespace klarvik {

/// What a folder that is named after a bundle identifier is called on the screen: "com.apple.mail"
/// reads "Mail". Only one vendor's prefix is ever taken off, so "group.com.apple.notes" reads
/// "Apple.notes".
[[nodiscard]] std::string friendlyName(std::string_view text);

}  // namespace klarvik
