#include "tools/found_files.h"

#include <algorithm>

namespace klarvik {
namespace {

bool liesInOrIs(std::string_view folder, std::string_view above) {
  return above.empty() || (folder.starts_with(above) &&
                           (folder.size() == above.size() || folder[above.size()] == '/'));
}

}  // namespace

void FoundFiles::beginWalk(const Path& start) {
  _folders.push_back({none, start.native()});
  _current = _folders.size() - 1;
  _currentText.clear();
}

void FoundFiles::add(const WalkEntry& entry) {
  goTo(entry.folder());
  _files.push_back({.folder = _current, .name = _names.size()});
  _names.append(entry.name()).push_back('\0');
}

/// Up to the folder that both lie in, and down from there.
void FoundFiles::goTo(std::string_view folder) {
  while (!liesInOrIs(folder, _currentText)) {
    const std::size_t slash = _currentText.rfind('/');
    _currentText.resize(slash == std::string::npos ? 0 : slash);
    _current = _folders[_current].above;
  }
  while (_currentText.size() < folder.size()) {
    const std::size_t begin = _currentText.empty() ? 0 : _currentText.size() + 1;
    const std::size_t end = std::min(folder.find('/', begin), folder.size());
    _folders.push_back({_current, std::string(folder.substr(begin, end - begin))});
    _current = _folders.size() - 1;
    _currentText = folder.substr(0, end);
  }
}

std::string FoundFiles::pathOfFolder(std::size_t folder) const {
  std::vector<const std::string*> names;
  for (; folder != none; folder = _folders[folder].above) names.push_back(&_folders[folder].name);
  std::string text;
  for (auto name = names.rbegin(); name != names.rend(); ++name) {
    if (!text.empty() && text.back() != '/') text.push_back('/');
    text.append(**name);
  }
  return text;
}

std::string FoundFiles::name(std::size_t number) const {
  return _names.data() + _files[number].name;
}

PathText FoundFilePaths::path(std::size_t number) {
  PathText::Folder& folder = _folders[_found._files[number].folder];
  if (!folder) {
    std::string text = _found.pathOfFolder(_found._files[number].folder);
    if (text.back() != '/') text.push_back('/');
    folder = std::make_shared<const std::string>(text);
  }
  return {folder, _found.name(number)};
}

std::optional<FileAttributes> FoundFileAccess::attributes(std::size_t number) {
  open(_found._files[number].folder);
  return _opened ? _opened->attributes(_found.name(number)) : std::nullopt;
}

std::unique_ptr<FileReader> FoundFileAccess::openForReading(std::size_t number) {
  open(_found._files[number].folder);
  return _opened ? _opened->openForReading(_found.name(number)) : nullptr;
}

void FoundFileAccess::open(std::size_t folder) {
  const auto& folders = _found._folders;
  std::vector<std::size_t> below;  // the folder that is open, the lowest first
  std::size_t step = folder;
  while (step != _folder && step != FoundFiles::none) {
    below.push_back(step);
    step = folders[step].above;
  }
  if (step == FoundFiles::none || !_opened) {
    if (folder != _folder) _opened = _files.openFolder(_found.pathOfFolder(folder));
  } else {
    for (auto next = below.rbegin(); next != below.rend() && _opened; ++next) {
      _opened = _opened->openFolder(folders[*next].name);
    }
  }
  _folder = folder;
}

}  // namespace klarvik
