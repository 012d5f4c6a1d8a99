#pragma once

#include <QtQml/qqmlregistration.h>
#include <QAbstractListModel>
#include <cstddef>
#include <functional>
#include <unordered_set>
#include <vector>

#include "panes/duplicates/duplicate_choice.h"
#include "panes/kit/kit_enums.h"
#include "platform/platform.h"

namespace klarvik {

/// The groups on the screen as one flat list for a virtualised view: a row for each group, and
/// below one that stands open a row for each copy. Rows come and go in runs, so that scroll
/// position, focus and hover survive; texts are made when a row is drawn. Main thread only.
class DuplicateRowsModel : public QAbstractListModel {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("The pane makes it.")
 public:
  enum Role {
    IsGroupRole = Qt::UserRole,
    NameRole,
    FolderRole,
    PathRole,
    UrlRole,
    SelectionRole,
    CanToggleRole,
    FateRole,
    DateRole,
    MenuEntryRole,
    CopiesRole,
    EachRole,
    ReclaimableRole,
    IsExpandedRole,
    DescriptionRole,
  };

  /// A group, or a copy of it.
  struct Row {
    const ChosenGroup* group = nullptr;
    std::size_t file = noFile;

    static constexpr std::size_t noFile = static_cast<std::size_t>(-1);
    [[nodiscard]] bool isGroup() const { return file == noFile; }
  };

  /// `choice` is looked at when a row is drawn; the functions below tell that it changed.
  DuplicateRowsModel(const DuplicateChoice& choice, const Desktop& desktop,
                     QObject* parent = nullptr);

  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
  [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

  [[nodiscard]] const std::unordered_set<Uuid>& expanded() const { return _expanded; }
  /// Requires that the row is there.
  [[nodiscard]] const Row& at(int row) const { return _rows[static_cast<std::size_t>(row)]; }
  /// Told by the view: its first row on the screen.
  Q_INVOKABLE void lookAt(int firstRow);
  /// The group that the row belongs to; requires that the row is there.
  Q_INVOKABLE [[nodiscard]] int groupRow(int row) const;

  /// Opens the group of this row, or closes it.
  void toggleExpanded(int row);
  /// To be called before the groups are replaced.
  void removeAll();
  /// To be called after that. The first group stands open.
  void insertAll();
  /// To be called before these files, and the groups that they dissolve, are removed from the
  /// choice; and `allChanged` after that.
  void removeFiles(const DuplicateChoice::Paths& gone, const DuplicateChoice::GroupSet& dissolved);
  void allChanged();
  /// Fates and selection within the group of this row.
  void groupChanged(int row);

 private:
  using IsGone = std::function<bool(const Row&)>;

  void insertCopies(std::size_t groupRow);
  void takeRows(std::size_t first, std::size_t count);
  void removeWithin(std::size_t first, std::size_t last, const IsGone& isGone);
  [[nodiscard]] std::size_t rowsBelow(std::size_t groupRow) const;
  [[nodiscard]] QVariant dataOfGroup(const ChosenGroup& group, int role) const;
  [[nodiscard]] KeepOrDelete::Value fate(const ChosenGroup& group, std::size_t file) const;
  [[nodiscard]] QVariant dataOfCopy(const ChosenGroup& group, std::size_t file, int role) const;

  const DuplicateChoice& _choice;
  const Desktop& _desktop;
  std::vector<Row> _rows;
  std::unordered_set<Uuid> _expanded;
  std::size_t _firstInSight = 0;
};

}  // namespace klarvik
