#pragma once

#include <QtQml/qqmlregistration.h>
#include <cstdint>
#include <vector>

#include "panes/sectioned_list.h"
#include "tools/app_info.h"

namespace klarvik {

class Formatting;

/// What the opened application has left behind: for each category that has something a heading,
/// and below it the leftovers, largest first. Main thread only.
class LeftoverListModel : public klarvik::SectionedList {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("The pane makes it.")
 public:
  explicit LeftoverListModel(const Formatting& formatting, QObject* parent = nullptr);

  [[nodiscard]] const std::vector<ResidualFile>& residuals() const { return _residuals; }
  /// In the order in which they were found.
  [[nodiscard]] std::vector<ResidualFile> selectedResiduals() const {
    return selectedOf(_residuals);
  }
  [[nodiscard]] std::int64_t totalSize() const;
  [[nodiscard]] std::int64_t selectedSize() const;

  /// Selects all but settings and data that the user may want again.
  void show(std::vector<ResidualFile> residuals);
  void clear();

 private:
  [[nodiscard]] std::vector<ShownRow> shownRows() const;
  [[nodiscard]] ShownRow heading(ResidualCategory category, std::int64_t size) const;
  [[nodiscard]] ShownRow row(const ResidualFile& residual) const;

  const Formatting& _formatting;
  std::vector<ResidualFile> _residuals;
};

}  // namespace klarvik
