#pragma once

#include "platform/file_system.h"

namespace klarvik {

/// A folder of a test's file system that asks it by whole paths, so that faults and memory need not
/// know of opened folders.
class FolderByPath final : public OpenedFolder {
 public:
  FolderByPath(const FileSystem& files, Path folder) : _files(files), _folder(std::move(folder)) {}

  [[nodiscard]] std::optional<FileAttributes> attributes(const std::string& name) const override {
    return _files.attributes(_folder / name);
  }
  [[nodiscard]] std::unique_ptr<FileReader> openForReading(const std::string& name) const override {
    return _files.openForReading(_folder / name);
  }
  [[nodiscard]] std::unique_ptr<OpenedFolder> openFolder(const std::string& name) const override {
    return std::make_unique<FolderByPath>(_files, _folder / name);
  }

 private:
  const FileSystem& _files;
  const Path _folder;
};

}  // namespace klarvik
