#include "platform/application_bundle.h"

#include <array>
#include <cstddef>
#include <string_view>

#include "platform/file_system.h"
#include "platform/property_list.h"

namespace klarvik {
namespace {

/// Where the property list lies, in a bundle with a folder for its contents and in a flat one.
constexpr std::array<std::string_view, 2> kPlaces{"Contents/Info.plist", "Info.plist"};

/// Real ones take some kilobytes.
constexpr std::size_t kMostBytes = 4 * 1'048'576;

std::optional<std::string> contentOf(FileReader& file) {
  std::string content;
  std::array<std::byte, 65'536> buffer;
  while (const auto got = file.read(buffer)) {
    if (*got == 0) return content;
    content.append(reinterpret_cast<const char*>(buffer.data()), *got);
    if (content.size() > kMostBytes) return std::nullopt;
  }
  return std::nullopt;
}

/// Where the links at `place` lead.
std::optional<Path> followed(const FileSystem& files, Path place) {
  constexpr int mostLinks = 8;
  for (int links = 0; links < mostLinks; ++links) {
    const auto target = files.linkTarget(place);
    if (!target) return place;
    place = target->is_absolute() ? *target : place.parent_path() / *target;
  }
  return std::nullopt;
}

std::optional<PropertyList> informationOf(const FileSystem& files, const Path& folder) {
  for (const std::string_view place : kPlaces) {
    const auto path = followed(files, folder / place);
    const auto file = path ? files.openForReading(*path) : nullptr;
    if (!file) continue;
    const auto content = contentOf(*file);
    return content ? PropertyList::parse(*content) : std::nullopt;
  }
  return std::nullopt;
}

}  // namespace

std::optional<ApplicationBundle> ApplicationBundle::at(const FileSystem& files,
                                                       const Path& folder) {
  const auto information = informationOf(files, folder);
  if (!information) return std::nullopt;
  auto identifier = information->text("CFBundleIdentifier");
  if (!identifier || identifier->empty()) return std::nullopt;
  return ApplicationBundle{*std::move(identifier), information->text("CFBundleDisplayName"),
                           information->text("CFBundleName")};
}

}  // namespace klarvik
