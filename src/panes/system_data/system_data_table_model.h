#pragma once

#include <QtQml/qqmlregistration.h>
#include <cstddef>
#include <set>
#include <string>
#include <vector>

#include "panes/keyed_list_model.h"
#include "panes/system_data/system_data_findings.h"
#include "places/disk_layout.h"

namespace klarvik {

class Formatting;

/// The findings as one flat list for a virtualised view: a row for each kind, and below an open one
/// an explanation with the column words, and its items. Main thread only; the findings must outlive
/// it.
class SystemDataTableModel : public klarvik::KeyedListModel {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("The pane makes it.")
 public:
  enum class RowKind { Kind, Header, Item };
  Q_ENUM(RowKind)
  enum Role {
    RowKindRole = Qt::UserRole,
    KindNameRole,
    NameRole,
    DetailRole,
    PathRole,
    UrlRole,
    SymbolRole,
    ColorRole,
    SafetyRole,
    SafetyTextRole,
    SelectionRole,
    CanToggleRole,
    SelectionHelpRole,
    ShareRole,
    SizeRole,
    IsExpandedRole,
    DescriptionRole,
  };

  SystemDataTableModel(SystemDataFindings& findings, const Formatting& formatting, Path home,
                       QObject* parent = nullptr);

  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
  [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

  /// Names of the kinds that are open.
  [[nodiscard]] const std::set<std::string>& expandedCategories() const {
    return _expandedCategories;
  }
  /// To be called whenever the findings have another result.
  void syncRows();
  /// To be called whenever the findings have another selection.
  void syncSelection();

  /// What pressing the row does: a kind opens or closes, an item is selected or not.
  Q_INVOKABLE void activate(int row);
  /// The kind that the row belongs to; requires that the row is there.
  Q_INVOKABLE [[nodiscard]] int kindRow(int row) const;
  /// What pressing the selection box of the row does. Nothing on a row that has none.
  Q_INVOKABLE void toggleSelection(int row);

 signals:
  /// By `activate` or `toggleSelection`.
  void selectionToggled();

 private:
  void toggleExpansion(SystemDataSubCategory category);
  [[nodiscard]] std::vector<Row> rowsToShow() const;
  [[nodiscard]] const SystemDataKind* kindOf(const Row& row) const;
  [[nodiscard]] const SystemDataItem* itemOf(const Row& row) const;
  [[nodiscard]] QVariant dataOfKind(const SystemDataKind& kind, int role) const;
  [[nodiscard]] QVariant dataOfItem(const SystemDataItem& item, int role) const;

  SystemDataFindings& _findings;
  const Formatting& _formatting;
  Path _home;
  const DiskLayout& _layout;
  std::set<std::string> _expandedCategories;
};

}  // namespace klarvik
