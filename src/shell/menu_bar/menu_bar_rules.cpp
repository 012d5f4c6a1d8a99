#include "shell/menu_bar/menu_bar_rules.h"

#include "translation/translation.h"

#include <array>
#include <variant>

namespace klarvik::menu_bar {
namespace {

// In parts of the icon's width.
constexpr double unit = 1.0 / 18;
constexpr double pillWidth = 15 * unit;
constexpr double pillHeight = 3 * unit;
constexpr double pillRadius = 1.5 * unit;
constexpr double gap = 2.4 * unit;
constexpr std::array opacities{0.55, 1.0, 1.0};

}  // namespace

std::vector<StatusItem::Pill> statusIcon(double width, double height) {
  constexpr double stackHeight = opacities.size() * pillHeight + (opacities.size() - 1) * gap;
  const double left = (width - pillWidth * width) / 2;
  double top = (height - stackHeight * width) / 2;
  std::vector<StatusItem::Pill> pills;
  for (const double opacity : opacities) {
    pills.push_back(
        {left, top, pillWidth * width, pillHeight * width, pillRadius * width, opacity});
    top += (pillHeight + gap) * width;
  }
  return pills;
}

std::string title(const AppState::ScanState& state, const Formatting& formatting) {
  const auto* cleaned = std::get_if<AppState::CleanDone>(&state);
  return cleaned != nullptr && cleaned->freed >= 1 ? " " + formatting.byteText(cleaned->freed) : "";
}

std::string moreCategories(std::size_t count) {
  if (count <= shownCategories) return {};
  return translate("Tray", "%n more categories", nullptr, plural(count - shownCategories))
      .toStdString();
}

std::string_view trashSymbol(const TrashMonitor::Figures& trash) {
  return trash.isReadable && trash.itemCount > 0 ? "trash.fill" : "trash";
}

std::string trashLabel(const TrashMonitor::Figures& trash, const Words& words,
                       const Formatting& formatting) {
  if (trash.isEmptying) return translate("Tray", "Emptying Trash…").toStdString();
  if (!trash.isReadable) return translated(words.trashUnreadableInTray).toStdString();
  if (trash.itemCount > 0) {
    return filled(translate("Tray", "Empty Trash · %1"), formatting.byteText(trash.bytes));
  }
  return translate("Tray", "Trash is empty").toStdString();
}

bool canEmpty(const TrashMonitor::Figures& trash) {
  return trash.itemCount > 0 && !trash.isEmptying && trash.isReadable;
}

}  // namespace klarvik::menu_bar
