#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "base/paths.h"

namespace klarvik {

/// The desktop around the program. Main thread only; nothing here waits for what it starts.
class Workspace {
 public:
  virtual ~Workspace() = default;
  /// False when the desktop has nothing to open the address with.
  virtual bool openUrl(const std::string& url) = 0;
  /// Opens a folder in the file manager.
  virtual bool openFolder(const Path& folder) = 0;
  /// Shows an item, selected, in the file manager.
  virtual void reveal(const Path& item) = 0;
  /// Starts a new instance of the program, then ends this one.
  virtual void relaunch() = 0;
};

/// The desktop's window for choosing folders. Main thread only.
class OpenPanel {
 public:
  struct Request {
    std::string prompt;   ///< on the button that chooses
    std::string message;  ///< what the choice is for
    Path start;           ///< the folder that is shown first
  };
  /// The folders chosen, in their order; none when the user chose to leave it.
  using Answer = std::function<void(const std::vector<Path>&)>;

  virtual ~OpenPanel() = default;
  /// Lets the user choose one or more folders that exist. Returns at once; `answer` is called
  /// later, from the main loop, and never when the panel is destroyed first. While a panel is open,
  /// asking for another only brings that one to the front.
  virtual void chooseFolders(const Request& request, Answer answer) = 0;
};

/// What the user copied last. May be called from any thread.
class Pasteboard {
 public:
  virtual ~Pasteboard() = default;
  /// Whether there is a text or a picture to paste. A mere reference to files is neither; where the
  /// program that copied it offers a text beside it, there is a text.
  [[nodiscard]] virtual bool holdsTextOrImage() = 0;
  virtual void clear() = 0;
  /// Puts a UTF-8 text there, for the user to paste.
  virtual void copy(std::string_view text) = 0;
};

/// The desktop's list of the documents that were opened last. May be called from any thread.
class RecentDocuments {
 public:
  virtual ~RecentDocuments() = default;
  /// Empties the list; the documents themselves stay. Whether it is empty now. Takes no longer than
  /// writing one small file, so that callers need not do anything else meanwhile.
  virtual bool clear() = 0;
};

/// Whether the program starts by itself when its user logs in. Main thread only.
class LoginItem {
 public:
  enum class Status {
    notRegistered,
    enabled,
    notFound,  ///< this copy of the program is not one that can be started at login
  };

  virtual ~LoginItem() = default;
  /// What holds now, whoever changed it last.
  [[nodiscard]] virtual Status status() const = 0;
  /// False when that failed; nothing has changed then.
  virtual bool registerProgram() = 0;
  virtual bool unregisterProgram() = 0;
};

/// Whether the user asks for less motion. Main thread only.
class MotionPreference {
 public:
  virtual ~MotionPreference() = default;
  [[nodiscard]] virtual bool isReduced() const = 0;
  /// Called after each change from now on, in place of whoever listened before; an empty one ends
  /// that.
  virtual void onChange(std::function<void()> listener) = 0;
};

}  // namespace klarvik
