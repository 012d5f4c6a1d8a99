#include "platform/formatting.h"

#include <unicode/calendar.h>
#include <unicode/coll.h>
#include <unicode/dcfmtsym.h>
#include <unicode/reldatefmt.h>
#include <unicode/smpdtfmt.h>

#include <array>
#include <chrono>
#include <utility>

#include "base/message.h"

namespace klarvik {
namespace {

struct ByteUnit {
  std::uint64_t bytes;
  int decimals;  // the most that are shown
};

constexpr std::uint64_t thousand = 1'000;
constexpr std::array<ByteUnit, 6> byteUnits{{
    {thousand, 0},
    {thousand * thousand, 1},
    {thousand * thousand * thousand, 2},
    {thousand * thousand * thousand * thousand, 2},
    {thousand * thousand * thousand * thousand * thousand, 2},
    {thousand * thousand * thousand * thousand * thousand * thousand, 2},
}};

constexpr std::uint64_t powerOfTen(int exponent) {
  std::uint64_t power = 1;
  while (exponent-- > 0) power *= 10;
  return power;
}

constexpr std::uint64_t dividedHalfToEven(std::uint64_t dividend, std::uint64_t divisor) {
  const std::uint64_t quotient = dividend / divisor;
  const std::uint64_t rest = dividend % divisor;
  const bool up = rest > divisor - rest || (rest == divisor - rest && quotient % 2 == 1);
  return quotient + (up ? 1 : 0);
}

// `shown` counts in the last decimal: 225 with two decimals is "2.25".
std::string decimalText(std::uint64_t shown, int decimals, const std::string& separator) {
  while (decimals > 0 && shown % 10 == 0) {
    shown /= 10;
    --decimals;
  }
  std::string digits = std::to_string(shown / powerOfTen(decimals));
  if (decimals == 0) return digits;
  std::string fraction = std::to_string(shown % powerOfTen(decimals));
  fraction.insert(0, static_cast<std::size_t>(decimals) - fraction.size(), '0');
  return digits + separator + fraction;
}

std::string magnitudeText(std::uint64_t bytes, const std::string& separator,
                          const FormattingLanguage& language) {
  if (bytes == 0) return language.noBytes;
  if (bytes == 1) return language.oneByte;
  if (bytes < thousand) return Message(language.bytes, {std::to_string(bytes)}).english();
  const auto names = splitWords(language.units);
  for (std::size_t at = 0; at < byteUnits.size(); ++at) {
    const ByteUnit& unit = byteUnits.at(at);
    const std::uint64_t scale = powerOfTen(unit.decimals);
    const std::uint64_t shown = dividedHalfToEven(bytes, unit.bytes / scale);
    if (shown < thousand * scale || &unit == &byteUnits.back()) {
      return decimalText(shown, unit.decimals, separator) + ' ' +
             std::string(at < names.size() ? names[at] : "");
    }
  }
  return {};
}

std::string utf8(const icu::UnicodeString& text) {
  std::string result;
  return text.toUTF8String(result);
}

UDate icuDate(Date date) {
  using std::chrono::milliseconds;
  return static_cast<UDate>(std::chrono::floor<milliseconds>(date).time_since_epoch().count());
}

icu::StringPiece piece(std::string_view text) {
  return {text.data(), static_cast<std::int32_t>(text.size())};
}

// Outside of any language ("C", "POSIX") ICU sorts by code, capitals first. No user wants that.
icu::Locale usersLocale() {
  const icu::Locale& locale = icu::Locale::getDefault();
  return std::string_view(locale.getVariant()) == "POSIX" ? icu::Locale::getUS() : locale;
}

std::string decimalSeparator(const icu::Locale& locale) {
  UErrorCode status = U_ZERO_ERROR;
  const icu::DecimalFormatSymbols symbols(locale, status);
  return utf8(symbols.getConstSymbol(icu::DecimalFormatSymbols::kDecimalSeparatorSymbol));
}

std::unique_ptr<icu::Collator> collator(const icu::Locale& locale) {
  UErrorCode status = U_ZERO_ERROR;
  std::unique_ptr<icu::Collator> result{icu::Collator::createInstance(locale, status)};
  if (result) result->setStrength(icu::Collator::SECONDARY);  // accents count, case does not
  return result;
}

struct RelativeUnit {
  UCalendarDateFields field;
  URelativeDateTimeUnit unit;
};

constexpr std::array<RelativeUnit, 7> relativeUnits{{
    {UCAL_YEAR, UDAT_REL_UNIT_YEAR},
    {UCAL_MONTH, UDAT_REL_UNIT_MONTH},
    {UCAL_WEEK_OF_YEAR, UDAT_REL_UNIT_WEEK},
    {UCAL_DATE, UDAT_REL_UNIT_DAY},
    {UCAL_HOUR, UDAT_REL_UNIT_HOUR},
    {UCAL_MINUTE, UDAT_REL_UNIT_MINUTE},
    {UCAL_SECOND, UDAT_REL_UNIT_SECOND},
}};

struct Span {
  double count = -0.0;  // below zero is in the past, and so is this zero
  URelativeDateTimeUnit unit = UDAT_REL_UNIT_SECOND;
};

// By the calendar, and in the largest unit that fits in whole: 36 hours are one day.
Span spanBetween(Date now, Date date, const icu::Locale& locale) {
  UErrorCode status = U_ZERO_ERROR;
  const std::unique_ptr<icu::Calendar> calendar{icu::Calendar::createInstance(locale, status)};
  if (U_FAILURE(status)) return {};
  calendar->setTime(icuDate(now), status);
  for (const RelativeUnit& candidate : relativeUnits) {
    const int count = calendar->fieldDifference(icuDate(date), candidate.field, status);
    if (U_SUCCESS(status) && count != 0) return {static_cast<double>(count), candidate.unit};
  }
  return {};
}

std::string relativeText(Date date, Date now, const icu::Locale& locale,
                         UDateRelativeDateTimeFormatterStyle style) {
  UErrorCode status = U_ZERO_ERROR;
  const icu::RelativeDateTimeFormatter formatter(locale, nullptr, style,
                                                 UDISPCTX_CAPITALIZATION_NONE, status);
  const Span span = spanBetween(now, date, locale);
  icu::UnicodeString text;
  formatter.formatNumeric(span.count, span.unit, text, status);
  return utf8(text);
}

}  // namespace

// ICU promises nothing about two threads in one date formatter, so that each call makes its own
// from this.
struct Formatting::Locale {
  icu::Locale icu;
  std::string decimalSeparator;
  std::unique_ptr<const icu::Collator> collator;
  FormattingLanguage language;
};

Formatting::Formatting(std::optional<std::string> locale)
    : Formatting(FormattingLanguage{.locale = std::move(locale)}) {}

Formatting::Formatting(FormattingLanguage language) {
  const icu::Locale icu = language.locale ? icu::Locale(language.locale->c_str()) : usersLocale();
  _locale = std::make_unique<const Locale>(
      Locale{icu, decimalSeparator(icu), collator(icu), std::move(language)});
}

Formatting::~Formatting() = default;

std::string Formatting::byteText(std::int64_t bytes) const {
  const auto bits = static_cast<std::uint64_t>(bytes);
  if (bytes < 0) {
    return '-' + magnitudeText(0 - bits, _locale->decimalSeparator, _locale->language);
  }
  return magnitudeText(bits, _locale->decimalSeparator, _locale->language);
}

std::string Formatting::dateAndTime(Date date) const {
  const std::unique_ptr<icu::DateFormat> format{icu::DateFormat::createDateTimeInstance(
      icu::DateFormat::kMedium, icu::DateFormat::kShort, _locale->icu)};
  icu::UnicodeString text;
  if (format) format->format(icuDate(date), text);
  return utf8(text);
}

std::string Formatting::dayAndMonth(Date date) const {
  UErrorCode status = U_ZERO_ERROR;
  const std::unique_ptr<icu::DateFormat> format{
      icu::DateFormat::createInstanceForSkeleton("MMMd", _locale->icu, status)};
  icu::UnicodeString text;
  if (U_SUCCESS(status) && format) format->format(icuDate(date), text);
  return utf8(text);
}

std::string Formatting::relative(Date date, Date now) const {
  return relativeText(date, now, _locale->icu, UDAT_STYLE_LONG);
}

std::string Formatting::relativeAbbreviated(Date date, Date now) const {
  return relativeText(date, now, _locale->icu, UDAT_STYLE_SHORT);
}

std::optional<Date> Formatting::parseDate(const std::string& text, const std::string& pattern) {
  UErrorCode status = U_ZERO_ERROR;
  icu::SimpleDateFormat format(icu::UnicodeString::fromUTF8(pattern), icu::Locale::getUS(), status);
  if (U_FAILURE(status)) return std::nullopt;
  format.setLenient(false);

  const icu::UnicodeString whole = icu::UnicodeString::fromUTF8(text);
  const UDate date = format.parse(whole, status);
  // ICU is lenient all the same: it skips blanks and takes fewer digits than the pattern has.
  icu::UnicodeString back;
  if (U_FAILURE(status) || format.format(date, back) != whole) return std::nullopt;
  return Date(std::chrono::milliseconds(static_cast<std::int64_t>(date)));
}

int Formatting::compareNames(std::string_view left, std::string_view right) const {
  UErrorCode status = U_ZERO_ERROR;
  if (!_locale->collator) return left.compare(right);
  return _locale->collator->compareUTF8(piece(left), piece(right), status);
}

}  // namespace klarvik
