#include "platform/desktop_entry.h"

#include <algorithm>
#include <cstdlib>
#include <functional>
#include <utility>

#include "base/text.h"

namespace klarvik {
namespace {

constexpr std::string_view blanks = " \t\r";

/// Each key of the entry's own group with its value, in their order.
void forEachValue(std::string_view entry,
                  const std::function<bool(std::string_view, std::string_view)>& see) {
  bool isInGroup = false;
  while (!entry.empty()) {
    const std::string_view line = trimmed(takeLine(entry), blanks);
    if (line.starts_with('[')) isInGroup = line == desktopEntryGroup;
    const auto equals = line.find('=');
    if (!isInGroup || line.starts_with('#') || equals == std::string_view::npos) continue;
    const bool goesOn =
        see(trimmed(line.substr(0, equals), blanks), trimmed(line.substr(equals + 1), blanks));
    if (!goesOn) return;
  }
}

/// "\s" is a blank; a line end has no place in what an entry is read for, and is one too.
std::string withoutEscapes(std::string_view value) {
  std::string text;
  for (std::size_t at = 0; at < value.size(); ++at) {
    if (value[at] != '\\' || at + 1 == value.size()) {
      text += value[at];
      continue;
    }
    const char escaped = value[++at];
    switch (escaped) {
      case 's':
      case 'n':
      case 't':
      case 'r':
        text += ' ';
        break;
      case '\\':
        text += '\\';
        break;
      default:
        text += '\\';
        text += escaped;
    }
  }
  return text;
}

bool overlap(const std::vector<std::string>& one, const std::vector<std::string>& other) {
  return std::ranges::any_of(
      one, [&](const std::string& each) { return std::ranges::find(other, each) != other.end(); });
}

bool isSettingsCategory(const std::string& category) {
  return category.starts_with("X-GNOME-Settings-Panel") || category.starts_with("X-KDE-settings") ||
         category.starts_with("X-XFCE-SettingsDialog");
}

/// Takes the first word off `command`. Nothing, and `command` as it was, where a quote is not
/// closed or there is none.
std::optional<std::string> takeWord(std::string_view& command) {
  std::string_view rest = command;
  rest.remove_prefix(std::min(rest.find_first_not_of(" \t"), rest.size()));
  if (rest.empty()) return std::nullopt;
  std::string word;
  bool isQuoted = false;
  while (!rest.empty()) {
    const char character = rest.front();
    if (!isQuoted && (character == ' ' || character == '\t')) break;
    rest.remove_prefix(1);
    if (character == '"') {
      isQuoted = !isQuoted;
    } else if (character == '\\' && isQuoted && !rest.empty()) {
      word += rest.front();
      rest.remove_prefix(1);
    } else {
      word += character;
    }
  }
  if (isQuoted) return std::nullopt;
  command = rest;
  return word;
}

/// "%F" and the like stand for what the program is started with; "%%" is a percent sign.
std::string withoutFields(std::string_view word) {
  std::string text;
  for (std::size_t at = 0; at < word.size(); ++at) {
    if (word[at] != '%') {
      text += word[at];
    } else if (++at < word.size() && word[at] == '%') {
      text += '%';
    }
  }
  return text;
}

}  // namespace

std::optional<std::string_view> valueInDesktopEntry(std::string_view entry, std::string_view key) {
  std::optional<std::string_view> found;
  forEachValue(entry, [&](std::string_view name, std::string_view value) {
    if (name == key) found = value;
    return !found;
  });
  return found;
}

bool DesktopEntry::isShownIn(const std::vector<std::string>& desktops) const {
  return (onlyShownIn.empty() || overlap(onlyShownIn, desktops)) && !overlap(notShownIn, desktops);
}

DesktopEntry readDesktopEntry(std::string_view text) {
  DesktopEntry entry;
  std::vector<std::string_view> seen;  // of a key that stands there twice, the first counts
  forEachValue(text, [&](std::string_view key, std::string_view value) {
    if (key.starts_with("X-AppImage-")) entry.isAppImage = true;
    if (key.starts_with("X-KDE-System-Settings")) entry.isSettingsPanel = true;
    struct Text {
      std::string_view key;
      std::string DesktopEntry::*member;
    };
    constexpr Text texts[]{{"Name", &DesktopEntry::name},
                           {"Exec", &DesktopEntry::command},
                           {"TryExec", &DesktopEntry::tryCommand},
                           {"Icon", &DesktopEntry::icon},
                           {"X-Flatpak", &DesktopEntry::flatpak},
                           {"StartupWMClass", &DesktopEntry::windowClass},
                           {"X-SnapInstanceName", &DesktopEntry::snap}};
    struct Flag {
      std::string_view key, value;
      bool DesktopEntry::*member;
    };
    constexpr Flag flags[]{{"Type", "Application", &DesktopEntry::isApplication},
                           {"Hidden", "true", &DesktopEntry::isHidden},
                           {"NoDisplay", "true", &DesktopEntry::isNotDisplayed}};
    const bool isKnown =
        std::ranges::any_of(texts, [&](const Text& each) { return each.key == key; }) ||
        std::ranges::any_of(flags, [&](const Flag& each) { return each.key == key; }) ||
        key == "OnlyShowIn" || key == "NotShowIn" || key == "Categories";
    if (!isKnown || std::ranges::find(seen, key) != seen.end()) return true;
    seen.push_back(key);
    for (const Text& each : texts) {
      if (each.key == key) entry.*each.member = withoutEscapes(value);
    }
    for (const Flag& each : flags) {
      if (each.key == key) entry.*each.member = value == each.value;
    }
    if (key == "OnlyShowIn") entry.onlyShownIn = splitDesktopList(value);
    if (key == "NotShowIn") entry.notShownIn = splitDesktopList(value);
    if (key == "Categories" && std::ranges::any_of(splitDesktopList(value), isSettingsCategory)) {
      entry.isSettingsPanel = true;
    }
    return true;
  });
  return entry;
}

std::vector<std::string> wordsOfCommand(std::string_view command) {
  std::vector<std::string> words;
  while (auto word = takeWord(command)) {
    std::string plain = withoutFields(*word);
    if (!plain.empty()) words.push_back(std::move(plain));
  }
  const bool isWhole = command.find_first_not_of(" \t") == std::string_view::npos;
  return isWhole ? words : std::vector<std::string>{};
}

std::string programOfCommand(const std::vector<std::string>& words) {
  const auto isVariable = [](const std::string& word) {
    const auto equals = word.find('=');
    return equals != std::string::npos && word.find('/') > equals;
  };
  const auto isEnv = [](const std::string& word) {
    return word == "env" || word == "/usr/bin/env" || word == "/bin/env";
  };
  bool isAfterEnv = false;
  for (const std::string& word : words) {
    if (isEnv(word)) {
      isAfterEnv = true;
    } else if (!isVariable(word)) {
      // An option of "env" may take the next word along.
      return isAfterEnv && word.starts_with('-') ? std::string() : word;
    }
  }
  return {};
}

std::vector<std::string> splitDesktopList(std::string_view list) {
  std::vector<std::string> pieces;
  while (!list.empty()) {
    const auto end = std::min(list.find(';'), list.size());
    const std::string_view piece = trimmed(list.substr(0, end), blanks);
    if (!piece.empty()) pieces.emplace_back(piece);
    list.remove_prefix(std::min(end + 1, list.size()));
  }
  return pieces;
}

std::vector<std::string> currentDesktops() {
  const char* const names = std::getenv("XDG_CURRENT_DESKTOP");
  std::string list = names != nullptr ? names : "";
  std::ranges::replace(list, ':', ';');
  return splitDesktopList(list);
}

}  // namespace klarvik
