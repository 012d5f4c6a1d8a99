// claiming_program HOME FOLDER USER DISPLAY: one start of a program of which each home has one.
// Prints a line for what became of the claim and, where it was granted, one for each further start.
// Runs until it is killed.

#include <QCoreApplication>
#include <cstdio>
#include <cstdlib>

#include "platform/desktop/single_instance.h"

namespace {

void say(const char* line) {
  std::puts(line);
  std::fflush(stdout);
}

}  // namespace

int main(int argumentCount, char** arguments) {
  QCoreApplication application(argumentCount, arguments);
  if (argumentCount != 5) return 2;
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
  instance.whenStartedAgain([] { say("fronted"); });
  say("granted");
  return QCoreApplication::exec();
}
