#pragma once

#include <atomic>
#include <functional>
#include <optional>
#include <vector>

#include "platform/desktop_services.h"
#include "platform/status_item.h"
#include "platform/updater.h"
#include "support/gate.h"

// Fakes of what a user meets on a desktop. Main thread only, like the real ones, unless they say
// otherwise.
namespace klarvik {

/// A login item of nothing; a test says what it answers.
class FakeLoginItem final : public LoginItem {
 public:
  [[nodiscard]] Status status() const override;
  bool registerProgram() override;
  bool unregisterProgram() override;

  Status current = Status::notRegistered;
  bool canChange = true;
  int changes = 0;  ///< tried, whatever came of it

 private:
  bool setIfChanged(Status wanted);
};

/// A folder panel that shows nothing: a test answers for the user.
class FakeOpenPanel final : public OpenPanel {
 public:
  void chooseFolders(const Request& request, Answer answer) override;

  /// No folders: the user left the panel. Requires a request.
  void choose(const std::vector<Path>& folders);

  std::vector<Request> requests;

 private:
  Answer _answer;
};

/// A clipboard that only knows whether there is something on it. Empty at first; may be used from
/// any thread.
class FakePasteboard final : public Pasteboard {
 public:
  [[nodiscard]] bool holdsTextOrImage() override;
  void clear() override;
  void copy(std::string_view text) override;

  std::string copied;  ///< the last text; of one thread
  std::atomic<bool> isFilled = false;
  std::atomic<int> clearings = 0;
};

/// Counts how often it was asked to empty the list, and can be held up before it does. May be used
/// from any thread.
class FakeRecentDocuments final : public RecentDocuments {
 public:
  bool clear() override;

  Gate* gate = nullptr;  ///< where it waits, to be set before it is asked
  std::atomic<bool> canClear = true;
  std::atomic<int> clearings = 0;
};

/// A status item that nobody sees: a test presses it, and lets trays come and go.
class FakeStatusItem final : public StatusItem {
 public:
  void setHandlers(Handlers handlers) override;
  [[nodiscard]] bool hasTray() const override;
  void show(const Look& look) override;
  void remove() override;

  void press(const Place& icon = {1000, 0, 24, 24}) const;
  void choose(std::size_t entry) const;
  /// There is one until a test says otherwise.
  void setTray(bool hasTray);

  [[nodiscard]] bool seesThroughWindows() const override { return isComposited; }

  std::optional<Look> shown;
  bool isComposited = true;

 private:
  Handlers _handlers;
  bool _hasTray = true;
};

/// Checks nothing: a test is its server and its user.
class FakeUpdater final : public Updater {
 public:
  void start(UpdaterDelegate& toBeTold) override;
  void stop() override;
  [[nodiscard]] bool canCheckForUpdates() const override;
  void checkForUpdates() override;
  [[nodiscard]] std::optional<Date> lastUpdateCheckDate() const override;
  [[nodiscard]] bool automaticallyChecksForUpdates() const override;
  void setAutomaticallyChecksForUpdates(bool checksByItself) override;
  void present(std::function<void(const UpdateStage&)> toShow) override;
  void install() override;
  void dismiss() override;

  bool canCheck = true;
  bool isAutomatic = true;
  bool canStore = true;
  std::optional<Date> lastCheck;
  UpdaterDelegate* delegate = nullptr;  ///< null: not started
  std::function<void(const UpdateStage&)> show;
  int checks = 0;
  int installs = 0;
  int dismissals = 0;
};

/// Motion as usual, until a test asks for less.
class FakeMotionPreference final : public MotionPreference {
 public:
  [[nodiscard]] bool isReduced() const override { return _reduced; }
  void onChange(std::function<void()> listener) override { _listener = std::move(listener); }

  void setReduced(bool reduced) {
    _reduced = reduced;
    if (_listener) _listener();
  }

 private:
  bool _reduced = false;
  std::function<void()> _listener;
};

/// Opens nothing; remembers what it was asked for.
class FakeWorkspace final : public Workspace {
 public:
  bool openUrl(const std::string& url) override;
  bool openFolder(const Path& folder) override;
  void reveal(const Path& item) override;
  void relaunch() override;

  bool canOpen = true;  ///< what `openUrl` and `openFolder` answer
  std::vector<std::string> openedUrls;
  std::vector<Path> openedFolders;
  std::vector<Path> revealedItems;
  int relaunches = 0;
};

}  // namespace klarvik
