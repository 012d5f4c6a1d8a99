#include "shell/settings/settings_model.h"

#include <utility>

namespace klarvik {

SettingsModel::SettingsModel(std::vector<SettingsTab> tabs, QObject* parent)
    : QObject(parent), _tabs(std::move(tabs)) {}

QStringList SettingsModel::tabs() const {
  QStringList titles;
  for (const SettingsTab& tab : _tabs) titles << tab.title;
  return titles;
}

void SettingsModel::setTab(int tab) {
  const auto wanted = static_cast<std::size_t>(tab);
  if (wanted == _tab || wanted >= _tabs.size()) return;
  _tab = wanted;
  emit tabChanged();
}

}  // namespace klarvik
