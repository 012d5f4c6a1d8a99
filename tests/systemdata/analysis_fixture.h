#pragma once

#include <gtest/gtest.h>

#include "support/fake_desktop.h"
#include "systemdata/system_data_engine.h"

namespace klarvik {

/// An analysis of a remembered disk, with tools that answer what a test says.
class AnalysisFixture : public testing::Test, protected FakeDesktopInMemory {
 protected:
  SystemDataEngine engine{desktop};

  [[nodiscard]] std::vector<SystemDataItem> analyse() {
    return engine.analyse([](const std::string&, double) {}).items();
  }

  [[nodiscard]] static Path inLibrary(const Path& path) { return "/Users/ann/Library" / path; }
  /// Puts a file of that size into a folder.
  void fill(const Path& folder, std::int64_t bytes) { disk.addFile(folder / "data", bytes); }

  [[nodiscard]] static std::vector<std::string> names(const std::vector<SystemDataItem>& items) {
    std::vector<std::string> all;
    for (const SystemDataItem& item : items) all.push_back(item.name);
    return all;
  }
};

}  // namespace klarvik
