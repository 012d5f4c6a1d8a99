#pragma once

#include <optional>
#include <string>

#include "base/paths.h"
#include "platform/desktop_services.h"

namespace klarvik {

/// An autostart entry, as the desktops of the freedesktop conventions read them.
///
/// A copy of the program counts as installed when its menu entry lies where such entries belong:
/// for PREFIX/bin/klarvik, that is PREFIX/share/applications. What was only built has none, and
/// would be gone at the next login as likely as not.
class XdgLoginItem final : public LoginItem {
 public:
  struct Places {
    Path program;        ///< the running program's own file; empty when it cannot be told
    Path configuration;  ///< the folder that the user's "autostart" folder lies in
    std::string entry;   ///< the file name of the program's entries, such as "klarvik.desktop"
  };

  /// Both paths are the machine's.
  explicit XdgLoginItem(Places places);
  /// Of the program that runs, for the user whose configuration folder is given.
  [[nodiscard]] static Places placesOfThisProgram(const Path& configuration);

  /// An entry that some desktop has switched off, or that starts another copy, does not count.
  [[nodiscard]] Status status() const override;
  bool registerProgram() override;
  bool unregisterProgram() override;

 private:
  [[nodiscard]] bool isInstalled() const;
  [[nodiscard]] Path autostartEntry() const;

  const Places _places;
  const std::optional<std::string> _command;
};

/// The value of an entry's "Exec" key that starts `program` without arguments. Nothing for a path
/// that such a value cannot name.
[[nodiscard]] std::optional<std::string> execValue(const Path& program);

}  // namespace klarvik
