#include "platform/property_list.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

#include "support/property_lists.h"

namespace klarvik {
namespace {

/// Big-endian, in `bytes` bytes.
std::string number(std::uint64_t value, unsigned bytes) {
  std::string text(bytes, '\0');
  for (auto digit = text.rbegin(); digit != text.rend(); ++digit, value >>= 8U) {
    *digit = static_cast<char>(value & 0xFFU);
  }
  return text;
}

/// A list put together object by object; references take four bytes.
class Assembly {
 public:
  void add(const std::string& object) {
    _positions.push_back(_bytes.size());
    _bytes += object;
  }

  static std::string array(const std::vector<std::uint64_t>& items) {
    std::string object = "\xAF\x12" + number(items.size(), 4);
    for (const std::uint64_t item : items) object += number(item, 4);
    return object;
  }

  /// One entry.
  static std::string dictionary(std::uint64_t key, std::uint64_t value) {
    return "\xD1" + number(key, 4) + number(value, 4);
  }

  [[nodiscard]] std::string finish(std::uint64_t root = 0) const {
    std::string list = _bytes;
    for (const std::size_t position : _positions) list += number(position, 4);
    return list + number(0, 6) + number(4, 1) + number(4, 1) + number(_positions.size(), 8) +
           number(root, 8) + number(_bytes.size(), 8);
  }

 private:
  std::string _bytes = "bplist00";
  std::vector<std::size_t> _positions;
};

const std::string kKey = "\x51k";
const std::string kText = "\x54text";

/// A dictionary whose one value is the object of number 2, which the test adds next.
Assembly listAround() {
  Assembly list;
  list.add(Assembly::dictionary(1, 2));
  list.add(kKey);
  return list;
}

std::string nested(std::size_t levels) {
  Assembly list = listAround();
  for (std::size_t level = 0; level < levels; ++level) list.add(Assembly::array({level + 3}));
  list.add(kText);
  return list.finish();
}

bool isRead(const std::string& list) {
  const bool parsed = PropertyList::parse(list).has_value();
  EXPECT_TRUE(!parsed || isBoundedBinaryPropertyList(list));
  return parsed;
}

TEST(BinaryPropertyList, OfAnApplicationIsBounded) {
  const std::string list = binaryPropertyList({{"CFBundleIdentifier", "com.acme.writer"}});
  EXPECT_TRUE(isBinaryPropertyList(list));
  EXPECT_TRUE(isBoundedBinaryPropertyList(list));
}

TEST(BinaryPropertyList, PutTogetherByHandIsRead) {
  Assembly list = listAround();
  list.add(kText);
  const auto parsed = PropertyList::parse(list.finish());
  ASSERT_TRUE(parsed);
  EXPECT_EQ(parsed->text("k"), "text");
}

TEST(BinaryPropertyList, OfADozenLevelsIsReadAndOfAMillionIsNot) {
  EXPECT_TRUE(isRead(nested(12)));
  EXPECT_FALSE(isRead(nested(1'000)));
  EXPECT_FALSE(isRead(nested(1'000'000)));
}

TEST(BinaryPropertyList, ThatHoldsItselfIsNotRead) {
  Assembly itself;
  itself.add(Assembly::dictionary(1, 0));
  itself.add(kKey);
  EXPECT_FALSE(isRead(itself.finish()));

  Assembly key;
  key.add(Assembly::dictionary(0, 0));
  EXPECT_FALSE(isRead(key.finish()));

  Assembly circle = listAround();
  circle.add(Assembly::array({3}));
  circle.add(Assembly::array({4}));
  circle.add(Assembly::array({2}));
  EXPECT_FALSE(isRead(circle.finish()));
}

TEST(BinaryPropertyList, WhosePartsDoubleAndDoubleIsNotRead) {
  Assembly bomb = listAround();
  for (std::uint64_t level = 0; level < 60; ++level) {
    bomb.add(Assembly::array({level + 3, level + 3}));
  }
  bomb.add(kText);
  EXPECT_FALSE(isRead(bomb.finish()));
}

TEST(BinaryPropertyList, ThatHoldsOneLargePartThousandsOfTimesIsNotRead) {
  Assembly bomb = listAround();
  bomb.add(Assembly::array(std::vector<std::uint64_t>(50'000, 3)));
  bomb.add("\x4F\x12" + number(1'000'000, 4) + std::string(1'000'000, 'x'));
  EXPECT_FALSE(isRead(bomb.finish()));
}

TEST(BinaryPropertyList, ThatReachesBeyondItsBytesIsNotRead) {
  const std::vector<std::string> objects{
      "\x5F\x13" + number(~std::uint64_t{0}, 8),        // a text
      "\x6F\x13" + number(std::uint64_t{1} << 63U, 8),  // twice as many bytes come to none
      "\x4F\x12" + number(1'000'000, 4),                // data
      "\xAF\x13" + number(std::uint64_t{1} << 62U, 8),  // four times as many bytes come to none
      "\xDF\x13" + number(std::uint64_t{1} << 61U, 8),
      "\xA1" + number(1'000, 4),  // a reference to no object
      "\x5F\x54"
      "text",  // a length that is no number
      "\x5F\x1F"
      "text",
      "\x14",
      "\x1F",
      "\x23",
      "\x2F",
      "\x33",
      "\x87",  // cut short
      "\x70",
      "\x90",
      "\xB0",
      "\xC0",
      "\xE0",
      "\xF0"};  // of no known kind
  for (const std::string& object : objects) {
    Assembly list = listAround();
    list.add(object);
    EXPECT_FALSE(isRead(list.finish())) << static_cast<int>(object[0]);
  }
}

TEST(BinaryPropertyList, WithATrailerOfNonsenseIsNotRead) {
  Assembly list = listAround();
  list.add(kText);
  const std::string sound = list.finish();
  ASSERT_TRUE(isRead(sound));
  EXPECT_FALSE(isRead(list.finish(3)));
  EXPECT_FALSE(isRead(list.finish(~std::uint64_t{0})));
  struct Field {
    std::size_t fromEnd;
    unsigned bytes;
  };
  for (const Field field : {Field{26, 1}, {25, 1}, {24, 8}, {8, 8}}) {
    for (const std::uint64_t value :
         {std::uint64_t{0}, std::uint64_t{9}, ~std::uint64_t{0}, std::uint64_t{1} << 61U}) {
      std::string spoilt = sound;
      spoilt.replace(sound.size() - field.fromEnd, field.bytes, number(value, field.bytes));
      EXPECT_FALSE(isRead(spoilt)) << field.fromEnd << ' ' << value;
    }
  }
}

}  // namespace
}  // namespace klarvik
