#include "state/section.h"

#include <algorithm>

namespace klarvik {

namespace {

struct Names {
  std::string_view rawValue;
  std::string_view title;
};

const Names& names(Section section) {
  static constexpr std::array<Names, sectionCount> table{{
      {"smartScan", "Smart Scan"},
      {"storage", "Storage"},
      {"duplicates", "Duplicates"},
      {"largeFiles", "Large Files"},
      {"systemData", "System Data"},
      {"uninstaller", "Uninstaller"},
      {"privacy", "Privacy"},
  }};
  return table.at(static_cast<std::size_t>(section));
}

}  // namespace

const std::array<Section, sectionCount>& allSections() {
  static constexpr std::array<Section, sectionCount> sections{
      Section::smartScan,  Section::storage,     Section::duplicates, Section::largeFiles,
      Section::systemData, Section::uninstaller, Section::privacy};
  return sections;
}

std::string_view rawValue(Section section) {
  return names(section).rawValue;
}

std::string toolKey(Section section) {
  return std::string(rawValue(section));
}

std::optional<Section> section(std::string_view text) {
  const auto& sections = allSections();
  const auto found = std::find_if(sections.begin(), sections.end(),
                                  [&](Section known) { return rawValue(known) == text; });
  if (found == sections.end()) return std::nullopt;
  return *found;
}

std::string_view title(Section section) {
  return names(section).title;
}

}  // namespace klarvik
