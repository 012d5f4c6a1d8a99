#include "source_texts/source_texts.h"

#include <array>
#include <bit>
#include <string_view>
#include <variant>

#include "base/text.h"
#include "places/disk_layout.h"
#include "places/trail_places.h"
#include "places/words.h"
#include "systemdata/system_data_sub_category.h"
#include "tools/app_info.h"

namespace klarvik {
namespace {

class Texts {
 public:
  void add(std::string_view text) {
    // Names that the disk fills in as a whole.
    if (!text.empty() && text != "*" && text != "%1") _all.emplace(text);
  }

  void add(const Words& words) {
    constexpr std::size_t count = sizeof(Words) / sizeof(std::string_view);
    static_assert(count * sizeof(std::string_view) == sizeof(Words), "it holds texts alone");
    for (const auto text : std::bit_cast<std::array<std::string_view, count>>(words)) add(text);
  }

  void addScan(const DiskLayout& layout) {
    for (const ScanRow& row : layout.scanRows) {
      add(row.name);
      add(layout.label(row.type));
      add(description(row.type));
    }
    for (const Place& place : layout.places) {
      add(place.name);
      add(place.reason);
    }
    for (const CleaningTool& tool : layout.tools) {
      add(tool.item);
      add(tool.reason);
    }
    for (const ProjectArtifact& artifact : layout.artifacts) add(artifact.reason);
    for (const ProgramName& program : layout.programs) {
      if (program.name.find(' ') != std::string_view::npos) add(program.name);
    }
    for (const FileKindName& kind : layout.fileKinds) add(kind.name);
    add(layout.guard.protectedReason);
    add(layout.guard.managedReason);
  }

  void addSystemData(const DiskLayout& layout) {
    for (const Pass& pass : layout.analysisPasses) {
      add(pass.label);
      const auto* places = std::get_if<std::span<const WholePlace>>(&pass.places);
      if (places == nullptr) continue;
      for (const WholePlace& place : *places) add(place.name);
    }
    for (const LedgerPlace& place : layout.ledger) {
      add(place.name);
      add(place.sentence);
    }
    for (const SystemDataWords& words : layout.systemData) add(words.scanning);
    for (std::size_t at = 0; at < ledgerKindCount; ++at) {
      const auto kind = static_cast<SystemDataSubCategory>(at);
      const bool isListed = !layout.systemData.empty() || at < systemDataSubCategoryCount;
      if (!isListed) continue;
      add(label(kind, layout));
      add(description(kind, layout));
    }
  }

  void addTools(const DiskLayout& layout) {
    for (const StorageShare& share : layout.storageShares) add(share.label);
    for (const PrivacyCategory category : allPrivacyCategories()) {
      add(rawValue(category));
      add("Scanning " + lowercased(rawValue(category)) + "...");
    }
    add("Scanning " + lowercased(layout.words.downloadOrigins) + "...");
    for (const Trail& trail : layout.trails.trails) add(trail.told);
    for (const ResidualCategory category : allResidualCategories()) add(rawValue(category));
  }

  [[nodiscard]] std::set<std::string> all() && { return std::move(_all); }

 private:
  std::set<std::string> _all;
};

}  // namespace

std::set<std::string> sourceTexts() {
  Texts texts;
  for (const char* home : {"/Users/somebody", "/home/somebody"}) {
    const DiskLayout& layout = layoutFor(home);
    texts.add(layout.words);
    texts.addScan(layout);
    texts.addSystemData(layout);
    texts.addTools(layout);
  }
  return std::move(texts).all();
}

}  // namespace klarvik
