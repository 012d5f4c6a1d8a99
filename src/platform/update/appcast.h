#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace klarvik {

/// One version that a feed speaks of, as it stands there: nothing in it has been judged yet.
struct AppcastItem {
  std::string version;         ///< what is compared
  std::string displayVersion;  ///< what people call it; empty where the feed does not say
  std::string notes;           ///< plain text
  std::string notesLink;
  std::string minimumSystem;
  std::string maximumSystem;
  std::string channel;    ///< empty: for everybody
  std::string system;     ///< the operating system it is for; empty: any
  std::string address;    ///< where the archive is
  std::string length;     ///< of the archive, in bytes
  std::string digest;     ///< SHA-256 of the archive, in base64
  std::string signature;  ///< of the release as a whole, in base64
};

/// The items of an RSS appcast in their order. The text may come from anywhere: reading it takes
/// time and memory in proportion to its length, and it makes nothing else be read. Nothing when it
/// is not UTF-8, not well-formed, not RSS, or brings a document type, in which a text of any size
/// can hide in a few lines.
[[nodiscard]] std::optional<std::vector<AppcastItem>> parseAppcast(std::string_view feed);

/// Release notes that are text already: without control characters, and cut where no one reads on.
[[nodiscard]] std::string plainNotes(std::string_view text);
/// The words of release notes that were written for a browser, a line for each block of them.
/// Nothing that they refer to is read.
[[nodiscard]] std::string plainNotesOfHtml(std::string_view html);

}  // namespace klarvik
