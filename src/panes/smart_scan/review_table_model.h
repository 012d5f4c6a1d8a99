#pragma once

#include <QtQml/qqmlregistration.h>
#include <QAbstractListModel>
#include <cstddef>
#include <span>
#include <string>
#include <vector>

#include "places/tool.h"
#include "platform/desktop_services.h"
#include "state/app_state.h"

namespace klarvik {

/// What a finished scan found, as one flat list for a virtualised view: a row for each category,
/// and below an expanded one its largest items, where there are more a row that shows the rest, and
/// the hints, each followed by the command that it names. Rows come and go one by one, so that
/// scroll position, focus and expansion survive. Main thread only.
class ReviewTableModel : public QAbstractListModel {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("The pane makes it.")
  Q_PROPERTY(QString commandsNote READ commandsNote NOTIFY commandsNoteChanged)
 public:
  enum class RowKind { Category, Item, ShowMore, Hint, Command };
  Q_ENUM(RowKind)
  enum class Selection { None, Partial, All };
  Q_ENUM(Selection)
  enum Role {
    KindRole = Qt::UserRole,
    NameRole,
    PathRole,
    UrlRole,
    SymbolRole,
    ColorRole,
    SafetyRole,
    SelectionRole,
    ItemsRole,
    SizeRole,
    IsExpandedRole,
    DescriptionRole,
    NoteRole,
    IsInUseRole,
    CanSelectRole,
    IsCopiedRole,
    CanRunRole,
  };

  /// Items of an expanded category that show before the user asks for the rest.
  static constexpr std::size_t firstItems = 8;

  ReviewTableModel(AppState& appState, const Formatting& formatting, Pasteboard& pasteboard,
                   QObject* parent = nullptr);

  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
  [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

  /// What pressing the row does: a category opens or closes, an item is selected or not, the last
  /// row shows the rest, a command is copied.
  Q_INVOKABLE void activate(int row);
  /// The category that the row belongs to; requires that the row is there.
  Q_INVOKABLE [[nodiscard]] int categoryRow(int row) const;
  /// What pressing the selection box of the row does. Nothing on a row that has none.
  Q_INVOKABLE void toggleSelection(int row);
  /// Puts the command of the row where the user can paste it. Nothing on another row.
  Q_INVOKABLE void copyCommand(int row);
  /// Asks for the command of the row to be run. Nothing on a row whose command is only told.
  Q_INVOKABLE void runCommand(int row);
  /// The user has come back to the window: after a copy they may have run what they copied.
  Q_INVOKABLE void windowActivated();

  /// What the user is told about the commands; empty while none is shown.
  [[nodiscard]] QString commandsNote() const;

 signals:
  void commandsNoteChanged();
  void runAsked(const klarvik::CleaningTool& tool);

 private:
  struct ShownCategory {
    CategoryType type = CategoryType::xcodeCache;
    bool isExpanded = false;
    bool showsAll = false;
    ItemSelection::Items items;
    std::vector<std::size_t> ranks;  ///< of the items that have a row
    std::size_t hiddenCount = 0;     ///< items behind the row that shows the rest
    /// Where among the rows of the hints each one stands; its command, if it has one, follows.
    std::vector<std::size_t> hintRows;
    std::size_t hintRowCount = 0;

    [[nodiscard]] std::size_t hintsBegin() const { return 1 + ranks.size() + (hiddenCount > 0); }
    [[nodiscard]] std::size_t rowCount() const { return hintsBegin() + hintRowCount; }
  };
  struct Place {
    std::size_t category = 0;  ///< in `_shown`
    RowKind kind = RowKind::Category;
    std::size_t item = 0;  ///< in the ranks shown of that category, or in its hints
  };

  void syncResults();
  void syncExpansion();
  void syncSelection();

  void insertCategory(std::size_t at, const CleanCategory& category);
  void removeCategory(std::size_t at);
  void updateCategory(std::size_t at);
  void setExpanded(std::size_t at, bool expanded);
  void showAll(std::size_t at);

  void syncItems(std::size_t at);
  void replaceItems(std::size_t at, ItemSelection::Items items, std::size_t count);
  void removeItems(std::size_t at, std::size_t first, std::size_t count);
  void setHiddenCount(std::size_t at, std::size_t hiddenCount);
  void setHints(std::size_t at, std::span<const Hint> hints);
  void rowChanged(std::size_t row, const QList<int>& roles = {});

  [[nodiscard]] const std::vector<CleanCategory>& results() const;
  [[nodiscard]] const CleanCategory* find(CategoryType type) const;
  [[nodiscard]] std::size_t firstRow(std::size_t at) const;
  [[nodiscard]] Place place(int row) const;
  [[nodiscard]] const JunkItem* item(const Place& place) const;
  [[nodiscard]] const Hint* hint(const Place& place) const;
  [[nodiscard]] Selection selection(const CleanCategory& category) const;
  [[nodiscard]] QVariant rowDataOfCategory(const ShownCategory& shown, int role) const;
  [[nodiscard]] QVariant rowDataOfHint(const Place& place, int role) const;
  [[nodiscard]] QVariant rowDataOfCommand(const Place& place, int role) const;
  [[nodiscard]] bool showsCommands() const;
  void tellOfCommands();
  void setCopied(std::string command);
  [[nodiscard]] QVariant rowDataOfItem(const JunkItem& item, CategoryType type, int role) const;

  AppState& _appState;
  const Formatting& _formatting;
  Pasteboard& _pasteboard;
  std::vector<ShownCategory> _shown;
  std::string _copied;  ///< the command that the user has copied and may be about to run
  bool _showedCommands = false;
};

}  // namespace klarvik
