// Applications that are called something that no application should be called.

#include <set>

#include "base/text.h"
#include "uninstaller_fixture.h"

namespace klarvik {
namespace {

const std::vector<std::string> kNames{"",
                                      "a",
                                      "com",
                                      "app",
                                      "App",
                                      "App 11",
                                      ".",
                                      "..",
                                      "/",
                                      "../",
                                      " ",
                                      "    ",
                                      "....",
                                      "----",
                                      "Note",
                                      "Documents",
                                      "📱📱📱📱",
                                      "two\nlines",
                                      "/Users/ann/Documents",
                                      "\xff\xfe\xfd\xfc",
                                      "Library",
                                      "*",
                                      "com.apple.Safari"};

const std::vector<std::string> kIdentifiers{"",
                                            "a",
                                            "com",
                                            "com.",
                                            ".",
                                            "..",
                                            "/",
                                            "*",
                                            "....",
                                            "com.a.b",
                                            "com.apple",
                                            "com.apple.Safari",
                                            "Library",
                                            "Caches",
                                            "../../Documents",
                                            "com.acme.Writer\n",
                                            "📱.📱📱📱📱",
                                            "\xff\xff\xff\xff",
                                            "com.Preferences.Desktop"};

const std::vector<std::string> kFolders{"/Users/ann/Library/Preferences",
                                        "/Users/ann/Library/Caches",
                                        "/Users/ann/Library/Application Support",
                                        "/Users/ann/Library/Logs",
                                        "/Users/ann/Library/Containers",
                                        "/Users/ann/Library/Group Containers",
                                        "/Users/ann/Library/Saved Application State",
                                        "/Users/ann/Library/Cookies",
                                        "/Users/ann/Library/HTTPStorages",
                                        "/Users/ann/Library/WebKit",
                                        "/Users/ann/Library/Application Scripts",
                                        "/Library/Preferences",
                                        "/Library/Application Support",
                                        "/Library/Caches"};

const std::vector<std::string> kEntries{
    "a",       "com",        "App",       "App 11",  "note-cache",       "notebook.plist",
    "com.a.b", "com.a.bc",   "Documents", "Library", "com.apple.Safari", "com.apple.finder",
    "📱📱📱📱",    "two\nlines", "....",      "*",       "\xff\xff\xff\xff", ".hidden"};

class UninstallerNames : public UninstallerTest {
 protected:
  std::vector<Path> places;  // files on the disk, outside of the Trash

  void SetUp() override {
    for (const std::string& folder : kFolders) {
      for (const std::string& entry : kEntries) places.push_back(Path(folder) / entry / "data");
    }
    for (const char* const canary :
         {"/Users/ann/notes.txt", "/Users/ann/Documents/letter", "/Users/ann/Documents/com.a.b/x",
          "/Users/ann/Library/Keychains/note", "/Users/ann/Library/note/data",
          "/Users/ben/Library/Caches/com.a.b/data", "/Library/note/data", "/System/Library/note",
          "/Applications/Other.app/Contents/program", "/note"}) {
      places.emplace_back(canary);
    }
    putBackWhatIsGone();
  }

  void putBackWhatIsGone() {
    for (const Path& place : places) {
      if (!disk.holds(place)) disk.makeFile(place, place.native());
    }
  }

  /// Tells, and puts back, what is no longer on the disk.
  std::vector<Path> takeGone() {
    std::vector<Path> gone;
    for (const Path& place : places) {
      if (!disk.holds(place)) gone.push_back(place);
    }
    putBackWhatIsGone();
    return gone;
  }
};

/// The entry of a folder for residuals that `place` is or lies in; empty when in none.
std::string entryAbove(const Path& place) {
  for (const std::string& folder : kFolders) {
    const std::string start = folder + '/';
    if (!place.native().starts_with(start)) continue;
    const std::string rest = place.native().substr(start.size());
    return rest.substr(0, rest.find('/'));
  }
  return {};
}

/// Whether a word of four characters or more that stands in `entry` stands in `text` as well.
bool shareAWord(const std::string& entry, const std::string& text) {
  const std::string lower = lowercased(entry);
  const std::string within = lowercased(text);
  for (std::size_t start = 0; start < lower.size(); ++start) {
    for (std::size_t size = 1; size <= lower.size() - start; ++size) {
      const std::string piece = lower.substr(start, size);
      if (characterCount(piece) >= 4 && within.find(piece) != std::string::npos) return true;
    }
  }
  return false;
}

TEST_F(UninstallerNames, WhateverTheyAreWhatIsFoundLiesAtTheTopOfAResidualFolderAndBearsTheName) {
  std::size_t found = 0;
  for (std::size_t number = 0; number < 4 * kNames.size(); ++number) {
    const AppInfo app{.name = kNames[number % kNames.size()],
                      .bundleID = kIdentifiers[number % kIdentifiers.size()]};
    for (const ResidualFile& residual : engine.findResiduals(app)) {
      ++found;
      const std::string entry = residual.url.filename().native();
      EXPECT_EQ(entry, entryAbove(residual.url));
      EXPECT_TRUE(lowercased(entry) == lowercased(app.bundleID) || shareAWord(entry, app.name) ||
                  shareAWord(entry, app.bundleID))
          << residual.url << " for " << app.name << ", " << app.bundleID;
      EXPECT_FALSE(lowercased(entry).starts_with("com.apple.safari"));
    }
  }
  EXPECT_GT(found, 50U);
}

TEST_F(UninstallerNames, WhateverTheyAreNothingOutsideTheResidualFoldersIsRemoved) {
  std::set<Path> everything{"/", "", "."};
  for (const Path& place : places) {
    for (Path step = place; step.has_relative_path(); step = step.parent_path()) {
      everything.insert(step);
    }
  }
  const auto selected = residualsAt({everything.begin(), everything.end()}, 1);
  std::size_t removed = 0;
  for (const std::string& name : kNames) {
    for (const std::string identifier : {"", "com.a.b", "com.Preferences.Desktop"}) {
      const AppInfo app{.name = name, .bundleID = identifier, .appURL = "/Applications/None.app"};
      const std::int64_t freed = engine.uninstall(app, selected);
      const std::vector<Path> gone = takeGone();
      EXPECT_EQ(freed > 0, !gone.empty());
      for (const Path& place : gone) {
        const std::string entry = entryAbove(place);
        EXPECT_TRUE(shareAWord(entry, name) || shareAWord(entry, identifier))
            << place << " for " << name << ", " << identifier;
      }
      removed += gone.size();
    }
  }
  EXPECT_GT(removed, 100U);
}

TEST_F(UninstallerNames, WhateverTheyAreTheApplicationItselfGoesToTheTrashAndNothingElse) {
  for (const std::string& name : kNames) {
    for (const std::string identifier : {"com", "..", "/", "📱.📱📱📱📱"}) {
      installAt("/Applications/Odd.app", "named by its list", identifier);
      const auto listed = engine.listApps();
      ASSERT_EQ(listed.size(), 1U);
      AppInfo app = listed.front();
      EXPECT_EQ(app.bundleID, identifier);
      app.name = name;
      EXPECT_EQ(engine.uninstall(app, {}), app.appSize);
      EXPECT_FALSE(disk.holds("/Applications/Odd.app"));
      EXPECT_TRUE(takeGone().empty());
    }
  }
}

}  // namespace
}  // namespace klarvik
