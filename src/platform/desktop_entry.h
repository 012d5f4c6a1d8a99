#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace klarvik {

/// The heading of the group in which a desktop entry says what it is.
constexpr std::string_view desktopEntryGroup = "[Desktop Entry]";

/// The value of a key in that group of an entry's text, as it stands there but for the blanks
/// around it: a part of `entry`. The first one counts. Nothing where there is none.
[[nodiscard]] std::optional<std::string_view> valueInDesktopEntry(std::string_view entry,
                                                                  std::string_view key);

/// What an entry says of the application that it starts. Texts are as the entry has them, their
/// escapes undone; they may hold any bytes but line ends, and are empty where the entry says
/// nothing.
struct DesktopEntry {
  std::string name;  ///< not translated
  std::string command;
  std::string tryCommand;
  std::string icon;  ///< of an icon theme, or a path
  std::string windowClass;
  std::string flatpak;  ///< identifier of the Flatpak
  std::string snap;     ///< name of the snap
  bool isApplication = false;
  bool isHidden = false;                   ///< counts as not being there
  bool isNotDisplayed = false;             ///< is there, but in no menu
  bool isSettingsPanel = false;            ///< a page of the desktop's settings
  bool isAppImage = false;                 ///< an AppImage has put it there
  std::vector<std::string> onlyShownIn{};  ///< desktops; empty: in all
  std::vector<std::string> notShownIn{};

  /// Whether a menu of one of `desktops` shows it.
  [[nodiscard]] bool isShownIn(const std::vector<std::string>& desktops) const;
};

/// Whatever `text` holds, there is an answer: what it does not say well, it does not say.
[[nodiscard]] DesktopEntry readDesktopEntry(std::string_view text);

/// The words of an entry's command: quotes and escapes undone, fields for files and the like left
/// out. None where a quote is not closed.
[[nodiscard]] std::vector<std::string> wordsOfCommand(std::string_view command);

/// The program among the words of a command, where "env" and variables before it are passed over;
/// empty where there is none.
[[nodiscard]] std::string programOfCommand(const std::vector<std::string>& words);

/// The pieces between semicolons, without the empty ones.
[[nodiscard]] std::vector<std::string> splitDesktopList(std::string_view list);

/// The names that the desktop around this program goes by; none where there is no desktop. Reads
/// the environment: while no thread changes it.
[[nodiscard]] std::vector<std::string> currentDesktops();

}  // namespace klarvik
