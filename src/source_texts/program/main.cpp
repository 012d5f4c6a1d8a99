#include <cstdio>
#include <string>

#include "source_texts/source_texts.h"

/// Prints the texts as a source that lupdate reads.
int main() {
  for (const std::string& text : klarvik::sourceTexts()) {
    std::string quoted;
    for (const char each : text) {
      if (each == '\n') {
        quoted += "\\n";
        continue;
      }
      if (each == '"' || each == '\\') quoted += '\\';
      quoted += each;
    }
    const bool isCounted = text.find("%n") != std::string::npos;
    std::printf("QT_TRANSLATE_%s(\"Engine\", \"%s\");\n", isCounted ? "N_NOOP" : "NOOP",
                quoted.c_str());
  }
  return 0;
}
