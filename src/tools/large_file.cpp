#include "tools/large_file.h"

#include <algorithm>

#include "base/unicode_text.h"
#include "places/disk_layout.h"
#include "platform/formatting.h"

namespace klarvik {

namespace {

bool isLarger(const LargeFileList::value_type& left, const LargeFileList::value_type& right) {
  return left->size > right->size;
}

// No date is the earliest of all.
bool isLongerUnopened(const LargeFileList::value_type& left,
                      const LargeFileList::value_type& right) {
  return left->lastOpened < right->lastOpened;
}

void sortByName(LargeFileList& files, const Formatting& formatting) {
  struct Named {
    std::string name;
    LargeFileList::value_type file;
  };
  std::vector<Named> named;
  named.reserve(files.size());
  for (auto& file : files) named.push_back({file->url.filename(), std::move(file)});
  std::stable_sort(named.begin(), named.end(), [&](const Named& left, const Named& right) {
    return formatting.compareNames(left.name, right.name) < 0;
  });
  std::transform(named.begin(), named.end(), files.begin(),
                 [](Named& each) { return std::move(each.file); });
}

}  // namespace

std::string_view LargeFile::kind() const {
  const std::string extension = lowercased(url.extension().native());
  if (extension.size() > 1) {
    const std::string_view wanted = std::string_view(extension).substr(1);
    // Where the file lies tells the disk's layout as well as the home does.
    for (const FileKindName& kind : layoutFor(url).fileKinds) {
      if (std::ranges::find(kind.extensions, wanted) != kind.extensions.end()) return kind.name;
    }
  }
  return "Other";
}

std::string LargeFile::lastOpenedText(const Formatting& formatting, Date now) const {
  return lastOpened ? formatting.relative(*lastOpened, now) : "never";
}

std::string_view label(LargeFileSort sort) {
  switch (sort) {
    case LargeFileSort::size:
      return "Size";
    case LargeFileSort::date:
      return "Last opened";
    case LargeFileSort::name:
      return "Name";
  }
  return {};
}

void sortFiles(LargeFileList& files, LargeFileSort sort, const Formatting& formatting) {
  switch (sort) {
    case LargeFileSort::size:
      return std::stable_sort(files.begin(), files.end(), isLarger);
    case LargeFileSort::date:
      return std::stable_sort(files.begin(), files.end(), isLongerUnopened);
    case LargeFileSort::name:
      return sortByName(files, formatting);
  }
}

void mergeBySize(LargeFileList& sorted, LargeFileList fresh) {
  std::stable_sort(fresh.begin(), fresh.end(), isLarger);
  const auto known = static_cast<std::ptrdiff_t>(sorted.size());
  sorted.resize(sorted.size() + fresh.size());
  auto rest = sorted.begin() + known;
  auto gap = sorted.end();
  for (auto file = fresh.rbegin(); file != fresh.rend(); ++file) {
    const auto place = std::upper_bound(sorted.begin(), rest, *file, isLarger);
    gap = std::move_backward(place, rest, gap);
    rest = place;
    *--gap = std::move(*file);
  }
}

}  // namespace klarvik
