#include "platform/update/appcast_updater.h"

#include <fcntl.h>

#include <QSslConfiguration>
#include <QUrl>
#include <algorithm>
#include <array>
#include <utility>

#include "base/message.h"
#include "base/posix_io.h"
#include "base/text.h"
#include "platform/application_info.h"
#include "platform/base64.h"
#include "platform/desktop_services.h"
#include "platform/update/appcast.h"
#include "platform/update/release_signature.h"
#include "platform/update/update_errors.h"
#include "platform/user_defaults.h"

namespace klarvik {
namespace {

using namespace std::chrono_literals;

constexpr const char* automaticKey = "automaticallyChecksForUpdates";
constexpr const char* lastCheckKey = "lastUpdateCheckDate";
constexpr auto betweenChecks = 24h;
constexpr auto betweenLooks = 1h;
constexpr std::size_t publicKeyBytes = 32;

/// What an archive may be called at its end; any other name is left without one.
constexpr std::array<std::string_view, 10> extensions{
    ".deb",    ".rpm",    ".flatpak", ".snap",    ".appimage",
    ".tar.gz", ".tar.xz", ".tar.bz2", ".tar.zst", ".zip"};

std::string extensionOf(const std::string& address) {
  const std::string name =
      lowercased(QUrl(QString::fromStdString(address)).fileName().toStdString());
  const auto found = std::ranges::find_if(
      extensions, [&](std::string_view extension) { return name.ends_with(extension); });
  return found != extensions.end() ? std::string(*found) : std::string();
}

UpdaterError unusableFeed(std::int64_t urlCode, Message reason) {
  return wrapped(updater_code::feedNotUsable,
                 QT_TRANSLATE_NOOP("Engine", "The update feed cannot be used."),
                 urlError(urlCode, std::move(reason)));
}

UpdaterError notSaved() {
  return {updaterErrorDomain, updater_code::downloadFailed,
          QT_TRANSLATE_NOOP("Engine", "The update could not be saved in your Downloads folder.")};
}

UpdaterError notGenuine() {
  return notAcceptable(QT_TRANSLATE_NOOP(
      "Engine",
      "The update is not what the makers of Klarvik have signed, so Klarvik has thrown it away."));
}

/// As far as the network itself is to blame; what the updater said already stands.
UpdaterError during(const char* description, std::int64_t code, const UpdaterError& error) {
  return error.domain == urlErrorDomain ? wrapped(code, description, error) : error;
}

}  // namespace

AppcastUpdater::AppcastUpdater(const Surroundings& surroundings, UpdaterOptions options)
    : _around(surroundings), _options(std::move(options)) {}

AppcastUpdater::~AppcastUpdater() {
  abandon();
  _background.finish();
}

void AppcastUpdater::start(UpdaterDelegate& delegate) {
  _delegate = &delegate;
  _nextLook = _around.clock.wakeAfter(0s, [this] { checkIfDue(); });
}

void AppcastUpdater::stop() {
  abandon();
  _nextLook.reset();
  _delegate = nullptr;
  show(update_stage::Hidden{});
}

bool AppcastUpdater::canCheckForUpdates() const {
  const bool isFree = _phase == Phase::idle || _phase == Phase::offered || _standing;
  return _delegate != nullptr && isFree;
}

void AppcastUpdater::checkForUpdates() {
  if (!canCheckForUpdates()) return;
  returnToStandingOffer();
  _isFollowed = true;
  show(update_stage::Checking{});
  if (_phase == Phase::offered) return offer(std::move(_offer));
  check();
}

std::optional<Date> AppcastUpdater::lastUpdateCheckDate() const {
  const auto stored = _around.defaults.object(lastCheckKey);
  const auto* const seconds = stored ? std::get_if<std::int64_t>(&*stored) : nullptr;
  const auto now = std::chrono::floor<std::chrono::seconds>(_around.clock.now());
  // What lies ahead was no check of ours.
  if (seconds == nullptr || *seconds < 0 || *seconds > now.time_since_epoch().count()) {
    return _lastCheck;
  }
  return Date(std::chrono::seconds(*seconds));
}

bool AppcastUpdater::automaticallyChecksForUpdates() const {
  return _around.defaults.boolean(automaticKey, true);
}

void AppcastUpdater::setAutomaticallyChecksForUpdates(bool checks) {
  _around.defaults.set(automaticKey, checks);
}

void AppcastUpdater::present(std::function<void(const UpdateStage&)> show) {
  _show = std::move(show);
}

void AppcastUpdater::install() {
  returnToStandingOffer();
  if (_phase == Phase::offered) return download();
  if (_delivered.empty()) return;
  if (!isStillWhatWasDelivered()) {
    _delivered.clear();
    return fail(notAcceptable(QT_TRANSLATE_NOOP(
        "Engine",
        "The update is no longer the file that was checked, so Klarvik does not open it.")));
  }
  const Path disk = _around.files.diskPath(_delivered);
  const QUrl address = QUrl::fromLocalFile(QString::fromStdString(disk.native()));
  if (!_around.workspace.openUrl(address.toEncoded().toStdString())) {
    _around.workspace.reveal(_delivered);
  }
  dismiss();
}

void AppcastUpdater::dismiss() {
  returnToStandingOffer();
  switch (_phase) {
    case Phase::idle:
      _delivered.clear();
      return show(update_stage::Hidden{});
    case Phase::offered:
      return cancel(updater_code::installationPutOff,
                    QT_TRANSLATE_NOOP("Engine", "The update was put off."));
    case Phase::checking:
      // What the user sees is what came of an earlier check.
      if (!_isFollowed) return show(update_stage::Hidden{});
      [[fallthrough]];
    case Phase::downloading:
    case Phase::verifying:
      return cancel(updater_code::installationCancelled,
                    QT_TRANSLATE_NOOP("Engine", "The update was cancelled."));
  }
}

void AppcastUpdater::checkIfDue() {
  _nextLook = _around.clock.wakeAfter(betweenLooks, [this] { checkIfDue(); });
  // Without a feed there is nothing that a check could find.
  const bool isWanted = automaticallyChecksForUpdates() && _around.info.contains("SUFeedURL") &&
                        _delegate->mayCheckInBackground();
  const bool isAtRest = _phase == Phase::idle && _delivered.empty();
  const bool isOffered = _phase == Phase::offered;
  if ((!isAtRest && !isOffered) || !isWanted || !isDue()) return;
  if (isOffered) return check(std::move(_offer));
  _isFollowed = false;
  check();
}

bool AppcastUpdater::isDue() const {
  const auto last = lastUpdateCheckDate();
  if (!last) return true;
  const auto age = _around.clock.now() - *last;
  // A clock that was set back would put the next check off by as much.
  return age < 0s || age >= betweenChecks;
}

/// Before anything comes of it: a program that is ended meanwhile does not ask again at once.
void AppcastUpdater::rememberCheck() {
  _lastCheck = _around.clock.now();
  const auto seconds = std::chrono::floor<std::chrono::seconds>(*_lastCheck);
  _around.defaults.set(lastCheckKey, std::int64_t{seconds.time_since_epoch().count()});
}

void AppcastUpdater::check(std::optional<UpdateOffer> standing) {
  abandon();
  _standing = std::move(standing);
  _phase = Phase::checking;
  rememberCheck();
  const auto address = informationText(_around.info, "SUFeedURL");
  if (!address)
    return failCheck(unusableFeed(url_code::fileNotFound,
                                  QT_TRANSLATE_NOOP("Engine", "No feed has been named.")));
  _fetch = std::make_unique<HttpsFetch>(
      _network, _around.clock,
      HttpsFetch::Request{
          QUrl(QString::fromStdString(*address), QUrl::StrictMode), _options.feed,
          unusableFeed(url_code::badResponse, QT_TRANSLATE_NOOP("Engine", "The feed is too long.")),
          tls()},
      [this](std::string_view bytes) {
        _feed += bytes;
        return std::nullopt;
      },
      [this](const auto& error) { judgeFeed(error); });
}

void AppcastUpdater::returnToStandingOffer() {
  if (!_standing) return;
  UpdateOffer standing = std::move(*_standing);
  abandon();
  _offer = std::move(standing);
  _phase = Phase::offered;
}

void AppcastUpdater::judgeFeed(const std::optional<UpdaterError>& error) {
  if (error) {
    return failCheck(during(QT_TRANSLATE_NOOP("Engine", "The update feed could not be read."),
                            updater_code::feedNotUsable, *error));
  }
  const auto items = parseAppcast(_feed);
  if (!items)
    return failCheck(unusableFeed(url_code::badResponse,
                                  QT_TRANSLATE_NOOP("Engine", "The feed is no appcast.")));
  auto choice = chooseUpdate(*items, runningProgram(), _options.archive.mostBytes);
  if (const auto* objection = std::get_if<UpdaterError>(&choice)) return failCheck(*objection);
  auto* const found = std::get_if<UpdateOffer>(&choice);
  if (found == nullptr) return foundNothing();
  if (_standing == *found) return returnToStandingOffer();
  offer(std::move(*found));
}

/// An offer that waits does not go because of a bad connection.
void AppcastUpdater::failCheck(const UpdaterError& error) {
  return _standing ? returnToStandingOffer() : fail(error);
}

QSslConfiguration AppcastUpdater::tls() const {
  return _options.tls ? *_options.tls : QSslConfiguration::defaultConfiguration();
}

RunningProgram AppcastUpdater::runningProgram() const {
  const auto text = [&](const char* key) {
    return informationText(_around.info, key).value_or("");
  };
  RunningProgram running{.build = text("CFBundleVersion"),
                         .displayVersion = text("CFBundleShortVersionString"),
                         .publicKey = bytesOfBase64(text("SUPublicEDKey")),
                         .systemVersion = _options.systemVersion};
  if (running.publicKey && running.publicKey->size() != publicKeyBytes) running.publicKey.reset();
  return running;
}

void AppcastUpdater::offer(UpdateOffer offer) {
  _fetch.reset();
  _standing.reset();
  _phase = Phase::offered;
  _offer = std::move(offer);
  _delegate->didFindValidUpdate(_offer.version);
  show(update_stage::Offered{_offer.version, _offer.notes, _offer.notesLink, _offer.length});
}

void AppcastUpdater::foundNothing() {
  const bool isShown = _isFollowed || _standing;
  abandon();
  _delegate->didNotFindUpdate();
  _delegate->didFinishUpdateCycle(std::nullopt);
  if (isShown) show(update_stage::UpToDate{});
}

void AppcastUpdater::download() {
  _isFollowed = true;
  _phase = Phase::downloading;
  _around.files.createDirectories(_options.downloads);
  auto file = PendingFile::in(openFolderHandle(
      AT_FDCWD, _around.files.diskPath(_options.downloads).c_str(), LinkInPlace::followed));
  if (!file) return fail(notSaved());
  _archive = std::make_shared<PendingFile>(std::move(*file));
  FetchLimits limits = _options.archive;
  limits.mostBytes = _offer.length;
  _fetch = std::make_unique<HttpsFetch>(
      _network, _around.clock,
      HttpsFetch::Request{
          QUrl(QString::fromStdString(_offer.address), QUrl::StrictMode), limits,
          notAcceptable(QT_TRANSLATE_NOOP("Engine",
                                          "The update is longer than announced, so Klarvik has "
                                          "thrown it away.")),
          tls()},
      [this](std::string_view bytes) { return store(bytes); },
      [this](const auto& error) { judgeArchive(error); });
  show(update_stage::Downloading{_offer.version, 0, _offer.length});
}

std::optional<UpdaterError> AppcastUpdater::store(std::string_view bytes) {
  if (!_archive->append(bytes)) return notSaved();
  show(update_stage::Downloading{_offer.version, _archive->size(), _offer.length});
  return std::nullopt;
}

void AppcastUpdater::judgeArchive(const std::optional<UpdaterError>& error) {
  if (error) {
    UpdaterError told = during(QT_TRANSLATE_NOOP("Engine", "The update could not be downloaded."),
                               updater_code::downloadFailed, *error);
    // The feed could be read; it is the download that was redirected to a refused address.
    if (told.code == updater_code::feedNotUsable) told.code = updater_code::downloadFailed;
    return fail(told);
  }
  if (_archive->size() != _offer.length) {
    return fail(notAcceptable(QT_TRANSLATE_NOOP(
        "Engine", "The update is shorter than announced, so Klarvik has thrown it away.")));
  }
  verify();
}

/// Off the main thread: reading a long archive, and writing it to the disk, takes longer than a
/// frame.
QCoro::Task<> AppcastUpdater::verify() {
  _fetch.reset();
  _phase = Phase::verifying;
  auto judge = [archive = _archive, digest = _offer.digest] {
    const bool isGenuine = archive->inspect(
        [&](std::span<const std::byte> content) { return digestOf(content) == digest; });
    if (!isGenuine) return std::optional(notGenuine());
    return archive->flush() ? std::nullopt : std::optional(notSaved());
  };
  // The update may be cancelled from here on, and another one begun.
  const auto archive = _archive;
  show(update_stage::Verifying{_offer.version});
  const auto objection = co_await runInBackground(_background, std::move(judge));
  if (archive == _archive) deliver(objection);
}

void AppcastUpdater::deliver(const std::optional<UpdaterError>& objection) {
  if (objection) return fail(*objection);
  const auto published = _archive->commit("Klarvik-" + _offer.version, extensionOf(_offer.address));
  if (!published) return fail(notSaved());
  const std::string version = _offer.version;
  abandon();
  _delivered = _options.downloads / *published;
  _deliveredAs = _around.files.attributes(_delivered);
  _delegate->didFinishUpdateCycle(std::nullopt);
  show(update_stage::Delivered{version, *published});
  _around.workspace.reveal(_delivered);
}

bool AppcastUpdater::isStillWhatWasDelivered() const {
  const auto now = _around.files.attributes(_delivered);
  return now && _deliveredAs && now->identity == _deliveredAs->identity &&
         now->logicalBytes == _deliveredAs->logicalBytes && now->modified == _deliveredAs->modified;
}

void AppcastUpdater::fail(const UpdaterError& error) {
  abandon();
  _delegate->didAbortWithError(error);
  _delegate->didFinishUpdateCycle(error);
  if (_isFollowed) show(update_stage::Failed{error});
}

void AppcastUpdater::cancel(std::int64_t code, const char* description) {
  abandon();
  const UpdaterError error{updaterErrorDomain, code, description};
  _delegate->didAbortWithError(error);
  _delegate->didFinishUpdateCycle(error);
  show(update_stage::Hidden{});
}

/// Back to rest; what was downloaded goes with it, also while its signature is being checked.
void AppcastUpdater::abandon() {
  _phase = Phase::idle;
  _fetch.reset();
  _feed.clear();
  _offer = {};
  _standing.reset();
  if (_archive) _archive->discard();
  _archive.reset();
  _delivered.clear();
}

void AppcastUpdater::show(const UpdateStage& stage) const {
  if (_show) _show(stage);
}

}  // namespace klarvik
