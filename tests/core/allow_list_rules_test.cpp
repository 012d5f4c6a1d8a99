#include <gtest/gtest.h>

#include <array>
#include <map>
#include <random>
#include <string>
#include <vector>

#include "core/deletion_guard.h"
#include "places/disk_layout.h"

namespace klarvik {
namespace {

using Answer = std::optional<std::string>;
const Answer allowed = std::nullopt;
const Path ann = "/home/ann";
const DeletionScope general = DeletionScope::general();
const DeletionScope pickedFile = DeletionScope::pickedFile();
const DeletionScope writer =
    DeletionScope::residual({"org.acme.writer", "writer", "ssh", "config"});

Answer ask(const Path& path, const DeletionScope& scope = general, const Path& home = ann) {
  return DeletionGuard::refusalReason(path, scope, home);
}

TEST(AllowListRules, LetGoOnlyWhatATableNames) {
  for (const char* path :
       {"/home/ann/.npm/_cacache", "/home/ann/.npm/_cacache/index-v5/00/x",
        "/home/ann/.cache/pip/http", "/home/ann/.cache/some program",
        "/home/ann/.cache/mozilla/firefox/ab.default", "/home/ann/.nvm/versions/node/v20.1.0",
        "/home/ann/.config/google-chrome/Profile 2/GPUCache", "/home/ann/.config/Code/CachedData/x",
        "/home/ann/.local/share/Trash/files/letter.txt", "/home/ann/Projects/app/node_modules"}) {
    EXPECT_EQ(ask(path), allowed) << path;
  }
  for (const std::string path :
       {".npm", ".cache/mozilla", ".nvm/versions/node", "Documents/letter.txt", "Dokumente",
        "Projects/app/src", "node_modules", ".hidden/app/node_modules", ".bashrc"}) {
    EXPECT_EQ(ask(ann / path), "~/" + path + " is no place that Klarvik cleans.");
  }
}

TEST(AllowListRules, LetGoWhatWaitsInTheTrashWhereverThatIs) {
  for (const Path data : {"/home/ann/.local/share", "/home/ann/data", "/home/ann/.my data"}) {
    UserFolders folders = UserFolders::in(ann);
    folders.data = data;
    const auto answer = [&](const Path& path) {
      return DeletionGuard::refusalReason(path, general, folders, layoutFor(ann));
    };
    EXPECT_EQ(answer(data / "Trash/files/letter"), allowed) << data;
    EXPECT_EQ(answer(data / "Trash/files/.venv/x"), allowed) << data;
    EXPECT_NE(answer(data / "Trash/files"), allowed) << data;
    EXPECT_NE(answer(data / "Trash/info/letter.trashinfo"), allowed) << data;
  }
}

TEST(AllowListRules, LetGoWhatWaitsInTheTrashOfAnyVolumeOnlyWhenThatIsWhatIsAsked) {
  const DeletionScope trashed = DeletionScope::trashed();
  for (const char* path :
       {"/.Trash-1000/files/a", "/media/ann/stick/.Trash-1000/files/a b",
        "/mnt/disk/.Trash/1000/files/a", "/tmp/.Trash-1000/files/a",
        "/home/ann/disk/.Trash-1000/files/a", "/home/ann/.local/share/Trash/files/a"}) {
    EXPECT_EQ(ask(path, trashed), allowed) << path;
  }
  for (const char* path :
       {"/media/ann/stick/.Trash-1000/files/a", "/home/ann/disk/.Trash-1000/files/a"}) {
    EXPECT_NE(ask(path), allowed) << path;
    EXPECT_NE(ask(path, DeletionScope::residual({"files"})), allowed) << path;
  }
  for (const char* path :
       {"/media/stick/.Trash-1000/files", "/media/stick/.Trash-1000/info/a.trashinfo",
        "/media/stick/.Trash-ann/files/a", "/media/stick/.Trash-/files/a",
        "/media/stick/.Trash/files/a", "/media/stick/.Trash-1000/files/a/b", "/media/stick/files/a",
        "/files/a", "/home/bob/.Trash-1000/files/a",
        "/media/stick/.Trash-1000/files/passwords.kdbx",
        "/home/ann/disk/.Trash-1000/files/passwords.kdbx", "/home/ann/Documents/a"}) {
    EXPECT_NE(ask(path, trashed), allowed) << path;
  }
}

TEST(AllowListRules, KeepWhatPeopleKeep) {
  EXPECT_EQ(ask("/home/ann/.config/Code/User/settings.json"),
            "~/.config holds your own files, not junk.");
  EXPECT_EQ(ask("/home/ann/.thunderbird/x.default/Mail"),
            "~/.thunderbird holds your own files, not junk.");
  EXPECT_EQ(ask("/home/ann/.local/share/Steam/userdata/1"),
            "~/.local/share holds your own files, not junk.");
  EXPECT_EQ(ask("/home/ann/VirtualBox VMs/w/disk.vdi", pickedFile),
            "~/VirtualBox VMs holds your own files, not junk.");
  EXPECT_EQ(ask("/home/ann/.cache/nvim/swap/x"), "~/.cache/nvim holds your own files, not junk.");
}

TEST(AllowListRules, GiveUpNoSecretInAnyScope) {
  for (const std::string secret : {".ssh/id_ed25519",
                                   ".ssh",
                                   ".SSH/id_rsa",
                                   ".gnupg/private-keys-v1.d/x.key",
                                   ".local/share/keyrings/login.keyring",
                                   ".aws/credentials",
                                   ".cargo/credentials.toml",
                                   ".cargo/bin/tool",
                                   ".gradle/gradle.properties",
                                   ".m2/settings-security.xml",
                                   ".android/adbkey.pub",
                                   ".config/rclone/rclone.conf",
                                   ".cache/rclone/vfs/x",
                                   ".cache/keepassxc",
                                   ".config/Signal/sql/db.sqlite",
                                   "Documents/all.kdbx",
                                   "Projects/x/all.KDBX",
                                   ".local",
                                   ".config",
                                   ".cargo",
                                   ".config/Signal"}) {
    for (const DeletionScope& scope : {general, pickedFile, writer}) {
      EXPECT_EQ(ask(ann / secret, scope), "~/" + secret + " holds keys and passwords.");
    }
  }
}

TEST(AllowListRules, TakeAPickedFileFromTheVisiblePartOfTheHomeOnly) {
  EXPECT_EQ(ask("/home/ann/Dokumente/film.mkv", pickedFile), allowed);
  EXPECT_EQ(ask("/home/ann/film.mkv", pickedFile),
            "~/film.mkv is a whole folder, not a file you picked.");
  EXPECT_EQ(ask("/home/ann/.bash_history", pickedFile),
            "~/.bash_history is no place that Klarvik cleans.");
  EXPECT_EQ(ask("/home/ann/.hidden/film.mkv", pickedFile),
            "~/.hidden/film.mkv is no place that Klarvik cleans.");
  EXPECT_EQ(ask("/home/ann/.cache/pip/wheel", pickedFile), allowed);
}

TEST(AllowListRules, TakeAResidualOnlyByTheWholeOfItsName) {
  EXPECT_EQ(ask("/home/ann/.config/writer", writer), allowed);
  EXPECT_EQ(ask("/home/ann/.config/Writer/settings", writer), allowed);
  EXPECT_EQ(ask("/home/ann/.var/app/org.acme.writer", writer), allowed);
  EXPECT_EQ(ask("/home/ann/.writer", writer), allowed);
  EXPECT_EQ(ask("/home/ann/.config/writers", writer),
            "writers does not belong to the app being removed.");
  EXPECT_EQ(ask("/home/ann/.local/share/my-writer", writer),
            "my-writer does not belong to the app being removed.");
  EXPECT_EQ(ask("/home/ann/writer/x", writer),
            "writer/x is not a place apps leave residual files.");
  EXPECT_EQ(ask("/home/ann/.cache", writer), "~/.cache holds keys and passwords.");
  EXPECT_EQ(ask("/home/ann/.config/x", DeletionScope::residual({"abc"})),
            "App identifier is too short to match residuals safely.");
}

TEST(AllowListRules, TakeAResidualInNoFolderThatManyShare) {
  const DeletionScope greedy = DeletionScope::residual(
      {"applications", "icons", "autostart", "hicolor", "jetbrains", "google", "mozilla", "systemd",
       "local", "share", "snap", "code", "files", "gnome-shell", "user", "apps"});
  for (const char* const path :
       {"/home/ann/.local/share/applications", "/home/ann/.local/share/icons",
        "/home/ann/.config/autostart", "/home/ann/.local/share/icons/hicolor",
        "/home/ann/.config/JetBrains", "/home/ann/.config/google", "/home/ann/.config/systemd",
        "/home/ann/.mozilla", "/home/ann/.local", "/home/ann/.local/share", "/home/ann/snap",
        "/home/ann/.config/files", "/home/ann/.config/gnome-shell",
        "/home/ann/.local/share/icons/hicolor/48x48/apps", "/home/ann/.config/systemd/user"}) {
    EXPECT_NE(ask(path, greedy), allowed) << path;
  }
  EXPECT_EQ(ask("/home/ann/.config/Code", greedy), allowed) << "known by this name";
  EXPECT_NE(ask("/home/ann/.cache/code", greedy), allowed);
  EXPECT_EQ(ask("/home/ann/.vscode/extensions", greedy), allowed);
}

TEST(AllowListRules, TakeEntriesAndIconsOfAnApplicationByTheirNames) {
  EXPECT_EQ(ask("/home/ann/.local/share/applications/writer.desktop", writer), allowed);
  EXPECT_EQ(ask("/home/ann/.config/autostart/org.acme.Writer.desktop", writer), allowed);
  EXPECT_EQ(ask("/home/ann/.local/share/icons/hicolor/48x48/apps/writer.png", writer), allowed);
  EXPECT_NE(ask("/home/ann/.local/share/applications/writer-2.desktop", writer), allowed);
  EXPECT_NE(ask("/home/ann/.local/share/applications/writer.desktop/x", writer), allowed);
  EXPECT_NE(ask("/home/ann/.local/share/icons/Adwaita/48x48/apps/writer.png", writer), allowed);
}

TEST(AllowListRules, TakeOfAnApplicationWhatWasInstalledByHandAndNothingElse) {
  const DeletionScope application = DeletionScope::application();
  for (const char* const path :
       {"/home/ann/Applications/Writer.AppImage", "/home/ann/Downloads/Writer-2.appimage",
        "/home/ann/.local/opt/writer-2", "/home/ann/.local/bin/writer",
        "/home/ann/.local/share/applications/writer.desktop",
        "/home/ann/.local/share/icons/hicolor/48x48/apps/writer.png"}) {
    EXPECT_EQ(ask(path, application), allowed) << path;
  }
  for (const char* const path :
       {"/home/ann", "/home/ann/Applications", "/home/ann/Applications/x/y", "/home/ann/Documents",
        "/home/ann/Documents/letter.txt", "/home/ann/.config/writer", "/home/ann/.local/opt",
        "/home/ann/.local/bin", "/home/ann/.hidden/x.AppImage", "/home/ann/.ssh",
        "/home/ann/.local/share/applications", "/home/ann/Applications/all.kdbx", "/opt/writer",
        "/usr/bin/writer", "/home/ben/Applications/x", "/tmp/x.AppImage"}) {
    EXPECT_NE(ask(path, application), allowed) << path;
  }
}

TEST(AllowListRules, TakeAThingUnderAConditionOnlyAsAWhole) {
  EXPECT_EQ(ask("/home/ann/.var/app/org.gone.App"), allowed);
  EXPECT_EQ(ask("/home/ann/.var/app/org.gone.App/data/letter"),
            "~/.var/app holds your own files, not junk.");
  EXPECT_EQ(ask("/tmp/old"), allowed);
  EXPECT_EQ(ask("/tmp/old/part"), "/tmp/old/part is outside the locations Klarvik cleans.");
}

TEST(AllowListRules, LeaveEverythingOutsideOfTheHomeButOwnTemporaryThings) {
  EXPECT_EQ(ask("/var/tmp/old"), allowed);
  EXPECT_EQ(ask("/tmp/all.kdbx"), "/tmp/all.kdbx holds keys and passwords.");
  EXPECT_EQ(ask("/var/crash/_usr_bin_x.1000.crash"), allowed);
  for (const char* path : {"/tmp/.X11-unix", "/tmp/ssh-abc", "/tmp/systemd-private-x",
                           "/tmp/tmux-1000", "/tmp/snap-private-tmp", "/var/crash/x"}) {
    EXPECT_NE(ask(path), allowed) << path;
  }
  EXPECT_EQ(ask("/var/log/syslog"), "/var/log/ is protected by Linux and by Klarvik.");
  EXPECT_EQ(ask("/usr/share/doc"), "/usr/ is protected by Linux and by Klarvik.");
  EXPECT_EQ(ask("/home"), "/home is a system directory.");
  EXPECT_EQ(ask("/home/ben/.cache/x"), "Refusing to touch another user account.");
  EXPECT_EQ(ask(Path("/root") / ".cache/x"), "Refusing to touch another user account.");
  EXPECT_EQ(ask("/tmp/box", general, "/tmp/box/home/ann"), "/tmp/box holds your home.");
}

TEST(AllowListRules, TakeNoFolderOfTheSystemForAHome) {
  for (const Path home : {"/", "/home", "/mnt", "/var", "/var/lib", "/usr/games", "/nix/x",
                          "/run/u", "/etc", "/opt/x", "", "relative"}) {
    for (const DeletionScope& scope : {general, pickedFile, writer}) {
      EXPECT_NE(ask(home / ".cache/writer", scope, home), allowed) << home;
    }
  }
  for (const Path home : {"/root", "/var/home/ann", "/data/home/ann", "/srv/people/ann"}) {
    EXPECT_EQ(ask(home / ".cache/x", general, home), allowed) << home;
    EXPECT_EQ(ask(home, general, home), "Refusing to delete the home directory.") << home;
  }
}

/// Any spelling of a path that the rules speak of, or of a neighbour of it.
class Spellings {
 public:
  Spellings() {
    const DiskLayout& layout = layoutFor(ann);
    for (const Place& place : layout.places) add(place.base, place.pattern);
    for (const PlacePattern& each : layout.guard.secrets) add(each.base, each.pattern);
    for (const PlacePattern& each : layout.guard.ownPlaces) add(each.base, each.pattern);
    for (const std::string_view each : layout.guard.systemDirectories) _paths.emplace_back(each);
  }

  const std::string& path() { return _paths[below(_paths.size())]; }

  std::string spelled(const std::string& path) {
    static const std::vector<std::string> names{"x", "a b", "\xff\xfe", "...", ".hidden", "Ärger"};
    std::string text;
    for (const Path& part : Path(path).relative_path()) {
      text += below(4) == 0 ? "//" : "/";
      while (below(4) == 0) text += "./";
      while (below(6) == 0) text += names[below(names.size())] + "/../";
      text += part.native();
    }
    if (path == "/") text += '/';
    while (below(4) == 0) text += below(2) == 0 ? "/" : "/.";
    return text;
  }

  std::size_t below(std::size_t count) { return _dice() % count; }

 private:
  void add(Base base, std::string_view pattern) {
    static const std::vector<std::string> stars{"x", ".x", "Default", "rclone", "org.a.B"};
    static const std::vector<std::string> folders{"/",
                                                  "/home/ann/",
                                                  "/home/ann/.cache/",
                                                  "/home/ann/.config/",
                                                  "/home/ann/.local/share/",
                                                  "/home/ann/.local/state/"};
    for (const std::string& star : stars) {
      std::string path = folders[static_cast<std::size_t>(base)];
      for (const char character : pattern) {
        if (character == '*') {
          path += star;
        } else {
          path += character;
        }
      }
      _paths.push_back(path);
      _paths.push_back(path + "/inside");
      _paths.push_back(path + "x");
      _paths.push_back(Path(path).parent_path());
    }
  }

  std::mt19937_64 _dice{20261122};
  std::vector<std::string> _paths;
};

/// By an account of its own, which shares nothing with the rules.
bool isSecret(const std::string& path) {
  for (const char* const secret : {"/.ssh",
                                   "/.gnupg",
                                   "/.pki",
                                   "/.password-store",
                                   "/.local/share/keyrings",
                                   "/.aws",
                                   "/.azure",
                                   "/.netrc",
                                   "/.git-credentials",
                                   "/.npmrc",
                                   "/.pypirc",
                                   "/.cargo/bin",
                                   "/.kube/config",
                                   "/.docker/config.json",
                                   "/.config/gh",
                                   "/.config/rclone",
                                   "/.config/keepassxc",
                                   "/.cache/rclone",
                                   "/.cache/keepassxc",
                                   "/.bitcoin",
                                   "/.monero",
                                   "/.electrum",
                                   "/.ethereum",
                                   "/.vault-token",
                                   "/.gem/credentials",
                                   "/.config/Bitwarden"}) {
    const std::string place = ann.native() + secret;
    if (path == place || path.starts_with(place + "/")) return true;
  }
  return false;
}

TEST(AllowListSpellings, AMillionSpellingsGetTheAnswerOfThePathItselfAndNoSecretIsLetGo) {
  const std::array<DeletionScope, 3> scopes{
      general, pickedFile, DeletionScope::residual({"keyrings", "keepassxc", "rclone", "some"})};
  Spellings spellings;
  std::map<std::pair<std::string, DeletionScope::Kind>, Answer> answers;
  for (int turn = 0; turn < 1'000'000; ++turn) {
    const std::string& path = spellings.path();
    const DeletionScope& scope = scopes[spellings.below(scopes.size())];
    const std::string written = spellings.spelled(path);
    const Answer answer = ask(written, scope);
    const auto known = answers.try_emplace({path, scope.kind});
    if (known.second) known.first->second = ask(path, scope);
    ASSERT_EQ(answer, known.first->second) << testing::PrintToString(written) << " for " << path;
    if (answer == allowed) {
      ASSERT_FALSE(isSecret(path)) << path;
      ASSERT_TRUE(path.starts_with("/home/ann/.") || path.starts_with("/home/ann/") ||
                  path.starts_with("/tmp/") || path.starts_with("/var/tmp/") ||
                  path.starts_with("/var/crash/"))
          << path;
    }
  }
}

}  // namespace
}  // namespace klarvik
