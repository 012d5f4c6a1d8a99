#pragma once

#include <functional>
#include <string>
#include <vector>

#include "platform/path.h"

namespace klarvik {

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

}  // namespace klarvik
