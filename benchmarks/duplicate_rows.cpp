// What groups of duplicates cost the main thread, in milliseconds: 20,000 groups of three copies,
// and a thousand groups of a thousand. Without the window; time that the thread waited for a
// processor that others had does not count.

#include <malloc.h>

#include <QCoreApplication>
#include <cstdio>
#include <functional>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "own_time.h"
#include "panes/duplicates/duplicate_choice.h"
#include "panes/duplicates/duplicate_rows_model.h"
#include "platform/desktop/qt_clock.h"
#include "support/fake_desktop.h"

namespace {

using namespace klarvik;

Path place(std::size_t group, std::size_t copy) {
  return "/Users/ann/Documents/Projects/" + std::to_string(copy) + "/copies/file " +
         std::to_string(group) + ".bin";
}

ChosenGroups madeUp(std::size_t groups, std::size_t copies) {
  std::vector<DuplicateGroup> all(groups);
  for (std::size_t group = 0; group < groups; ++group) {
    for (std::size_t copy = 0; copy < copies; ++copy) {
      all[group].files.push_back({.url = place(group, copy),
                                  .size = 2'000'000,
                                  .modifiedDate = Date(std::chrono::hours(copy))});
    }
  }
  return unchosen(std::move(all));
}

void measure(std::size_t groups, std::size_t copies) {
  FakeDesktopInMemory around;
  QtClock clock;
  const Desktop desktop = around.with(clock);
  DuplicateChoice choice;
  DuplicateRowsModel rows(choice, desktop);
  const std::size_t before = mallinfo2().uordblks;
  ChosenGroups found = madeUp(groups, copies);
  const auto time = [](const char* what, const std::function<void()>& action) {
    const OwnMoment begin;
    action();
    std::printf("  %-24s %6.1f ms, goal 50\n", what, OwnMoment().since(begin));
    std::fflush(stdout);
  };

  std::printf("duplicate_rows %zu groups of %zu copies\n", groups, copies);
  ChosenGroups garbage;
  time("shown", [&] {
    rows.removeAll();
    garbage = choice.replace(std::move(found));
    rows.insertAll();
  });
  std::printf("  memory %.0f bytes a copy\n", static_cast<double>(mallinfo2().uordblks - before) /
                                                  static_cast<double>(groups * copies));
  time("another rule", [&] {
    choice.setKeepRule(DuplicateSelection::KeepRule::shallowest);
    rows.allChanged();
  });
  time("a group deselected", [&] {
    choice.toggle(*choice.groups().front());
    rows.groupChanged(0);
  });
  time("a group opened", [&] { rows.toggleExpanded(rows.rowCount() - 1); });
  time("start of a deletion", [&] { static_cast<void>(choice.selection()); });

  std::vector<std::string> paths;
  for (const SelectedCopy& copy : choice.selection().list()) {
    if (paths.size() * 2 < groups * copies) {
      paths.push_back(copy.group->files[copy.file].url.native());
    }
  }
  const DuplicateChoice::Paths gone(paths.begin(), paths.end());
  time("half of it deleted", [&] {
    const DuplicateChoice::GroupSet dissolved = choice.dissolvedBy(gone);
    rows.removeFiles(gone, dissolved);
    garbage = choice.remove(gone, dissolved);
    rows.allChanged();
  });
}

}  // namespace

int main(int argumentCount, char** arguments) {
  const QCoreApplication application(argumentCount, arguments);
  measure(20'000, 3);
  measure(1'000, 1'000);
  return 0;
}
