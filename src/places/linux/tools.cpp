#include "places/linux/linux_layout.h"

namespace klarvik::linux_disk {
namespace {

using enum CategoryType;
using enum ToolAnswer;
using enum ToolRights;

template <typename... Texts>
constexpr auto arguments(Texts... texts) {
  return std::array<std::string_view, sizeof...(texts)>{texts...};
}

constexpr auto askUv = arguments("uv", "cache", "dir");
constexpr auto cleanUv = arguments("uv", "cache", "clean");
constexpr auto askPnpm = arguments("pnpm", "store", "path");
constexpr auto prunePnpm = arguments("pnpm", "store", "prune");
constexpr auto askConda = arguments("conda", "info", "--json");
constexpr auto cleanConda = arguments("conda", "clean", "--all", "--yes");
constexpr auto askGo = arguments("go", "env", "GOMODCACHE");
constexpr auto cleanGo = arguments("go", "clean", "-modcache");
constexpr auto askCcache = arguments("ccache", "--get-config", "cache_dir");
constexpr auto clearCcache = arguments("ccache", "--clear");

// A service that is not of this machine is not asked any further.
constexpr auto askDockerWhere =
    arguments("docker", "context", "inspect", "--format", "{{.Endpoints.docker.Host}}");
constexpr auto askDockerSizes = arguments("docker", "system", "df", "--format", "{{json .}}");
constexpr auto pruneDockerBuilds = arguments("docker", "builder", "prune", "--force");
constexpr auto askDockerImages =
    arguments("docker", "images", "--filter", "dangling=true", "--format", "{{json .}}");
constexpr auto pruneDockerImages = arguments("docker", "image", "prune", "--force");
constexpr auto askPodmanImages = arguments("podman", "--remote=false", "images", "--filter",
                                           "dangling=true", "--format", "json");
constexpr auto prunePodmanImages =
    arguments("podman", "--remote=false", "image", "prune", "--force");

constexpr auto askSystemFlatpakSizes =
    arguments("flatpak", "list", "--system", "--runtime", "--columns=ref,size,installation");
constexpr auto askSystemFlatpakUnused = arguments("flatpak", "uninstall", "--system", "--unused");
constexpr auto uninstallSystemFlatpakUnused =
    arguments("flatpak", "uninstall", "--system", "--unused", "--noninteractive");
constexpr auto askUserFlatpakSizes =
    arguments("flatpak", "list", "--user", "--runtime", "--columns=ref,size,installation");
constexpr auto askUserFlatpakUnused = arguments("flatpak", "uninstall", "--user", "--unused");
constexpr auto uninstallUserFlatpakUnused =
    arguments("flatpak", "uninstall", "--user", "--unused", "--noninteractive");
// Where the service does not run, the list would wait for it for ever.
constexpr auto askSnapd = arguments("systemctl", "is-active", "--quiet", "snapd.socket");
constexpr auto askSnaps = arguments("snap", "list", "--all");
constexpr auto removeSnap = arguments("snap", "remove", "NAME", "--revision=REVISION");

constexpr auto cleanApt = arguments("/usr/bin/apt-get", "clean");
constexpr auto cleanDnf = arguments("/usr/bin/dnf", "clean", "packages");
constexpr auto vacuumJournal = arguments("/usr/bin/journalctl", "--rotate", "--vacuum-size=200M");

constexpr std::string_view unusedRuntimes =
    "Runtimes that no installed application needs; some come back at the next update.";
constexpr std::string_view imagesWithoutName = "Images that no name and no container refers to.";

constexpr std::array<CleaningTool, 23> all{{
    {.id = "uv", .name = "uv", .asks = askUv, .removes = cleanUv},
    {.id = "pnpm", .name = "pnpm", .asks = askPnpm, .removes = prunePnpm},
    {.id = "conda",
     .name = "conda",
     .answer = condaFolders,
     .asks = askConda,
     .removes = cleanConda},
    {.id = "go", .name = "Go", .asks = askGo, .removes = cleanGo},
    {.id = "ccache", .name = "ccache", .asks = askCcache, .removes = clearCcache},
    {.id = "docker-builds",
     .name = "Docker",
     .rights = dockerGroup,
     .answer = dockerBuildCache,
     .asks = askDockerSizes,
     .asksFirst = askDockerWhere,
     .removes = pruneDockerBuilds,
     .category = dockerData,
     .item = "Docker build cache",
     .reason = "Layers that speed up builds; the next build does them anew.",
     .shownAt = "/var/lib/docker"},
    {.id = "docker-images",
     .name = "Docker",
     .rights = dockerGroup,
     .answer = dockerImages,
     .asks = askDockerImages,
     .asksFirst = askDockerWhere,
     .removes = pruneDockerImages,
     .category = dockerData,
     .item = "Docker images without a name",
     .reason = imagesWithoutName,
     .shownAt = "/var/lib/docker"},
    {.id = "podman-images",
     .name = "Podman",
     .answer = podmanImages,
     .asks = askPodmanImages,
     .removes = prunePodmanImages,
     .category = dockerData,
     .item = "Podman images without a name",
     .reason = imagesWithoutName,
     .shownAt = "~/.local/share/containers"},
    {.id = "flatpak-system",
     .name = "Flatpak",
     .rights = asked,
     .answer = flatpakRuntimes,
     .asks = askSystemFlatpakUnused,
     .asksFirst = askSystemFlatpakSizes,
     .removes = uninstallSystemFlatpakUnused,
     .category = installedPackages,
     .item = "Unused Flatpak runtimes",
     .reason = unusedRuntimes,
     .shownAt = "/var/lib/flatpak/runtime"},
    {.id = "flatpak-user",
     .name = "Flatpak",
     .answer = flatpakRuntimes,
     .asks = askUserFlatpakUnused,
     .asksFirst = askUserFlatpakSizes,
     .removes = uninstallUserFlatpakUnused,
     .category = installedPackages,
     .item = "Your unused Flatpak runtimes",
     .reason = unusedRuntimes,
     .shownAt = "~/.local/share/flatpak/runtime"},
    {.id = "snap",
     .name = "snapd",
     .rights = asked,
     .answer = snapRevisions,
     .asks = askSnaps,
     .asksFirst = askSnapd,
     .removes = removeSnap,
     .category = installedPackages,
     .item = "*",
     .reason = "An earlier revision of a snap, kept for going back to it.",
     .shownAt = "/var/lib/snapd/snaps"},
    {.id = "micromamba", .name = "micromamba", .told = "micromamba clean --all"},
    {.id = "bazel", .name = "Bazel", .told = "bazel clean --expunge"},
    {.id = "rustup", .name = "rustup", .told = "rustup toolchain uninstall NAME"},
    {.id = "ollama", .name = "Ollama", .told = "ollama rm NAME"},
    {.id = "minikube", .name = "minikube", .told = "minikube delete"},
    {.id = "apt", .name = "apt", .rights = root, .told = "sudo apt-get clean", .asRoot = cleanApt},
    {.id = "dnf",
     .name = "dnf",
     .rights = root,
     .told = "sudo dnf clean packages",
     .asRoot = cleanDnf},
    {.id = "zypper", .name = "zypper", .rights = root, .told = "sudo zypper clean"},
    {.id = "paccache",
     .name = "paccache",
     .rights = root,
     .told = "sudo paccache --remove --keep 1"},
    {.id = "journal",
     .name = "journalctl",
     .rights = root,
     .told = "sudo journalctl --rotate --vacuum-size=200M",
     .asRoot = vacuumJournal},
    {.id = "coredumps",
     .name = "find",
     .rights = root,
     .told = "sudo find /var/lib/systemd/coredump -xdev -type f -name 'core.*' -delete"},
    {.id = "snapd-cache",
     .name = "snapd",
     .rights = root,
     .told = "sudo sh -c 'rm -f /var/lib/snapd/cache/*'"},
}};

}  // namespace

std::span<const CleaningTool> tools() {
  return all;
}

}  // namespace klarvik::linux_disk
