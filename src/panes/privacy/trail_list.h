#pragma once

#include <QtQml/qqmlregistration.h>
#include <QAbstractListModel>
#include <cstddef>
#include <cstdint>
#include <unordered_set>
#include <variant>
#include <vector>

#include "places/words.h"
#include "tools/privacy_item.h"

namespace klarvik {

class Formatting;

/// The trails that a scan found, as one flat list: for each section that holds
/// one a heading, and below it the trails, largest first. Main thread only.
class TrailList : public QAbstractListModel {
  Q_OBJECT
  QML_NAMED_ELEMENT(TrailListModel)
  QML_UNCREATABLE("The pane makes it.")
 public:
  enum class RowKind { Heading, Trail };
  Q_ENUM(RowKind)
  enum Role {
    KindRole = Qt::UserRole,
    NameRole,
    PathRole,
    UrlRole,
    CostRole,
    CountRole,
    SizeRole,
    IsSelectedRole,
    DescriptionRole,
  };

  TrailList(const Formatting& formatting, const Words& words, QObject* parent = nullptr);

  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
  [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

  /// In the order in which they were found.
  [[nodiscard]] const std::vector<PrivacyItem>& items() const { return _items; }
  [[nodiscard]] const std::unordered_set<Uuid>& selected() const { return _selected; }
  [[nodiscard]] std::vector<PrivacyItem> selectedItems() const;

  /// Selects all but those whose clearing hurts.
  void show(std::vector<PrivacyItem> items);
  void clear();
  /// Rows of other trails stay where they are.
  void remove(const std::vector<PrivacyItem>& items);
  /// Selects the trail of the row, or no longer. Nothing on a heading.
  void toggle(int row);

 signals:
  /// Also when what is selected came or went.
  void selectionChanged();

 private:
  struct Heading {
    std::string_view title;
  };
  using Row = std::variant<Heading, Uuid>;

  [[nodiscard]] std::vector<Row> rowsOf(const std::vector<PrivacyItem>& items) const;
  void removeRow(std::size_t row);
  [[nodiscard]] const PrivacyItem& item(const Uuid& id) const;
  [[nodiscard]] static QVariant headingData(const Heading& heading, int role);
  [[nodiscard]] QVariant trailData(const PrivacyItem& item, int role) const;

  const Formatting& _formatting;
  const Words& _words;
  std::vector<PrivacyItem> _items;
  std::unordered_set<Uuid> _selected;
  std::vector<Row> _rows;
};

/// Whether clearing a trail of this kind takes something that the user would
/// miss.
[[nodiscard]] bool hurts(PrivacyCategory category);

}  // namespace klarvik
