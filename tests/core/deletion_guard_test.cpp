#include "core/deletion_guard.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>

namespace klarvik {
namespace {

using Answer = std::optional<std::string>;
const Answer allowed = std::nullopt;
const Path ann = "/Users/ann";
const DeletionScope general = DeletionScope::general();
const DeletionScope pickedFile = DeletionScope::pickedFile();
const DeletionScope acme = DeletionScope::residual({"com", "acme", "ab"});

Answer ask(const Path& path, const DeletionScope& scope = general, const Path& home = ann) {
  return DeletionGuard::refusalReason(path, scope, home);
}

TEST(DeletionGuard, RefusesASystemDirectoryByItsPath) {
  EXPECT_EQ(ask("/"), "/ is a system directory.");
  for (const std::string path : {"/Applications", "/Library", "/System", "/Users", "/bin", "/sbin",
                                 "/usr", "/etc", "/var", "/opt", "/private", "/Volumes"}) {
    EXPECT_EQ(ask(path), path + " is a system directory.");
  }
}

TEST(DeletionGuard, RefusesWhatLiesBelowAProtectedPrefixAndNamesThePrefix) {
  for (const std::string prefix : {"/System/", "/bin/", "/sbin/", "/usr/bin/", "/usr/sbin/",
                                   "/usr/lib/", "/Library/Keychains/", "/private/var/db/"}) {
    EXPECT_EQ(ask(prefix + "x"), prefix + " is protected by macOS and by Klarvik.");
  }
}

TEST(DeletionGuard, RefusesWhatMacosManagesAndNamesThePrefix) {
  EXPECT_EQ(ask("/private/var/vm/sleepimage"),
            "/private/var/vm/ is managed by macOS while it is running.");
  EXPECT_EQ(ask("/private/var/folders/ab/cd"),
            "/private/var/folders/ is managed by macOS while it is running.");
  EXPECT_EQ(ask("/Library/Apple/usr/libexec/oah"),
            "/Library/Apple/usr/libexec/oah is managed by macOS while it is running.");
}

TEST(DeletionGuard, TakesASiblingOfTheSpotlightFolderForManagedToo) {
  const std::string sentence = "/.Spotlight-V100 is managed by macOS while it is running.";
  EXPECT_EQ(ask("/.Spotlight-V100"), sentence);
  EXPECT_EQ(ask("/.Spotlight-V100/Store-V2"), sentence);
  EXPECT_EQ(ask("/.Spotlight-V100-old"), sentence);
}

TEST(DeletionGuard, RefusesTheLibraryCachesFolderItselfAsOutside) {
  const std::string sentence = "/Library/Caches is outside the locations Klarvik cleans.";
  EXPECT_EQ(ask("/Library/Caches"), sentence);
  EXPECT_EQ(ask("/Library/Caches/"), sentence);
}

TEST(DeletionGuard, AllowsWhatLiesInTheSharedCachesUnlessItIsAResidualOfAnotherApp) {
  EXPECT_EQ(ask("/Library/Caches/x"), allowed);
  EXPECT_EQ(ask("/Library/Caches/x", pickedFile), allowed);
  EXPECT_EQ(ask("/Library/Caches/x", acme), "x does not belong to the app being removed.");
  EXPECT_EQ(ask("/Library/Caches/com.acme.tool", acme), allowed);
}

TEST(DeletionGuard, AllowsEachCleanablePlaceOutsideTheHome) {
  for (const Path place :
       {"/private/tmp/", "/tmp/", "/.MobileBackups/", "/Library/Caches/", "/private/var/log/"}) {
    EXPECT_EQ(ask(place / "x"), allowed) << place;
    EXPECT_EQ(ask(place / "x" / "y", pickedFile), allowed) << place;
  }
}

TEST(DeletionGuard, RefusesAPathOnAnotherVolumeWhateverTheScope) {
  const std::string sentence = "/Volumes/Backup/x is outside the locations Klarvik cleans.";
  EXPECT_EQ(ask("/Volumes/Backup/x"), sentence);
  EXPECT_EQ(ask("/Volumes/Backup/x", pickedFile), sentence);
  EXPECT_EQ(ask("/Volumes/Backup/x", acme), sentence);
}

TEST(DeletionGuard, RefusesTheHomeAndEveryOtherAccount) {
  EXPECT_EQ(ask("/Users/ann"), "Refusing to delete the home directory.");
  EXPECT_EQ(ask("/Users/ben/x"), "Refusing to touch another user account.");
  EXPECT_EQ(ask("/Users/ben"), "Refusing to touch another user account.");
}

TEST(DeletionGuard, RefusesASiblingThatSharesAPrefixWithTheHome) {
  EXPECT_EQ(ask("/Users/ann2/Library/Caches/x"), "Refusing to touch another user account.");
  EXPECT_EQ(ask("/home/ann2/.cache/x", general, "/home/ann"),
            "Refusing to touch another user account.");
}

TEST(DeletionGuard, RefusesEveryFolderOfTheUsersOwnFilesAndWhatItHolds) {
  for (const std::string entry : {"Desktop",
                                  "Documents",
                                  "Downloads",
                                  "Pictures",
                                  "Movies",
                                  "Music",
                                  "Library/Keychains",
                                  "Library/Mobile Documents",
                                  "Library/CloudStorage",
                                  "Library/Preferences",
                                  "Library/Application Support/AddressBook",
                                  "Library/Messages",
                                  "Library/Mail",
                                  "Library/Containers/com.apple.mail",
                                  "Library/Calendars",
                                  "Library/Reminders",
                                  "Library/Safari",
                                  "Library/Application Support/MobileSync",
                                  "Library/PersonalizationPortrait",
                                  "Library/Photos",
                                  "Library/Sharing"}) {
    const std::string sentence = "~/" + entry + " holds your own files, not junk.";
    EXPECT_EQ(ask("/Users/ann/" + entry), sentence);
    EXPECT_EQ(ask("/Users/ann/" + entry + "/deep/below"), sentence);
  }
}

TEST(DeletionGuard, AllowsASiblingThatSharesAPrefixWithAProtectedFolder) {
  EXPECT_EQ(ask("/Users/ann/Library/Keychainsfoo/x"), allowed);
}

TEST(DeletionGuard, AllowsTwoNamesBelowTheHomeAndRefusesOne) {
  EXPECT_EQ(ask("/Users/ann/Library/Caches"), allowed);
  EXPECT_EQ(ask("/Users/ann/Library"), "~/Library is too broad to delete safely.");
  EXPECT_EQ(ask("/Users/ann/notes.txt"), "~/notes.txt is too broad to delete safely.");
  EXPECT_EQ(ask("/Users/ann/notes.txt", pickedFile),
            "~/notes.txt is a whole folder, not a file you picked.");
}

TEST(DeletionGuard, AllowsAFileThatTheUserPickedAmongTheDocuments) {
  EXPECT_EQ(ask("/Users/ann/Documents/a.pdf", pickedFile), allowed);
  EXPECT_EQ(ask("/Users/ann/Documents/a.pdf"), "~/Documents holds your own files, not junk.");
  EXPECT_EQ(ask("/Users/ann/Documents", pickedFile),
            "~/Documents is a whole folder, not a file you picked.");
}

TEST(DeletionGuard, AllowsAResidualOnlyWhenItsFolderNamesTheApp) {
  EXPECT_EQ(ask("/Users/ann/Library/Caches/com.acme.tool", acme), allowed);
  EXPECT_EQ(ask("/Users/ann/Library/Caches/com.acme.tool/deep", acme), allowed);
  EXPECT_EQ(ask("/Users/ann/Library/Caches/Other", acme),
            "Other does not belong to the app being removed.");
  EXPECT_EQ(ask("/Users/ann/Library/Caches/Other/com.acme.tool", acme),
            "Other does not belong to the app being removed.");
}

TEST(DeletionGuard, AllowsAResidualInEachPlaceWhereAppsLeaveFiles) {
  for (const std::string root :
       {"Library/Preferences", "Library/Caches", "Library/Application Support",
        "Library/Containers", "Library/Group Containers", "Library/Saved Application State",
        "Library/HTTPStorages", "Library/WebKit", "Library/Logs", "Library/Cookies",
        "Library/Application Scripts"}) {
    EXPECT_EQ(ask("/Users/ann/" + root + "/com.acme.tool", acme), allowed) << root;
    EXPECT_EQ(ask("/" + root + "/com.acme.tool", acme), allowed) << root;
  }
}

TEST(DeletionGuard, RefusesAResidualInAnyOtherPlace) {
  EXPECT_EQ(ask("/Users/ann/Library/Caches", acme),
            "Library/Caches is not a place apps leave residual files.");
  EXPECT_EQ(ask("/Users/ann/Pictures/x", acme),
            "Pictures/x is not a place apps leave residual files.");
  EXPECT_EQ(ask("/Users/ann/Library/Cachesfoo/com.acme.tool", acme),
            "Library/Cachesfoo/com.acme.tool is not a place apps leave residual files.");
  EXPECT_EQ(ask("/Library/LaunchDaemons/com.acme.tool", acme),
            "Library/LaunchDaemons/com.acme.tool is not a place apps leave residual files.");
}

TEST(DeletionGuard, RefusesAResidualWhoseIdentifiersAreAllTooShort) {
  const std::string sentence = "App identifier is too short to match residuals safely.";
  for (const auto& identifiers : {std::vector<std::string>{}, {"com"}, {"a", "äöü", ""}}) {
    const DeletionScope scope = DeletionScope::residual(identifiers);
    EXPECT_EQ(ask("/Users/ann/Library/Caches/com", scope), sentence);
    EXPECT_EQ(ask("/Users/ann/Pictures/x", scope), sentence);
    EXPECT_EQ(ask("/Library/Caches/com", scope), sentence);
  }
}

TEST(DeletionGuard, CountsTheCharactersOfAnIdentifierAndNotItsBytes) {
  EXPECT_NE(ask("/Users/ann/Library/Caches/äöü", DeletionScope::residual({"äöü"})), allowed);
  EXPECT_EQ(ask("/Users/ann/Library/Caches/äöüß", DeletionScope::residual({"äöüß"})), allowed);
  // Three letters, each with an accent of its own.
  const std::string accented = "a\u0301b\u0301c\u0301";
  EXPECT_NE(ask("/Users/ann/Library/Caches/" + accented, DeletionScope::residual({accented})),
            allowed);
}

TEST(DeletionGuard, ComparesResidualNamesWithoutRegardToCase) {
  EXPECT_EQ(ask("/Users/ann/Library/Caches/COM.ACME.Tool", acme), allowed);
  EXPECT_EQ(ask("/Users/ann/Library/Logs/ÄRGER", DeletionScope::residual({"Ärger"})), allowed);
  EXPECT_EQ(ask("/Users/ann/Library/Logs/OTHER", acme),
            "OTHER does not belong to the app being removed.");
}

TEST(DeletionGuard, TellsResidualNamesApartThatDifferOnlyInBytesThatAreNotUtf8) {
  const DeletionScope scope = DeletionScope::residual({"Caf\xe9"});
  EXPECT_EQ(ask("/Users/ann/Library/Logs/CAF\xe9", scope), allowed);
  EXPECT_EQ(ask("/Users/ann/Library/Logs/Caf\xe8", scope),
            "Caf\xe8 does not belong to the app being removed.");
}

TEST(DeletionGuard, RefusesAnEmptyOrRelativePath) {
  for (const Path path : {"", ".", "..", "x", "Library/Caches/x", "./tmp/x", "../tmp/x", "~/x/y"}) {
    EXPECT_EQ(ask(path), "Path is not absolute.") << path;
  }
}

TEST(DeletionGuard, RefusesAPathThatTheDiskWouldReadOnlyInPart) {
  EXPECT_EQ(ask(std::string("/Users/ann/notes.txt\0/x", 23)), "Path is not absolute.");
  EXPECT_EQ(ask(std::string("/tmp/x/y\0z/..", 13)), "Path is not absolute.");
}

TEST(DeletionGuard, RefusesANameWithTwoDotsInARow) {
  EXPECT_EQ(ask("/Users/ann/Library/Caches/backup..old"),
            "Path contains a parent-directory reference.");
}

TEST(DeletionGuard, SeesThroughOtherSpellingsOfTheRoot) {
  for (const Path path : {"/", "//", "/./", "/..", "/../..", "/tmp/..", "/Users/ann/../../"}) {
    EXPECT_EQ(ask(path), "/ is a system directory.") << path;
  }
}

TEST(DeletionGuard, SeesThroughOtherSpellingsOfAProtectedPath) {
  const std::string sentence = "~/Library/Keychains holds your own files, not junk.";
  for (const Path path :
       {"/Users/ann/Library/Keychains/", "//Users//ann/Library/./Keychains",
        "/tmp/../Users/ann/Library/Keychains", "/Users/ann/Library/Caches/../Keychains/x"}) {
    EXPECT_EQ(ask(path), sentence) << path;
  }
}

TEST(DeletionGuard, KeepsToTheTextOfAPathUnderPrivate) {
  EXPECT_EQ(ask("/private/tmp/x"), allowed);
  EXPECT_EQ(ask("/var/db/x"), "/var/db/x is outside the locations Klarvik cleans.");
  EXPECT_EQ(ask("/private/tmp"), "/private/tmp is outside the locations Klarvik cleans.");
}

TEST(DeletionGuard, ComparesPathsWithRegardToCase) {
  EXPECT_EQ(ask("/LIBRARY"), "/LIBRARY is outside the locations Klarvik cleans.");
  EXPECT_EQ(ask("/TMP/x"), "/TMP/x is outside the locations Klarvik cleans.");
}

TEST(DeletionGuard, TakesAHomeWithATrailingSlashForTheSameHome) {
  EXPECT_EQ(ask("/Users/ann", general, "/Users/ann/"), "Refusing to delete the home directory.");
  EXPECT_EQ(ask("/Users/ann/Library/Caches", general, "/Users//ann/./"), allowed);
}

TEST(DeletionGuard, AllowsNothingThroughAHomeThatIsEmptyRootRelativeOrASystemDirectory) {
  for (const Path home : {"", "/", "//", "/.", "/..", "Users/ann", "./", "~", "/Users", "/var"}) {
    for (const DeletionScope& scope : {general, pickedFile, acme}) {
      for (const Path path :
           {"/Users/ann/Library/Caches/com.acme.tool", "/home/ann/Library/Caches/com.acme.tool",
            "/Users/Library/Caches/com.acme.tool", "/var/Library/Caches/com.acme.tool",
            "/data/Library/Caches/com.acme.tool", "/etc/passwd"}) {
        EXPECT_NE(ask(path, scope, home), allowed) << home << ' ' << path;
      }
    }
  }
}

TEST(DeletionGuard, StillAllowsTheCleanablePlacesWithoutAHome) {
  EXPECT_EQ(ask("/tmp/x", general, ""), allowed);
}

}  // namespace
}  // namespace klarvik
