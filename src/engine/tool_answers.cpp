#include "engine/tool_answers.h"

#include <algorithm>
#include <cctype>
#include <nlohmann/json.hpp>

#include "base/bytes.h"
#include "base/text.h"
#include "engine/developer_tool_answers.h"

namespace klarvik::tool_answers {
namespace {

using nlohmann::json;

/// Deeper than anything that is looked for. What is nested deeper is dropped while it is read, so
/// that an answer of any depth fits the stack.
constexpr int deepestKept = 6;

json parsed(std::string_view text) {
  const auto keepShallow = [](int depth, json::parse_event_t, json&) {
    return depth <= deepestKept;
  };
  return json::parse(text, keepShallow, /*allow_exceptions=*/false);
}

std::string textAt(const json& object, const char* key) {
  const auto found = object.find(key);
  return found != object.end() && found->is_string() ? found->get<std::string>() : std::string();
}

/// Not below 0; 0 for what is no whole number.
std::int64_t bytesAt(const json& object, const char* key) {
  const auto found = object.find(key);
  if (found == object.end() || !found->is_number_integer()) return 0;
  if (found->is_number_unsigned() && found->get<std::uint64_t>() > INT64_MAX) return 0;
  return std::max<std::int64_t>(0, found->get<std::int64_t>());
}

std::optional<Path> absolutePath(std::string_view text) {
  const bool hasControls = std::ranges::any_of(
      text, [](char each) { return static_cast<unsigned char>(each) < ' ' || each == '\x7f'; });
  if (!text.starts_with('/') || hasControls) return std::nullopt;
  const Path path = Path(text).lexically_normal();
  return path == "/" ? std::nullopt : std::optional(path);
}

/// Such as "1.2 GB", "1.2?GB" (what a space that does not break becomes in plain English) or
/// "1.2GB (100%)".
std::int64_t bytesOf(std::string_view text) {
  const auto isDigit = [](char each) { return (each >= '0' && each <= '9') || each == '.'; };
  const auto isLetter = [](char each) {
    return std::isalpha(static_cast<unsigned char>(each)) != 0;
  };
  const auto digits = std::ranges::find_if_not(text, isDigit);
  const auto letters = std::find_if(digits, text.end(), isLetter);
  const auto end = std::find_if_not(letters, text.end(), isLetter);
  if (letters - digits > 4) return 0;
  std::string unit(letters, end);
  if (unit == "bytes" || unit == "byte") unit = "B";
  return std::max<std::int64_t>(0, dockerSizeBytes(std::string(text.begin(), digits) + unit));
}

/// The objects, one a line; nothing when a line is none.
std::optional<std::vector<json>> jsonLines(std::string_view text) {
  std::vector<json> objects;
  for (const std::string_view line : splitLines(text)) {
    if (trimmed(line).empty()) continue;
    objects.push_back(parsed(line));
    if (!objects.back().is_object()) return std::nullopt;
  }
  return objects;
}

/// Nothing but what a name is made of, so that no argument can be read as an option or as two.
bool isName(std::string_view text, std::string_view others) {
  return !text.empty() && text.front() != '-' && text.size() < 256 &&
         std::ranges::all_of(text, [&](char each) {
           return std::isalnum(static_cast<unsigned char>(each)) != 0 ||
                  others.find(each) != std::string_view::npos;
         });
}

std::vector<std::string_view> columns(std::string_view line) {
  std::vector<std::string_view> found;
  for (;;) {
    const auto tab = line.find('\t');
    found.push_back(trimmed(line.substr(0, tab)));
    if (tab == std::string_view::npos) return found;
    line.remove_prefix(tab + 1);
  }
}

}  // namespace

std::optional<Path> folder(std::string_view text) {
  std::string_view rest = text;
  const std::string_view line = takeLine(rest);
  return rest.empty() ? absolutePath(line) : std::nullopt;
}

std::vector<Path> condaFolders(std::string_view text) {
  const json answer = parsed(text);
  if (!answer.is_object()) return {};
  const auto found = answer.find("pkgs_dirs");
  if (found == answer.end() || !found->is_array()) return {};
  std::vector<Path> folders;
  for (const json& each : *found) {
    const auto path = each.is_string() ? absolutePath(each.get<std::string>()) : std::nullopt;
    if (!path) return {};
    folders.push_back(*path);
  }
  return folders;
}

std::optional<DockerUse> dockerUse(std::string_view text, std::string_view type) {
  const auto kinds = jsonLines(text);
  if (!kinds) return std::nullopt;
  for (const json& kind : *kinds) {
    if (textAt(kind, "Type") != type) continue;
    return DockerUse{bytesOf(textAt(kind, "Size")), bytesOf(textAt(kind, "Reclaimable"))};
  }
  return std::nullopt;
}

bool isLocalDocker(std::string_view text) {
  std::string_view rest = text;
  return takeLine(rest).starts_with("unix:///") && rest.empty();
}

std::optional<std::int64_t> dockerImages(std::string_view text) {
  const auto images = jsonLines(text);
  if (!images || images->empty()) return std::nullopt;
  std::int64_t total = 0;
  for (const json& image : *images) total = addBytes(total, bytesOf(textAt(image, "Size")));
  return total;
}

std::optional<std::int64_t> podmanImages(std::string_view text) {
  const json images = parsed(text);
  if (!images.is_array()) return std::nullopt;
  std::int64_t total = 0;
  for (const json& image : images) {
    if (!image.is_object() || bytesAt(image, "Containers") > 0) continue;
    const std::int64_t own = bytesAt(image, "Size") - bytesAt(image, "SharedSize");
    total = addBytes(total, std::max<std::int64_t>(0, own));
  }
  return total;
}

std::vector<FlatpakRuntime> flatpakRuntimes(std::string_view text) {
  std::vector<FlatpakRuntime> runtimes;
  for (const std::string_view line : splitLines(text)) {
    const auto cells = columns(line);
    if (cells.size() != 3) continue;
    // ID/ARCHITECTURE/BRANCH
    const std::string_view ref = cells[0];
    const auto first = ref.find('/');
    const auto last = ref.rfind('/');
    if (first == std::string_view::npos || first == last) continue;
    runtimes.push_back(
        {std::string(ref.substr(0, first)), std::string(ref.substr(last + 1)), bytesOf(cells[1])});
  }
  return runtimes;
}

std::vector<FlatpakRuntime> flatpakUnused(std::string_view text) {
  std::vector<FlatpakRuntime> runtimes;
  for (const std::string_view line : splitLines(text)) {
    // " 1.", nothing, ID, branch, and "r" for what is removed
    const auto cells = columns(line);
    if (cells.size() < 5 || cells[4] != "r" || !cells[0].ends_with('.') || !cells[1].empty()) {
      continue;
    }
    if (!wholeNumber<int>(cells[0].substr(0, cells[0].size() - 1))) continue;
    if (!isName(cells[2], "._-") || !isName(cells[3], "._-")) continue;
    runtimes.push_back({std::string(cells[2]), std::string(cells[3])});
  }
  return runtimes;
}

std::vector<SnapRevision> disabledSnaps(std::string_view text) {
  std::string_view rest = text;
  const auto titles = splitWords(takeLine(rest));
  const bool isTable = titles.size() == 6 && titles.front() == "Name" && titles[2] == "Rev" &&
                       titles.back() == "Notes";
  if (!isTable) return {};
  std::vector<SnapRevision> snaps;
  for (const std::string_view line : splitLines(rest)) {
    const auto words = splitWords(line);
    if (words.size() != titles.size() || !isName(words[0], "-_") || !isName(words[2], "")) continue;
    std::string_view notes = words.back();
    bool isDisabled = false;
    while (!notes.empty()) {
      const auto comma = notes.find(',');
      isDisabled = isDisabled || notes.substr(0, comma) == "disabled";
      notes.remove_prefix(comma == std::string_view::npos ? notes.size() : comma + 1);
    }
    if (isDisabled) snaps.push_back({std::string(words[0]), std::string(words[2])});
  }
  return snaps;
}

}  // namespace klarvik::tool_answers
