#include "state/removal_notice.h"

#include <array>

#include "state/set_if_changed.h"
#include "translation/translation.h"

namespace klarvik {
namespace {

std::string textOf(const LeftAlone& leftAlone) {
  const auto sentence = [](std::int64_t count, const char* one, const char* many) {
    if (count < 1) return std::string();
    return (count == 1 ? translate("Removal", one)
                       : translate("Removal", many, nullptr, plural(count)))
        .toStdString();
  };
  const std::array sentences{
      sentence(
          leftAlone.replaced,
          QT_TRANSLATE_NOOP(
              "Removal",
              "1 item was left alone: something else has taken its place since it was listed."),
          QT_TRANSLATE_N_NOOP("Removal",
                              "%n items were left alone: something else has taken their places "
                              "since they were listed.")),
      sentence(leftAlone.keptCopies,
               QT_TRANSLATE_NOOP("Removal",
                                 "1 copy was left alone: it is the same file as the one that "
                                 "stays, under another name, so deleting it would free nothing."),
               QT_TRANSLATE_N_NOOP("Removal",
                                   "%n copies were left alone: they are the same files as those "
                                   "that stay, under other names, so deleting them would free "
                                   "nothing.")),
      sentence(
          leftAlone.notReturned,
          QT_TRANSLATE_NOOP(
              "Removal",
              "1 item was not put back: something else has taken its place in the Trash."),
          QT_TRANSLATE_N_NOOP("Removal",
                              "%n items were not put back: something else has taken their places "
                              "in the Trash.")),
      sentence(leftAlone.toolsInVain,
               QT_TRANSLATE_NOOP("Removal",
                                 "1 item is still there: the tool that removes it failed, was "
                                 "refused, or found nothing to remove."),
               QT_TRANSLATE_N_NOOP("Removal",
                                   "%n items are still there: the tools that remove them failed, "
                                   "were refused, or found nothing to remove.")),
      sentence(leftAlone.notMoved,
               QT_TRANSLATE_NOOP("Removal", "1 item was not moved: the Trash could not take it."),
               QT_TRANSLATE_N_NOOP("Removal",
                                   "%n items were not moved: the Trash could not take them.")),
  };
  std::string text;
  for (const std::string& next : sentences) {
    if (!text.empty() && !next.empty()) text += ' ';
    text += next;
  }
  return text;
}

}  // namespace

void RemovalNotice::tell(const LeftAlone& leftAlone) {
  const std::string text = textOf(leftAlone);
  if (!text.empty() && setIfChanged(_text, text)) emit changed();
}

void RemovalNotice::dismiss() {
  if (setIfChanged(_text, {})) emit changed();
}

}  // namespace klarvik
