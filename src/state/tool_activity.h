#pragma once

#include <QObject>
#include <map>
#include <string>
#include <variant>

#include "platform/clock.h"

namespace klarvik {

/// What each tool is doing right now, for the sidebar and the menu bar. Main thread only.
class ToolActivity : public QObject {
  Q_OBJECT
 public:
  struct Idle {
    bool operator==(const Idle&) const = default;
  };
  struct Running {
    bool operator==(const Running&) const = default;
  };
  struct Progress {
    double fraction = 0;  ///< 0 to 1
    bool operator==(const Progress&) const = default;
  };
  struct Finished {
    std::string summary;
    bool operator==(const Finished&) const = default;
  };
  using State = std::variant<Idle, Running, Progress, Finished>;

  explicit ToolActivity(Clock& clock, QObject* parent = nullptr);

  /// An absent key counts as idle.
  [[nodiscard]] State state(const std::string& key) const;
  [[nodiscard]] const std::map<std::string, State>& states() const { return _states; }

  void start(const std::string& key);
  /// `fraction` is held to the range 0 to 1.
  void setProgress(const std::string& key, double fraction);
  /// The summary stands for 6 seconds; then the tool is idle again.
  void finish(const std::string& key, const std::string& summary);
  void clear(const std::string& key);

 signals:
  void statesChanged();

 private:
  void setState(const std::string& key, State state);

  Clock& _clock;
  std::map<std::string, State> _states;
  std::map<std::string, std::unique_ptr<Clock::Alarm>> _clearTasks;
};

}  // namespace klarvik
