#include <gtest/gtest.h>

#include <array>
#include <random>
#include <string>
#include <vector>

#include "core/deletion_guard.h"
#include "guard_promise.h"

namespace klarvik {
namespace {

class Dice {
 public:
  std::size_t below(std::size_t count) { return _generator() % count; }
  bool oneIn(std::size_t count) { return below(count) == 0; }
  template <class List>
  const auto& oneOf(const List& list) {
    return list[below(std::size(list))];
  }

 private:
  std::mt19937_64 _generator{20260304};
};

// Names that no table knows.
std::string strangeName(Dice& dice) {
  static const std::vector<std::string> names{
      "x",      "a b",   "\xff\xfe",       "line\nbreak", "-rf",
      "$(x)",   "...",   ".hidden",        "Ärger",       std::string(255, 'n'),
      "ann2",   "Users", "com.acme.tool",  "\xc3",        "*",
      "\\..\\", "~",     "Library\xcc\x81"};
  return dice.oneOf(names);
}

// Another way to write the same path, of any length.
std::string spelling(const std::string& path, Dice& dice) {
  std::string text;
  for (const Path& part : Path(path).relative_path()) {
    text += dice.oneIn(4) ? "//" : "/";
    while (dice.oneIn(4)) text += dice.oneIn(2) ? "./" : "/";
    while (dice.oneIn(6)) text += strangeName(dice) + "/../";
    if (dice.oneIn(2000)) {
      for (int level = 0; level < 2000; ++level) text += "deep/../";
    }
    text += part.native();
  }
  if (dice.oneIn(6)) text.insert(0, "/../..");
  if (path == "/") text += '/';
  while (dice.oneIn(4)) text += dice.oneIn(2) ? "/" : "/.";
  if (dice.oneIn(8)) text += "/" + strangeName(dice) + "/..";
  return text;
}

const std::vector<std::string> identifiers{"com.acme.tool", "acme", "x"};
const std::array<DeletionScope, 3> scopes{DeletionScope::general(), DeletionScope::pickedFile(),
                                          DeletionScope::residual(identifiers)};

TEST(DeletionGuardSpellings, AMillionGeneratedSpellingsOfAPathGetTheAnswerOfThePathItself) {
  const std::vector<std::string> paths{"/",
                                       "/Applications",
                                       "/Library",
                                       "/System",
                                       "/Users",
                                       "/bin",
                                       "/sbin",
                                       "/usr",
                                       "/etc",
                                       "/var",
                                       "/opt",
                                       "/private",
                                       "/Volumes",
                                       "/System/x",
                                       "/bin/ls",
                                       "/sbin/x",
                                       "/usr/bin/env",
                                       "/usr/sbin/x",
                                       "/usr/lib/x",
                                       "/Library/Keychains/x",
                                       "/private/var/db/x",
                                       "/private/var/vm/sleepimage",
                                       "/private/var/folders/ab/cd",
                                       "/.Spotlight-V100",
                                       "/Library/Apple/usr/libexec/oah/x",
                                       "/Users/ann",
                                       "/Users/ben/Library/Caches/x",
                                       "/Users/ann2/Library/Caches/x",
                                       "/Users/ann/Desktop",
                                       "/Users/ann/Documents/a.pdf",
                                       "/Users/ann/Library",
                                       "/Users/ann/notes.txt",
                                       "/Users/ann/Library/Keychains/x",
                                       "/Users/ann/Library/Mail",
                                       "/Users/ann/Library/Preferences/com.acme.tool.plist",
                                       "/Users/ann/Library/Application Support/MobileSync/Backup",
                                       "/Users/ann/Library/Caches",
                                       "/Users/ann/Library/Caches/com.acme.tool",
                                       "/Users/ann/Library/Caches/Other",
                                       "/Library/Caches",
                                       "/Library/Caches/com.acme.tool",
                                       "/Library/Caches/Other",
                                       "/tmp",
                                       "/tmp/x",
                                       "/private/tmp/x",
                                       "/private/var/log/x",
                                       "/.MobileBackups/x",
                                       "/Volumes/Disk/x",
                                       "/home/ann/x"};
  Dice dice;
  for (int turn = 0; turn < 1'000'000; ++turn) {
    const std::string& path = dice.oneOf(paths);
    const DeletionScope& scope = dice.oneOf(scopes);
    const std::string written = spelling(path, dice);
    ASSERT_EQ(DeletionGuard::refusalReason(written, scope, "/Users/ann"),
              DeletionGuard::refusalReason(path, scope, "/Users/ann"))
        << testing::PrintToString(written) << " for " << path;
  }
}

std::string anyPath(Dice& dice) {
  static const std::vector<std::string> parts{"Users",
                                              "ann",
                                              "ben",
                                              "ann2",
                                              "Library",
                                              "Caches",
                                              "Keychains",
                                              "Preferences",
                                              "Mail",
                                              "Containers",
                                              "com.apple.mail",
                                              "Application Support",
                                              "MobileSync",
                                              "Logs",
                                              "Documents",
                                              "Desktop",
                                              "private",
                                              "var",
                                              "tmp",
                                              "log",
                                              "db",
                                              "vm",
                                              "folders",
                                              "usr",
                                              "bin",
                                              "lib",
                                              "System",
                                              "Applications",
                                              "Volumes",
                                              ".MobileBackups",
                                              ".Spotlight-V100",
                                              "Apple",
                                              "libexec",
                                              "oah",
                                              "..",
                                              "..",
                                              ".",
                                              "",
                                              "com.acme.tool",
                                              "Acme"};
  static const std::vector<std::string> starts{"/",
                                               "/",
                                               "/",
                                               "//",
                                               "",
                                               "./",
                                               "/Users/ann/",
                                               "/Users/ann/Library/",
                                               "/Library/Caches/",
                                               "/private/var/",
                                               "/tmp/",
                                               "/Users/ann/Library/Caches/"};
  std::string path = dice.oneOf(starts);
  for (std::size_t count = dice.below(6); count > 0; --count) {
    path += dice.oneIn(8) ? strangeName(dice) : dice.oneOf(parts);
    path += dice.oneIn(8) ? "//" : "/";
  }
  if (!dice.oneIn(4) && !path.empty()) path.pop_back();
  return path;
}

TEST(DeletionGuardSpellings, AMillionGeneratedPathsNothingAllowedLiesElsewhereThanDocumented) {
  const std::vector<Path> homes{
      "/Users/ann", "/Users/ann/", "/Users//ann/.", "/home/ann",    "",
      "/",          "//",          "/..",           "ann",          "Users/ann",
      "~",          "/Users",      "/Library",      "/private/var", "/Users/ann/Library"};
  Dice dice;
  std::size_t allowed = 0;
  for (int turn = 0; turn < 1'000'000; ++turn) {
    const Path path = anyPath(dice);
    const Path& home = dice.oneOf(homes);
    const DeletionScope& scope = dice.oneOf(scopes);
    ASSERT_EQ(violatedInvariant(path, scope, home), std::nullopt)
        << testing::PrintToString(path.native()) << " with home " << home;
    allowed += !DeletionGuard::refusalReason(path, scope, home);
  }
  EXPECT_GT(allowed, 50'000U);
}

TEST(DeletionGuardSpellings, AHomeThatIsEmptyRootOrRelativeAllowsNothingThroughIt) {
  const std::vector<Path> homes{"",      "/",         "//",          "/.", "/..",
                                "/x/..", "Users/ann", "./Users/ann", "~"};
  Dice dice;
  for (int turn = 0; turn < 200'000; ++turn) {
    const Path path = anyPath(dice);
    const DeletionScope& scope = dice.oneOf(scopes);
    ASSERT_EQ(DeletionGuard::refusalReason(path, scope, dice.oneOf(homes)),
              DeletionGuard::refusalReason(path, scope, "/nobody/lives/here"))
        << testing::PrintToString(path.native());
  }
}

TEST(DeletionGuardSpellings, AVeryLongPathGetsAnAnswer) {
  std::string path = "/Users/ann/Library/Keychains";
  for (int level = 0; level < 100'000; ++level) path += "/level";
  EXPECT_EQ(DeletionGuard::refusalReason(path, DeletionScope::general(), "/Users/ann"),
            "~/Library/Keychains holds your own files, not junk.");
}

}  // namespace
}  // namespace klarvik
