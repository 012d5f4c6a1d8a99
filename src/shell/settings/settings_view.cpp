#include "shell/settings/settings_view.h"

#include <utility>

namespace klarvik {

SettingsView::SettingsView(std::vector<SettingsTab> tabs, QObject* parent)
    : QObject(parent), _tabs(std::move(tabs)) {}

QStringList SettingsView::tabs() const {
  QStringList titles;
  for (const SettingsTab& tab : _tabs) titles << tab.title;
  return titles;
}

void SettingsView::setTab(int tab) {
  const auto wanted = static_cast<std::size_t>(tab);
  if (wanted == _tab || wanted >= _tabs.size()) return;
  _tab = wanted;
  emit tabChanged();
}

}  // namespace klarvik
