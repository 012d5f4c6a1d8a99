#pragma once

#include <QObject>
#include <span>
#include <string>
#include <string_view>

namespace klarvik {

struct Words;

/// The tools of the main window, in the order of the sidebar.
enum class Section {
  smartScan,
  storage,
  duplicates,
  largeFiles,
  systemData,
  uninstaller,
  privacy,
};

/// What all parts of the window know of a tool; its pane stands in the table of the shell.
struct Tool {
  /// What a scan came to, as text.
  struct Found {
    std::string bytes;
    int count;           ///< of items
    const Words& words;  ///< of the disk
  };
  /// Its line beneath the results of a Smart Scan.
  struct Elsewhere {
    int place;
    std::string_view note;  ///< what its bytes are; empty for a tool without a line
  };

  Section section;
  std::string_view key;  ///< of its total in `ScanCoordinator` and its state in `ToolActivity`
  std::string_view title;
  std::string_view symbol;  ///< in the sidebar; empty for the brand's own glyph
  std::string_view
      group;  ///< the heading that it stands below; empty for the one that stands alone
  int turn;   ///< among the tools that scan by themselves; the lowest is first
  Elsewhere elsewhere;
  /// Its total as a sentence. None for a tool whose total is not shown.
  std::string (*help)(const Found& found);
};

/// All of them, in the order of the sidebar.
[[nodiscard]] std::span<const Tool> tools();
[[nodiscard]] const Tool& tool(Section section);
/// Nothing where no tool has this key.
[[nodiscard]] const Tool* toolOf(std::string_view key);
[[nodiscard]] std::string toolKey(Section section);

/// Posted by whoever has just changed what is on the disk.
inline constexpr const char* diskChangedNotification = "klarvik.diskChanged";
/// Posted by the shell when the application comes to the front.
inline constexpr const char* applicationActiveNotification = "klarvik.applicationActive";

/// Which section of the main window is selected. Not kept across restarts. Main thread only.
class Navigator : public QObject {
  Q_OBJECT
 public:
  using QObject::QObject;
  [[nodiscard]] Section section() const { return _section; }
  void setSection(Section section);

 signals:
  void sectionChanged();

 private:
  Section _section = Section::smartScan;
};

}  // namespace klarvik
