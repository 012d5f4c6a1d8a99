#include <iostream>

#include "base/text.h"
#include "probe/command.h"
#include "probe/report.h"
#include "tools/duplicate_scanner.h"

namespace klarvik::probe {

namespace {

Report reportOf(const DuplicateProgress& progress) {
  return {{"event", "progress"},
          {"fraction", progress.fraction},
          {"groupsFound", progress.groupsFound},
          {"line", textReport(progress.line)}};
}

Report reportOf(const DuplicateGroup& group) {
  Report files = Report::array();
  for (const DuplicateFile& file : group.files) {
    files.push_back({{"path", pathReport(file.url)},
                     {"size", file.size},
                     {"modifiedNanoseconds", dateReport(file.modifiedDate)}});
  }
  return {{"event", "group"},
          {"hash", group.hash},
          {"reclaimableBytes", group.reclaimableBytes()},
          {"files", std::move(files)}};
}

}  // namespace

int duplicates(const Invocation& call) {
  const auto minimumSize = decimalInteger(call.arguments[0]);
  if (!minimumSize) {
    std::cerr << "klarvik-probe: duplicates: the least size is a number of bytes\n";
    return usageError;
  }
  const std::vector<Path> directories(call.arguments.begin() + 1, call.arguments.end());
  const auto groups = DuplicateScanner(call.platform.files)
                          .scan(directories, *minimumSize, [](const DuplicateProgress& progress) {
                            print(reportOf(progress));
                          });
  for (const DuplicateGroup& group : groups) print(reportOf(group));
  return 0;
}

}  // namespace klarvik::probe
