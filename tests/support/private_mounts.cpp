#include "support/private_mounts.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <linux/fs.h>
#include <sched.h>
#include <sys/ioctl.h>
#include <sys/mount.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <string>

#include "base/posix_io.h"
#include "support/temporary_folder.h"

namespace klarvik {
namespace {

[[noreturn]] void giveUp(const char* what) {
  std::fprintf(stderr, "cannot %s: %s\n", what, std::strerror(errno));
  std::_Exit(125);
}

void writeTo(const char* file, const std::string& text) {
  std::ofstream stream(file);
  if (!(stream << text << std::flush)) giveUp("map the user");
}

void becomeRootOfOwnUserSpace() {
  const std::string user = std::to_string(::getuid());
  const std::string group = std::to_string(::getgid());
  if (::unshare(CLONE_NEWUSER) != 0) giveUp("make a user space");
  writeTo("/proc/self/setgroups", "deny");
  writeTo("/proc/self/uid_map", "0 " + user + " 1");
  writeTo("/proc/self/gid_map", "0 " + group + " 1");
}

void takePrivateMounts() {
  if (::geteuid() != 0) becomeRootOfOwnUserSpace();
  if (::unshare(CLONE_NEWNS) != 0) giveUp("unshare the mounts");
  if (::mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0) giveUp("hide the mounts");
}

bool mountDead(const Path& folder) {
  // Left open: the end of the process lets go of whoever waits.
  const int server = ::open("/dev/fuse", O_RDWR | O_CLOEXEC);
  if (server < 0) return false;
  const std::string options =
      "fd=" + std::to_string(server) + ",rootmode=40000,user_id=0,group_id=0";
  return ::mount("klarvik-test", folder.c_str(), "fuse", MS_NOSUID | MS_NODEV, options.c_str()) ==
         0;
}

}  // namespace

bool passesWithPrivateMounts(const std::function<void()>& body) {
  std::fflush(nullptr);
  const pid_t child = ::fork();
  if (child < 0) giveUp("start a process");
  if (child == 0) {
    takePrivateMounts();
    body();
    std::fflush(nullptr);
    std::_Exit(testing::Test::HasFailure() ? 1 : 0);
  }
  int status = 0;
  while (::waitpid(child, &status, 0) < 0 && errno == EINTR) {
  }
  return status == 0;
}

bool canMountImage(const std::string& kind) {
  const TemporaryFolder store;
  const TemporaryFolder folder;
  return ::geteuid() == 0 && passesWithPrivateMounts([&] {
           if (!mountImage(kind, store.path(), folder.path())) std::_Exit(1);
         });
}

bool mountImage(const std::string& kind, const Path& store, const Path& folder) {
  const Path image = store / "image";
  std::ofstream(image).close();
  std::filesystem::resize_file(image, 400UL << 20);
  const std::string made = "PATH=/usr/sbin:/sbin:/usr/bin:/bin; { mkfs." + kind + " -q '" +
                           image.native() + "' && mount -t " + kind + " -o loop '" +
                           image.native() + "' '" + folder.native() + "'; } >/dev/null 2>&1";
  return std::system(made.c_str()) == 0;
}

bool shareContent(const Path& file, const Path& copy) {
  const UniqueFd from(::open(file.c_str(), O_RDONLY | O_CLOEXEC));
  const UniqueFd to(::open(copy.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600));
  return from && to && ::ioctl(to.get(), FICLONE, from.get()) == 0;
}

bool canMountDeadServers() {
  return passesWithPrivateMounts([] {
    if (!mountDead("/tmp")) std::_Exit(1);
  });
}

bool passesWithDeadServers(const std::vector<Path>& folders, const std::function<void()>& body) {
  return passesWithPrivateMounts([&] {
    for (const Path& folder : folders) {
      if (!mountDead(folder)) giveUp("mount a file system without a server");
    }
    ::alarm(60);
    body();
  });
}

void mountTmpfs(const Path& folder, const char* options, const char* source) {
  if (::mount(source, folder.c_str(), "tmpfs", 0, options) != 0) giveUp("mount a tmpfs");
}

void mountBind(const Path& folder, const Path& at) {
  if (::mount(folder.c_str(), at.c_str(), nullptr, MS_BIND, nullptr) != 0) giveUp("bind a folder");
}

}  // namespace klarvik
