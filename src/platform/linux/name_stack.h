#pragma once

#include <string>
#include <string_view>

namespace klarvik {

/// Names that wait for their turn, the last one first, packed into one piece of memory.
class NameStack {
 public:
  [[nodiscard]] bool empty() const { return _bytes.empty(); }
  /// For `truncate`: a measure of what is held, not a number of names.
  [[nodiscard]] std::size_t extent() const { return _bytes.size(); }

  void push(std::string_view name) { _bytes.append(name).push_back('\0'); }

  std::string pop() {
    const std::size_t end = _bytes.size() - 1;
    const std::size_t before = end == 0 ? std::string::npos : _bytes.rfind('\0', end - 1);
    const std::size_t start = before == std::string::npos ? 0 : before + 1;
    std::string name = _bytes.substr(start, end - start);
    _bytes.resize(start);
    return name;
  }

  /// Drops what was pushed since `extent()` was this.
  void truncate(std::size_t extent) { _bytes.resize(extent); }

 private:
  std::string _bytes;
};

}  // namespace klarvik
