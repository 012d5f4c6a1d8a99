#include "platform/linux/json_user_defaults.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <chrono>
#include <cmath>
#include <ctime>
#include <limits>
#include <nlohmann/json.hpp>
#include <thread>

#include "base/file_writes.h"
#include "base/posix_io.h"
#include "base/text.h"
#include "platform/base64.h"

namespace klarvik {

std::optional<FileLock> FileLock::take(const Path& file, std::chrono::milliseconds patience) {
  using Clock = std::chrono::steady_clock;
  UniqueFd fd{::open(file.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600)};
  if (!fd) return std::nullopt;
  const Clock::time_point end = Clock::now() + patience;
  while (::flock(fd.get(), LOCK_EX | LOCK_NB) != 0) {
    const bool worthWaiting = errno == EWOULDBLOCK || errno == EINTR;
    if (!worthWaiting || Clock::now() >= end) return std::nullopt;
    std::this_thread::sleep_for(std::chrono::milliseconds(1));
  }
  return FileLock(std::move(fd));
}

namespace {

using nlohmann::json;
using namespace std::chrono_literals;

constexpr std::size_t largestDocument = 16 * 1024 * 1024;
constexpr int deepestNesting = 64;
constexpr const char* bytesMember = "base64";
// Longer than any change takes; shorter than a user waits for a switch to move.
constexpr auto lockPatience = 2s;
// The coarsest time stamp of a file system in use: two changes closer than this may look alike.
constexpr auto stampResolution = 3s;

std::optional<json> encoded(const DefaultsValue& value) {
  if (const auto* bytes = std::get_if<Bytes>(&value)) {
    if (bytes->content.size() > largestDocument) return std::nullopt;
    return json{{bytesMember, base64(bytes->content)}};
  }
  if (const auto* number = std::get_if<double>(&value);
      number != nullptr && !std::isfinite(*number)) {
    return std::nullopt;
  }
  if (const auto* text = std::get_if<std::string>(&value)) {
    return isUtf8(*text) ? std::optional(json(*text)) : std::nullopt;
  }
  if (const auto* boolean = std::get_if<bool>(&value)) return json(*boolean);
  if (const auto* integer = std::get_if<std::int64_t>(&value)) return json(*integer);
  return json(std::get<double>(value));
}

std::optional<DefaultsValue> decodedBytes(const json& value) {
  const auto member = value.find(bytesMember);
  if (value.size() != 1 || member == value.end() || !member->is_string()) return std::nullopt;
  auto content = bytesOfBase64(member->get_ref<const std::string&>());
  if (!content) return std::nullopt;
  return Bytes{std::move(*content)};
}

std::optional<DefaultsValue> decodedInteger(const json& value) {
  constexpr auto largest = static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max());
  if (value.is_number_unsigned() && value.get<std::uint64_t>() > largest) return std::nullopt;
  return value.get<std::int64_t>();
}

std::optional<DefaultsValue> decoded(const json& value) {
  if (value.is_boolean()) return value.get<bool>();
  if (value.is_number_integer()) return decodedInteger(value);
  if (value.is_number_float()) return value.get<double>();
  if (value.is_string()) return value.get<std::string>();
  if (value.is_object()) return decodedBytes(value);
  return std::nullopt;
}

// Nothing unless it is one object of a sane depth: writing a document needs stack for each level.
std::optional<json> parsed(const std::string& text) {
  bool tooDeep = false;
  const auto watchDepth = [&](int depth, json::parse_event_t, json&) {
    tooDeep = tooDeep || depth > deepestNesting;
    return !tooDeep;
  };
  json document = json::parse(text, watchDepth, /*allow_exceptions=*/false);
  if (tooDeep || !document.is_object()) return std::nullopt;
  return document;
}

// Tells one state of a file from another without reading it.
struct Stamp {
  ::dev_t device = 0;
  ::ino_t inode = 0;
  ::off_t size = 0;
  std::chrono::nanoseconds modified{};
  std::chrono::nanoseconds changed{};
  bool operator==(const Stamp&) const = default;
};

Stamp stampOf(const struct ::stat& status) {
  const auto time = [](const ::timespec& moment) {
    return std::chrono::seconds(moment.tv_sec) + std::chrono::nanoseconds(moment.tv_nsec);
  };
  return {status.st_dev, status.st_ino, status.st_size, time(status.st_mtim), time(status.st_ctim)};
}

std::string timestamp() {
  const std::time_t now = std::time(nullptr);
  std::tm utc{};
  ::gmtime_r(&now, &utc);
  std::array<char, 32> text{};
  std::strftime(text.data(), text.size(), "%Y-%m-%d-%H%M%S", &utc);
  return text.data();
}

// Only under the lock, so that nobody else takes the free name meanwhile.
bool keepAside(const Path& file) {
  const std::string stem = "preferences.broken-" + timestamp();
  struct ::stat status {};
  Path aside = file.parent_path() / (stem + ".json");
  for (int copy = 2; ::lstat(aside.c_str(), &status) == 0; ++copy) {
    aside = file.parent_path() / (stem + '-' + std::to_string(copy) + ".json");
  }
  return ::rename(file.c_str(), aside.c_str()) == 0;
}

}  // namespace

struct JsonUserDefaults::Reading {
  enum class Condition { absent, sound, broken, unreadable };
  Condition condition = Condition::absent;
  json document = json::object();
  Stamp stamp{};
  // The file was old enough when it was read for any later change to show in its stamp.
  bool settled = false;

  static Reading of(const Path& file);
  static Reading failed(int error);
  [[nodiscard]] bool stillHolds(const Path& file) const;
};

JsonUserDefaults::Reading JsonUserDefaults::Reading::failed(int error) {
  return {.condition = error == ENOENT ? Condition::absent : Condition::unreadable};
}

JsonUserDefaults::Reading JsonUserDefaults::Reading::of(const Path& file) {
  const auto now = std::chrono::system_clock::now().time_since_epoch();
  // Not waiting for the other end, should it be a pipe.
  const UniqueFd fd{::open(file.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY)};
  if (!fd) return errno == ENXIO ? Reading{.condition = Condition::broken} : failed(errno);
  struct ::stat status {};
  if (::fstat(fd.get(), &status) != 0) return failed(errno);
  if (!S_ISREG(status.st_mode)) return {.condition = Condition::broken};

  Reading reading{.condition = Condition::broken, .stamp = stampOf(status)};
  reading.settled = now > reading.stamp.changed + stampResolution;
  if (status.st_size > static_cast<::off_t>(largestDocument)) return reading;
  const std::optional<std::string> content = readToEnd(fd.get(), largestDocument);
  if (!content) return failed(EIO);
  if (auto document = parsed(*content)) {
    reading.condition = Condition::sound;
    reading.document = std::move(*document);
  }
  return reading;
}

bool JsonUserDefaults::Reading::stillHolds(const Path& file) const {
  struct ::stat status {};
  return settled && ::stat(file.c_str(), &status) == 0 && stampOf(status) == stamp;
}

JsonUserDefaults::JsonUserDefaults(Path folder)
    : _folder(std::move(folder)), _file(_folder / "preferences.json") {}

JsonUserDefaults::~JsonUserDefaults() = default;

const JsonUserDefaults::Reading& JsonUserDefaults::current() const {
  if (!_lastReading || !_lastReading->stillHolds(_file)) {
    _lastReading = std::make_unique<const Reading>(Reading::of(_file));
  }
  return *_lastReading;
}

std::optional<DefaultsValue> JsonUserDefaults::object(const std::string& key) const {
  const std::lock_guard guard(_mutex);
  const json& document = current().document;
  const auto member = document.find(key);
  return member != document.end() ? decoded(*member) : std::nullopt;
}

bool JsonUserDefaults::set(const std::string& key, const DefaultsValue& value) {
  const std::optional<json> newValue = encoded(value);
  if (!newValue || !isUtf8(key)) return false;
  return change([&](json& document) { document[key] = *newValue; });
}

bool JsonUserDefaults::remove(const std::string& key) {
  {
    const std::lock_guard guard(_mutex);
    const Reading& reading = current();
    if (reading.condition != Reading::Condition::unreadable && !reading.document.contains(key)) {
      return true;
    }
  }
  return change([&](json& document) { document.erase(key); });
}

bool JsonUserDefaults::change(const std::function<void(json& document)>& apply) {
  const std::lock_guard guard(_mutex);
  std::error_code error;
  std::filesystem::create_directories(_folder.parent_path(), error);
  ::mkdir(_folder.c_str(), 0700);
  const auto lock = FileLock::take(_folder / "preferences.lock", lockPatience);
  if (!lock) return false;

  const Path place = linkedFile(_file);
  Reading reading = Reading::of(place);
  if (reading.condition == Reading::Condition::unreadable) return false;
  apply(reading.document);
  const std::string text = reading.document.dump(2) + '\n';
  if (text.size() > largestDocument) return false;
  if (reading.condition == Reading::Condition::broken && !keepAside(place)) return false;
  return writeAtomically(place, text);
}

}  // namespace klarvik
