#include "places/system_data_places.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

#include "places/disk_layout.h"
#include "systemdata/system_data_sub_category.h"

namespace klarvik {
namespace {

std::span<const Pass> passTable() {
  return layoutFor("/Users/ann").analysisPasses;
}

/// The kind of each pass over whole places, followed by a line for each place: path, name, smallest
/// size, and a verdict of its own where it has one.
std::string wholePlaces() {
  std::string lines;
  for (const Pass& pass : passTable()) {
    const auto* const places = std::get_if<std::span<const WholePlace>>(&pass.places);
    if (places == nullptr) continue;
    lines.append(rawValue(pass.kind)).append(":\n");
    for (const WholePlace& place : *places) {
      lines.append(place.path).append(" | ").append(place.name).append(" | ");
      lines += std::to_string(place.minimumSize);
      if (place.safetyOverride == ItemSafety::safe) lines += " | safe";
      if (place.safetyOverride == ItemSafety::review) lines += " | review";
      if (place.safetyOverride == ItemSafety::protected_) lines += " | protected";
      lines += '\n';
    }
  }
  return lines;
}

TEST(PassTable, HasOnePassForEachKind) {
  std::set<SystemDataSubCategory> kinds;
  for (const Pass& pass : passTable()) kinds.insert(pass.kind);
  EXPECT_EQ(passTable().size(), systemDataSubCategoryCount);
  EXPECT_EQ(kinds.size(), systemDataSubCategoryCount);
}

TEST(PassTable, FractionsRiseToBelowOne) {
  double last = 0;
  for (const Pass& pass : passTable()) {
    EXPECT_GT(pass.fraction, last) << pass.label;
    last = pass.fraction;
  }
  EXPECT_LT(last, 1);
}

TEST(PassTable, HasTheseWholePlacesInThisOrder) {
  EXPECT_EQ(wholePlaces(), R"(Developer Tools:
Library/Developer/Xcode/UserData | Xcode UserData | 10000001 | review
Library/Developer/CoreSimulator/Devices | iOS Simulators | 10000001
Library/Developer/CoreSimulator/Caches | Simulator Caches | 10000001
Library/Developer/CoreSimulator/Images | Simulator Images | 10000001
Library/Developer/Xcode/iOS DeviceSupport | iOS Device Support | 10000001
Library/Developer/Xcode/watchOS DeviceSupport | watchOS Device Support | 10000001
Library/Developer/Xcode/macOS DeviceSupport | macOS Device Support | 10000001
Library/Developer/Xcode/DerivedData | Xcode DerivedData | 10000001
Library/Developer/Xcode/Archives | Xcode Archives | 10000001
Library/Developer/Xcode/Products | Xcode Products | 10000001
Library/Developer/Xcode/DocumentationCache | Xcode Docs Cache | 10000001
Library/Developer/XCPGDevices | Xcode Playground Devices | 10000001
Library/Developer/XCTestDevices | XCTest Devices | 10000001
Library/Android | Android SDK | 10000001 | review
Library/Android/sdk | Android SDK Core | 10000001 | review
.android | Android AVD & Config | 10000001 | review
/Library/Developer/CommandLineTools | Command Line Tools | 50000001 | protected
/Library/Developer/CoreSimulator | System Simulator Data | 50000001 | protected
Package Manager Caches:
.npm | npm Cache | 10000001
.yarn | Yarn Cache | 10000001
.pnpm-store | pnpm Store | 10000001
.cocoapods | CocoaPods Cache | 10000001
.gradle | Gradle Cache | 10000001
.m2 | Maven Cache | 10000001
.cargo | Cargo/Rust Cache | 10000001
.nuget | NuGet Cache | 10000001
.gem | Ruby Gems | 10000001
.pub-cache | Dart/Flutter Pub Cache | 10000001
.cache/pip | pip Cache | 10000001
.cache/go-build | Go Build Cache | 10000001
go | Go Modules | 10000001 | review
.rustup | Rustup Toolchains | 10000001 | review
.pyenv | pyenv | 10000001 | review
.nvm | nvm (Node Versions) | 10000001 | review
.rbenv | rbenv (Ruby Versions) | 10000001 | review
.conda | Conda | 10000001 | review
miniconda3 | Miniconda | 10000001 | review
anaconda3 | Anaconda | 10000001 | review
System Temp Files:
/private/var/folders | System Temp Folders | 10000001
/private/var/tmp | System Tmp | 10000001
/tmp | Temp Files | 10000001
System Databases:
/private/var/db | System Databases | 100000001
System Library Data:
/Library/Application Support | System App Support | 20000001
/Library/Caches | System Caches | 20000001
/Library/Preferences | System Preferences | 20000001
/Library/Frameworks | System Frameworks | 20000001
/Library/Extensions | System Extensions | 20000001
/Library/Audio | Audio Libraries | 20000001
/Library/Fonts | System Fonts | 20000001
/usr/local | /usr/local Data | 20000001
/usr/share | /usr/share Data | 20000001
/private/var/db/oah | Rosetta 2 Cache | 20000001
Mail Storage:
Library/Mail | Mail Data | 50000001
Library/Containers/com.apple.mail/Data/Library/Mail Downloads | Mail Downloads | 50000001
Homebrew:
Library/Caches/Homebrew | Homebrew Cache | 50000001
/opt/homebrew | Homebrew Installation | 100000001 | protected
/usr/local/Cellar | Homebrew Cellar | 100000001 | protected
Logs:
Library/Logs | User Logs | 5000001
/var/log | System Logs | 5000001
/Library/Logs | Library Logs | 5000001
Spotlight Index:
/.Spotlight-V100 | Spotlight Index | 100000001
Diagnostic Reports:
Library/Logs/DiagnosticReports | User Diagnostic Reports | 10000001
/Library/Logs/DiagnosticReports | System Diagnostic Reports | 10000001
Preferences & Config:
Library/Preferences | User Preferences | 5000001
Saved App State:
Library/Saved Application State | Saved Application State | 10000001
Cookies & Web Storage:
Library/Cookies | Cookies | 5000001
Library/HTTPStorages | HTTP Storage | 5000001
)");
}

}  // namespace
}  // namespace klarvik
