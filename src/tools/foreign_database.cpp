#include "tools/foreign_database.h"

#include <sqlite3.h>

#include <filesystem>
#include <system_error>

#include "base/text.h"

namespace klarvik {

ForeignDatabase::ForeignDatabase(const std::string& name, int flags, std::chrono::seconds longest)
    : _deadline(std::chrono::steady_clock::now() + longest) {
  sqlite3* opened = nullptr;
  _code = sqlite3_open_v2(name.c_str(), &opened, flags | SQLITE_OPEN_NOFOLLOW, nullptr);
  _database.reset(opened);
  if (_code != SQLITE_OK) return;
  constexpr int stepsBetweenLooks = 10'000;
  sqlite3_progress_handler(opened, stepsBetweenLooks, &ForeignDatabase::isOverdue, this);
  sqlite3_db_config(opened, SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
  sqlite3_db_config(opened, SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0, nullptr);
  sqlite3_db_config(opened, SQLITE_DBCONFIG_ENABLE_VIEW, 0, nullptr);
  run("PRAGMA mmap_size = 0; PRAGMA cell_size_check = 1; PRAGMA temp_store = MEMORY");
}

void ForeignDatabase::Close::operator()(sqlite3* database) const {
  sqlite3_close(database);
}

int ForeignDatabase::isOverdue(void* connection) {
  return std::chrono::steady_clock::now() > static_cast<ForeignDatabase*>(connection)->_deadline
             ? 1
             : 0;
}

std::string ForeignDatabase::unchanging(const Path& file) {
  constexpr std::string_view digits = "0123456789ABCDEF";
  std::string address = "file:";
  for (const char byte : file.native()) {
    const auto value = static_cast<unsigned char>(byte);
    const bool isPlain = (value >= 'a' && value <= 'z') || (value >= 'A' && value <= 'Z') ||
                         (value >= '0' && value <= '9') || value == '/';
    if (isPlain) {
      address += byte;
    } else {
      address.append({'%', digits[value >> 4], digits[value & 15]});
    }
  }
  return address + "?immutable=1";
}

ForeignDatabase& ForeignDatabase::run(const std::string& statements) {
  if (_code == SQLITE_OK) {
    _code = sqlite3_exec(_database.get(), statements.c_str(), nullptr, nullptr, nullptr);
  }
  return *this;
}

std::string ForeignDatabase::text(const std::string& question, std::string_view value) {
  if (_code != SQLITE_OK) return {};
  sqlite3_stmt* prepared = nullptr;
  _code = sqlite3_prepare_v2(_database.get(), question.c_str(), -1, &prepared, nullptr);
  const std::unique_ptr<sqlite3_stmt, decltype(&sqlite3_finalize)> statement(prepared,
                                                                             sqlite3_finalize);
  if (_code != SQLITE_OK) return {};
  if (sqlite3_bind_parameter_count(prepared) > 0) {
    sqlite3_bind_text(prepared, 1, value.data(), static_cast<int>(value.size()), SQLITE_TRANSIENT);
  }
  const int step = sqlite3_step(prepared);
  if (step != SQLITE_ROW) {
    if (step != SQLITE_DONE) _code = step;
    return {};
  }
  const unsigned char* answer = sqlite3_column_text(prepared, 0);
  const auto length = static_cast<std::size_t>(sqlite3_column_bytes(prepared, 0));
  std::string copy;
  for (std::size_t at = 0; answer != nullptr && at < length; ++at) {
    copy += static_cast<char>(answer[at]);
  }
  return copy;
}

std::int64_t ForeignDatabase::number(const std::string& question, std::string_view value) {
  return decimalInteger(text(question, value)).value_or(0);
}

bool ForeignDatabase::hasMoved() const {
  int moved = 1;
  sqlite3_file_control(_database.get(), "main", SQLITE_FCNTL_HAS_MOVED, &moved);
  return moved != 0;
}

bool ForeignDatabase::isFine() const {
  return _code == SQLITE_OK;
}

std::optional<std::int64_t> rowCount(const Path& database, std::string_view table) {
  constexpr std::uintmax_t mostBytes = 256UL * 1024 * 1024;
  constexpr std::chrono::seconds longest{2};
  std::error_code error;
  if (std::filesystem::file_size(database, error) > mostBytes || error) return std::nullopt;
  for (const char* const log : {"-wal", "-journal"}) {
    const auto bytes = std::filesystem::file_size(database.native() + log, error);
    if (!error && bytes > 0) return std::nullopt;
  }
  ForeignDatabase opened(ForeignDatabase::unchanging(database),
                         SQLITE_OPEN_READONLY | SQLITE_OPEN_URI, longest);
  // A table of this name, and no view: counting one could run anything.
  const bool isThere =
      opened.number("SELECT count(*) FROM sqlite_master WHERE type = 'table' AND name = ?1",
                    table) == 1;
  if (!isThere) return std::nullopt;
  const std::int64_t rows = opened.number("SELECT count(*) FROM \"" + std::string(table) + "\"");
  return opened.isFine() ? std::optional(rows) : std::nullopt;
}

}  // namespace klarvik
