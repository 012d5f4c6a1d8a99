#pragma once

#include <QtQml/qqmlregistration.h>
#include <QAbstractListModel>
#include <unordered_set>

#include "core/uuid.h"
#include "panes/large_files/row_arrangement.h"
#include "platform/platform.h"

namespace klarvik {

/// The files on the screen, one a row. Rows come and go in runs, so that scroll position, focus and
/// hover survive; texts are made when a row is drawn. Main thread only.
class LargeFileRowsModel : public QAbstractListModel {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("The pane makes it.")
 public:
  enum Role {
    NameRole = Qt::UserRole,
    FolderRole,
    PathRole,
    UrlRole,
    KindRole,
    LastOpenedRole,
    SizeRole,
    IsSelectedRole,
    DescriptionRole,
  };

  /// `selected` is looked at when a row is drawn; `selectionChanged` tells that it changed.
  LargeFileRowsModel(const std::unordered_set<Uuid>& selected, const Desktop& desktop,
                     QObject* parent = nullptr);

  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
  [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

  /// Changes in `apply` only.
  [[nodiscard]] const LargeFileList& files() const { return _files; }
  /// Carries out an arrangement that was made of these rows. Answers what is no longer needed: much
  /// to free at once.
  [[nodiscard]] LargeFileList apply(RowArrangement arrangement);

  [[nodiscard]] RowsInSight inSight() const { return _inSight; }
  /// Told by the view: its first row on the screen, and the one that keys act on; below 0 there is
  /// none.
  Q_INVOKABLE void lookAt(int firstRow, int currentRow);

  void selectionChanged(int row);
  /// "3 minutes ago" would otherwise stand still.
  void refreshDates();

 private:
  void replace(const RowReplacement& replacement, LargeFileList& fresh);
  void rowsChanged(std::size_t first, std::size_t count, const QList<int>& roles = {});

  const std::unordered_set<Uuid>& _selected;
  const Desktop& _desktop;
  LargeFileList _files;
  RowsInSight _inSight;
};

}  // namespace klarvik
