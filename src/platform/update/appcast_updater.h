#pragma once

#include <QCoro/QCoroTask>
#include <QNetworkAccessManager>
#include <QObject>
#include <QSslConfiguration>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "base/file_writes.h"
#include "platform/clock.h"
#include "platform/file_system.h"
#include "platform/main_loop/background_tasks.h"
#include "platform/update/https_fetch.h"
#include "platform/update/update_choice.h"
#include "platform/updater.h"

namespace klarvik {

class UserDefaults;
class Workspace;
struct ApplicationInfo;

struct UpdaterOptions {
  Path downloads;             ///< logical; made where it is missing
  std::string systemVersion;  ///< what an item's minimum is compared with
  FetchLimits feed{1'048'576, std::chrono::seconds(20), std::chrono::seconds(60)};
  FetchLimits archive{536'870'912, std::chrono::seconds(30), std::chrono::hours(2)};
  /// Absent: the usual one, which takes long to load and is loaded when something is fetched.
  std::optional<QSslConfiguration> tls = std::nullopt;
};

/// Finds updates in the feed that the application's information names under "SUFeedURL", and
/// accepts an archive only when the holder of the key behind "SUPublicEDKey" has signed it.
///
/// Checks by itself at most once a day, whatever came of the last check, and also while an offer
/// waits for an answer: a newer version takes its place, and one that was withdrawn goes. What it
/// does on the disk: the preferences "automaticallyChecksForUpdates" and "lastUpdateCheckDate", and
/// one file in the user's downloads once an archive has been accepted.
class AppcastUpdater final : public QObject, public Updater {
 public:
  /// All of these must outlive the updater.
  struct Surroundings {
    const ApplicationInfo& info;
    UserDefaults& defaults;
    FileSystem& files;
    Clock& clock;
    Workspace& workspace;
  };

  AppcastUpdater(const Surroundings& surroundings, UpdaterOptions options);
  /// Waits for the check of an archive that is under way.
  ~AppcastUpdater() override;

  void start(UpdaterDelegate& delegate) override;
  void stop() override;
  [[nodiscard]] bool canCheckForUpdates() const override;
  void checkForUpdates() override;
  [[nodiscard]] std::optional<Date> lastUpdateCheckDate() const override;
  [[nodiscard]] bool automaticallyChecksForUpdates() const override;
  void setAutomaticallyChecksForUpdates(bool checks) override;
  void present(std::function<void(const UpdateStage&)> show) override;
  void install() override;
  void dismiss() override;

 private:
  enum class Phase { idle, checking, offered, downloading, verifying };

  void checkIfDue();
  [[nodiscard]] bool isDue() const;
  /// `standing` is offered again unless the feed says otherwise.
  void check(std::optional<UpdateOffer> standing = std::nullopt);
  void returnToStandingOffer();
  void failCheck(const UpdaterError& error);
  void rememberCheck();
  void judgeFeed(const std::optional<UpdaterError>& error);
  void offer(UpdateOffer offer);
  void foundNothing();

  void download();
  [[nodiscard]] std::optional<UpdaterError> store(std::string_view bytes);
  void judgeArchive(const std::optional<UpdaterError>& error);
  QCoro::Task<> verify();
  void deliver(const std::optional<UpdaterError>& objection);

  [[nodiscard]] bool isStillWhatWasDelivered() const;
  void fail(const UpdaterError& error);
  void cancel(std::int64_t code, const char* description);
  void abandon();
  void show(const UpdateStage& stage) const;
  [[nodiscard]] RunningProgram runningProgram() const;
  [[nodiscard]] QSslConfiguration tls() const;

  const Surroundings _around;
  const UpdaterOptions _options;
  QNetworkAccessManager _network;
  UpdaterDelegate* _delegate = nullptr;
  std::function<void(const UpdateStage&)> _show;
  std::unique_ptr<Clock::Alarm> _nextLook;
  std::optional<Date> _lastCheck;

  Phase _phase = Phase::idle;
  bool _isFollowed = false;  ///< the user has asked, and is to see what comes of it
  std::unique_ptr<HttpsFetch> _fetch;
  std::string _feed;
  UpdateOffer _offer;
  std::optional<UpdateOffer> _standing;  ///< while the feed is read again
  std::shared_ptr<PendingFile> _archive;
  Path _delivered;  ///< logical; empty: nothing
  std::optional<FileAttributes> _deliveredAs;
  BackgroundTasks _background;
};

}  // namespace klarvik
