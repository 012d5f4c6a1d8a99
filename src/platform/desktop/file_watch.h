#pragma once

#include <QFileSystemWatcher>
#include <functional>

#include "platform/path.h"

namespace klarvik {

/// Tells, from the main loop, that a file may have been written, replaced, made or removed, also
/// while its folder is not there. It may tell more often than that. Main thread only.
class FileWatch {
 public:
  /// `file` is a path on the machine.
  FileWatch(const Path& file, std::function<void()> changed);

 private:
  void lookAgain();
  [[nodiscard]] QStringList placesToWatch() const;

  const QString _file;
  std::function<void()> _changed;
  QFileSystemWatcher _watcher;
};

}  // namespace klarvik
