#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

namespace klarvik {

/// The program's small place among the desktop's own indicators, in the tray. There is one; it is
/// not shown until it is asked for. Main thread only.
class StatusItem {
 public:
  /// A bar with round ends, drawn in the colour of the desktop's own indicators. In points from the
  /// upper left corner of the icon.
  struct Pill {
    double x = 0;
    double y = 0;
    double width = 0;
    double height = 0;
    double radius = 0;
    double opacity = 1;
    bool operator==(const Pill&) const = default;
  };
  /// The icon at the size that the desktop asks for, in points.
  using Icon = std::vector<Pill> (*)(double width, double height);

  struct MenuEntry {
    std::string title;
    bool isEnabled = true;
    bool startsGroup = false;  ///< a line parts it from the one before
    bool operator==(const MenuEntry&) const = default;
  };

  struct Look {
    Icon icon = nullptr;
    std::string themeIcon;  ///< the same in the icon theme, which a panel gives its own colour
    std::string title;      ///< beside the icon; empty for none
    std::string toolTip;
    std::vector<MenuEntry> menu;
    bool operator==(const Look&) const = default;
  };

  /// A rectangle on the desktop, in points.
  struct Place {
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;
    bool operator==(const Place&) const = default;
  };

  struct Handlers {
    /// The user pressed the item. `icon` is where it stands, or, on desktops that do not tell,
    /// where the pointer was seen last.
    std::function<void(const Place& icon)> activated;
    /// The user took an entry of the menu, by its index.
    std::function<void(std::size_t entry)> chosen;
    /// `hasTray` has changed.
    std::function<void()> trayChanged;
  };

  virtual ~StatusItem() = default;

  /// Replaces the handlers, which are called from the main loop. None may be set.
  virtual void setHandlers(Handlers handlers) = 0;
  /// Whether this desktop has a tray at this moment. False until that is known.
  [[nodiscard]] virtual bool hasTray() const = 0;
  /// Whether what is below a window is seen through its clear parts; where not, they are black.
  [[nodiscard]] virtual bool seesThroughWindows() const = 0;
  /// Shows the item so, also while it is shown already. Where there is no tray, it appears as soon
  /// as there is one.
  virtual void show(const Look& look) = 0;
  virtual void remove() = 0;
};

}  // namespace klarvik
