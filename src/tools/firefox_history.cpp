#include "tools/firefox_history.h"

#include <sqlite3.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <system_error>

#include "tools/foreign_database.h"

namespace klarvik {
namespace {

using enum HistoryOutcome;

constexpr std::int64_t mostBytes = 1LL << 30;
constexpr std::chrono::seconds longestReading{10};
constexpr std::chrono::seconds longestClearing{60};

HistoryOutcome outcomeOf(int code) {
  // The low byte is the kind of the error.
  switch (code & 0xff) {
    case SQLITE_OK:
    case SQLITE_ROW:
    case SQLITE_DONE:
      return done;
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
      return inUse;
    case SQLITE_CORRUPT:
    case SQLITE_NOTADB:
      return damaged;
    case SQLITE_INTERRUPT:
    case SQLITE_TOOBIG:
    case SQLITE_NOMEM:
      return tooLarge;
    case SQLITE_ERROR:
    case SQLITE_CONSTRAINT:
    case SQLITE_MISMATCH:
      return unknown;
    default:
      return failed;
  }
}

bool hasColumns(ForeignDatabase& database, std::string_view schema, std::string_view table,
                std::string_view names) {
  // The names are constants of this file.
  const std::string question = "SELECT count(*) FROM pragma_table_info(?1, '" +
                               std::string(schema) + "') WHERE name IN (" + std::string(names) +
                               ")";
  std::int64_t wanted = 1;
  for (const char each : names) wanted += each == ',' ? 1 : 0;
  return database.number(question, table) == wanted;
}

/// What a profile's database has of the tables and columns that came and went with Firefox's
/// versions.
struct Tables {
  bool isHistory = false;
  bool hasNotes = false;
  bool hasKeywords = false;
  bool hasOrigins = false;
  bool hasAutomaticRanks = false;
  bool hasOtherRanks = false;
};

bool isThere(ForeignDatabase& database, std::string_view table) {
  return database.number("SELECT count(*) FROM sqlite_master WHERE type = 'table' AND name = ?1",
                         table) == 1;
}

Tables tablesOf(ForeignDatabase& database) {
  const auto has = [&](std::string_view table, std::string_view columns) {
    return hasColumns(database, "main", table, columns);
  };
  Tables tables;
  tables.isHistory = has("moz_places",
                         "'id', 'url', 'visit_count', 'typed', 'frecency', 'last_visit_date', "
                         "'foreign_count'") &&
                     has("moz_historyvisits", "'id', 'place_id'") &&
                     has("moz_bookmarks", "'id', 'fk'");
  tables.hasNotes = has("moz_annos", "'place_id', 'anno_attribute_id'") &&
                    has("moz_anno_attributes", "'id', 'name'");
  tables.hasKeywords = has("moz_keywords", "'place_id'");
  tables.hasOrigins = has("moz_origins", "'id', 'host'") && has("moz_places", "'origin_id'");
  tables.hasAutomaticRanks = has("moz_places", "'recalc_frecency'");
  tables.hasOtherRanks = has("moz_places", "'alt_frecency', 'recalc_alt_frecency'");
  // A trigger could change what must stay. What keeps a page without saying so to the database
  // would be left without it.
  const bool hasTriggers =
      database.number("SELECT count(*) FROM sqlite_master WHERE type = 'trigger'") != 0;
  const bool hasOtherKeepers =
      database.number(
          "SELECT count(*) FROM sqlite_master t JOIN pragma_table_info(t.name) c "
          "WHERE t.type = 'table' AND c.name = 'place_id' AND t.name NOT IN ("
          "'moz_historyvisits', 'moz_inputhistory', 'moz_annos', 'moz_keywords') "
          "AND NOT EXISTS (SELECT 1 FROM pragma_foreign_key_list(t.name) f "
          "WHERE f.\"from\" = 'place_id' AND f.\"table\" = 'moz_places')") != 0;
  const bool knowsItsNotes = tables.hasNotes || !isThere(database, "moz_annos");
  const bool knowsItsKeywords = tables.hasKeywords || !isThere(database, "moz_keywords");
  tables.isHistory = tables.isHistory && !hasTriggers && !hasOtherKeepers && knowsItsNotes &&
                     knowsItsKeywords && database.isFine();
  return tables;
}

/// Where a download was saved is a note of the page that it came from.
constexpr std::string_view downloadNotes =
    "(SELECT id FROM moz_anno_attributes WHERE name LIKE 'downloads/%')";

/// A condition on a row of moz_places. Firefox counts what refers to a page; looking is surer.
std::string isKept(const Tables& tables) {
  std::string condition =
      "(foreign_count > 0 OR id IN (SELECT fk FROM moz_bookmarks WHERE fk IS NOT NULL)";
  if (tables.hasKeywords) {
    condition += " OR id IN (SELECT place_id FROM moz_keywords WHERE place_id IS NOT NULL)";
  }
  if (tables.hasNotes) {
    condition += " OR id IN (SELECT place_id FROM moz_annos WHERE anno_attribute_id NOT IN ";
    condition.append(downloadNotes).append(")");
  }
  return condition + ")";
}

/// Bookmarks whose page is missing. As many as before is none that lost its page.
std::int64_t strayBookmarks(ForeignDatabase& database) {
  return database.number(
      "SELECT count(*) FROM moz_bookmarks WHERE fk IS NOT NULL AND fk NOT IN "
      "(SELECT id FROM moz_places)");
}

void deleteVisits(ForeignDatabase& database, const Tables& tables) {
  constexpr std::array<std::string_view, 5> wholeTables{
      "moz_historyvisits_extra", "moz_historyvisits", "moz_inputhistory", "moz_places_metadata",
      "moz_places_metadata_search_queries"};
  for (const std::string_view table : wholeTables) {
    if (isThere(database, table)) database.run("DELETE FROM " + std::string(table));
  }
  if (tables.hasNotes) {
    database.run("DELETE FROM moz_annos WHERE anno_attribute_id IN " + std::string(downloadNotes));
  }
}

void deletePages(ForeignDatabase& database, const Tables& tables) {
  database.run("DELETE FROM moz_places WHERE NOT " + isKept(tables));
  std::string ranks = "frecency = CASE WHEN url LIKE 'place:%' THEN 0 ELSE -1 END";
  if (tables.hasAutomaticRanks) ranks += ", recalc_frecency = (url NOT LIKE 'place:%')";
  if (tables.hasOtherRanks) ranks += ", alt_frecency = NULL, recalc_alt_frecency = 1";
  database.run("UPDATE moz_places SET visit_count = 0, last_visit_date = NULL, typed = 0, " +
               ranks + " WHERE visit_count <> 0 OR last_visit_date IS NOT NULL OR typed <> 0");
  if (tables.hasOrigins) {
    database.run(
        "DELETE FROM moz_origins WHERE id NOT IN "
        "(SELECT origin_id FROM moz_places WHERE origin_id IS NOT NULL)");
  }
}

/// An icon that every page of a site shares is known by the name of the site.
void deleteIcons(ForeignDatabase& database, const Tables& tables) {
  const bool isKnown =
      hasColumns(database, "icons", "moz_pages_w_icons", "'id', 'page_url'") &&
      hasColumns(database, "icons", "moz_icons", "'id', 'icon_url', 'root'") &&
      hasColumns(database, "icons", "moz_icons_to_pages", "'page_id', 'icon_id'") &&
      database.number("SELECT count(*) FROM icons.sqlite_master WHERE type = 'trigger'") == 0;
  // Firefox itself takes away the icons of pages that it does not know any more.
  if (!isKnown) return;
  database.run(
      "DELETE FROM icons.moz_icons_to_pages WHERE page_id IN (SELECT id FROM "
      "icons.moz_pages_w_icons WHERE page_url NOT IN (SELECT url FROM main.moz_places "
      "WHERE url IS NOT NULL))");
  database.run(
      "DELETE FROM icons.moz_pages_w_icons WHERE page_url NOT IN "
      "(SELECT url FROM main.moz_places WHERE url IS NOT NULL)");
  database.run(
      "DELETE FROM icons.moz_icons WHERE root = 0 AND id NOT IN "
      "(SELECT icon_id FROM icons.moz_icons_to_pages)");
  if (!tables.hasOrigins) return;
  database.run(
      "WITH rest AS (SELECT id, substr(icon_url, instr(icon_url, '://') + 3) AS text "
      "FROM icons.moz_icons WHERE root = 1), "
      "site AS (SELECT id, substr(text, 1, instr(text || '/', '/') - 1) AS host FROM rest) "
      "DELETE FROM icons.moz_icons WHERE id IN (SELECT id FROM site WHERE "
      "host NOT IN (SELECT host FROM main.moz_origins) AND "
      "host NOT IN (SELECT 'www.' || host FROM main.moz_origins))");
}

/// Pages that were visited, or that nothing but the history keeps.
std::int64_t countPages(ForeignDatabase& database, const Tables& tables) {
  return database.number(
      "SELECT count(*) FROM moz_places WHERE id IN (SELECT place_id FROM moz_historyvisits) "
      "OR NOT " +
      isKept(tables));
}

std::int64_t bytesAt(const Path& file) {
  std::error_code error;
  const auto bytes = std::filesystem::file_size(file, error);
  return error ? 0 : static_cast<std::int64_t>(std::min<std::uintmax_t>(bytes, INT64_MAX));
}

Path beside(const Path& database, const char* ending) {
  return Path(database.native() + ending);
}

bool isTooLarge(const Path& database) {
  return bytesAt(database) > mostBytes || bytesAt(beside(database, "-wal")) > mostBytes;
}

/// SQLite writes into the files beside a database, which must not be another's.
bool hasOnlyOwnFilesBeside(const Path& database) {
  for (const char* ending : {"-wal", "-shm", "-journal"}) {
    std::error_code error;
    const Path file = beside(database, ending);
    const auto status = std::filesystem::symlink_status(file, error);
    if (status.type() == std::filesystem::file_type::not_found) continue;
    const bool isOwn = status.type() == std::filesystem::file_type::regular &&
                       std::filesystem::hard_link_count(file, error) == 1;
    if (!isOwn || error) return false;
  }
  return true;
}

HistoryOutcome clearIn(ForeignDatabase& database, const FirefoxDatabases& databases,
                       const std::function<bool()>& isStillIt) {
  // What is deleted is overwritten, and nobody else opens the database until it is closed.
  database.run(
      "PRAGMA secure_delete = ON; PRAGMA foreign_keys = ON; PRAGMA locking_mode = EXCLUSIVE");
  const bool takesIcons = databases.icons.has_value();
  if (takesIcons) database.text("ATTACH ?1 AS icons", databases.icons->native());
  database.run("BEGIN EXCLUSIVE");
  if (!database.isFine()) return outcomeOf(database.code());
  if (database.hasMoved() || !isStillIt()) return replaced;
  if (database.text("PRAGMA main.quick_check(1)") != "ok") {
    return database.isFine() ? damaged : outcomeOf(database.code());
  }
  const Tables tables = tablesOf(database);
  if (!tables.isHistory) return database.isFine() ? unknown : outcomeOf(database.code());

  const std::int64_t strayBefore = strayBookmarks(database);
  deleteVisits(database, tables);
  deletePages(database, tables);
  if (takesIcons) deleteIcons(database, tables);
  const bool keptBookmarks = strayBookmarks(database) == strayBefore;
  if (!database.isFine()) return outcomeOf(database.code());
  if (!keptBookmarks) return unknown;
  database.run("COMMIT");
  if (!database.isFine()) return outcomeOf(database.code());
  // It has gone by now, whether or not it can be written from the log into the database at once.
  database.text("PRAGMA wal_checkpoint(TRUNCATE)");
  return done;
}

/// A transaction may be whole on the disk although the system has refused something at its end.
bool isCleared(const Path& places) {
  ForeignDatabase database(places.native(), SQLITE_OPEN_READWRITE, longestReading);
  const Tables tables = tablesOf(database);
  return tables.isHistory && countPages(database, tables) == 0 && database.isFine();
}

}  // namespace

FirefoxHistory readFirefoxHistory(const FirefoxDatabases& databases) {
  if (isTooLarge(databases.places)) return {.outcome = tooLarge};
  FirefoxHistory history;
  history.mayHoldMore = bytesAt(beside(databases.places, "-wal")) > 0;
  ForeignDatabase database(ForeignDatabase::unchanging(databases.places),
                           SQLITE_OPEN_READONLY | SQLITE_OPEN_URI, longestReading);
  const Tables tables = tablesOf(database);
  if (tables.isHistory) history.pages = countPages(database, tables);
  history.outcome = outcomeOf(database.code());
  if (history.outcome == done && !tables.isHistory) history.outcome = unknown;
  // What is torn in the file may be whole in the log.
  if (history.outcome == damaged && history.mayHoldMore)
    return {.outcome = done, .mayHoldMore = true};
  return history.outcome == done ? history : FirefoxHistory{.outcome = history.outcome};
}

HistoryOutcome clearFirefoxHistory(const FirefoxDatabases& databases,
                                   const std::function<bool()>& isStillIt) {
  if (isTooLarge(databases.places)) return tooLarge;
  if (!hasOnlyOwnFilesBeside(databases.places)) return replaced;
  const auto clear = [&](const FirefoxDatabases& taken) {
    ForeignDatabase database(taken.places.native(), SQLITE_OPEN_READWRITE, longestClearing);
    // Closing the connection takes back what has not been committed.
    return clearIn(database, taken, isStillIt);
  };
  const bool takesIcons =
      databases.icons && !isTooLarge(*databases.icons) && hasOnlyOwnFilesBeside(*databases.icons);
  HistoryOutcome outcome = clear(takesIcons ? databases : FirefoxDatabases{databases.places});
  // Icons that cannot be read keep no history.
  const bool mayBeOfTheIcons = outcome == damaged || outcome == unknown;
  if (takesIcons && mayBeOfTheIcons) outcome = clear({databases.places});
  return outcome == failed && isCleared(databases.places) ? done : outcome;
}

}  // namespace klarvik
