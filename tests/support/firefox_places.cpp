#include "support/firefox_places.h"

#include <sqlite3.h>

#include <cstdio>
#include <cstdlib>
#include <memory>

namespace klarvik {
namespace {

constexpr const char* statements = R"(
    CREATE TABLE moz_origins (id INTEGER PRIMARY KEY, prefix TEXT NOT NULL, host TEXT NOT NULL,
      frecency INTEGER NOT NULL, UNIQUE (prefix, host));
    CREATE TABLE moz_places (id INTEGER PRIMARY KEY, url LONGVARCHAR, title LONGVARCHAR,
      visit_count INTEGER DEFAULT 0, typed INTEGER DEFAULT 0 NOT NULL,
      frecency INTEGER DEFAULT -1 NOT NULL, last_visit_date INTEGER, guid TEXT,
      foreign_count INTEGER DEFAULT 0 NOT NULL, origin_id INTEGER REFERENCES moz_origins(id),
      recalc_frecency INTEGER NOT NULL DEFAULT 0);
    CREATE TABLE moz_historyvisits (id INTEGER PRIMARY KEY, from_visit INTEGER, place_id INTEGER,
      visit_date INTEGER, visit_type INTEGER);
    CREATE TABLE moz_historyvisits_extra (visit_id INTEGER PRIMARY KEY NOT NULL, sync_json TEXT,
      FOREIGN KEY (visit_id) REFERENCES moz_historyvisits(id) ON DELETE CASCADE);
    CREATE TABLE moz_inputhistory (place_id INTEGER NOT NULL, input LONGVARCHAR NOT NULL,
      use_count INTEGER, PRIMARY KEY (place_id, input));
    CREATE TABLE moz_bookmarks (id INTEGER PRIMARY KEY, type INTEGER, fk INTEGER DEFAULT NULL,
      parent INTEGER, position INTEGER, title LONGVARCHAR, guid TEXT);
    CREATE TABLE moz_keywords (id INTEGER PRIMARY KEY AUTOINCREMENT, keyword TEXT UNIQUE,
      place_id INTEGER, post_data TEXT);
    CREATE TABLE moz_anno_attributes (id INTEGER PRIMARY KEY, name VARCHAR(32) UNIQUE NOT NULL);
    CREATE TABLE moz_annos (id INTEGER PRIMARY KEY, place_id INTEGER NOT NULL,
      anno_attribute_id INTEGER, content LONGVARCHAR);
    CREATE TABLE moz_places_metadata (id INTEGER PRIMARY KEY, place_id INTEGER NOT NULL,
      total_view_time INTEGER, FOREIGN KEY (place_id) REFERENCES moz_places(id) ON DELETE CASCADE);

    INSERT INTO moz_origins VALUES (1, 'https://', 'secret.example', 10),
      (2, 'https://', 'marked.example', 20);
    INSERT INTO moz_places (id, url, title, visit_count, typed, frecency, last_visit_date, guid,
        foreign_count, origin_id) VALUES
      (1, 'https://secret.example/one', 'One', 3, 1, 900, 1000, 'g1', 0, 1),
      (2, 'https://secret.example/file.zip', 'Two', 1, 0, 100, 1001, 'g2', 0, 1),
      (3, 'https://marked.example/', 'Marked', 5, 1, 700, 1002, 'g3', 1, 2),
      (4, 'https://marked.example/?q=%s', 'Search', 0, 0, 1, NULL, 'g4', 1, 2),
      (5, 'place:type=6', 'A query', 0, 0, 0, NULL, 'g5', 1, NULL);
    INSERT INTO moz_historyvisits VALUES (1, 0, 1, 998, 1), (2, 1, 1, 1000, 1), (3, 2, 2, 1001, 7),
      (4, 0, 3, 1002, 2);
    INSERT INTO moz_historyvisits_extra VALUES (1, '{}');
    INSERT INTO moz_inputhistory VALUES (1, 'sec', 1), (3, 'mar', 1);
    INSERT INTO moz_bookmarks VALUES (1, 2, NULL, 0, 0, '', 'root________'),
      (2, 1, 3, 1, 0, 'My page', 'bm2'), (3, 1, 5, 1, 1, 'My query', 'bm3');
    INSERT INTO moz_keywords VALUES (1, 'm', 4, NULL);
    INSERT INTO moz_anno_attributes VALUES (1, 'downloads/destinationFileURI'), (2, 'my/note');
    INSERT INTO moz_annos VALUES (1, 2, 1, 'file:///home/ann/file.zip'), (2, 3, 2, 'a note');
    INSERT INTO moz_places_metadata VALUES (1, 1, 5000), (2, 3, 4000);
  )";

}  // namespace

std::string firefoxPlaces() {
  sqlite3* opened = nullptr;
  const bool isOpen = sqlite3_open(":memory:", &opened) == SQLITE_OK;
  const std::unique_ptr<sqlite3, decltype(&sqlite3_close)> database(opened, sqlite3_close);
  if (!isOpen || sqlite3_exec(opened, statements, nullptr, nullptr, nullptr) != SQLITE_OK) {
    std::fprintf(stderr, "cannot make a history: %s\n", sqlite3_errmsg(opened));
    std::abort();
  }
  sqlite3_int64 size = 0;
  const std::unique_ptr<unsigned char, decltype(&sqlite3_free)> bytes(
      sqlite3_serialize(opened, "main", &size, 0), sqlite3_free);
  return {reinterpret_cast<const char*>(bytes.get()), static_cast<std::size_t>(size)};
}

}  // namespace klarvik
