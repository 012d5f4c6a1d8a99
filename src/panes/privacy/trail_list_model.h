#pragma once

#include <QtQml/qqmlregistration.h>
#include <vector>

#include "panes/sectioned_list.h"
#include "places/words.h"
#include "tools/privacy_scanner.h"

namespace klarvik {

class Formatting;

/// The trails that a scan found: for each section that holds one a heading, and below it the
/// trails, largest first. Main thread only.
class TrailListModel : public klarvik::SectionedList {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("The pane makes it.")
 public:
  TrailListModel(const Formatting& formatting, const Words& words, QObject* parent = nullptr);

  /// In the order in which they were found.
  [[nodiscard]] const std::vector<PrivacyItem>& items() const { return _items; }
  [[nodiscard]] std::vector<PrivacyItem> selectedItems() const { return selectedOf(_items); }

  /// Selects all but those that need a review, and those that cannot be cleared.
  void show(std::vector<PrivacyItem> items);
  void clear();
  /// After a clearing of `items`: they go, but for those that stayed, which say why. Rows of other
  /// trails stay where they are.
  void takeOut(const std::vector<PrivacyItem>& items, const std::vector<StayedTrail>& stayed);

 private:
  [[nodiscard]] std::vector<ShownRow> shownRows() const;
  [[nodiscard]] ShownRow row(const PrivacyItem& item) const;

  const Formatting& _formatting;
  const Words& _words;
  std::vector<PrivacyItem> _items;
};

/// Whether clearing a trail of this kind takes something that the user would
/// miss.
[[nodiscard]] bool needsReview(PrivacyCategory category);

}  // namespace klarvik
