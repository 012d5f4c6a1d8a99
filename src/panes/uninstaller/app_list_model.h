#pragma once

#include <QtQml/qqmlregistration.h>
#include <QAbstractListModel>
#include <QString>
#include <cstddef>
#include <vector>

#include "tools/app_info.h"

namespace klarvik {

class Formatting;

/// The installed applications, largest first, and of them those whose name the user searches for.
/// Rows come and go one by one, so that scroll position and focus survive. Main thread only.
class AppListModel : public QAbstractListModel {
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
  };

  explicit AppListModel(const Formatting& formatting, QObject* parent = nullptr);

  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
  [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

  /// All of them, whatever is searched for.
  [[nodiscard]] const std::vector<AppInfo>& apps() const { return _apps; }
  /// An application that was there before keeps its row.
  void setApps(std::vector<AppInfo> apps);
  void remove(const Path& appURL);

  [[nodiscard]] const QString& searchText() const { return _searchText; }
  void setSearchText(const QString& searchText);

  /// Nothing when there is no such row.
  [[nodiscard]] const AppInfo* appAt(int row) const;

 private:
  using Places = std::vector<std::size_t>;  ///< in `_apps`

  [[nodiscard]] Places matching(const std::vector<AppInfo>& apps) const;
  /// Where each application of now is in `apps`, by where it lies on the disk.
  [[nodiscard]] Places placesIn(const std::vector<AppInfo>& apps) const;
  void removeRowsExcept(const std::vector<bool>& stays);
  void insertMissing(const Places& wanted);

  const Formatting& _formatting;
  std::vector<AppInfo> _apps;  ///< largest first
  QString _searchText;
  Places _shown;
};

}  // namespace klarvik
