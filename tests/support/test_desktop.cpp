#include "support/test_desktop.h"

namespace klarvik {

TestDesktop::TestDesktop() {
  disk.makeFolder("/Users/ann");
}

Desktop TestDesktop::desktop() {
  return around(files, trash, clock);
}

}  // namespace klarvik
