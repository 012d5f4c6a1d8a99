#pragma once

#include <QObject>
#include <functional>
#include <optional>
#include <string>
#include <variant>

#include "platform/notification_center.h"
#include "platform/platform.h"
#include "platform/updater.h"

namespace klarvik {

/// What the user reads about an updater's error: what the network's code means, where the network
/// is behind it, else what the updater says itself.
[[nodiscard]] std::string updateErrorText(const UpdaterError& error);

/// What is known about newer versions, made of what the updater tells. Main thread only. Making it
/// starts the updater.
class UpdateManager : public QObject, private UpdaterDelegate {
  Q_OBJECT
 public:
  struct UpdateAvailable {
    std::string version;
    bool operator==(const UpdateAvailable&) const = default;
  };
  struct Failed {
    std::string message;
    bool operator==(const Failed&) const = default;
  };
  struct Unknown {
    bool operator==(const Unknown&) const = default;
  };
  struct Checking {
    bool operator==(const Checking&) const = default;
  };
  struct UpToDate {
    bool operator==(const UpToDate&) const = default;
  };
  using Status = std::variant<UpdateAvailable, Failed, Unknown, Checking, UpToDate>;

  explicit UpdateManager(const Desktop& desktop, QObject* parent = nullptr);
  ~UpdateManager() override;

  [[nodiscard]] const Status& status() const { return _status; }
  [[nodiscard]] std::optional<Date> lastCheckDate() const { return _lastCheckDate; }

  void checkForUpdates();
  [[nodiscard]] std::string lastCheckedText() const;
  [[nodiscard]] std::string detailText() const;
  /// For display only.
  [[nodiscard]] std::string feedAddress() const;

 signals:
  void statusChanged();
  void lastCheckDateChanged();

 private:
  void didFindValidUpdate(const std::string& displayVersion) override;
  void didNotFindUpdate() override;
  void didAbortWithError(const UpdaterError& error) override;
  void didFinishUpdateCycle(const std::optional<UpdaterError>& error) override;
  /// Nobody has agreed to anything before the first run is finished.
  [[nodiscard]] bool mayCheckInBackground() const override { return _isPastFirstRun; }

  void followFirstRun();
  void later(std::function<void()> change);
  void takeError(const UpdaterError& error);
  void setStatus(const Status& status);
  void setCheckedNow();

  const Desktop& _desktop;
  Status _status = Unknown{};
  std::optional<Date> _lastCheckDate;
  bool _isPastFirstRun = false;  ///< and stays so, also when the next start is to begin with one
  NotificationCenter::Subscription _changes;
};

}  // namespace klarvik
