#include "tools/found_files.h"

namespace klarvik {

void FoundFiles::add(const WalkEntry& entry) {
  const Path path = entry.path();
  const std::string_view name = entry.name();
  const auto folder = std::string_view(path.native()).substr(0, path.native().size() - name.size());
  if (_folders.empty() || _folders.back() != folder) _folders.emplace_back(folder);
  _files.push_back({.folder = _folders.size() - 1, .name = _names.size()});
  _names.append(name).push_back('\0');
}

Path FoundFiles::path(std::size_t number) const {
  return _folders[_files[number].folder] + name(number);
}

std::string FoundFiles::name(std::size_t number) const {
  return _names.data() + _files[number].name;
}

}  // namespace klarvik
