#include "platform/application_bundle.h"

#include <gmock/gmock.h>
#include <sys/stat.h>
#include <unicode/unistr.h>

#include "platform/linux/linux_file_system.h"
#include "support/fault_injecting_file_system.h"
#include "support/property_lists.h"
#include "support/temporary_folder.h"

namespace klarvik {
namespace {

using testing::Eq;
using testing::Optional;

const PropertyListTexts kWriter{{"CFBundleIdentifier", "com.acme.writer"},
                                {"CFBundleDisplayName", "Acme Writer <2> & Söhne"},
                                {"CFBundleName", "Writer"}};

class ApplicationBundleTest : public testing::Test {
 protected:
  TemporaryFolder disk;
  LinuxFileSystem files{disk.path(), "/Users/ann"};
  const Path app = "/Applications/Acme.app";

  void SetUp() override { disk.makeFolder(app / "Contents"); }

  [[nodiscard]] std::optional<ApplicationBundle> bundle() const {
    return ApplicationBundle::at(files, app);
  }

  std::optional<ApplicationBundle> bundleOf(std::string_view propertyList) {
    disk.makeFile(app / "Contents/Info.plist", propertyList);
    auto found = bundle();
    std::filesystem::remove(disk.onDisk(app / "Contents/Info.plist"));
    return found;
  }

  std::optional<std::string> identifierIn(std::string_view propertyList) {
    const auto found = bundleOf(propertyList);
    return found ? std::optional(found->identifier) : std::nullopt;
  }
};

std::string xml(std::string_view entries) {
  return "<plist version=\"1.0\"><dict>" + std::string(entries) +
         "<key>CFBundleIdentifier</key><string>com.acme.writer</string></dict></plist>";
}

std::string repeated(std::string_view text, std::size_t times) {
  std::string result;
  for (std::size_t time = 0; time < times; ++time) result += text;
  return result;
}

std::string encoded(const std::string& text, const char* encoding) {
  const auto units = icu::UnicodeString::fromUTF8(text);
  std::string bytes(static_cast<std::size_t>(units.length()) * 2 + 4, '\0');
  const auto size = units.extract(0, units.length(), bytes.data(),
                                  static_cast<std::uint32_t>(bytes.size()), encoding);
  bytes.resize(static_cast<std::size_t>(size));
  return bytes;
}

TEST_F(ApplicationBundleTest, IsReadFromAnXmlAndFromABinaryPropertyList) {
  for (const std::string& list : {xmlPropertyList(kWriter), binaryPropertyList(kWriter)}) {
    const auto found = bundleOf(list);
    ASSERT_TRUE(found);
    EXPECT_EQ(found->identifier, "com.acme.writer");
    EXPECT_THAT(found->displayName, Optional(Eq("Acme Writer <2> & Söhne")));
    EXPECT_THAT(found->name, Optional(Eq("Writer")));
  }
}

TEST_F(ApplicationBundleTest, IsReadAfterAByteOrderMarkAndAroundCommentsAndCharacterData) {
  const std::string list =
      "\xEF\xBB\xBF" + xml("<!-- <dict> --><key>CFBundleName</key>"
                           "<string>A<![CDATA[<b>&]]>&#233;<!-- c --></string>");
  const auto found = bundleOf(list);
  ASSERT_TRUE(found);
  EXPECT_THAT(found->name, Optional(Eq("A<b>&é")));
}

TEST_F(ApplicationBundleTest, MayBeFlat) {
  disk.makeFile(app / "Info.plist", binaryPropertyList(kWriter));
  ASSERT_TRUE(bundle());
  EXPECT_EQ(bundle()->identifier, "com.acme.writer");
}

TEST_F(ApplicationBundleTest, TheListInItsFolderOfContentsCounts) {
  disk.makeFile(app / "Info.plist", xmlPropertyList({{"CFBundleIdentifier", "com.other"}}));
  disk.makeFile(app / "Contents/Info.plist", xmlPropertyList(kWriter));
  ASSERT_TRUE(bundle());
  EXPECT_EQ(bundle()->identifier, "com.acme.writer");
}

TEST_F(ApplicationBundleTest, IsFoundThroughALinkToItsFolder) {
  disk.makeFile(app / "Contents/Info.plist", xmlPropertyList(kWriter));
  disk.makeLink("/Applications/Link.app", "Acme.app");
  const auto found = ApplicationBundle::at(files, "/Applications/Link.app");
  ASSERT_TRUE(found);
  EXPECT_EQ(found->identifier, "com.acme.writer");
}

TEST_F(ApplicationBundleTest, NeedsATextForItsIdentifier) {
  EXPECT_FALSE(bundleOf(xmlPropertyList({{"CFBundleName", "Writer"}})));
  EXPECT_FALSE(bundleOf(xmlPropertyList({{"CFBundleIdentifier", ""}})));
  for (const char* const value :
       {"<integer>5</integer>", "<true/>", "<array><string>com.acme</string></array>", "<dict/>",
        "<data>AAAA</data>", "<real>1.5</real>", "<date>2026-01-01T00:00:00Z</date>"}) {
    const std::string list =
        "<plist><dict><key>CFBundleIdentifier</key>" + std::string(value) + "</dict></plist>";
    EXPECT_FALSE(bundleOf(list)) << value;
  }
}

TEST_F(ApplicationBundleTest, ANameOfAnotherTypeIsNone) {
  const auto found =
      bundleOf(xml("<key>CFBundleDisplayName</key><integer>5</integer>"
                   "<key>CFBundleName</key><array/>"));
  ASSERT_TRUE(found);
  EXPECT_FALSE(found->displayName);
  EXPECT_FALSE(found->name);
}

TEST_F(ApplicationBundleTest, ATextThatIsNotUtf8IsNone) {
  EXPECT_FALSE(bundleOf(xmlPropertyList({{"CFBundleIdentifier", "com.\xff\xfe"}})));
  const auto found = bundleOf(xmlPropertyList({{"CFBundleIdentifier", "com.acme.writer"},
                                               {"CFBundleDisplayName", "\xc3"},
                                               {"CFBundleName", "Writer"}}));
  ASSERT_TRUE(found);
  EXPECT_FALSE(found->displayName);
  EXPECT_THAT(found->name, Optional(Eq("Writer")));
}

TEST_F(ApplicationBundleTest, ATextMayHoldALineBreakASlashOrAnything) {
  for (const char* const text : {"two\nlines", "../../etc", "/", "..", "📱", "$(id)"}) {
    EXPECT_THAT(identifierIn(xmlPropertyList({{"CFBundleIdentifier", text}})), Optional(Eq(text)));
    EXPECT_THAT(identifierIn(binaryPropertyList({{"CFBundleIdentifier", text}})),
                Optional(Eq(text)));
  }
}

TEST_F(ApplicationBundleTest, WhatIsNoPropertyListIsNoBundle) {
  EXPECT_FALSE(ApplicationBundle::at(files, "/Applications/Missing.app"));
  EXPECT_FALSE(bundle());
  for (const std::string_view garbage :
       {"", " ", "x", "bplist00", "bplist01", "<plist>", "<plist></plist>", "<plist/>",
        "<plist><array/></plist>", "<plist><string>text</string></plist>", "{ a = b; }",
        "{\"CFBundleIdentifier\": \"com.acme\"}", "<html></html>", "<!DOCTYPE"}) {
    EXPECT_FALSE(bundleOf(garbage)) << garbage;
  }
  EXPECT_FALSE(bundleOf(std::string(1'000, '\0')));
}

TEST_F(ApplicationBundleTest, APropertyListCutShortAnywhereIsNoBundle) {
  for (const std::string& list : {xmlPropertyList(kWriter), binaryPropertyList(kWriter)}) {
    const std::size_t whole =
        list.find("</plist>") == std::string::npos ? list.size() : list.find("</dict>\n</pl");
    for (std::size_t size = 0; size < whole; ++size) {
      EXPECT_FALSE(bundleOf(list.substr(0, size))) << "at " << size;
    }
  }
}

TEST_F(ApplicationBundleTest, APropertyListWithAnyByteSpoiltEndsWell) {
  std::size_t read = 0;
  for (const std::string& list : {xmlPropertyList(kWriter), binaryPropertyList(kWriter)}) {
    for (std::size_t at = 0; at < list.size(); ++at) {
      for (const int byte : {0x00, 0xFF, list[at] ^ 1, list[at] ^ 0x80}) {
        std::string spoilt = list;
        spoilt[at] = static_cast<char>(byte);
        if (bundleOf(spoilt)) ++read;
      }
    }
  }
  EXPECT_GT(read, 0U);
}

TEST_F(ApplicationBundleTest, ADateIsPassedOverWhateverItSays) {
  for (const char* const date :
       {"2026-12-31T23:59:59Z", "2026-13-01T00:00:00Z", "2026-2000000000-1T0:0:0Z",
        "2026--999999999-1T0:0Z", "whatever it is", ""}) {
    EXPECT_TRUE(bundleOf(xml("<key>a</key><date>" + std::string(date) + "</date>"))) << date;
  }
}

TEST_F(ApplicationBundleTest, AMillionLevelsOfXmlThatNeverEndAreNoBundle) {
  constexpr std::size_t levels = 1'000'000;
  EXPECT_FALSE(bundleOf(repeated("<array>", levels)));
  EXPECT_FALSE(bundleOf("<plist>" + repeated("<dict><key>k</key>", levels / 10)));
}

TEST_F(ApplicationBundleTest, HundredsOfThousandsOfLevelsOfXmlArePassedOver) {
  constexpr std::size_t levels = 250'000;
  EXPECT_TRUE(
      bundleOf(xml("<key>k</key>" + repeated("<array>", levels) + repeated("</array>", levels))));
}

TEST_F(ApplicationBundleTest, AnEntityBombIsNoBundle) {
  std::string entities = "<!ENTITY a0 \"aaaaaaaaaa\">";
  for (int level = 1; level < 12; ++level) {
    const std::string inner = "&a" + std::to_string(level - 1) + ";";
    entities += "<!ENTITY a" + std::to_string(level) + " \"" + repeated(inner, 10) + "\">";
  }
  EXPECT_FALSE(
      bundleOf("<!DOCTYPE plist [" + entities + "]>" + xml("<key>k</key><string>&a11;</string>")));
}

TEST_F(ApplicationBundleTest, ATextOfManyEntitiesIsRead) {
  EXPECT_TRUE(bundleOf(xml("<key>k</key><string>" + repeated("&lt;", 500'000) + "</string>")));
}

TEST_F(ApplicationBundleTest, ADictionaryOfHundredsOfThousandsOfKeysIsRead) {
  EXPECT_TRUE(bundleOf(xml(repeated("<key>a</key><true/>", 200'000))));
  std::string distinct;
  for (int key = 0; key < 50'000; ++key) {
    distinct +=
        "<key>k" + std::to_string(key) + "</key><string>" + std::to_string(key) + "</string>";
  }
  EXPECT_TRUE(bundleOf(xml(distinct)));
}

TEST_F(ApplicationBundleTest, OnlyTheOutermostDictionaryCounts) {
  EXPECT_FALSE(
      bundleOf("<plist><dict><key>inner</key><dict><key>CFBundleIdentifier</key>"
               "<string>com.acme</string></dict></dict></plist>"));
  EXPECT_FALSE(
      bundleOf("<plist><dict><key>CFBundleIdentifier</key><array/>"
               "<string>com.acme</string></dict></plist>"));
  EXPECT_FALSE(
      bundleOf("<html><dict><key>CFBundleIdentifier</key><string>com.acme</string>"
               "</dict></html>"));
}

TEST_F(ApplicationBundleTest, IsReadInUtf16WithAByteOrderMarkAndWithout) {
  const std::string list = xmlPropertyList({{"CFBundleIdentifier", "com.acme.writer"},
                                            {"CFBundleDisplayName", "S\xC3\xB6hne \U0001F4F1"}});
  for (const char* const encoding : {"UTF-16LE", "UTF-16BE", "UTF-16"}) {
    const auto found = bundleOf(encoded(list, encoding));
    ASSERT_TRUE(found) << encoding;
    EXPECT_EQ(found->identifier, "com.acme.writer");
    EXPECT_THAT(found->displayName, Optional(Eq("S\xC3\xB6hne \U0001F4F1"))) << encoding;
  }
  EXPECT_FALSE(bundleOf(encoded(list, "UTF-16").substr(0, 301))) << "cut in a character";
}

TEST_F(ApplicationBundleTest, IsReadInTheOldStyle) {
  const auto found = bundleOf(R"(// of an old application
    {
      CFBundleDocumentTypes = ( { CFBundleTypeName = "a } b"; }, /* ) */ ( c, d ) );
      CFBundleIcon = <0fbd77 1c2735ae>;
      "CFBundleIdentifier" = com.acme.writer;
      CFBundleName = 'Acme "Writer"\n\U00f6';
    } )");
  ASSERT_TRUE(found);
  EXPECT_EQ(found->identifier, "com.acme.writer");
  EXPECT_THAT(found->name, Optional(Eq("Acme \"Writer\"\n\xC3\xB6")));
  EXPECT_THAT(identifierIn("{CFBundleIdentifier=\"\\Ud83d\\Udcf1\";}"), Optional(Eq("\U0001F4F1")));
}

TEST_F(ApplicationBundleTest, AListInTheOldStyleThatIsNotWholeIsNoBundle) {
  const std::string list = "{ a = (b, {c = d;}); CFBundleIdentifier = \"com.acme\"; /* */ }";
  EXPECT_TRUE(bundleOf(list));
  for (std::size_t size = 0; size < list.size(); ++size) {
    EXPECT_FALSE(bundleOf(list.substr(0, size))) << "at " << size;
  }
  for (const char* const odd :
       {"{ CFBundleIdentifier = com.acme }", "{ CFBundleIdentifier com.acme; }", "{ = com.acme; }",
        "{ CFBundleIdentifier = ; }", "{ CFBundleIdentifier = = com.acme; }",
        "{ CFBundleIdentifier = com.acme; } more", "{ CFBundleIdentifier = \"\\Ud83d\"; }",
        "{ CFBundleIdentifier = (com.acme); }", "{ a = { CFBundleIdentifier = com.acme; }; }"}) {
    EXPECT_FALSE(bundleOf(odd)) << odd;
  }
  EXPECT_FALSE(bundleOf("{ a = " + repeated("(", 1'000'000)));
}

TEST_F(ApplicationBundleTest, APropertyListThatIsTooLargeIsNoBundle) {
  const std::string list = xmlPropertyList(kWriter);
  disk.makeFile(app / "Contents/Info.plist", list + std::string(3'000'000, ' '));
  EXPECT_TRUE(bundle());
  disk.makeSparseFile(app / "Contents/Info.plist", 4 * 1'048'576 + 1);
  EXPECT_FALSE(bundle());
  std::filesystem::remove(disk.onDisk(app / "Contents/Info.plist"));
  disk.makeFile(app / "Contents/Info.plist", list + std::string(4 * 1'048'576, ' '));
  EXPECT_FALSE(bundle());
  disk.makeSparseFile("/Applications/Endless.app/Info.plist", 1'000'000'000'000);
  EXPECT_FALSE(ApplicationBundle::at(files, "/Applications/Endless.app"));
}

TEST_F(ApplicationBundleTest, IsReadThroughLinksToItsPropertyList) {
  disk.makeFile("/Applications/Shared/Writer.plist", xmlPropertyList(kWriter));
  disk.makeLink("/Applications/Shared/Link.plist", "Writer.plist");
  for (const char* const target : {"../../Shared/Writer.plist", "/Applications/Shared/Writer.plist",
                                   "/Applications/Shared/Link.plist"}) {
    disk.makeLink(app / "Contents/Info.plist", target);
    ASSERT_TRUE(bundle()) << target;
    EXPECT_EQ(bundle()->identifier, "com.acme.writer");
    std::filesystem::remove(disk.onDisk(app / "Contents/Info.plist"));
  }
}

TEST_F(ApplicationBundleTest, AFifoAFolderOrALinkToNoFileIsNeverOpened) {
  const Path place = disk.onDisk(app / "Contents/Info.plist");
  ASSERT_EQ(::mkfifo(place.c_str(), 0600), 0);
  EXPECT_FALSE(bundle());
  std::filesystem::remove(place);
  std::filesystem::create_directory(place);
  EXPECT_FALSE(bundle());
  std::filesystem::remove(place);
  for (const char* const target : {"/dev/zero", "..", "Info.plist", "missing"}) {
    disk.makeLink(app / "Contents/Info.plist", target);
    EXPECT_FALSE(bundle()) << target;
    std::filesystem::remove(place);
  }
}

TEST_F(ApplicationBundleTest, APropertyListWhoseReadingFailsHalfWayIsNoBundle) {
  disk.makeFile(app / "Contents/Info.plist", xmlPropertyList(kWriter) + std::string(200'000, ' '));
  FaultInjectingFileSystem faulty(files);
  EXPECT_TRUE(ApplicationBundle::at(faulty, app));
  faulty.failReadingAfter(100'000, app / "Contents/Info.plist");
  EXPECT_FALSE(ApplicationBundle::at(faulty, app));
}

}  // namespace
}  // namespace klarvik
