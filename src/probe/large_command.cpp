#include <iostream>

#include "base/text.h"
#include "probe/command.h"
#include "probe/report.h"
#include "tools/large_file_walker.h"

namespace klarvik::probe {

namespace {

Report fileReport(const LargeFile& file) {
  return {{"id", file.id.text()},
          {"path", pathReport(file.url)},
          {"size", file.size},
          {"kind", file.kind()},
          {"modifiedNanoseconds", dateReport(file.modifiedDate)},
          {"lastOpenedNanoseconds", dateReport(file.lastOpened)}};
}

Report listReport(const LargeFileList& files) {
  Report list = Report::array();
  for (const auto& file : files) list.push_back(fileReport(*file));
  return list;
}

}  // namespace

int large(const Invocation& call) {
  const auto threshold = decimalInteger(call.arguments[0]);
  if (!threshold) {
    std::cerr << "klarvik-probe: large: no number of bytes\n";
    return usageError;
  }
  const auto printUpdate = [withLists = call.has(lists)](const LargeFileUpdate& update) {
    Report report{{"event", "update"},
                  {"fraction", update.fraction},
                  {"currentName", textReport(update.currentName)},
                  {"count", update.files.size()}};
    if (withLists) report["files"] = listReport(update.files);
    print(report);
  };
  const auto found = LargeFileWalker(call.platform.files).walk(*threshold, call.stop, printUpdate);
  print({{"event", "result"}, {"files", listReport(found)}});
  return 0;
}

}  // namespace klarvik::probe
