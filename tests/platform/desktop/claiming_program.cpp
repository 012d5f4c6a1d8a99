// claiming_program HOME FOLDER USER DISPLAY WHEN_ASKED: one start of a program of which each home
// has one. Prints a line for what became of the claim and, where it was granted, one for each
// further start. Runs until it is killed; where WHEN_ASKED is "ends", until it has been asked and
// has not answered yet.

#include <QCoreApplication>
#include <cstdio>
#include <cstdlib>
#include <string_view>

#include "platform/desktop/single_instance.h"

namespace {

void say(const char* line) {
  std::puts(line);
  std::fflush(stdout);
}

}  // namespace

int main(int argumentCount, char** arguments) {
  QCoreApplication application(argumentCount, arguments);
  if (argumentCount != 6) return 2;
  klarvik::SingleInstance::Start start;
  start.home = arguments[1];
  start.folder = arguments[2];
  start.user = static_cast<uid_t>(std::atoi(arguments[3]));
  start.session.x11 = arguments[4];
  klarvik::SingleInstance instance(start);
  if (instance.claim() != klarvik::SingleInstance::Claim::granted) {
    say("refused");
    return 0;
  }
  const bool ends = std::string_view(arguments[5]) == "ends";
  instance.whenStartedAgain([ends] {
    say("fronted");
    if (ends) std::_Exit(0);
  });
  say("granted");
  return QCoreApplication::exec();
}
