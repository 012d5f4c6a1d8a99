#include "panes/kit/layout_words.h"

#include "panes/kit/kit.h"

namespace klarvik {

LayoutWords* LayoutWords::create(QQmlEngine* engine, QJSEngine* /*scripts*/) {
  return new LayoutWords(Kit::of(*engine).layout());
}

}  // namespace klarvik
