#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>
#include <QStringList>
#include <QUrl>
#include <vector>

namespace klarvik {

/// A page of the settings: what its tab reads, the QML file that draws it, and the model it is
/// handed as `model`.
struct SettingsTab {
  QString title;
  QUrl page;
  QObject* model = nullptr;  ///< lives as long as the settings
};

/// The content of the settings window: a strip of tabs and one page. Main thread only.
class SettingsModel : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("The program makes it.")
  Q_PROPERTY(QList<QString> tabs READ tabs CONSTANT)
  Q_PROPERTY(int tab READ tab WRITE setTab NOTIFY tabChanged)
  Q_PROPERTY(QUrl page READ page NOTIFY tabChanged)
  Q_PROPERTY(QObject* pageModel READ pageModel NOTIFY tabChanged)

 public:
  /// At least one; begins on the first.
  explicit SettingsModel(std::vector<SettingsTab> tabs, QObject* parent = nullptr);

  [[nodiscard]] QStringList tabs() const;
  [[nodiscard]] int tab() const { return static_cast<int>(_tab); }
  void setTab(int tab);
  [[nodiscard]] QUrl page() const { return _tabs[_tab].page; }
  [[nodiscard]] QObject* pageModel() const { return _tabs[_tab].model; }

 signals:
  void tabChanged();

 private:
  const std::vector<SettingsTab> _tabs;
  std::size_t _tab = 0;
};

}  // namespace klarvik
