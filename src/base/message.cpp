#include "base/message.h"

#include <utility>

namespace klarvik {

Message::Message(std::string_view source, std::vector<std::string> values)
    : _source(source), _values(std::move(values)) {}

Message Message::counted(std::string_view source, int count) {
  Message message(source);
  message._count = count;
  return message;
}

Message Message::followedBy(std::string_view tail) const {
  Message message = *this;
  message._tail.append(tail);
  return message;
}

std::string Message::filled(std::string_view text) const {
  std::string result;
  std::size_t star = 0;
  for (std::size_t at = 0; at < text.size(); ++at) {
    const char next = at + 1 < text.size() ? text[at + 1] : '\0';
    const std::size_t place =
        next >= '1' && next <= '9' ? static_cast<std::size_t>(next - '1') : _values.size();
    if (text[at] == '%' && place < _values.size()) {
      result += _values[place];
      ++at;
    } else if (text[at] == '%' && next == 'n' && _count) {
      result += std::to_string(*_count);
      ++at;
    } else if (text[at] == '*' && star < _values.size()) {
      result += _values[star++];
    } else {
      result += text[at];
    }
  }
  return result + _tail;
}

}  // namespace klarvik
