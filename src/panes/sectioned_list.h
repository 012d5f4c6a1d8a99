#pragma once

#include <QtQml/qqmlregistration.h>
#include <QString>
#include <QUrl>
#include <algorithm>
#include <iterator>
#include <optional>
#include <unordered_set>
#include <vector>

#include "core/uuid.h"
#include "panes/keyed_list_model.h"

namespace klarvik {

/// Items below the headings of their sections, as one flat list, and which of them are selected.
/// Made for lists whose texts are quickly written: all rows are, when they come. Main thread only.
/// Models name it with its namespace, since qmllint finds a base by its whole name.
class SectionedList : public klarvik::KeyedListModel {
  Q_OBJECT
  QML_ANONYMOUS
 public:
  enum class RowKind { Heading, Item };
  Q_ENUM(RowKind)
  enum Role {
    KindRole = Qt::UserRole,
    NameRole,
    PathRole,
    UrlRole,
    NoteRole,
    CountRole,
    SizeRole,
    IsSelectedRole,
    CanSelectRole,
    DescriptionRole,
  };

  using KeyedListModel::KeyedListModel;

  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
  [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

  [[nodiscard]] const std::unordered_set<Uuid>& selected() const { return _selected; }
  /// Selects the item of the row, or no longer. Nothing on a heading, and on what cannot be
  /// selected.
  void toggle(int row);

 signals:
  /// Also when what is selected came or went.
  void selectionChanged();

 protected:
  /// What is shown of an item; of a heading where there is none.
  struct ShownRow {
    std::optional<Uuid> item = std::nullopt;
    QString name;
    QString path = {};
    QUrl url = {};
    QString note = {};
    QString count = {};
    QString size = {};
    QString description;
    bool canSelect = true;
  };

  /// Into a list that is empty.
  void fill(std::vector<ShownRow> rows, std::unordered_set<Uuid> selected);
  void empty();
  /// Shows something else of an item in the list. One that cannot be selected any more is not.
  void replace(ShownRow row);
  /// Takes the heading of a section along that is left without an item. All other rows stay.
  void remove(const std::unordered_set<Uuid>& items);

  template <typename Item>
  [[nodiscard]] std::vector<Item> selectedOf(const std::vector<Item>& items) const {
    std::vector<Item> chosen;
    std::ranges::copy_if(items, std::back_inserter(chosen),
                         [this](const Item& item) { return _selected.contains(item.id); });
    return chosen;
  }

 private:
  std::vector<ShownRow> _shown;
  std::unordered_set<Uuid> _selected;
};

}  // namespace klarvik
