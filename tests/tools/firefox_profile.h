#pragma once

#include <gtest/gtest.h>
#include <sqlite3.h>

#include <fstream>
#include <memory>
#include <string>
#include <vector>

#include "base/paths.h"
#include "support/firefox_places.h"

namespace klarvik {

/// A database of a browser, as the browser sees it. Whatever cannot be done fails the test.
class BrowserDatabase {
 public:
  explicit BrowserDatabase(const Path& file) {
    sqlite3* opened = nullptr;
    EXPECT_EQ(sqlite3_open(file.c_str(), &opened), SQLITE_OK);
    _database.reset(opened);
  }

  void run(const std::string& statements) const {
    EXPECT_EQ(sqlite3_exec(_database.get(), statements.c_str(), nullptr, nullptr, nullptr),
              SQLITE_OK)
        << sqlite3_errmsg(_database.get()) << "\n"
        << statements;
  }

  /// Every row that answers, its values parted by "|".
  [[nodiscard]] std::vector<std::string> rows(const std::string& question) const {
    std::vector<std::string> all;
    const auto take = [](void* rows, int count, char** values, char**) {
      std::string row;
      for (int at = 0; at < count; ++at) {
        if (at > 0) row += '|';
        row += values[at] ? values[at] : "-";
      }
      static_cast<std::vector<std::string>*>(rows)->push_back(row);
      return 0;
    };
    EXPECT_EQ(sqlite3_exec(_database.get(), question.c_str(), take, &all, nullptr), SQLITE_OK)
        << sqlite3_errmsg(_database.get());
    return all;
  }

 private:
  std::unique_ptr<sqlite3, decltype(&sqlite3_close)> _database{nullptr, sqlite3_close};
};

/// A history of Firefox's, as `firefoxPlaces` describes it.
inline void makePlaces(const Path& file) {
  std::ofstream(file, std::ios::binary) << firefoxPlaces();
  BrowserDatabase(file).run("PRAGMA journal_mode = WAL");
}

inline void makeIcons(const Path& file) {
  BrowserDatabase(file).run(R"(
    PRAGMA journal_mode = WAL;
    CREATE TABLE moz_icons (id INTEGER PRIMARY KEY, icon_url TEXT NOT NULL,
      root INTEGER NOT NULL DEFAULT 0, data BLOB);
    CREATE TABLE moz_pages_w_icons (id INTEGER PRIMARY KEY, page_url TEXT NOT NULL);
    CREATE TABLE moz_icons_to_pages (page_id INTEGER NOT NULL, icon_id INTEGER NOT NULL,
      PRIMARY KEY (page_id, icon_id),
      FOREIGN KEY (page_id) REFERENCES moz_pages_w_icons ON DELETE CASCADE,
      FOREIGN KEY (icon_id) REFERENCES moz_icons ON DELETE CASCADE) WITHOUT ROWID;
    INSERT INTO moz_icons VALUES (1, 'https://secret.example/a.png', 0, x'01'),
      (2, 'https://marked.example/b.png', 0, x'02'),
      (3, 'https://secret.example/favicon.ico', 1, x'03'),
      (4, 'https://www.marked.example/favicon.ico', 1, x'04');
    INSERT INTO moz_pages_w_icons VALUES (1, 'https://secret.example/one'),
      (2, 'https://marked.example/');
    INSERT INTO moz_icons_to_pages VALUES (1, 1), (2, 2);
  )");
}

}  // namespace klarvik
