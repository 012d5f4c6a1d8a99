// Moves the files named on standard input, each ended by a NUL, to the Trash of a home, as the
// engine does with a large selection. The peer is `gio trash` with the same files. Prints how many
// went and how long the moving itself took.
//
//   trash_batch HOME [THREADS] < LIST
#include <atomic>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <string>
#include <thread>
#include <vector>

#include "platform/linux/linux_trash.h"

namespace {

using klarvik::Path;

constexpr unsigned kThreadsOfTheEngine = 6;

std::vector<Path> itemsOnStandardInput() {
  std::vector<Path> items;
  for (std::string item; std::getline(std::cin, item, '\0');) items.emplace_back(item);
  return items;
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
  if (count < 2) {
    std::fprintf(stderr, "usage: trash_batch HOME [THREADS] < LIST\n");
    return 2;
  }
  const unsigned threads = count > 2
                               ? static_cast<unsigned>(std::strtoul(arguments[2], nullptr, 10))
                               : kThreadsOfTheEngine;
  const std::vector<Path> items = itemsOnStandardInput();
  klarvik::LinuxTrash trash("/", arguments[1]);

  const auto start = std::chrono::steady_clock::now();
  const std::size_t moved = moveAll(trash, items, threads);
  const std::chrono::duration<double> took = std::chrono::steady_clock::now() - start;
  std::printf("%zu of %zu moved in %.3f s, %.1f us each\n", moved, items.size(), took.count(),
              took.count() * 1e6 / static_cast<double>(items.size()));
  return moved == items.size() ? 0 : 1;
}
