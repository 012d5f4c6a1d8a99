#include "panes/large_files/row_arrangement.h"

#include <algorithm>
#include <iterator>
#include <span>
#include <unordered_map>
#include <utility>

namespace klarvik {
namespace {

using Rows = std::span<const LargeFileList::value_type>;

/// A row that is in both lists.
struct KeptRow {
  std::size_t before = 0;
  std::size_t after = 0;
};

/// Of the rows in sight; none of them passes another.
std::vector<KeptRow> keptRows(Rows before, Rows after, const RowsInSight& inSight) {
  std::unordered_map<const LargeFile*, std::size_t> places;
  const auto look = [&](std::size_t row) {
    if (row < before.size()) places.emplace(before[row].get(), row);
  };
  for (std::size_t row = inSight.first; row < inSight.first + inSight.count; ++row) look(row);
  if (inSight.current) look(*inSight.current);

  std::vector<KeptRow> kept;
  for (std::size_t row = 0; row < after.size() && kept.size() < places.size(); ++row) {
    const auto place = places.find(after[row].get());
    if (place == places.end()) continue;
    if (kept.empty() || kept.back().before < place->second) kept.push_back({place->second, row});
  }
  return kept;
}

/// What is left to replace once the rows that both lists begin and end with are set aside.
RowReplacement replacement(Rows before, Rows after, RowReplacement whole) {
  Rows old = before.subspan(whole.at, whole.before);
  Rows fresh = after.subspan(whole.from, whole.after);
  const auto begin = std::ranges::mismatch(old, fresh);
  const auto sameAtStart = static_cast<std::size_t>(std::distance(old.begin(), begin.in1));
  old = old.subspan(sameAtStart);
  fresh = fresh.subspan(sameAtStart);
  const auto end = std::mismatch(old.rbegin(), old.rend(), fresh.rbegin(), fresh.rend());
  const auto sameAtEnd = static_cast<std::size_t>(std::distance(old.rbegin(), end.first));
  return {.at = whole.at + sameAtStart,
          .before = old.size() - sameAtEnd,
          .from = whole.from + sameAtStart,
          .after = fresh.size() - sameAtEnd};
}

std::vector<std::string_view> firstKinds(const LargeFileList& files) {
  std::vector<std::string_view> kinds;
  for (const auto& file : files) {
    const std::string_view kind = file->kind();
    const auto place = std::ranges::lower_bound(kinds, kind);
    if (place == kinds.end() || *place != kind) kinds.insert(place, kind);
  }
  kinds.resize(std::min(kinds.size(), mostKinds));
  return kinds;
}

LargeFileList displayed(const LargeFileList& files, const FileView& view,
                        const Formatting& formatting) {
  LargeFileList shown;
  shown.reserve(files.size());
  std::ranges::copy_if(files, std::back_inserter(shown),
                       [&](const auto& file) { return !view.kind || file->kind() == *view.kind; });
  if (view.sort != LargeFileSort::size) sortFiles(shown, view.sort, formatting);
  return shown;
}

}  // namespace

std::vector<RowReplacement> replacements(const LargeFileList& before, const LargeFileList& after,
                                         const RowsInSight& inSight) {
  std::vector<RowReplacement> found;
  std::size_t at = 0;
  std::size_t from = 0;
  const auto replaceUpTo = [&](std::size_t endBefore, std::size_t endAfter) {
    const RowReplacement whole{
        .at = at, .before = endBefore - at, .from = from, .after = endAfter - from};
    const RowReplacement needed = replacement(before, after, whole);
    if (needed.before + needed.after > 0) found.push_back(needed);
    at = endBefore + 1;
    from = endAfter + 1;
  };
  for (const KeptRow& kept : keptRows(before, after, inSight)) {
    replaceUpTo(kept.before, kept.after);
  }
  replaceUpTo(before.size(), after.size());
  return found;
}

RowArrangement arrange(const LargeFileList& files, const FileView& view, const LargeFileList& rows,
                       const RowsInSight& inSight, const Formatting& formatting) {
  RowArrangement arrangement;
  arrangement.rows = displayed(files, view, formatting);
  arrangement.replacements = replacements(rows, arrangement.rows, inSight);
  arrangement.kinds = firstKinds(files);
  return arrangement;
}

}  // namespace klarvik
