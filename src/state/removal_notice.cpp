#include "state/removal_notice.h"

#include <array>
#include <string_view>

#include "state/set_if_changed.h"

namespace klarvik {
namespace {

struct Sentence {
  const std::atomic<std::int64_t>& count;
  std::string_view one;
  std::string_view many;  ///< after the number
};

std::string textOf(const Sentence& sentence) {
  const std::int64_t count = sentence.count;
  if (count < 1) return {};
  return count == 1 ? std::string(sentence.one)
                    : std::to_string(count) + std::string(sentence.many);
}

std::string textOf(const LeftAlone& leftAlone) {
  const std::array sentences{
      Sentence{leftAlone.replaced,
               "1 item was left alone: something else has taken its place since it was listed.",
               " items were left alone: something else has taken their places since they were "
               "listed."},
      Sentence{leftAlone.keptCopies,
               "1 copy was left alone: it is the same file as the one that stays, under another "
               "name, so deleting it would free nothing.",
               " copies were left alone: they are the same files as those that stay, under other "
               "names, so deleting them would free nothing."},
      Sentence{leftAlone.notReturned,
               "1 item was not put back: something else has taken its place in the Trash.",
               " items were not put back: something else has taken their places in the Trash."},
      Sentence{leftAlone.toolsInVain,
               "1 item is still there: the tool that removes it failed, was refused, or found "
               "nothing to remove.",
               " items are still there: the tools that remove them failed, were refused, or found "
               "nothing to remove."},
  };
  std::string text;
  for (const Sentence& sentence : sentences) {
    const std::string next = textOf(sentence);
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
