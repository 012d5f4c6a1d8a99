#pragma once

#include <gtest/gtest.h>

#include "engine/scanner_engine.h"
#include "support/fake_desktop.h"

namespace klarvik {

/// An engine on a remembered disk, with tools that answer what a test says. The locale is en_US.
class EngineFixture : public testing::Test, protected FakeDesktopInMemory {
 protected:
  ScannerEngine engine{desktop};

  [[nodiscard]] std::vector<CleanCategory> scan() { return engine.scanAll({}, {}, {}); }

  /// The items of one category of a fresh scan; empty when it has none.
  [[nodiscard]] std::vector<JunkItem> found(CategoryType type) {
    for (const CleanCategory& category : scan()) {
      if (category.type == type) return category.items;
    }
    return {};
  }

  [[nodiscard]] static std::vector<std::string> names(const std::vector<JunkItem>& items) {
    std::vector<std::string> all;
    for (const JunkItem& item : items) all.push_back(item.name);
    return all;
  }
};

}  // namespace klarvik
