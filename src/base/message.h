#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// Marks a text of the program for lupdate, where nothing of Qt is included: it stays English here.
#ifndef QT_TRANSLATE_NOOP
#define QT_TRANSLATE_NOOP(scope, x) x
#endif
#ifndef QT_TRANSLATE_N_NOOP
#define QT_TRANSLATE_N_NOOP(scope, x) x
#endif

namespace klarvik {

/// A text for a person: an English sentence of the program, and what is filled into it. The layers
/// without Qt hand it out; whoever shows it says it in the user's language. Any thread.
class Message {
 public:
  Message() = default;
  /// `source`: "%1" to "%9" stand for `values`, and each "*" for the next of them. A text of the
  /// tables, or one that is marked by QT_TRANSLATE_NOOP("Engine", …).
  explicit(false) Message(std::string_view source, std::vector<std::string> values = {});
  explicit(false) Message(const char* source) : Message(std::string_view(source)) {}
  explicit(false) Message(const std::string& source) : Message(std::string_view(source)) {}
  /// Of a sentence that depends on a count: "%n" stands for it.
  [[nodiscard]] static Message counted(std::string_view source, int count);

  [[nodiscard]] bool empty() const { return _source.empty(); }
  [[nodiscard]] const std::string& source() const { return _source; }
  [[nodiscard]] std::optional<int> count() const { return _count; }
  /// `text` with the values in their places: the source in whatever language.
  [[nodiscard]] std::string filled(std::string_view text) const;
  [[nodiscard]] std::string english() const { return filled(_source); }
  explicit(false) operator std::string() const { return english(); }

  /// The same with a name behind it, which no language changes.
  [[nodiscard]] Message followedBy(std::string_view tail) const;

  /// Equal where they read the same.
  bool operator==(const Message& other) const { return english() == other.english(); }
  bool operator==(const char* text) const { return english() == text; }
  bool operator==(const std::string& text) const { return english() == text; }

 private:
  std::string _source;
  std::vector<std::string> _values;
  std::optional<int> _count;
  std::string _tail;
};

}  // namespace klarvik
