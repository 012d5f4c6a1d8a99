#include "tools/system_packages.h"

#include <algorithm>
#include <array>
#include <iterator>

#include "base/text.h"
#include "places/disk_layout.h"
#include "platform/file_system.h"
#include "tools/debian_packages.h"
#include "tools/pacman_packages.h"
#include "tools/rpm_packages.h"

namespace klarvik {
namespace {

using Owners = PackageOwners (*)(const Platform&, const PackageManager&, const std::set<Path>&);
using Names = std::optional<PackageNames> (*)(const Platform&, const PackageManager&);

PackageOwners ownersByDpkg(const Platform& platform, const PackageManager& manager,
                           const std::set<Path>& paths) {
  PackageOwners owners;
  const DebianPackageTable packages = installedDebianPackages(platform.files);
  if (packages.empty()) return owners;
  for (auto& [path, name] : debianOwners(platform.files, paths)) {
    const auto package = packages.find(name);
    if (package == packages.end()) continue;
    owners.emplace(path, SystemPackage{.name = name,
                                       .bytes = package->second.bytes,
                                       .isNeeded = package->second.isNeeded,
                                       .manager = &manager});
  }
  return owners;
}

std::optional<PackageNames> namesByDpkg(const Platform& platform, const PackageManager&) {
  PackageNames names;
  for (auto& [name, package] : installedDebianPackages(platform.files)) names.insert(name);
  return names;
}

/// How the records of one kind are read.
struct Reader {
  PackageRecords records;
  Owners owners;
  Names names;
};

constexpr std::array<Reader, 3> readers{{
    {PackageRecords::dpkg, ownersByDpkg, namesByDpkg},
    {PackageRecords::rpm, rpmOwners, rpmNames},
    {PackageRecords::pacman, pacmanOwners, pacmanNames},
}};

const Reader& readerOf(const PackageManager& manager) {
  return *std::ranges::find(readers, manager.records, &Reader::records);
}

/// Those that have installed something on this disk.
std::vector<const PackageManager*> managersOf(const Platform& platform) {
  std::vector<const PackageManager*> managers;
  const auto* places = layoutFor(platform.files.home()).applications.desktop;
  if (places == nullptr) return managers;
  for (const PackageManager& each : places->packageManagers) {
    const bool isThere = std::ranges::any_of(each.databases, [&](std::string_view database) {
      return platform.files.exists(Path(database));
    });
    if (isThere) managers.push_back(&each);
  }
  return managers;
}

}  // namespace

PackageOwners packageOwners(const Platform& platform, const std::set<Path>& paths) {
  PackageOwners owners;
  std::set<Path> rest = paths;
  for (const PackageManager* manager : managersOf(platform)) {
    if (rest.empty()) break;
    for (auto& [path, package] : readerOf(*manager).owners(platform, *manager, rest)) {
      rest.erase(path);
      owners.emplace(path, std::move(package));
    }
  }
  return owners;
}

std::optional<PackageNames> installedPackageNames(const Platform& platform) {
  PackageNames all;
  for (const PackageManager* manager : managersOf(platform)) {
    auto names = readerOf(*manager).names(platform, *manager);
    if (!names) return std::nullopt;
    all.merge(*names);
  }
  return all;
}

bool isPackageName(std::string_view name, const PackageManager& manager) {
  return isPlainName(name, manager.nameMarks);
}

std::vector<std::string> databaseArguments(const Platform& platform,
                                           const PackageManager& manager) {
  const auto there = std::ranges::find_if(
      manager.databases, [&](std::string_view each) { return platform.files.exists(Path(each)); });
  if (manager.databaseOption.empty() || there == manager.databases.end()) return {};
  return {std::string(manager.databaseOption),
          platform.files.diskPath(Path(*there).parent_path()).native()};
}

std::vector<std::string> removalQuestion(const Platform& platform, const PackageManager& manager) {
  std::vector<std::string> command(manager.question.begin(), manager.question.end());
  std::ranges::move(databaseArguments(platform, manager), std::back_inserter(command));
  return command;
}

std::string removalCommand(const Platform& platform, const PackageManager& manager,
                           std::string_view package) {
  const auto there = std::ranges::find_if(manager.frontEnds, [&](const PackageFrontEnd& each) {
    return platform.files.exists(Path(each.program));
  });
  const PackageFrontEnd& chosen =
      there != manager.frontEnds.end() ? *there : manager.frontEnds.front();
  return std::string(chosen.removal) + ' ' + std::string(package);
}

}  // namespace klarvik
