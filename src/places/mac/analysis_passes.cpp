#include "places/mac/mac_layout.h"

namespace klarvik::mac {

namespace {

using enum ItemSafety;

constexpr std::array<WholePlace, 18> developerTools{{
    {"Library/Developer/Xcode/UserData", "Xcode UserData", 10'000'001, review},
    {"Library/Developer/CoreSimulator/Devices", "iOS Simulators", 10'000'001},
    {"Library/Developer/CoreSimulator/Caches", "Simulator Caches", 10'000'001},
    {"Library/Developer/CoreSimulator/Images", "Simulator Images", 10'000'001},
    {"Library/Developer/Xcode/iOS DeviceSupport", "iOS Device Support", 10'000'001},
    {"Library/Developer/Xcode/watchOS DeviceSupport", "watchOS Device Support", 10'000'001},
    {"Library/Developer/Xcode/macOS DeviceSupport", "macOS Device Support", 10'000'001},
    {"Library/Developer/Xcode/DerivedData", "Xcode DerivedData", 10'000'001},
    {"Library/Developer/Xcode/Archives", "Xcode Archives", 10'000'001},
    {"Library/Developer/Xcode/Products", "Xcode Products", 10'000'001},
    {"Library/Developer/Xcode/DocumentationCache", "Xcode Docs Cache", 10'000'001},
    {"Library/Developer/XCPGDevices", "Xcode Playground Devices", 10'000'001},
    {"Library/Developer/XCTestDevices", "XCTest Devices", 10'000'001},
    {"Library/Android", "Android SDK", 10'000'001, review},
    {"Library/Android/sdk", "Android SDK Core", 10'000'001, review},
    {".android", "Android AVD & Config", 10'000'001, review},
    {"/Library/Developer/CommandLineTools", "Command Line Tools", 50'000'001, protected_},
    {"/Library/Developer/CoreSimulator", "System Simulator Data", 50'000'001, protected_},
}};

constexpr std::array<WholePlace, 3> temporaryFiles{{
    {"/private/var/folders", "System Temp Folders", 10'000'001},
    {"/private/var/tmp", "System Tmp", 10'000'001},
    {"/tmp", "Temp Files", 10'000'001},
}};

constexpr std::array<WholePlace, 1> databases{{
    {"/private/var/db", "System Databases", 100'000'001},
}};

constexpr std::array<WholePlace, 10> systemLibrary{{
    {"/Library/Application Support", "System App Support", 20'000'001},
    {"/Library/Caches", "System Caches", 20'000'001},
    {"/Library/Preferences", "System Preferences", 20'000'001},
    {"/Library/Frameworks", "System Frameworks", 20'000'001},
    {"/Library/Extensions", "System Extensions", 20'000'001},
    {"/Library/Audio", "Audio Libraries", 20'000'001},
    {"/Library/Fonts", "System Fonts", 20'000'001},
    {"/usr/local", "/usr/local Data", 20'000'001},
    {"/usr/share", "/usr/share Data", 20'000'001},
    {"/private/var/db/oah", "Rosetta 2 Cache", 20'000'001},
}};

constexpr std::array<WholePlace, 2> mail{{
    {"Library/Mail", "Mail Data", 50'000'001},
    {"Library/Containers/com.apple.mail/Data/Library/Mail Downloads", "Mail Downloads", 50'000'001},
}};

constexpr std::array<WholePlace, 3> homebrew{{
    {"Library/Caches/Homebrew", "Homebrew Cache", 50'000'001},
    {"/opt/homebrew", "Homebrew Installation", 100'000'001, protected_},
    {"/usr/local/Cellar", "Homebrew Cellar", 100'000'001, protected_},
}};

constexpr std::array<WholePlace, 3> logs{{
    {"Library/Logs", "User Logs", 5'000'001},
    {"/var/log", "System Logs", 5'000'001},
    {"/Library/Logs", "Library Logs", 5'000'001},
}};

constexpr std::array<WholePlace, 1> spotlight{{
    {"/.Spotlight-V100", "Spotlight Index", 100'000'001},
}};

constexpr std::array<WholePlace, 2> diagnostics{{
    {"Library/Logs/DiagnosticReports", "User Diagnostic Reports", 10'000'001},
    {"/Library/Logs/DiagnosticReports", "System Diagnostic Reports", 10'000'001},
}};

constexpr std::array<WholePlace, 1> preferences{{
    {"Library/Preferences", "User Preferences", 5'000'001},
}};

constexpr std::array<WholePlace, 1> savedState{{
    {"Library/Saved Application State", "Saved Application State", 10'000'001},
}};

constexpr std::array<WholePlace, 2> webStorage{{
    {"Library/Cookies", "Cookies", 5'000'001},
    {"Library/HTTPStorages", "HTTP Storage", 5'000'001},
}};

constexpr std::array<WholePlace, 20> packageManagerCaches{{
    {".npm", "npm Cache", 10'000'001},
    {".yarn", "Yarn Cache", 10'000'001},
    {".pnpm-store", "pnpm Store", 10'000'001},
    {".cocoapods", "CocoaPods Cache", 10'000'001},
    {".gradle", "Gradle Cache", 10'000'001},
    {".m2", "Maven Cache", 10'000'001},
    {".cargo", "Cargo/Rust Cache", 10'000'001},
    {".nuget", "NuGet Cache", 10'000'001},
    {".gem", "Ruby Gems", 10'000'001},
    {".pub-cache", "Dart/Flutter Pub Cache", 10'000'001},
    {".cache/pip", "pip Cache", 10'000'001},
    {".cache/go-build", "Go Build Cache", 10'000'001},
    {"go", "Go Modules", 10'000'001, review},
    {".rustup", "Rustup Toolchains", 10'000'001, review},
    {".pyenv", "pyenv", 10'000'001, review},
    {".nvm", "nvm (Node Versions)", 10'000'001, review},
    {".rbenv", "rbenv (Ruby Versions)", 10'000'001, review},
    {".conda", "Conda", 10'000'001, review},
    {"miniconda3", "Miniconda", 10'000'001, review},
    {"anaconda3", "Anaconda", 10'000'001, review},
}};

constexpr std::array<Pass, systemDataSubCategoryCount> passes{{
    {"Scanning Application Support...", 0.04, SystemDataSubCategory::applicationSupport,
     ChildFolder{"Library/Application Support", 5'000'000}},
    {"Scanning Containers...", 0.08, SystemDataSubCategory::containers,
     ChildFolder{"Library/Containers", 5'000'000}},
    {"Scanning Group Containers...", 0.12, SystemDataSubCategory::groupContainers,
     ChildFolder{"Library/Group Containers", 5'000'000}},
    {"Scanning App Caches...", 0.16, SystemDataSubCategory::caches,
     ChildFolder{"Library/Caches", 5'000'000}},
    {"Scanning Developer Tools...", 0.20, SystemDataSubCategory::developerTools, developerTools},
    {"Scanning Package Manager Caches...", 0.25, SystemDataSubCategory::packageManagerCaches,
     packageManagerCaches},
    {"Scanning Time Machine...", 0.30, SystemDataSubCategory::timeMachineSnapshots,
     AnalysisMethod::localSnapshots},
    {"Scanning System Temp...", 0.34, SystemDataSubCategory::systemTemp, temporaryFiles},
    {"Scanning VM & Swap...", 0.38, SystemDataSubCategory::vmSwap, AnalysisMethod::swapFiles},
    {"Scanning System Databases...", 0.42, SystemDataSubCategory::systemDatabases, databases},
    {"Scanning System Library...", 0.47, SystemDataSubCategory::systemLibrary, systemLibrary},
    {"Scanning Mail Storage...", 0.52, SystemDataSubCategory::mailStorage, mail},
    {"Scanning Homebrew...", 0.56, SystemDataSubCategory::homebrewCache, homebrew},
    {"Scanning Logs...", 0.60, SystemDataSubCategory::logs, logs},
    {"Scanning Firmware...", 0.64, SystemDataSubCategory::firmware, AnalysisMethod::firmware},
    {"Scanning Spotlight...", 0.68, SystemDataSubCategory::spotlightIndex, spotlight},
    {"Scanning Diagnostics...", 0.72, SystemDataSubCategory::diagnostics, diagnostics},
    {"Scanning Preferences...", 0.76, SystemDataSubCategory::preferences, preferences},
    {"Scanning Saved State...", 0.80, SystemDataSubCategory::savedState, savedState},
    {"Scanning Cookies...", 0.84, SystemDataSubCategory::cookiesStorage, webStorage},
    {"Scanning iCloud Data...", 0.88, SystemDataSubCategory::icloudData,
     ChildFolder{"Library/Mobile Documents", 10'000'000}},
    {"Scanning remaining Library data...", 0.92, SystemDataSubCategory::otherLibrary,
     AnalysisMethod::libraryRemainder},
}};

}  // namespace

std::span<const Pass> analysisPasses() {
  return passes;
}

}  // namespace klarvik::mac
