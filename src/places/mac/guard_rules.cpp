#include "places/mac/mac_layout.h"

namespace klarvik::mac {
namespace {

constexpr std::array<std::string_view, 13> systemDirectories{
    "/",    "/Applications", "/Library", "/System", "/Users",   "/bin",    "/sbin",
    "/usr", "/etc",          "/var",     "/opt",    "/private", "/Volumes"};

constexpr std::array<std::string_view, 8> protectedPrefixes{"/System/",
                                                            "/bin/",
                                                            "/sbin/",
                                                            "/usr/bin/",
                                                            "/usr/sbin/",
                                                            "/usr/lib/",
                                                            "/Library/Keychains/",
                                                            "/private/var/db/"};

constexpr std::array<std::string_view, 4> managedPrefixes{
    "/private/var/vm/", "/private/var/folders/", "/.Spotlight-V100",
    "/Library/Apple/usr/libexec/oah"};

constexpr std::array<std::string_view, 1> otherHomes{"/Users"};

constexpr PlacePattern inHome(std::string_view pattern) {
  return {Base::home, pattern};
}

constexpr std::array ownPlaces{inHome("Desktop"),
                               inHome("Documents"),
                               inHome("Downloads"),
                               inHome("Pictures"),
                               inHome("Movies"),
                               inHome("Music"),
                               inHome("Library/Keychains"),
                               inHome("Library/Mobile Documents"),
                               inHome("Library/CloudStorage"),
                               inHome("Library/Preferences"),
                               inHome("Library/Application Support/AddressBook"),
                               inHome("Library/Messages"),
                               inHome("Library/Mail"),
                               inHome("Library/Containers/com.apple.mail"),
                               inHome("Library/Calendars"),
                               inHome("Library/Reminders"),
                               inHome("Library/Safari"),
                               inHome("Library/Application Support/MobileSync"),
                               inHome("Library/PersonalizationPortrait"),
                               inHome("Library/Photos"),
                               inHome("Library/Sharing")};

constexpr std::array residualRoots{inHome("Library/Preferences"),
                                   inHome("Library/Caches"),
                                   inHome("Library/Application Support"),
                                   inHome("Library/Containers"),
                                   inHome("Library/Group Containers"),
                                   inHome("Library/Saved Application State"),
                                   inHome("Library/HTTPStorages"),
                                   inHome("Library/WebKit"),
                                   inHome("Library/Logs"),
                                   inHome("Library/Cookies"),
                                   inHome("Library/Application Scripts")};

constexpr std::array<std::string_view, 5> cleanableOutsideHome{
    "/private/tmp/", "/tmp/", "/.MobileBackups/", "/Library/Caches/", "/private/var/log/"};

}  // namespace

const GuardRules guardRules{
    .systemDirectories = systemDirectories,
    .protectedPrefixes = protectedPrefixes,
    .protectedReason = "%1 is protected by macOS and by Klarvik.",
    .managedPrefixes = managedPrefixes,
    .managedReason = "%1 is managed by macOS while it is running.",
    .otherHomes = otherHomes,
    .ownPlaces = ownPlaces,
    .residualRoots = residualRoots,
    .cleanableOutsideHome = cleanableOutsideHome,
};

}  // namespace klarvik::mac
