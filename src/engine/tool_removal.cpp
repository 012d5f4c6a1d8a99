#include "engine/tool_removal.h"

#include <algorithm>
#include <chrono>
#include <optional>

#include "base/bytes.h"
#include "base/message.h"
#include "engine/place_conditions.h"
#include "engine/tool_answers.h"
#include "places/disk_layout.h"
#include "platform/command_runners.h"
#include "platform/file_system.h"

namespace klarvik {
namespace {

using namespace std::chrono_literals;

/// Docker counts all its files first.
constexpr auto timeToAnswer = 30s;
/// A cache of many files on a slow disk, or a password that the tool asks for.
constexpr auto timeToRemove = 20min;

/// Flatpak's, which asks whether it should go on, and takes having nobody to ask for a no.
constexpr int saidNo = 1;

constexpr std::string_view imagesOfDocker = "Images";
constexpr std::string_view buildCacheOfDocker = "Build Cache";

/// Asks one tool, and reads what it answers.
class Asked {
 public:
  Asked(const Platform& platform, const CleaningTool& tool, const std::stop_token& stop)
      : _platform(platform), _tool(tool), _stop(stop) {}

  /// What it prints; nothing unless it ends well.
  [[nodiscard]] std::optional<std::string> answerTo(ToolCommand command) const {
    return answerTo(command, 0);
  }
  [[nodiscard]] std::optional<std::string> answerTo(ToolCommand command, int status) const {
    const std::vector<std::string> arguments(command.begin(), command.end());
    ToolResult result = _platform.tools.run(arguments, {.time = timeToAnswer, .stop = _stop});
    if (result.end == ToolResult::End::exited && result.status == status) result.status = 0;
    return result.isWhole() ? std::optional(std::move(result.output)) : std::nullopt;
  }

  [[nodiscard]] std::vector<Path> folders() const {
    const auto text = answerTo(_tool.asks);
    if (!text) return {};
    if (_tool.answer == ToolAnswer::condaFolders) return tool_answers::condaFolders(*text);
    const auto one = tool_answers::folder(*text);
    return one ? std::vector{*one} : std::vector<Path>{};
  }

  [[nodiscard]] std::vector<JunkItem> items() const {
    if (!_platform.files.exists(shownAt())) return {};
    switch (_tool.answer) {
      case ToolAnswer::dockerBuildCache:
        return sized(dockerUse(buildCacheOfDocker).reclaimable);
      case ToolAnswer::dockerImages:
        return sized(dockerImages());
      case ToolAnswer::podmanImages:
        return sized(podmanImages());
      case ToolAnswer::flatpakRuntimes:
        return sized(unusedRuntimes());
      case ToolAnswer::snapRevisions:
        return snaps();
      case ToolAnswer::folder:
      case ToolAnswer::condaFolders:
        break;  // the table of places has them
    }
    return {};
  }

  /// What all that is of this kind takes: the difference is what has gone. Nothing when it is not
  /// told.
  [[nodiscard]] std::optional<std::int64_t> taken(const JunkItem& item) const {
    switch (_tool.answer) {
      case ToolAnswer::dockerBuildCache:
        return toldUse(buildCacheOfDocker);
      case ToolAnswer::dockerImages:
        return toldUse(imagesOfDocker);
      case ToolAnswer::podmanImages:
        return podmanImages();
      case ToolAnswer::flatpakRuntimes:
        return installedRuntimes();
      case ToolAnswer::snapRevisions:
      case ToolAnswer::folder:
      case ToolAnswer::condaFolders:
        break;
    }
    return measureWhole(_platform.files, item.path).bytes;
  }

 private:
  [[nodiscard]] std::vector<JunkItem> sized(std::optional<std::int64_t> bytes) const {
    if (bytes.value_or(0) < 1) return {};
    return {item(_tool.item, shownAt(), *bytes)};
  }

  [[nodiscard]] JunkItem item(Message name, Path path, std::int64_t bytes) const {
    return {.name = name.english(),
            .path = std::move(path),
            .size = bytes,
            .reason = std::string(_tool.reason),
            .goesForGood = true,
            .tool = &_tool,
            .nameText = std::move(name)};
  }

  [[nodiscard]] Path shownAt() const {
    constexpr std::string_view inHome = "~/";
    return _tool.shownAt.starts_with(inHome)
               ? _platform.files.home() / _tool.shownAt.substr(inHome.size())
               : Path(_tool.shownAt);
  }

  [[nodiscard]] bool isDockerOfThisMachine() const {
    const auto where = answerTo(_tool.asksFirst);
    return where && tool_answers::isLocalDocker(*where);
  }

  [[nodiscard]] std::optional<std::int64_t> toldUse(std::string_view type) const {
    const auto use = isDockerOfThisMachine() ? askedUse(type) : std::nullopt;
    return use ? std::optional(use->size) : std::nullopt;
  }

  [[nodiscard]] tool_answers::DockerUse dockerUse(std::string_view type) const {
    return isDockerOfThisMachine() ? askedUse(type).value_or(tool_answers::DockerUse{})
                                   : tool_answers::DockerUse{};
  }

  [[nodiscard]] std::optional<tool_answers::DockerUse> askedUse(std::string_view type) const {
    const CleaningTool* sizes = layoutFor(_platform.files.home()).tool("docker-builds");
    const auto text = sizes != nullptr ? answerTo(sizes->asks) : std::nullopt;
    return text ? tool_answers::dockerUse(*text, type) : std::nullopt;
  }

  /// Images share layers, which the list counts for each.
  [[nodiscard]] std::optional<std::int64_t> dockerImages() const {
    const std::int64_t reclaimable = dockerUse(imagesOfDocker).reclaimable;
    const auto text = reclaimable > 0 ? answerTo(_tool.asks) : std::nullopt;
    const auto listed = text ? tool_answers::dockerImages(*text) : std::nullopt;
    return listed ? std::optional(std::min(*listed, reclaimable)) : std::nullopt;
  }

  [[nodiscard]] std::optional<std::int64_t> podmanImages() const {
    const auto text = answerTo(_tool.asks);
    return text ? tool_answers::podmanImages(*text) : std::nullopt;
  }

  [[nodiscard]] std::optional<std::int64_t> installedRuntimes() const {
    const auto text = answerTo(_tool.asksFirst);
    if (!text) return std::nullopt;
    std::int64_t total = 0;
    for (const auto& each : tool_answers::flatpakRuntimes(*text))
      total = addBytes(total, each.size);
    return total;
  }

  [[nodiscard]] std::optional<std::int64_t> unusedRuntimes() const {
    const auto installed = answerTo(_tool.asksFirst);
    const auto unused = installed ? answerTo(_tool.asks, saidNo) : std::nullopt;
    if (!unused) return std::nullopt;
    const auto gone = tool_answers::flatpakUnused(*unused);
    std::int64_t total = 0;
    for (const auto& each : tool_answers::flatpakRuntimes(*installed)) {
      const bool goes = std::ranges::any_of(gone, [&](const tool_answers::FlatpakRuntime& named) {
        return named.id == each.id && named.branch == each.branch;
      });
      if (goes) total = addBytes(total, each.size);
    }
    return total;
  }

  [[nodiscard]] std::vector<JunkItem> snaps() const {
    const auto text = answerTo(_tool.asksFirst) ? answerTo(_tool.asks) : std::nullopt;
    if (!text) return {};
    std::vector<JunkItem> found;
    for (const auto& [name, revision] : tool_answers::disabledSnaps(*text)) {
      std::string fileName = name;
      fileName.append("_").append(revision).append(".snap");
      const Path file = shownAt() / fileName;
      const auto attributes = _platform.files.attributes(file);
      if (!attributes || attributes->kind != FileKind::regular) continue;
      found.push_back(item({QT_TRANSLATE_NOOP("Engine", "%1, revision %2"), {name, revision}}, file,
                           attributes->allocatedBytes));
      found.back().modifiedDate = attributes->modified;
      found.back().toolNames = {name, revision};
    }
    return found;
  }

  const Platform& _platform;
  const CleaningTool& _tool;
  const std::stop_token& _stop;
};

bool isSameFolder(const FileSystem& files, const Path& told, const Path& path) {
  const auto logical = files.logicalPath(told);
  const auto real = logical ? files.realPath(*logical) : std::nullopt;
  return real && real == files.realPath(path);
}

/// Whether what the item stands for is still what the tool would remove.
bool isStillOffered(const Platform& platform, const JunkItem& item, const std::stop_token& stop) {
  const CleaningTool& tool = *item.tool;
  if (tool.item.empty()) {
    const bool isSame = item.identity && entryIdentity(platform.files, item.path) == item.identity;
    return isSame && cleansFolder(platform, tool, item.path, stop);
  }
  return std::ranges::any_of(itemsOf(platform, tool, stop), [&](const JunkItem& offered) {
    return offered.toolNames == item.toolNames;
  });
}

}  // namespace

bool cleansFolder(const Platform& platform, const CleaningTool& tool, const Path& path,
                  const std::stop_token& stop) {
  if (!tool.isRun() || !tool.item.empty()) return false;
  bool isNamed = false;
  for (const Path& told : Asked(platform, tool, stop).folders()) {
    if (isSameFolder(platform.files, told, path)) {
      isNamed = true;
    } else if (const auto other = platform.files.logicalPath(told);
               !other || platform.files.exists(*other)) {
      return false;  // it would clean that one as well
    }
  }
  return isNamed;
}

std::vector<JunkItem> itemsOf(const Platform& platform, const CleaningTool& tool,
                              const std::stop_token& stop) {
  if (!tool.isRun() || tool.item.empty()) return {};
  return Asked(platform, tool, stop).items();
}

ToolRemoval removeByTool(const Platform& platform, const JunkItem& item,
                         const std::stop_token& stop) {
  const DiskLayout& layout = layoutFor(platform.files.home());
  const CleaningTool* tool = item.tool;
  if (tool == nullptr || layout.tool(tool->id) != tool || !tool->isRun()) return {};
  if (!isStillOffered(platform, item, stop)) return {};
  const Asked asked(platform, *tool, stop);
  const auto before = asked.taken(item);
  const auto command = removalCommand(*tool, item.toolNames);
  const ToolResult result = platform.tools.run(command, {.time = timeToRemove, .stop = stop});
  const auto after = before ? asked.taken(item) : std::nullopt;
  if (result.end != ToolResult::End::exited || result.status != 0 || !after) return {};
  return {.succeeded = true, .reclaimed = std::max<std::int64_t>(0, *before - *after)};
}

}  // namespace klarvik
