#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/paths.h"

/// What tools print, when they are asked in English for what they would remove. Pure functions.
/// What is not as expected is not there: nothing is ever taken for a name, a folder or a size that
/// is not spelled as one.
namespace klarvik::tool_answers {

/// The one line of `go env GOMODCACHE`, `ccache --get-config cache_dir`, `uv cache dir` and
/// `pnpm store path`: an absolute path.
[[nodiscard]] std::optional<Path> folder(std::string_view text);

/// Where the packages lie, of `conda info --json`. Empty when one of them is no absolute path.
[[nodiscard]] std::vector<Path> condaFolders(std::string_view text);

/// What Docker's things of one kind take.
struct DockerUse {
  std::int64_t size = 0;         ///< bytes
  std::int64_t reclaimable = 0;  ///< bytes
};
/// Of the kind `type`, out of `docker system df --format {{json .}}`.
[[nodiscard]] std::optional<DockerUse> dockerUse(std::string_view text, std::string_view type);

/// Whether the service that `docker context inspect` names is one of this machine.
[[nodiscard]] bool isLocalDocker(std::string_view text);

/// Bytes of all images of `docker images --format {{json .}}`; nothing when it names none.
[[nodiscard]] std::optional<std::int64_t> dockerImages(std::string_view text);

/// Bytes of the images of `podman images --format json` that no container uses, without what they
/// share with others.
[[nodiscard]] std::optional<std::int64_t> podmanImages(std::string_view text);

struct FlatpakRuntime {
  std::string id;
  std::string branch;
  std::int64_t size = 0;  ///< bytes, as precisely as it is told

  bool operator==(const FlatpakRuntime&) const = default;
};
/// Of `flatpak list --runtime --columns=ref,size,installation`.
[[nodiscard]] std::vector<FlatpakRuntime> flatpakRuntimes(std::string_view text);
/// What `flatpak uninstall --unused` would remove; without sizes.
[[nodiscard]] std::vector<FlatpakRuntime> flatpakUnused(std::string_view text);

struct SnapRevision {
  std::string name;
  std::string revision;

  bool operator==(const SnapRevision&) const = default;
};
/// Those of `snap list --all` that are kept but not used.
[[nodiscard]] std::vector<SnapRevision> disabledSnaps(std::string_view text);

}  // namespace klarvik::tool_answers
