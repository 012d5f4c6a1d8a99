#include <gmock/gmock.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdlib>

#include "base/posix_io.h"
#include "trash_fixture.h"

namespace klarvik {
namespace {

using testing::HasSubstr;
using testing::Not;

/// The desktop's own tools, started with the home of the test.
class TrashNeighbours : public TrashFixture {
 protected:
  TrashNeighbours() { ::chmod(disk.makeFolder("/run").c_str(), 0700); }

  /// What the program printed; a test fails when it could not be run.
  std::string outputOf(std::vector<std::string> command, const std::string& input = {}) const {
    std::array<int, 2> in{};
    std::array<int, 2> out{};
    EXPECT_EQ(::pipe(in.data()) | ::pipe(out.data()), 0);
    const pid_t child = ::fork();
    if (child == 0) {
      ::dup2(in[0], STDIN_FILENO);
      ::dup2(out[1], STDOUT_FILENO);
      for (const int end : {in[0], in[1], out[0], out[1]}) ::close(end);
      execute(command);
    }
    ::close(in[0]);
    ::close(out[1]);
    EXPECT_EQ(::write(in[1], input.data(), input.size()), static_cast<ssize_t>(input.size()));
    ::close(in[1]);
    std::string text;
    std::array<char, 4096> buffer{};
    ssize_t length = 0;
    while ((length = ::read(out[0], buffer.data(), buffer.size())) > 0) {
      text.append(buffer.data(), static_cast<std::size_t>(length));
    }
    ::close(out[0]);
    int status = 0;
    EXPECT_EQ(::waitpid(child, &status, 0), child);
    EXPECT_EQ(status, 0) << command.front() << ": " << text;
    return text;
  }

  /// `gio` finds the Trash through a daemon of its own session.
  std::string gio(std::vector<std::string> arguments) const {
    arguments.insert(arguments.begin(), {"dbus-run-session", "--", "gio"});
    return outputOf(arguments);
  }

  Path trashed(const Path& original, const std::string& content = "content") {
    disk.makeFile(original, content);
    const auto place = trash.moveToTrash(original, anywhere);
    EXPECT_TRUE(place);
    return place.value_or(Path());
  }

 private:
  [[noreturn]] void execute(const std::vector<std::string>& command) const {
    ::setenv("HOME", disk.onDisk(kHome).c_str(), 1);
    ::setenv("XDG_DATA_HOME", disk.onDisk("/Users/ann/.local/share").c_str(), 1);
    ::setenv("XDG_RUNTIME_DIR", disk.onDisk("/run").c_str(), 1);
    ::setenv("LC_ALL", "C.UTF-8", 1);
    ::unsetenv("DISPLAY");
    if (::chdir("/") != 0 || !std::freopen("/dev/null", "w", stderr)) std::_Exit(127);
    std::vector<char*> arguments;
    for (const std::string& word : command) arguments.push_back(const_cast<char*>(word.c_str()));
    arguments.push_back(nullptr);
    ::execvp(arguments[0], arguments.data());
    std::_Exit(127);
  }
};

struct OddName {
  std::string name;
  std::string inGioAddress;   // as an address of gio's Trash has it
  std::string restoredByGio;  // it escapes some bytes when it restores, in what it trashed as well
};

const std::vector<OddName>& oddNames() {
  static const std::vector<OddName> names{
      {"plain.txt", "plain.txt", "plain.txt"},
      {"with blank", "with%20blank", "with blank"},
      {"new\nline\nPath=x", "new%0Aline%0APath=x", "new\\x0aline\\x0aPath=x"},
      {"per%cent%41", "per%25cent%2541", "per%cent%41"},
      {"bad\xff\xfeutf", "bad%FF%FEutf", "bad\\xff\\xfeutf"},
      {"-rf", "-rf", "-rf"},
      {"$(touch x);`y`'\"", "$(touch%20x);%60y%60'%22", "$(touch x);`y`'\""},
      {"\xc3\xa9t\xc3\xa9", "%C3%A9t%C3%A9", "\\xc3\\xa9t\\xc3\\xa9"}};
  return names;
}

/// It takes every place for UTF-8, so it can neither trash nor restore a name that is not.
bool isBeyondTrashCli(const std::string& name) {
  return name.find('\xff') != std::string::npos;
}

TEST_F(TrashNeighbours, OddBytesInTheNameAreListedAndRestoredByGio) {
  for (const OddName& odd : oddNames()) trashed(Path("/Users/ann/folder") / odd.name, odd.name);
  const std::string list = gio({"trash", "--list"});
  for (const auto& [name, address, restored] : oddNames()) {
    EXPECT_THAT(list, HasSubstr("trash:///" + address + "\t"));
    gio({"trash", "--restore", "trash:///" + address});
    EXPECT_EQ(disk.contentOf(Path("/Users/ann/folder") / restored), name);
  }
  EXPECT_EQ(countIn(kFiles) + countIn(kInfo), 0u);
}

TEST_F(TrashNeighbours, GioRestoresWhatItTrashedItselfUnderTheSameNames) {
  for (const auto& [name, address, restored] : oddNames()) {
    gio({"trash", "--", disk.makeFile(Path("/Users/ann/folder") / name, name)});
    gio({"trash", "--restore", "trash:///" + address});
    EXPECT_EQ(disk.contentOf(Path("/Users/ann/folder") / restored), name);
  }
}

TEST_F(TrashNeighbours, OddBytesInTheNameOfWhatGioTrashedAreListedAndRestored) {
  for (const OddName& odd : oddNames()) {
    const std::string& name = odd.name;
    const Path original = Path("/Users/ann/folder") / name;
    disk.makeFile(original, name);
    gio({"trash", "--", disk.onDisk(original)});
    ASSERT_FALSE(disk.holds(original));
    EXPECT_EQ(trash.list(), std::vector<Path>{inFiles(name)});
    EXPECT_TRUE(trash.putBack(inFiles(name), original, anywhere));
    EXPECT_EQ(disk.contentOf(original), name);
    EXPECT_EQ(countIn(kInfo), 0u);
  }
}

TEST_F(TrashNeighbours, ThingsOfOneNameAreToldApartByGio) {
  trashed("/Users/ann/one/same", "1");
  trashed("/Users/ann/two/same", "2");
  const std::string list = gio({"trash", "--list"});
  EXPECT_THAT(list, HasSubstr("trash:///same\t" + disk.onDisk("/Users/ann/one/same").native()));
  EXPECT_THAT(list, HasSubstr("trash:///same.2\t" + disk.onDisk("/Users/ann/two/same").native()));
}

TEST_F(TrashNeighbours, WhatIsRemovedForGoodIsGoneForGio) {
  const Path waiting = trashed("/Users/ann/a");
  trashed("/Users/ann/b");
  ASSERT_TRUE(trash.remove(waiting, anywhere));
  EXPECT_THAT(gio({"trash", "--list"}), testing::AllOf(HasSubstr("///b"), Not(HasSubstr("///a"))));
}

TEST_F(TrashNeighbours, AFolderAndALinkAreListedAndRestoredByGio) {
  disk.makeFile("/Users/ann/folder/a", "content");
  disk.makeLink("/Users/ann/link", "folder");
  ASSERT_TRUE(trash.moveToTrash("/Users/ann/link", anywhere));
  ASSERT_TRUE(trash.moveToTrash("/Users/ann/folder", anywhere));
  gio({"trash", "--restore", "trash:///link"});
  gio({"trash", "--restore", "trash:///folder"});
  EXPECT_EQ(disk.contentOf("/Users/ann/link/a"), "content");
}

TEST_F(TrashNeighbours, OddBytesInTheNameAreListedAndRestoredByTrashCli) {
  for (const OddName& odd : oddNames()) {
    const std::string& name = odd.name;
    if (isBeyondTrashCli(name)) continue;
    const Path original = Path("/Users/ann/folder") / name;
    trashed(original, name);
    EXPECT_THAT(outputOf({"trash-list"}), HasSubstr(" " + disk.onDisk(original).native() + "\n"));
    outputOf({"trash-restore", disk.onDisk(original)}, "0\n");
    EXPECT_EQ(disk.contentOf(original), name);
    EXPECT_EQ(countIn(kFiles) + countIn(kInfo), 0u);
  }
}

TEST_F(TrashNeighbours, ANameThatIsNotUtf8IsListedByTrashCli) {
  trashed("/Users/ann/bad\xff");
  EXPECT_THAT(outputOf({"trash-list"}), HasSubstr(disk.onDisk("/Users/ann/bad").native()));
}

TEST_F(TrashNeighbours, OddBytesInTheNameOfWhatTrashCliTrashedAreListedAndRestored) {
  for (const OddName& odd : oddNames()) {
    const std::string& name = odd.name;
    if (isBeyondTrashCli(name)) continue;
    const Path original = Path("/Users/ann/folder") / name;
    disk.makeFile(original, name);
    outputOf({"trash-put", "--", disk.onDisk(original)});
    ASSERT_FALSE(disk.holds(original)) << name;
    EXPECT_EQ(trash.list(), std::vector<Path>{inFiles(name)});
    EXPECT_TRUE(trash.putBack(inFiles(name), original, anywhere));
    EXPECT_EQ(disk.contentOf(original), name);
    EXPECT_EQ(countIn(kInfo), 0u);
  }
}

TEST_F(TrashNeighbours, WhatTrashCliTrashedIsRemovedWithItsRecord) {
  outputOf({"trash-put", disk.makeFile("/Users/ann/a", "content")});
  EXPECT_TRUE(trash.remove(inFiles("a"), anywhere));
  EXPECT_EQ(outputOf({"trash-list"}), "");
  EXPECT_EQ(countIn(kFiles) + countIn(kInfo), 0u);
}

}  // namespace
}  // namespace klarvik
