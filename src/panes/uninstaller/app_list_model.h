#pragma once

#include <QtQml/qqmlregistration.h>
#include <QString>
#include <vector>

#include "panes/keyed_list_model.h"
#include "tools/app_info.h"

namespace klarvik {

class Formatting;

/// The installed applications, largest first, and of them those whose name the user searches for.
/// Main thread only.
class AppListModel : public klarvik::KeyedListModel {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("The pane makes it.")
 public:
  enum Role {
    NameRole = Qt::UserRole,
    BundleRole,
    PathRole,
    UrlRole,
    SizeRole,
    DescriptionRole,
    IconRole,
  };

  explicit AppListModel(const Formatting& formatting, QObject* parent = nullptr);

  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
  [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

  /// All of them, whatever is searched for.
  [[nodiscard]] const std::vector<AppInfo>& apps() const { return _apps; }
  /// An application that was there before keeps its identifier and its row.
  void setApps(std::vector<AppInfo> apps);
  void remove(const Path& appURL);

  [[nodiscard]] const QString& searchText() const { return _searchText; }
  void setSearchText(const QString& searchText);

  /// Nothing when there is no such row.
  [[nodiscard]] const AppInfo* appAt(int row) const;

 private:
  [[nodiscard]] std::vector<Row> matching(const std::vector<AppInfo>& apps) const;

  const Formatting& _formatting;
  std::vector<AppInfo> _apps;  ///< largest first
  QString _searchText;
};

}  // namespace klarvik
