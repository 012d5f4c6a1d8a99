#include "support/linux_sample_disk.h"

#include <array>
#include <span>
#include <string_view>
#include <utility>

#include "support/firefox_places.h"

namespace klarvik {
namespace {

// Just above the two sizes from which most places are listed.
constexpr std::int64_t overTenMegabytes = 10'020;  // kilobytes
constexpr std::int64_t overOneMegabyte = 1'040;    // kilobytes

/// A folder that a Smart Scan lists.
struct SampleJunk {
  std::string_view id;
  std::string_view path;  ///< absolute, or below the home
  std::int64_t kilobytes = overTenMegabytes;
  std::int64_t smallFiles = 0;  ///< as many more, of 2 KB each
};

constexpr std::array packageCaches{
    SampleJunk{"npm", ".npm/_cacache", 12'000, 300},
    SampleJunk{"npx", ".npm/_npx"},
    SampleJunk{"npm-logs", ".npm/_logs", overOneMegabyte, 20},
    SampleJunk{"pnpm-meta", ".cache/pnpm"},
    SampleJunk{"yarn1", ".cache/yarn"},
    SampleJunk{"yarn-berry", ".yarn/berry/cache"},
    SampleJunk{"bun", ".bun/install/cache"},
    SampleJunk{"deno", ".cache/deno/npm"},
    SampleJunk{"node-gyp", ".cache/node-gyp"},
    SampleJunk{"electron", ".cache/electron"},
    SampleJunk{"electron-builder", ".cache/electron-builder"},
    SampleJunk{"pip", ".cache/pip", overTenMegabytes, 60},
    SampleJunk{"poetry", ".cache/pypoetry/cache"},
    SampleJunk{"poetry-artifacts", ".cache/pypoetry/artifacts"},
    SampleJunk{"pdm", ".cache/pdm"},
    SampleJunk{"pipenv", ".cache/pipenv"},
    SampleJunk{"pre-commit", ".cache/pre-commit"},
    SampleJunk{"cargo-registry", ".cargo/registry", overTenMegabytes, 200},
    SampleJunk{"cargo-git", ".cargo/git"},
    SampleJunk{"go-build", ".cache/go-build", overTenMegabytes, 100},
    SampleJunk{"gopls", ".cache/gopls"},
    SampleJunk{"golangci", ".cache/golangci-lint"},
    SampleJunk{"gradle-caches", ".gradle/caches", overTenMegabytes, 60},
    SampleJunk{"gradle-dists", ".gradle/wrapper/dists"},
    SampleJunk{"gradle-daemon-logs", ".gradle/daemon"},
    SampleJunk{"ivy", ".ivy2/cache"},
    SampleJunk{"coursier", ".cache/coursier/v1"},
    SampleJunk{"sbt", ".sbt/boot"},
    SampleJunk{"vcpkg", ".cache/vcpkg/archives"},
    SampleJunk{"nuget", ".nuget/packages"},
    SampleJunk{"nuget-http", ".local/share/NuGet/http-cache"},
    SampleJunk{"nuget-v3", ".local/share/NuGet/v3-cache"},
    SampleJunk{"pub", ".pub-cache/hosted"},
    SampleJunk{"pub-git", ".pub-cache/git"},
    SampleJunk{"composer", ".cache/composer"},
    SampleJunk{"composer-old", ".composer/cache"},
    SampleJunk{"gem-cache", ".gem/ruby/3.1.0/cache"},
    SampleJunk{"bundler", ".bundle/cache"},
    SampleJunk{"cabal", ".cache/cabal"},
    SampleJunk{"cabal-old", ".cabal/packages"},
    SampleJunk{"hex", ".cache/rebar3"},
    SampleJunk{"zig", ".cache/zig"},
    SampleJunk{"ccache", ".cache/ccache", overTenMegabytes, 120},
    SampleJunk{"sccache", ".cache/sccache"},
    SampleJunk{"bazelisk", ".cache/bazelisk"},
    SampleJunk{"buck", ".cache/buck2"},
    SampleJunk{"homebrew", ".cache/Homebrew"},
    SampleJunk{"nvm-cache", ".nvm/.cache"},
    SampleJunk{"pyenv-cache", ".pyenv/cache"},
    SampleJunk{"kube-cache", ".kube/cache", overOneMegabyte, 30},
    SampleJunk{"helm", ".cache/helm"},
    SampleJunk{"minikube-cache", ".minikube/cache"},
    SampleJunk{"terraform-plugins", ".terraform.d/plugin-cache"},
    SampleJunk{"trivy", ".cache/trivy"},
    SampleJunk{"android-cache", ".android/cache"},
    SampleJunk{"android-build-cache", ".android/build-cache"},
    SampleJunk{"platformio", ".platformio/.cache"},
    SampleJunk{"texlive", ".cache/Tectonic"},
};

constexpr std::array toolchains{
    SampleJunk{"cypress", ".cache/Cypress"},
    SampleJunk{"playwright", ".cache/ms-playwright"},
    SampleJunk{"puppeteer", ".cache/puppeteer"},
    SampleJunk{"maven-repo", ".m2/repository", overTenMegabytes, 100},
    SampleJunk{"conan2", ".conan2/p"},
    SampleJunk{"conan1", ".conan/data"},
    SampleJunk{"nvm", ".nvm/versions/node/v20.11.1", overTenMegabytes, 60},
    SampleJunk{"fnm", ".local/share/fnm/node-versions/v18.19.0"},
    SampleJunk{"pyenv", ".pyenv/versions/3.11.7"},
    SampleJunk{"rbenv", ".rbenv/versions/3.2.2"},
    SampleJunk{"asdf", ".asdf/installs/erlang/26.2"},
    SampleJunk{"sdkman", ".sdkman/candidates/java/17.0.9-tem"},
    SampleJunk{"sdkman-tmp", ".sdkman/archives/java-17"},
    SampleJunk{"poetry-venvs", ".cache/pypoetry/virtualenvs/billing-x1-py3.11"},
    SampleJunk{"pipenv-venvs", ".local/share/virtualenvs/course-a1b2c3"},
    SampleJunk{"uv-python", ".local/share/uv/python/cpython-3.12.1-linux-x86_64-gnu"},
    SampleJunk{"android-images", "Android/Sdk/system-images/android-34"},
    SampleJunk{"android-platforms", "Android/Sdk/platforms/android-34"},
    SampleJunk{"android-ndk", "Android/Sdk/ndk/26.1.10909125"},
    SampleJunk{"android-avd", ".android/avd/Pixel_7.avd"},
    SampleJunk{"vagrant-boxes", ".vagrant.d/boxes/debian-VAGRANTSLASH-bookworm64"},
    SampleJunk{"huggingface", ".cache/huggingface/hub/models--acme--tiny"},
    SampleJunk{"torch", ".cache/torch"},
    SampleJunk{"lmstudio", ".lmstudio/models/acme"},
    SampleJunk{"jetbrains-old", ".cache/JetBrains/IntelliJIdea2023.1"},
    SampleJunk{"jetbrains-toolbox", ".local/share/JetBrains/Toolbox/apps/IDEA-U/ch-0/231.9011.34"},
};

constexpr std::array appCaches{
    SampleJunk{"cache-known", ".cache/gnome-software", 4'000, 20},
    SampleJunk{"cache-known", ".cache/org.gnome.Maps", overOneMegabyte},
    SampleJunk{"cache-known", ".cache/gegl-0.4", overOneMegabyte},
    SampleJunk{"cache-known", ".cache/clangd", 3'000},
    SampleJunk{"cache-known", ".cache/mesonbuild", overOneMegabyte},
    SampleJunk{"cache-known", ".cache/typescript", overOneMegabyte},
    SampleJunk{"thumbnails", ".cache/thumbnails", 2'000, 150},
    SampleJunk{"thumbnails-old", ".thumbnails", overOneMegabyte, 20},
    SampleJunk{"jetbrains-index", ".cache/JetBrains/IntelliJIdea2024.3/index", 8'000},
    SampleJunk{"jetbrains-index", ".cache/JetBrains/IntelliJIdea2024.3/log", overOneMegabyte},
    SampleJunk{"jetbrains-index", ".cache/JetBrains/PyCharm2024.3/index", 3'000},
    SampleJunk{"androidstudio-index", ".cache/Google/AndroidStudio2024.2/index", 2'000},
    SampleJunk{"electron-code", ".config/Code/Cache", 2'000, 40},
    SampleJunk{"electron-code", ".config/Code/CachedData", overOneMegabyte},
    SampleJunk{"electron-code", ".config/Code/Service Worker/ScriptCache", overOneMegabyte},
    SampleJunk{"electron-code---insiders", ".config/Code - Insiders/Code Cache", overOneMegabyte},
    SampleJunk{"electron-vscodium", ".config/VSCodium/CachedExtensionVSIXs", overOneMegabyte},
    SampleJunk{"electron-cursor", ".config/Cursor/logs", overOneMegabyte},
    SampleJunk{"electron-windsurf", ".config/Windsurf/CachedProfilesData", overOneMegabyte},
    SampleJunk{"electron-slack", ".config/Slack/Cache", 3'000},
    SampleJunk{"electron-discord", ".config/discord/Code Cache", overOneMegabyte},
    SampleJunk{"electron-microsoft-teams", ".config/Microsoft/Microsoft Teams/Cache",
               overOneMegabyte},
    SampleJunk{"electron-signal", ".config/Signal/GPUCache", overOneMegabyte},
    SampleJunk{"electron-element", ".config/Element/DawnCache", overOneMegabyte},
    SampleJunk{"electron-obsidian", ".config/obsidian/Crashpad/completed", overOneMegabyte},
    SampleJunk{"electron-postman", ".config/Postman/DawnGraphiteCache", overOneMegabyte},
    SampleJunk{"electron-spotify", ".config/spotify/DawnWebGPUCache", overOneMegabyte},
    SampleJunk{"flatpak-caches", ".var/app/org.gimp.GIMP/cache", overOneMegabyte},
    SampleJunk{"flatpak-caches", ".var/app/org.gnome.Builder/cache", overOneMegabyte},
    SampleJunk{"snap-caches", "snap/spotify/common/.cache", overOneMegabyte},
    SampleJunk{"snap-rev-caches", "snap/spotify/77/.cache", overOneMegabyte},
    SampleJunk{"steam-shaders", ".local/share/Steam/steamapps/shadercache/570", 6'000, 20},
    SampleJunk{"steam-shaders-flatpak",
               ".var/app/com.valvesoftware.Steam/.local/share/Steam/steamapps/shadercache/620",
               overOneMegabyte},
    SampleJunk{"steam-http", ".local/share/Steam/appcache/httpcache", overOneMegabyte, 30},
    SampleJunk{"wine-temp", ".wine/drive_c/windows/temp", overOneMegabyte},
    SampleJunk{"wine-user-temp", ".wine/drive_c/users/ann/AppData/Local/Temp", overOneMegabyte},
    SampleJunk{"winetricks", ".cache/winetricks", overOneMegabyte},
    SampleJunk{"winetricks-old", ".winetrickscache", overOneMegabyte},
    SampleJunk{"flatpak-tmp", "/var/tmp/flatpak-cache-X1Y2Z3", overOneMegabyte},
};

constexpr std::array browserCaches{
    SampleJunk{"firefox", ".cache/mozilla/firefox/x1y2z3.default-release", 6'000, 60},
    SampleJunk{"librewolf", ".cache/librewolf", overOneMegabyte},
    SampleJunk{"waterfox", ".cache/waterfox", overOneMegabyte},
    SampleJunk{"zen", ".cache/zen", overOneMegabyte},
    SampleJunk{"palemoon", ".cache/moonchild productions", overOneMegabyte},
    SampleJunk{"torbrowser", ".cache/tor-browser", overOneMegabyte},
    SampleJunk{"chrome", ".cache/google-chrome", 8'000, 60},
    SampleJunk{"chrome-beta", ".cache/google-chrome-beta", overOneMegabyte},
    SampleJunk{"chrome-dev", ".cache/google-chrome-unstable", overOneMegabyte},
    SampleJunk{"chromium", ".cache/chromium", 3'000},
    SampleJunk{"brave", ".cache/BraveSoftware", 2'000},
    SampleJunk{"edge", ".cache/microsoft-edge", overOneMegabyte},
    SampleJunk{"vivaldi", ".cache/vivaldi", overOneMegabyte},
    SampleJunk{"opera", ".cache/opera", overOneMegabyte},
    SampleJunk{"yandex", ".cache/yandex-browser", overOneMegabyte},
    SampleJunk{"epiphany", ".cache/epiphany", overOneMegabyte},
    SampleJunk{"falkon", ".cache/falkon", overOneMegabyte},
    SampleJunk{"qutebrowser", ".cache/qutebrowser", overOneMegabyte},
    SampleJunk{"thunderbird", ".cache/thunderbird", overOneMegabyte},
    SampleJunk{"snap-firefox", "snap/firefox/common/.cache", overOneMegabyte},
    SampleJunk{"snap-chromium", "snap/chromium/common/.cache", overOneMegabyte},
    SampleJunk{"snap-brave", "snap/brave/common/.cache", overOneMegabyte},
    SampleJunk{"snap-opera", "snap/opera/common/.cache", overOneMegabyte},
    SampleJunk{"flatpak-firefox", ".var/app/org.mozilla.firefox/cache", overOneMegabyte},
    SampleJunk{"flatpak-chrome", ".var/app/com.google.Chrome/cache", overOneMegabyte},
    SampleJunk{"flatpak-chromium", ".var/app/org.chromium.Chromium/cache", overOneMegabyte},
    SampleJunk{"flatpak-browser", ".var/app/com.brave.Browser/cache", overOneMegabyte},
    SampleJunk{"flatpak-edge", ".var/app/com.microsoft.Edge/cache", overOneMegabyte},
    SampleJunk{"flatpak-vivaldi", ".var/app/com.vivaldi.Vivaldi/cache", overOneMegabyte},
    SampleJunk{"flatpak-opera", ".var/app/com.opera.Opera/cache", overOneMegabyte},
    SampleJunk{"flatpak-librewolf-community", ".var/app/io.gitlab.librewolf-community/cache",
               overOneMegabyte},
    SampleJunk{"flatpak-zen", ".var/app/app.zen_browser.zen/cache", overOneMegabyte},
    SampleJunk{"flatpak-waterfox", ".var/app/net.waterfox.waterfox/cache", overOneMegabyte},
    SampleJunk{"flatpak-thunderbird", ".var/app/org.mozilla.Thunderbird/cache", overOneMegabyte},
    SampleJunk{"profile-google-chrome", ".config/google-chrome/Default/GPUCache", overOneMegabyte},
    SampleJunk{"profile-google-chrome",
               ".config/google-chrome/Profile 1/Service Worker/ScriptCache", overOneMegabyte},
    SampleJunk{"profile-google-chrome", ".config/google-chrome/ShaderCache", overOneMegabyte},
    SampleJunk{"profile-chromium", ".config/chromium/GrShaderCache", overOneMegabyte},
    SampleJunk{"profile-brave-browser", ".config/BraveSoftware/Brave-Browser/Default/DawnCache",
               overOneMegabyte},
    SampleJunk{"profile-microsoft-edge", ".config/microsoft-edge/component_crx_cache",
               overOneMegabyte},
    SampleJunk{"profile-vivaldi", ".config/vivaldi/Default/DawnGraphiteCache", overOneMegabyte},
    SampleJunk{"profile-opera", ".config/opera/GraphiteDawnCache", overOneMegabyte},
};

constexpr std::array logsAndLeftovers{
    SampleJunk{"firefox-crashes", ".mozilla/firefox/Crash Reports", overOneMegabyte},
    SampleJunk{"firefox-crashes-config", ".config/mozilla/firefox/Crash Reports", overOneMegabyte},
    SampleJunk{"firefox-crashes-esr", ".config/mozilla/firefox-esr/Crash Reports", overOneMegabyte},
    SampleJunk{"chrome-crashes", ".config/google-chrome/Crash Reports/completed", overOneMegabyte},
    SampleJunk{"cache-children", ".cache/acme-notes", 5'000, 20},
    SampleJunk{"cache-children", ".cache/some.program", overOneMegabyte},
    SampleJunk{"jetbrains-fscache", ".cache/JetBrains/IntelliJIdea2024.3/caches", 3'000},
    SampleJunk{"androidstudio-fscache", ".cache/Google/AndroidStudio2024.2/caches",
               overOneMegabyte},
    SampleJunk{"steam-downloading", ".local/share/Steam/steamapps/downloading/730"},
    SampleJunk{"offline-spotify", ".cache/spotify", 4'000},
    SampleJunk{"offline-mail", ".cache/evolution", overOneMegabyte},
    SampleJunk{"offline-geary", ".cache/geary", overOneMegabyte},
    SampleJunk{"var-tmp-own", "/var/tmp/kdecache-old", overOneMegabyte},
    SampleJunk{"tmp-own", "/tmp/build-of-last-summer", 3'000, 20},
    SampleJunk{"state-logs", ".local/state/acme/log", overOneMegabyte},
    SampleJunk{"offline-google-chrome",
               ".config/google-chrome/Default/Service Worker/CacheStorage"},
    SampleJunk{"offline-chromium", ".config/chromium/Default/Service Worker/CacheStorage"},
    SampleJunk{"offline-brave-browser",
               ".config/BraveSoftware/Brave-Browser/Default/Service Worker/CacheStorage"},
    SampleJunk{"offline-microsoft-edge",
               ".config/microsoft-edge/Default/Service Worker/CacheStorage"},
    SampleJunk{"offline-vivaldi", ".config/vivaldi/Default/Service Worker/CacheStorage"},
    SampleJunk{"offline-opera", ".config/opera/Default/Service Worker/CacheStorage"},
    SampleJunk{"flatpak-orphan", ".var/app/org.gone.Editor"},
    SampleJunk{"snap-orphan", "snap/gone-tool"},
    SampleJunk{"snap-oldrev", "snap/spotify/60"},
    SampleJunk{"steam-orphan-shaders", ".local/share/Steam/steamapps/shadercache/440"},
};

/// Plain files that a Smart Scan lists.
constexpr std::array junkFiles{
    SampleJunk{"xsession-old", ".xsession-errors.old", overOneMegabyte},
    SampleJunk{"xorg-old", ".local/share/xorg/Xorg.0.log.old", overOneMegabyte},
    SampleJunk{"sddm-log", ".local/share/sddm/wayland-session.log", overOneMegabyte},
    SampleJunk{"own-crash", "/var/crash/_usr_bin_write.1000.crash", overOneMegabyte},
    SampleJunk{"tmp-own", "/tmp/export-2024.zip", overOneMegabyte},
    SampleJunk{"appimage-old", "Applications/Joplin-2.13.15.AppImage"},
    SampleJunk{"appimage-old-2", "AppImages/Krita-5.1.0.AppImage"},
};

/// A folder that a build has left in a project.
struct SampleArtifact {
  std::string_view id;
  std::string_view path;       ///< below the home
  std::string_view mark = {};  ///< a file in it, where one is asked for
  std::int64_t smallFiles = 0;
};

constexpr std::array artifacts{
    SampleArtifact{"artifact-node", "Projects/webshop/node_modules", {}, 300},
    SampleArtifact{"artifact-node", "Projects/webshop/packages/ui/node_modules", {}, 60},
    SampleArtifact{"artifact-web", "Projects/webshop/.next", {}, 40},
    SampleArtifact{"artifact-cargo", "Projects/parser/target", "CACHEDIR.TAG", 100},
    SampleArtifact{"artifact-maven", "src/billing/target"},
    SampleArtifact{"artifact-sbt", "src/streams/target"},
    SampleArtifact{"artifact-gradle", "Projects/phone/build"},
    SampleArtifact{"artifact-gradle-local", "Projects/phone/.gradle"},
    SampleArtifact{"artifact-cmake", "src/renderer/build", "CMakeCache.txt", 60},
    SampleArtifact{"artifact-meson", "src/player/builddir", "build.ninja"},
    SampleArtifact{"artifact-venv", "Projects/course/.venv", "pyvenv.cfg", 100},
    SampleArtifact{"artifact-python", "Projects/course/.mypy_cache", {}, 40},
    SampleArtifact{"artifact-dotnet-obj", "Projects/Invoices/obj", "project.assets.json"},
    SampleArtifact{"artifact-dotnet-bin", "Projects/Invoices/bin", "Debug/net8.0/Invoices.dll"},
    SampleArtifact{"artifact-composer", "Projects/blog/vendor", "autoload.php"},
    SampleArtifact{"artifact-elixir", "Projects/chat/_build"},
    SampleArtifact{"artifact-haskell", "src/solver/.stack-work"},
    SampleArtifact{"artifact-zig", "src/tiny/.zig-cache"},
    SampleArtifact{"artifact-dart", "Projects/habits/.dart_tool"},
    SampleArtifact{"artifact-godot", "Projects/platformer/.godot"},
    SampleArtifact{"artifact-terraform", "Projects/infra/.terraform"},
};

/// Named like an artifact; but its marker does not stand beside it, what has to lie in it is
/// missing, or it is too small for a row.
struct SampleDecoy {
  std::string_view path;  ///< below the home
  std::string_view own;   ///< a file in it that somebody needs
  std::int64_t kilobytes = overTenMegabytes;
};

constexpr std::array artifactDecoys{
    SampleDecoy{"Dokumente/Studium/build", "thesis.tex"},
    SampleDecoy{"Dokumente/Fotos/target", "schützenfest.jpg"},
    SampleDecoy{"Projects/notes/node_modules", "readme.md"},
    SampleDecoy{"Projects/firmware/out", "release.img"},
    SampleDecoy{"Projects/cluster/.terraform", "terraform.tfstate"},
    SampleDecoy{"Projects/scripts/bin", "deploy.sh", 20},
    SampleDecoy{"Projects/journal/env", "notes.md", 20},
    SampleDecoy{"Projects/tiny-site/node_modules", "left-pad.js", 400},
};

/// What people have written, and the markers of their projects.
constexpr auto projectFiles = std::to_array<std::string_view>({
    "Projects/webshop/package.json",
    "Projects/webshop/next.config.js",
    "Projects/webshop/src/index.js",
    "Projects/webshop/.git/config",
    "Projects/webshop/.git/HEAD",
    "Projects/webshop/packages/ui/package.json",
    "Projects/webshop/packages/ui/button.js",
    "Projects/parser/Cargo.toml",
    "Projects/parser/Cargo.lock",
    "Projects/parser/src/main.rs",
    "Projects/phone/build.gradle.kts",
    "Projects/phone/app/src/Main.kt",
    "Projects/course/requirements.txt",
    "Projects/course/train.py",
    "Projects/Invoices/Invoices.csproj",
    "Projects/Invoices/Program.cs",
    "Projects/blog/composer.json",
    "Projects/blog/index.php",
    "Projects/chat/mix.exs",
    "Projects/chat/lib/chat.ex",
    "Projects/habits/pubspec.yaml",
    "Projects/habits/lib/main.dart",
    "Projects/platformer/project.godot",
    "Projects/platformer/player.gd",
    "Projects/infra/main.tf",
    "src/billing/pom.xml",
    "src/billing/src/main/java/App.java",
    "src/streams/build.sbt",
    "src/streams/Main.scala",
    "src/renderer/CMakeLists.txt",
    "src/renderer/main.cpp",
    "src/player/meson.build",
    "src/player/player.c",
    "src/solver/stack.yaml",
    "src/solver/Main.hs",
    "src/tiny/build.zig",
    "src/tiny/main.zig",
    // Beside the decoys.
    "Projects/firmware/CMakeLists.txt",
    "Projects/cluster/main.tf",
    "Projects/tiny-site/package.json",
    // Of programs, of what somebody has put away, and of the home itself.
    "Projects/.archive/shop/package.json",
    "Projects/.archive/shop/node_modules/left-pad/index.js",
    ".local/lib/writer/package.json",
    ".local/lib/writer/node_modules/left-pad/index.js",
    "package.json",
    "node_modules/left-pad/index.js",
});

constexpr auto secretFiles = std::to_array<std::string_view>({
    ".ssh/id_ed25519",
    ".ssh/config",
    ".gnupg/private-keys-v1.d/A1B2.key",
    ".pki/nssdb/key4.db",
    ".password-store/mail/ann.gpg",
    ".local/share/keyrings/login.keyring",
    ".local/share/kwalletd/kdewallet.kwl",
    ".local/share/gnome-online-accounts/accounts.conf",
    ".local/share/TelegramDesktop/tdata/key_datas",
    ".aws/credentials",
    ".aws/sso/cache/token.json",
    ".azure/msal_token_cache.json",
    ".kube/config",
    ".docker/config.json",
    ".netrc",
    ".git-credentials",
    ".npmrc",
    ".pypirc",
    ".cargo/credentials.toml",
    ".cargo/config.toml",
    ".cargo/bin/cargo-own",
    ".gradle/gradle.properties",
    ".gradle/init.d/company.gradle",
    ".m2/settings.xml",
    ".m2/settings-security.xml",
    ".gem/credentials",
    ".android/adbkey",
    ".android/adbkey.pub",
    ".android/debug.keystore",
    ".terraform.d/credentials.tfrc.json",
    ".vault-token",
    ".bitcoin/wallet.dat",
    ".ethereum/keystore/key",
    ".electrum/wallets/default_wallet",
    ".monero/wallet.keys",
    ".bundle/config",
    ".composer/auth.json",
    ".ivy2/.credentials",
    ".kde/share/apps/kwallet/kdewallet.kwl",
    ".kde4/share/apps/kwallet/kdewallet.kwl",
    ".my.cnf",
    ".nuget/NuGet/NuGet.Config",
    ".ollama/id_ed25519",
    ".pgpass",
    ".yarnrc.yml",
    ".cache/huggingface/token",
    ".cache/huggingface/stored_tokens",
    ".config/composer/auth.json",
    ".config/containers/auth.json",
    ".config/pypoetry/auth.toml",
    ".config/gcloud/application_default_credentials.json",
    ".config/git/credentials",
    ".config/gh/hosts.yml",
    ".config/hub",
    ".config/rclone/rclone.conf",
    ".config/op/config",
    ".config/Bitwarden/data.json",
    ".config/keepassxc/keepassxc.ini",
    ".config/sops/age/keys.txt",
    ".config/age/key.txt",
    ".config/Signal/sql/db.sqlite",
    ".cache/keepassxc/keepassxc.ini",
    ".cache/rclone/vfs/office/draft.odt",
    "Dokumente/Passwörter.kdbx",
    ".sync/old.kdbx",
});

/// What people keep outside of their documents, and what lies beside junk and is none.
constexpr auto ownFiles = std::to_array<std::string_view>({
    // Mail.
    ".thunderbird/x1.default/Mail/Local Folders/Inbox",
    ".mozilla-thunderbird/x1.default/Mail/Inbox",
    ".icedove/x1.default/Mail/Inbox",
    "Mail/inbox",
    "Maildir/cur/1700000000.M1.host",
    ".mutt/muttrc",
    ".mbsync/:work_:inbox",
    ".local/share/evolution/mail/local/folders.db",
    ".config/evolution/sources/work.source",
    ".local/share/akonadi/db_data/akonadi.db",
    ".local/share/kmail2/inbox/cur/1",
    ".local/share/geary/account_01/geary.db",
    ".local/share/mailspring/edgehill.db",
    // What browsers keep of a person.
    ".mozilla/firefox/profiles.ini",
    ".mozilla/firefox/x1y2z3.default-release/places.sqlite",
    ".mozilla/firefox/x1y2z3.default-release/cookies.sqlite",
    ".mozilla/firefox/x1y2z3.default-release/logins.json",
    ".mozilla/firefox/x1y2z3.default-release/key4.db",
    ".librewolf/x1.default/places.sqlite",
    ".zen/x1.default/places.sqlite",
    ".waterfox/x1.default/places.sqlite",
    ".config/google-chrome/Local State",
    ".config/google-chrome/Default/History",
    ".config/google-chrome/Default/Cookies",
    ".config/google-chrome/Default/Login Data",
    ".config/google-chrome/Default/Bookmarks",
    ".config/google-chrome/Default/IndexedDB/site/000003.log",
    ".config/google-chrome/Default/Service Worker/Database/000003.log",
    ".config/google-chrome/Profile 1/History",
    ".config/chromium/Default/History",
    ".config/BraveSoftware/Brave-Browser/Default/Login Data",
    ".config/microsoft-edge/Default/Cookies",
    ".config/vivaldi/Default/Notes",
    ".config/opera/Default/Bookmarks",
    // Settings and states of programs.
    ".config/Code/User/settings.json",
    ".config/Code/User/History/-1a2b/entry.cpp",
    ".config/Code/Backups/1a2b/untitled/draft",
    ".config/VSCodium/User/settings.json",
    ".config/Slack/Cookies",
    ".config/discord/Local Storage/leveldb/000003.log",
    ".config/Element/IndexedDB/vector/000003.log",
    ".config/obsidian/obsidian.json",
    ".config/kdeglobals",
    ".config/monitors.xml",
    ".config/autostart/write.desktop",
    ".config/systemd/user/backup.service",
    ".config/home-manager/home.nix",
    ".local/state/wireplumber/restore-stream",
    ".local/state/nvim/shada/main.shada",
    ".local/bin/backup",
    ".local/lib/python3.11/site-packages/own.py",
    ".var/app/org.gimp.GIMP/config/GIMP/2.10/gimprc",
    ".var/app/org.mozilla.firefox/.mozilla/firefox/x1.default/places.sqlite",
    ".var/app/org.keepassxc.KeePassXC/cache/keepassxc/keepassxc.ini",
    ".var/app/com.valvesoftware.Steam/.local/share/Steam/userdata/1/save.dat",
    "snap/firefox/common/.mozilla/firefox/x1.default/places.sqlite",
    "snap/spotify/common/settings",
    ".dotfiles/bashrc",
    ".local/share/chezmoi/dot_bashrc",
    ".cfg/config",
    ".git/config",
    ".bashrc",
    ".bash_history",
    // Games and other machines.
    ".minecraft/saves/World/level.dat",
    ".wine/user.reg",
    ".wine/drive_c/users/ann/Documents/save.dat",
    "Games/adventure/save.dat",
    ".local/share/lutris/pga.db",
    ".local/share/Steam/steamapps/common/Arena/arena.bin",
    ".local/share/Steam/steamapps/compatdata/570/pfx/user.reg",
    ".local/share/Steam/userdata/1/570/save.dat",
    "VirtualBox VMs/Debian/Debian.vdi",
    ".local/share/libvirt/images/dev.qcow2",
    ".local/share/gnome-boxes/images/fedora",
    ".docker/desktop/vms/0/data/Docker.raw",
    ".lima/default/diffdisk",
    ".local/share/containers/storage/overlay/l1/diff/file",
    ".local/share/docker/volumes/database/_data/table",
    // What is kept in step with another machine.
    "Nextcloud/tax.ods",
    "ownCloud/tax.ods",
    "Dropbox/tax.ods",
    "OneDrive/tax.ods",
    "pCloudDrive/tax.ods",
    "Insync/tax.ods",
    ".dropbox/info.json",
    ".dropbox-dist/VERSION",
    // Beside junk.
    ".cache/JetBrains/IntelliJIdea2024.3/LocalHistory/changes.storageData",
    ".cache/JetBrains/PyCharm2024.3/LocalHistory/changes.storageData",
    ".local/share/JetBrains/Toolbox/apps/IDEA-U/ch-0/233.11799.241/bin/idea",
    ".npm/_update-notifier-last-checked",
    ".nvm/nvm.sh",
    ".pyenv/bin/pyenv",
    ".rustup/settings.toml",
    ".rustup/toolchains/stable-x86_64-unknown-linux-gnu/bin/rustc",
    ".sdkman/etc/config",
    "Android/Sdk/licenses/android-sdk-license",
    ".vagrant.d/setup_version",
    ".xsession-errors",
    ".local/share/xorg/Xorg.0.log",
});

/// What programs keep in the folder for caches although it cannot be had again.
constexpr auto keptCaches = std::to_array<std::string_view>({
    "nvim/swap/%notes.txt.swp",
    "vim/swap/notes.txt.swp",
    "emacs/auto-save/notes.txt",
    "ibus/libpinyin/user.db",
    "fcitx5/words",
    "fcitx/words",
    "plasmashell/qmlcache/panel.qmlc",
    "kwin/scripts",
    "ksmserver/state",
    "kscreenlocker_greet/state",
    "icon-cache.kcache",
    "plasma_theme_Breeze.kcache",
    "ksycoca6_en_x1y2z3",
    "plasma-svgelements-Breeze",
    "doc/index",
    "gvfs/state",
    "gvfsd-http/state",
    "obexd/state",
    "wallpaper/current.png",
    "sessions/session",
    "xfce4-session-2.0/session",
    "gnome-control-center/backgrounds/own.jpg",
    "duplicity/backup/signatures",
    "deja-dup/state",
    "kopia/contents",
    "zsh/zcompdump",
    "fish/generated_completions/ls.fish",
    "starship/session.log",
    "cliphist/db",
    "clipboard-indicator@tudmotu.com/registry.txt",
    "dconf/user",
    "mesa_shader_cache_db/part0/db",
    "nvidia/GLCache/x1",
    "qtshadercache-x86_64/x1",
    "radv_builtin_shaders64",
    "drkonqi/state",
    "tracker/meta.db",
    "localsearch3/files.db",
    "baloo/state",
    "dbus/state",
    "p11-kit/state",
    "gnupg/state",
    "libreoffice/backup/letter.odt",
    "calibre/ev2/f/book",
    "gpodder/state",
    "nix/eval-cache-v5/x1.sqlite",
    "guix/checkouts/state",
    "klarvik/state",
    "xfce4/notifyd/log.sqlite",
    "at-spi2-core/state",
    "upstart/session.log",
    "motd.legal-displayed",
    "event-sound-cache.tdb.x1.x86_64-pc-linux-gnu",
    "dolphin-previews/state",
    "kioexec/edited.odt",
    "thumbnailers/state",
});

/// As above, and large enough for a row.
constexpr auto largeKeptCaches = std::to_array<std::string_view>({
    "borg/x1/chunks",
    "restic/x1/index",
    "fontconfig/x1-le64.cache-8",
    "mesa_shader_cache/a1/b2",
    "tracker3/files/meta.db",
});

/// What other people and the system own.
constexpr auto otherFiles = std::to_array<std::string_view>({
    "/home/bob/Documents/diary.txt",
    "/home/bob/.ssh/id_rsa",
    "/home/bob/.cache/pip/http/a1",
    "/home/bob/Projects/shop/package.json",
    "/home/bob/Projects/shop/node_modules/left-pad/index.js",
    "/bin/sh",
    "/boot/vmlinuz-6.1.0-18-amd64",
    "/boot/vmlinuz-6.1.0-17-amd64",
    "/etc/hosts",
    "/etc/fstab",
    "/lib/systemd/systemd",
    "/opt/acme/bin/acme",
    "/srv/www/index.html",
    "/usr/bin/cc",
    "/usr/lib/modules/6.1.0-18-amd64/modules.dep",
    "/usr/lib/x86_64-linux-gnu/libacme.so",
    "/usr/local/bin/own",
    "/usr/share/doc/acme/copyright",
    "/var/backups/dpkg.status.0",
    "/var/cache/apt/archives/acme_1.0_amd64.deb",
    "/var/cache/apt/archives/writer_2.1_amd64.deb",
    "/var/crash/vmcore.0",
    "/var/lib/docker/volumes/database/_data/table",
    "/var/lib/systemd/coredump/core.write.1000.zst",
    "/var/log/journal/a1b2c3/system.journal",
    "/var/log/syslog",
    "/var/log/syslog.1",
    "/var/mail/ann",
    "/var/spool/cron/crontabs/ann",
    // Temporary, and in use.
    "/tmp/.X11-unix/X0",
    "/tmp/.font-unix/lock",
    "/tmp/krb5cc_1000",
    "/tmp/snap-private-tmp/snap.firefox/tmp/x1",
    "/tmp/snap.spotify/x1",
    "/tmp/ssh-q7Lma1b2c3/agent.1",
    "/tmp/systemd-private-a1b2-colord.service-x1/tmp/x1",
    "/tmp/tmux-1000/default",
    "/tmp/writer.lock",
    "/var/tmp/systemd-private-a1b2-fwupd.service-x1/tmp/x1",
});

constexpr auto systemFlatpaks = std::to_array<std::string_view>({
    "app.zen_browser.zen",
    "com.brave.Browser",
    "com.google.Chrome",
    "com.microsoft.Edge",
    "com.opera.Opera",
    "com.valvesoftware.Steam",
    "com.vivaldi.Vivaldi",
    "io.gitlab.librewolf-community",
    "net.waterfox.waterfox",
    "org.chromium.Chromium",
    "org.gimp.GIMP",
    "org.keepassxc.KeePassXC",
    "org.mozilla.Thunderbird",
    "org.mozilla.firefox",
});

struct SampleSnap {
  std::string_view name;
  std::string_view revision;
};

constexpr std::array snaps{
    SampleSnap{"brave", "401"}, SampleSnap{"chromium", "2738"}, SampleSnap{"firefox", "3836"},
    SampleSnap{"opera", "290"}, SampleSnap{"spotify", "77"},
};

/// The folders that people see in their file manager, in the languages that they have used.
constexpr std::string_view userFolders =
    "XDG_DESKTOP_DIR=\"$HOME/Schreibtisch\"\n"
    "XDG_DOCUMENTS_DIR=\"$HOME/Dokumente\"\n"
    "XDG_DOWNLOAD_DIR=\"$HOME/Téléchargements\"\n"
    "XDG_MUSIC_DIR=\"$HOME/Musik\"\n"
    "XDG_PICTURES_DIR=\"$HOME/Bilder\"\n"
    "XDG_VIDEOS_DIR=\"$HOME/Videos\"\n";

std::string desktopEntry(std::string_view name, std::string_view program) {
  std::string entry = "[Desktop Entry]\nType=Application\n";
  entry.append("Name=").append(name);
  entry.append("\nTryExec=").append(program);
  entry.append("\nExec=").append(program).append(" %F\n");
  return entry;
}

/// How an AppImage begins: as a program, with a mark where the head of one has room.
constexpr std::string_view appImageStart(
    "\x7f"
    "ELF\x02\x01\x01\x00"
    "AI\x02",
    11);

/// A picture of one colour with rounded corners.
std::string squareIcon(std::string_view color) {
  std::string picture = R"(<svg xmlns="http://www.w3.org/2000/svg" width="64" height="64">)"
                        R"(<rect width="64" height="64" rx="14" fill=")";
  return picture.append(color).append("\"/></svg>\n");
}

/// Puts the disk together, one subject after the other.
class LinuxSampleDiskBuilder {
 public:
  LinuxSampleDiskBuilder(const Path& root, const LinuxSampleDiskOptions& options)
      : _writer(root), _scale(options.scale), _now(options.now) {
    _disk.root = std::filesystem::canonical(root);
    _disk.home = options.home;
  }

  LinuxSampleDisk build() {
    using Table = std::span<const SampleJunk>;
    for (const Table table : {Table(packageCaches), Table(toolchains), Table(appCaches),
                              Table(browserCaches), Table(logsAndLeftovers)}) {
      for (const SampleJunk& each : table) junk(each);
    }
    for (const SampleJunk& each : junkFiles) {
      _writer.file(place(each.path), each.kilobytes * kilobyte * _scale);
      offered(each.id, each.path);
    }
    projects();
    for (const std::string_view each : secretFiles) secret(each);
    for (const std::string_view each : ownFiles) own(each);
    caches();
    newestVersions();
    installedThings();
    forTools();
    desktopEntries();
    applications();
    documents();
    trash();
    temporaryThings();
    for (const std::string_view each : otherFiles) own(each);
    own(Path("/root") / ".bashrc");

    _writer.finish();
    for (LinuxSamplePlace& each : _disk.places) each.bytes = _writer.allocatedBytes(each.path);
    _disk.files = _writer.fileCount();
    return std::move(_disk);
  }

 private:
  /// Absolute paths stay as they are.
  [[nodiscard]] Path place(const Path& path) const { return _disk.home / path; }

  void offered(std::string_view id, const Path& path) {
    _disk.places.push_back({std::string(id), place(path), 0});
  }
  void passedOver(const Path& path) { _disk.passedOver.push_back(place(path)); }

  /// A file that stays.
  void own(const Path& path, std::int64_t bytes = 2 * kilobyte) {
    if (path.filename() == "places.sqlite") {
      _writer.text(place(path), firefoxPlaces());
    } else {
      _writer.file(place(path), bytes);
    }
    _disk.keep.push_back(place(path));
  }

  void secret(const Path& path) {
    _writer.text(place(path), "canary of " + path.native() + '\n');
    _disk.secrets.push_back(place(path));
    _disk.keep.push_back(place(path));
  }

  /// Half of it hidden: without that, many a place would be too small for a row.
  void fill(const Path& folder, std::int64_t bytes, std::int64_t smallFiles = 0) {
    _writer.file(place(folder / "data.bin"), bytes / 2);
    _writer.file(place(folder / ".index"), bytes * 3 / 10);
    _writer.file(place(folder / ".parts/part-0"), bytes / 5);
    const std::int64_t count = smallFiles * _scale;
    _writer.files(place(folder / "entries"), count, count * 2 * kilobyte);
  }

  void junk(const SampleJunk& each) {
    fill(each.path, each.kilobytes * kilobyte * _scale, each.smallFiles);
    offered(each.id, each.path);
  }

  void projects() {
    for (const SampleArtifact& each : artifacts) {
      junk({each.id, each.path, overTenMegabytes, each.smallFiles});
      if (!each.mark.empty()) _writer.file(place(Path(each.path) / each.mark), 1 * kilobyte);
    }
    for (const std::string_view each : projectFiles) own(each);
    // The history of a project.
    _writer.files(place("Projects/webshop/.git/objects"), 80 * _scale, 160 * kilobyte * _scale);
    for (const SampleDecoy& each : artifactDecoys) {
      fill(each.path, each.kilobytes * kilobyte);
      own(Path(each.path) / each.own);
      passedOver(each.path);
    }
  }

  void keptCache(std::string_view file, std::int64_t bytes) {
    const Path caches = ".cache";
    own(caches / file, bytes);
    const std::string_view first = file.substr(0, file.find('/'));
    if (first != file) _disk.keep.push_back(place(caches / first));
  }

  void caches() {
    for (const std::string_view each : keptCaches) keptCache(each, 2 * kilobyte);
    for (const std::string_view each : largeKeptCaches) {
      keptCache(each, overOneMegabyte * kilobyte * _scale);
    }

    // No folders, or nothing in them.
    _writer.link(place(".cache/linked"), "../Bilder");
    _writer.link(place(".cache/vlc"), "../Videos");
    _writer.file(place(".cache/history.db"), 2 * overOneMegabyte * kilobyte);
    _writer.socket(place(".cache/writer.socket"));
    _writer.folder(place(".cache/empty"));
    fill(".cache/small-program", 100 * kilobyte);
    for (const char* const name :
         {"linked", "vlc", "history.db", "writer.socket", "empty", "small-program"}) {
      passedOver(Path(".cache") / name);
    }
  }

  /// Newer than what is offered beside them.
  void newestVersions() {
    passedOver(".cache/JetBrains/IntelliJIdea2024.3");
    passedOver(".cache/JetBrains/PyCharm2024.3");
    const Path toolbox = ".local/share/JetBrains/Toolbox/apps/IDEA-U/ch-0/233.11799.241";
    fill(toolbox, overTenMegabytes * kilobyte);
    passedOver(toolbox);
    for (const char* const newest :
         {"Applications/Joplin-3.0.15.AppImage", "AppImages/Krita-5.2.3.AppImage"}) {
      _writer.file(place(newest), overTenMegabytes * kilobyte);
      passedOver(newest);
    }
  }

  void flatpak(const Path& installation, std::string_view id) {
    own(installation / "app" / id / "x86_64/stable/a1b2c3/metadata");
    _writer.link(place(installation / "app" / id / "current"), "x86_64/stable");
    _writer.link(place(installation / "app" / id / "x86_64/stable/active"), "a1b2c3");
    const std::string file = std::string(id) + ".desktop";
    const Path entries =
        installation / "app" / id / "x86_64/stable/a1b2c3/export/share/applications";
    _writer.file(place(installation / "app" / id / "x86_64/stable/a1b2c3/files/bin/app"),
                 900 * kilobyte * _scale);
    _writer.text(place(entries / file),
                 desktopEntry(id.substr(id.rfind('.') + 1), "/usr/bin/flatpak") +
                     "X-Flatpak=" + std::string(id) + '\n');
    _writer.link(place(installation / "exports/share/applications" / file),
                 Path("../../../app") / id / "current/active/export/share/applications" / file);
    passedOver(Path(".var/app") / id);
  }

  void installedThings() {
    for (const std::string_view id : systemFlatpaks) flatpak("/var/lib/flatpak", id);
    flatpak(".local/share/flatpak", "org.gnome.Builder");
    fill(".var/app/org.gnome.Builder/data", overTenMegabytes * kilobyte);
    _writer.file(place("snap/gone-tool/12/settings"), 2 * kilobyte);

    for (const SampleSnap& each : snaps) {
      own(Path("/snap") / each.name / each.revision / "meta/snap.yaml");
      own(Path("/var/lib/snapd/snaps") /
          (std::string(each.name) + "_" + std::string(each.revision) + ".snap"));
      _writer.link(Path("/snap") / each.name / "current", each.revision);
      own(Path("snap") / each.name / each.revision / "settings");
      _writer.link(place(Path("snap") / each.name / "current"), each.revision);
      const std::string name(each.name);
      _writer.text(Path("/var/lib/snapd/desktop/applications") / (name + "_" + name + ".desktop"),
                   desktopEntry(name, "/snap/bin/" + name) + "X-SnapInstanceName=" + name + '\n');
      passedOver(Path("snap") / each.name);
      passedOver(Path("snap") / each.name / each.revision);
    }
    fill("snap/spotify/77/data", overTenMegabytes * kilobyte);

    // The game whose shaders are 440 has no such record.
    own(".local/share/Steam/steamapps/appmanifest_570.acf");
    own(".local/share/Steam/steamapps/appmanifest_730.acf");
  }

  /// What only its own tool may remove: told, and no item.
  void forTools() {
    fill(".cache/uv", overTenMegabytes * kilobyte * _scale, 40);
    _disk.keep.push_back(place(".cache/uv"));

    const Path models = ".ollama/models";
    _writer.file(place(models / "blobs/sha256-a1b2c3"), overTenMegabytes * kilobyte * _scale);
    own(models / "manifests/registry/library/tiny/latest");

    const Path module = "go/pkg/mod/github.com/acme/log@v1.2.0";
    own(module / "log.go", overTenMegabytes * kilobyte);
    own(module / "internal/format.go");
    constexpr mode_t readOnly = 0555;
    _writer.mode(place(module / "internal"), readOnly);
    _writer.mode(place(module), readOnly);

    // A project has the files of the store, under names of its own.
    const Path store = ".local/share/pnpm/store/v3/files";
    own(store / "0a/large", overTenMegabytes * kilobyte * _scale);
    for (const char* const name : {"charts", "router", "widgets"}) {
      own(store / "0b" / name, 200 * kilobyte);
      _writer.hardLink(place(Path("Projects/webshop/packages/ui/node_modules/.pnpm") / name),
                       place(store / "0b" / name));
    }
  }

  void desktopEntries() {
    const Path folder = ".local/share/applications";
    _writer.text(place(folder / "gone.desktop"), desktopEntry("Gone", "/opt/gone/bin/gone"));
    offered("broken-desktop", folder / "gone.desktop");

    const Path program = "/usr/bin/write";
    own(program);
    constexpr mode_t executable = 0755;
    _writer.mode(program, executable);
    _writer.text(place(folder / "write.desktop"), desktopEntry("Write", program.native()));
    passedOver(folder / "write.desktop");
  }

  /// An application's entry in the user's own folder, and its icon.
  void ownEntry(const std::string& name, const Path& program, std::string_view color) {
    std::string title = name;
    title.front() = static_cast<char>(title.front() - 'a' + 'A');
    const Path entry = Path(".local/share/applications") / (name + ".desktop");
    _writer.text(place(entry),
                 desktopEntry(title, place(program).native()) + "Icon=" + name + '\n');
    _writer.text(place(Path(".local/share/icons/hicolor/scalable/apps") / (name + ".svg")),
                 squareIcon(color));
    passedOver(entry);
  }

  /// A program that a package has brought, and its entry.
  void packaged(const std::string& id, const std::string& package, std::string_view title,
                const std::string& more = {}) {
    constexpr mode_t executable = 0755;
    const Path program = Path("/usr/bin") / package;
    own(program);
    _writer.mode(program, executable);
    const Path entry = Path("/usr/share/applications") / (id + ".desktop");
    _writer.text(entry, desktopEntry(title, program.native()));
    _writer.text(Path("/var/lib/dpkg/info") / (package + ".list"),
                 "/.\n" + program.native() + '\n' + entry.native() + '\n');
    _packages += "Package: " + package + "\nStatus: install ok installed\nInstalled-Size: 5120\n" +
                 more + '\n';
  }

  /// What a program has stored, too little for a row of a scan.
  void stored(const std::string& name) {
    for (const char* const folder : {".config", ".cache", ".local/share", ".local/state"}) {
      _writer.file(place(Path(folder) / name / "data"), 300 * kilobyte);
      passedOver(Path(folder) / name);
    }
  }

  /// An application of each kind that is no Flatpak and no snap, and what it has stored.
  void applications() {
    constexpr mode_t executable = 0755;
    packaged("org.acme.Sheets", "acme-sheets", "Sheets");
    packaged("org.acme.Shell", "acme-shell", "Acme Shell", "Essential: yes\n");
    _writer.text("/var/lib/dpkg/status", _packages);
    _disk.keep.emplace_back("/var/lib/dpkg/status");
    stored("acme-sheets");

    const Path image = "Applications/Inkpot-2.1.AppImage";
    _writer.file(place(image), 3 * megabyte * _scale, appImageStart);
    _writer.mode(place(image), executable);
    ownEntry("inkpot", image, "#c2410c");
    passedOver(image);
    stored("inkpot");

    const Path program = ".local/opt/typesetter-4.2/bin/typesetter";
    _writer.file(place(program), 800 * kilobyte * _scale);
    _writer.mode(place(program), executable);
    _writer.file(place(".local/opt/typesetter-4.2/lib/fonts"), 2 * megabyte * _scale);
    ownEntry("typesetter", program, "#0f766e");
    passedOver(program);
    stored("typesetter");
  }

  /// The same content in several places.
  void duplicates(const std::vector<Path>& places, std::int64_t bytes) {
    const std::string content = "duplicate of " + places.front().native() + '\n';
    for (const Path& each : places) {
      _writer.file(place(each), bytes, content);
      _disk.keep.push_back(place(each));
    }
  }

  void large(const Path& path, std::int64_t bytes) {
    _writer.sparse(place(path), bytes);
    _disk.keep.push_back(place(path));
  }

  void documents() {
    _writer.text(place(".config/user-dirs.dirs"), userFolders);
    _disk.keep.push_back(place(".config/user-dirs.dirs"));
    own("Schreibtisch/bildschirmfoto.png", 250 * kilobyte);
    own("Dokumente/Briefe/an bob.odt", 60 * kilobyte);
    own("Dokumente/Briefe/.entwurf.odt", 20 * kilobyte);
    duplicates({"Dokumente/bericht.pdf", "Dokumente/Alt/bericht Kopie.pdf",
                "Téléchargements/bericht (1).pdf"},
               400 * kilobyte);
    duplicates({"Dokumente/Handbuch.pdf", "Téléchargements/Handbuch.pdf"}, 1'500 * kilobyte);
    own("Téléchargements/writer_2.1_amd64.deb", 1 * megabyte * _scale);
    own("Téléchargements/not utf-8 \xff\xfe.bin");
    own("Téléchargements/two\nlines.txt");
    _writer.files(place("Bilder/2024"), 40 * _scale, 4 * megabyte * _scale);
    duplicates({"Bilder/2024/meer.jpg", "Bilder/2025/meer.jpg"}, 700 * kilobyte);
    _writer.files(place("Musik/Band/Album"), 8 * _scale, 3 * megabyte * _scale);
    own("Musik/Band/Album/lied.ogg", 900 * kilobyte);
    own("Videos/kurz.mp4", 1 * megabyte * _scale);
    large("Videos/urlaub.mkv", 700 * mebibyte);
    large("Téléchargements/debian.iso", 1'024 * mebibyte);
    large("Dokumente/Archiv/2019.zip", 150 * mebibyte);
    for (const char* const name : {"writer_2.1_amd64.deb", "debian.iso", "Handbuch.pdf"}) {
      _writer.attribute(place(Path("Téléchargements") / name), "user.xdg.origin.url",
                        "https://acme.example/downloads");
    }
  }

  void trashed(std::string_view name, const Path& original) {
    const Path trash = ".local/share/Trash";
    _writer.text(place(trash / "info" / (std::string(name) + ".trashinfo")),
                 trashRecord(_disk.root / place(original).relative_path()));
    offered(name.starts_with('.') ? "trash-hidden" : "trash", trash / "files" / name);
  }

  void trash() {
    const Path files = ".local/share/Trash/files";
    _writer.file(place(files / "film.mkv"), 6 * megabyte * _scale);
    trashed("film.mkv", "Videos/film.mkv");
    fill(files / "screenshots", 2 * megabyte * _scale, 10);
    trashed("screenshots", "Schreibtisch/screenshots");
    _writer.file(place(files / "draft.odt"), 20 * kilobyte);
    trashed("draft.odt", "Dokumente/draft.odt");
    _writer.file(place(files / ".venv"), 20 * kilobyte);
    trashed(".venv", "Projects/course/.venv");
  }

  void temporaryThings() {
    constexpr std::int64_t daysUntouched = 60;
    constexpr std::int64_t longAgo = newestSecond - daysUntouched * secondsADay;
    for (const char* const old : {"/tmp/build-of-last-summer", "/tmp/export-2024.zip",
                                  "/var/tmp/kdecache-old", "/var/tmp/flatpak-cache-X1Y2Z3"}) {
      _writer.date(old, longAgo);
    }
    for (const char* const folder : {"/tmp", "/var/tmp"}) {
      const Path fresh = Path(folder) / "fresh-export";
      fill(fresh, overOneMegabyte * kilobyte);
      _writer.date(fresh, _now);
      passedOver(fresh);
      // Somebody is at work in it, which the date of the folder does not tell.
      const Path busy = Path(folder) / "busy-build";
      fill(busy, overOneMegabyte * kilobyte);
      _writer.date(busy, longAgo);
      _writer.date(busy / ".parts/part-0", _now);
      passedOver(busy);
    }
  }

  DiskWriter _writer;
  std::int64_t _scale;
  std::int64_t _now;
  std::string _packages;  // the table of the package manager
  LinuxSampleDisk _disk;
};

}  // namespace

LinuxSampleDisk buildLinuxSampleDisk(const Path& root, const LinuxSampleDiskOptions& options) {
  return LinuxSampleDiskBuilder(root, options).build();
}

}  // namespace klarvik
