// Commands that change nothing.

#include <iostream>

#include "core/deletion_guard.h"
#include "engine/sizes.h"
#include "places/disk_layout.h"
#include "platform/file_system.h"
#include "probe/command.h"
#include "probe/report.h"

namespace klarvik::probe {

namespace {

std::optional<DeletionScope> scopeNamed(const std::vector<std::string>& words) {
  const std::vector<std::string> identifiers(words.begin() + 1, words.end());
  if (words[0] == "residual") return DeletionScope::residual(identifiers);
  if (!identifiers.empty()) return std::nullopt;
  if (words[0] == "general") return DeletionScope::general();
  if (words[0] == "trashed") return DeletionScope::trashed();
  if (words[0] == "pickedFile") return DeletionScope::pickedFile();
  return std::nullopt;
}

}  // namespace

int guard(const Invocation& call) {
  const auto scope = scopeNamed(call.arguments);
  if (!scope) {
    std::cerr << "klarvik-probe: guard: no such scope\n";
    return usageError;
  }
  const FileSystem& files = call.platform.files;
  for (const std::string& path : readEntries(std::cin, call)) {
    const auto refusal =
        DeletionGuard::refusalReason(path, *scope, files.folders(), layoutFor(files.home()));
    print({{"path", textReport(path)},
           {"refusal", refusal ? textReport(refusal->english()) : Report(nullptr)}});
  }
  return 0;
}

int measure(const Invocation& call) {
  const Path path = call.arguments[0];
  print({{"path", pathReport(path)}, {"size", allocatedSize(call.platform.files, path)}});
  return 0;
}

int scan(const Invocation& call) {
  const auto found =
      ScannerEngine(call.platform)
          .scanAll(
              call.stop, [](const ScanUpdate& update) { print(updateReport(update)); },
              [](const CleanCategory& category) {
                print({{"event", "category"}, {"category", categoryReport(category)}});
              });
  Report categories = Report::array();
  for (const CleanCategory& category : found) categories.push_back(categoryReport(category));
  print({{"event", "result"}, {"categories", std::move(categories)}});
  return 0;
}

}  // namespace klarvik::probe
