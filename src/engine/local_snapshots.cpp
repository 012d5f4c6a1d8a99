#include "engine/local_snapshots.h"

#include "base/paths.h"
#include "base/text.h"
#include "engine/shell.h"

namespace klarvik {
namespace {

constexpr std::string_view snapshotFolder = "/.MobileBackups/";
constexpr std::size_t shortestLine = 9;

bool namesASnapshot(std::string_view line) {
  return line.find('-') != std::string_view::npos && characterCount(line) >= shortestLine;
}

}  // namespace

std::vector<std::string> snapshotTexts(std::string_view output) {
  std::vector<std::string> texts;
  for (const auto line : splitLines(output)) {
    const auto text = trimmed(line, " \t");
    // A text that climbs out of the folder would name somebody else's file.
    if (!namesASnapshot(line) || text.empty() || !isSnapshotPath(snapshotPath(text))) continue;
    texts.emplace_back(text);
  }
  return texts;
}

Path snapshotPath(std::string_view text) {
  return Path(std::string(snapshotFolder) + std::string(text));
}

bool isSnapshotPath(const Path& path) {
  return standardizedPath(path).native().starts_with(snapshotFolder);
}

std::optional<std::string> snapshotSizeCommand(const std::string& text) {
  if (!isShellSafe(text)) return std::nullopt;
  return "diskutil apfs listSnapshots / 2>/dev/null | grep -A3 " + text +
         " | grep Size | awk '{print $2}'";
}

std::optional<std::string> snapshotRemovalCommand(const Path& path) {
  const std::string name = path.filename();
  const auto text = std::string_view(path.native()).substr(snapshotFolder.size());
  if (!isShellSafe(text) || !isShellSafe(name)) return std::nullopt;
  return "tmutil deletelocalsnapshots " + name + " 2>/dev/null";
}

std::int64_t snapshotBytes(std::string_view output) {
  return decimalInteger(trimmed(output)).value_or(estimatedSnapshotBytes);
}

namespace {

constexpr std::string_view vendorPrefix = "com.apple.TimeMachine.";

std::string withoutVendorPrefix(std::string_view line) {
  std::string text(line);
  for (auto at = text.find(vendorPrefix); at != std::string::npos;
       at = text.find(vendorPrefix, at)) {
    text.erase(at, vendorPrefix.size());
  }
  return text;
}

}  // namespace

std::vector<std::string> listedSnapshots(std::string_view output) {
  std::vector<std::string> texts;
  for (const std::string_view line : splitLines(output)) {
    if (line.find('.') == std::string_view::npos) continue;
    std::string text = withoutVendorPrefix(trimmed(line, " \t"));
    // A text that climbs out of the folder would name somebody else's file.
    if (text.empty() || !isSnapshotPath(snapshotPath(text))) continue;
    texts.push_back(std::move(text));
  }
  return texts;
}

std::optional<std::string> listedSnapshotSizeCommand(const std::string& text) {
  if (!isShellSafe(text)) return std::nullopt;
  return "diskutil apfs listSnapshots / 2>/dev/null | grep -A5 '" + text +
         "' | grep -i size | head -1 | awk -F'[()]' '{print $2}' | awk '{print $1}'";
}

std::int64_t listedSnapshotBytes(std::string_view output) {
  return decimalInteger(trimmed(output)).value_or(estimatedListedSnapshotBytes);
}

}  // namespace klarvik
