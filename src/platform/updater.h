#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <variant>

#include "base/message.h"
#include "platform/clock.h"

namespace klarvik {

/// The domain of errors that came from the network or from the server at its other end.
inline constexpr const char* urlErrorDomain = "NSURLErrorDomain";
/// The domain of errors that the updater found itself.
inline constexpr const char* updaterErrorDomain = "KlarvikUpdaterErrorDomain";

/// What went wrong, with a code that counts within its domain only.
struct UpdaterError {
  std::string domain;
  std::int64_t code = 0;
  Message description;                                       ///< a whole sentence
  std::shared_ptr<const UpdaterError> underlying = nullptr;  ///< what caused it, where known
};

/// Codes of `updaterErrorDomain`.
namespace updater_code {
inline constexpr std::int64_t noUpdate = 1001;
inline constexpr std::int64_t feedNotUsable = 1002;
inline constexpr std::int64_t updateNotAcceptable = 1003;
inline constexpr std::int64_t downloadFailed = 2001;
inline constexpr std::int64_t installationCancelled = 4007;
inline constexpr std::int64_t installationPutOff = 4008;
}  // namespace updater_code

/// Who is told what becomes of a check. Called on the main thread, within an updater's operation or
/// from the main loop.
class UpdaterDelegate {
 public:
  virtual ~UpdaterDelegate() = default;
  /// `displayVersion` is what people call the version.
  virtual void didFindValidUpdate(const std::string& displayVersion) = 0;
  virtual void didNotFindUpdate() = 0;
  virtual void didAbortWithError(const UpdaterError& error) = 0;
  /// The last call of each check, once nothing is left to do for it.
  virtual void didFinishUpdateCycle(const std::optional<UpdaterError>& error) = 0;
  /// Whether the updater may check although nobody asked for it.
  [[nodiscard]] virtual bool mayCheckInBackground() const = 0;
};

/// What the updater's own window shows. Sizes in bytes.
namespace update_stage {
struct Hidden {};
struct Checking {};
struct Offered {
  std::string version;
  std::string notes;      ///< plain text, never anything else
  std::string notesLink;  ///< an https address, or empty
  std::int64_t bytes = 0;
};
struct Downloading {
  std::string version;
  std::int64_t received = 0;
  std::int64_t total = 0;
};
struct Verifying {
  std::string version;
};
struct Delivered {
  std::string version;
  std::string fileName;  ///< in the user's folder for downloads
};
struct UpToDate {};
struct Failed {
  UpdaterError error;
};
}  // namespace update_stage
using UpdateStage =
    std::variant<update_stage::Hidden, update_stage::Checking, update_stage::Offered,
                 update_stage::Downloading, update_stage::Verifying, update_stage::Delivered,
                 update_stage::UpToDate, update_stage::Failed>;

/// Looks for newer versions of the program, and brings them to the user. Main thread only; nothing
/// here waits for what it starts. What fails is told to the delegate.
class Updater {
 public:
  virtual ~Updater() = default;

  /// From now on checks can be asked for, and run by themselves as far as they are wanted. The
  /// delegate is called until `stop`, which it must not die before.
  virtual void start(UpdaterDelegate& delegate) = 0;
  /// Ends what runs, and calls the delegate no more.
  virtual void stop() = 0;
  /// False while a check, a download or an installation is under way. An offer that waits for the
  /// user's answer keeps nobody from checking: it is presented again.
  [[nodiscard]] virtual bool canCheckForUpdates() const = 0;
  /// A check that the user follows. Nothing happens while `canCheckForUpdates` is false.
  virtual void checkForUpdates() = 0;
  /// When a check was last begun.
  [[nodiscard]] virtual std::optional<Date> lastUpdateCheckDate() const = 0;
  [[nodiscard]] virtual bool automaticallyChecksForUpdates() const = 0;
  /// Kept across restarts.
  virtual void setAutomaticallyChecksForUpdates(bool checks) = 0;

  /// `show` is called with each stage of what the user is to see.
  virtual void present(std::function<void(const UpdateStage&)> show) = 0;
  /// Goes on with what is shown: downloads what is offered, opens what has been delivered. Nothing
  /// in any other stage.
  virtual void install() = 0;
  /// Ends what is shown: puts the offer off, cancels what runs. Nothing that is not whole remains.
  virtual void dismiss() = 0;
};

}  // namespace klarvik
