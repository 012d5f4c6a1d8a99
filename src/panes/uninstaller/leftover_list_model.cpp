#include "panes/uninstaller/leftover_list_model.h"

#include <utility>

#include "base/bytes.h"
#include "panes/kit/row_text.h"
#include "panes/uninstaller/uninstaller_texts.h"
#include "translation/translation.h"

namespace klarvik {
namespace {

bool isKeptBack(ResidualCategory category) {
  return category == ResidualCategory::preferences || category == ResidualCategory::appSupport;
}

std::int64_t sizeOf(const std::vector<ResidualFile>& residuals) {
  std::int64_t sum = 0;
  for (const ResidualFile& residual : residuals) sum = addBytes(sum, residual.size);
  return sum;
}

}  // namespace

LeftoverListModel::LeftoverListModel(const Formatting& formatting, QObject* parent)
    : SectionedList(parent), _formatting(formatting) {}

std::int64_t LeftoverListModel::totalSize() const {
  return sizeOf(_residuals);
}

std::int64_t LeftoverListModel::selectedSize() const {
  return sizeOf(selectedResiduals());
}

void LeftoverListModel::show(std::vector<ResidualFile> residuals) {
  clear();
  std::unordered_set<Uuid> selected;
  for (const ResidualFile& residual : residuals) {
    if (residual.isPreselected && !isKeptBack(residual.category)) selected.insert(residual.id);
  }
  _residuals = std::move(residuals);
  fill(shownRows(), std::move(selected));
}

void LeftoverListModel::clear() {
  _residuals.clear();
  empty();
}

std::vector<LeftoverListModel::ShownRow> LeftoverListModel::shownRows() const {
  std::vector<ShownRow> rows;
  for (const ResidualCategory category : allResidualCategories()) {
    std::vector<ShownRow> section;
    std::int64_t size = 0;
    for (const ResidualFile& residual : _residuals) {
      if (residual.category != category) continue;
      size = addBytes(size, residual.size);
      section.push_back(row(residual));
    }
    if (section.empty()) continue;
    rows.push_back(heading(category, size));
    std::ranges::move(section, std::back_inserter(rows));
  }
  return rows;
}

LeftoverListModel::ShownRow LeftoverListModel::heading(ResidualCategory category,
                                                       std::int64_t size) const {
  const QString name = translated(rawValue(category));
  const QString sizeText = byteText(size, _formatting);
  const QString whatItIs = uninstaller::whatItIs(category);
  return {.name = name,
          .note = whatItIs,
          .size = sizeText,
          .description = rowDescription(name, sizeText, whatItIs)};
}

LeftoverListModel::ShownRow LeftoverListModel::row(const ResidualFile& residual) const {
  const QString name = printableText(residual.url.filename().native());
  const QString size = byteText(residual.size, _formatting);
  const QString whatItIs = uninstaller::whatItIs(residual.category);
  return {.item = residual.id,
          .name = name,
          .path = printableText(residual.url.native()),
          .url = urlOfPath(residual.url),
          .note = whatItIs,
          .size = size,
          .description = rowDescription(name, size, whatItIs)};
}

}  // namespace klarvik
