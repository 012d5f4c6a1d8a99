#pragma once

#include <utility>
#include <vector>

#include "platform/open_panel.h"

namespace klarvik {

/// A folder panel that shows nothing: a test answers for the user.
class ScriptedOpenPanel final : public OpenPanel {
 public:
  void chooseFolders(const Request& request, Answer answer) override {
    requests.push_back(request);
    _answer = std::move(answer);
  }

  /// No folders: the user left the panel. Requires a request.
  void choose(const std::vector<Path>& folders) { std::exchange(_answer, {})(folders); }

  std::vector<Request> requests;

 private:
  Answer _answer;
};

}  // namespace klarvik
