// Moves every entry of a folder to the Trash of a home, as the engine does with a large selection,
// and prints how many went and how long it took. The peer is `gio trash` with the same files.
//
//   trash_batch HOME FOLDER [THREADS]
#include <atomic>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <thread>
#include <vector>

#include "platform/linux/linux_trash.h"

namespace {

using klarvik::Path;

constexpr unsigned kThreadsOfTheEngine = 6;

std::vector<Path> entriesOf(const Path& folder) {
  std::vector<Path> entries;
  for (const auto& entry : std::filesystem::directory_iterator(folder)) {
    entries.push_back(entry.path());
  }
  return entries;
}

std::size_t moveAll(klarvik::Trash& trash, const std::vector<Path>& items, unsigned threads) {
  std::atomic<std::size_t> next = 0;
  std::atomic<std::size_t> moved = 0;
  const auto work = [&] {
    for (std::size_t i = next++; i < items.size(); i = next++) {
      if (trash.moveToTrash(items[i], [](const Path&) { return true; })) ++moved;
    }
  };
  {
    std::vector<std::jthread> workers;
    for (unsigned i = 0; i < threads; ++i) workers.emplace_back(work);
  }
  return moved;
}

}  // namespace

int main(int count, char** arguments) {
  if (count < 3) {
    std::fprintf(stderr, "usage: trash_batch HOME FOLDER [THREADS]\n");
    return 2;
  }
  const unsigned threads = count > 3
                               ? static_cast<unsigned>(std::strtoul(arguments[3], nullptr, 10))
                               : kThreadsOfTheEngine;
  const std::vector<Path> items = entriesOf(arguments[2]);
  klarvik::LinuxTrash trash("/", arguments[1]);

  const auto start = std::chrono::steady_clock::now();
  const std::size_t moved = moveAll(trash, items, threads);
  const std::chrono::duration<double> took = std::chrono::steady_clock::now() - start;
  std::printf("%zu of %zu moved in %.3f s, %.1f us each\n", moved, items.size(), took.count(),
              took.count() * 1e6 / static_cast<double>(items.size()));
  return moved == items.size() ? 0 : 1;
}
