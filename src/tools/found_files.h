#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "platform/file_system.h"

namespace klarvik {

/// A list of files that a walk came by, kept so tightly that a million of them do no harm: the
/// bytes of each name, and of each folder once for all that follow one another in it.
class FoundFiles {
 public:
  void add(const WalkEntry& entry);

  [[nodiscard]] std::size_t size() const { return _files.size(); }
  [[nodiscard]] Path path(std::size_t number) const;
  /// Bytes of the last path component.
  [[nodiscard]] std::string name(std::size_t number) const;

 private:
  struct File {
    std::size_t folder;
    std::size_t name;  // where it begins
  };

  std::vector<std::string> _folders;  // each ends with a slash
  std::string _names;                 // each ends with a zero byte
  std::vector<File> _files;
};

}  // namespace klarvik
