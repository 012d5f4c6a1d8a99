#pragma once

#include <chrono>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "base/paths.h"

struct sqlite3;

namespace klarvik {

/// One connection to an SQLite database that another program has written, and may have written to
/// do harm. Links are not followed. Nothing throws; one thread at a time.
class ForeignDatabase {
 public:
  /// `flags` as `sqlite3_open_v2` takes them. What takes longer than `longest`, all together,
  /// fails.
  ForeignDatabase(const std::string& name, int flags, std::chrono::seconds longest);
  ForeignDatabase(const ForeignDatabase&) = delete;
  ForeignDatabase& operator=(const ForeignDatabase&) = delete;
  ~ForeignDatabase() = default;

  /// The name, for SQLITE_OPEN_URI, of a file that is read as if nobody changed it: no file is made
  /// beside it, and no other program's lock is asked for.
  [[nodiscard]] static std::string unchanging(const Path& file);

  /// After the first failure nothing is run any more.
  ForeignDatabase& run(const std::string& statements);
  /// The first value of the first row; empty where there is none. `value` is bound to ?1.
  std::string text(const std::string& question, std::string_view value = {});
  std::int64_t number(const std::string& question, std::string_view value = {});

  /// Whether the file has another name now, or none.
  [[nodiscard]] bool hasMoved() const;
  [[nodiscard]] bool isFine() const;
  /// SQLITE_OK, or that of the first failure.
  [[nodiscard]] int code() const { return _code; }

 private:
  struct Close {
    void operator()(sqlite3* database) const;
  };
  static int isOverdue(void* connection);

  std::chrono::steady_clock::time_point _deadline;
  std::unique_ptr<sqlite3, Close> _database;
  int _code = 0;
};

/// How many rows a table has. Nothing where that cannot be told: no database, no such table, larger
/// or slower to count than a user would wait, or half of it in a log beside it. Any thread.
[[nodiscard]] std::optional<std::int64_t> rowCount(const Path& database, std::string_view table);

}  // namespace klarvik
