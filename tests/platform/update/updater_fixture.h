#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QTcpServer>
#include <algorithm>
#include <filesystem>
#include <memory>
#include <span>
#include <string>
#include <vector>

#include "base/text.h"
#include "https_server.h"
#include "platform/application_info.h"
#include "platform/base64.h"
#include "platform/linux/linux_file_system.h"
#include "platform/update/appcast_updater.h"
#include "platform/update/release_signature.h"
#include "support/application/main_loop.h"
#include "support/desktop_fakes.h"
#include "support/fake_clock.h"
#include "support/fake_user_defaults.h"
#include "support/temporary_folder.h"
#include "test_keys.h"

namespace klarvik {

/// Writes down what it is told.
class FakeUpdaterDelegate final : public UpdaterDelegate {
 public:
  void didFindValidUpdate(const std::string& version) override {
    calls.push_back("found " + version);
  }
  void didNotFindUpdate() override { calls.emplace_back("nothing"); }
  void didAbortWithError(const UpdaterError& error) override {
    calls.push_back("aborted " + std::to_string(error.code));
    lastError = error;
  }
  void didFinishUpdateCycle(const std::optional<UpdaterError>& error) override {
    calls.push_back(error ? "finished " + std::to_string(error->code) : "finished");
  }
  [[nodiscard]] bool mayCheckInBackground() const override { return mayCheck; }

  [[nodiscard]] bool isFinished() const {
    return std::ranges::any_of(calls,
                               [](const auto& call) { return call.starts_with("finished"); });
  }

  std::vector<std::string> calls;
  UpdaterError lastError;
  bool mayCheck = true;
};

/// The updater of a program of version 1.9, and the server of its feed. Time stands still unless a
/// test moves it.
class UpdaterFixture : public ::testing::Test {
 protected:
  UpdaterFixture() {
    disk.makeFolder("/Users/ann");
    server.answer("/k.deb", {.body = archive});
    serve({.version = "2.0"});
    makeUpdater();
  }

  struct FeedItem {
    std::string version;
    std::string url = {};        ///< empty: /k.deb of the server
    std::string length = {};     ///< empty: that of the archive
    std::string signature = {};  ///< empty: a good one; "-": none
    std::string signedAs = {};   ///< empty: the version; what the signature says otherwise
  };

  static std::string rss(const std::string& content) {
    return "<?xml version=\"1.0\"?><rss version=\"2.0\"><channel>" + content + "</channel></rss>";
  }
  [[nodiscard]] std::string feedOf(const FeedItem& item) const {
    const auto or_ = [](const std::string& text, const std::string& other) {
      return text.empty() ? other : text;
    };
    const std::string digest = digestOf(std::as_bytes(std::span(archive)));
    const auto length = wholeNumber<std::int64_t>(or_(item.length, std::to_string(archive.size())));
    const auto statement =
        releaseStatement({or_(item.signedAs, item.version), "", length.value_or(0), digest});
    const std::string signature = or_(item.signature, key.sign(statement.value_or("")));
    return rss("<item><sparkle:version>" + item.version + "</sparkle:version><description>Faster." +
               "</description><enclosure url=\"" + or_(item.url, server.address("/k.deb")) +
               "\" length=\"" + or_(item.length, std::to_string(archive.size())) + "\"" +
               (signature == "-" ? ""
                                 : " klarvik:sha256=\"" + base64(digest) +
                                       "\" klarvik:signature=\"" + signature + "\"") +
               "/></item>");
  }
  void serve(const FeedItem& item) { server.answer("/feed", {.body = feedOf(item)}); }

  /// As a program that starts; what was stored stays.
  void makeUpdater() {
    UpdaterOptions options{.downloads = "/Users/ann/Downloads", .systemVersion = "6.1"};
    options.tls = trusts ? server.trustingClient() : QSslConfiguration::defaultConfiguration();
    updater = std::make_unique<AppcastUpdater>(
        AppcastUpdater::Surroundings{info, defaults, files, clock, workspace}, options);
    updater->present([this](const UpdateStage& stage) {
      if (!stages.empty() && stages.back().index() == stage.index()) stages.pop_back();
      stages.push_back(stage);
    });
    updater->start(delegate);
  }

  [[nodiscard]] bool check() {
    updater->checkForUpdates();
    return turnMainLoopUntil(
        [this] { return delegate.isFinished() || is<update_stage::Offered>(); });
  }
  /// To the end of the installation, whichever it is.
  [[nodiscard]] bool install() {
    updater->install();
    return turnMainLoopUntil([this] { return delegate.isFinished(); });
  }

  template <typename Stage>
  [[nodiscard]] bool is() const {
    return !stages.empty() && std::holds_alternative<Stage>(stages.back());
  }
  /// What came in the way of the last check or installation: the sentence, and below it the code of
  /// the network's error where there is one.
  [[nodiscard]] std::string sentence() const { return delegate.lastError.description.english(); }
  [[nodiscard]] std::int64_t urlCode() const {
    const auto& below = delegate.lastError.underlying;
    return below != nullptr && below->domain == urlErrorDomain ? below->code : 0;
  }

  /// Everything in the user's downloads, hidden files included.
  [[nodiscard]] std::vector<std::string> downloads() const {
    std::vector<std::string> names;
    const Path folder = disk.onDisk("/Users/ann/Downloads");
    if (!std::filesystem::exists(folder)) return names;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
      names.push_back(entry.path().filename().native());
    }
    return names;
  }

  const std::string archive = std::string(300'000, 'k') + "end";
  SigningKey key;
  HttpsServer server;
  TemporaryFolder disk;
  LinuxFileSystem files{disk.path(), "/Users/ann"};
  FakeUserDefaults defaults;
  FakeClock clock;
  FakeWorkspace workspace;
  ApplicationInfo info{{"CFBundleShortVersionString", std::string("1.9")},
                       {"CFBundleVersion", std::string("1.9")},
                       {"SUFeedURL", server.address("/feed")},
                       {"SUPublicEDKey", key.publicKey()}};
  bool trusts = true;
  FakeUpdaterDelegate delegate;
  std::vector<UpdateStage> stages;  ///< of several of one kind in a row, the last
  std::unique_ptr<AppcastUpdater> updater;
};

}  // namespace klarvik
