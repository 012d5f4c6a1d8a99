#include <iostream>

#include "base/bytes.h"
#include "platform/desktop_services.h"
#include "platform/file_system.h"
#include "probe/command.h"
#include "probe/report.h"
#include "tools/privacy_scanner.h"

namespace klarvik::probe {
namespace {

/// A terminal has no clipboard, and this program no window that could ask for the desktop's.
class NoPasteboard final : public Pasteboard {
 public:
  [[nodiscard]] bool holdsTextOrImage() override { return false; }
  void clear() override {}
};

Report itemReport(const PrivacyItem& item) {
  return {{"id", item.id.text()},       {"category", rawValue(item.category)},
          {"name", item.name},          {"path", pathReport(item.path)},
          {"count", item.count},        {"size", item.size},
          {"selected", item.isSelected}};
}

/// Where a trail is made of parts, they and what stands in the way of clearing it.
Report withParts(Report report, const PrivacyItem& item) {
  if (item.parts.empty()) return report;
  Report parts = Report::array();
  for (const TrailPart& part : item.parts) parts.push_back(pathReport(part.path));
  report["parts"] = std::move(parts);
  report["closeFirst"] = item.closeFirst;
  report["told"] = item.told;
  return report;
}

void clear(const std::vector<PrivacyItem>& items, PrivacyScanner& scanner,
           const std::stop_token& stop) {
  PrivacyClearance sums;
  for (const PrivacyItem& item : items) {
    if (stop.stop_requested()) break;
    if (!item.parts.empty() && !item.isSelected) continue;
    const PrivacyClearance done = scanner.clear({item});
    sums.cleaned += done.cleaned;
    sums.freed = addBytes(sums.freed, done.freed);
  }
  print({{"event", "cleared"}, {"cleaned", sums.cleaned}, {"freed", sums.freed}});
}

}  // namespace

int privacy(const Invocation& call) {
  const bool clears = !call.arguments.empty();
  if (clears && call.arguments[0] != "clear") {
    std::cerr << "klarvik-probe: privacy: only \"clear\" may follow\n";
    return usageError;
  }
  NoPasteboard pasteboard;
  PrivacyScanner scanner(call.platform, pasteboard);
  const auto found = scanner.scan([](double fraction, std::string_view line) {
    print({{"event", "update"}, {"fraction", fraction}, {"line", line}});
  });
  Report items = Report::array();
  for (const PrivacyItem& item : found) items.push_back(withParts(itemReport(item), item));
  print({{"event", "result"}, {"items", std::move(items)}});
  if (clears) clear(found, scanner, call.stop);
  return 0;
}

}  // namespace klarvik::probe
