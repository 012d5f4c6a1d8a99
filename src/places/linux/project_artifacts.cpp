#include "places/linux/linux_layout.h"

namespace klarvik::linux_disk {
namespace {

/// A list of names in a constant.
template <class... Texts>
consteval auto names(Texts... texts) {
  return std::array<std::string_view, sizeof...(texts)>{texts...};
}

constexpr auto nodeModules = names("node_modules");
constexpr auto packageJson = names("package.json");
constexpr auto target = names("target");
constexpr auto cargoToml = names("Cargo.toml");
constexpr auto cacheTag = names("CACHEDIR.TAG");
constexpr auto pomXml = names("pom.xml");
constexpr auto buildSbt = names("build.sbt");
constexpr auto build = names("build");
constexpr auto buildGradle = names("build.gradle", "build.gradle.kts");
constexpr auto cmakeLists = names("CMakeLists.txt");
constexpr auto dotGradle = names(".gradle");
constexpr auto anyGradle =
    names("build.gradle", "build.gradle.kts", "settings.gradle", "settings.gradle.kts");
constexpr auto cmakeFolders = names("build", "cmake-build-*", "out");
constexpr auto cmakeCache = names("CMakeCache.txt");
constexpr auto mesonFolders = names("build", "builddir");
constexpr auto mesonBuild = names("meson.build");
constexpr auto buildNinja = names("build.ninja");
constexpr auto environments = names(".venv", "venv", "env");
constexpr auto pythonProject = names("pyproject.toml", "requirements.txt", "setup.py");
constexpr auto pyvenv = names("pyvenv.cfg");
constexpr auto pythonCaches =
    names("__pycache__", ".mypy_cache", ".pytest_cache", ".ruff_cache", ".tox", ".nox");
constexpr auto pythonSources = names("*.py");
constexpr auto webFolders =
    names(".next", ".nuxt", ".svelte-kit", ".turbo", ".parcel-cache", ".angular", ".expo");
constexpr auto webProject = names("next.config.*", "package.json");
constexpr auto bin = names("bin");
constexpr auto dotnetBuilds = names("Debug", "Release");
constexpr auto obj = names("obj");
constexpr auto dotnetAssets = names("project.assets.json");
constexpr auto dotnetProject = names("*.csproj", "*.fsproj");
constexpr auto vendor = names("vendor");
constexpr auto composerJson = names("composer.json");
constexpr auto autoload = names("autoload.php");
constexpr auto elixirFolders = names("_build", "deps");
constexpr auto mixExs = names("mix.exs");
constexpr auto haskellFolders = names(".stack-work", "dist-newstyle");
constexpr auto haskellProject = names("stack.yaml", "cabal.project");
constexpr auto zigFolders = names("zig-cache", ".zig-cache", "zig-out");
constexpr auto buildZig = names("build.zig");
constexpr auto dartFolders = names("build", ".dart_tool");
constexpr auto pubspec = names("pubspec.yaml");
constexpr auto dotGodot = names(".godot");
constexpr auto godotProject = names("project.godot");
constexpr auto dotTerraform = names(".terraform");
constexpr auto terraformFiles = names("*.tf");
constexpr auto terraformState = names("terraform.tfstate");

constexpr std::array<ProjectArtifact, 20> artifacts{{
    {"artifact-node", nodeModules, packageJson,
     "npm install fetches it again; the project itself stays."},
    {"artifact-cargo", target, cargoToml, "cargo build makes it again.", {.inside = cacheTag}},
    {"artifact-maven", target, pomXml, "mvn package makes it again."},
    {"artifact-sbt", target, buildSbt, "sbt compile makes it again."},
    {"artifact-gradle",
     build,
     buildGradle,
     "gradle build makes it again.",
     {.notBeside = cmakeLists}},
    {"artifact-gradle-local", dotGradle, anyGradle,
     "Gradle makes its own notes of the project again."},
    {"artifact-cmake",
     cmakeFolders,
     cmakeLists,
     "cmake and a build make it again.",
     {.inside = cmakeCache}},
    {"artifact-meson",
     mesonFolders,
     mesonBuild,
     "meson setup and a build make it again.",
     {.inside = buildNinja}},
    {"artifact-venv",
     environments,
     pythonProject,
     "The environment of a project: it can be made again only if its requirements are written "
     "down.",
     {.inside = pyvenv}},
    {"artifact-python", pythonCaches, pythonSources, "Python tools make it again at the next run."},
    {"artifact-web", webFolders, webProject, "The web framework builds it again."},
    {"artifact-dotnet-obj",
     obj,
     dotnetProject,
     "dotnet build makes it again.",
     {.inside = dotnetAssets}},
    {"artifact-dotnet-bin",
     bin,
     dotnetProject,
     "dotnet build makes it again.",
     {.inside = dotnetBuilds}},
    {"artifact-composer",
     vendor,
     composerJson,
     "composer install fetches it again.",
     {.inside = autoload}},
    {"artifact-elixir", elixirFolders, mixExs, "mix makes it again."},
    {"artifact-haskell", haskellFolders, haskellProject, "stack or cabal makes it again."},
    {"artifact-zig", zigFolders, buildZig, "zig build makes it again."},
    {"artifact-dart", dartFolders, pubspec, "flutter or dart makes it again."},
    {"artifact-godot", dotGodot, godotProject, "Godot imports the assets again."},
    {"artifact-terraform",
     dotTerraform,
     terraformFiles,
     "terraform init fetches the providers again.",
     {.notInside = terraformState}},
}};

}  // namespace

std::span<const ProjectArtifact> projectArtifacts() {
  return artifacts;
}

}  // namespace klarvik::linux_disk
