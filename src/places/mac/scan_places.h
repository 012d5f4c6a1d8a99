#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include "base/paths.h"

/// Where a Smart Scan looks on a Mac's disk. Paths are below the home unless absolute, sizes are
/// bytes.
namespace klarvik::mac {

inline constexpr std::array<std::string_view, 4> xcodeCaches{
    "Library/Developer/Xcode/DerivedData", "Library/Developer/Xcode/iOS DeviceSupport",
    "Library/Developer/Xcode/watchOS DeviceSupport", "Library/Developer/Xcode/tvOS DeviceSupport"};

inline constexpr std::array<std::string_view, 1> xcodeArchives{"Library/Developer/Xcode/Archives"};

inline constexpr std::string_view simulatorCaches = "Library/Developer/CoreSimulator/Caches";
inline constexpr std::string_view simulatorDevices = "Library/Developer/CoreSimulator/Devices";
inline constexpr std::int64_t largestIgnoredDevice = 1'000'000;

inline constexpr std::array<std::string_view, 2> dockerFolders{
    "Library/Containers/com.docker.docker/Data/cache",
    "Library/Containers/com.docker.docker/Data/log"};
inline constexpr std::int64_t largestIgnoredDockerFolder = 100'000;

inline constexpr std::string_view appCaches = "Library/Caches";
inline constexpr std::int64_t largestIgnoredCache = 1'000'000;
/// Children of the caches folder that other rows account for, by what their names begin with.
inline constexpr std::array<std::string_view, 9> knownCacheOwners{
    "com.google.Chrome",  "Google",
    "com.apple.Safari",   "Firefox",
    "com.brave.Browser",  "com.microsoft.edgemac",
    "com.apple.dt.Xcode", "org.llvm",
    "com.docker.docker",
};

inline constexpr std::array<std::string_view, 2> logs{"Library/Logs", "/var/log"};

inline constexpr std::string_view deviceBackups = "Library/Application Support/MobileSync/Backup";

inline constexpr std::array<std::string_view, 6> browserCaches{
    "Library/Caches/Google/Chrome",     "Library/Caches/com.google.Chrome",
    "Library/Caches/com.apple.Safari",  "Library/Caches/Firefox",
    "Library/Caches/com.brave.Browser", "Library/Caches/com.microsoft.edgemac"};

/// Where iTunes keeps what it has downloaded to update devices with.
inline constexpr std::array<std::string_view, 3> softwareUpdateFolders{
    "Library/iTunes/iPhone Software Updates",
    "Library/iTunes/iPad Software Updates",
    "Library/iTunes/iPod Software Updates",
};
/// By its name alone.
[[nodiscard]] inline bool isFirmware(const Path& file) {
  const Path extension = file.extension();
  return extension == ".ipsw" || extension == ".ipa";
}
inline constexpr std::int64_t largestIgnoredFirmware = 100'000'000;
/// Holds firmware beside backups of devices.
inline constexpr std::string_view mobileSyncFolder = "Library/Apple/MobileSync/Backup";

/// A folder that is worth a row of the leftovers from a certain size on.
struct Leftover {
  std::string_view path;
  std::int64_t largestIgnored;
  std::string_view name;
};

inline constexpr std::array<Leftover, 8> leftoverFolders{{
    {"Library/Caches/Homebrew", 100'000'000, "🍺 Homebrew Cache"},
    {"/opt/homebrew/Caches", 100'000'000, "🍺 Homebrew Cache"},
    {"/usr/local/Homebrew/Cache", 100'000'000, "🍺 Homebrew Cache"},
    {"Library/Logs/DiagnosticReports", 100'000'000, "🩺 Diagnostic Reports"},
    {"/Library/Logs/DiagnosticReports", 100'000'000, "🩺 Diagnostic Reports"},
    {"Library/Saved Application State", 50'000'000, "📋 Saved App State"},
    {"Library/Cookies", 20'000'000, "🍪 Cookies"},
    {"Library/HTTPStorages", 20'000'000, "🌐 HTTP Storage"},
}};

}  // namespace klarvik::mac
