#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <mutex>
#include <nlohmann/json_fwd.hpp>
#include <optional>

#include "base/paths.h"
#include "base/posix_io.h"
#include "platform/user_defaults.h"

namespace klarvik {

/// Keeps other threads and processes out for as long as it lives.
class FileLock {
 public:
  /// Locks `file`, a path on the machine, making it when it is missing. Nothing when it cannot be
  /// made, or when another holds it for longer than `patience`.
  [[nodiscard]] static std::optional<FileLock> take(const Path& file,
                                                    std::chrono::milliseconds patience);

 private:
  explicit FileLock(UniqueFd fd) : _fd(std::move(fd)) {}
  UniqueFd _fd;
};

/// Preferences kept in one JSON document, "preferences.json", in a folder of their own.
///
/// Booleans, integers, floating point numbers and text are JSON values; bytes are an object with
/// the one member "base64". Members of any other form are nobody's value, and stay as they are.
///
/// 1. Another process, or another `JsonUserDefaults`, may use the same folder at the same time:
///    each change is made to what stands on the disk at that moment, under a lock.
/// 2. The document is replaced whole or not at all.
/// 3. A document that is broken (cut short, foreign, too deep, above 16 MiB) reads as empty. Before
///    the next change takes its place it is kept aside as "preferences.broken-DATE.json".
/// 4. A document that cannot be read is never replaced: a change then fails.
///
/// A number that is not finite, and text that is not UTF-8, cannot be stored.
class JsonUserDefaults final : public UserDefaults {
 public:
  /// `folder` is a path on the machine; it is made with the first change.
  explicit JsonUserDefaults(Path folder);
  ~JsonUserDefaults() override;

  /// The document, on the machine; it may not be there yet.
  [[nodiscard]] const Path& file() const { return _file; }

  [[nodiscard]] std::optional<DefaultsValue> object(const std::string& key) const override;
  bool set(const std::string& key, const DefaultsValue& value) override;
  bool remove(const std::string& key) override;

 private:
  struct Reading;
  [[nodiscard]] const Reading& current() const;
  bool change(const std::function<void(nlohmann::json& document)>& apply);

  const Path _folder;
  const Path _file;
  mutable std::mutex _mutex;
  mutable std::unique_ptr<const Reading> _lastReading;
};

}  // namespace klarvik
